// Turning the selection with Alt, freely and in steps.
#include "canvas/gestures/alt_rotation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "canvas/gestures/palette_drag.h"
#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {


class AltRotating : public EditingTest {
 protected:
  // A point 1000 pixels from (400, 400) at an angle in degrees, so far out that whole pixels serve
  // for tenths of a degree.
  DevicePoint around(double degrees) const {
    const double a = degrees * std::numbers::pi / 180.0;
    return {400 + static_cast<int>(std::lround(1000.0 * std::cos(a))),
            400 + static_cast<int>(std::lround(1000.0 * std::sin(a)))};
  }
  void pressAt(double degrees) {
    held.mods.alt = true;
    pressLeft(around(degrees).x, around(degrees).y);
  }
  void moveTo(double degrees) { move(around(degrees).x, around(degrees).y); }
};

TEST_F(AltRotating, OnePieceTurnsAboutItsPositionByAsMuchAsThePointer) {
  const std::int32_t id = lay("24188", {400.0, 400.0, 20.0});
  select({id});
  pressAt(0.0);
  EXPECT_TRUE(host.captured);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(state.altRotate.shownAngle, 20.0);
  moveTo(30.0);
  ExpectPose(piece(id).pose(), 400.0, 400.0, 50.0, 0.05);
  EXPECT_NEAR(state.altRotate.shownAngle, 50.0, 0.05);
  moveTo(-50.0);
  EXPECT_NEAR(piece(id).heading, 330.0, 0.05);
  releaseLeft(around(-50.0).x, around(-50.0).y);
  EXPECT_FALSE(state.altRotate.active);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(host.dirtyMarks, 3);
  held.mods = {};
  expectNextClickWorks();
}

TEST_F(AltRotating, PastEightyEightDegreesItHoldsAtNinetyAndPastNinetyTwoItLetsGo) {
  const std::int32_t id = lay("24188", {400.0, 400.0, 0.0});
  select({id});
  pressAt(0.0);
  moveTo(87.9);
  EXPECT_NEAR(piece(id).heading, 87.9, 0.04);
  EXPECT_EQ(host.timerStarts, 0);
  moveTo(88.1);
  EXPECT_NEAR(piece(id).heading, 90.0, 1e-9);
  EXPECT_EQ(state.altRotate.shownAngle, 90.0);
  moveTo(91.9);
  EXPECT_NEAR(piece(id).heading, 90.0, 1e-9);
  moveTo(92.1);
  EXPECT_NEAR(piece(id).heading, 92.1, 0.04);
}

TEST_F(AltRotating, JustBelowAFullTurnItHoldsAtNought) {
  const std::int32_t id = lay("24188", {400.0, 400.0, 10.0});
  select({id});
  pressAt(0.0);
  moveTo(-11.0);
  EXPECT_EQ(state.altRotate.shownAngle, 0.0);
  const double heading = piece(id).heading;
  EXPECT_LT(std::min(heading, 360.0 - heading), 1e-9);
  moveTo(-9.0);
  EXPECT_EQ(state.altRotate.shownAngle, 0.0);
}

TEST_F(AltRotating, TheFlashLasts400MillisecondsAndComesOncePerHold) {
  const std::int32_t id = lay("24188", {400.0, 400.0, 0.0});
  select({id});
  pressAt(0.0);
  moveTo(89.0);
  EXPECT_TRUE(state.altRotate.flash);
  EXPECT_EQ(host.timerMs, 400);
  moveTo(90.0);
  EXPECT_EQ(host.timerStarts, 1);
  const int repaints = host.repaints;
  onFlashTimer(context);
  EXPECT_FALSE(state.altRotate.flash);
  EXPECT_EQ(host.repaints, repaints + 1);
  moveTo(100.0);
  EXPECT_EQ(host.timerMs, 0);
  moveTo(181.0);
  EXPECT_TRUE(state.altRotate.flash);
  EXPECT_EQ(host.timerStarts, 2);
  releaseLeft(0, 0);
  EXPECT_EQ(host.timerMs, 0);
  EXPECT_FALSE(state.altRotate.flash);
}

TEST_F(AltRotating, PiecesAndSceneryTurnAboutTheMeanOfTheirPositionsAndJointsStay) {
  const Ids chain = layChain(2, 211.7, 400.0);  // origins at 211.7 and 400.0
  const std::int32_t outside = lay("24188", {588.3, 400.0, 0.0});
  joinPieces(layout, chain[1], 1, outside, 0);
  const std::int32_t house = layScenery("platform", {588.3, 400.0, 0.0});
  select({chain[0], chain[1], house});
  // The mean of 211.7, 400.0 and 588.3 is 400.
  pressAt(0.0);
  moveTo(90.0);
  ExpectPose(piece(chain[0]).pose(), 400.0, 211.7, 90.0, 1e-6);
  ExpectPose(piece(chain[1]).pose(), 400.0, 400.0, 90.0, 1e-6);
  ExpectPose(layout.scenery[0].pose(), 400.0, 588.3, 90.0, 1e-6);
  EXPECT_EQ(JointOf(layout, chain[1], 1), (Joint{outside, 0}));
  EXPECT_EQ(JointOf(layout, outside, 0), (Joint{chain[1], 1}));
  EXPECT_EQ(piece(outside).heading, 0.0);
}

TEST_F(AltRotating, AHelixSelectedAloneTurnsAboutItsCentreWithItsRecord) {
  Helix& helix = layHelix({400.0, 400.0});
  helix.heading = 350.0;
  select({helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2});
  pressAt(0.0);
  EXPECT_TRUE(host.boxes.empty());
  moveTo(90.0);
  EXPECT_NEAR(layout.helices[0].heading, 80.0, 1e-6);
  EXPECT_EQ(layout.helices[0].cx, 400.0);
  // bottomR1 stood 360 above the centre: a quarter turn brings it to the right.
  ExpectPose(piece(layout.helices[0].bottomR1).pose(), 760.0, 400.0, 90.0, 1e-6);
}

TEST_F(AltRotating, LockedTrackIsRefusedAndNothingIsCaptured) {
  const Ids chain = layChain(2, 100.0, 100.0);
  layTunnel({chain[0]});
  const Helix helix = layHelix({600.0, 600.0});
  select({chain[0]});
  held.mods.alt = true;
  EXPECT_TRUE(pressLeft(5, 5));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text,
            "Selection includes tunnel track or portals. Remove the tunnel first, then rotate.");
  EXPECT_FALSE(host.captured);
  EXPECT_FALSE(state.altRotate.active);
  EXPECT_TRUE(layout.undoHistory.empty());
  releaseLeft(5, 5);
  select({chain[1], helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2});
  pressLeft(5, 5);
  ASSERT_EQ(host.boxes.size(), 2u);
  EXPECT_EQ(host.boxes[1].title, "Helix track is locked");
  EXPECT_EQ(host.boxes[1].text,
            "Selection includes track that is part of a helix. Helix track cannot be rotateed "
            "individually.");
}

TEST_F(AltRotating, WithNothingSelectedAltIsNoRotation) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  held.mods.alt = true;
  pressLeft(150, 100);
  EXPECT_FALSE(state.altRotate.active);
  EXPECT_EQ(selected(), Ids{id});
}

TEST_F(AltRotating, TheGestureEndsWhenNothingIsSelectedAnyMore) {
  const std::int32_t id = lay("24188", {400.0, 400.0, 0.0});
  select({id});
  pressAt(0.0);
  key(WXK_ESCAPE);
  moveTo(45.0);
  EXPECT_FALSE(state.altRotate.active);
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(piece(id).heading, 0.0);
  held.mods = {};
  expectNextClickWorks();
}

TEST_F(AltRotating, WildHeadingsAreSurvived) {
  const std::int32_t id = lay("24188", {400.0, 400.0, 1e300});
  lay("24188", {std::nan(""), 400.0, 0.0});
  layout.pieces[1].sel = true;
  select({id, layout.pieces[1].id});
  pressAt(0.0);
  moveTo(45.0);
  releaseLeft(0, 0);
  EXPECT_TRUE(std::isfinite(state.altRotate.shownAngle));
  EXPECT_TRUE(std::isfinite(piece(id).heading));
}

TEST_F(AltRotating, ThePivotAndTheAngleAreDrawnAndFlashInGreen) {
  layout.gridVisible = false;
  const std::int32_t id = lay("24188", {400.0, 400.0, 0.0});
  select({id});
  pressAt(0.0);
  moveTo(45.0);
  std::unique_ptr<RecordingDC> dc = paint();
  ASSERT_GE(dc->calls().size(), 3u);
  const DrawCall* tail = &dc->calls()[dc->calls().size() - 3];
  EXPECT_EQ(tail[0].box, wxRect(392, 392, 16, 16));
  EXPECT_EQ(tail[0].brush.colour, (Rgba{255, 180, 0, 160}));
  EXPECT_EQ(tail[0].pen.colour, (Rgba{180, 120, 0, 255}));
  EXPECT_EQ(tail[0].pen.width, 2);
  // "45.0 deg" of 8 characters, 11 wide and 22 high in the recorder: 96 by 28 with its margins.
  EXPECT_EQ(tail[1].op, DrawOp::roundedRectangle);
  EXPECT_EQ(tail[1].box, wxRect(410, 386, 96, 28));
  EXPECT_EQ(tail[1].brush.colour, (Rgba{30, 30, 30, 200}));
  EXPECT_EQ(tail[2].text, "45.0 deg");
  EXPECT_EQ(tail[2].points[0], wxPoint(414, 389));
  EXPECT_EQ(tail[2].font.weight, wxFONTWEIGHT_BOLD);
  EXPECT_EQ(tail[2].textForeground, (Rgba{255, 255, 255, 255}));
  moveTo(90.5);
  dc = paint();
  tail = &dc->calls()[dc->calls().size() - 3];
  EXPECT_EQ(tail[0].box, wxRect(384, 384, 32, 32));
  EXPECT_EQ(tail[0].brush.colour, (Rgba{0, 220, 80, 180}));
  EXPECT_EQ(tail[0].pen.colour, (Rgba{0, 160, 60, 255}));
  EXPECT_EQ(tail[2].text, "90.0 deg");
  EXPECT_EQ(tail[2].textForeground, (Rgba{0, 255, 100, 255}));
}

class StepRotating : public EditingTest {};

TEST_F(StepRotating, CtrlWithTheWheelTurnsAboutTheMiddleOfTheBoxEachStepItsOwnUndo) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  select({id});
  held.mods.ctrl = true;
  wheel(900, 900, kNotch);
  // The box runs from x 100 to 288.3 at y 100: its middle is (194.15, 100).
  // 94.15 mm to its left, turned by 15 degrees: cos 0.965926, sin 0.258819.
  ExpectPose(piece(id).pose(), 194.15 - 94.15 * 0.9659258263, 100.0 - 94.15 * 0.2588190451, 15.0,
             1e-6);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  held.mods.shift = true;
  wheel(900, 900, -kNotch);
  EXPECT_NEAR(piece(id).heading, 10.0, 1e-9);
  EXPECT_EQ(layout.undoHistory.size(), 2u);
  EXPECT_EQ(host.dirtyMarks, 2);
  Undo(layout);
  Undo(layout);
  EXPECT_EQ(piece(id).heading, 0.0);
}

TEST_F(StepRotating, CtrlWithTheWheelAndNoSelectionZooms) {
  lay("24188", {100.0, 100.0, 0.0});
  held.mods.ctrl = true;
  wheel(0, 0, kNotch);
  EXPECT_NEAR(state.view.scale, 1.15, 1e-12);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(StepRotating, CtrlWithTheWheelTurnsWhatHangsAtThePointerFirst) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  select({id});
  held.mods.ctrl = true;
  beginPieceDrag(context, "24130");
  wheel(900, 900, kNotch);
  EXPECT_EQ(state.paletteDrag.rotation, 30.0);
  EXPECT_EQ(piece(id).heading, 0.0);
}

TEST_F(StepRotating, TheWheelAsksNoLocksLeavesTheHelixRecordAndTheJoints) {
  const Helix helix = layHelix({600.0, 600.0});
  const std::int32_t outside = lay("24188", {788.3, 240.0, 0.0});
  joinPieces(layout, helix.bottomR1, 1, outside, 0);
  select({helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2});
  held.mods.ctrl = true;
  wheel(0, 0, kNotch);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(layout.helices[0], helix);
  EXPECT_EQ(piece(helix.bottomR1).heading, 15.0);
  EXPECT_EQ(JointOf(layout, outside, 0), (Joint{helix.bottomR1, 1}));
}

TEST_F(StepRotating, AltWithTheRightButtonTurnsByThirtyDegreesAboutTheFirstPiece) {
  const Ids chain = layChain(2, 100.0, 100.0);
  select({chain[0], chain[1]});
  held.mods.alt = true;
  EXPECT_TRUE(pressRight(800, 800));
  ExpectPose(piece(chain[0]).pose(), 100.0, 100.0, 30.0, 1e-9);
  // 188.3 mm along 30 degrees: 163.0726 and 94.15.
  ExpectPose(piece(chain[1]).pose(), 263.0726, 194.15, 30.0, 1e-4);
  EXPECT_TRUE(host.menus.empty());
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST_F(StepRotating, AltWithTheRightButtonIsRefusedForLockedTrack) {
  const Ids chain = layChain(2, 100.0, 100.0);
  layTunnel({chain[0]});
  select({chain[0]});
  held.mods.alt = true;
  EXPECT_TRUE(pressRight(800, 800));
  EXPECT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(piece(chain[0]).heading, 0.0);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(StepRotating, AltWithTheRightButtonTurnsAHelixSelectedAloneAboutItsCentre) {
  const Helix helix = layHelix({600.0, 600.0});
  select({helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2});
  held.mods.alt = true;
  pressRight(800, 800);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(layout.helices[0].heading, 30.0);
  // 360 above the centre, turned by 30 degrees: 180 to the right and 311.769 above.
  ExpectPose(piece(helix.bottomR1).pose(), 780.0, 288.2309, 30.0, 1e-4);
}

}  // namespace
}  // namespace vantrel
