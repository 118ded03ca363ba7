#include "canvas/gestures/helix_placement.h"

#include <gtest/gtest.h>

#include <vector>

#include "canvas/gestures/palette_drag.h"
#include "canvas/gestures/scenery_drag.h"
#include "doc/undo.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

// In the first view pixel (x, y) shows the world at ((x - 60) / 0.4, (y - 60) / 0.4) mm.
class HelixPlacing : public CanvasTest {
 protected:
  const HelixPlacement& placement() const { return state.helixPlacement; }
};

TEST_F(HelixPlacing, StartsAtAPlaceholderAndEndsTheOtherDrags) {
  beginPieceDrag(context, "24188");
  beginHelixPlacement(context, "proses_3_5_r2r3");
  EXPECT_TRUE(placement().active);
  EXPECT_EQ(placement().kit, "proses_3_5_r2r3");
  EXPECT_EQ(placement().at, (Vec2{600.0, 350.0}));  // pixel (300, 200)
  EXPECT_FALSE(state.paletteDrag.active);
  EXPECT_TRUE(host.captured);
  EXPECT_EQ(host.focusTaken, 2);
  EXPECT_EQ(host.repaints, 2);
  beginSceneryDrag(context, "car");
  beginHelixPlacement(context, "proses_3_5_r2r3");
  EXPECT_FALSE(state.sceneryDrag.active);
  EXPECT_TRUE(placement().active);
}

TEST_F(HelixPlacing, AnEmptyKitStartsNothingAndEndsNothing) {
  beginPieceDrag(context, "24188");
  beginHelixPlacement(context, "");
  EXPECT_FALSE(placement().active);
  EXPECT_TRUE(state.paletteDrag.active);
  EXPECT_EQ(host.repaints, 1);
}

TEST_F(HelixPlacing, FollowsThePointerWithAndWithoutTheButton) {
  beginHelixPlacement(context, "proses_2_5_r1r2");
  held.leftDown = true;
  EXPECT_TRUE(move(160, 100));
  EXPECT_EQ(placement().at, (Vec2{250.0, 100.0}));
  EXPECT_TRUE(host.captured);
  held.leftDown = false;
  EXPECT_TRUE(move(260, 140));
  EXPECT_EQ(placement().at, (Vec2{500.0, 200.0}));
  EXPECT_FALSE(host.captured) << "the release went to the palette";
  EXPECT_EQ(host.repaints, 3);
}

TEST_F(HelixPlacing, TheNextLeftPressPlacesItThere) {
  lay("24188", {0.0, 0.0, 0.0});
  layout.pieces[0].sel = true;
  beginHelixPlacement(context, "proses_2_5_r1r2");
  move(160, 100);
  EXPECT_TRUE(pressLeft(260, 140));  // at (500, 200) mm
  ASSERT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.helices[0].cx, 500.0);
  EXPECT_EQ(layout.helices[0].cy, 200.0);
  EXPECT_EQ(layout.helices[0].heading, 0.0);
  EXPECT_EQ(layout.pieces.size(), 5u);
  EXPECT_FALSE(placement().active);
  EXPECT_TRUE(placement().kit.empty());
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(layout.pieces[0].sel) << "the selection stays";
  EXPECT_FALSE(layout.pieces[1].sel);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 5");
  releaseLeft(260, 140);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_TRUE(layout.helices.empty());
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(HelixPlacing, TheReleaseOfTheDragFromThePaletteDropsNothing) {
  beginHelixPlacement(context, "proses_2_5_r1r2");
  held.leftDown = true;
  move(160, 100);
  releaseLeft(160, 100);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(placement().active);
  EXPECT_TRUE(layout.helices.empty());
}

TEST_F(HelixPlacing, AKitThatNobodyKnowsIsPlacedAsTheDefault) {
  beginHelixPlacement(context, "no such kit");
  clickLeft(260, 140);
  ASSERT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.helices[0].variant, "proses_2_5_r1r2");
}

TEST_F(HelixPlacing, EscDeselectsAndThePreviewStays) {
  lay("24188", {0.0, 0.0, 0.0});
  layout.pieces[0].sel = true;
  beginHelixPlacement(context, "proses_2_5_r1r2");
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_FALSE(layout.pieces[0].sel);
  EXPECT_TRUE(placement().active);
  EXPECT_TRUE(host.captured);
}

TEST_F(HelixPlacing, TheRightButtonLeavesItHanging) {
  beginHelixPlacement(context, "proses_2_5_r1r2");
  pressRight(300, 200);
  EXPECT_TRUE(placement().active);
  EXPECT_EQ(placement().kit, "proses_2_5_r1r2");
  clickLeft(260, 140);
  EXPECT_EQ(layout.helices.size(), 1u);
}

TEST_F(HelixPlacing, ADragOfAPieceComesBeforeIt) {
  // Only a damaged state holds both; the piece drops first.
  beginPieceDrag(context, "24188");
  state.helixPlacement = {.active = true, .kit = "proses_2_5_r1r2", .at = {}};
  clickLeft(260, 140);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_TRUE(layout.helices.empty());
}

TEST_F(HelixPlacing, CancellingTheDragsEndsIt) {
  beginHelixPlacement(context, "proses_2_5_r1r2");
  cancelPaletteDrag(context);
  EXPECT_FALSE(placement().active);
  EXPECT_FALSE(host.captured);
  EXPECT_FALSE(helixPlacementMotion(context, at(10, 10)));
  EXPECT_FALSE(dropHelix(context, at(10, 10)));
}

TEST_F(HelixPlacing, ADoubleClickPlacesWithoutAPreview) {
  placeHelixAt(context, "proses_2_5_r1r2", {500.0, 500.0, 0.0});
  ASSERT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.helices[0].cx, 500.0);
  EXPECT_EQ(layout.helices[0].cy, 500.0);
  EXPECT_FALSE(placement().active);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.repaints, 1);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 4");
}

TEST_F(HelixPlacing, PaintsTheRingsAtThePointer) {
  beginHelixPlacement(context, "proses_2_5_r1r2");
  move(260, 140);
  std::vector<int> radii;
  for (const DrawCall& circle : paint()->callsOf(DrawOp::ellipse))
    if (circle.pen.style == wxPENSTYLE_LONG_DASH) radii.push_back(circle.circleRadius());
  // 360 and 437.5 mm at 0.4 pixels to the mm.
  EXPECT_EQ(radii, (std::vector<int>{144, 175}));
}

}  // namespace
}  // namespace vantrel
