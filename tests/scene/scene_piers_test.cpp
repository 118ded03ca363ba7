#include <gtest/gtest.h>

#include "tests/scene/scene_support.h"

namespace vantrel {
namespace {

// "74636" is a straight bridge of 360, "74613" a curved ramp of radius 360 over 30 degrees.
constexpr std::size_t kPierVertices = 54;

// The middles of all piers; nothing else of the plans here lies in the scene's mesh.
std::vector<Vec3f> PiersOf(const Layout& layout) {
  const Mesh mesh = BuildScene(layout).sceneMesh;
  EXPECT_EQ(mesh.positions.size() % kPierVertices, 0U);
  std::vector<Vec3f> piers;
  for (std::size_t i = 0; i < mesh.positions.size(); i += kPierVertices)
    piers.push_back(MiddleOf(mesh, i, kPierVertices));
  return piers;
}

void ExpectAt(Vec3f pier, float x, float y) {
  EXPECT_NEAR(pier.x, x, 1e-2F);
  EXPECT_NEAR(pier.y, y, 1e-2F);
}

// Three bridges of 360 in a row from (0, 0), joined.
Layout Chain() {
  Layout layout;
  for (int i = 0; i < 3; ++i) Lay(layout, "74636", {360.0 * i, 0, 0}, 60);
  Join(layout, layout.pieces[0].id, 1, layout.pieces[1].id, 0);
  Join(layout, layout.pieces[1].id, 1, layout.pieces[2].id, 0);
  return layout;
}

TEST(ScenePiers, StandAtTheTwoEndsAndTwoJointsOfAChainOfThreeBridges) {
  const std::vector<Vec3f> piers = PiersOf(Chain());
  ASSERT_EQ(piers.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) ExpectAt(piers[i], 360.0F * static_cast<float>(i), 0);
}

TEST(ScenePiers, StandOnceAtEachJointWhicheverWayTheBridgesLie) {
  // The middle one lies the other way round: its near end is at 720, as is that of the third.
  Layout layout;
  Lay(layout, "74636", {0, 0, 0}, 60);
  Lay(layout, "74636", {720, 0, 180}, 60);
  Lay(layout, "74636", {720, 0, 0}, 60);
  Join(layout, layout.pieces[0].id, 1, layout.pieces[1].id, 1);
  Join(layout, layout.pieces[1].id, 0, layout.pieces[2].id, 0);
  EXPECT_EQ(PiersOf(layout).size(), 4U);
}

TEST(ScenePiers, CarryATurnedStraightBridgeAtItsEndsAcrossTheTrack) {
  Layout layout;
  Lay(layout, "74636", {100, 200, 30}, 60);
  const std::vector<Vec3f> piers = PiersOf(layout);
  ASSERT_EQ(piers.size(), 2U);
  ExpectAt(piers[0], 100, -200);
  // 360 on along 30 degrees: 311.769 in x, 180 in y; y is negated.
  ExpectAt(piers[1], 411.769F, -380);
  // The long side of the section lies at 60 degrees in the view, across the track's minus 30. From
  // the middle it reaches 7 + 11 that way, and 11 across.
  const Mesh mesh = BuildScene(layout).sceneMesh;
  float along = 0.0F;
  float across = 0.0F;
  for (std::size_t i = 0; i < kPierVertices; ++i) {
    const Vec3f from = mesh.positions[i] - piers[0];
    along = std::max(along, from.x * 0.5F + from.y * 0.8660254F);
    across = std::max(across, from.x * 0.8660254F - from.y * 0.5F);
  }
  EXPECT_NEAR(along, 18.0F, 1e-2F);
  EXPECT_NEAR(across, 11.0F, 1e-2F);
}

TEST(ScenePiers, CarryACurvedRampAtTheEndOfItsArc) {
  Layout layout;
  Lay(layout, "74613", {0, 0, 0}, 60);
  std::vector<Vec3f> piers = PiersOf(layout);
  ASSERT_EQ(piers.size(), 2U);
  ExpectAt(piers[0], 0, 0);
  // 360 sin 30 = 180; 360 (1 - cos 30) = 48.231, negated.
  ExpectAt(piers[1], 180, -48.231F);

  // At heading 90 at (500, 100) the same end lies at (500 - 48.231, 100 + 180).
  layout.pieces[0].x = 500;
  layout.pieces[0].y = 100;
  layout.pieces[0].heading = 90;
  piers = PiersOf(layout);
  ExpectAt(piers[0], 500, -100);
  ExpectAt(piers[1], 451.769F, -280);
}

TEST(ScenePiers, ReachFromTheLevelToThePiece) {
  Layout layout;
  AddLevel(layout, 3, 25.0);
  Lay(layout, "74636", {0, 0, 0}, 90, 3);
  const Bounds bounds = BoundsOf(BuildScene(layout).sceneMesh);
  EXPECT_EQ(bounds.low.z, 25.0F);
  EXPECT_EQ(bounds.high.z, 90.0F);
}

TEST(ScenePiers, AreNotBuiltLessThan2AboveTheBase) {
  Layout layout;
  AddLevel(layout, 1, 30.0);
  Lay(layout, "74636", {0, 0, 0}, 31.9);
  EXPECT_TRUE(PiersOf(layout).empty());
  layout.pieces[0].z = 32.0;
  EXPECT_EQ(PiersOf(layout).size(), 2U);
  layout.pieces[0].z = 10.0;
  EXPECT_TRUE(PiersOf(layout).empty());
}

TEST(ScenePiers, AreSharedByEndsWithin2MmOfEachOther) {
  Layout layout;
  Lay(layout, "74636", {0, 0, 0}, 60);
  Lay(layout, "74636", {361.9, -1.9, 0}, 60);
  EXPECT_EQ(PiersOf(layout).size(), 3U);
  layout.pieces[1].x = 362.1;
  EXPECT_EQ(PiersOf(layout).size(), 4U);
  layout.pieces[1].x = 360.0;
  layout.pieces[1].y = 2.1;
  EXPECT_EQ(PiersOf(layout).size(), 4U);
}

TEST(ScenePiers, StandAtTheNearEndThatOrdinaryTrackLeadsTo) {
  Layout layout;
  Lay(layout, "24188", {-188.3, 0, 0}, 60);
  Lay(layout, "74636", {0, 0, 0}, 60);
  Join(layout, layout.pieces[0].id, 1, layout.pieces[1].id, 0);
  EXPECT_EQ(PiersOf(layout).size(), 2U);
}

TEST(ScenePiers, AreLeftOutAtANearEndJoinedToABridgeWhereverThatLies) {
  Layout layout = Chain();
  // The joint holds although the first bridge was moved away.
  layout.pieces[0].y = 500;
  const std::vector<Vec3f> piers = PiersOf(layout);
  ASSERT_EQ(piers.size(), 4U);
  ExpectAt(piers[2], 720, 0);
  ExpectAt(piers[3], 1080, 0);
}

TEST(ScenePiers, AreNotHeldBackByJointsThatLeadNowhereOrToTheBridgeItself) {
  Layout layout;
  const std::int32_t id = Lay(layout, "74636", {0, 0, 0}, 60);
  layout.pieces[0].joints[0] = {999, 5};
  EXPECT_EQ(PiersOf(layout).size(), 2U);
  layout.pieces[0].joints[0] = {id, -7};
  EXPECT_EQ(PiersOf(layout).size(), 2U);
  layout.pieces[0].joints.clear();
  EXPECT_EQ(PiersOf(layout).size(), 2U);
}

TEST(ScenePiers, OfAHiddenBridgeAreHiddenWithIt) {
  Layout layout = Chain();
  AddLevel(layout, 1, 0.0);
  AddLevel(layout, 2, 0.0, false);
  layout.pieces[0].level = 2;
  // The second still counts as joined to a bridge.
  const std::vector<Vec3f> piers = PiersOf(layout);
  ASSERT_EQ(piers.size(), 2U);
  ExpectAt(piers[0], 720, 0);
}

TEST(ScenePiers, OfThousandsOfBridgesStandOnceAtEachEnd) {
  Layout layout;
  for (int i = 0; i < 5000; ++i) Lay(layout, "74636", {360.0 * i, 0, 0}, 60);
  EXPECT_EQ(PiersOf(layout).size(), 5001U);
}

}  // namespace
}  // namespace vantrel
