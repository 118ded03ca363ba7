#include "doc/layout_ops.h"

#include <algorithm>
#include <limits>

namespace vantrel {
namespace {

constexpr std::int32_t kLastId = std::numeric_limits<std::int32_t>::max();

template <typename Record, typename See>
void SeeIds(const std::vector<Record>& records, See see) {
  for (const Record& record : records) see(record.id);
}

// Of all kinds but measurements.
template <typename See>
void SeeStoredIds(const Layout& layout, See see) {
  SeeIds(layout.pieces, see);
  SeeIds(layout.scenery, see);
  SeeIds(layout.labels, see);
  SeeIds(layout.shapes, see);
  SeeIds(layout.tunnels, see);
  SeeIds(layout.helices, see);
}

template <typename See>
void SeeReferences(const Layout& layout, See see) {
  for (const Piece& piece : layout.pieces) {
    see(piece.helix);
    for (const Joint& joint : piece.joints) see(joint.target);
  }
  for (const GradeRun& run : layout.gradeRuns) see(run.anchor);
  for (const Tunnel& tunnel : layout.tunnels) {
    for (const std::int32_t id : {tunnel.portalA, tunnel.portalB, tunnel.anchorA, tunnel.anchorB})
      see(id);
    for (const std::int32_t id : tunnel.covers) see(id);
  }
  for (const Helix& helix : layout.helices)
    for (const std::int32_t id : {helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2})
      see(id);
}

// Every id that isn't free. One that only a dangling reference still names isn't either: a new
// record would inherit it.
template <typename See>
void SeeUsedIds(const Layout& layout, See see) {
  SeeStoredIds(layout, see);
  SeeIds(layout.measurements, see);
  SeeReferences(layout, see);
}

// In ascending order; none in nearly every plan.
std::vector<std::int32_t> UsedIdsFrom(const Layout& layout, std::int32_t first) {
  std::vector<std::int32_t> ids;
  SeeUsedIds(layout, [&](std::int32_t id) {
    if (id >= first) ids.push_back(id);
  });
  std::ranges::sort(ids);
  return ids;
}

// Appends ids of the counter until there are `count` or it has reached its end. New and a load wind
// the counter back, and undo and redo across them bring records with later ids back without it.
void CountUp(Layout& layout, std::vector<std::int32_t>& ids, std::size_t count) {
  const std::vector<std::int32_t> used = UsedIdsFrom(layout, layout.nextId);
  auto next = used.begin();
  for (; ids.size() < count && layout.nextId < kLastId; ++layout.nextId) {
    while (next != used.end() && *next < layout.nextId) ++next;
    if (next == used.end() || *next != layout.nextId) ids.push_back(layout.nextId);
  }
}

// Appends the lowest free ids until there are `count`.
void FillWithFreeIds(const Layout& layout, std::vector<std::int32_t>& ids, std::size_t count) {
  std::unordered_set<std::int32_t> used;
  SeeUsedIds(layout, [&](std::int32_t id) { used.insert(id); });
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
  if (count == 0) return ids;
  ids.reserve(count);
  CountUp(layout, ids, count);
  if (ids.size() < count) FillWithFreeIds(layout, ids, count);
  return ids;
}

void RenewTapeIds(Layout& layout) {
  if (layout.measurements.empty()) return;
  std::unordered_set<std::int32_t> stored;
  SeeStoredIds(layout, [&](std::int32_t id) { stored.insert(id); });
  std::vector<Measurement*> clashing;
  for (Measurement& tape : layout.measurements)
    if (stored.contains(tape.id)) clashing.push_back(&tape);
  const std::vector<std::int32_t> ids = TakeIds(layout, clashing.size());
  for (std::size_t i = 0; i < ids.size(); ++i) clashing[i]->id = ids[i];
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
