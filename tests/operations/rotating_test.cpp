#include "canvas/operations/rotating.h"

#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/joining.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

SceneryItem& AddSelectedItem(Layout& layout, std::string_view item, const Pose& pose) {
  SceneryItem added;
  added.id = TakeId(layout);
  added.item = std::string(item);
  added.x = pose.x;
  added.y = pose.y;
  added.heading = pose.heading;
  added.sel = true;
  layout.scenery.push_back(added);
  return layout.scenery.back();
}

void ExpectPoint(Vec2 at, double x, double y, double tolerance = 1e-9) {
  EXPECT_NEAR(at.x, x, tolerance);
  EXPECT_NEAR(at.y, y, tolerance);
}

TEST(SelectionPoses, ListPiecesThenSceneryInOrder) {
  Layout layout;
  AddSelectedItem(layout, "platform", {7.0, 8.0, 9.0});
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  LaySelected(layout, "24188", {1.0, 2.0, 3.0});
  LaySelected(layout, "24188", {4.0, 5.0, 6.0});
  EXPECT_EQ(selectionPoses(layout),
            (std::vector<Pose>{{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, {7.0, 8.0, 9.0}}));
}

TEST(SelectionMean, IsThatOfThePositionsOfPiecesAndScenery) {
  Layout layout;
  EXPECT_EQ(selectionMean(layout), (Vec2{0.0, 0.0}));
  LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  LaySelected(layout, "24188", {90.0, 30.0, 0.0});
  LayPiece(layout, "24188", {900.0, 900.0, 0.0});
  AddSelectedItem(layout, "platform", {30.0, 60.0, 0.0});
  ExpectPoint(selectionMean(layout), 40.0, 30.0);  // 120 / 3, 90 / 3
  LaySelected(layout, "24188", {kNaN, 5.0, 0.0});  // stands nowhere
  ExpectPoint(selectionMean(layout), 40.0, 30.0);
}

TEST(SelectionBoxMiddle, ReachesFromConnectorToConnector) {
  Layout layout;
  LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  ExpectPoint(selectionBoxMiddle(layout), 94.15, 0.0);
  LaySelected(layout, "24188", {100.0, 50.0, 90.0});  // down to y 238.3
  ExpectPoint(selectionBoxMiddle(layout), 94.15, 119.15);
}

TEST(SelectionBoxMiddle, PutsACurvesBulgeOnTheSideAwayFromItsFarEnd) {
  Layout layout;
  LaySelected(layout, "24130", {0.0, 0.0, 0.0});
  // 360 * (1 - cos 15) = 12.2667 goes to y -12.2667; the far end is at (180, 48.2309), so the
  // middle's y is (48.2309 - 12.2667) / 2.
  ExpectPoint(selectionBoxMiddle(layout), 90.0, 17.9821, 1e-4);
}

TEST(SelectionBoxMiddle, PutsALeftTurnoutsBulgeToItsRight) {
  Layout layout;
  LaySelected(layout, "24611", {0.0, 0.0, 0.0});
  // Angle -24.3: 437.5 * (1 - cos 12.15) = 9.8000 goes to y +9.8; the branch ends at y -38.76.
  ExpectPoint(selectionBoxMiddle(layout), 94.15, -14.48, 1e-3);
}

TEST(SelectionBoxMiddle, TakesSceneryAsItsScaledFootprintUnturned) {
  Layout layout;
  SceneryItem& platform = AddSelectedItem(layout, "platform", {1000.0, 100.0, 90.0});  // 230 by 60
  platform.scalex = 2.0;
  platform.scaley = -0.5;
  LaySelected(layout, "no such part", {0.0, 0.0, 0.0});
  // x from 0 to 1000 + 230, y from 0 to 100 + 15.
  ExpectPoint(selectionBoxMiddle(layout), 615.0, 57.5);
  layout.scenery[0].item = "no such item";  // its position alone
  ExpectPoint(selectionBoxMiddle(layout), 500.0, 50.0);
}

TEST(SelectionBoxMiddle, LeavesOutWhatStandsNowhere) {
  Layout layout;
  EXPECT_EQ(selectionBoxMiddle(layout), (Vec2{0.0, 0.0}));
  LaySelected(layout, "24188", {kNaN, 0.0, 0.0});
  LaySelected(layout, "24188", {std::numeric_limits<double>::infinity(), 0.0, 0.0});
  LaySelected(layout, "24188", {10.0, 20.0, 0.0});
  ExpectPoint(selectionBoxMiddle(layout), 104.15, 20.0);
}

TEST(TurnSelectionFrom, TurnsPositionAndHeadingAboutThePivot) {
  Layout layout;
  const std::int32_t piece = LaySelected(layout, "24188", {110.0, 0.0, 300.0});
  AddSelectedItem(layout, "platform", {10.0, 50.0, 10.0});
  const std::vector<Pose> start = selectionPoses(layout);
  turnSelectionFrom(layout, start, {10.0, 0.0}, 45.0);
  turnSelectionFrom(layout, start, {10.0, 0.0}, 90.0);  // from the start, not on top
  // 100 to the right becomes 100 below; 50 below becomes 50 to the left.
  ExpectPose(PieceOf(layout, piece).pose(), 10.0, 100.0, 30.0, 1e-9);
  ExpectPose(layout.scenery[0].pose(), -40.0, 0.0, 100.0, 1e-9);
}

TEST(TurnSelectionFrom, ReachesAsFarAsTheStartPoses) {
  Layout layout;
  LaySelected(layout, "24188", {100.0, 0.0, 0.0});
  const std::vector<Pose> start = selectionPoses(layout);
  const std::int32_t late = LaySelected(layout, "24188", {50.0, 0.0, 0.0});
  turnSelectionFrom(layout, start, {0.0, 0.0}, 180.0);
  ExpectPose(layout.pieces[0].pose(), -100.0, 0.0, 180.0, 1e-9);
  EXPECT_EQ(PieceOf(layout, late).pose(), (Pose{50.0, 0.0, 0.0}));
}

TEST(TurnSelectionFrom, TurnsNothingAboutAPivotThatIsNoPointOrByNoAngle) {
  Layout layout;
  LaySelected(layout, "24188", {100.0, 0.0, 0.0});
  const std::vector<Pose> start = selectionPoses(layout);
  turnSelectionFrom(layout, start, {kNaN, 0.0}, 30.0);
  turnSelectionFrom(layout, start, {0.0, 0.0}, kNaN);
  turnSelectionFrom(layout, start, {-1.7e308, 0.0}, 180.0);
  EXPECT_EQ(layout.pieces[0].x, 100.0);
}

TEST(TurnSelectionByWheel, TurnsAboutTheMiddleOfTheBoxInAnUndoStepOfItsOwn) {
  Layout layout;
  LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  turnSelectionByWheel(layout, 90.0);
  // About (94.15, 0): its start goes straight above the middle.
  ExpectPose(layout.pieces[0].pose(), 94.15, -94.15, 90.0, 1e-9);
  turnSelectionByWheel(layout, -90.0);
  ExpectPose(layout.pieces[0].pose(), 0.0, 0.0, 0.0, 1e-9);
  EXPECT_EQ(layout.undoHistory.size(), 2u);
  Undo(layout);
  ExpectPose(layout.pieces[0].pose(), 94.15, -94.15, 90.0, 1e-9);
}

TEST(TurnSelectionByWheel, LeavesHelixRecordsAndAllJointsAlone) {
  Layout layout;
  layout.helices.push_back({.id = TakeId(layout), .cx = 5.0, .cy = 6.0, .heading = 7.0});
  const std::int32_t stub = LaySelected(layout, "24130", {0.0, 0.0, 0.0});
  PieceOf(layout, stub).helix = 1;
  const std::int32_t feeder = LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
  joinPieces(layout, feeder, 1, stub, 0);
  const Helix before = layout.helices[0];
  turnSelectionByWheel(layout, 15.0);
  EXPECT_EQ(layout.helices[0], before);
  EXPECT_NEAR(PieceOf(layout, stub).heading, 15.0, 1e-9);
  EXPECT_EQ(JointOf(layout, feeder, 1), (Joint{.target = stub, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, stub, 0), (Joint{.target = feeder, .tconn = 1}));
}

TEST(TurnSelectionByWheel, TakesNoSnapshotWithoutSelection) {
  Layout layout;
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  turnSelectionByWheel(layout, 15.0);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(RotateSelectionStep, TurnsBy30AboutTheFirstSelectedPiece) {
  Layout layout;
  LayPiece(layout, "24188", {-500.0, 0.0, 0.0});
  const std::int32_t first = LaySelected(layout, "24188", {100.0, 0.0, 345.0});
  const std::int32_t second = LaySelected(layout, "24188", {300.0, 0.0, 0.0});
  rotateSelectionStep(layout);
  ExpectPose(PieceOf(layout, first).pose(), 100.0, 0.0, 15.0, 1e-9);
  // 200 to the right: cos 30 * 200 = 173.2051, sin 30 * 200 = 100.
  ExpectPose(PieceOf(layout, second).pose(), 273.2051, 100.0, 30.0, 1e-4);
  EXPECT_EQ(layout.pieces[0].pose(), (Pose{-500.0, 0.0, 0.0}));
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST(RotateSelectionStep, TurnsSceneryByWhatItsCategorySays) {
  Layout layout;
  LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  AddSelectedItem(layout, "platform", {100.0, 0.0, 0.0});               // category 0
  AddSelectedItem(layout, "signal_semaphore_stop", {0.0, 0.0, 350.0});  // category 3
  AddSelectedItem(layout, "station_small", {100.0, 0.0, 350.0});
  AddSelectedItem(layout, "no such item", {0.0, 100.0, 0.0});
  rotateSelectionStep(layout);
  ExpectPose(layout.scenery[0].pose(), 86.6025, 50.0, 30.0, 1e-4);
  ExpectPose(layout.scenery[1].pose(), 0.0, 0.0, 20.0, 1e-9);
  // cos 15 = 0.965926, sin 15 = 0.258819
  ExpectPose(layout.scenery[2].pose(), 96.5926, 25.8819, 5.0, 1e-4);
  ExpectPose(layout.scenery[3].pose(), -25.8819, 96.5926, 15.0, 1e-4);
}

TEST(RotateSelectionStep, TurnsSceneryAloneAboutTheFirstItem) {
  Layout layout;
  LayPiece(layout, "24188", {-500.0, 0.0, 0.0});
  AddSelectedItem(layout, "platform", {10.0, 20.0, 0.0});
  AddSelectedItem(layout, "platform", {110.0, 20.0, 0.0});
  rotateSelectionStep(layout);
  ExpectPose(layout.scenery[0].pose(), 10.0, 20.0, 30.0, 1e-9);
  ExpectPose(layout.scenery[1].pose(), 96.6025, 70.0, 30.0, 1e-4);
}

Layout HelixPlan() {
  Layout layout;
  layout.helices.push_back({.id = TakeId(layout), .cx = 0.0, .cy = 100.0, .heading = 340.0});
  for (const double x : {0.0, 50.0}) {
    const std::int32_t stub = LaySelected(layout, "24130", {x, 0.0, 0.0});
    PieceOf(layout, stub).helix = 1;
  }
  return layout;
}

TEST(RotateSelectionStep, TurnsAHelixAboutItsCentre) {
  Layout layout = HelixPlan();
  rotateSelectionStep(layout);
  EXPECT_EQ(layout.helices[0].cx, 0.0);
  EXPECT_EQ(layout.helices[0].cy, 100.0);
  EXPECT_NEAR(layout.helices[0].heading, 10.0, 1e-9);
  // (0, -100) from the centre: x = 100 sin 30 = 50, y = -100 cos 30 = -86.6025.
  ExpectPose(layout.pieces[0].pose(), 50.0, 13.3975, 30.0, 1e-4);
}

TEST(RotateSelectionStep, WithMoreThanTheHelixTurnsAboutTheFirstPieceAndLeavesTheRecord) {
  Layout layout = HelixPlan();
  AddSelectedItem(layout, "platform", {0.0, 0.0, 0.0});
  rotateSelectionStep(layout);
  EXPECT_EQ(layout.helices[0].heading, 340.0);
  ExpectPose(layout.pieces[0].pose(), 0.0, 0.0, 30.0, 1e-9);
}

TEST(RotateSelectionStep, LeavesJointsAlone) {
  Layout layout;
  const std::int32_t stays = LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t turned = LaySelected(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, stays, 1, turned, 0);
  rotateSelectionStep(layout);
  EXPECT_EQ(JointOf(layout, stays, 1), (Joint{.target = turned, .tconn = 0}));
}

TEST(RotateSelectionStep, TakesNoSnapshotWithoutSelectionOrWithoutAPivot) {
  Layout layout;
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  rotateSelectionStep(layout);
  LaySelected(layout, "24188", {kNaN, 0.0, 0.0});
  LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  rotateSelectionStep(layout);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(layout.pieces[2].pose(), (Pose{0.0, 0.0, 0.0}));
}

}  // namespace
}  // namespace vantrel
