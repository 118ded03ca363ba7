#include <cmath>
#include <string_view>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "view3d/scene/scene_build.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr double kStepDegrees = 30.0;
constexpr double kStepsPerTurn = 12.0;
constexpr int kOuterPosts = 12;

// How a helix climbs.
struct Climb {
  double baseZ = 0.0;
  int steps = 0;
  double rise = 0.0;  // per step, mm
};

// On the circle around the helix's middle, in the world; the angle counts from its heading.
Vec2 OnCircle(const Helix& helix, double radius, double degrees) {
  const double t = Radians(degrees);
  return LocalToWorld({helix.cx, helix.cy, MeantAngle(helix.heading)},
                      {radius * std::cos(t), radius * std::sin(t)});
}

double TiltOf(double rise, double arc) {
  constexpr double kShortestArcMm = 0.001;
  return arc > kShortestArcMm ? Degrees(std::atan(rise / arc)) : 0.0;
}

// One curve per step. Nothing for a part that the catalog doesn't know.
void AddHelixRing(SceneBuild& build, const Helix& helix, const Climb& climb, std::string_view part,
                  double radius) {
  const PieceDef* const def = findPart(part);
  if (def == nullptr) return;
  build.needTrackModel(*def);
  const double arc = radius * Radians(kStepDegrees);
  const double tilt = TiltOf(climb.rise, arc);
  for (int i = 1; i <= climb.steps; ++i) {
    const double angle = -90.0 - kStepDegrees * i;
    const Vec2 place = OnCircle(helix, radius, angle);
    const Vec3f at = ViewPoint(place.x, place.y, climb.baseZ + i * climb.rise);
    build.scene.trackInstances.push_back(
        {.key = def->partNumber,
         .x = at.x,
         .y = at.y,
         .z = at.z,
         .heading = static_cast<float>(-(angle + 90.0 + MeantAngle(helix.heading))),
         .grade = static_cast<float>(-tilt),
         .length = static_cast<float>(arc),
         .rev = false});
    build.box.takeIn(place.x, -place.y);
  }
}

void AddHelixPost(SceneBuild& build, const Helix& helix, double radius, double degrees,
                  Vec2 bottomAndTop) {
  const Vec2 place = OnCircle(helix, radius, degrees);
  const Vec3f foot = ViewPoint(place.x, place.y, bottomAndTop.x);
  AddPost(build.scene.sceneMesh, foot.x, foot.y, foot.z, static_cast<float>(bottomAndTop.y),
          static_cast<float>(-(degrees + MeantAngle(helix.heading))));
}

}  // namespace

// A helix whose middle or whose base is no place is left out.
void AddHelix(SceneBuild& build, const Helix& helix, const HelixKit& kit) {
  Climb climb;
  if (const Piece* const bottom = build.findPiece(helix.bottomR1)) {
    if (build.levels.isHidden(bottom->level)) return;
    climb.baseZ = bottom->z;
  }
  if (!IsPlace(Vec2{helix.cx, helix.cy}) || !IsPlace(climb.baseZ)) return;
  climb.steps = static_cast<int>(kit.turns * kStepsPerTurn);
  climb.rise = climb.steps < 1 ? 0.0 : kit.height / climb.steps;
  AddHelixRing(build, helix, climb, kit.innerCurvePart, kit.innerRadius);
  AddHelixRing(build, helix, climb, kit.outerCurvePart, kit.outerRadius);
  const Vec2 bottomAndTop{climb.baseZ, climb.baseZ + kit.height};
  for (int i = 0; i < kOuterPosts; ++i)
    AddHelixPost(build, helix, kit.outerRadius, kStepDegrees * i - 90.0, bottomAndTop);
  AddHelixPost(build, helix, kit.innerRadius, 90.0, bottomAndTop);
}

void AddHelices(SceneBuild& build) {
  for (const Helix& helix : build.layout.helices)
    AddHelix(build, helix, kitOrDefault(helix.variant));
}

}  // namespace vantrel
