// Drawing polygons and the baseboard's outline.
#include "canvas/gestures/polygon_draft.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class PolygonDrafts : public EditingTest {
 protected:
  void SetUp() override {
    EditingTest::SetUp();
    layout.toolMode = kPolygonTool;
    layout.gridVisible = false;
  }
  void clickTriangle() {
    clickLeft(100, 100);
    clickLeft(300, 100);
    clickLeft(300, 250);
  }
};

const std::vector<Vec2> kTriangle = {{100.0, 100.0}, {300.0, 100.0}, {300.0, 250.0}};

TEST_F(PolygonDrafts, AClickNinePixelsFromTheFirstOfThreeVerticesCloses) {
  Level upper;
  upper.id = 6;
  upper.height = 50.0;
  layout.levels = {Level{}, upper};
  clickTriangle();
  EXPECT_TRUE(layout.undoHistory.empty());
  clickLeft(100, 109);
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].vertices, kTriangle);
  EXPECT_EQ(layout.shapes[0].level, 6);
  EXPECT_EQ(layout.shapes[0].r, 120);
  EXPECT_EQ(layout.shapes[0].a, 140);
  EXPECT_EQ(layout.shapes[0].height, 0.0);
  EXPECT_EQ(layout.toolMode, kNoTool);
  EXPECT_EQ(host.endedTools, std::vector<std::int32_t>{4});
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_FALSE(state.polygonDraft.active);
}

TEST_F(PolygonDrafts, AClickElevenPixelsAwayAddsAVertex) {
  clickTriangle();
  clickLeft(100, 111);
  EXPECT_EQ(state.polygonDraft.vertices.size(), 4u);
  EXPECT_TRUE(layout.shapes.empty());
}

TEST_F(PolygonDrafts, TheReachIsInPixelsAtAnyScale) {
  state.view.scale = 0.5;
  clickTriangle();
  clickLeft(100, 110);
  EXPECT_EQ(layout.shapes.size(), 1u);
}

TEST_F(PolygonDrafts, WithTwoVerticesAClickNearTheFirstAddsAThird) {
  clickLeft(100, 100);
  clickLeft(300, 100);
  clickLeft(100, 109);
  EXPECT_EQ(state.polygonDraft.vertices.size(), 3u);
  EXPECT_TRUE(layout.shapes.empty());
}

TEST_F(PolygonDrafts, EnterAndTheNumericPadsEnterCloseThreeVertices) {
  for (const int code : {WXK_RETURN, WXK_NUMPAD_ENTER}) {
    layout.toolMode = kPolygonTool;
    layout.shapes.clear();
    clickLeft(100, 100);
    clickLeft(300, 100);
    EXPECT_FALSE(key(code));
    clickLeft(300, 250);
    EXPECT_TRUE(key(code));
    ASSERT_EQ(layout.shapes.size(), 1u);
    EXPECT_EQ(layout.shapes[0].vertices, kTriangle);
  }
}

TEST_F(PolygonDrafts, BackspaceDownToNothingEndsTheDraftAndLeavesTheToolArmed) {
  clickLeft(100, 100);
  clickLeft(300, 100);
  EXPECT_TRUE(key(WXK_BACK));
  EXPECT_EQ(state.polygonDraft.vertices.size(), 1u);
  EXPECT_TRUE(key(WXK_BACK));
  EXPECT_FALSE(state.polygonDraft.active);
  EXPECT_EQ(layout.toolMode, kPolygonTool);
  EXPECT_TRUE(host.endedTools.empty());
  EXPECT_FALSE(key(WXK_BACK));
  clickLeft(500, 500);
  EXPECT_TRUE(state.polygonDraft.active);
  EXPECT_EQ(state.polygonDraft.vertices, (std::vector<Vec2>{{500.0, 500.0}}));
}

TEST_F(PolygonDrafts, BackspaceBelowThreeVerticesTakesTheClosingAway) {
  clickTriangle();
  move(102, 102);
  EXPECT_TRUE(state.polygonDraft.closeHover);
  key(WXK_BACK);
  EXPECT_FALSE(state.polygonDraft.closeHover);
}

TEST_F(PolygonDrafts, BeforeTheFirstVertexOnlyEscapeIsTaken) {
  for (const int code : {WXK_BACK, WXK_RETURN, WXK_NUMPAD_ENTER}) EXPECT_FALSE(key(code));
  EXPECT_TRUE(move(300, 300));
  EXPECT_EQ(host.cursor(), CanvasCursor::cross);
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_EQ(layout.toolMode, kNoTool);
}

TEST_F(PolygonDrafts, WithoutAVisibleLevelThePolygonStandsOnTheActiveOne) {
  Level hidden;
  hidden.id = 6;
  hidden.visible = false;
  layout.levels = {hidden};
  layout.activeLevel = 9;
  clickTriangle();
  key(WXK_RETURN);
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].level, 9);
}

TEST_F(PolygonDrafts, PutAwayInBetweenTheDraftIsHiddenAndGoesOnLater) {
  clickTriangle();
  const auto blueCalls = [this] {
    const std::unique_ptr<RecordingDC> dc = paint();
    return std::ranges::count(dc->calls(), Rgba{40, 80, 200, 255},
                              [](const DrawCall& call) { return call.pen.colour; });
  };
  EXPECT_GE(blueCalls(), 3);  // its two segments and the rubber one
  layout.toolMode = kNoTool;
  EXPECT_EQ(blueCalls(), 0);
  layout.toolMode = kPolygonTool;
  key(WXK_RETURN);
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].vertices, kTriangle);
}

TEST_F(PolygonDrafts, EscapeEndsDraftAndToolWithoutATrace) {
  clickTriangle();
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_FALSE(state.polygonDraft.active);
  EXPECT_EQ(layout.toolMode, kNoTool);
  EXPECT_EQ(host.endedTools, std::vector<std::int32_t>{4});
  EXPECT_TRUE(layout.shapes.empty());
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(PolygonDrafts, TheBaseboardTakesTheVerticesAndEmptiesTheStatusText) {
  layout.toolMode = kBaseboardTool;
  host.setStatus(kStatusMessage, "Click vertices");
  clickTriangle();
  key(WXK_RETURN);
  EXPECT_EQ(layout.baseboard, kTriangle);
  EXPECT_EQ(layout.lastShape.id, 5);
  EXPECT_TRUE(layout.shapes.empty());
  EXPECT_EQ(host.status(kStatusMessage), "");
  EXPECT_EQ(host.endedTools, std::vector<std::int32_t>{5});
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(host.dirtyMarks, 1);
}

TEST_F(PolygonDrafts, EscapeFromTheBaseboardKeepsTheOldOneAndEmptiesTheStatusText) {
  layout.baseboard = {{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}};
  const std::vector<Vec2> before = layout.baseboard;
  layout.toolMode = kBaseboardTool;
  host.setStatus(kStatusMessage, "Click vertices");
  clickTriangle();
  key(WXK_ESCAPE);
  EXPECT_EQ(layout.baseboard, before);
  EXPECT_EQ(host.status(kStatusMessage), "");
}

TEST_F(PolygonDrafts, TheDraftIsDrawnInOrder) {
  clickTriangle();
  move(300, 350);
  const std::unique_ptr<RecordingDC> dc = paint();
  const DrawCall* tail = &dc->calls()[dc->calls().size() - 8];
  const Rgba blue{40, 80, 200, 255};
  const Rgba green{40, 150, 60, 255};
  EXPECT_EQ(tail[0].points, (std::vector<wxPoint>{{100, 100}, {300, 100}}));
  EXPECT_EQ(tail[0].pen, (RecordedPen{blue, 2, wxPENSTYLE_SOLID}));
  EXPECT_EQ(tail[1].points, (std::vector<wxPoint>{{300, 100}, {300, 250}}));
  EXPECT_EQ(tail[2].points, (std::vector<wxPoint>{{300, 250}, {300, 350}}));
  EXPECT_EQ(tail[2].pen, (RecordedPen{blue, 1, wxPENSTYLE_LONG_DASH}));
  // "100 mm" is 60 wide and 20 high in the recorder.
  EXPECT_EQ(tail[3].box, wxRect(310, 322, 68, 24));
  EXPECT_EQ(tail[3].brush.colour, (Rgba{255, 255, 255, 200}));
  EXPECT_EQ(tail[3].pen.colour, (Rgba{200, 200, 200, 255}));
  EXPECT_EQ(tail[4].text, "100 mm");
  EXPECT_EQ(tail[4].points[0], wxPoint(314, 324));
  EXPECT_EQ(tail[4].textForeground, (Rgba{20, 20, 60, 255}));
  EXPECT_EQ(tail[5].box, wxRect(94, 94, 12, 12));
  EXPECT_EQ(tail[5].brush.colour, green);
  EXPECT_EQ(tail[5].pen.colour, (Rgba{20, 20, 20, 255}));
  EXPECT_EQ(tail[6].box, wxRect(296, 96, 8, 8));
  EXPECT_EQ(tail[6].brush.colour, blue);
}

TEST_F(PolygonDrafts, NearTheFirstVertexTheClosingSegmentAndItsRingShow) {
  clickTriangle();
  move(103, 104);
  const std::unique_ptr<RecordingDC> dc = paint();
  const DrawCall* tail = &dc->calls()[dc->calls().size() - 10];
  const Rgba green{40, 150, 60, 255};
  EXPECT_EQ(tail[2].points, (std::vector<wxPoint>{{300, 250}, {100, 100}}));
  EXPECT_EQ(tail[2].pen, (RecordedPen{green, 2, wxPENSTYLE_LONG_DASH}));
  // 200 and 150 make 250; the tag stays at the pointer.
  EXPECT_EQ(tail[4].text, "250 mm");
  EXPECT_EQ(tail[4].points[0], wxPoint(117, 78));
  EXPECT_EQ(tail[8].box, wxRect(88, 88, 24, 24));
  EXPECT_EQ(tail[8].pen, (RecordedPen{green, 3, wxPENSTYLE_SOLID}));
  EXPECT_EQ(tail[8].brush.style, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_EQ(tail[9].text, "Close");
  EXPECT_EQ(tail[9].points[0], wxPoint(116, 92));
  EXPECT_EQ(tail[9].textForeground, green);
}

// 16 right of and 8 above a first vertex that lies elsewhere across than down.
TEST_F(PolygonDrafts, TheWordCloseStandsBesideTheFirstVertex) {
  clickLeft(210, 120);
  clickLeft(400, 120);
  clickLeft(400, 300);
  move(213, 124);
  const std::unique_ptr<RecordingDC> dc = paint();
  const DrawCall* tail = &dc->calls()[dc->calls().size() - 10];
  EXPECT_EQ(tail[8].box, wxRect(198, 108, 24, 24));
  EXPECT_EQ(tail[9].text, "Close");
  EXPECT_EQ(tail[9].points[0], wxPoint(226, 112));
}

}  // namespace
}  // namespace vantrel
