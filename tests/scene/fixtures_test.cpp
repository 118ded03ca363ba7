// The turntable's pit and the end stop.
#include <gtest/gtest.h>

#include "catalog/track_catalog.h"
#include "tests/scene/mesh_support.h"
#include "tests/scene/track_colours.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr Rgb kPitFloor{0.24F, 0.24F, 0.28F};
constexpr Rgb kRing{0.5F, 0.5F, 0.55F};
constexpr Rgb kTurntableBridge{0.45F, 0.42F, 0.4F};
constexpr Rgb kBeamSide{0.72F, 0.72F, 0.72F};
constexpr Rgb kBeamTop{0.92F, 0.92F, 0.92F};
constexpr Rgb kRedSide{0.62F, 0.06F, 0.06F};
constexpr Rgb kArmSide{0.5F, 0.5F, 0.5F};
constexpr Rgb kBlackSide{0.07F, 0.07F, 0.07F};

Model FixtureOf(const char* part) {
  return makeTrackModel(*findPart(part));
}

TEST(TurntableModel, HasARoundFloorOf48Sectors) {
  const Mesh floor = PartIn(FixtureOf("74861"), kPitFloor);
  EXPECT_EQ(TriangleCount(floor), 48U);
  ExpectBounds(floor, {-139, -139, 0.1F}, {139, 139, 0.1F});
  for (const Vec3f& normal : floor.normals) EXPECT_EQ(normal, (Vec3f{0, 0, 1}));
}

TEST(TurntableModel, ShowsItsRingWallToTheInside) {
  const Mesh wall = PartOf(FixtureOf("74861"), [](const Triangle& t) {
    return t.colour == kRing && t.normals[0].z < 0.5F;
  });
  EXPECT_EQ(TriangleCount(wall), 96U);
  ExpectBounds(wall, {-139, -139, 0.1F}, {139, 139, 8});
  for (std::size_t i = 0; i < wall.positions.size(); ++i)
    EXPECT_LT(Dot(wall.positions[i], wall.normals[i]), 0.0F);
}

TEST(TurntableModel, HasARimHalfwayToTheStubs) {
  const Mesh rim = PartOf(FixtureOf("74861"), [](const Triangle& t) {
    return t.colour == kRing && t.normals[0].z > 0.5F;
  });
  EXPECT_EQ(TriangleCount(rim), 96U);
  // 139 + (189 - 139) / 2.
  ExpectBounds(rim, {-164, -164, 8}, {164, 164, 8});
  for (const Vec3f& corner : rim.positions) EXPECT_GT(std::hypot(corner.x, corner.y), 138.9F);
}

TEST(TurntableModel, BridgesThePitAlongX) {
  const Mesh bridge = PartIn(FixtureOf("74861"), kTurntableBridge);
  ExpectClosed(bridge);
  ExpectBounds(bridge, {-137, -18, 8.5F}, {137, 18, 12.5F});
  EXPECT_TRUE(PartIn(FixtureOf("74861"), kRailTop).empty());
}

TEST(EndStop, StandsOnAStripOfTwoSegments) {
  const Model model = FixtureOf("62977");
  ExpectSound(model);
  const Mesh top = PartIn(model, kBallastTop);
  ExpectBounds(top, {0, -18.7F, 2}, {80.5F, 18.7F, 2});
  EXPECT_EQ(TriangleCount(top), 4U);
}

// 24977 is 48.3 mm long, so that f is 0.75 x 48.3 - 0.07 x 18.7 = 34.916.
TEST(EndStop, PutsItsBeamAtThreeQuartersOfTheLength) {
  const Model model = FixtureOf("24977");
  // x from 34.916, 0.14 w = 2.618 thick; y to either side by 1.05 w; z from 0.31 w to 0.69
  // w.
  ExpectBounds(PartIn(model, kBeamSide), {34.916F, -19.635F, 5.797F}, {37.534F, 19.635F, 12.903F});
  ExpectBounds(PartIn(model, kBeamTop), {34.916F, -19.635F, 12.903F}, {37.534F, 19.635F, 12.903F});
  // 0.2 w = 3.74 before the beam, 0.5 w wide; z from 0.3 w to 0.7 w.
  ExpectBounds(PartIn(model, kRedSide), {31.176F, -4.675F, 5.61F}, {34.916F, 4.675F, 13.09F});
}

TEST(EndStop, ReachesOutTwoBuffersBeforeTheBeam) {
  const Model model = FixtureOf("24977");
  // Arms 0.55 w = 10.285 long; their sides at w plus and minus 0.44 w, 0.16 w thick: out to 0.52 w.
  ExpectBounds(PartIn(model, kArmSide), {24.631F, -9.724F, 7.854F}, {34.916F, 9.724F, 10.846F});
  // Heads and struts: the heads' faces 0.75 w = 14.025 before f; the struts' feet at z 0, their
  // sides at 1.05 w; the heads' tops at 0.636 w.
  const Mesh black = PartIn(model, kBlackSide);
  EXPECT_EQ(TriangleCount(black), 4U * 10);
  ExpectBounds(black, {20.891F, -19.635F, 0}, {34.355F, 19.635F, 11.893F});
}

TEST(EndStop, IsBuiltOfEightClosedBoxes) {
  const Mesh boxes = PartOf(FixtureOf("24977"), [](const Triangle& t) {
    for (const Rgb track :
         {kBallastTop, kBallastSide, kRailTop, kRailSide, kSleeperTop, kSleeperSide})
      if (t.colour == track) return false;
    return true;
  });
  EXPECT_EQ(TriangleCount(boxes), 8U * 12);
  ExpectClosed(boxes);
}

TEST(EndStop, IsNarrowerOnZTrack) {
  // w is 6 and the length 15: f = 11.25 - 0.42 = 10.83. Only the stop is narrower.
  const Model model = FixtureOf("8991");
  ExpectBounds(PartIn(model, kBeamSide), {10.83F, -6.3F, 1.86F}, {11.67F, 6.3F, 4.14F});
  ExpectBounds(PartIn(model, kBallastTop), {0, -18.7F, 2}, {15, 18.7F, 2});
}

TEST(EndStop, IsAsWideOnKTrackAsOnCTrack) {
  const Bounds beam = BoundsOf(PartIn(FixtureOf("7389"), kBeamSide));
  EXPECT_NEAR(beam.high.y, 19.635F, 1e-3F);
}

}  // namespace
}  // namespace vantrel
