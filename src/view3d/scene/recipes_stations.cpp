// Platforms and station buildings. The tracks lie toward +y.
#include "view3d/scene/recipes.h"

namespace vantrel::recipes {
namespace {

constexpr SolidColours kPlatformSlab{.side = {0.72F, 0.7F, 0.66F}, .top = {0.55F, 0.53F, 0.5F}};
constexpr float kPlatformHeight = 12.0F;

void AddEdgeLine(Item& item, float y) {
  constexpr Rgb kEdgeLine{0.86F, 0.78F, 0.38F};
  item.box({0, y, kPlatformHeight + 0.05F}, {item.width(), 8, 0.1F}, kEdgeLine);
}

}  // namespace

void MakePlatform(Item& item) {
  item.slab(0.0F, kPlatformHeight, kPlatformSlab);
  AddEdgeLine(item, item.depth() - 8.0F);
}

// The shelter covers the middle half, on two rows of posts.
void MakeIslandPlatform(Item& item) {
  constexpr SolidColours kShelter{.side = {0.7F, 0.72F, 0.76F}, .top = {0.56F, 0.58F, 0.62F}};
  constexpr int kPosts = 5;
  constexpr float kPost = 3.0F;
  constexpr float kOverhang = 12.0F;
  const float w = item.width();
  const float d = item.depth();
  item.slab(0.0F, kPlatformHeight, kPlatformSlab);
  AddEdgeLine(item, 0.0F);
  AddEdgeLine(item, d - 8.0F);
  const float step = (0.5F * w - 2.0F * kOverhang - kPost) / (kPosts - 1);
  for (const float y : {0.32F * d, 0.68F * d - kPost})
    item.row({.corner = {0.25F * w + kOverhang, y, kPlatformHeight},
              .size = {kPost, kPost, 28},
              .step = {step, 0, 0},
              .count = kPosts},
             kSteel);
  item.box({0.25F * w, d / 6.0F, 40}, {0.5F * w, d * 2.0F / 3.0F, 3}, kShelter);
}

namespace {

void AddSmallStationFront(Item& item) {
  constexpr float kFace = 140.0F;
  // Three pairs of windows to the left and the right of the door, on two floors.
  for (const float x : {78.0F, 91.0F, 111.0F, 146.0F, 166.0F, 179.0F}) {
    item.box({x, kFace, 10}, {8, 1, 15}, kWindow);
    item.box({x, kFace, 36}, {8, 1, 14}, kWindow);
  }
  item.box({125, kFace, 0}, {15, 1, 26}, kDoorWood);
  item.box({128.5F, kFace, 36}, {8, 1, 14}, kWindow);
  for (const float x : {216.0F, 268.0F}) item.box({x, kFace, 6}, {19, 1, 24}, kDoorWood);
  for (const float x : {201.0F, 246.0F, 294.0F}) item.box({x, kFace, 14}, {9, 1, 13}, kWindow);
}

void AddSmallStationRear(Item& item) {
  constexpr float kHouse = 18.5F;
  constexpr float kWing = 58.5F;
  for (const float x : {78.0F, 95.0F, 112.0F, 145.0F, 162.0F, 179.0F}) {
    item.box({x, kHouse, 10}, {8, 1, 15}, kWindow);
    item.box({x, kHouse, 36}, {8, 1, 14}, kWindow);
  }
  item.box({126, kHouse, 0}, {13, 1, 25}, kDoorWood);
  item.box({128.5F, kHouse, 36}, {8, 1, 14}, kWindow);
  item.row({.corner = {204, kWing, 12}, .size = {9, 1, 14}, .step = {22, 0, 0}, .count = 5},
           kWindow);
}

}  // namespace

// A two-storey house between an open waiting hall and a low goods wing.
void MakeSmallStation(Item& item) {
  const auto roof = [&](RoofPlan plan) { item.gableRoof(plan, kRoofTile); };
  item.box({0, 90, 0}, {70, 50, 2}, kWallCream);
  for (const float x : {6.0F, 31.0F, 56.0F}) item.box({x, 92, 2}, {4, 4, 26}, kDoorWood);
  constexpr RoofPlan kCanopy{.x = 0, .y = 70, .sx = 70, .sy = 70, .eave = 28, .rise = 6};
  roof(kCanopy);
  item.soffit(kCanopy, kDoorWood);
  item.box({70, 20, 0}, {125, 120, 60}, kWallCream);
  roof({.x = 70, .y = 20, .sx = 125, .sy = 120, .eave = 60, .rise = 40});
  item.box({105, 80, 0}, {55, 60, 60}, kWallCream);
  roof({.x = 105, .y = 80, .sx = 55, .sy = 60, .eave = 60, .rise = 32});
  for (const float x : {108.0F, 153.0F}) item.box({x, 76, 60}, {7, 8, 22}, kChimney);
  item.box({195, 60, 0}, {113, 80, 38}, kWallCream);
  roof({.x = 195, .y = 60, .sx = 113, .sy = 80, .eave = 38, .rise = 16});
  item.box({283, 100, 38}, {6, 6, 18}, kChimney);
  item.box({195, 137, 0}, {113, 4, 6}, kWallCream);
  AddSmallStationFront(item);
  AddSmallStationRear(item);
}

namespace {

constexpr Rgb kTownWall{0.74F, 0.7F, 0.62F};
constexpr SolidColours kTownRoof{.side = {0.55F, 0.27F, 0.22F}, .top = {0.4F, 0.2F, 0.16F}};

// A dormer that stands a little before the wall, on a corbel above the eaves of the hall.
void AddDormer(Item& item, float x) {
  constexpr float kWidth = 42.0F;
  constexpr float kFront = 16.0F;
  item.box({x, kFront, 48}, {kWidth, 21, 8}, kTownWall);
  item.box({x, kFront, 56}, {kWidth, 56, 16}, kTownWall);
  const RoofPlan roof{
      .x = x - 1.5F, .y = kFront - 2.0F, .sx = kWidth + 3.0F, .sy = 80, .eave = 72, .rise = 13};
  item.crossGableRoof(roof, {.side = kTownWall, .top = kTownRoof.top});
  item.soffit(roof, kDoorWood);
  for (const float window : {x + 7.0F, x + 25.0F})
    item.box({window, kFront - 1.0F, 58}, {10, 1, 12}, kWindow);
}

void AddTownStationFront(Item& item) {
  constexpr float kFace = 185.0F;
  item.row({.corner = {9, kFace, 9}, .size = {9, 1, 16}, .step = {20.6F, 0, 0}, .count = 6},
           kWindow);
  for (const float x : {180.0F, 204.0F, 228.0F, 328.0F, 352.0F, 376.0F})
    item.box({x, kFace, 8}, {14, 1, 30}, kWindow);
  for (const float x : {254.0F, 278.0F, 302.0F}) {
    item.box({x, kFace, 0}, {14, 1, 27}, kDoorWood);
    item.box({x, kFace, 29}, {14, 1, 9}, kWindow);
  }
  item.row({.corner = {407, kFace, 8}, .size = {9, 1, 14}, .step = {16.75F, 0, 0}, .count = 5},
           kWindow);
  item.row({.corner = {499, kFace, 9}, .size = {9, 1, 18}, .step = {16.5F, 0, 0}, .count = 3},
           kWindow);
}

void AddTownStationRear(Item& item) {
  item.row({.corner = {9, 69, 9}, .size = {9, 1, 16}, .step = {20.5F, 0, 0}, .count = 5}, kWindow);
  for (const float x : {180.0F, 204.0F, 228.0F, 328.0F, 352.0F, 376.0F})
    item.box({x, 19, 8}, {14, 1, 30}, kWindow);
  for (const float x : {258.0F, 278.0F, 298.0F}) item.box({x, 19, 0}, {14, 1, 27}, kDoorWood);
  item.row({.corner = {407, 69, 8}, .size = {9, 1, 14}, .step = {16.75F, 0, 0}, .count = 5},
           kWindow);
  item.row({.corner = {499, 59, 9}, .size = {9, 1, 18}, .step = {16.5F, 0, 0}, .count = 3},
           kWindow);
}

// The tower's two open faces, and the ends of the wings.
void AddTownStationSides(Item& item) {
  item.box({147, 160, 0}, {14, 1, 24}, kDoorWood);
  for (const float y : {39.0F, 160.0F})
    item.row({.corner = {117, y, 38}, .size = {9, 1, 13}, .step = {18.5F, 0, 0}, .count = 3},
             kWindow);
  item.row({.corner = {117, 39, 9}, .size = {9, 1, 16}, .step = {18.5F, 0, 0}, .count = 3},
           kWindow);
  item.row({.corner = {-1, 80, 9}, .size = {1, 9, 16}, .step = {0, 21.5F, 0}, .count = 5}, kWindow);
  item.row({.corner = {550, 70, 9}, .size = {1, 9, 18}, .step = {0, 19.2F, 0}, .count = 6},
           kWindow);
}

}  // namespace

// Hipped wings, a tower, and a great hall with dormers.
void MakeLargeStation(Item& item) {
  constexpr Rgb kTowerRoof{0.32F, 0.17F, 0.13F};
  item.box({0, 70, 0}, {130, 115, 32}, kTownWall);
  item.hipRoof({.x = 0, .y = 70, .sx = 130, .sy = 115, .eave = 32, .rise = 18}, kTownRoof);
  item.box({110, 40, 0}, {60, 120, 56}, kTownWall);
  item.box({113, 43, 56}, {54, 114, 4}, kTownWall);
  item.pyramid({.x = 113, .y = 43, .sx = 54, .sy = 114, .eave = 60, .rise = 50}, kTowerRoof);
  item.box({170, 20, 0}, {230, 165, 48}, kTownWall);
  item.gableRoof({.x = 170, .y = 20, .sx = 230, .sy = 165, .eave = 48, .rise = 40}, kTownRoof);
  item.box({490, 60, 0}, {60, 125, 36}, kTownWall);
  item.hipRoof({.x = 490, .y = 60, .sx = 60, .sy = 125, .eave = 36, .rise = 14}, kTownRoof);
  item.box({400, 70, 0}, {90, 115, 28}, kTownWall);
  item.gableRoof({.x = 400, .y = 70, .sx = 90, .sy = 115, .eave = 28, .rise = 10}, kTownRoof);
  for (const float x : {186.0F, 372.0F}) item.box({x, 96, 76}, {12, 13, 24}, kChimney);
  item.box({515, 88, 44}, {10, 12, 18}, kChimney);
  for (const float x : {220.0F, 308.0F}) AddDormer(item, x);
  AddTownStationFront(item);
  AddTownStationRear(item);
  AddTownStationSides(item);
}

}  // namespace vantrel::recipes
