#include "canvas/gestures/panning.h"

#include <gtest/gtest.h>

#include "canvas/gestures/palette_drag.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

class Panning : public CanvasTest {
 protected:
  void expectOffsets(double x, double y) {
    EXPECT_EQ(state.view.offsetX, x);
    EXPECT_EQ(state.view.offsetY, y);
  }
};

TEST_F(Panning, TheMiddleButtonMovedBy3PixelsAndReleasedLeavesTheOffsets) {
  EXPECT_TRUE(pressMiddle(500, 300));
  EXPECT_TRUE(move(503, 303));
  EXPECT_TRUE(releaseMiddle(503, 303));
  expectOffsets(60.0, 60.0);
  EXPECT_EQ(host.repaints, 0);
}

TEST_F(Panning, TheMiddleButtonPansFrom4PixelsOnInEitherAxis) {
  pressMiddle(500, 300);
  move(500, 304);
  expectOffsets(60.0, 64.0);
  move(450, 280);
  expectOffsets(10.0, 40.0);
  EXPECT_EQ(host.repaints, 2);
}

TEST_F(Panning, OnceItHasBegunAPanFollowsBackToItsStart) {
  pressMiddle(500, 300);
  move(520, 300);
  move(501, 300);
  expectOffsets(61.0, 60.0);
  move(500, 300);
  expectOffsets(60.0, 60.0);
}

TEST_F(Panning, APanTakesTheMouseAndShowsTheHandUntilItsRelease) {
  pressMiddle(500, 300);
  EXPECT_TRUE(host.captured);
  EXPECT_EQ(host.cursor(), CanvasCursor::hand);
  move(600, 300);
  releaseMiddle(600, 300);
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  EXPECT_FALSE(move(700, 300));
  expectOffsets(160.0, 60.0);
}

TEST_F(Panning, ALeftReleaseEndsTheMiddleButtonsPanToo) {
  pressMiddle(500, 300);
  move(510, 300);
  EXPECT_TRUE(releaseLeft(510, 300));
  EXPECT_FALSE(state.buttonPan.active);
  EXPECT_FALSE(host.captured);
}

TEST_F(Panning, ARightReleaseOnlyGivesTheMouseBack) {
  pressMiddle(500, 300);
  EXPECT_FALSE(onRightRelease(context, at(500, 300)));
  EXPECT_FALSE(host.captured);
  move(520, 300);
  expectOffsets(80.0, 60.0);
  // The release of the middle button came while the mouse was elsewhere.
  held.middleDown = false;
  move(800, 300);
  expectOffsets(80.0, 60.0);
  EXPECT_FALSE(state.buttonPan.active);
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
}

TEST_F(Panning, AMouseTakenAwayEndsThePan) {
  pressMiddle(500, 300);
  move(520, 300);
  host.captured = false;
  onCaptureLost(context);
  held.middleDown = false;
  EXPECT_FALSE(state.buttonPan.active);
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  move(900, 300);
  expectOffsets(80.0, 60.0);
}

TEST_F(Panning, SpaceWithTheLeftButtonPansWithoutAThreshold) {
  pressLeft(500, 300);
  held.spaceDown = true;
  EXPECT_TRUE(move(500, 301));  // where it starts
  EXPECT_EQ(host.cursor(), CanvasCursor::hand);
  EXPECT_EQ(host.captures, 1);  // the press had begun a rubber band
  expectOffsets(60.0, 60.0);
  move(501, 301);
  expectOffsets(61.0, 60.0);
  held.spaceDown = false;
  move(502, 311);
  expectOffsets(62.0, 70.0);
  EXPECT_TRUE(releaseLeft(502, 311));
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  EXPECT_FALSE(state.spacePan.active);
}

TEST_F(Panning, ASpacePanEndsAtTheNextMotionWithoutTheButton) {
  pressLeft(500, 300);
  held.spaceDown = true;
  move(500, 300);
  held.leftDown = false;
  EXPECT_FALSE(move(520, 300));
  EXPECT_FALSE(state.spacePan.active);
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  expectOffsets(60.0, 60.0);
}

TEST_F(Panning, SpaceDoesNotPanWithoutTheButtonNorTheButtonWithoutSpace) {
  held.spaceDown = true;
  EXPECT_FALSE(move(500, 300));
  EXPECT_FALSE(move(520, 300));
  held.spaceDown = false;
  pressLeft(500, 300);
  move(540, 300);
  expectOffsets(60.0, 60.0);
}

TEST_F(Panning, SpaceDoesNotPanWhileAPieceHangsAtThePointer) {
  beginPieceDrag(context, "24188");
  held.leftDown = true;
  held.spaceDown = true;
  move(500, 300);
  move(540, 300);
  expectOffsets(60.0, 60.0);
  EXPECT_FALSE(state.spacePan.active);
}

TEST_F(Panning, TheMiddleButtonPansUnderAPieceThatHangsAtThePointer) {
  beginPieceDrag(context, "24188");
  move(500, 300);
  const Vec2 piece = state.paletteDrag.at;
  pressMiddle(500, 300);
  move(600, 300);
  expectOffsets(160.0, 60.0);
  EXPECT_EQ(state.paletteDrag.at, piece);
  releaseMiddle(600, 300);
  EXPECT_TRUE(state.paletteDrag.active);
}

TEST_F(Panning, SpaceStartsNothingWhileTheMiddleButtonPans) {
  pressMiddle(500, 300);
  held.leftDown = true;
  held.spaceDown = true;
  EXPECT_TRUE(move(510, 300));
  EXPECT_FALSE(state.spacePan.active);
  expectOffsets(70.0, 60.0);
}

TEST_F(Panning, NeitherPanTouchesTheDocument) {
  lay("24188", {0.0, 0.0, 0.0});
  const std::vector<Piece> before = layout.pieces;
  pressMiddle(500, 300);
  move(600, 400);
  releaseMiddle(600, 400);
  pressLeft(500, 300);
  held.spaceDown = true;
  move(500, 300);
  move(600, 300);
  releaseLeft(600, 300);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
  expectOffsets(260.0, 160.0);
}

}  // namespace
}  // namespace vantrel
