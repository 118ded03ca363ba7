#include <cmath>

#include "catalog/piece_builders.h"
#include "view3d/scene/structures.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr int kSectors = 48;
constexpr float kFloorMm = 0.1F;
constexpr float kRimMm = 8.0F;
constexpr Rgb kFloor{0.24F, 0.24F, 0.28F};
constexpr Rgb kRing{0.5F, 0.5F, 0.55F};
constexpr Rgb kBridge{0.45F, 0.42F, 0.4F};
constexpr Vec3f kUp{0.0F, 0.0F, 1.0F};

Vec3f Around(int sector, double radius, float z) {
  const double angle = 2.0 * kPi * (sector % kSectors) / kSectors;
  return {static_cast<float>(radius * std::cos(angle)),
          static_cast<float>(radius * std::sin(angle)), z};
}

}  // namespace

void AddTurntable(Mesh& mesh, double radius, double length) {
  const double rim = radius + (length * 0.5 - radius) * 0.5;
  for (int i = 0; i < kSectors; ++i) {
    const Vec3f a = Around(i, radius, kFloorMm);
    const Vec3f b = Around(i + 1, radius, kFloorMm);
    const Vec3f aTop = Around(i, radius, kRimMm);
    const Vec3f bTop = Around(i + 1, radius, kRimMm);
    AddTriangle(mesh, {Vec3f{0, 0, kFloorMm}, a, b}, kUp, kFloor);
    // One looks at the wall from inside the pit.
    AddQuad(mesh, {a, b, bTop, aTop}, Unit(Vec3f{-a.x - b.x, -a.y - b.y, 0.0F}, kUp), kRing);
    AddQuad(mesh, {aTop, bTop, Around(i + 1, rim, kRimMm), Around(i, rim, kRimMm)}, kUp, kRing);
  }
  const double half = radius - 2.0;
  AddSweptBox(mesh, StraightPath(-half, 0, half, 0, 1),
              {.halfWidth = 18.0F,
               .low = 8.5F,
               .high = 12.5F,
               .colours = {kBridge, kBridge},
               .hasEnds = true,
               .hasBottom = true});
}

}  // namespace vantrel
