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

Joint EndOf(const Piece& piece, std::size_t connector) {
  return {.target = piece.id, .tconn = static_cast<std::int32_t>(connector)};
}

std::uint64_t KeyOf(const Joint& end) {
  return static_cast<std::uint64_t>(static_cast<std::uint32_t>(end.target)) << 32 |
         static_cast<std::uint32_t>(end.tconn);
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

EndJoiner::EndJoiner(Layout& layout) : layout_(layout) {
  std::size_t links = 0;
  for (const Piece& piece : layout.pieces) links += piece.joints.size();
  named_.reserve(links);
  for (std::size_t i = 0; i < layout.pieces.size(); ++i) {
    const Piece& piece = layout.pieces[i];
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot)
      if (!piece.joints[slot].open())
        named_.emplace(KeyOf(piece.joints[slot]), SlotPlace{.piece = i, .slot = slot});
  }
}

void EndJoiner::join(std::size_t pieceA, std::size_t a, std::size_t pieceB, std::size_t b) {
  if (!openForJoin(pieceA, a, pieceB, b)) return;
  link(pieceA, a, EndOf(layout_.pieces[pieceB], b));
  link(pieceB, b, EndOf(layout_.pieces[pieceA], a));
}

bool EndJoiner::openForJoin(std::size_t pieceA, std::size_t a, std::size_t pieceB, std::size_t b) {
  Piece& first = layout_.pieces[pieceA];
  Piece& second = layout_.pieces[pieceB];
  const Joint endA = EndOf(first, a);
  const Joint endB = EndOf(second, b);
  if (first.id < 0 || second.id < 0 || endA == endB) return false;
  if (a >= SlotCount(first) || b >= SlotCount(second)) return false;
  GrowJoints(first);
  GrowJoints(second);
  openSlotsNaming(endA);
  openSlotsNaming(endB);
  first.joints[a] = Joint{};
  second.joints[b] = Joint{};
  return true;
}

void EndJoiner::openSlotsNaming(const Joint& end) {
  const auto [first, last] = named_.equal_range(KeyOf(end));
  for (auto entry = first; entry != last; ++entry) {
    Joint& joint = layout_.pieces[entry->second.piece].joints[entry->second.slot];
    if (joint == end) joint = Joint{};
  }
  named_.erase(first, last);
}

void EndJoiner::link(std::size_t piece, std::size_t slot, const Joint& end) {
  layout_.pieces[piece].joints[slot] = end;
  named_.emplace(KeyOf(end), SlotPlace{.piece = piece, .slot = slot});
}

}  // namespace vantrel
