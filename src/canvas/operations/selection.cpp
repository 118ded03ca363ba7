#include "canvas/operations/selection.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <unordered_set>

#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// The position in `pieces` that stands for none.
constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

bool IsTurntable(const Piece& piece) {
  const PieceDef* const def = findPart(piece.cat);
  return def != nullptr && def->role == PieceRole::turntable;
}

template <typename Pointer, typename Records>
std::vector<Pointer> Selected(Records& records) {
  std::vector<Pointer> selected;
  for (auto& record : records)
    if (record.sel) selected.push_back(&record);
  return selected;
}

template <typename Record>
bool AnySelected(const std::vector<Record>& records) {
  return std::ranges::any_of(records, &Record::sel);
}

void AddJoined(const Piece& piece, std::unordered_set<std::int32_t>& ids) {
  for (const Joint& joint : piece.joints)
    if (joint.target >= 0) ids.insert(joint.target);
}

void SelectPieces(Layout& layout, const std::unordered_set<std::int32_t>& ids) {
  if (ids.empty()) return;
  for (Piece& piece : layout.pieces)
    if (ids.contains(piece.id)) piece.sel = true;
}

// The position of the selected piece latest in `pieces`.
std::size_t ChainAnchor(const Layout& layout) {
  for (std::size_t i = layout.pieces.size(); i-- > 0;)
    if (layout.pieces[i].sel) return i;
  return kNowhere;
}

// For each position the one it was first reached from, walking breadth first over the joints in
// slot order until `goal` is reached; kNowhere where the walk didn't come.
std::vector<std::size_t> WalkJoints(const Layout& layout, const PieceIndex& index,
                                    std::size_t start, std::size_t goal) {
  std::vector<std::size_t> reachedFrom(layout.pieces.size(), kNowhere);
  std::vector<std::size_t> queue = {start};
  for (std::size_t next = 0; next < queue.size(); ++next) {
    const std::size_t at = queue[next];
    for (const Joint& joint : layout.pieces[at].joints) {
      if (joint.target < 0) continue;
      const auto found = index.find(joint.target);
      if (found == index.end()) continue;
      const std::size_t to = found->second;
      if (to == start || reachedFrom[to] != kNowhere) continue;
      reachedFrom[to] = at;
      if (to == goal) return reachedFrom;
      queue.push_back(to);
    }
  }
  return reachedFrom;
}

// Selects the pieces of the shortest way; false when there is none.
bool SelectWay(Layout& layout, const PieceIndex& index, std::size_t start, std::size_t goal) {
  const std::vector<std::size_t> reachedFrom = WalkJoints(layout, index, start, goal);
  if (reachedFrom[goal] == kNowhere) return false;
  for (std::size_t at = goal; at != start; at = reachedFrom[at]) layout.pieces[at].sel = true;
  layout.pieces[start].sel = true;
  return true;
}

}  // namespace

std::vector<Piece*> selectedPieces(Layout& layout) {
  return Selected<Piece*>(layout.pieces);
}

std::vector<const Piece*> selectedPieces(const Layout& layout) {
  return Selected<const Piece*>(layout.pieces);
}

std::vector<SceneryItem*> selectedScenery(Layout& layout) {
  return Selected<SceneryItem*>(layout.scenery);
}

std::vector<const SceneryItem*> selectedScenery(const Layout& layout) {
  return Selected<const SceneryItem*>(layout.scenery);
}

bool hasSelectedPiece(const Layout& layout) {
  return AnySelected(layout.pieces);
}

bool hasSelectedObject(const Layout& layout) {
  return AnySelected(layout.pieces) || AnySelected(layout.scenery);
}

bool hasSelection(const Layout& layout) {
  return hasSelectedObject(layout) || AnySelected(layout.labels) ||
         AnySelected(layout.measurements) || AnySelected(layout.shapes);
}

std::int32_t commonHelixOfSelection(const Layout& layout) {
  if (AnySelected(layout.scenery)) return kNone;
  std::int32_t common = kNone;
  for (const Piece& piece : layout.pieces) {
    if (!piece.sel) continue;
    if (piece.helix == kNone || (common != kNone && piece.helix != common)) return kNone;
    common = piece.helix;
  }
  return common;
}

void expandHelixSelection(Layout& layout) {
  std::unordered_set<std::int32_t> helices;
  for (const Piece& piece : layout.pieces)
    if (piece.sel && piece.helix != kNone) helices.insert(piece.helix);
  if (helices.empty()) return;
  for (Piece& piece : layout.pieces)
    if (helices.contains(piece.helix)) piece.sel = true;
}

void selectTurntableNeighbours(Layout& layout) {
  std::unordered_set<std::int32_t> joined;
  for (const Piece& piece : layout.pieces)
    if (piece.sel && IsTurntable(piece)) AddJoined(piece, joined);
  SelectPieces(layout, joined);
}

void clickPiece(Layout& layout, std::int32_t id) {
  Piece* const piece = FindPiece(layout, id);
  if (piece == nullptr) return;
  if (!piece->sel) {
    ClearSelection(layout);
    piece->sel = true;
    // A stub brings its helix, which the closure below sees to, and nothing else.
    if (piece->helix == kNone) selectTurntableNeighbours(layout);
  }
  expandHelixSelection(layout);
}

void clickPieceToggle(Layout& layout, std::int32_t id) {
  Piece* const piece = FindPiece(layout, id);
  if (piece == nullptr) return;
  piece->sel = !piece->sel;
  expandHelixSelection(layout);
}

void clickPieceChain(Layout& layout, std::int32_t id) {
  const PieceIndex index = IndexPieces(layout);
  const auto found = index.find(id);
  if (found == index.end()) return;
  const std::size_t clicked = found->second;
  const std::size_t anchor = ChainAnchor(layout);
  const bool hasAnchor = anchor != kNowhere && layout.pieces[anchor].id != id;
  if (!hasAnchor || !SelectWay(layout, index, anchor, clicked))
    layout.pieces[clicked].sel = !layout.pieces[clicked].sel;
  expandHelixSelection(layout);
}

void clickScenery(Layout& layout, std::int32_t id, bool toggle) {
  const auto item = std::ranges::find(layout.scenery, id, &SceneryItem::id);
  if (item == layout.scenery.end()) return;
  if (toggle) {
    item->sel = !item->sel;
  } else if (!item->sel) {
    ClearSelection(layout);
    item->sel = true;
  }
}

}  // namespace vantrel
