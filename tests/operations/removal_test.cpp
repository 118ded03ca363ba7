#include "canvas/operations/removal.h"

#include <gtest/gtest.h>

#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// Straights joined connector 1 to connector 0, in list order.
std::vector<std::int32_t> LayRow(Layout& layout, std::string_view part, int count) {
  std::vector<std::int32_t> ids;
  for (int i = 0; i < count; ++i) {
    ids.push_back(LayPiece(layout, part, {188.3 * i, 0.0, 0.0}));
    if (i > 0) joinPieces(layout, ids[ids.size() - 2], 1, ids.back(), 0);
  }
  return ids;
}

void Select(Layout& layout, std::initializer_list<std::int32_t> ids) {
  for (const std::int32_t id : ids) PieceOf(layout, id).sel = true;
}

std::vector<std::int32_t> PieceIds(const Layout& layout) {
  std::vector<std::int32_t> ids;
  for (const Piece& piece : layout.pieces) ids.push_back(piece.id);
  return ids;
}

// Two of each kind that can be deleted, the second of each selected.
Layout TwoOfEach() {
  Layout layout;
  LayPiece(layout, "24188", {});
  LayPiece(layout, "24188", {500.0, 0.0, 0.0});
  for (int i = 0; i < 2; ++i) {
    layout.scenery.push_back({.id = TakeId(layout)});
    layout.labels.push_back({.id = TakeId(layout)});
    layout.measurements.push_back({.id = TakeId(layout)});
    layout.shapes.push_back({.id = TakeId(layout)});
  }
  layout.pieces[1].sel = true;
  layout.scenery[1].sel = true;
  layout.labels[1].sel = true;
  layout.measurements[1].sel = true;
  layout.shapes[1].sel = true;
  return layout;
}

TEST(DeleteSelection, RemovesWhatIsSelectedOfEveryKindAndNothingElse) {
  Layout layout = TwoOfEach();
  deleteSelection(layout);
  ASSERT_EQ(layout.pieces.size(), 1u);
  ASSERT_EQ(layout.scenery.size(), 1u);
  ASSERT_EQ(layout.labels.size(), 1u);
  ASSERT_EQ(layout.measurements.size(), 1u);
  ASSERT_EQ(layout.shapes.size(), 1u);
  // Two pieces, then scenery, label, measurement, shape, in turn: the first of each kind.
  EXPECT_EQ(layout.pieces[0].id, 1);
  EXPECT_EQ(layout.scenery[0].id, 3);
  EXPECT_EQ(layout.labels[0].id, 4);
  EXPECT_EQ(layout.measurements[0].id, 5);
  EXPECT_EQ(layout.shapes[0].id, 6);
}

TEST(DeleteSelection, IsOneUndoStep) {
  Layout layout = TwoOfEach();
  const Layout before = layout;
  deleteSelection(layout);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before.pieces);
  EXPECT_EQ(layout.scenery, before.scenery);
  EXPECT_EQ(layout.labels, before.labels);
  EXPECT_EQ(layout.measurements, before.measurements);
  EXPECT_EQ(layout.shapes, before.shapes);
}

TEST(DeleteSelection, TakesAnUndoStepEvenWhenNothingIsSelected) {
  Layout layout;
  LayRow(layout, "24188", 2);
  const std::vector<Piece> before = layout.pieces;
  deleteSelection(layout);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(layout.pieces, before);
}

TEST(DeleteSelection, OpensTheSlotsOfThePiecesThatStay) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 3);
  Select(layout, {row[1]});
  deleteSelection(layout);
  EXPECT_EQ(PieceIds(layout), (std::vector<std::int32_t>{row[0], row[2]}));
  EXPECT_EQ(JointOf(layout, row[0], 1), (Joint{.target = -1, .tconn = -1}));
  EXPECT_EQ(JointOf(layout, row[2], 0), (Joint{.target = -1, .tconn = -1}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(DeleteSelection, OpensASlotThatTheDeletedPieceDidNotNameBack) {
  Layout layout;
  const std::int32_t gone = LayPiece(layout, "24188", {});
  const std::int32_t stays = LayPiece(layout, "24188", {});
  PieceOf(layout, stays).joints[1] = {.target = gone, .tconn = 7};
  Select(layout, {gone});
  deleteSelection(layout);
  EXPECT_EQ(JointOf(layout, stays, 1), Joint{});
}

TEST(DeleteSelection, OfATurntableTakesItsSixSpokesWithIt) {
  Layout layout;
  const std::int32_t other = LayPiece(layout, "24188", {2000.0, 0.0, 0.0});
  const std::int32_t table = placePiece(layout, *findPart("74861"), {}, {});
  ASSERT_EQ(layout.pieces.size(), 8u);
  ClearSelection(layout);
  Select(layout, {table});
  deleteSelection(layout);
  EXPECT_EQ(PieceIds(layout), (std::vector<std::int32_t>{other}));
}

TEST(DeleteSelection, OfATurntableTakesNeighboursThatHoldOtherJoints) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  const auto row = LayRow(layout, "24188", 3);
  joinPieces(layout, table, 5, row[0], 0);
  Select(layout, {table});
  deleteSelection(layout);
  EXPECT_EQ(PieceIds(layout), (std::vector<std::int32_t>{row[1], row[2]}));
  EXPECT_TRUE(JointOf(layout, row[1], 0).open());
}

TEST(DeleteSelection, SelectsTheSpokesOnlyAfterTheUndoStep) {
  Layout layout;
  const std::int32_t table = placePiece(layout, *findPart("74861"), {}, {});
  SelectOnly(layout, table);
  deleteSelection(layout);
  Undo(layout);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{table}));
}

TEST(DeleteSelection, OfASpokeLeavesTheTurntable) {
  Layout layout;
  placePiece(layout, *findPart("74861"), {}, {});
  SelectOnly(layout, layout.pieces[1].id);
  deleteSelection(layout);
  EXPECT_EQ(layout.pieces.size(), 6u);
}

TEST(DeleteSelection, MovesTheRunOfADeletedAnchorToTheNeighbourThatHeldAJointToIt) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 3);
  addGradeRun(layout, 2.0, row[2], 1);
  Select(layout, {row[2]});
  deleteSelection(layout);
  // The neighbour held the joint in its slot 1, so the run goes on from its connector 0.
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = row[1], .conn = 0}));
  EXPECT_EQ(layout.currentGrade,
            (CurrentGrade{.active = true, .deg = 2.0, .anchor = row[1], .conn = 0}));
}

TEST(DeleteSelection, LetsTheRunGoOnFromConnector1WhenTheJointWasInSlot0) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 2);
  addGradeRun(layout, 2.0, row[0], 0);
  Select(layout, {row[0]});
  deleteSelection(layout);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = row[1], .conn = 1}));
}

TEST(DeleteSelection, LetsTheRunGoOnFromConnector0WhenTheJointWasInABranch) {
  Layout layout;
  const std::int32_t turnout = LayPiece(layout, "24611", {});
  const std::int32_t anchor = LayPiece(layout, "24188", {});
  joinPieces(layout, turnout, 2, anchor, 0);
  addGradeRun(layout, 2.0, anchor, 1);
  Select(layout, {anchor});
  deleteSelection(layout);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = turnout, .conn = 0}));
}

TEST(DeleteSelection, TakesTheLowestSlotOfTheNeighbourThatNamesADeletedPiece) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 3);
  addGradeRun(layout, 2.0, row[2], 1);
  Select(layout, {row[0], row[2]});
  deleteSelection(layout);
  // The middle piece named the anchor in slot 1, but another deleted piece in slot 0.
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = row[1], .conn = 1}));
}

TEST(DeleteSelection, MovesTheRunToTheFirstPieceThatWasJoinedToAnyDeletedPiece) {
  Layout layout;
  const auto far = LayRow(layout, "24188", 2);  // earlier in the list than the anchor's neighbour
  const auto row = LayRow(layout, "24188", 2);
  addGradeRun(layout, 2.0, row[1], 1);
  Select(layout, {far[1], row[1]});
  deleteSelection(layout);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, far[0]);
}

TEST(DeleteSelection, MovesEveryRunOfDeletedAnchorsToThatOnePiece) {
  Layout layout;
  const auto first = LayRow(layout, "24188", 2);
  const auto second = LayRow(layout, "24188", 2);
  addGradeRun(layout, 2.0, first[1], 1);
  addGradeRun(layout, -3.0, second[1], 1);
  Select(layout, {first[1], second[1]});
  deleteSelection(layout);
  ASSERT_EQ(layout.gradeRuns.size(), 2u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = first[0], .conn = 0}));
  EXPECT_EQ(layout.gradeRuns[1], (GradeRun{.deg = -3.0, .anchor = first[0], .conn = 0}));
}

TEST(DeleteSelection, DoesNotMoveARunToASpokeThatGoesWithItsTurntable) {
  Layout layout;
  const std::int32_t table = placePiece(layout, *findPart("74861"), {}, {});
  addGradeRun(layout, 2.0, table, 1);
  SelectOnly(layout, table);
  deleteSelection(layout);
  EXPECT_TRUE(layout.gradeRuns.empty());
}

TEST(DeleteSelection, EndsARunWhoseAnchorHadNoNeighbour) {
  Layout layout;
  const std::int32_t anchor = LayPiece(layout, "24188", {});
  LayPiece(layout, "24188", {900.0, 0.0, 0.0});
  addGradeRun(layout, 2.0, anchor, 0);
  Select(layout, {anchor});
  deleteSelection(layout);
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_EQ(layout.currentGrade, CurrentGrade{});
}

TEST(DeleteSelection, LeavesTheRunsOfOtherAnchors) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 3);
  addGradeRun(layout, 2.0, row[0], 0);
  addGradeRun(layout, 4.0, row[2], 1);
  Select(layout, {row[2]});
  deleteSelection(layout);
  ASSERT_EQ(layout.gradeRuns.size(), 2u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = row[0], .conn = 0}));
  EXPECT_EQ(layout.gradeRuns[1], (GradeRun{.deg = 4.0, .anchor = row[1], .conn = 0}));
}

TEST(DeleteSelection, ClearsAwayRunsThatHaveNoAnchorAtAll) {
  Layout layout;
  LayPiece(layout, "24188", {});
  layout.gradeRuns = {{.deg = 1.0, .anchor = -1, .conn = 0}};
  deleteSelection(layout);
  EXPECT_TRUE(layout.gradeRuns.empty());
}

TEST(DeleteSelection, BringsTheRunBackWithUndo) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 2);
  addGradeRun(layout, 2.0, row[1], 0);
  Select(layout, {row[1]});
  deleteSelection(layout);
  Undo(layout);
  EXPECT_EQ(layout.gradeRuns[0].anchor, row[1]);
  EXPECT_EQ(layout.currentGrade.anchor, row[1]);
}

class DeletedStub : public testing::TestWithParam<int> {};

TEST_P(DeletedStub, TakesItsHelixWithIt) {
  Layout layout;
  std::vector<std::int32_t> stubs;
  for (int i = 0; i < 8; ++i) stubs.push_back(LayPiece(layout, "24188", {}));
  layout.helices.push_back(
      {.id = 50, .bottomR1 = stubs[0], .bottomR2 = stubs[1], .topR1 = stubs[2], .topR2 = stubs[3]});
  layout.helices.push_back(
      {.id = 51, .bottomR1 = stubs[4], .bottomR2 = stubs[5], .topR1 = stubs[6], .topR2 = stubs[7]});
  Select(layout, {stubs[static_cast<std::size_t>(GetParam())]});
  deleteSelection(layout);
  ASSERT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.helices[0].id, 51);
  EXPECT_EQ(layout.pieces.size(), 7u);
}

INSTANTIATE_TEST_SUITE_P(AllFour, DeletedStub, testing::Range(0, 4));

TEST(DeleteSelection, LeavesTunnelsAsTheyAre) {
  Layout layout;
  const auto row = LayRow(layout, "24188", 2);
  layout.tunnels.push_back({.id = 90, .anchorA = row[0], .anchorB = row[1], .covers = {row[0]}});
  const std::vector<Tunnel> before = layout.tunnels;
  Select(layout, {row[0]});
  deleteSelection(layout);
  EXPECT_EQ(layout.tunnels, before);
}

TEST(DeleteSelection, OfAPieceWithTheIdOfNoneTouchesNothingThatHasNone) {
  Layout layout;
  const std::int32_t stays = LayPiece(layout, "24188", {});
  PieceOf(layout, stays).joints[0] = {.target = -1, .tconn = 5};
  layout.helices.push_back({.id = 50});  // it lacks all four stubs
  addGradeRun(layout, 2.0, stays, 0);
  Piece damaged;
  damaged.id = -1;
  damaged.sel = true;
  layout.pieces.push_back(damaged);
  deleteSelection(layout);
  EXPECT_EQ(PieceIds(layout), (std::vector<std::int32_t>{stays}));
  EXPECT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(JointOf(layout, stays, 0).tconn, 5);
}

TEST(DeleteSelection, OfOneOfTwoPiecesWithOneIdLeavesTheOther) {
  Layout layout;
  const std::int32_t id = LayPiece(layout, "24188", {});
  LayPiece(layout, "24172", {});
  layout.pieces[1].id = id;
  layout.pieces[1].sel = true;
  deleteSelection(layout);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].cat, "24188");
}

TEST(DeleteSelection, SurvivesJointsThatLeadNowhere) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  PieceOf(layout, table).joints = {{.target = 999, .tconn = -7}, {.target = -12, .tconn = 3}};
  const std::int32_t stays = LayPiece(layout, "no such part", {});
  PieceOf(layout, stays).joints = {{.target = 999, .tconn = 1 << 30}};
  addGradeRun(layout, 2.0, table, 0);
  Select(layout, {table});
  deleteSelection(layout);
  EXPECT_EQ(PieceIds(layout), (std::vector<std::int32_t>{stays}));
  EXPECT_EQ(JointOf(layout, stays, 0).target, 999) << "it named no deleted piece";
  EXPECT_TRUE(layout.gradeRuns.empty());
}

TEST(SelectPairPartners, SelectsThePairedPieceJoinedToASelectedOne) {
  Layout layout;
  const auto pair = LayRow(layout, "74618", 2);
  Select(layout, {pair[0]});
  selectPairPartners(layout);
  EXPECT_EQ(SelectedIds(layout), pair);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(SelectPairPartners, LeavesNeighboursThatAreNotPaired) {
  Layout layout;
  const std::int32_t ramp = LayPiece(layout, "74618", {});
  const std::int32_t plain = LayPiece(layout, "24188", {});
  joinPieces(layout, ramp, 1, plain, 0);
  Select(layout, {ramp});
  selectPairPartners(layout);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{ramp}));
  Select(layout, {plain});
  PieceOf(layout, ramp).sel = false;
  selectPairPartners(layout);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{plain}));
}

TEST(SelectPairPartners, GoesOnFromPartnersThatComeLaterInTheList) {
  Layout layout;
  const auto row = LayRow(layout, "74618", 4);
  Select(layout, {row[0]});
  selectPairPartners(layout);
  EXPECT_EQ(SelectedIds(layout), row);
}

TEST(SelectPairPartners, StopsAtPartnersThatCameEarlierInTheList) {
  Layout layout;
  const auto row = LayRow(layout, "74618", 4);
  Select(layout, {row[3]});
  selectPairPartners(layout);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{row[2], row[3]}));
}

TEST(SelectPairPartners, SurvivesJointsThatLeadNowhere) {
  Layout layout;
  const std::int32_t ramp = LayPiece(layout, "74618", {});
  PieceOf(layout, ramp).joints = {{.target = 999, .tconn = 0}, {.target = -5, .tconn = 0}};
  Select(layout, {ramp});
  selectPairPartners(layout);
  EXPECT_EQ(SelectedIds(layout), (std::vector<std::int32_t>{ramp}));
}

TEST(HasDeletableSelection, IsTrueForEachKindAndForShapesOnlyWhenAsked) {
  Layout layout = TwoOfEach();
  ClearSelection(layout);
  EXPECT_FALSE(hasDeletableSelection(layout, true));
  layout.shapes[1].sel = true;
  EXPECT_TRUE(hasDeletableSelection(layout, true));
  EXPECT_FALSE(hasDeletableSelection(layout, false));
  layout.shapes[1].sel = false;
  for (bool* const flag : {&layout.pieces[1].sel, &layout.scenery[1].sel, &layout.labels[1].sel,
                           &layout.measurements[1].sel}) {
    *flag = true;
    EXPECT_TRUE(hasDeletableSelection(layout, false));
    EXPECT_TRUE(hasDeletableSelection(layout, true));
    *flag = false;
  }
}

}  // namespace
}  // namespace vantrel
