// The handles of the single selected scenery item.
#include "canvas/gestures/scale_handles.h"

#include <gtest/gtest.h>

#include <cmath>

#include "canvas/gestures/scenery_drag.h"
#include "catalog/scenery_catalog.h"
#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class ScaleHandles : public EditingTest {
 protected:
  double width = 0.0;
  double depth = 0.0;
  // A platform around (500, 400), selected.
  void SetUp() override {
    EditingTest::SetUp();
    const SceneryDef* const def = findScenery("platform");
    ASSERT_NE(def, nullptr);
    ASSERT_EQ(def->category, 0);
    width = def->width;
    depth = def->depth;
    layScenery("platform", {500.0, 400.0, 0.0});
    layout.scenery[0].sel = true;
  }
  SceneryItem& item() { return layout.scenery[0]; }
  int right() const { return static_cast<int>(500.0 + width / 2.0); }
  int left() const { return static_cast<int>(500.0 - width / 2.0); }
  int bottom() const { return static_cast<int>(400.0 + depth / 2.0); }
  int top() const { return static_cast<int>(400.0 - depth / 2.0); }
};

TEST_F(ScaleHandles, TheCursorTellsOverWhichHandleThePointerIs) {
  const std::pair<DevicePoint, CanvasCursor> expected[] = {
      {{left(), top()}, CanvasCursor::sizeNwse},     {{500, top()}, CanvasCursor::sizeNs},
      {{right(), top()}, CanvasCursor::sizeNesw},    {{right(), 400}, CanvasCursor::sizeWe},
      {{right(), bottom()}, CanvasCursor::sizeNwse}, {{500, bottom()}, CanvasCursor::sizeNs},
      {{left(), bottom()}, CanvasCursor::sizeNesw},  {{left(), 400}, CanvasCursor::sizeWe}};
  for (const auto& [point, cursor] : expected) {
    move(point.x, point.y);
    EXPECT_EQ(host.cursor(), cursor);
  }
  move(900, 900);
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
}

TEST_F(ScaleHandles, AfterAPanFromAHandleTheCursorIsTheHandlesAgain) {
  move(right(), 400);
  pressMiddle(right(), 400);
  EXPECT_EQ(host.cursor(), CanvasCursor::hand);
  releaseMiddle(right(), 400);
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  move(right(), 401);
  EXPECT_EQ(host.cursor(), CanvasCursor::sizeWe);
}

TEST_F(ScaleHandles, WithAButtonOrSomethingAtThePointerTheCursorStays) {
  held.middleDown = true;
  move(right(), 400);
  EXPECT_TRUE(host.cursors.empty());
  held.middleDown = false;
  beginSceneryDrag(context, "platform");
  move(right(), 400);
  EXPECT_TRUE(host.cursors.empty());
}

TEST_F(ScaleHandles, AnEdgeHandleChangesItsAxisAndTheOppositeEdgeStays) {
  pressLeft(right(), 400);
  EXPECT_TRUE(host.captured);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  // 230 wide from 385 to 615. From the left edge to 715 it is 330: 330 / 230 = 1.4347826 times as
  // wide, with its middle at 385 + 165.
  move(right() + 100, 777);
  EXPECT_NEAR(item().scalex, 1.4347826, 1e-6);
  EXPECT_EQ(item().scaley, 1.0);
  EXPECT_NEAR(item().x, 550.0, 1e-9);
  EXPECT_NEAR(item().y, 400.0, 1e-9);
  releaseLeft(right() + 100, 777);
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.dirtyMarks, 2);
  EXPECT_FALSE(state.sceneryResize.active);
}

TEST_F(ScaleHandles, ACornerOfATurnedItemChangesBothAxesInItsOwnFrame) {
  item().heading = 90.0;
  // 230 by 60. Handle 4 (both signs positive), at (115, 30) from the middle, is turned to
  // (-30, 115): it lies at (470, 515), and the fixed corner at (530, 285).
  pressLeft(470, 515);
  EXPECT_EQ(state.sceneryResize.handle, 4);
  // 300 down is its width, 50 to the left its depth: 300 / 230 and 50 / 60. The new middle lies 150
  // down and 25 to the left of the fixed corner.
  move(480, 585);
  EXPECT_NEAR(item().scalex, 1.3043478, 1e-6);
  EXPECT_NEAR(item().scaley, 0.8333333, 1e-6);
  EXPECT_NEAR(item().x, 505.0, 1e-9);
  EXPECT_NEAR(item().y, 435.0, 1e-9);
}

TEST_F(ScaleHandles, AnItemStopsShrinkingAtFiveMillimetres) {
  pressLeft(right(), bottom());
  move(left() + 1, top() + 1);
  EXPECT_NEAR(item().scalex * width, 5.0, 1e-9);
  EXPECT_NEAR(item().scaley * depth, 5.0, 1e-9);
  // The fixed corner at (385, 370) stays: the middle lies 2.5 to the right of it and below.
  EXPECT_NEAR(item().x, 387.5, 1e-9);
  EXPECT_NEAR(item().y, 372.5, 1e-9);
  // At exactly 5 and at 6 it is as large as it is pulled.
  move(left() + 5, top() + 6);
  EXPECT_NEAR(item().scalex * width, 5.0, 1e-9);
  EXPECT_NEAR(item().scaley * depth, 6.0, 1e-9);
}

TEST_F(ScaleHandles, PulledPastTheFixedCornerAnItemGrowsAgainOnItsOwnSideOfIt) {
  pressLeft(right(), bottom());
  // 46 to the left of the fixed corner at (385, 370) and 30 above it: 46 / 230 and 30 / 60.
  move(339, 340);
  EXPECT_NEAR(item().scalex, 0.2, 1e-9);
  EXPECT_NEAR(item().scaley, 0.5, 1e-9);
  EXPECT_NEAR(item().x, 408.0, 1e-9);
  EXPECT_NEAR(item().y, 385.0, 1e-9);
}

TEST_F(ScaleHandles, APressTakesAnUndoStepEvenIfThePointerDoesNotMove) {
  clickLeft(left(), top());
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(item().scalex, 1.0);
  EXPECT_EQ(item().pose(), (Pose{500.0, 400.0, 0.0}));
}

TEST_F(ScaleHandles, WithAltTheItemIsTurnedInstead) {
  held.mods.alt = true;
  pressLeft(right(), 400);
  EXPECT_FALSE(state.sceneryResize.active);
  EXPECT_TRUE(state.altRotate.active);
}

TEST_F(ScaleHandles, WhenTheItemVanishesTheGestureEndsAndGivesTheMouseBack) {
  pressLeft(right(), 400);
  layout.scenery.clear();
  move(right() + 50, 400);
  EXPECT_FALSE(state.sceneryResize.active);
  EXPECT_FALSE(host.captured);
}

TEST_F(ScaleHandles, EachHandlePullsItsOwnSidesAndTheOppositeOneStays) {
  // 230 by 60 around (500, 400): pulled out by 46 to the side and by 30 up or down, the factors
  // become 276 / 230 = 1.2 and 90 / 60 = 1.5, and the middle moves by 23 and by 15.
  struct Pull {
    DevicePoint from;
    DevicePoint to;
    Vec2 factors;
    Vec2 middle;
  };
  const Pull pulls[] = {{{385, 370}, {339, 340}, {1.2, 1.5}, {477, 385}},
                        {{500, 370}, {454, 340}, {1.0, 1.5}, {500, 385}},
                        {{615, 370}, {661, 340}, {1.2, 1.5}, {523, 385}},
                        {{615, 400}, {661, 370}, {1.2, 1.0}, {523, 400}},
                        {{615, 430}, {661, 460}, {1.2, 1.5}, {523, 415}},
                        {{500, 430}, {546, 460}, {1.0, 1.5}, {500, 415}},
                        {{385, 430}, {339, 460}, {1.2, 1.5}, {477, 415}},
                        {{385, 400}, {339, 430}, {1.2, 1.0}, {477, 400}}};
  for (const Pull& pull : pulls) {
    dragLeft(pull.from.x, pull.from.y, pull.to.x, pull.to.y);
    EXPECT_NEAR(item().scalex, pull.factors.x, 1e-9);
    EXPECT_NEAR(item().scaley, pull.factors.y, 1e-9);
    EXPECT_NEAR(item().x, pull.middle.x, 1e-9);
    EXPECT_NEAR(item().y, pull.middle.y, 1e-9);
    Undo(layout);
    EXPECT_EQ(item().x, 500.0);
  }
}

TEST_F(ScaleHandles, ItemsOfAnotherCategoryHaveNone) {
  layout.gridVisible = false;
  layout.scenery.clear();
  layScenery("car", {500.0, 400.0, 0.0});
  item().sel = true;
  const SceneryDef& car = *findScenery("car");
  const std::unique_ptr<RecordingDC> dc = paint();
  EXPECT_GT(dc->calls().size(), 1u) << "the item itself";
  for (const DrawCall& call : dc->calls()) EXPECT_NE(call.pen.colour, (Rgba{40, 90, 200, 255}));
  pressLeft(static_cast<int>(500.0 + car.width / 2.0), 400);
  EXPECT_FALSE(state.sceneryResize.active);
}

TEST_F(ScaleHandles, SeveralItemsHaveNone) {
  layScenery("platform", {500.0, 900.0, 0.0});
  layout.scenery[1].sel = true;
  pressLeft(right(), 400);
  EXPECT_FALSE(state.sceneryResize.active);
}

TEST_F(ScaleHandles, CornersAreDrawnAsSquaresAndEdgesAsCircles) {
  layout.gridVisible = false;
  const std::unique_ptr<RecordingDC> dc = paint();
  std::vector<DrawCall> handles;
  for (const DrawCall& call : dc->calls())
    if (call.pen.colour == Rgba{40, 90, 200, 255} && call.brush.colour == Rgba{255, 255, 255, 255})
      handles.push_back(call);
  ASSERT_EQ(handles.size(), 8u);
  EXPECT_EQ(handles[0].op, DrawOp::rectangle);
  EXPECT_EQ(handles[0].box, wxRect(left() - 4, top() - 4, 9, 9));
  EXPECT_EQ(handles[1].op, DrawOp::ellipse);
  EXPECT_EQ(handles[1].box, wxRect(500 - 3, top() - 3, 6, 6));
  EXPECT_EQ(handles[4].box, wxRect(right() - 4, bottom() - 4, 9, 9));
  layout.scenery[0].sel = false;
  const std::unique_ptr<RecordingDC> unselected = paint();
  EXPECT_GT(unselected->calls().size(), 1u) << "the item itself";
  for (const DrawCall& call : unselected->calls())
    EXPECT_NE(call.pen.colour, (Rgba{40, 90, 200, 255}));
}

}  // namespace
}  // namespace vantrel
