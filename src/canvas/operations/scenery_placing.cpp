#include <cmath>
#include <limits>
#include <string>

#include "canvas/operations/placing.h"
#include "catalog/piece_builders.h"
#include "catalog/scenery_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

// A roundhouse dropped nearer than this to the centre of a turntable's pit belongs to it.
constexpr double kRoundhouseCatchMm = 700.0;
// From the centre of the pit to the edge of the roundhouse that faces it.
constexpr double kRoundhouseGapMm = 349.6;
// The pitch of the turntable's connectors.
constexpr double kRoundhouseStepDegrees = 12.0;

struct NearestPit {
  const SceneryItem* item = nullptr;
  double distance = std::numeric_limits<double>::max();
};

NearestPit FindNearestPit(const Layout& layout, const Pose& pose) {
  NearestPit nearest;
  for (const SceneryItem& item : layout.scenery) {
    const SceneryDef* const def = findScenery(item.item);
    if (def == nullptr || def->role != SceneryRole::turntablePit) continue;
    const double dx = item.x - pose.x;
    const double dy = item.y - pose.y;
    const double distance = std::sqrt(dx * dx + dy * dy);
    if (distance < nearest.distance) nearest = {&item, distance};
  }
  return nearest;
}

}  // namespace

Pose sceneryDropPose(const Layout& layout, std::string_view item, const Pose& pose) {
  const SceneryDef* const def = findScenery(item);
  if (def == nullptr || def->role != SceneryRole::roundhouse) return pose;
  const NearestPit pit = FindNearestPit(layout, pose);
  if (pit.item == nullptr || !(pit.distance < kRoundhouseCatchMm)) return pose;

  const double heading = std::round(pose.heading / kRoundhouseStepDegrees) * kRoundhouseStepDegrees;
  const double r = -(def->depth / 2.0 + kRoundhouseGapMm);
  const double angle = Radians(heading);
  return {pit.item->x + r * std::sin(angle), pit.item->y - r * std::cos(angle), heading};
}

std::int32_t placeScenery(Layout& layout, std::string_view item, const Pose& pose) {
  if (findScenery(item) == nullptr) return kNone;
  const Pose dropped = sceneryDropPose(layout, item, pose);
  SceneryItem placed;
  placed.item = std::string(item);
  placed.x = dropped.x;
  placed.y = dropped.y;
  placed.heading = dropped.heading;
  EnsureDefaultLevel(layout);
  placed.level = HighestVisibleLevel(layout);
  placed.sel = true;
  // The selection goes before the snapshot: undoing the drop leaves nothing selected.
  ClearSelection(layout);
  PushUndo(layout);
  placed.id = TakeId(layout);
  layout.scenery.push_back(placed);
  return placed.id;
}

}  // namespace vantrel
