#include "canvas/gestures/palette_drag.h"

#include <gtest/gtest.h>

#include "doc/layout_ops.h"
#include "tests/gestures/palette_drag_driver.h"

namespace vantrel {
namespace {


class PaletteDragging : public PaletteDragTest {};

TEST_F(PaletteDragging, StartsAtAPlaceholderWithFocusAndMouse) {
  state.view = ViewTransform{};
  beginPieceDrag(context, "24188");
  EXPECT_TRUE(drag().active);
  EXPECT_EQ(drag().part, "24188");
  // Screen point (300, 200) at scale 0.4 from (60, 60).
  EXPECT_EQ(drag().at, (Vec2{600.0, 350.0}));
  EXPECT_EQ(drag().rotation, 0.0);
  EXPECT_FALSE(drag().snap.found);
  EXPECT_EQ(host.focusTaken, 1);
  EXPECT_TRUE(host.captured);
  EXPECT_EQ(host.repaints, 1);
}

TEST_F(PaletteDragging, AnUnknownOrEmptyPartStartsNothing) {
  beginPieceDrag(context, "");
  beginPieceDrag(context, "no such part");
  EXPECT_FALSE(drag().active);
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.focusTaken, 0);
  EXPECT_EQ(host.repaints, 0);
}

TEST_F(PaletteDragging, ASecondDragStartsAfresh) {
  lay("24188", {0.0, 0.0, 0.0});
  held.leftDown = true;
  beginPieceDrag(context, "24188");
  move(1900, 0);
  pressRight(1900, 0);
  ASSERT_TRUE(drag().snap.found);
  beginPieceDrag(context, "24172");
  EXPECT_EQ(drag().part, "24172");
  EXPECT_EQ(drag().rotation, 0.0);
  EXPECT_FALSE(drag().snap.found);
  EXPECT_EQ(host.captures, 1);
}

TEST_F(PaletteDragging, FollowsThePointerWithAndWithoutAButton) {
  beginPieceDrag(context, "24188");
  held.leftDown = true;
  EXPECT_TRUE(move(500, 300));
  EXPECT_EQ(drag().at, (Vec2{50.0, 30.0}));
  held.leftDown = false;
  EXPECT_TRUE(move(510, 310));
  EXPECT_EQ(drag().at, (Vec2{51.0, 31.0}));
  EXPECT_EQ(host.repaints, 3);
}

TEST_F(PaletteDragging, ALeftReleaseOnlyGivesTheMouseBack) {
  beginPieceDrag(context, "24188");
  held.leftDown = true;
  move(500, 300);
  releaseLeft(500, 300);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(drag().active);
  EXPECT_TRUE(layout.pieces.empty());
  move(700, 300);
  EXPECT_EQ(drag().at, (Vec2{70.0, 30.0}));
  EXPECT_TRUE(pressLeft(700, 300));
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(PaletteDragging, AMotionWithoutTheButtonGivesTheMouseBackToo) {
  beginPieceDrag(context, "24188");
  held.leftDown = true;
  move(500, 300);
  EXPECT_TRUE(host.captured);
  // The button came up over the palette, and the palette was told.
  held.leftDown = false;
  move(510, 300);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(drag().active);
}

TEST_F(PaletteDragging, AMouseTakenAwayLosesNothing) {
  beginPieceDrag(context, "24188");
  held.leftDown = true;
  host.captured = false;
  onCaptureLost(context);
  held.leftDown = false;
  move(700, 300);
  EXPECT_EQ(drag().at, (Vec2{70.0, 30.0}));
  clickLeft(700, 300);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(PaletteDragging, SnapsAt24Point9MmAndNotAt25Point1) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24188");
  // Connector 1 of the dragged piece is 188.3 mm ahead of the pointer: it lies at x = -24.9, off
  // the open end at (0, 0).
  move(-2132, 0);
  ASSERT_TRUE(drag().snap.found);
  EXPECT_EQ(drag().snap.ownConnector, 1);
  EXPECT_EQ(drag().snap.targetConnector, 0);
  EXPECT_NEAR(drag().snap.distance, 24.9, 1e-9);
  EXPECT_NEAR(drag().snap.x, -188.3, 1e-9);
  move(-2134, 0);
  EXPECT_FALSE(drag().snap.found);
}

TEST_F(PaletteDragging, TheWheelTurnsBy30DegreesWithShiftBy15AndNeverZooms) {
  beginPieceDrag(context, "24188");
  const ViewTransform before = state.view;
  EXPECT_TRUE(wheel(100, 100, kNotch));
  EXPECT_EQ(drag().rotation, 30.0);
  wheel(100, 100, -1);
  wheel(100, 100, -kNotch);
  EXPECT_EQ(drag().rotation, 330.0);
  held.mods.shift = true;
  wheel(100, 100, kNotch);
  EXPECT_EQ(drag().rotation, 345.0);
  wheel(100, 100, kNotch);
  EXPECT_EQ(drag().rotation, 0.0);
  wheel(100, 100, -kNotch);
  EXPECT_EQ(drag().rotation, 345.0);
  EXPECT_EQ(state.view, before);
}

TEST_F(PaletteDragging, AWheelThatDidNotTurnNeitherTurnsNorZooms) {
  beginPieceDrag(context, "24188");
  const ViewTransform before = state.view;
  EXPECT_TRUE(wheel(100, 100, 0));
  EXPECT_EQ(drag().rotation, 0.0);
  EXPECT_EQ(state.view, before);
}

TEST_F(PaletteDragging, TheWheelAndTheRightPressSearchAnewAtTheNewAngle) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24951");  // one connector, at its origin heading 180
  move(1883, 100);
  ASSERT_TRUE(drag().snap.found);
  // At 180 degrees its end points the same way as the open end: there is nothing to join.
  for (int i = 0; i < 6; ++i) EXPECT_TRUE(pressRight(1883, 100));
  EXPECT_EQ(drag().rotation, 180.0);
  EXPECT_FALSE(drag().snap.found);
  wheel(1883, 100, kNotch);
  EXPECT_EQ(drag().rotation, 210.0);
  EXPECT_TRUE(drag().snap.found);
}

TEST_F(PaletteDragging, TheRKeyTurnsButKeepsTheLastSnapUntilThePointerMoves) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24951");
  move(1883, 100);
  ASSERT_TRUE(drag().snap.found);
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(key('R'));
    EXPECT_TRUE(key('r'));
  }
  EXPECT_EQ(drag().rotation, 180.0);
  EXPECT_TRUE(drag().snap.found);
  EXPECT_EQ(drag().snap.heading, 0.0);
  move(1883, 100);
  EXPECT_FALSE(drag().snap.found);
}

TEST_F(PaletteDragging, OtherKeysAreNotTaken) {
  beginPieceDrag(context, "24188");
  EXPECT_FALSE(key('Q'));
  held.mods.ctrl = true;
  EXPECT_FALSE(key('R'));
  EXPECT_EQ(drag().rotation, 0.0);
}

TEST_F(PaletteDragging, WithSnappingOffTheRightPressTurnsTheFreePieceAndNothingElse) {
  lay("24188", {0.0, 0.0, 0.0});
  layout.snapEnabled = false;
  beginPieceDrag(context, "24188");
  move(1900, 0);
  const std::vector<Piece> before = layout.pieces;
  const Vec2 place = drag().at;
  EXPECT_TRUE(pressRight(1900, 0));
  EXPECT_EQ(drag().rotation, 30.0);
  EXPECT_EQ(drag().at, place);
  EXPECT_FALSE(drag().snap.found);
  EXPECT_TRUE(drag().active);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(PaletteDragging, EscEndsTheDragWithoutATrace) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24188");
  move(1900, 0);
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_FALSE(drag().active);
  EXPECT_FALSE(drag().snap.found);
  EXPECT_FALSE(host.captured);
  clickLeft(1900, 300);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(PaletteDragging, CancellingEndsEveryDragFromThePalette) {
  state.paletteDrag.active = true;
  state.paletteDrag.snap.found = true;
  state.sceneryDrag.active = true;
  state.helixPlacement = {.active = true, .kit = "proses_2_5_r1r2", .at = {}};
  host.captured = true;
  cancelPaletteDrag(context);
  EXPECT_FALSE(state.paletteDrag.active);
  EXPECT_FALSE(state.paletteDrag.snap.found);
  EXPECT_FALSE(state.sceneryDrag.active);
  EXPECT_FALSE(state.helixPlacement.active);
  EXPECT_EQ(state.helixPlacement.kit, "");
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.repaints, 1);
}

TEST_F(PaletteDragging, EveryChangeOfThePreviewIsPainted) {
  beginPieceDrag(context, "24188");
  EXPECT_EQ(host.repaints, 1);
  wheel(1850, 0, kNotch);
  EXPECT_EQ(host.repaints, 2);
  pressRight(1850, 0);
  EXPECT_EQ(host.repaints, 3);
  key('R');
  EXPECT_EQ(host.repaints, 4);
  pressLeft(1850, 0);
  EXPECT_EQ(host.repaints, 5);
}

TEST_F(PaletteDragging, PaintsTheGhostWhereItWillLieAndNotAtThePointerWhenItHasSnapped) {
  layout.gridVisible = false;
  lay("24188", {0.0, 0.0, 0.0});
  state.view = {.scale = 1.0, .offsetX = 100.0, .offsetY = 100.0};
  beginPieceDrag(context, "24188");
  move(300, 110);
  // Far ends: 100 + 188.3 + 188.3 = 476.6 where it snaps, 300 + 188.3 = 488.3 at the pointer.
  int snapped = 0;
  int atPointer = 0;
  const std::unique_ptr<RecordingDC> dc = paint();
  for (const DrawCall& polygon : dc->callsOf(DrawOp::polygon)) {
    for (const wxPoint& point : polygon.points) {
      snapped += point.x == 476 ? 1 : 0;
      atPointer += point.x == 488 ? 1 : 0;
    }
  }
  EXPECT_GE(snapped, 2);
  EXPECT_EQ(atPointer, 0);
}

TEST_F(PaletteDragging, PaintsTheGhostAndMarksTheEndItSnapsTo) {
  lay("24188", {0.0, 0.0, 0.0});
  state.view = {.scale = 1.0, .offsetX = 100.0, .offsetY = 100.0};
  const std::size_t quiet = paint()->calls().size();
  beginPieceDrag(context, "24188");
  move(300, 110);
  const std::unique_ptr<RecordingDC> dc = paint();
  EXPECT_GT(dc->calls().size(), quiet + 1);
  int markers = 0;
  for (const DrawCall& circle : dc->circles()) {
    if (circle.brush != SolidBrush({255, 220, 0})) continue;
    ++markers;
    EXPECT_EQ(circle.centre(), wxPoint(288, 100));  // 188.3 mm ahead, truncated
    EXPECT_EQ(circle.circleRadius(), 8);
    EXPECT_EQ(circle.pen, SolidPen({180, 120, 0}, 2));
  }
  EXPECT_EQ(markers, 1);
}

TEST_F(PaletteDragging, TheGhostIsPaintedOverTheMarkedEnd) {
  lay("24188", {0.0, 0.0, 0.0});
  state.view = {.scale = 1.0, .offsetX = 100.0, .offsetY = 100.0};
  beginPieceDrag(context, "24188");
  move(300, 110);
  bool marked = false;
  bool ghostOverMarker = false;
  const std::unique_ptr<RecordingDC> dc = paint();
  for (const DrawCall& call : dc->calls()) {
    if (call.brush == SolidBrush({255, 220, 0})) marked = true;
    if (call.brush == SolidBrush({200, 225, 200})) ghostOverMarker = marked;
  }
  EXPECT_TRUE(ghostOverMarker);
}

TEST_F(PaletteDragging, AFreeGhostHasNoMarkerAndLiesAtThePointer) {
  layout.gridVisible = false;
  state.view = {.scale = 1.0, .offsetX = 100.0, .offsetY = 100.0};
  const std::size_t quiet = paint()->calls().size();
  beginPieceDrag(context, "24188");
  move(400, 300);
  const std::unique_ptr<RecordingDC> dc = paint();
  ASSERT_GT(dc->calls().size(), quiet);
  int nearPointer = 0;
  for (const DrawCall& polygon : dc->callsOf(DrawOp::polygon))
    for (const wxPoint& point : polygon.points)
      if (point.x == 400 && point.y > 270 && point.y < 330) ++nearPointer;
  EXPECT_GE(nearPointer, 2);  // the two corners of the bed's near end
  for (const DrawCall& circle : dc->circles()) EXPECT_NE(circle.brush, SolidBrush({255, 220, 0}));
}

TEST_F(PaletteDragging, ADoubleClickWithNothingSelectedHangsThePartAtThePointer) {
  lay("24188", {0.0, 0.0, 0.0});
  placeByDoubleClick(context, "24188");
  EXPECT_TRUE(drag().active);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(PaletteDragging, RepeatedDoubleClicksLayALineFromTheSelectedPiece) {
  lay("24188", {0.0, 0.0, 0.0});
  layout.pieces[0].sel = true;
  placeByDoubleClick(context, "24188");
  placeByDoubleClick(context, "24188");
  ASSERT_EQ(layout.pieces.size(), 3u);
  EXPECT_NEAR(layout.pieces[1].x, 188.3, 1e-9);
  EXPECT_NEAR(layout.pieces[2].x, 376.6, 1e-9);
  EXPECT_FALSE(drag().active);
  EXPECT_EQ(selected(), std::vector<std::int32_t>{layout.pieces[2].id});
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 3");
  EXPECT_EQ(host.dirtyMarks, 2);
  EXPECT_EQ(host.selectionChanges, 2);
}

TEST_F(PaletteDragging, ADoubleClickWithoutAFreeEndOrAKnownPartChangesNothing) {
  lay("24951", {0.0, 0.0, 0.0});  // one connector
  layout.pieces[0].sel = true;
  placeByDoubleClick(context, "no such part");
  EXPECT_EQ(layout.pieces.size(), 1u);
  placeByDoubleClick(context, "24188");
  EXPECT_EQ(layout.pieces.size(), 2u);
  ClearSelection(layout);
  layout.pieces[0].sel = true;
  host.dirtyMarks = 0;
  placeByDoubleClick(context, "24188");
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(host.dirtyMarks, 0);
}

}  // namespace
}  // namespace vantrel
