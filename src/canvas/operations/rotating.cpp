#include "canvas/operations/rotating.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <optional>

#include "canvas/operations/selection.h"
#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr double kTrackStepDegrees = 30.0;
constexpr double kScenerySmallStepDegrees = 15.0;

bool IsPoint(Vec2 at) {
  return std::isfinite(at.x) && std::isfinite(at.y);
}

Vec2 TurnedAbout(Vec2 at, Vec2 pivot, double degrees) {
  return LocalToWorld({pivot.x, pivot.y, degrees}, {at.x - pivot.x, at.y - pivot.y});
}

// Sets a piece or an item to a pose turned about the pivot. One whose place no sum can reach stays.
template <typename Record>
void SetTurned(Record& record, const Pose& from, Vec2 pivot, double degrees) {
  const Vec2 at = TurnedAbout({from.x, from.y}, pivot, degrees);
  if (!IsPoint(at)) return;
  record.x = at.x;
  record.y = at.y;
  record.heading = normalizeDegrees(from.heading + degrees);
}

// Calls visit(record) with the selected pieces, then with the selected scenery items.
template <typename AnyLayout, typename Visit>
void ForEachSelected(AnyLayout& layout, Visit visit) {
  for (auto& piece : layout.pieces)
    if (piece.sel) visit(piece);
  for (auto& item : layout.scenery)
    if (item.sel) visit(item);
}

// A box that grows. What isn't a point can't be boxed and is left out.
class Box {
 public:
  void add(Vec2 at) {
    if (!IsPoint(at)) return;
    min_ = {std::min(min_.x, at.x), std::min(min_.y, at.y)};
    max_ = {std::max(max_.x, at.x), std::max(max_.y, at.y)};
  }

  Vec2 middle() const {
    if (min_.x > max_.x) return {};
    return {std::midpoint(min_.x, max_.x), std::midpoint(min_.y, max_.y)};
  }

 private:
  static constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Vec2 min_{kInfinity, kInfinity};
  Vec2 max_{-kInfinity, -kInfinity};
};

void AddPiece(Box& box, const Piece& piece) {
  box.add({piece.x, piece.y});
  const PieceDef* const def = findPart(piece.cat);
  if (def == nullptr) return;
  for (std::size_t i = 0; i < def->connectors.size(); ++i) {
    const WorldConnector end = worldConnector(piece, *def, i);
    box.add({end.x, end.y});
  }
  if (!(def->radius > 0.0) || def->connectors.size() < 2) return;
  const double sagitta = (1.0 - std::cos(Radians(def->angle / 2.0))) * def->radius;
  box.add(LocalToWorld(piece.pose(), {def->length / 2.0, def->angle >= 0.0 ? -sagitta : sagitta}));
}

void AddScenery(Box& box, const SceneryItem& item) {
  const SceneryDef* const def = findScenery(item.item);
  const double halfWidth = def != nullptr ? item.scalex * def->width / 2.0 : 0.0;
  const double halfDepth = def != nullptr ? item.scaley * def->depth / 2.0 : 0.0;
  box.add({item.x - halfWidth, item.y - halfDepth});
  box.add({item.x + halfWidth, item.y + halfDepth});
}

// The record of commonHelixOfSelection, or null.
Helix* HelixSelectedAlone(Layout& layout) {
  const std::int32_t id = commonHelixOfSelection(layout);
  if (id == kNone) return nullptr;
  for (Helix& helix : layout.helices)
    if (helix.id == id) return &helix;
  return nullptr;
}

double SceneryStep(const SceneryItem& item) {
  const SceneryDef* const def = findScenery(item.item);
  if (def == nullptr) return kScenerySmallStepDegrees;
  const bool likeTrack = def->category == kPlatforms || def->category == kSignals;
  return likeTrack ? kTrackStepDegrees : kScenerySmallStepDegrees;
}

}  // namespace

std::vector<Pose> selectionPoses(const Layout& layout) {
  std::vector<Pose> poses;
  ForEachSelected(layout, [&](const auto& record) { poses.push_back(record.pose()); });
  return poses;
}

Vec2 selectionMean(const Layout& layout) {
  Vec2 sum;
  double count = 0.0;
  ForEachSelected(layout, [&](const auto& record) {
    if (!IsPoint({record.x, record.y})) return;
    sum = {sum.x + record.x, sum.y + record.y};
    ++count;
  });
  return count > 0.0 ? Vec2{sum.x / count, sum.y / count} : Vec2{};
}

Vec2 selectionBoxMiddle(const Layout& layout) {
  Box box;
  for (const Piece& piece : layout.pieces)
    if (piece.sel) AddPiece(box, piece);
  for (const SceneryItem& item : layout.scenery)
    if (item.sel) AddScenery(box, item);
  return box.middle();
}

void turnSelectionFrom(Layout& layout, const std::vector<Pose>& start, Vec2 pivot, double degrees) {
  if (!IsPoint(pivot) || !std::isfinite(degrees)) return;
  auto from = start.begin();
  ForEachSelected(layout, [&](auto& record) {
    if (from != start.end()) SetTurned(record, *from++, pivot, degrees);
  });
}

void turnSelectionByWheel(Layout& layout, double degrees) {
  const std::vector<Pose> start = selectionPoses(layout);
  if (start.empty()) return;
  const Vec2 pivot = selectionBoxMiddle(layout);
  PushUndo(layout);
  turnSelectionFrom(layout, start, pivot, degrees);
}

void rotateSelectionStep(Layout& layout) {
  std::optional<Vec2> pivot;
  Helix* const helix = HelixSelectedAlone(layout);
  if (helix != nullptr)
    pivot = Vec2{helix->cx, helix->cy};
  else
    ForEachSelected(layout, [&](const auto& record) {
      if (!pivot) pivot = Vec2{record.x, record.y};
    });
  if (!pivot || !IsPoint(*pivot)) return;
  PushUndo(layout);
  if (helix != nullptr) helix->heading = normalizeDegrees(helix->heading + kTrackStepDegrees);
  for (Piece& piece : layout.pieces)
    if (piece.sel) SetTurned(piece, piece.pose(), *pivot, kTrackStepDegrees);
  for (SceneryItem& item : layout.scenery)
    if (item.sel) SetTurned(item, item.pose(), *pivot, SceneryStep(item));
}

}  // namespace vantrel
