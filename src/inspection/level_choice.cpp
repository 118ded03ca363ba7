// How what is shown gets onto another level: the longest of the edits in selection_edits.h.
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "canvas/operations/selection.h"
#include "catalog/helix_kits.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"
#include "inspection/selection_edits.h"

namespace vantrel {
namespace {

constexpr double kFlatGradeDeg = 0.001;

// A level and the height in mm that flat track has on it.
struct Deck {
  std::int32_t level = kNone;
  double height = 0.0;
};

double HeightFor(const Piece& piece, const Deck& deck) {
  return std::abs(piece.grade) < kFlatGradeDeg ? deck.height : piece.z;
}

void PutOn(Piece& piece, const Deck& deck) {
  piece.z = HeightFor(piece, deck);
  piece.level = deck.level;
}

// A stub stands at the deck's height whatever its slope.
void PutStubOn(Layout& layout, const PieceIndex& index, std::int32_t id, const Deck& deck) {
  const auto found = index.find(id);
  if (found == index.end()) return;
  Piece& stub = layout.pieces[found->second];
  stub.level = deck.level;
  stub.z = deck.height;
}

// The positions of all pieces outside of helices that joints lead to from these.
std::vector<std::size_t> PiecesBehind(const Layout& layout, const PieceIndex& index,
                                      std::vector<std::size_t> ahead) {
  std::vector<std::size_t> behind;
  std::vector<bool> seen(layout.pieces.size(), false);
  while (!ahead.empty()) {
    const Piece& piece = layout.pieces[ahead.back()];
    ahead.pop_back();
    for (const Joint& joint : piece.joints) {
      const auto found = joint.open() ? index.end() : index.find(joint.target);
      if (found == index.end() || seen[found->second]) continue;
      if (layout.pieces[found->second].helix != kNone) continue;
      seen[found->second] = true;
      behind.push_back(found->second);
      ahead.push_back(found->second);
    }
  }
  return behind;
}

bool PutHelixOn(Layout& layout, std::int32_t helixId, const Deck& bottom) {
  const auto found = std::ranges::find(layout.helices, helixId, &Helix::id);
  if (found == layout.helices.end()) return false;
  PushUndo(layout);
  const Helix& helix = *found;
  const Deck top = {bottom.level, bottom.height + kitOrDefault(helix.variant).height};
  const PieceIndex index = IndexPieces(layout);
  std::vector<std::size_t> topStubs;
  for (const std::int32_t id : {helix.bottomR1, helix.bottomR2})
    PutStubOn(layout, index, id, bottom);
  for (const std::int32_t id : {helix.topR1, helix.topR2}) {
    PutStubOn(layout, index, id, top);
    if (index.contains(id)) topStubs.push_back(index.at(id));
  }
  for (const std::size_t at : PiecesBehind(layout, index, std::move(topStubs)))
    PutOn(layout.pieces[at], top);
  return true;
}

bool PutPiecesOn(Layout& layout, const Deck& deck) {
  const auto moves = [&deck](const Piece& piece) {
    return piece.sel && piece.helix == kNone &&
           (piece.level != deck.level || piece.z != HeightFor(piece, deck));
  };
  if (std::ranges::none_of(layout.pieces, moves)) return false;
  PushUndo(layout);
  for (Piece& piece : layout.pieces)
    if (moves(piece)) PutOn(piece, deck);
  return true;
}

// For scenery items and polygons, which have no height of their own above the level.
template <typename Record>
bool PutRecordOn(Layout& layout, std::vector<Record>& records, std::int32_t id, const Deck& deck) {
  const auto found = std::ranges::find(records, id, &Record::id);
  if (found == records.end()) return false;
  PushUndo(layout);
  found->level = deck.level;
  return true;
}

bool PutShownOn(Layout& layout, const SelectionPage& shown, const Deck& deck) {
  switch (shown.kind) {
    case PageKind::scenery:
      return PutRecordOn(layout, layout.scenery, shown.sceneryId, deck);
    case PageKind::polygon:
      return PutRecordOn(layout, layout.shapes, shown.shapeId, deck);
    case PageKind::helix:
      return PutHelixOn(layout, shown.helixId, deck);
    case PageKind::piece:
    case PageKind::run:
      return PutPiecesOn(layout, deck);
    case PageKind::none:
      break;
  }
  return false;
}

}  // namespace

bool ChooseLevel(Layout& layout, const SelectionPage& shown, std::int32_t levelId) {
  if (levelId < 0) return false;
  const Level* level = FindLevel(layout, levelId);
  if (!PutShownOn(layout, shown, {levelId, level != nullptr ? level->height : 0.0})) return false;
  layout.activeLevel = levelId;
  return true;
}

}  // namespace vantrel
