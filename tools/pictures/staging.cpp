#include "tools/pictures/staging.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>
#include <string>

#include "doc/layout_ops.h"
#include "tools/pictures/horizon.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr double kTrackClearanceMm = 120.0;
constexpr double kThingClearanceMm = 90.0;
constexpr float kRailTopMm = 6.7F;

constexpr Rgb kRed{0.74F, 0.10F, 0.09F};
constexpr Rgb kCream{0.95F, 0.90F, 0.76F};
constexpr Rgb kGlass{0.12F, 0.17F, 0.22F};
constexpr Rgb kRoof{0.60F, 0.61F, 0.62F};
constexpr Rgb kChassis{0.14F, 0.14F, 0.15F};
constexpr Rgb kLamp{1.0F, 0.96F, 0.72F};

// Around the middle of the car; z from the top of the rails.
void AddBlock(Mesh& mesh, Vec3f low, Vec3f high, Rgb colour) {
  AddBox(mesh, low, high - low, {colour, colour}, {});
}

Mesh Railcar() {
  constexpr float kHalf = 112.0F;
  constexpr float kSide = 16.5F;
  Mesh car;
  for (const float middle : {-70.0F, 70.0F})
    AddBlock(car, {middle - 24.0F, -11.0F, 0.5F}, {middle + 24.0F, 11.0F, 9.0F}, kChassis);
  AddBlock(car, {-kHalf + 6.0F, -14.0F, 6.0F}, {kHalf - 6.0F, 14.0F, 10.0F}, kChassis);
  AddBlock(car, {-kHalf, -kSide, 10.0F}, {kHalf, kSide, 25.0F}, kRed);
  AddBlock(car, {-kHalf, -kSide, 25.0F}, {kHalf, kSide, 39.0F}, kCream);
  AddBlock(car, {-kHalf + 2.0F, -kSide - 0.4F, 23.6F}, {kHalf - 2.0F, kSide + 0.4F, 25.2F}, kCream);
  for (float x = -kHalf + 12.0F; x < kHalf - 20.0F; x += 21.0F)
    AddBlock(car, {x, -kSide - 0.5F, 27.0F}, {x + 15.0F, kSide + 0.5F, 36.5F}, kGlass);
  AddBlock(car, {-kHalf - 0.6F, -13.5F, 26.5F}, {kHalf + 0.6F, 13.5F, 37.0F}, kGlass);
  AddBlock(car, {-kHalf - 0.8F, -1.0F, 26.0F}, {kHalf + 0.8F, 1.0F, 37.5F}, kCream);
  AddBlock(car, {-kHalf + 1.0F, -15.0F, 39.0F}, {kHalf - 1.0F, 15.0F, 42.0F}, kRoof);
  AddBlock(car, {-kHalf + 3.0F, -10.0F, 42.0F}, {kHalf - 3.0F, 10.0F, 44.5F}, kRoof);
  for (const float end : {-kHalf, kHalf}) {
    for (const float y : {-10.5F, 10.5F}) {
      AddSphere(car, {end, y, 17.0F}, 2.6F, kLamp, 8);
      AddBlock(car, {std::min(end, end * 1.05F), y - 1.5F, 9.5F},
               {std::max(end, end * 1.05F), y + 1.5F, 12.5F}, kChassis);
    }
  }
  return car;
}

bool StandsFree(const Layout& layout, Vec2 at, double scale) {
  for (const Piece& piece : layout.pieces)
    if (std::hypot(piece.x - at.x, piece.y - at.y) < kTrackClearanceMm + 60.0) return false;
  for (const SceneryItem& item : layout.scenery)
    if (std::hypot(item.x - at.x, item.y - at.y) < kThingClearanceMm * scale) return false;
  return true;
}

}  // namespace

void Put(Layout& layout, std::string_view item, Pose at, double scale) {
  layout.scenery.push_back({.id = TakeId(layout),
                            .item = std::string(item),
                            .x = at.x,
                            .y = at.y,
                            .heading = at.heading,
                            .scalex = scale,
                            .scaley = scale});
}

void Plant(Layout& layout, const Wood& wood) {
  constexpr std::array<std::string_view, 6> kTrees{"tree_conifer", "tree_conifer", "tree_group",
                                                   "tree_lg_dec",  "tree_conifer", "tree_sm_dec"};
  std::mt19937 dice(wood.seed);
  // Written out, because the library's own distributions differ from one to another.
  const auto between = [&](double from, double to) {
    return from + (to - from) * static_cast<double>(dice()) / 4294967296.0;
  };
  int planted = 0;
  for (int tries = 0; planted < wood.count && tries < wood.count * 60; ++tries) {
    const Vec2 at{between(wood.topLeft.x, wood.bottomRight.x),
                  between(wood.topLeft.y, wood.bottomRight.y)};
    const std::string_view tree = kTrees[dice() % kTrees.size()];
    const double scale = between(0.85, 1.1);
    const double heading = between(0.0, 360.0);
    // Trees stand together in woods, with meadows between them.
    if (Noise(static_cast<float>(at.x) / 900.0F, static_cast<float>(at.y) / 900.0F) < 0.52F)
      continue;
    if (!StandsFree(layout, at, scale)) continue;
    Put(layout, tree, {at.x, at.y, heading}, scale);
    ++planted;
  }
}

void AddRailcar(Scene& scene, Pose at, float z) {
  const float turn = -static_cast<float>(at.heading) * std::numbers::pi_v<float> / 180.0F;
  const float cosine = std::cos(turn);
  const float sine = std::sin(turn);
  const auto turned = [&](Vec3f v) {
    return Vec3f{v.x * cosine - v.y * sine, v.x * sine + v.y * cosine, v.z};
  };
  const Vec3f place{static_cast<float>(at.x), -static_cast<float>(at.y), z + kRailTopMm};
  Mesh& mesh = scene.sceneMesh;
  const Mesh car = Railcar();
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (const Vec3f& point : car.positions) mesh.positions.push_back(turned(point) + place);
  for (const Vec3f& normal : car.normals) mesh.normals.push_back(turned(normal));
  mesh.colors.insert(mesh.colors.end(), car.colors.begin(), car.colors.end());
  for (const std::uint32_t corner : car.indices) mesh.indices.push_back(first + corner);
}

}  // namespace vantrel
