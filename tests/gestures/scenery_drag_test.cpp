#include "canvas/gestures/scenery_drag.h"

#include <gtest/gtest.h>

#include <vector>

#include "canvas/gestures/palette_drag.h"
#include "doc/undo.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {


class SceneryDragging : public CanvasTest {
 protected:
  const SceneryDrag& drag() const { return state.sceneryDrag; }
};

TEST_F(SceneryDragging, StartsAtAPlaceholderAndEndsTheOtherDrags) {
  beginPieceDrag(context, "24188");
  state.helixPlacement = {.active = true, .kit = "proses_2_5_r1r2", .at = {}};
  beginSceneryDrag(context, "car");
  EXPECT_TRUE(drag().active);
  EXPECT_EQ(drag().at, (Vec2{600.0, 350.0}));
  EXPECT_EQ(drag().rotation, 0.0);
  EXPECT_FALSE(state.paletteDrag.active);
  EXPECT_FALSE(state.helixPlacement.active);
  EXPECT_TRUE(host.captured);
  EXPECT_EQ(host.focusTaken, 2) << "for the keys, which would go to the palette's list";
}

TEST_F(SceneryDragging, AnUnknownItemStartsNothingAndEndsNothing) {
  beginPieceDrag(context, "24188");
  beginSceneryDrag(context, "");
  beginSceneryDrag(context, "no such item");
  EXPECT_FALSE(drag().active);
  EXPECT_TRUE(state.paletteDrag.active);
}

TEST_F(SceneryDragging, OnlyOneThingHangsAtThePointer) {
  beginSceneryDrag(context, "car");
  beginPieceDrag(context, "24188");
  EXPECT_FALSE(drag().active);
  EXPECT_TRUE(state.paletteDrag.active);
}

TEST_F(SceneryDragging, TurnsBy30WithTheWheelAndBy15OtherwiseAndNeverZooms) {
  beginSceneryDrag(context, "car");
  const ViewTransform before = state.view;
  EXPECT_TRUE(wheel(100, 100, -kNotch));
  EXPECT_EQ(drag().rotation, 330.0);
  EXPECT_TRUE(pressRight(100, 100));
  EXPECT_EQ(drag().rotation, 345.0);
  EXPECT_TRUE(key('R'));
  EXPECT_EQ(drag().rotation, 0.0);
  EXPECT_TRUE(key('r'));
  EXPECT_EQ(drag().rotation, 15.0);
  held.mods.shift = true;
  wheel(100, 100, kNotch);
  EXPECT_EQ(drag().rotation, 30.0);
  wheel(100, 100, 0);
  EXPECT_EQ(drag().rotation, 30.0);
  EXPECT_EQ(state.view, before);
}

TEST_F(SceneryDragging, EscEndsItWithoutATrace) {
  beginSceneryDrag(context, "car");
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_FALSE(drag().active);
  EXPECT_FALSE(host.captured);
  clickLeft(300, 300);
  EXPECT_TRUE(layout.scenery.empty());
}

TEST_F(SceneryDragging, TheNextLeftPressDropsIt) {
  lay("24188", {0.0, 0.0, 0.0});
  layout.pieces[0].sel = true;
  beginSceneryDrag(context, "car");
  held.leftDown = true;
  move(160, 100);
  releaseLeft(160, 100);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(drag().active);
  move(260, 140);
  key('r');
  EXPECT_TRUE(clickLeft(260, 140));
  ASSERT_EQ(layout.scenery.size(), 1u);
  const SceneryItem& item = layout.scenery[0];
  EXPECT_EQ(item.item, "car");
  EXPECT_EQ(item.pose(), (Pose{500.0, 200.0, 15.0}));
  EXPECT_TRUE(item.sel);
  EXPECT_FALSE(layout.pieces[0].sel);
  EXPECT_FALSE(drag().active);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 1");
  Undo(layout);
  EXPECT_TRUE(layout.scenery.empty());
}

TEST_F(SceneryDragging, AMotionWithoutTheButtonGivesTheMouseBack) {
  beginSceneryDrag(context, "car");
  held.leftDown = true;
  move(160, 100);
  EXPECT_TRUE(host.captured);
  held.leftDown = false;
  move(170, 100);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(drag().active);
}

TEST_F(SceneryDragging, AnItemUnknownAtTheDropJustEnds) {
  beginSceneryDrag(context, "car");
  state.sceneryDrag.item = "no such item";
  EXPECT_TRUE(clickLeft(260, 140));
  EXPECT_FALSE(drag().active);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(SceneryDragging, ARoundhouseDroppedNearATurntablePitTurnsToItsRing) {
  beginSceneryDrag(context, "74861");
  move(60, 60);  // the world's origin
  clickLeft(60, 60);
  beginSceneryDrag(context, "72886");
  move(60, 160);  // 250 mm away
  clickLeft(60, 160);
  ASSERT_EQ(layout.scenery.size(), 2u);
  // Heading 0, and 343 / 2 + 349.6 = 521.1 mm from the pit's middle: y = -(-521.1).
  EXPECT_NEAR(layout.scenery[1].x, 0.0, 1e-9);
  EXPECT_NEAR(layout.scenery[1].y, 521.1, 1e-9);
}

TEST_F(SceneryDragging, EveryChangeOfThePreviewIsPainted) {
  beginSceneryDrag(context, "car");
  EXPECT_EQ(host.repaints, 1);
  move(300, 200);
  EXPECT_EQ(host.repaints, 2);
  wheel(300, 200, kNotch);
  EXPECT_EQ(host.repaints, 3);
  pressRight(300, 200);
  EXPECT_EQ(host.repaints, 4);
  key('R');
  EXPECT_EQ(host.repaints, 5);
}

TEST_F(SceneryDragging, PaintsTheGhostAtThePointerAndTurnedAsItWillStand) {
  state.view = {.scale = 1.25, .offsetX = 0.0, .offsetY = 0.0};
  beginSceneryDrag(context, "car");  // 50 by 20 mm: 62.5 by 25 pixels
  move(300, 200);
  for (int i = 0; i < 3; ++i) wheel(300, 200, kNotch);
  std::vector<std::vector<wxPoint>> frames;
  for (const DrawCall& polygon : paint()->callsOf(DrawOp::polygon))
    if (polygon.pen.style == wxPENSTYLE_DOT) frames.push_back(polygon.points);
  // At 90 degrees 12.5 to either side and 31.25 up and down, truncated.
  ASSERT_EQ(frames.size(), 1u);
  EXPECT_EQ(frames[0], (std::vector<wxPoint>{{312, 168}, {312, 231}, {287, 231}, {287, 168}}));
}

}  // namespace
}  // namespace vantrel
