// Joins between pieces. A join is the pair of slots that name each other; there is no other record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "doc/layout.h"

namespace vantrel {

// Grows `joints` with open slots to the definition's number of connectors. Nothing happens for an
// unknown part or when the slots are there.
void GrowJoints(Piece& piece);

// GrowJoints for every piece, so that a plan behaves the same before saving and after loading.
void GrowAllJoints(Layout& layout);

// Joins connector `a` of the piece with id `pieceA` to connector `b` of `pieceB`. Slots that either
// end was joined to before are opened, so that every slot's far side names it back. Does nothing
// when a piece is missing, an index is out of range or both ends are the same connector.
void joinPieces(Layout& layout, std::int32_t pieceA, std::int32_t a, std::int32_t pieceB,
                std::int32_t b);

// The same join for a loop that makes many: the slots that name an end come from an index instead
// of a walk over all pieces. Works by places in `pieces`, so that equal ids are no obstacle. While
// it lives, slots change only through it, and no piece comes, goes or moves in the list.
class EndJoiner {
 public:
  explicit EndJoiner(Layout& layout);

  // Joins connector `a` of the piece at place `pieceA` to connector `b` of the one at `pieceB`; the
  // rest as joinPieces.
  void join(std::size_t pieceA, std::size_t a, std::size_t pieceB, std::size_t b);

  // All of a join but the link itself: grows the slots, opens both and those that name either end.
  // False for ends that can't be joined.
  bool openForJoin(std::size_t pieceA, std::size_t a, std::size_t pieceB, std::size_t b);

 private:
  struct SlotPlace {
    std::size_t piece = 0;
    std::size_t slot = 0;
  };

  void openSlotsNaming(const Joint& end);
  void link(std::size_t piece, std::size_t slot, const Joint& end);

  Layout& layout_;
  std::unordered_multimap<std::uint64_t, SlotPlace> named_;  // who names an end, or did
};

}  // namespace vantrel
