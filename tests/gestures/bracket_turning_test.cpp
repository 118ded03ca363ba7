// Turning the selection with the bracket keys.
#include <gtest/gtest.h>

#include "canvas/gestures/palette_drag.h"
#include "canvas/gestures/step_rotation.h"
#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class BracketTurning : public EditingTest {
 protected:
  // A straight of 188.3 mm that runs to the right from (305.85, 400): its middle is (400, 400).
  std::int32_t laySelected(double heading = 0.0) {
    const std::int32_t id = lay("24188", {305.85, 400.0, heading});
    select({id});
    return id;
  }
};

// About the middle of its box: a quarter turn in six steps puts its start 94.15 mm above the
// middle.
TEST_F(BracketTurning, TheRightBracketTurnsClockwiseByTheStepOfTheWheelAboutTheMiddleOfTheBox) {
  const std::int32_t id = laySelected();
  EXPECT_TRUE(type(']'));
  EXPECT_NEAR(piece(id).heading, 15.0, 1e-9);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.repaints, 1);
  for (int i = 0; i < 5; ++i) type(']');
  ExpectPose(piece(id).pose(), 400.0, 305.85, 90.0, 1e-6);
  EXPECT_EQ(layout.undoHistory.size(), 6u) << "each step can be taken back";
  Undo(layout);
  EXPECT_NEAR(piece(id).heading, 75.0, 1e-9);
}

TEST_F(BracketTurning, TheLeftBracketTurnsTheOtherWayAndBothDoWhatTheWheelWithCtrlDoes) {
  const std::int32_t id = laySelected();
  EXPECT_TRUE(type('['));
  EXPECT_NEAR(piece(id).heading, 345.0, 1e-9);
  const Pose byKey = piece(id).pose();
  Undo(layout);
  held.mods.ctrl = true;
  wheel(5, 5, -120);
  EXPECT_EQ(piece(id).pose(), byKey);
}

TEST_F(BracketTurning, TheBracesOfShiftTurnByOneDegree) {
  const std::int32_t id = laySelected(20.0);
  held.mods.shift = true;
  EXPECT_TRUE(type('}'));
  EXPECT_NEAR(piece(id).heading, 21.0, 1e-9);
  type('{');
  type('{');
  EXPECT_NEAR(piece(id).heading, 19.0, 1e-9);
}

// Where AltGr makes the brackets, some platforms tell it as Ctrl and Alt, others not at all; a
// layout may also ask for Shift.
TEST_F(BracketTurning, TheCharacterCountsWhateverKeysMakeIt) {
  const std::int32_t id = laySelected();
  held.mods = {.ctrl = true, .shift = false, .alt = true};
  EXPECT_TRUE(type(']'));
  held.mods = {.ctrl = false, .shift = true, .alt = false};
  EXPECT_TRUE(type(']'));
  EXPECT_NEAR(piece(id).heading, 30.0, 1e-9);
}

TEST_F(BracketTurning, ChordsWithCtrlOrAltAloneAreLeftToOthers) {
  const std::int32_t id = laySelected();
  held.mods.ctrl = true;
  EXPECT_FALSE(type(']'));
  held.mods = {};
  held.mods.alt = true;
  EXPECT_FALSE(type('['));
  EXPECT_EQ(piece(id).heading, 0.0);
  EXPECT_TRUE(layout.undoHistory.empty());
}

// The wheel asks no locks and carries no helix record along; the keys are its equals.
TEST_F(BracketTurning, WhatIsLockedForOtherTurnsTurnsAsItDoesWithTheWheel) {
  const Ids chain = layChain(2, 100.0, 100.0);
  layTunnel({chain[0]});
  const Helix helix = layHelix({600.0, 600.0});
  select({chain[0], helix.bottomR1});
  type(']');
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_NEAR(piece(chain[0]).heading, 15.0, 1e-9);
  EXPECT_NEAR(piece(helix.bottomR1).heading, 15.0, 1e-9);
  EXPECT_EQ(layout.helices[0].heading, 0.0);
}

TEST_F(BracketTurning, SceneryTurnsTooAndAnnotationsAloneDoNot) {
  const std::int32_t house = layScenery("platform", {400.0, 400.0, 0.0});
  select({house});
  type(']');
  EXPECT_NEAR(layout.scenery[0].heading, 15.0, 1e-9);
  select({});
  layShape({0.0, 0.0}, 100.0);
  layout.shapes[0].sel = true;
  const int marks = host.dirtyMarks;
  type(']');
  EXPECT_EQ(layout.shapes[0].vertices[1], (Vec2{100.0, 0.0}));
  EXPECT_EQ(host.dirtyMarks, marks);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST_F(BracketTurning, TheKeysTellThatWhatIsSelectedCannotBeTurned) {
  layout.labels.emplace_back().sel = true;
  layout.measurements.emplace_back();
  layout.shapes.emplace_back();
  EXPECT_TRUE(type(']'));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Turn Selection");
  EXPECT_EQ(host.boxes[0].text, "Only labels are selected, and they cannot be turned.");
  EXPECT_EQ(host.boxes[0].icon, BoxIcon::information);
  layout.shapes[0].sel = true;
  type('{');
  EXPECT_EQ(host.boxes.back().text,
            "Only labels and polygons are selected, and they cannot be turned.");
  layout.measurements[0].sel = true;
  type('[');
  EXPECT_EQ(host.boxes.back().text,
            "Only labels, measuring tapes and polygons are selected, and they cannot be turned.");
  EXPECT_EQ(host.boxes.size(), 3u);
  EXPECT_EQ(host.dirtyMarks, 0);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(BracketTurning, OfAMixedSelectionWhatCanTurnsAndNoWordIsSaidOfTheRest) {
  const std::int32_t id = laySelected();
  layShape({0.0, 0.0}, 100.0);
  layout.shapes[0].sel = true;
  type(']');
  EXPECT_NEAR(piece(id).heading, 15.0, 1e-9);
  EXPECT_EQ(layout.shapes[0].vertices[1], (Vec2{100.0, 0.0}));
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(BracketTurning, WithoutASelectionTheKeysSayNothing) {
  lay("24188", {100.0, 100.0, 0.0});
  layout.labels.emplace_back();
  type('[');
  type('}');
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(host.repaints, 0);
}

TEST_F(BracketTurning, NothingIsSaidWhileSomethingHangsAtThePointer) {
  beginPieceDrag(context, "24130");
  layout.labels.emplace_back().sel = true;
  type(']');
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(BracketTurning, NothingTurnsBehindADragOrBehindWhatHangsAtThePointer) {
  const std::int32_t id = laySelected();
  pressLeft(400, 400);
  type(']');
  move(450, 400);
  type(']');
  EXPECT_EQ(piece(id).heading, 0.0);
  releaseLeft(450, 400);
  beginPieceDrag(context, "24130");
  type(']');
  EXPECT_EQ(piece(id).heading, 0.0);
  EXPECT_EQ(layout.undoHistory.size(), 1u) << "of the drag alone";
}

}  // namespace
}  // namespace vantrel
