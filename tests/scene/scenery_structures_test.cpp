// The depot's round works, bridges, portals and walls.
#include <gtest/gtest.h>

#include "tests/scene/scenery_support.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr Rgb kDarkStone{0.4F, 0.37F, 0.33F};
constexpr Rgb kWallStone{0.55F, 0.51F, 0.46F};
constexpr Rgb kGirderSteel{0.56F, 0.58F, 0.62F};
constexpr Rgb kKeystone{0.62F, 0.57F, 0.5F};
constexpr Rgb kStallWall{0.62F, 0.3F, 0.3F};
constexpr Rgb kStallEnd{0.48F, 0.23F, 0.23F};
constexpr Rgb kStallRoof{0.4F, 0.22F, 0.14F};

// Whether a corner of the mesh lies at this point of the item.
bool HasCorner(const Mesh& mesh, Footprint footprint, float x, float y, float z) {
  return std::any_of(mesh.positions.begin(), mesh.positions.end(), [&](const Vec3f& at) {
    return std::abs(at.x + footprint.width / 2 - x) < 0.01F &&
           std::abs(footprint.depth / 2 - at.y - y) < 0.01F && std::abs(at.z - z) < 0.01F;
  });
}

constexpr Footprint kRoundhouse{386, 343};

TEST(RoundhouseModel, PutsTheMiddleStallStraightBehindTheTurntable) {
  const Mesh walls = PartIn(ModelOf("72886"), kStallWall);
  // Angle 0: x = 193 +- 50, y = 368 - 349.6 = 18.4 and 693 - 349.6 = 343.4.
  for (const float x : {143.0F, 243.0F})
    for (const float y : {18.4F, 343.4F}) EXPECT_TRUE(HasCorner(walls, kRoundhouse, x, y, 0));
}

TEST(RoundhouseModel, FansTheOuterStallsOutBy12Degrees) {
  const Mesh walls = PartIn(ModelOf("72886"), kStallWall);
  // sin 12 = 0.207912, cos 12 = 0.978148. At 12 degrees and across 50:
  // 193 + 368 * 0.207912 + 50 * 0.978148 = 193 + 76.512 + 48.907 = 318.419
  // 368 * 0.978148 - 50 * 0.207912 - 349.6 = 359.958 - 10.396 - 349.6 = -0.037
  EXPECT_TRUE(HasCorner(walls, kRoundhouse, 318.419F, -0.037F, 0));
  // 193 + 693 * 0.207912 - 48.907 = 288.176; 693 * 0.978148 + 10.396 - 349.6 = 338.652
  EXPECT_TRUE(HasCorner(walls, kRoundhouse, 288.176F, 338.652F, 0));
  // At -12 degrees the same to the other side of 193: 386 - 288.176.
  EXPECT_TRUE(HasCorner(walls, kRoundhouse, 97.824F, 338.652F, 0));
  // And the far outer corners: 193 + 144.083 + 48.907 = 385.990; 677.857 - 10.396 - 349.6.
  EXPECT_TRUE(HasCorner(walls, kRoundhouse, 385.990F, 317.861F, 0));
  EXPECT_TRUE(HasCorner(walls, kRoundhouse, 0.010F, 317.861F, 0));
}

TEST(RoundhouseModel, BuildsEachStallOfWallsEndsAndARoof) {
  const Model model = ModelOf("72886");
  // Three stalls: two walls; two ends with their gables, and the floor; two slopes.
  EXPECT_EQ(TriangleCount(PartIn(model, kStallWall)), 3U * 4);
  EXPECT_EQ(TriangleCount(PartIn(model, kStallEnd)), 3U * (2 * 3 + 2));
  EXPECT_EQ(TriangleCount(PartIn(model, kStallRoof)), 3U * 4);
  const Mesh house = PartOf(model, [](const Triangle& triangle) {
    return triangle.colour == kStallWall || triangle.colour == kStallEnd ||
           triangle.colour == kStallRoof;
  });
  ExpectClosed(house);
}

TEST(RoundhouseModel, StandsAVentOnEachRoof) {
  const Mesh vents = PartOf(ModelOf("72886"), [](const Triangle& triangle) {
    return triangle.colour == Rgb{0.46F, 0.46F, 0.48F} || triangle.colour == Rgb{0.3F, 0.3F, 0.32F};
  });
  EXPECT_EQ(TriangleCount(vents), 3U * 12);
  ExpectClosed(vents);
  const Bounds bounds = BoundsOf(vents);
  EXPECT_NEAR(bounds.low.z, 115.0F, 1e-3F);
  EXPECT_NEAR(bounds.high.z, 129.0F, 1e-3F);
  // Radius 618, 28 across and 44 along: 193 +- 14, 618 +- 22 - 349.6 on the middle stall.
  for (const float x : {179.0F, 207.0F})
    for (const float y : {246.4F, 290.4F}) EXPECT_TRUE(HasCorner(vents, kRoundhouse, x, y, 129));
  // Three of 28 * 44 * 14.
  EXPECT_NEAR(SignedVolume(vents), 3 * 17248.0, 5.0);
}

TEST(TurntablePitModel, IsARingOf24SegmentsWithATrackAcross) {
  const Model model = ModelOf("74861");
  constexpr Footprint kSize{278, 278};
  // 0.92 * 139 = 127.88; a 24-gon with a corner on each axis.
  const Mesh wall = PartIn(model, kDarkStone);
  ExpectBounds(wall, {-127.88F, -127.88F, 0}, {127.88F, 127.88F, 4});
  EXPECT_EQ(TriangleCount(wall), 24U * 4);  // outside and inside
  ExpectBox(model, kSize, {0, 135, 0}, {278, 8, 3}, kGirderSteel);
  ExpectBox(model, kSize, {133, 133, 0}, {12, 12, 4}, {0.3F, 0.38F, 0.55F});
}

TEST(BridgeModel, RunsTheTracksTrussAroundTheMiddleOfTheItem) {
  Mesh truss;
  AddTrussBridge(truss, 188.0F);
  const Model model = ModelOf("bridge_truss_scenery");
  ASSERT_EQ(model.positions.size(), truss.positions.size());
  for (std::size_t i = 0; i < truss.positions.size(); ++i) {
    EXPECT_NEAR(model.positions[i].x, truss.positions[i].x - 94.0F, 1e-3F);
    EXPECT_EQ(model.positions[i].y, truss.positions[i].y);
    EXPECT_EQ(model.positions[i].z, truss.positions[i].z);
  }
}

TEST(BridgeModel, RunsTheTracksArchAroundTheMiddleOfTheItem) {
  Mesh arch;
  AddArchBridge(arch, 360.0F);
  const Model model = ModelOf("bridge_arch_scenery");
  ASSERT_EQ(model.indices, arch.indices);
  for (std::size_t i = 0; i < arch.positions.size(); ++i) {
    EXPECT_NEAR(model.positions[i].x, arch.positions[i].x - 180.0F, 1e-3F);
    EXPECT_EQ(model.positions[i].z, arch.positions[i].z);
  }
}

TEST(BridgeModel, LiftsTheArchUnderItsOwnDeckAndSideGirders) {
  constexpr Footprint kSize{360, 64};
  const Model model = makeSceneryModel("bridge_arch", kSize);
  ExpectSound(model);
  ExpectBox(model, kSize, {0, 8, 18}, {360, 48, 4}, {0.38F, 0.4F, 0.44F});
  // Half a millimetre proud: 64 - 9 + 0.5.
  for (const float y : {-0.5F, 55.5F})
    ExpectBox(model, kSize, {-0.5F, y, 10}, {361, 9, 10}, {0.55F, 0.58F, 0.62F});
  // The crown of the bows: 18 + 99 + 4.
  EXPECT_NEAR(BoundsOf(model).high.z, 121.0F, 1.0F);
}

TEST(BridgeModel, FramesTheSteelBridgeByChordsAndEndPosts) {
  const Model model = ModelOf("bridge_truss");
  constexpr Footprint kSize{188, 80};
  constexpr Rgb kChord{0.3F, 0.33F, 0.37F};
  ExpectBox(model, kSize, {0, 14, 0}, {188, 52, 4}, {0.35F, 0.38F, 0.42F});
  // On the other side the same from the edge: 80 - 8 - 8 and 80 - 8 - 6.
  for (const float y : {8.0F, 64.0F}) ExpectBox(model, kSize, {-0.5F, y, 0}, {189, 8, 5}, kChord);
  for (const float y : {8.0F, 66.0F}) {
    ExpectBox(model, kSize, {-0.5F, y, 32}, {189, 6, 5}, kChord);
    for (const float x : {-0.5F, 183.5F}) ExpectBox(model, kSize, {x, y, 0}, {5, 6, 37}, kChord);
  }
  EXPECT_EQ(TriangleCount(model), 9U * 12);
}

TEST(PierModel, StacksFootShaftAndCap) {
  const Model model = ModelOf("viaduct_pier");
  constexpr Rgb kSide{0.72F, 0.69F, 0.64F};
  constexpr Rgb kTop{0.68F, 0.65F, 0.6F};
  ExpectBox(model, {40, 60}, {0, 0, 0}, {40, 60, 8}, kSide, kTop);
  ExpectBox(model, {40, 60}, {4, 8, 8}, {32, 44, 50}, kSide, kTop);
  ExpectBox(model, {40, 60}, {6, 10, 58}, {28, 40, 8}, kSide, kTop);
}

TEST(RetainingWallModel, HasACopingAndFiveButtressesInFront) {
  const Model model = ModelOf("retaining_wall");
  constexpr Footprint kSize{188, 30};
  ExpectBox(model, kSize, {0, 0, 0}, {188, 30, 50}, {0.5F, 0.47F, 0.43F}, {0.56F, 0.53F, 0.48F});
  ExpectBox(model, kSize, {0, 0, 50}, {188, 30, 6}, {0.62F, 0.59F, 0.54F}, {0.5F, 0.47F, 0.43F});
  // As drawn: from 2 to 188 - 2 - 6 = 180 in four steps of 44.5.
  for (const float x : {2.0F, 46.5F, 91.0F, 135.5F, 180.0F})
    ExpectBox(model, kSize, {x, 30, 0}, {6, 4, 48}, kWallStone);
}

constexpr Footprint kArchedPortal{40, 80};

TEST(ArchedPortalModel, StandsOnTwoSideBlocks) {
  const Model model = ModelOf("tunnel_portal_single");
  // 0.18 * 80 = 14.4 deep, 0.75 * 80 = 60 high.
  ExpectBox(model, kArchedPortal, {0, 0, 0}, {40, 14.4F, 60}, kDarkStone);
  ExpectBox(model, kArchedPortal, {0, 65.6F, 0}, {40, 14.4F, 60}, kDarkStone);
}

TEST(ArchedPortalModel, ArchesTwelveBlocksOverTheOpening) {
  const Model model = ModelOf("tunnel_portal_single");
  // Two side blocks, the keystone and twelve blocks.
  EXPECT_EQ(TriangleCount(model), 15U * 12);
  // The radius is 0.32 * 80 = 25.6. A block is as deep as the step between the two at the crown:
  // 2 * 25.6 * sin 7.5 = 51.2 * 0.130526 = 6.6829, half of which is 3.3415.
  constexpr float kDepth = 6.6829F;
  // i = 0: 7.5 degrees, cos 0.991445, sin 0.130526: y 40 + 25.3810, z 44 + 3.3415. Stone, 0.8
  // proud at both ends.
  ExpectBox(model, kArchedPortal, {-0.8F, 62.0395F, 47.3415F}, {41.6F, kDepth, 8}, kWallStone);
  // i = 1: 22.5 degrees, cos 0.923880, sin 0.382683: y 63.6513, z 53.7967. Dark, 0.4 proud.
  ExpectBox(model, kArchedPortal, {-0.4F, 60.3098F, 53.7967F}, {40.8F, kDepth, 8}, kDarkStone);
  // i = 6: 97.5 degrees, cos -0.130526, sin 0.991445: y 36.6585, z 69.3810.
  ExpectBox(model, kArchedPortal, {-0.8F, 33.3170F, 69.3810F}, {41.6F, kDepth, 8}, kWallStone);
  // i = 11 mirrors i = 0 in the other stone: 80 - 62.0395 - 6.6829.
  ExpectBox(model, kArchedPortal, {-0.4F, 11.2776F, 47.3415F}, {40.8F, kDepth, 8}, kDarkStone);
}

TEST(ArchedPortalModel, SetsTheKeystoneBelowTheHeadOfTheSideBlocks) {
  const Mesh keystone = PartIn(ModelOf("tunnel_portal_single"), kKeystone);
  ExpectItemBounds(keystone, kArchedPortal, {0, 35, 56}, {40, 45, 62});
}

constexpr Rgb kFrameSide{0.45F, 0.43F, 0.4F};
constexpr Rgb kFrameTop{0.5F, 0.48F, 0.44F};
constexpr Rgb kDark{0.12F, 0.11F, 0.1F};

TEST(SquarePortalModel, FramesADarkOpening) {
  constexpr Footprint kSize{80, 40};
  const Model model = makeSceneryModel("tunnel_portal", kSize);
  ExpectClosed(model);
  // The head of the frame lies over the opening from 45 to 55.
  ExpectBox(model, kSize, {0, 0, 45}, {80, 40, 10}, kFrameSide, kFrameTop);
  ExpectItemBounds(PartIn(model, kDark), kSize, {8, 8, 0}, {72, 32, 45});
  ExpectItemBounds(PartIn(model, kWallStone), kSize, {6, 6, 44}, {74, 34, 52});
  // In the middle of the front, 1 mm proud.
  ExpectItemBounds(PartIn(model, kKeystone), kSize, {36, 35, 50}, {44, 41, 58});
  ExpectBox(model, kSize, {0, 0, 0}, {10, 44, 42}, kFrameSide, kFrameTop);
}

TEST(SquarePortalModel, HasTwoOpenings50WideSideBySideForTwoTracks) {
  constexpr Footprint kSize{130, 40};
  const Model model = makeSceneryModel("tunnel_portal_2", kSize);
  ExpectClosed(model);
  // Uprights of (130 - 100) / 3 = 10.
  ExpectBox(model, kSize, {10, 8, 0}, {50, 24, 45}, kDark);
  ExpectBox(model, kSize, {70, 8, 0}, {50, 24, 45}, kDark);
  EXPECT_EQ(TriangleCount(PartIn(model, kDark)), 24U);
}

}  // namespace
}  // namespace vantrel
