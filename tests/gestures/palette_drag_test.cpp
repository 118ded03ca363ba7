#include "canvas/gestures/palette_drag.h"

#include <gtest/gtest.h>

#include "doc/layout_ops.h"
#include "doc/undo.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

constexpr int kNotch = 120;

// A 24188 is a straight of 188.3 mm. Most tests lay one at the origin and drag in a view of ten
// pixels to the millimetre: its far end shows at pixel (1883, 0).
class PaletteDragging : public CanvasTest {
 protected:
  PaletteDragging() { viewTenPixelsPerMm(); }

  const PaletteDrag& drag() const { return state.paletteDrag; }
  void hide(std::int32_t levelId) {
    Level level;
    level.id = levelId;
    level.visible = false;
    layout.levels.push_back(level);
  }
  std::vector<std::int32_t> selected() const {
    std::vector<std::int32_t> ids;
    for (const Piece& piece : layout.pieces)
      if (piece.sel) ids.push_back(piece.id);
    return ids;
  }
};

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
  EXPECT_FALSE(clickLeft(1900, 0));
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

TEST_F(PaletteDragging, ADropAtAnOpenEndJoinsBothPieces) {
  const std::int32_t first = lay("24188", {0.0, 0.0, 0.0});
  layout.pieces[0].sel = true;
  beginPieceDrag(context, "24188");
  move(1950, 50);
  pressRight(1950, 50);
  EXPECT_TRUE(clickLeft(1950, 50));

  ASSERT_EQ(layout.pieces.size(), 2u);
  const Piece& piece = layout.pieces[1];
  EXPECT_NEAR(piece.x, 188.3, 1e-9);
  EXPECT_NEAR(piece.y, 0.0, 1e-9);
  EXPECT_NEAR(piece.heading, 0.0, 1e-9);
  EXPECT_EQ(piece.joints, (std::vector<Joint>{{first, 1}, {}}));
  EXPECT_EQ(layout.pieces[0].joints, (std::vector<Joint>{{}, {piece.id, 0}}));
  EXPECT_EQ(selected(), std::vector<std::int32_t>{piece.id});

  EXPECT_FALSE(drag().active);
  EXPECT_FALSE(drag().snap.found);
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 2");
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST_F(PaletteDragging, AFreeDropKeepsThePointersPlaceAndTheRotation) {
  beginPieceDrag(context, "24130");
  move(400, 250);
  wheel(400, 250, -kNotch);
  clickLeft(400, 250);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].pose(), (Pose{40.0, 25.0, 330.0}));
  EXPECT_EQ(layout.pieces[0].joints, (std::vector<Joint>(2)));
  EXPECT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 1");
}

TEST_F(PaletteDragging, AFreeDropLandsOnTheHighestVisibleLevelAndAJoinOnItsTargets) {
  Level low;
  low.id = 4;
  Level high;
  high.id = 7;
  high.height = 100.0;
  layout.levels = {low, high};
  lay("24188", {0.0, 0.0, 0.0}, 4);
  beginPieceDrag(context, "24188");
  move(1900, 0);
  clickLeft(1900, 0);
  beginPieceDrag(context, "24188");
  move(1900, 9000);
  clickLeft(1900, 9000);
  ASSERT_EQ(layout.pieces.size(), 3u);
  EXPECT_EQ(layout.pieces[1].level, 4);
  EXPECT_EQ(layout.pieces[2].level, 7);
}

TEST_F(PaletteDragging, ATargetThatIsGoneByTheDropLeavesAPieceWithoutAJoin) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24188");
  move(1900, 0);
  layout.pieces.clear();
  clickLeft(1900, 0);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_NEAR(layout.pieces[0].x, 188.3, 1e-9);
  EXPECT_TRUE(layout.pieces[0].joints[0].open());
  EXPECT_EQ(layout.pieces[0].level, layout.activeLevel);
}

TEST_F(PaletteDragging, APartThatIsUnknownAtTheDropCancelsInSilence) {
  beginPieceDrag(context, "24188");
  state.paletteDrag.part = "no such part";
  move(1900, 0);
  EXPECT_TRUE(clickLeft(1900, 0));
  EXPECT_FALSE(drag().active);
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(PaletteDragging, AnotherSystemsOpenEndRefusesTheDropWithAMessage) {
  lay("2200", {0.0, 0.0, 0.0});  // K-Track, 180 mm
  beginPieceDrag(context, "24188");
  move(1850, 0);
  EXPECT_FALSE(drag().snap.found);
  EXPECT_TRUE(clickLeft(1850, 0));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Incompatible Track Systems");
  EXPECT_EQ(host.boxes[0].text,
            "Marklin C-Track cannot connect to Marklin K-Track.\n\n"
            "These track systems are not compatible.\n"
            "Use adapter track 24922 to connect C-Track to K-Track.");
  EXPECT_EQ(host.boxes[0].icon, BoxIcon::exclamation);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_FALSE(drag().active);
  EXPECT_FALSE(host.captured);
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(PaletteDragging, TheRefusalKnowsNoNameForZTrack) {
  lay("62188", {0.0, 0.0, 0.0});  // TRIX, 188.3 mm
  beginPieceDrag(context, "8500");
  move(1900, 0);
  clickLeft(1900, 0);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_TRUE(host.boxes[0].text.starts_with("Unknown cannot connect to TRIX C-Track.\n\n"))
      << host.boxes[0].text;
}

TEST_F(PaletteDragging, TheAdapterSnapsToKTrackWithItsConnector1) {
  const std::int32_t k = lay("2200", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24922");  // 180 mm, C at connector 0, K at connector 1
  // Its connector 1 lies 180 mm ahead of the pointer, 10 mm off the K end at (0, 0).
  move(-1900, 0);
  clickLeft(-1900, 0);
  EXPECT_TRUE(host.boxes.empty());
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(layout.pieces[1].joints[1], (Joint{k, 0}));
  EXPECT_EQ(layout.pieces[0].joints[0], (Joint{layout.pieces[1].id, 1}));
  EXPECT_NEAR(layout.pieces[1].x, -180.0, 1e-9);
}

TEST_F(PaletteDragging, AHiddenLevelOffersNoSnap) {
  hide(3);
  lay("24188", {0.0, 0.0, 0.0}, 3);
  beginPieceDrag(context, "24188");
  move(1900, 0);
  EXPECT_FALSE(drag().snap.found);
  clickLeft(1900, 0);
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_TRUE(layout.pieces[1].joints[0].open());
}

TEST_F(PaletteDragging, AnotherSystemOnAHiddenLevelStillRefusesTheDrop) {
  hide(3);
  lay("2200", {0.0, 0.0, 0.0}, 3);
  beginPieceDrag(context, "24188");
  move(1850, 0);
  clickLeft(1850, 0);
  EXPECT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(PaletteDragging, WithSnappingOffNothingSnapsAndNothingIsRefused) {
  lay("24188", {0.0, 0.0, 0.0});
  lay("2200", {0.0, 500.0, 0.0});
  layout.snapEnabled = false;
  beginPieceDrag(context, "24188");
  move(1900, 0);
  EXPECT_FALSE(drag().snap.found);
  clickLeft(1900, 0);
  beginPieceDrag(context, "24188");
  move(1850, 5000);
  clickLeft(1850, 5000);
  EXPECT_TRUE(host.boxes.empty());
  ASSERT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(layout.pieces[2].pose(), (Pose{190.0, 0.0, 0.0}));
  EXPECT_TRUE(layout.pieces[2].joints[0].open());
  EXPECT_EQ(layout.pieces[3].pose(), (Pose{185.0, 500.0, 0.0}));
  EXPECT_TRUE(layout.pieces[3].joints[0].open());
}

TEST_F(PaletteDragging, SwitchingSnappingOffDropsTheSnapAtTheNextMotion) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24188");
  move(1900, 0);
  layout.snapEnabled = false;
  EXPECT_TRUE(drag().snap.found);
  move(1900, 0);
  EXPECT_FALSE(drag().snap.found);
}

TEST_F(PaletteDragging, TheFirstZPieceSetsScale1AndTheSecondLeavesTheView) {
  beginPieceDrag(context, "8500");
  move(1000, 1000);
  clickLeft(1000, 1000);
  EXPECT_EQ(state.view, (ViewTransform{.scale = 1.0, .offsetX = 60.0, .offsetY = 60.0}));
  state.view = {.scale = 3.0, .offsetX = 5.0, .offsetY = 6.0};
  beginPieceDrag(context, "8500");
  move(900, 700);
  clickLeft(900, 700);
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(state.view, (ViewTransform{.scale = 3.0, .offsetX = 5.0, .offsetY = 6.0}));
}

TEST_F(PaletteDragging, TheFirstPieceOfAnotherSystemLeavesTheView) {
  const ViewTransform before = state.view;
  beginPieceDrag(context, "24188");
  clickLeft(1000, 1000);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(state.view, before);
}

TEST_F(PaletteDragging, ADroppedTurntableComesWithSixSpokesInOneUndoStep) {
  beginPieceDrag(context, "74861");
  move(3000, 3000);
  clickLeft(3000, 3000);
  ASSERT_EQ(layout.pieces.size(), 7u);
  const Piece& table = layout.pieces[0];
  const std::int32_t connectors[] = {29, 0, 1, 14, 15, 16};
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(layout.pieces[i + 1].cat, "74871");
    EXPECT_EQ(layout.pieces[i + 1].joints[0], (Joint{table.id, connectors[i]}));
  }
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 7");
  EXPECT_EQ(selected(), std::vector<std::int32_t>{table.id});
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_TRUE(layout.pieces.empty());
}

TEST_F(PaletteDragging, ThePairsFirstPieceIsCountedAndSelectedAndTheSecondIsAStepOfItsOwn) {
  beginPieceDrag(context, "74618");  // 180 mm, laid in pairs
  move(1000, 1000);
  clickLeft(1000, 1000);
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 1");
  EXPECT_EQ(layout.pieces[0].joints[1], (Joint{layout.pieces[1].id, 0}));
  EXPECT_EQ(layout.pieces[1].joints[0], (Joint{layout.pieces[0].id, 1}));
  EXPECT_NEAR(layout.pieces[1].x, 280.0, 1e-9);
  EXPECT_EQ(selected(), std::vector<std::int32_t>{layout.pieces[0].id});
  EXPECT_EQ(layout.undoHistory.size(), 2u);

  beginPieceDrag(context, "24188");
  move(1000, 9000);
  clickLeft(1000, 9000);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 3");
}

TEST_F(PaletteDragging, APairedPieceDroppedWithItsConnector1JoinedGetsNoPartner) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "74618");
  move(-1850, 0);  // its connector 1, 180 mm ahead, lies 5 mm off the open end at (0, 0)
  clickLeft(-1850, 0);
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
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
