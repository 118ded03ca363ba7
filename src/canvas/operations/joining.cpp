#include "canvas/operations/joining.h"

#include <algorithm>
#include <cstddef>

#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// How many slots the piece has once GrowJoints has run.
std::size_t SlotCount(const Piece& piece) {
  const PieceDef* def = findPart(piece.cat);
  return std::max(piece.joints.size(), def != nullptr ? def->connectors.size() : 0);
}

bool HasSlot(const Piece& piece, std::int32_t slot) {
  return slot >= 0 && static_cast<std::size_t>(slot) < SlotCount(piece);
}

// Opens every slot that names this connector. Looking for the far sides, instead of following the
// connector's own slot, also finds joins that a damaged plan holds on one side only.
void OpenSlotsNaming(Layout& layout, const Joint& end) {
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints)
      if (joint == end) joint = Joint{};
}

}  // namespace

void GrowJoints(Piece& piece) {
  piece.joints.resize(SlotCount(piece));
}

void GrowAllJoints(Layout& layout) {
  for (Piece& piece : layout.pieces) GrowJoints(piece);
}

void joinPieces(Layout& layout, std::int32_t pieceA, std::int32_t a, std::int32_t pieceB,
                std::int32_t b) {
  // A negative id can't be named by a slot: there it would read as open.
  if (pieceA < 0 || pieceB < 0) return;
  if (pieceA == pieceB && a == b) return;
  Piece* const first = FindPiece(layout, pieceA);
  Piece* const second = FindPiece(layout, pieceB);
  if (first == nullptr || second == nullptr) return;
  if (!HasSlot(*first, a) || !HasSlot(*second, b)) return;

  GrowJoints(*first);
  GrowJoints(*second);
  const Joint endA{.target = pieceA, .tconn = a};
  const Joint endB{.target = pieceB, .tconn = b};
  OpenSlotsNaming(layout, endA);
  OpenSlotsNaming(layout, endB);
  first->joints[static_cast<std::size_t>(a)] = endB;
  second->joints[static_cast<std::size_t>(b)] = endA;
}

}  // namespace vantrel
