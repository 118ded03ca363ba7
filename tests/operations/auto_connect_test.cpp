#include <gtest/gtest.h>

#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

TEST(AutoConnect, LaysALineOfPiecesWhenRepeated) {
  Layout layout;
  const std::int32_t first = LaySelected(layout, "24188", {0.0, 0.0, 90.0});
  const std::int32_t second = autoConnectPart(layout, "24188");
  const std::int32_t third = autoConnectPart(layout, "24188");
  ASSERT_EQ(layout.pieces.size(), 3u);
  ExpectPose(PieceOf(layout, second).pose(), 0.0, 188.3, 90.0, 1e-9);
  ExpectPose(PieceOf(layout, third).pose(), 0.0, 376.6, 90.0, 1e-9);
  EXPECT_EQ(JointOf(layout, first, 1), (Joint{.target = second, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, second, 1), (Joint{.target = third, .tconn = 0}));
  EXPECT_EQ(BrokenJoint(layout), "");
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{third}));
  EXPECT_EQ(layout.undoHistory.size(), 2u) << "each piece is one step";
  Undo(layout);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{second}));
}

TEST(AutoConnect, ContinuesFromTheLastPlacedOfTheSelectedPieces) {
  Layout layout;
  const std::int32_t low = LaySelected(layout, "24188", {0.0, 300.0, 0.0});
  const std::int32_t high = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  LayPiece(layout, "24188", {0.0, 600.0, 0.0});   // later, but not selected
  std::swap(layout.pieces[0], layout.pieces[1]);  // the id counts, not the place in the list
  const std::int32_t id = autoConnectPart(layout, "24172");
  EXPECT_EQ(JointOf(layout, high, 1).target, id);
  EXPECT_TRUE(JointOf(layout, low, 1).open());
}

TEST(AutoConnect, GoesToTheNearEndWhenTheFarEndIsTaken) {
  Layout layout;
  const std::int32_t anchor = LayPiece(layout, "24188", {});
  const std::int32_t taken = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, anchor, 1, taken, 0);
  PieceOf(layout, anchor).sel = true;
  const std::int32_t id = autoConnectPart(layout, "24172");
  // Its own connector 1 meets connector 0, so it lies behind and the line keeps its sense.
  ExpectPose(PieceOf(layout, id).pose(), -171.7, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, anchor, 0), (Joint{.target = id, .tconn = 1}));
}

TEST(AutoConnect, AtTheNearEndTurnsAPieceWithOneConnectorRound) {
  Layout layout;
  const std::int32_t anchor = LayPiece(layout, "24188", {});
  const std::int32_t taken = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, anchor, 1, taken, 0);
  PieceOf(layout, anchor).sel = true;
  const std::int32_t id = autoConnectPart(layout, "24977");
  EXPECT_EQ(JointOf(layout, anchor, 0), (Joint{.target = id, .tconn = 0}));
  ExpectPose(PieceOf(layout, id).pose(), 0.0, 0.0, 180.0, 1e-9);
}

TEST(AutoConnect, ExtendsTheFirstOpenBranchWhenBothEndsAreTaken) {
  Layout layout;
  const std::int32_t threeWay = LayPiece(layout, "24630", {});
  const std::int32_t before = LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
  const std::int32_t after = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, threeWay, 0, before, 1);
  joinPieces(layout, threeWay, 1, after, 0);
  PieceOf(layout, threeWay).sel = true;
  const std::int32_t right = autoConnectPart(layout, "24224");
  EXPECT_EQ(JointOf(layout, threeWay, 2), (Joint{.target = right, .tconn = 0}));
  ExpectPose(PieceOf(layout, right).pose(), 180.04, 38.76, 24.3, 1e-9);
  ClearSelection(layout);
  PieceOf(layout, threeWay).sel = true;
  const std::int32_t left = autoConnectPart(layout, "24224");
  EXPECT_EQ(JointOf(layout, threeWay, 3), (Joint{.target = left, .tconn = 0}));
  ClearSelection(layout);
  PieceOf(layout, threeWay).sel = true;
  EXPECT_EQ(autoConnectPart(layout, "24224"), kNone);
}

TEST(AutoConnect, ChangesNothingWithoutAFreeEnd) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t c = LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  joinPieces(layout, a, 0, c, 1);
  const std::vector<Piece> before = layout.pieces;
  EXPECT_EQ(autoConnectPart(layout, "24188"), kNone);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(layout.nextId, 4);
}

TEST(AutoConnect, ChangesNothingForUnknownPartsOrWithoutASelection) {
  Layout layout;
  LayPiece(layout, "24188", {});
  EXPECT_EQ(autoConnectPart(layout, "24188"), kNone);
  layout.pieces[0].sel = true;
  EXPECT_EQ(autoConnectPart(layout, "no such part"), kNone);
  LaySelected(layout, "no such part", {});
  EXPECT_EQ(autoConnectPart(layout, "24188"), kNone) << "the last selected piece is unknown";
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(AutoConnect, TakesTheLevelOfTheAnchorAndClearsTheRestOfTheSelection) {
  Layout layout;
  const std::int32_t anchor = LaySelected(layout, "24188", {});
  PieceOf(layout, anchor).level = 3;
  layout.scenery.resize(1);
  layout.scenery[0].sel = true;
  const std::int32_t id = autoConnectPart(layout, "24188");
  EXPECT_EQ(PieceOf(layout, id).level, 3);
  EXPECT_FALSE(layout.scenery[0].sel);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{id}));
}

TEST(AutoConnect, CarriesAGradeOn) {
  Layout layout;
  const std::int32_t anchor = LaySelected(layout, "24188", {});
  PieceOf(layout, anchor).grade = 2.0;
  addGradeRun(layout, 2.0, anchor, 0);
  const std::int32_t id = autoConnectPart(layout, "24188");
  EXPECT_NEAR(PieceOf(layout, id).z, 6.5716, 1e-4);
  EXPECT_EQ(layout.currentGrade.anchor, id);
}

TEST(AutoConnect, LooksAtNeitherSnapSettingNorTrackSystem) {
  Layout layout;
  layout.snapEnabled = false;
  const std::int32_t anchor = LaySelected(layout, "24188", {});
  const std::int32_t id = autoConnectPart(layout, "2200");
  EXPECT_EQ(JointOf(layout, anchor, 1), (Joint{.target = id, .tconn = 0}));
}

TEST(AutoConnect, BringsThePartnerOfAPairedPartAndSelectsOnlyIt) {
  Layout layout;
  const std::int32_t anchor = LaySelected(layout, "24188", {});
  const std::int32_t partner = autoConnectPart(layout, "74618");
  ASSERT_EQ(layout.pieces.size(), 3u);
  const std::int32_t first = layout.pieces[1].id;
  EXPECT_EQ(layout.pieces[2].id, partner);
  EXPECT_EQ(JointOf(layout, anchor, 1), (Joint{.target = first, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, first, 1), (Joint{.target = partner, .tconn = 0}));
  ExpectPose(PieceOf(layout, partner).pose(), 368.3, 0.0, 0.0, 1e-9);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{partner}));
  EXPECT_EQ(layout.undoHistory.size(), 2u);
  Undo(layout);
  EXPECT_EQ(layout.pieces.size(), 2u);
  Undo(layout);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST(AutoConnect, BringsNoPartnerWhenThePairedPieceLiesBehindTheAnchor) {
  Layout layout;
  const std::int32_t anchor = LaySelected(layout, "24188", {});
  const std::int32_t taken = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, anchor, 1, taken, 0);
  const std::int32_t id = autoConnectPart(layout, "74618");
  // Its connector 1 is the joined one.
  EXPECT_EQ(JointOf(layout, id, 1), (Joint{.target = anchor, .tconn = 0}));
  EXPECT_EQ(layout.pieces.size(), 3u);
}

TEST(AutoConnect, BringsNoSpokesWithATurntable) {
  Layout layout;
  LaySelected(layout, "24188", {});
  autoConnectPart(layout, "74861");
  EXPECT_EQ(layout.pieces.size(), 2u);
}

TEST(AutoConnect, TreatsMissingSlotsOfTheAnchorAsOpen) {
  Layout layout;
  const std::int32_t anchor = LaySelected(layout, "24188", {});
  PieceOf(layout, anchor).joints.clear();
  const std::int32_t id = autoConnectPart(layout, "24188");
  ASSERT_EQ(PieceOf(layout, anchor).joints.size(), 2u);
  EXPECT_EQ(JointOf(layout, anchor, 1).target, id);
}

}  // namespace
}  // namespace vantrel
