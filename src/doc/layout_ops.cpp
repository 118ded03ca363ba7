#include "doc/layout_ops.h"

#include <limits>

namespace vantrel {
namespace {

constexpr std::int32_t kLastId = std::numeric_limits<std::int32_t>::max();

template <typename Record>
void CollectIds(const std::vector<Record>& records, std::unordered_set<std::int32_t>& ids) {
  for (const Record& record : records) ids.insert(record.id);
}

// An id that only a dangling reference still names isn't free either: a new record would inherit
// it.
void CollectReferences(const Layout& layout, std::unordered_set<std::int32_t>& ids) {
  for (const Piece& piece : layout.pieces) {
    ids.insert(piece.helix);
    for (const Joint& joint : piece.joints) ids.insert(joint.target);
  }
  for (const GradeRun& run : layout.gradeRuns) ids.insert(run.anchor);
  for (const Tunnel& tunnel : layout.tunnels) {
    ids.insert({tunnel.portalA, tunnel.portalB, tunnel.anchorA, tunnel.anchorB});
    ids.insert(tunnel.covers.begin(), tunnel.covers.end());
  }
  for (const Helix& helix : layout.helices)
    ids.insert({helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2});
}

std::unordered_set<std::int32_t> UsedIds(const Layout& layout) {
  std::unordered_set<std::int32_t> used;
  CollectIds(layout.pieces, used);
  CollectIds(layout.scenery, used);
  CollectIds(layout.labels, used);
  CollectIds(layout.measurements, used);
  CollectIds(layout.shapes, used);
  CollectIds(layout.tunnels, used);
  CollectIds(layout.helices, used);
  CollectReferences(layout, used);
  return used;
}

// Appends the lowest free ids until there are `count`.
void FillWithFreeIds(const Layout& layout, std::vector<std::int32_t>& ids, std::size_t count) {
  const std::unordered_set<std::int32_t> used = UsedIds(layout);
  for (std::int32_t id = 1; ids.size() < count; ++id)
    if (!used.contains(id)) ids.push_back(id);
}

template <typename Record>
void Deselect(std::vector<Record>& records) {
  for (Record& record : records) record.sel = false;
}

}  // namespace

std::int32_t TakeId(Layout& layout) {
  return TakeIds(layout, 1).front();
}

std::vector<std::int32_t> TakeIds(Layout& layout, std::size_t count) {
  std::vector<std::int32_t> ids;
  ids.reserve(count);
  while (ids.size() < count && layout.nextId < kLastId) ids.push_back(layout.nextId++);
  if (ids.size() < count) FillWithFreeIds(layout, ids, count);
  return ids;
}

void EnsureDefaultLevel(Layout& layout) {
  if (!layout.levels.empty()) return;
  Level level;
  level.r = 180;
  level.g = 200;
  level.b = 220;
  layout.levels.push_back(level);
}

void ClearSelection(Layout& layout) {
  Deselect(layout.pieces);
  Deselect(layout.scenery);
  Deselect(layout.labels);
  Deselect(layout.measurements);
  Deselect(layout.shapes);
}

void SyncCurrentGrade(Layout& layout) {
  if (layout.gradeRuns.empty()) {
    layout.currentGrade = CurrentGrade{};
    return;
  }
  const GradeRun& last = layout.gradeRuns.back();
  layout.currentGrade = {.active = true, .deg = last.deg, .anchor = last.anchor, .conn = last.conn};
}

void ResetGrades(Layout& layout) {
  layout.gradeRuns.clear();
  SyncCurrentGrade(layout);
}

Piece* FindPiece(Layout& layout, std::int32_t id) {
  for (Piece& piece : layout.pieces)
    if (piece.id == id) return &piece;
  return nullptr;
}

const Piece* FindPiece(const Layout& layout, std::int32_t id) {
  for (const Piece& piece : layout.pieces)
    if (piece.id == id) return &piece;
  return nullptr;
}

const Level* FindLevel(const Layout& layout, std::int32_t id) {
  for (const Level& level : layout.levels)
    if (level.id == id) return &level;
  return nullptr;
}

bool IsLevelHidden(const Layout& layout, std::int32_t levelId) {
  for (const Level& level : layout.levels)
    if (level.id == levelId && !level.visible) return true;
  return false;
}

std::unordered_set<std::int32_t> HiddenLevels(const Layout& layout) {
  std::unordered_set<std::int32_t> hidden;
  for (const Level& level : layout.levels)
    if (!level.visible) hidden.insert(level.id);
  return hidden;
}

PieceIndex IndexPieces(const Layout& layout) {
  PieceIndex index;
  index.reserve(layout.pieces.size());
  for (std::size_t i = 0; i < layout.pieces.size(); ++i) index.emplace(layout.pieces[i].id, i);
  return index;
}

std::int32_t HighestVisibleLevel(const Layout& layout) {
  std::int32_t id = layout.activeLevel;
  double highest = -1e9;
  for (const Level& level : layout.levels) {
    if (!level.visible || !(level.height > highest)) continue;
    highest = level.height;
    id = level.id;
  }
  return id;
}

}  // namespace vantrel
