// The engine depot: turntable pit, roundhouse, water and coal.
#include <array>
#include <cmath>

#include "catalog/piece_builders.h"
#include "view3d/scene/recipes.h"
#include "view3d/scene/vec3f.h"

namespace vantrel::recipes {
namespace {

constexpr Rgb kStallWall{0.62F, 0.3F, 0.3F};
constexpr Rgb kStallEnd{0.48F, 0.23F, 0.23F};
constexpr SolidColours kVent{.side = {0.46F, 0.46F, 0.48F}, .top = {0.3F, 0.3F, 0.32F}};

// A stall of the roundhouse around the middle of its turntable, which lies beyond the front.
class Stall {
 public:
  static constexpr float kFront = 368.0F;
  static constexpr float kRear = 693.0F;
  static constexpr float kHalfWidth = 50.0F;

  // `angle` in degrees.
  Stall(Item& item, double angle)
      : item_(item),
        cos_(static_cast<float>(std::cos(Radians(angle)))),
        sin_(static_cast<float>(std::sin(Radians(angle)))) {}

  // `along` mm from the middle of the turntable, `across` mm to the side of the stall's own track.
  Vec3f at(float along, float across, float z) const {
    constexpr float kFanY = -349.6F;
    return {item_.width() / 2.0F + along * sin_ + across * cos_,
            along * cos_ - across * sin_ + kFanY, z};
  }

  // The quad over two opposite corners, upright on its foot.
  void wall(Vec3f from, Vec3f to, Vec3f inside, Rgb colour) const {
    quad({Vec3f{from.x, from.y, from.z},
          {to.x, to.y, from.z},
          {to.x, to.y, to.z},
          {from.x, from.y, to.z}},
         inside, colour);
  }
  // Corners as (along, across, z).
  void quad(const std::array<Vec3f, 4>& corners, Vec3f inside, Rgb colour) const {
    item_.face({at(corners[0]), at(corners[1]), at(corners[2]), at(corners[3])}, at(inside),
               colour);
  }
  void triangle(const std::array<Vec3f, 3>& corners, Vec3f inside, Rgb colour) const {
    item_.triangle({at(corners[0]), at(corners[1]), at(corners[2])}, at(inside), colour);
  }
  // A block whose edges follow the stall; `corner` and `size` as (along, across, z).
  void block(Vec3f corner, Vec3f size, SolidColours colours) const {
    const Vec3f far = corner + size;
    const Vec3f inside = corner + size * 0.5F;
    for (const float along : {corner.x, far.x})
      wall({along, corner.y, corner.z}, {along, far.y, far.z}, inside, colours.side);
    for (const float across : {corner.y, far.y})
      wall({corner.x, across, corner.z}, {far.x, across, far.z}, inside, colours.side);
    for (const float z : {corner.z, far.z})
      quad({Vec3f{corner.x, corner.y, z},
            {far.x, corner.y, z},
            {far.x, far.y, z},
            {corner.x, far.y, z}},
           inside, z == far.z ? colours.top : colours.side);
  }

 private:
  Vec3f at(Vec3f point) const { return at(point.x, point.y, point.z); }

  Item& item_;
  float cos_;
  float sin_;
};

constexpr float kStallEave = 95.0F;
// High enough that the vent, 28 across, closes down to the slopes on both sides.
constexpr float kStallRidge = 123.0F;

void AddStallHouse(const Stall& stall) {
  const float half = Stall::kHalfWidth;
  const Vec3f inside{(Stall::kFront + Stall::kRear) / 2.0F, 0.0F, kStallEave};
  for (const float across : {-half, half}) {
    stall.wall({Stall::kFront, across, 0}, {Stall::kRear, across, kStallEave}, inside, kStallWall);
    stall.quad({Vec3f{Stall::kFront, across, kStallEave},
                {Stall::kRear, across, kStallEave},
                {Stall::kRear, 0, kStallRidge},
                {Stall::kFront, 0, kStallRidge}},
               inside, kDarkWood);
  }
  for (const float along : {Stall::kFront, Stall::kRear}) {
    stall.wall({along, -half, 0}, {along, half, kStallEave}, inside, kStallEnd);
    stall.triangle(
        {Vec3f{along, -half, kStallEave}, {along, half, kStallEave}, {along, 0, kStallRidge}},
        inside, kStallEnd);
  }
  stall.quad({Vec3f{Stall::kFront, -half, 0},
              {Stall::kRear, -half, 0},
              {Stall::kRear, half, 0},
              {Stall::kFront, half, 0}},
             inside, kStallEnd);
}

// Gates to the turntable, two tall windows in the rear, and lights along both slopes.
void AddStallOpenings(const Stall& stall) {
  constexpr float kGate = 19.5F;
  constexpr float kGateHeight = 72.0F;
  for (const float across : {-kGate - 0.5F, 0.5F})
    stall.block({Stall::kFront - 1.0F, across, 0}, {1, kGate, kGateHeight}, {kDoorWood, kDoorWood});
  stall.block({Stall::kFront - 1.0F, -20, 78}, {1, 40, 12}, {kWindow, kWindow});
  for (const float across : {-34.0F, -9.0F, 16.0F})
    stall.block({Stall::kRear, across, 24}, {1, 18, 54}, {kWindow, kWindow});
  for (const float side : {-1.0F, 1.0F}) {
    const float slope = (kStallRidge - kStallEave) / Stall::kHalfWidth;
    const auto onRoof = [&](float along, float across) {
      constexpr float kProud = 0.5F;
      return Vec3f{along, side * across, kStallRidge - across * slope + kProud};
    };
    for (int light = 0; light < 4; ++light) {
      const float from = 410.0F + 46.0F * static_cast<float>(light);
      stall.quad({onRoof(from, 16), onRoof(from + 28, 16), onRoof(from + 28, 28), onRoof(from, 28)},
                 {from, 0, 0}, kWindow);
    }
  }
}

}  // namespace

void MakeRoundhouse(Item& item) {
  constexpr float kVentAlong = 618.0F;
  constexpr float kVentZ = 115.0F;
  constexpr Vec3f kVentSize{44.0F, 28.0F, 14.0F};  // along, across, high
  for (const double angle : {-12.0, 0.0, 12.0}) {
    const Stall stall(item, angle);
    AddStallHouse(stall);
    AddStallOpenings(stall);
    stall.block({kVentAlong - kVentSize.x / 2.0F, -kVentSize.y / 2.0F, kVentZ}, kVentSize, kVent);
  }
}

void MakeTurntablePit(Item& item) {
  constexpr int kSegments = 24;
  constexpr float kWallZ = 4.0F;
  constexpr float kWallThickness = 4.0F;
  constexpr float kFloorZ = 1.5F;  // so that a baseboard doesn't cover it
  constexpr Rgb kFloor{0.42F, 0.4F, 0.38F};
  constexpr Rgb kPivot{0.3F, 0.38F, 0.55F};
  const Vec3f m = item.middle();
  const float radius = 0.92F * item.width() / 2.0F;
  const auto on = [&](float distance, int step, float z) {
    const double angle = 2.0 * kPi * step / kSegments;
    return Vec3f{m.x + distance * static_cast<float>(std::cos(angle)),
                 m.y + distance * static_cast<float>(std::sin(angle)), z};
  };
  const float inner = radius - kWallThickness;
  for (int i = 0; i < kSegments; ++i) {
    const Vec3f within = (on(inner, i, kWallZ / 2.0F) + on(radius, i + 1, kWallZ / 2.0F)) * 0.5F;
    for (const float r : {radius, inner})
      item.face({on(r, i, 0), on(r, i + 1, 0), on(r, i + 1, kWallZ), on(r, i, kWallZ)}, within,
                kDarkStone);
    for (const float z : {0.0F, kWallZ})
      item.face({on(inner, i, z), on(inner, i + 1, z), on(radius, i + 1, z), on(radius, i, z)},
                within, kStone);
    item.triangle({Vec3f{m.x, m.y, kFloorZ}, on(inner, i, kFloorZ), on(inner, i + 1, kFloorZ)},
                  {m.x, m.y, 0}, kFloor);
  }
  item.box({0, m.y - 4.0F, 0}, {item.width(), 8, 3}, kSteel);
  item.box({m.x - 6.0F, m.y - 6.0F, 0}, {12, 12, 4}, kPivot);
}

void MakeWaterTower(Item& item) {
  constexpr SolidColours kTank{.side = {0.28F, 0.36F, 0.5F}, .top = {0.32F, 0.4F, 0.55F}};
  constexpr float kLeg = 5.0F;
  const float w = item.width();
  const float d = item.depth();
  // Two trestles, as far from one side as from the other.
  for (const float x : {0.2F * w, 0.8F * w - kLeg})
    item.box({x, 0.3F * d, 0}, {kLeg, 0.4F * d, 28}, kDarkWood);
  item.box({5, 5, 25}, {w - 10.0F, d - 10.0F, 22}, kTank);
  item.box({8, 8, 47}, {w - 16.0F, d - 16.0F, 8}, kDarkWood);
}

void MakeCoalingTower(Item& item) {
  const float w = item.width();
  const float d = item.depth();
  item.box({5, 5, 0}, {w - 10.0F, d - 10.0F, 28}, kStone);
  item.box({10, 10, 28}, {w - 20.0F, d - 20.0F, 18}, kSteel);
  // The house of the hoist, across the bunker.
  item.box({0.375F * w, 10, 46}, {0.25F * w, d - 20.0F, 10}, kSteel);
}

}  // namespace vantrel::recipes
