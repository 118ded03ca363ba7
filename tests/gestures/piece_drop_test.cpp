// What the left press places while a piece hangs at the pointer.
#include <gtest/gtest.h>

#include "doc/undo.h"
#include "tests/gestures/palette_drag_driver.h"

namespace vantrel {
namespace {


class PieceDrop : public PaletteDragTest {};

TEST_F(PieceDrop, ADropAtAnOpenEndJoinsBothPieces) {
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

TEST_F(PieceDrop, AFreeDropKeepsThePointersPlaceAndTheRotation) {
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

TEST_F(PieceDrop, AFreeDropLandsOnTheHighestVisibleLevelAndAJoinOnItsTargets) {
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

TEST_F(PieceDrop, ATargetThatIsGoneByTheDropLeavesAPieceWithoutAJoin) {
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

TEST_F(PieceDrop, APartThatIsUnknownAtTheDropCancelsInSilence) {
  beginPieceDrag(context, "24188");
  state.paletteDrag.part = "no such part";
  move(1900, 0);
  EXPECT_TRUE(clickLeft(1900, 0));
  EXPECT_FALSE(drag().active);
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(PieceDrop, AnotherSystemsOpenEndRefusesTheDropWithAMessage) {
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

TEST_F(PieceDrop, TheRefusalKnowsNoNameForZTrack) {
  lay("62188", {0.0, 0.0, 0.0});  // TRIX, 188.3 mm
  beginPieceDrag(context, "8500");
  move(1900, 0);
  clickLeft(1900, 0);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_TRUE(host.boxes[0].text.starts_with("Unknown cannot connect to TRIX C-Track.\n\n"))
      << host.boxes[0].text;
}

TEST_F(PieceDrop, TheRefusalKnowsNoNameForAnEndOfZTrackEither) {
  lay("8500", {0.0, 0.0, 0.0});  // 110 mm
  beginPieceDrag(context, "24188");
  move(1150, 0);
  clickLeft(1150, 0);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_TRUE(host.boxes[0].text.starts_with("Marklin C-Track cannot connect to Unknown.\n\n"))
      << host.boxes[0].text;
}

// Notes whether the mouse was still captured when a box came up.
class BoxWatchingHost : public RecordingHost {
 public:
  bool capturedAtBox = false;

  void inform(const std::string& title, const std::string& text, BoxIcon icon) override {
    capturedAtBox = captured;
    RecordingHost::inform(title, text, icon);
  }
};

TEST_F(PieceDrop, TheMouseIsGivenBackAtThePressAndBeforeTheBox) {
  BoxWatchingHost watching;
  CanvasContext watched{layout, state, watching};
  lay("2200", {0.0, 0.0, 0.0});
  beginPieceDrag(watched, "24188");
  EXPECT_TRUE(watching.captured);
  onMotion(watched, at(1850, 0));
  onLeftPress(watched, at(1850, 0));
  ASSERT_EQ(watching.boxes.size(), 1u);
  EXPECT_FALSE(watching.capturedAtBox);

  beginPieceDrag(context, "24188");
  move(1850, 9000);
  pressLeft(1850, 9000);
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_FALSE(host.captured);
}

TEST_F(PieceDrop, AnEndThatFitsIsTakenAlthoughAnotherSystemsEndIsInReachToo) {
  const std::int32_t first = lay("24188", {0.0, 0.0, 0.0});
  lay("2200", {5.0, 15.0, 0.0});  // its far end lies at (185, 15), 15.8 mm off the pointer
  beginPieceDrag(context, "24188");
  move(1900, 0);
  clickLeft(1900, 0);
  EXPECT_TRUE(host.boxes.empty());
  ASSERT_EQ(layout.pieces.size(), 3u);
  EXPECT_EQ(layout.pieces[2].joints[0], (Joint{first, 1}));
}

TEST_F(PieceDrop, TheAdapterSnapsToKTrackWithItsConnector1) {
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

TEST_F(PieceDrop, AHiddenLevelOffersNoSnap) {
  hide(3);
  lay("24188", {0.0, 0.0, 0.0}, 3);
  beginPieceDrag(context, "24188");
  move(1900, 0);
  EXPECT_FALSE(drag().snap.found);
  clickLeft(1900, 0);
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_TRUE(layout.pieces[1].joints[0].open());
}

TEST_F(PieceDrop, AnotherSystemOnAHiddenLevelStillRefusesTheDrop) {
  hide(3);
  lay("2200", {0.0, 0.0, 0.0}, 3);
  beginPieceDrag(context, "24188");
  move(1850, 0);
  clickLeft(1850, 0);
  EXPECT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(PieceDrop, WithSnappingOffNothingSnapsAndNothingIsRefused) {
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

TEST_F(PieceDrop, SwitchingSnappingOffDropsTheSnapAtTheNextMotion) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "24188");
  move(1900, 0);
  layout.snapEnabled = false;
  EXPECT_TRUE(drag().snap.found);
  move(1900, 0);
  EXPECT_FALSE(drag().snap.found);
}

TEST_F(PieceDrop, TheFirstZPieceSetsScale1AndTheSecondLeavesTheView) {
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

TEST_F(PieceDrop, TheFirstPieceOfAnotherSystemLeavesTheView) {
  const ViewTransform before = state.view;
  beginPieceDrag(context, "24188");
  clickLeft(1000, 1000);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(state.view, before);
}

TEST_F(PieceDrop, ADroppedTurntableComesWithSixSpokesInOneUndoStep) {
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

TEST_F(PieceDrop, ThePairsFirstPieceIsCountedAndSelectedAndTheSecondIsAStepOfItsOwn) {
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

TEST_F(PieceDrop, APairedPieceDroppedWithItsConnector1JoinedGetsNoPartner) {
  lay("24188", {0.0, 0.0, 0.0});
  beginPieceDrag(context, "74618");
  move(-1850, 0);  // its connector 1, 180 mm ahead, lies 5 mm off the open end at (0, 0)
  clickLeft(-1850, 0);
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

}  // namespace
}  // namespace vantrel
