// Moving measurements, shapes, decks and labels.
#include "canvas/gestures/annotation_moves.h"

#include <gtest/gtest.h>

#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class AnnotationMoves : public EditingTest {
 protected:
  Measurement& layTape() {
    Measurement tape;
    tape.id = layout.nextId++;
    tape.startX = 100.0;
    tape.startY = 100.0;
    tape.endX = 500.0;
    tape.endY = 100.0;
    tape.moveY = 30.0;
    layout.measurements.push_back(tape);
    return layout.measurements.back();
  }
  Label& layLabel(Vec2 place) {
    Label label;
    label.id = layout.nextId++;
    label.x = place.x;
    label.y = place.y;
    layout.labels.push_back(label);
    return layout.labels.back();
  }
};

TEST_F(AnnotationMoves, ATapeMovesAsOneWhetherItsLineOrItsPlateIsPressed) {
  const std::int32_t track = lay("24188", {100.0, 100.0, 0.0});
  const Measurement start = layTape();
  select({track});
  // On the line, above the piece under it.
  pressLeft(150, 103);
  EXPECT_EQ(selected(), Ids{});
  EXPECT_TRUE(layout.measurements[0].sel);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_TRUE(host.captured);
  move(160, 123);
  EXPECT_EQ(layout.measurements[0].startX, 110.0);
  EXPECT_EQ(layout.measurements[0].startY, 120.0);
  EXPECT_EQ(layout.measurements[0].endX, 510.0);
  EXPECT_EQ(layout.measurements[0].endY, 120.0);
  EXPECT_EQ(layout.measurements[0].moveY, start.moveY);
  releaseLeft(160, 123);
  expectNextClickWorks();
  // On the plate: the middle (310, 120), moved by 30.
  pressLeft(300, 151);
  EXPECT_EQ(state.measureMove.part, MeasurementPart::label);
  move(300, 141);
  EXPECT_EQ(layout.measurements[0].startY, 110.0);
  EXPECT_EQ(layout.measurements[0].moveY, start.moveY);
}

TEST_F(AnnotationMoves, AShapeMovesWithoutItsHeight) {
  const std::int32_t id = layShape({100.0, 100.0}, 200.0);
  layout.shapes[0].height = 40.0;
  lay("24188", {150.0, 150.0, 0.0});
  pressLeft(200, 150);
  EXPECT_TRUE(layout.shapes[0].sel);
  EXPECT_EQ(selected(), Ids{});
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  move(230, 140);
  EXPECT_EQ(layout.shapes[0].vertices[0], (Vec2{130.0, 90.0}));
  EXPECT_EQ(layout.shapes[0].vertices[2], (Vec2{330.0, 290.0}));
  EXPECT_EQ(layout.shapes[0].height, 40.0);
  EXPECT_EQ(layout.shapes[0].id, id);
  EXPECT_EQ(host.dirtyMarks, 1);
  releaseLeft(230, 140);
  EXPECT_FALSE(host.captured);
  expectNextClickWorks();
}

TEST_F(AnnotationMoves, WithAModifierTapesAndShapesLetThePressThrough) {
  const std::int32_t track = lay("24188", {100.0, 100.0, 0.0});
  layTape();
  layShape({0.0, 0.0}, 400.0);
  held.mods.ctrl = true;
  pressLeft(150, 100);
  EXPECT_EQ(selected(), Ids{track});
}

TEST_F(AnnotationMoves, AShapeWhoseVerticesChangedInMidMoveStaysAsItIs) {
  layShape({100.0, 100.0}, 200.0);
  pressLeft(200, 150);
  layout.shapes[0].vertices.pop_back();
  const std::vector<Vec2> before = layout.shapes[0].vertices;
  move(230, 140);
  EXPECT_EQ(layout.shapes[0].vertices, before);
  layout.shapes.clear();
  move(240, 140);
  releaseLeft(240, 140);
  EXPECT_FALSE(host.captured);
}

TEST_F(AnnotationMoves, ShiftOnADecksEdgeMovesItsOutlineAsOneStep) {
  layout.levels = {Level{}};
  layout.levels[0].outline = {{100.0, 100.0}, {500.0, 100.0}, {500.0, 400.0}};
  clickLeft(300, 104);
  EXPECT_FALSE(state.deckDrag.active);
  held.mods.shift = true;
  pressLeft(300, 104);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_TRUE(host.captured);
  move(310, 154);
  EXPECT_EQ(layout.levels[0].outline[0], (Vec2{110.0, 150.0}));
  EXPECT_EQ(layout.levels[0].outline[2], (Vec2{510.0, 450.0}));
  EXPECT_EQ(host.dirtyMarks, 1);
  releaseLeft(310, 154);
  EXPECT_FALSE(host.captured);
}

TEST_F(AnnotationMoves, UndoAfterADeckDragLeavesTheDeckWhereItIs) {
  layout.levels = {Level{}};
  layout.levels[0].outline = {{100.0, 100.0}, {500.0, 100.0}, {500.0, 400.0}};
  held.mods.shift = true;
  dragLeft(300, 100, 310, 150);
  Undo(layout);
  EXPECT_EQ(layout.levels[0].outline[0], (Vec2{110.0, 150.0}));
}

TEST_F(AnnotationMoves, ShiftWithCtrlOnADecksEdgePansInstead) {
  layout.levels = {Level{}};
  layout.levels[0].outline = {{100.0, 100.0}, {500.0, 100.0}, {500.0, 400.0}};
  held.mods = {.ctrl = true, .shift = true};
  pressLeft(300, 100);
  EXPECT_FALSE(state.deckDrag.active);
  EXPECT_TRUE(state.buttonPan.active);
}

TEST_F(AnnotationMoves, OfTwoLabelsUnderThePointerTheFirstInTheListIsTaken) {
  layLabel({100.0, 100.0});
  layLabel({105.0, 105.0});
  pressLeft(110, 110);
  EXPECT_TRUE(layout.labels[0].sel);
  EXPECT_FALSE(layout.labels[1].sel);
}

TEST_F(AnnotationMoves, ALabelIsSelectedBesideTrackAndMovesWithoutAnUndoStep) {
  const std::int32_t track = lay("24188", {600.0, 600.0, 0.0});
  select({track});
  layLabel({100.0, 100.0});
  layLabel({100.0, 300.0}).sel = true;
  pressLeft(110, 105);
  EXPECT_TRUE(layout.labels[0].sel);
  EXPECT_FALSE(layout.labels[1].sel);
  EXPECT_EQ(selected(), Ids{track});
  move(160, 125);
  EXPECT_EQ(layout.labels[0].x, 150.0);
  EXPECT_EQ(layout.labels[0].y, 120.0);
  EXPECT_EQ(host.dirtyMarks, 0);
  releaseLeft(160, 125);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_FALSE(host.captured);
}

TEST_F(AnnotationMoves, APressBesideAllLabelsDeselectsThemAndGoesOn) {
  const std::int32_t track = lay("24188", {600.0, 600.0, 0.0});
  layLabel({100.0, 100.0}).sel = true;
  pressLeft(650, 600);
  EXPECT_FALSE(layout.labels[0].sel);
  EXPECT_EQ(selected(), Ids{track});
}

}  // namespace
}  // namespace vantrel
