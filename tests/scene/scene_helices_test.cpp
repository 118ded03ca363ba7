#include <gtest/gtest.h>

#include <limits>

#include "tests/scene/scene_support.h"
#include "view3d/scene/scene_build.h"

namespace vantrel {
namespace {

// The default kit: 2.5 turns, 260 high, rings of 360 ("24130") and 437.5 ("24230").
constexpr std::size_t kSteps = 30;
constexpr std::size_t kPostVertices = 20;

Layout WithHelix(double cx, double cy, double heading) {
  Layout layout;
  Helix helix;
  helix.id = TakeId(layout);
  helix.cx = cx;
  helix.cy = cy;
  helix.heading = heading;
  layout.helices.push_back(helix);
  return layout;
}

void ExpectInstance(const TrackInstance& track, Vec3f place, float heading) {
  ExpectPoint({track.x, track.y, track.z}, place, 1e-2F);
  EXPECT_NEAR(track.heading, heading, 1e-3F);
}

TEST(SceneHelix, OfTwoAndAHalfTurnsHas30StepsInEachRingAnd13Posts) {
  const Scene scene = BuildScene(WithHelix(0, 0, 0));
  ASSERT_EQ(scene.trackInstances.size(), 2 * kSteps);
  for (std::size_t i = 0; i < kSteps; ++i) {
    EXPECT_EQ(scene.trackInstances[i].key, "24130");
    EXPECT_EQ(scene.trackInstances[kSteps + i].key, "24230");
    EXPECT_FALSE(scene.trackInstances[i].rev);
  }
  EXPECT_EQ(scene.sceneMesh.positions.size(), 13 * kPostVertices);
  EXPECT_EQ(scene.trackModels.size(), 2U);
  EXPECT_FALSE(scene.trackModels.at("24130").empty());
}

TEST(SceneHelix, StepsClimbAroundTheMiddle) {
  const Scene scene = BuildScene(WithHelix(1000, 500, 0));
  // Step 1 lies at -120 degrees: 360 cos = -180, 360 sin = -311.769; y is negated. Each step climbs
  // 260 / 30 = 8.6667.
  ExpectInstance(scene.trackInstances[0], {820, -188.231F, 8.6667F}, 30);
  // Step 3 at -180 degrees, step 30 at -990 = 90 degrees.
  ExpectInstance(scene.trackInstances[2], {640, -500, 26}, 90);
  ExpectInstance(scene.trackInstances[29], {1000, -860, 260}, 900);
  // The outer ring's step 3.
  ExpectInstance(scene.trackInstances[kSteps + 2], {562.5F, -500, 26}, 90);
}

TEST(SceneHelix, StepsTiltByTheirRiseOverTheirArc) {
  const Scene scene = BuildScene(WithHelix(0, 0, 0));
  // Arcs of 360 pi / 6 = 188.496 and 437.5 pi / 6 = 229.074; 8.6667 over them rise by 2.6325 and
  // 2.1666 degrees.
  EXPECT_NEAR(scene.trackInstances[0].length, 188.496F, 1e-2F);
  EXPECT_NEAR(scene.trackInstances[0].grade, -2.6325F, 1e-3F);
  EXPECT_NEAR(scene.trackInstances[kSteps].length, 229.074F, 1e-2F);
  EXPECT_NEAR(scene.trackInstances[kSteps].grade, -2.1666F, 1e-3F);
}

TEST(SceneHelix, TurnsWithItsHeading) {
  const Scene scene = BuildScene(WithHelix(0, 0, 90));
  // Step 3, at 180 degrees on the level helix, at (-360, 0): turned by 90 in the world to (0,
  // -360).
  ExpectInstance(scene.trackInstances[2], {0, 360, 26}, 0);
  // Step 1: (-180, -311.769) turns to (311.769, -180).
  ExpectInstance(scene.trackInstances[0], {311.769F, 180, 8.6667F}, -60);
}

TEST(SceneHelix, StandsOnItsFirstStub) {
  Layout layout = WithHelix(0, 0, 0);
  layout.helices[0].bottomR1 = Lay(layout, "24188", {0, -360, 0}, 40);
  const Scene scene = BuildScene(layout);
  ExpectInstance(scene.trackInstances[3], {-360, 0, 66}, 90);
  const Bounds posts = BoundsOf(scene.sceneMesh);
  EXPECT_EQ(posts.low.z, 40.0F);
  EXPECT_EQ(posts.high.z, 300.0F);
}

TEST(SceneHelix, StandsOnTheGroundWithoutItsStub) {
  Layout layout = WithHelix(0, 0, 0);
  layout.helices[0].bottomR1 = 4711;
  const Bounds posts = BoundsOf(BuildScene(layout).sceneMesh);
  EXPECT_EQ(posts.low.z, 0.0F);
  EXPECT_EQ(posts.high.z, 260.0F);
}

TEST(SceneHelix, HasTwelvePostsOnTheOuterRadiusAndOneOnTheInner) {
  const Mesh mesh = BuildScene(WithHelix(0, 0, 0)).sceneMesh;
  const auto post = [&](std::size_t i) { return MiddleOf(mesh, i * kPostVertices, kPostVertices); };
  // -90 degrees, y negated; then each 30 degrees on.
  EXPECT_NEAR(post(0).x, 0.0F, 1e-2F);
  EXPECT_NEAR(post(0).y, 437.5F, 1e-2F);
  // -60 degrees: 218.75, -378.886.
  EXPECT_NEAR(post(1).x, 218.75F, 1e-2F);
  EXPECT_NEAR(post(1).y, 378.886F, 1e-2F);
  EXPECT_NEAR(post(3).x, 437.5F, 1e-2F);
  EXPECT_NEAR(post(6).y, -437.5F, 1e-2F);
  EXPECT_NEAR(post(12).x, 0.0F, 1e-2F);
  EXPECT_NEAR(post(12).y, -360.0F, 1e-2F);
  // The second is turned by minus (-60): its first side faces 60 degrees.
  ExpectPoint(mesh.normals[kPostVertices], {0.5F, 0.8660254F, 0});
}

TEST(SceneHelix, PostsTurnWithItsHeading) {
  const Mesh mesh = BuildScene(WithHelix(1000, 0, 60)).sceneMesh;
  // -90 + 60 = -30 degrees in the world: 437.5 x (0.8660254, -0.5) = (378.886, -218.75).
  const Vec3f first = MiddleOf(mesh, 0, kPostVertices);
  EXPECT_NEAR(first.x, 1378.886F, 1e-2F);
  EXPECT_NEAR(first.y, 218.75F, 1e-2F);
  // Turned by minus (-90 + 60) = 30 degrees.
  ExpectPoint(mesh.normals[0], {0.8660254F, 0.5F, 0});
}

TEST(SceneHelix, OfAnUnknownKitIsOfTheDefaultKit) {
  Layout layout = WithHelix(0, 0, 0);
  layout.helices[0].variant = "no such kit";
  EXPECT_EQ(BuildScene(layout).trackInstances.size(), 60U);
  layout.helices[0].variant = "proses_4_5_r4r5";
  const Scene scene = BuildScene(layout);
  EXPECT_EQ(scene.trackInstances.size(), 108U);
  EXPECT_EQ(scene.trackInstances[0].key, "24430");
}

TEST(SceneHelix, GrowsTheFrameButDoesNotMakeOne) {
  Layout layout = WithHelix(0, 0, 0);
  EXPECT_FALSE(BuildScene(layout).framed);
  Lay(layout, "24188", {0, 0, 0});
  const Scene scene = BuildScene(layout);
  EXPECT_TRUE(scene.framed);
  // The outer ring reaches 437.5 to all sides: 875 x 1.8 = 1575.
  EXPECT_NEAR(scene.distance, 1575.0F, 1e-2F);
  EXPECT_NEAR(scene.centreX, 0.0F, 1e-2F);
}

HelixKit OddKit() {
  return {.id = "odd",
          .name = "Odd",
          .turns = 0.25,
          .height = 60.0,
          .innerRadius = 0.001,
          .outerRadius = 400.0,
          .stubPart = "24188",
          .innerCurvePart = "24130",
          .outerCurvePart = "no such part"};
}

TEST(SceneHelix, RingOfAnUnknownCurvePartIsLeftOut) {
  const Layout layout;
  SceneBuild build(layout, {.track = [](const PieceDef&) { return Model{}; }, .scenery = {}});
  AddHelix(build, {}, OddKit());
  // A quarter turn is three steps of the inner ring.
  ASSERT_EQ(build.scene.trackInstances.size(), 3U);
  EXPECT_EQ(build.scene.trackModels.size(), 1U);
  EXPECT_EQ(build.scene.trackInstances[2].z, 60.0F);
  EXPECT_EQ(build.scene.sceneMesh.positions.size(), 13 * kPostVertices);
}

TEST(SceneHelix, RingWithoutAnArcDoesNotTilt) {
  const Layout layout;
  SceneBuild build(layout, {.track = [](const PieceDef&) { return Model{}; }, .scenery = {}});
  AddHelix(build, {}, OddKit());
  EXPECT_EQ(build.scene.trackInstances[0].grade, 0.0F);
}

TEST(SceneHelix, OfLessThanAStepHasOnlyPosts) {
  const Layout layout;
  SceneBuild build(layout, {.track = [](const PieceDef&) { return Model{}; }, .scenery = {}});
  HelixKit kit = OddKit();
  kit.turns = 0.08;
  AddHelix(build, {}, kit);
  EXPECT_TRUE(build.scene.trackInstances.empty());
  EXPECT_EQ(build.scene.sceneMesh.positions.size(), 13 * kPostVertices);
}

TEST(SceneHelix, WithoutAPlaceIsLeftOut) {
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e10}) {
    EXPECT_TRUE(BuildScene(WithHelix(bad, 0, 0)).trackInstances.empty());
    EXPECT_TRUE(BuildScene(WithHelix(0, bad, 0)).trackInstances.empty());
    Layout layout = WithHelix(0, 0, 0);
    layout.helices[0].bottomR1 = Lay(layout, "24188", {0, 0, 0}, bad);
    const Scene scene = BuildScene(layout);
    EXPECT_TRUE(scene.trackInstances.empty());
    EXPECT_TRUE(scene.sceneMesh.positions.empty());
  }
}

}  // namespace
}  // namespace vantrel
