#include "canvas/event_order.h"

#include <gtest/gtest.h>

#include "canvas/gestures/palette_drag.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

class EventOrder : public CanvasTest {};

TEST_F(EventOrder, ALeftPressTakesTheFocusWhoeverTakesThePress) {
  lay("24188", {0.0, 0.0, 0.0});
  const std::vector<Piece> before = layout.pieces;
  EXPECT_TRUE(clickLeft(500, 500));
  EXPECT_EQ(host.focusTaken, 1);
  layout.toolMode = kMeasureTool;
  EXPECT_TRUE(clickLeft(500, 500));
  EXPECT_EQ(host.focusTaken, 2);
  EXPECT_EQ(layout.pieces, before);
}

TEST_F(EventOrder, EveryPressBringsTheKeysToTheCanvas) {
  clickLeft(500, 500);
  EXPECT_EQ(host.focusTaken, 1);
  pressMiddle(500, 500);
  releaseMiddle(500, 500);
  EXPECT_EQ(host.focusTaken, 2);
  pressRight(500, 500);
  EXPECT_EQ(host.focusTaken, 3);
}

TEST_F(EventOrder, AnyReleaseGivesTheMouseBack) {
  for (const auto release : {onLeftRelease, onMiddleRelease, onRightRelease}) {
    host.captured = true;
    EXPECT_FALSE(release(context, at(10, 10)));
    EXPECT_FALSE(host.captured);
  }
}

TEST_F(EventOrder, AnArmedClickToolKeepsTheCrossAndStopsEveryMotionAndPress) {
  beginPieceDrag(context, "24188");
  const Vec2 before = state.paletteDrag.at;
  for (const std::int32_t mode : {kMeasureTool, kPolygonTool, kBaseboardTool}) {
    layout.toolMode = mode;
    state.polygonDraft = {};
    state.measureDraft = {};
    host.cursors.clear();
    EXPECT_TRUE(move(500, 500));
    EXPECT_EQ(host.cursor(), CanvasCursor::cross);
    EXPECT_NE(host.status(kStatusPosition), "");
    EXPECT_TRUE(clickLeft(500, 500));
    EXPECT_EQ(state.paletteDrag.at, before);
    EXPECT_TRUE(layout.pieces.empty());
  }
  layout.toolMode = kNoTool;
  EXPECT_TRUE(clickLeft(500, 500));
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(EventOrder, KeysThatNothingTakesAreLeftToTheRest) {
  EXPECT_FALSE(key('R'));
  EXPECT_FALSE(key(WXK_RETURN));
  EXPECT_FALSE(type('a'));
}

TEST_F(EventOrder, ThePaintGoesFromContentsOverRulersToWhatHangsAtThePointer) {
  layout.gridVisible = false;
  state.view = {.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};
  lay("24188", {5.0, 5.0, 0.0});
  beginPieceDrag(context, "24188");
  move(300, 200);
  const std::unique_ptr<RecordingDC> dc = paint();
  const std::vector<DrawCall>& calls = dc->calls();
  const std::size_t none = calls.size();
  std::size_t lastBed = none;
  std::size_t firstBand = none;
  std::size_t lastBand = none;
  std::size_t firstGhost = none;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    // The bed of the piece that lies in the plan.
    if (calls[i].brush == SolidBrush({210, 210, 205})) lastBed = i;
    if (calls[i].brush == SolidBrush({240, 240, 240})) {
      if (firstBand == none) firstBand = i;
      lastBand = i;
    }
    // The ghost's green bed.
    if (calls[i].brush == SolidBrush({200, 225, 200}) && firstGhost == none) firstGhost = i;
  }
  ASSERT_NE(lastBed, none);
  ASSERT_NE(lastBand, none);
  ASSERT_NE(firstGhost, none);
  EXPECT_LT(lastBed, firstBand);
  EXPECT_LT(lastBand, firstGhost);
}

TEST_F(EventOrder, TheHelixPreviewIsTwoRingsAndACrossAtItsMiddle) {
  const std::unique_ptr<RecordingDC> quiet = paint();
  EXPECT_EQ(quiet->circles().size(), 0u);
  state.view = {.scale = 0.5, .offsetX = 60.0, .offsetY = 60.0};
  state.helixPlacement = {.active = true, .kit = "proses_2_5_r1r2", .at = {1000.0, 400.0}};
  const std::unique_ptr<RecordingDC> dc = paint();
  const std::vector<DrawCall> rings = dc->circles();
  ASSERT_EQ(rings.size(), 2u);
  // (1000, 400) shows at (560, 260); 360 and 437.5 mm are 180 and 218.75 pixels.
  const RecordedPen dashed{.colour = {0, 150, 200}, .width = 2, .style = wxPENSTYLE_LONG_DASH};
  for (const DrawCall& ring : rings) {
    EXPECT_EQ(ring.centre(), wxPoint(560, 260));
    EXPECT_EQ(ring.pen, dashed);
    EXPECT_EQ(ring.brush.style, wxBRUSHSTYLE_TRANSPARENT);
  }
  EXPECT_EQ(rings[0].circleRadius(), 180);
  EXPECT_EQ(rings[1].circleRadius(), 218);
  std::vector<std::vector<wxPoint>> cross;
  for (const DrawCall& line : dc->callsOf(DrawOp::line))
    if (line.pen == dashed) cross.push_back(line.points);
  EXPECT_EQ(cross, (std::vector<std::vector<wxPoint>>{{{552, 260}, {568, 260}},
                                                      {{560, 252}, {560, 268}}}));
}

}  // namespace
}  // namespace vantrel
