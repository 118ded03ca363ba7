// What presses on pieces, scenery and empty canvas select.
#include "canvas/gestures/selecting.h"

#include <gtest/gtest.h>

#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class Selecting : public EditingTest {};

TEST_F(Selecting, APlainClickSelectsOnePieceAndTellsThePanel) {
  const std::int32_t a = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t b = lay("24188", {100.0, 300.0, 0.0});
  clickLeft(150, 100);
  EXPECT_EQ(selected(), Ids{a});
  EXPECT_EQ(host.selectionChanges, 1);
  clickLeft(150, 300);
  EXPECT_EQ(selected(), Ids{b});
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.dirtyMarks, 0);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(Selecting, WhereTwoPiecesCrossOnTwoLevelsThePressTakesTheHigherDeck) {
  Level upper;
  upper.id = 2;
  upper.height = 80.0;
  layout.levels = {Level{}, upper};
  // The origin of the lower one is right under the pointer.
  const std::int32_t high = lay("24188", {200.0, 100.0, 90.0}, 2);
  lay("24188", {195.0, 200.0, 0.0}, 1);
  clickLeft(200, 200);
  EXPECT_EQ(selected(), Ids{high});
}

TEST_F(Selecting, OfOverlappingPiecesTheOneWithTheNearerOriginIsTaken) {
  const std::int32_t near = lay("24188", {140.0, 100.0, 0.0});
  lay("24188", {100.0, 100.0, 0.0});
  clickLeft(150, 100);
  EXPECT_EQ(selected(), Ids{near});
}

TEST_F(Selecting, PiecesOfAHiddenLevelCantBeClicked) {
  Level hidden;
  hidden.id = 2;
  hidden.visible = false;
  layout.levels = {Level{}, hidden};
  lay("24188", {100.0, 100.0, 0.0}, 2);
  clickLeft(150, 100);
  EXPECT_EQ(selected(), Ids{});
}

TEST_F(Selecting, AnyClickOnAPieceGivesItAllItsSlots) {
  lay("24188", {100.0, 100.0, 0.0});
  layout.pieces[0].joints.clear();
  clickLeft(150, 100);
  EXPECT_EQ(layout.pieces[0].joints.size(), 2u);
}

TEST_F(Selecting, CtrlTurnsOnePieceOverAndShiftAddsTheWayThere) {
  const Ids chain = layChain(4, 0.0, 100.0);
  const std::int32_t apart = lay("24188", {0.0, 300.0, 0.0});
  clickLeft(50, 100);
  held.mods.shift = true;
  clickLeft(600, 100);
  EXPECT_EQ(selected(), chain);
  held.mods = {.ctrl = true};
  clickLeft(250, 100);
  EXPECT_EQ(selected(), (Ids{chain[0], chain[2], chain[3]}));
  // No way leads there: the piece is simply added.
  held.mods = {.shift = true};
  clickLeft(50, 300);
  EXPECT_EQ(selected(), (Ids{chain[0], chain[2], chain[3], apart}));
}

TEST_F(Selecting, ShiftWithCtrlFollowsShiftsRule) {
  const Ids chain = layChain(3, 0.0, 100.0);
  clickLeft(50, 100);
  held.mods = {.ctrl = true, .shift = true};
  clickLeft(450, 100);
  EXPECT_EQ(selected(), chain);
}

TEST_F(Selecting, AClickOnOneStubOrOnARingSelectsAllFourStubs) {
  const Helix helix = layHelix({600.0, 600.0});
  const Ids stubs{helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2};
  clickLeft(650, 960);
  EXPECT_EQ(selected(), stubs);
  clickLeft(5000, 5000);
  EXPECT_EQ(selected(), Ids{});
  // 360 mm to the left of the centre lies the inner ring, and no stub.
  clickLeft(240, 600);
  EXPECT_EQ(selected(), stubs);
}

TEST_F(Selecting, ACtrlClickThatDeselectsAStubIsUndoneByTheOthers) {
  const Helix helix = layHelix({600.0, 600.0});
  clickLeft(650, 960);
  held.mods.ctrl = true;
  clickLeft(650, 960);
  EXPECT_EQ(selected().size(), 4u);
}

TEST_F(Selecting, AHelixWhoseStubIsGoneIsNotPickedUpByItsRings) {
  layHelix({600.0, 600.0}).bottomR1 = 9999;
  clickLeft(240, 600);
  EXPECT_EQ(selected(), Ids{});
}

TEST_F(Selecting, APressOnASelectedPieceKeepsAMultiSelectionAlsoWhenItIsReleasedThere) {
  const Ids chain = layChain(3, 0.0, 100.0);
  select({chain[0], chain[2]});
  pressLeft(50, 100);
  EXPECT_EQ(selected(), (Ids{chain[0], chain[2]}));
  releaseLeft(50, 100);
  EXPECT_EQ(selected(), (Ids{chain[0], chain[2]}));
}

TEST_F(Selecting, APlainClickOnASelectedStubStillCompletesItsHelix) {
  const Helix helix = layHelix({600.0, 600.0});
  select({helix.topR1});
  clickLeft(650, 960);
  EXPECT_EQ(selected().size(), 4u);
}

TEST_F(Selecting, AClickOnSceneryTakesTheSelectionAndShiftTurnsItOver) {
  const std::int32_t track = lay("24188", {0.0, 500.0, 0.0});
  const std::int32_t a = layScenery("platform", {300.0, 100.0, 0.0});
  const std::int32_t b = layScenery("platform", {300.0, 300.0, 0.0});
  select({track});
  clickLeft(300, 100);
  EXPECT_EQ(selected(), Ids{a});
  held.mods.shift = true;
  clickLeft(300, 300);
  EXPECT_EQ(selected(), (Ids{a, b}));
  clickLeft(300, 100);
  EXPECT_EQ(selected(), Ids{b});
  // Ctrl has no meaning here: the click selects b alone, and it stays selected.
  held.mods = {.ctrl = true};
  clickLeft(300, 300);
  EXPECT_EQ(selected(), Ids{b});
}

TEST_F(Selecting, APressOnEmptyCanvasClearsTheSelectionAndTheClipboard) {
  const std::int32_t id = lay("24188", {0.0, 100.0, 0.0});
  select({id});
  state.clipboard.pieces = layout.pieces;
  pressLeft(500, 500);
  EXPECT_EQ(selected(), Ids{});
  EXPECT_TRUE(state.clipboard.empty());
  EXPECT_TRUE(state.rubberBand.active);
  EXPECT_TRUE(host.captured);
  EXPECT_TRUE(host.canvasClicks.empty());
  releaseLeft(500, 500);
  expectNextClickWorks();
}

TEST_F(Selecting, CtrlOnEmptyCanvasPansAndTellsWhereTheNextLabelGoes) {
  state.view = {.scale = 2.0, .offsetX = 10.0, .offsetY = 20.0};
  held.mods.ctrl = true;
  pressLeft(500, 600);
  ASSERT_EQ(host.canvasClicks.size(), 1u);
  EXPECT_EQ(host.canvasClicks[0], (Vec2{245.0, 290.0}));
  EXPECT_EQ(host.cursor(), CanvasCursor::hand);
  move(503, 600);
  EXPECT_EQ(state.view.offsetX, 10.0);
  move(504, 610);
  EXPECT_EQ(state.view.offsetX, 14.0);
  EXPECT_EQ(state.view.offsetY, 30.0);
  releaseLeft(504, 610);
  EXPECT_FALSE(host.captured);
  move(600, 600);
  EXPECT_EQ(state.view.offsetX, 14.0);
}

TEST_F(Selecting, TheFourOrderedHitsAreLabelPieceDeckScenery) {
  Label label;
  label.id = layout.nextId++;
  label.x = 100.0;
  label.y = 100.0;
  layout.labels = {label};
  const std::int32_t track = lay("24188", {90.0, 110.0, 0.0});
  const std::int32_t house = layScenery("platform", {150.0, 110.0, 0.0});
  layout.levels = {Level{}};
  layout.levels[0].outline = {{0.0, 110.0}, {900.0, 110.0}, {900.0, 900.0}};
  held.mods.shift = true;

  pressLeft(110, 110);
  EXPECT_TRUE(state.labelDrag.active);
  EXPECT_EQ(selected(), Ids{});
  releaseLeft(110, 110);
  layout.labels.clear();

  pressLeft(110, 110);
  EXPECT_EQ(selected(), Ids{track});
  releaseLeft(110, 110);
  layout.pieces.clear();

  pressLeft(110, 110);
  EXPECT_TRUE(state.deckDrag.active);
  releaseLeft(110, 110);
  layout.levels[0].outline.clear();

  pressLeft(110, 110);
  EXPECT_EQ(selected(), Ids{house});
  EXPECT_TRUE(state.selectionDrag.active);
}

TEST_F(Selecting, TheClickAfterACloneIsSwallowedOnce) {
  lay("24188", {100.0, 100.0, 0.0});
  state.swallowNextClick = true;
  clickLeft(150, 100);
  EXPECT_EQ(selected(), Ids{});
  clickLeft(150, 100);
  EXPECT_EQ(selected().size(), 1u);
}

TEST_F(Selecting, EscapeClearsTheSelection) {
  const std::int32_t id = lay("24188", {0.0, 100.0, 0.0});
  select({id});
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_EQ(selected(), Ids{});
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.repaints, 1);
}

TEST_F(Selecting, SpaceTurnsARubberBandIntoAPan) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  pressLeft(50, 50);
  move(400, 400);
  EXPECT_TRUE(state.rubberBand.active);
  held.spaceDown = true;
  move(410, 400);
  EXPECT_FALSE(state.rubberBand.active);
  EXPECT_EQ(host.cursor(), CanvasCursor::hand);
  move(420, 405);
  EXPECT_EQ(state.view.offsetX, 10.0);
  EXPECT_EQ(state.view.offsetY, 5.0);
  releaseLeft(420, 405);
  EXPECT_EQ(selected(), Ids{});
  EXPECT_FALSE(piece(id).sel);
}

TEST_F(Selecting, SpaceDoesNotInterruptADragOfTheSelection) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  pressLeft(150, 100);
  move(250, 100);
  held.spaceDown = true;
  move(350, 100);
  EXPECT_FALSE(state.spacePan.active);
  EXPECT_EQ(piece(id).x, 300.0);
}

class Banding : public EditingTest {};

TEST_F(Banding, ABandOfFourByAHundredPixelsSelectsAndOneOfFourByFourDoesNot) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  dragLeft(150, 50, 154, 150);
  EXPECT_EQ(selected(), Ids{id});
  // At a tenth of a pixel to the millimetre the line lies at y 10; 3 pixels are 30 mm, beside it.
  state.view.scale = 0.1;
  dragLeft(15, 13, 19, 9);
  EXPECT_EQ(selected(), Ids{});
  dragLeft(15, 13, 20, 9);
  EXPECT_EQ(selected(), Ids{id});
  expectNextClickWorks();
}

TEST_F(Banding, TheBandTouchesTheCentreLineOfTrackAndTheMiddleOfScenery) {
  const std::int32_t track = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t house = layScenery("platform", {400.0, 300.0, 0.0});
  // Below the centre line, although over the ballast.
  dragLeft(50, 103, 300, 200);
  EXPECT_EQ(selected(), Ids{});
  dragLeft(900, 700, 90, 95);
  EXPECT_EQ(selected(), (Ids{track, house}));
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(Banding, ABandOverOneStubSelectsTheHelixAndEmptiesTheClipboard) {
  layHelix({600.0, 600.0});
  pressLeft(650, 900);
  move(700, 1000);
  state.clipboard.pieces = layout.pieces;
  releaseLeft(700, 1000);
  EXPECT_EQ(selected().size(), 4u);
  EXPECT_TRUE(state.clipboard.empty());
}

TEST_F(Banding, TheBandIsDrawnDotted) {
  layout.gridVisible = false;
  pressLeft(300, 250);
  move(100, 150);
  const std::unique_ptr<RecordingDC> dc = paint();
  const DrawCall& band = dc->calls().back();
  EXPECT_EQ(band.op, DrawOp::rectangle);
  EXPECT_EQ(band.box, wxRect(100, 150, 200, 100));
  EXPECT_EQ(band.pen.colour, (Rgba{0, 120, 215, 255}));
  EXPECT_EQ(band.pen.style, wxPENSTYLE_DOT);
  EXPECT_EQ(band.brush.style, wxBRUSHSTYLE_TRANSPARENT);
  releaseLeft(100, 150);
  EXPECT_NE(paint()->calls().back().op, DrawOp::rectangle);
}

}  // namespace
}  // namespace vantrel
