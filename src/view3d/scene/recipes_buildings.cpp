// Signal box, engine sheds, goods shed and warehouse.
#include "view3d/scene/recipes.h"

namespace vantrel::recipes {
namespace {

constexpr float kWindowDepth = 1.0F;

// Five steps at the end of the signal box, up toward -y, to a landing before its door.
void AddStairs(Item& item, float top) {
  constexpr int kSteps = 6;
  constexpr float kTread = 5.0F;
  constexpr float kWidth = 5.0F;
  const float landing = 0.26F * item.depth();
  item.box({0, 2, 0}, {kWidth, landing - 2.0F, top}, kDoorWood);
  for (int i = 1; i < kSteps; ++i) {
    const auto step = static_cast<float>(i);
    item.box({0, landing + (step - 1.0F) * kTread, 0},
             {kWidth, kTread, top * (kSteps - step) / kSteps}, kDoorWood);
  }
}

// Windows all along the front and on both ends, between posts of the wall.
void AddSignalBoxWindows(Item& item, float z) {
  constexpr float kHeight = 10.0F;
  const float w = item.width();
  const float d = item.depth();
  item.row({.corner = {9.5F, d - 2.0F, z},
            .size = {8.5F, kWindowDepth, kHeight},
            .step = {(w - 21.0F) / 4.0F, 0, 0},
            .count = 5},
           kWindow);
  item.row({.corner = {w - 2.0F, 0.36F * d, z},
            .size = {kWindowDepth, 8, kHeight},
            .step = {0, 0.19F * d, 0},
            .count = 3},
           kWindow);
  item.row({.corner = {6, 0.54F * d, z},
            .size = {kWindowDepth, 8, kHeight},
            .step = {0, 0.19F * d, 0},
            .count = 2},
           kWindow);
}

}  // namespace

// Brick below, above it the signalman's room under a hipped roof.
void MakeSignalBox(Item& item) {
  constexpr float kFloor = 18.0F;
  constexpr float kEave = 38.0F;
  const float w = item.width();
  const float d = item.depth();
  item.box({5, 0, 0}, {w - 5.0F, d, kFloor}, {.side = kRedBrick, .top = kPlaster});
  item.box({7, 2, kFloor}, {w - 9.0F, d - 4.0F, kEave - kFloor}, kPlaster);
  const RoofPlan roof{
      .x = 4, .y = -1, .sx = w - 3.0F, .sy = d + 2.0F, .eave = kEave + 2.0F, .rise = 13};
  item.box({roof.x, roof.y, kEave}, {roof.sx, roof.sy, 2}, kDoorWood);
  item.hipRoof(roof, kRoofTile);
  item.box({20, 8, kEave + 2.0F}, {7, 7, 20}, kChimney);
  AddSignalBoxWindows(item, kFloor + 7.0F);
  item.box({6, 0.08F * d, kFloor}, {kWindowDepth, 7, 16}, kDoorWood);
  item.row({.corner = {0.3F * w, d, 5},
            .size = {8, kWindowDepth, 8},
            .step = {0.3F * w, 0, 0},
            .count = 2},
           kWindow);
  AddStairs(item, kFloor);
}

namespace {

constexpr float kShedEave = 38.0F;
constexpr float kShedRise = 16.0F;

// Height of the roof of the bay from y `top`, `depth` wide.
float RoofAt(float y, float top, float depth) {
  const float ridge = top + depth / 2.0F;
  const float fromRidge = y < ridge ? ridge - y : y - ridge;
  return kShedEave + kShedRise * (1.0F - fromRidge / (depth / 2.0F));
}

// Roof and gates over one road; the track comes in at -x.
void AddShedBay(Item& item, float top, float depth, Rgb wall) {
  constexpr float kLeaf = 17.5F;
  constexpr float kGateHeight = 33.0F;
  const float w = item.width();
  item.gableRoof({.x = 0, .y = top, .sx = w, .sy = depth, .eave = kShedEave, .rise = kShedRise},
                 {.side = wall, .top = kRoofTile.top});
  const float middle = top + depth / 2.0F;
  for (const float y : {middle - kLeaf - 0.4F, middle + 0.4F})
    item.box({-kWindowDepth, y, 0}, {kWindowDepth, kLeaf, kGateHeight}, kDoorWood);
  item.row({.corner = {w, middle - 22.0F, 12},
            .size = {kWindowDepth, 12, 20},
            .step = {0, 16, 0},
            .count = 3},
           kWindow);
}

void AddShedHall(Item& item, Rgb wall) {
  constexpr int kWindows = 8;
  const float w = item.width();
  item.slab(0.0F, kShedEave, {wall, wall});
  for (const float y : {-kWindowDepth, item.depth()})
    item.row({.corner = {12, y, 11},
              .size = {16, kWindowDepth, 20},
              .step = {(w - 40.0F) / (kWindows - 1), 0, 0},
              .count = kWindows},
             kWindow);
}

// A pane that lies on the slope between two heights of y.
void AddRoofLight(Item& item, float top, float depth, float from) {
  constexpr float kProud = 0.5F;
  constexpr float kPane = 8.0F;
  const float right = item.width() - 20.0F;
  const float lower = RoofAt(from, top, depth) + kProud;
  const float upper = RoofAt(from + kPane, top, depth) + kProud;
  item.face({Vec3f{34, from, lower},
             {right, from, lower},
             {right, from + kPane, upper},
             {34, from + kPane, upper}},
            {34, from, 0}, kWindow);
}

}  // namespace

void MakeOneRoadShed(Item& item) {
  const float d = item.depth();
  AddShedHall(item, kRedBrick);
  AddShedBay(item, 0.0F, d, kRedBrick);
  // One smoke vent along the ridge.
  item.box({56, d / 2.0F - 5.0F, 51}, {item.width() - 96.0F, 10, 8}, kSteel);
}

void MakeTwoRoadShed(Item& item) {
  constexpr int kStacks = 4;
  constexpr Rgb kSoot{0.1F, 0.1F, 0.1F};
  const float depth = item.depth() / 2.0F;
  AddShedHall(item, kDarkWood);
  for (const float top : {0.0F, depth}) {
    AddShedBay(item, top, depth, kDarkWood);
    for (const float y : {top + 0.21F * depth, top + 0.69F * depth})
      AddRoofLight(item, top, depth, y);
    const float middle = top + depth / 2.0F;
    const Vec3f step{0.22F * item.width(), 0, 0};
    item.row(
        {.corner = {48, middle - 6.0F, 50}, .size = {20, 12, 10}, .step = step, .count = kStacks},
        kSteel);
    item.row(
        {.corner = {53, middle - 3.0F, 60}, .size = {10, 6, 2}, .step = step, .count = kStacks},
        kSoot);
  }
}

void MakeGoodsShed(Item& item) {
  constexpr Rgb kBoards{0.58F, 0.42F, 0.24F};
  constexpr float kEave = 28.0F;
  constexpr float kOverhang = 2.0F;
  const float w = item.width();
  const float d = item.depth();
  item.slab(0.0F, kEave, {kBoards, kBoards});
  item.box({-kOverhang, -kOverhang, kEave}, {w + 2.0F * kOverhang, d + 2.0F * kOverhang, 7},
           kDarkWood);
  for (const float y : {-kWindowDepth, d}) {
    item.row({.corner = {0.18F * w, y, 0},
              .size = {36, kWindowDepth, 22},
              .step = {0.46F * w, 0, 0},
              .count = 2},
             kDoorWood);
    item.row({.corner = {0.46F * w, y, 12}, .size = {16, kWindowDepth, 10}, .step = {}}, kWindow);
  }
}

// A works hall: the raised roof lies toward -y, in front of it the lower roof of the loading ramp.
void MakeWarehouse(Item& item) {
  constexpr int kBays = 8;
  constexpr float kEave = 42.0F;
  constexpr float kRaised = 14.0F;
  const float w = item.width();
  const float d = item.depth();
  item.slab(0.0F, kEave, {.side = kPlaster, .top = kSteel});
  const float raisedDepth = 0.86F * d;
  item.box({4, 4, kEave}, {w - 8.0F, raisedDepth, kRaised}, {.side = kPlaster, .top = kSteel});
  const float bay = (w - 16.0F) / kBays;
  const auto alongBays = [&](Vec3f corner, Vec3f size, Rgb colour) {
    item.row({.corner = corner, .size = size, .step = {bay, 0, 0}, .count = kBays}, colour);
  };
  alongBays({8, 10, kEave + kRaised}, {14, raisedDepth - 12.0F, 1}, kWindow);
  alongBays({14, 4.0F + raisedDepth, kEave + 4.0F}, {36, kWindowDepth, 7}, kWindow);
  alongBays({14, -kWindowDepth, 12}, {36, kWindowDepth, 20}, kWindow);
  item.row({.corner = {38, d, 0},
            .size = {36, kWindowDepth, 28},
            .step = {2.0F * bay, 0, 0},
            .count = 4},
           kDoorWood);
  item.row({.corner = {86, d, 14},
            .size = {36, kWindowDepth, 16},
            .step = {2.0F * bay, 0, 0},
            .count = 3},
           kWindow);
  for (const float x : {-kWindowDepth, w})
    item.row({.corner = {x, 0.12F * d, 12},
              .size = {kWindowDepth, 26, 20},
              .step = {0, 0.21F * d, 0},
              .count = 4},
             kWindow);
}

}  // namespace vantrel::recipes
