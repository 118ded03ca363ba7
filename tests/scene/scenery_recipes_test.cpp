// Each item's volumes: where they stand, how large, in which colours.
#include <gtest/gtest.h>

#include "tests/scene/scenery_support.h"

namespace vantrel {
namespace {

constexpr Rgb kCream{0.86F, 0.76F, 0.6F};
constexpr Rgb kDoorWood{0.37F, 0.25F, 0.16F};
constexpr Rgb kWindow{0.5F, 0.65F, 0.78F};
constexpr Rgb kTileSide{0.59F, 0.27F, 0.22F};
constexpr Rgb kTileTop{0.43F, 0.2F, 0.16F};
constexpr Rgb kChimney{0.42F, 0.32F, 0.28F};
constexpr Rgb kStone{0.55F, 0.51F, 0.46F};
constexpr Rgb kSteel{0.56F, 0.58F, 0.62F};
constexpr Rgb kDarkWood{0.4F, 0.22F, 0.14F};
constexpr Rgb kTrunk{0.4F, 0.28F, 0.16F};
constexpr Rgb kLeaf{0.24F, 0.52F, 0.2F};
constexpr Rgb kShadedLeaf{0.18F, 0.4F, 0.16F};
constexpr Rgb kFir{0.12F, 0.36F, 0.18F};
constexpr Rgb kAsphalt{0.38F, 0.38F, 0.38F};

TEST(PlatformModel, IsASlabWithAStripeAlongItsEdge) {
  const Model model = ModelOf("platform");
  constexpr Footprint kSize{230, 60};
  EXPECT_EQ(TriangleCount(model), 24U);
  ExpectBox(model, kSize, {0, 0, 0}, {230, 60, 12}, {0.72F, 0.7F, 0.66F}, {0.55F, 0.53F, 0.5F});
  const Mesh stripe = PartIn(model, {0.86F, 0.78F, 0.38F});
  ExpectItemBounds(stripe, kSize, {0, 52, 12.05F}, {230, 60, 12.15F}, 1e-3F);
}

TEST(PlatformModel, HasStripesOnBothSidesOfAnIslandAndAShelter) {
  const Model model = ModelOf("platform_island");
  constexpr Footprint kSize{460, 120};
  ExpectBox(model, kSize, {0, 0, 0}, {460, 120, 12}, {0.72F, 0.7F, 0.66F}, {0.55F, 0.53F, 0.5F});
  const Mesh stripes = PartIn(model, {0.86F, 0.78F, 0.38F});
  EXPECT_EQ(TriangleCount(stripes), 24U);
  ExpectItemBounds(PartWithin(stripes, kSize, {0, 0, 12}, {460, 8, 13}), kSize, {0, 0, 12.05F},
                   {460, 8, 12.15F}, 1e-3F);
  ExpectItemBounds(PartWithin(stripes, kSize, {0, 112, 12}, {460, 120, 13}), kSize,
                   {0, 112, 12.05F}, {460, 120, 12.15F}, 1e-3F);
  // The roof covers what the drawing outlines.
  ExpectBox(model, kSize, {115, 20, 40}, {230, 80, 3}, {0.7F, 0.72F, 0.76F}, kSteel);
  const Mesh posts = PartWithin(PartIn(model, kSteel), kSize, {115, 20, 12}, {345, 100, 40});
  EXPECT_EQ(TriangleCount(posts), 10U * 12);
  // 127 = 115 + 12; the first post of the upper row.
  ExpectBox(model, kSize, {127, 38.4F, 12}, {3, 3, 28}, kSteel);
}

TEST(SmallStationModel, HasItsVolumesInPlace) {
  const Model model = ModelOf("station_small");
  constexpr Footprint kSize{308, 140};
  ExpectBox(model, kSize, {0, 90, 0}, {70, 50, 2}, kCream);
  for (const float x : {6.0F, 31.0F, 56.0F})
    ExpectBox(model, kSize, {x, 92, 2}, {4, 4, 26}, kDoorWood);
  ExpectBox(model, kSize, {70, 20, 0}, {125, 120, 60}, kCream);
  ExpectBox(model, kSize, {105, 80, 0}, {55, 60, 60}, kCream);
  ExpectBox(model, kSize, {108, 76, 60}, {7, 8, 22}, kChimney);
  ExpectBox(model, kSize, {153, 76, 60}, {7, 8, 22}, kChimney);
  ExpectBox(model, kSize, {195, 60, 0}, {113, 80, 38}, kCream);
  ExpectBox(model, kSize, {283, 100, 38}, {6, 6, 18}, kChimney);
  ExpectBox(model, kSize, {195, 137, 0}, {113, 4, 6}, kCream);
}

TEST(SmallStationModel, HasFourTiledRoofsWithRidgesAlongX) {
  const Model model = ModelOf("station_small");
  constexpr Footprint kSize{308, 140};
  const Mesh slopes = PartIn(model, kTileTop);
  EXPECT_EQ(TriangleCount(slopes), 4U * 4);
  EXPECT_EQ(TriangleCount(PartIn(model, kTileSide)), 4U * 2);
  // Main roof 60 + 40, canopy 28 + 6, low wing 38 + 16, cross wing 60 + 32.
  ExpectItemBounds(PartWithin(slopes, kSize, {0, 70, 0}, {70, 140, 99}), kSize, {0, 70, 28},
                   {70, 140, 34});
  ExpectItemBounds(PartWithin(slopes, kSize, {195, 0, 0}, {308, 140, 99}), kSize, {195, 60, 38},
                   {308, 140, 54});
  ExpectItemBounds(PartWithin(slopes, kSize, {105, 80, 0}, {160, 140, 99}), kSize, {105, 80, 60},
                   {160, 140, 92});
  ExpectItemBounds(slopes, kSize, {0, 20, 28}, {308, 140, 100});
}

TEST(SmallStationModel, WearsWindowsAndDoorsOneMillimetreDeepOnItsFaces) {
  const Model model = ModelOf("station_small");
  constexpr Footprint kSize{308, 140};
  const Mesh panes = PartIn(model, kWindow);
  std::size_t counted = 0;
  for (const float face : {18.5F, 58.5F, 140.0F}) {
    const Mesh onFace = PartWithin(panes, kSize, {0, face, 0}, {308, face + 1, 60});
    EXPECT_FALSE(onFace.empty()) << face;
    counted += TriangleCount(onFace);
  }
  EXPECT_EQ(counted, TriangleCount(panes));
  // The front door in the middle of the house: (70 + 195) / 2 = 132.5, 15 wide.
  ExpectBox(model, kSize, {125, 140, 0}, {15, 1, 26}, kDoorWood);
}

TEST(LargeStationModel, HasItsVolumesAndRoofsInPlace) {
  const Model model = ModelOf("station_large");
  constexpr Footprint kSize{550, 185};
  constexpr Rgb kWall{0.74F, 0.7F, 0.62F};
  ExpectBox(model, kSize, {0, 70, 0}, {130, 115, 32}, kWall);
  ExpectBox(model, kSize, {110, 40, 0}, {60, 120, 56}, kWall);
  ExpectBox(model, kSize, {113, 43, 56}, {54, 114, 4}, kWall);
  ExpectBox(model, kSize, {170, 20, 0}, {230, 165, 48}, kWall);
  ExpectBox(model, kSize, {490, 60, 0}, {60, 125, 36}, kWall);
  ExpectItemBounds(PartIn(model, {0.32F, 0.17F, 0.13F}), kSize, {113, 43, 60}, {167, 157, 110});
  const Mesh roofs = PartOf(model, [](const Triangle& triangle) {
    return triangle.colour == Rgb{0.4F, 0.2F, 0.16F} || triangle.colour == Rgb{0.55F, 0.27F, 0.22F};
  });
  // West 32 + 18, hall 48 + 40, link 28 + 10, east 36 + 14.
  ExpectItemBounds(PartWithin(roofs, kSize, {0, 0, 0}, {130, 185, 99}), kSize, {0, 70, 32},
                   {130, 185, 50});
  ExpectItemBounds(PartWithin(roofs, kSize, {170, 20, 48}, {400, 185, 99}), kSize, {170, 20, 48},
                   {400, 185, 88});
  ExpectItemBounds(PartWithin(roofs, kSize, {400, 0, 0}, {490, 185, 40}), kSize, {400, 70, 28},
                   {490, 185, 38});
  ExpectItemBounds(PartWithin(roofs, kSize, {490, 0, 36}, {550, 185, 99}), kSize, {490, 60, 36},
                   {550, 185, 50});
}

TEST(LargeStationModel, HasTwoDormersEvenlyAboutTheMiddleOfTheHall) {
  const Model model = ModelOf("station_large");
  constexpr Footprint kSize{550, 185};
  // 220 + 42 = 262 and 308 lie as far from the hall's middle, 170 + 230 / 2 = 285.
  for (const float x : {220.0F, 308.0F})
    ExpectBox(model, kSize, {x, 16, 56}, {42, 56, 16}, {0.74F, 0.7F, 0.62F});
}

TEST(SignalBoxModel, StandsOnABrickBaseBesideItsStairs) {
  const Model model = ModelOf("signal_box");
  constexpr Footprint kSize{60, 50};
  ExpectBox(model, kSize, {5, 0, 0}, {55, 50, 18}, {0.55F, 0.32F, 0.24F}, {0.86F, 0.78F, 0.66F});
  // From the landing at 18 down in steps of 3.
  const Mesh stairs = PartWithin(PartIn(model, kDoorWood), kSize, {0, 0, 0}, {5, 50, 18});
  ExpectItemBounds(stairs, kSize, {0, 2, 0}, {5, 38, 18});
  ExpectBox(model, kSize, {0, 33, 0}, {5, 5, 3}, kDoorWood);
}

TEST(ShedModel, HasAHallInTheColourOfItsNumberOfRoadsAndARoofForEachRoad) {
  ExpectBox(ModelOf("shed_1road"), {300, 80}, {0, 0, 0}, {300, 80, 38}, {0.55F, 0.32F, 0.24F});
  ExpectBox(ModelOf("shed_2road"), {300, 160}, {0, 0, 0}, {300, 160, 38}, kDarkWood);
  EXPECT_EQ(TriangleCount(PartIn(ModelOf("shed_1road"), kTileTop)), 4U);
  EXPECT_EQ(TriangleCount(PartIn(ModelOf("shed_2road"), kTileTop)), 8U);
}

TEST(GoodsShedModel, IsABoardedHallUnderARoofBox) {
  const Model model = ModelOf("goods_shed");
  ExpectBox(model, {200, 80}, {0, 0, 0}, {200, 80, 28}, {0.58F, 0.42F, 0.24F});
  ExpectItemBounds(PartIn(model, kDarkWood), {200, 80}, {-2, -2, 28}, {202, 82, 35});
}

TEST(WarehouseModel, IsAHallWithARaisedRoof) {
  const Model model = ModelOf("warehouse");
  constexpr Rgb kPlaster{0.86F, 0.78F, 0.66F};
  ExpectBox(model, {400, 200}, {0, 0, 0}, {400, 200, 42}, kPlaster, kSteel);
  // 0.86 of the depth of 200 is 172.
  ExpectBox(model, {400, 200}, {4, 4, 42}, {392, 172, 14}, kPlaster, kSteel);
}

TEST(CrossingModel, IsARoadWithADarkStripForEachTrack) {
  constexpr Rgb kPlanks{0.18F, 0.18F, 0.18F};
  const Model one = ModelOf("crossing_1track");
  EXPECT_EQ(TriangleCount(one), 24U);
  ExpectBox(one, {120, 80}, {0, 0, 0}, {120, 80, 2}, kAsphalt);
  ExpectBox(one, {120, 80}, {0, 24, 2}, {120, 14, 1}, kPlanks);
  const Model two = ModelOf("crossing_2track");
  EXPECT_EQ(TriangleCount(two), 36U);
  ExpectBox(two, {120, 160}, {0, 0, 0}, {120, 160, 2}, kAsphalt);
  ExpectBox(two, {120, 160}, {0, 24, 2}, {120, 14, 1}, kPlanks);
  ExpectBox(two, {120, 160}, {0, 104, 2}, {120, 14, 1}, kPlanks);
  const Model road = ModelOf("road_straight");
  EXPECT_EQ(TriangleCount(road), 12U);
  ExpectBox(road, {188, 60}, {0, 0, 0}, {188, 60, 2}, kAsphalt);
}

TEST(TowerModel, CarriesATankOnTwoLegs) {
  const Model model = ModelOf("water_tower");
  constexpr Footprint kSize{50, 50};
  EXPECT_EQ(TriangleCount(model), 48U);
  // 0.3 of 50 is 15, and as much is left beyond the leg.
  ExpectBox(model, kSize, {10, 15, 0}, {5, 20, 28}, kDarkWood);
  ExpectBox(model, kSize, {35, 15, 0}, {5, 20, 28}, kDarkWood);
  ExpectBox(model, kSize, {5, 5, 25}, {40, 40, 22}, {0.28F, 0.36F, 0.5F}, {0.32F, 0.4F, 0.55F});
  ExpectBox(model, kSize, {8, 8, 47}, {34, 34, 8}, kDarkWood);
}

TEST(TowerModel, StacksTheCoalingTowerInThreeBoxes) {
  const Model model = ModelOf("coaling_tower");
  EXPECT_EQ(TriangleCount(model), 36U);
  ExpectBox(model, {80, 80}, {5, 5, 0}, {70, 70, 28}, kStone);
  ExpectBox(model, {80, 80}, {10, 10, 28}, {60, 60, 18}, kSteel);
  ExpectBox(model, {80, 80}, {30, 10, 46}, {20, 60, 10}, kSteel);
}

TEST(TreeModel, StandsOnATrunkInTheMiddleOfItsFootprint) {
  const Model tree = ModelOf("tree_sm_dec");
  // 34 / 2 - 3 / 2 = 15.5.
  ExpectBox(tree, {34, 34}, {15.5F, 15.5F, 0}, {3, 3, 14}, kTrunk);
  ExpectBounds(PartIn(tree, kLeaf), {-13, -13, 5}, {13, 13, 31});
  // A sphere of n rings has 2n (2n - 2) triangles: 16 * 14.
  EXPECT_EQ(TriangleCount(PartIn(tree, kLeaf)), 224U);
}

TEST(TreeModel, GivesTheLargeTreeASecondCrownToTheLowerRight) {
  const Model tree = ModelOf("tree_lg_dec");
  ExpectBox(tree, {57, 57}, {26.5F, 26.5F, 0}, {4, 4, 20}, kTrunk);
  ExpectBounds(PartIn(tree, kLeaf), {-22, -22, 4}, {22, 22, 48});
  EXPECT_EQ(TriangleCount(PartIn(tree, kLeaf)), 360U);  // 20 * 18
  // Around (6, -4), y running up here; 28 - 14 and 28 + 14.
  ExpectBounds(PartIn(tree, kShadedLeaf), {-8, -18, 14}, {20, 10, 42});
  EXPECT_EQ(TriangleCount(PartIn(tree, kShadedLeaf)), 224U);
}

TEST(TreeModel, TapersTheConiferInThreeCones) {
  const Model tree = ModelOf("tree_conifer");
  ExpectBox(tree, {23, 40}, {10, 18.5F, 0}, {3, 3, 10}, kTrunk);
  ExpectBounds(PartIn(tree, kShadedLeaf), {-10, -10, 8}, {10, 10, 24});
  ExpectBounds(PartIn(tree, kFir), {-7, -7, 18}, {7, 7, 32});
  ExpectBounds(PartIn(tree, kLeaf), {-4, -4, 26}, {4, 4, 38});
}

TEST(TreeModel, GroupsThreeTreesOnTrunksThreeWide) {
  const Model group = ModelOf("tree_group");
  EXPECT_EQ(TriangleCount(PartIn(group, kTrunk)), 36U);
  for (const Rgb crown : {kLeaf, kFir, kShadedLeaf}) EXPECT_FALSE(PartIn(group, crown).empty());
  // Of the middle of the trunks: a quarter and four fifths of 115, 0.4 and 0.44 of 80.
  ExpectBox(group, {115, 80}, {27.25F, 30.5F, 0}, {3, 3, 20}, kTrunk);
  ExpectBox(group, {115, 80}, {90.5F, 33.7F, 0}, {3, 3, 18}, kTrunk);
}

TEST(BushModel, SinksItsSphereIntoTheGround) {
  const Model bush = ModelOf("bush");
  EXPECT_EQ(TriangleCount(bush), 168U);  // 14 * 12
  const Bounds bounds = BoundsOf(bush);
  EXPECT_NEAR(bounds.low.z, -5.0F, 1e-3F);
  EXPECT_NEAR(bounds.high.z, 13.0F, 1e-3F);
  EXPECT_EQ(TriangleCount(PartIn(bush, kLeaf)), 168U);
}

constexpr Rgb kWheelSide{0.2F, 0.2F, 0.2F};
constexpr Rgb kWheelTop{0.15F, 0.15F, 0.15F};

TEST(VehicleModel, PutsACabinAndTwoPairsOfWheelsToACar) {
  const Model car = ModelOf("car");
  constexpr Footprint kSize{50, 20};
  EXPECT_EQ(TriangleCount(car), 48U);
  ExpectBox(car, kSize, {0, 4, 0}, {50, 12, 5}, {0.78F, 0.2F, 0.16F});
  ExpectBox(car, kSize, {10, 5, 5}, {32, 10, 7}, {0.65F, 0.16F, 0.12F});
  ExpectBox(car, kSize, {4, 3, 0}, {7, 14, 4}, kWheelSide, kWheelTop);
  ExpectBox(car, kSize, {39, 3, 0}, {7, 14, 4}, kWheelSide, kWheelTop);
}

TEST(VehicleModel, PutsACabALoadAndThreePairsOfWheelsToATruck) {
  const Model truck = ModelOf("truck");
  constexpr Footprint kSize{80, 25};
  EXPECT_EQ(TriangleCount(truck), 60U);
  ExpectBox(truck, kSize, {0, 3, 0}, {22, 19, 14}, {0.32F, 0.4F, 0.55F});
  ExpectBox(truck, kSize, {22, 3, 0}, {58, 19, 13}, {0.62F, 0.62F, 0.62F});
  for (const float x : {3.0F, 32.0F, 52.0F})
    ExpectBox(truck, kSize, {x, 2, 0}, {7, 21, 5}, kWheelSide, kWheelTop);
}

TEST(SquareModel, LinesTenBaysOnTheParkingLot) {
  const Model lot = ModelOf("parking_lot");
  constexpr Footprint kSize{250, 120};
  constexpr Rgb kPaint{0.94F, 0.94F, 0.94F};
  ExpectBox(lot, kSize, {0, 0, 0}, {250, 120, 2}, kAsphalt);
  // Eleven lines, and one along their heads.
  EXPECT_EQ(TriangleCount(PartIn(lot, kPaint)), 12U * 12);
  ExpectItemBounds(PartIn(lot, kPaint), kSize, {0, 0, 2}, {250, 59.6F, 2.5F});
  ExpectBox(lot, kSize, {0, 2, 2}, {1, 57.6F, 0.5F}, kPaint);
  ExpectBox(lot, kSize, {249, 2, 2}, {1, 57.6F, 0.5F}, kPaint);
}

TEST(SquareModel, PutsTwoBenchesOnThePedestrianZone) {
  const Model zone = ModelOf("ped_zone");
  constexpr Footprint kSize{115, 57};
  EXPECT_EQ(TriangleCount(zone), 36U);
  ExpectBox(zone, kSize, {0, 0, 0}, {115, 57, 3}, {0.76F, 0.72F, 0.66F});
  ExpectBox(zone, kSize, {10, 20, 3}, {20, 5, 4}, {0.58F, 0.42F, 0.24F});
  ExpectBox(zone, kSize, {85, 20, 3}, {20, 5, 4}, {0.58F, 0.42F, 0.24F});
}

}  // namespace
}  // namespace vantrel
