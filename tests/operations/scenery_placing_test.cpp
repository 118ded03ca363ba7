#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "canvas/operations/placing.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

// A roundhouse is 343 mm deep, so its middle stands 343 / 2 + 349.6 = 521.1 mm from the pit's.

namespace vantrel {
namespace {

Layout PlanWithPitAt(double x, double y) {
  Layout layout;
  EnsureDefaultLevel(layout);
  SceneryItem pit;
  pit.id = TakeId(layout);
  pit.item = "74861";
  pit.x = x;
  pit.y = y;
  layout.scenery.push_back(pit);
  return layout;
}

TEST(PlaceScenery, SetsAndSelectsTheItemWhereItIsDropped) {
  Layout layout;
  const std::int32_t id = placeScenery(layout, "platform", {100.0, 200.0, 30.0});
  ASSERT_EQ(layout.scenery.size(), 1u);
  const SceneryItem& item = layout.scenery[0];
  EXPECT_EQ(item.id, id);
  EXPECT_EQ(item.id, 1);
  EXPECT_EQ(layout.nextId, 2);
  EXPECT_EQ(item.item, "platform");
  EXPECT_EQ(item.pose(), (Pose{100.0, 200.0, 30.0}));
  EXPECT_EQ(item.scalex, 1.0);
  EXPECT_EQ(item.scaley, 1.0);
  EXPECT_EQ(item.level, 1);
  EXPECT_TRUE(item.sel);
  EXPECT_EQ(layout.levels.size(), 1u);
}

TEST(PlaceScenery, LandsOnTheHighestVisibleLevel) {
  Layout layout;
  layout.levels.resize(3);
  layout.levels[1].id = 2;
  layout.levels[1].height = 150.0;
  layout.levels[2].id = 3;
  layout.levels[2].height = 900.0;
  layout.levels[2].visible = false;
  placeScenery(layout, "platform", {});
  EXPECT_EQ(layout.scenery[0].level, 2);
}

TEST(PlaceScenery, IsOneUndoStepThatLeavesNothingSelected) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).sel = true;
  placeScenery(layout, "platform", {});
  EXPECT_FALSE(PieceOf(layout, piece).sel);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_FALSE(PieceOf(layout, piece).sel) << "the selection went before the snapshot";
}

TEST(PlaceScenery, ChangesNothingForAnUnknownItem) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).sel = true;
  EXPECT_EQ(placeScenery(layout, "no such item", {}), kNone);
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_TRUE(PieceOf(layout, piece).sel);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_TRUE(layout.levels.empty());
}

TEST(Roundhouse, StandsBelowThePitAtHeading0) {
  Layout layout = PlanWithPitAt(1000.0, 1000.0);
  placeScenery(layout, "72886", {1100.0, 1300.0, 0.0});
  ExpectPose(layout.scenery[1].pose(), 1000.0, 1521.1, 0.0, 1e-9);
}

TEST(Roundhouse, At30DegreesRoundsUpToTheThirdStepOf12) {
  // 30 / 12 = 2.5 rounds away from zero to 3, so 36 degrees:
  // 521.1 sin 36 = 306.2949 to the left, 521.1 cos 36 = 421.5788 below.
  const Layout layout = PlanWithPitAt(1000.0, 1000.0);
  ExpectPose(sceneryDropPose(layout, "72886", {900.0, 1200.0, 30.0}), 693.7051, 1421.5788, 36.0,
             1e-4);
}

TEST(Roundhouse, At90DegreesRoundsUpToTheEighthStep) {
  // 90 / 12 = 7.5 gives 8, so 96 degrees: 521.1 sin 96 = 518.2454, 521.1 cos 96 = -54.4698.
  const Layout layout = PlanWithPitAt(1000.0, 1000.0);
  ExpectPose(sceneryDropPose(layout, "72886", {1000.0, 1000.0, 90.0}), 481.7546, 945.5302, 96.0,
             1e-4);
}

TEST(Roundhouse, TakesTheNearestStepOtherwise) {
  // 15 / 12 = 1.25 gives 12 degrees: 521.1 sin 12 = 108.3428, 521.1 cos 12 = 509.7127.
  const Layout layout = PlanWithPitAt(0.0, 0.0);
  ExpectPose(sceneryDropPose(layout, "72886", {0.0, 0.0, 15.0}), -108.3428, 509.7127, 12.0, 1e-4);
  // 345 / 12 = 28.75 gives 348 degrees, the same on the other side.
  ExpectPose(sceneryDropPose(layout, "72886", {0.0, 0.0, 345.0}), 108.3428, 509.7127, 348.0, 1e-4);
}

TEST(Roundhouse, AlwaysStandsOnTheRing) {
  const Layout layout = PlanWithPitAt(300.0, -200.0);
  for (double heading = 0.0; heading < 360.0; heading += 15.0) {
    const Pose pose = sceneryDropPose(layout, "72886", {310.0, -190.0, heading});
    EXPECT_NEAR(std::hypot(pose.x - 300.0, pose.y + 200.0), 521.1, 1e-9) << heading;
    EXPECT_NEAR(std::remainder(pose.heading, 12.0), 0.0, 1e-9) << heading;
    EXPECT_LE(std::abs(pose.heading - heading), 6.0) << heading;
  }
}

TEST(Roundhouse, IsCaughtBelow700MmOnly) {
  const Layout layout = PlanWithPitAt(0.0, 0.0);
  EXPECT_EQ(sceneryDropPose(layout, "72886", {700.0, 0.0, 30.0}), (Pose{700.0, 0.0, 30.0}));
  EXPECT_EQ(sceneryDropPose(layout, "72886", {699.9, 0.0, 30.0}).heading, 36.0);
}

TEST(Roundhouse, BelongsToTheNearestPitAndTheFirstOfEquals) {
  Layout layout = PlanWithPitAt(0.0, 0.0);
  layout.scenery.push_back(layout.scenery[0]);
  layout.scenery[1].x = 400.0;
  ExpectPose(sceneryDropPose(layout, "72886", {300.0, 0.0, 0.0}), 400.0, 521.1, 0.0, 1e-9);
  ExpectPose(sceneryDropPose(layout, "72886", {200.0, 0.0, 0.0}), 0.0, 521.1, 0.0, 1e-9);
}

TEST(Roundhouse, IsNotAttractedByATurntableOfTrack) {
  Layout layout;
  LayPiece(layout, "74861", {});
  EXPECT_EQ(sceneryDropPose(layout, "72886", {50.0, 0.0, 30.0}), (Pose{50.0, 0.0, 30.0}));
}

TEST(Roundhouse, IsTheOnlyItemThatAPitAttracts) {
  const Layout layout = PlanWithPitAt(0.0, 0.0);
  EXPECT_EQ(sceneryDropPose(layout, "platform", {50.0, 0.0, 30.0}), (Pose{50.0, 0.0, 30.0}));
  EXPECT_EQ(sceneryDropPose(layout, "74861", {50.0, 0.0, 30.0}), (Pose{50.0, 0.0, 30.0}));
}

TEST(Roundhouse, IgnoresAPitThatLiesNowhere) {
  const Layout layout = PlanWithPitAt(std::numeric_limits<double>::quiet_NaN(), 0.0);
  EXPECT_EQ(sceneryDropPose(layout, "72886", {50.0, 0.0, 30.0}), (Pose{50.0, 0.0, 30.0}));
}

}  // namespace
}  // namespace vantrel
