#include "canvas/operations/grades.h"

#include <gtest/gtest.h>

#include <cmath>

#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

// sin 2 degrees = 0.0348995: a straight of 188.3 mm climbs by 6.5716 mm.

namespace vantrel {
namespace {

// Straights 24188 joined connector 1 to connector 0, with these grades, all at z 0.
std::vector<std::int32_t> LayChain(Layout& layout, const std::vector<double>& grades) {
  std::vector<std::int32_t> ids;
  for (const double grade : grades) {
    ids.push_back(LayPiece(layout, "24188", {}));
    PieceOf(layout, ids.back()).grade = grade;
    if (ids.size() > 1) joinPieces(layout, ids[ids.size() - 2], 1, ids.back(), 0);
  }
  return ids;
}

std::vector<std::int32_t> LayFlatChain(Layout& layout, std::size_t count) {
  return LayChain(layout, std::vector<double>(count, 0.0));
}

double HeightOf(Layout& layout, std::int32_t id) {
  return PieceOf(layout, id).z;
}

TEST(StartGrade, PutsARunInForceOnThePieceAndGivesItTheSlope) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).z = 30.0;
  EXPECT_TRUE(startGrade(layout, piece, -2.5));
  EXPECT_EQ(PieceOf(layout, piece).grade, -2.5);
  EXPECT_EQ(HeightOf(layout, piece), 30.0) << "its own height stays";
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = -2.5, .anchor = piece, .conn = 0}));
  EXPECT_EQ(layout.currentGrade,
            (CurrentGrade{.active = true, .deg = -2.5, .anchor = piece, .conn = 0}));
}

TEST(StartGrade, NamesConnector0EvenWhenThatEndIsJoined) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 2);
  startGrade(layout, chain[1], 2.0);
  EXPECT_EQ(layout.gradeRuns[0].conn, 0);
}

TEST(StartGrade, LeavesTheNeighboursAsTheyAre) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 3);
  startGrade(layout, chain[1], 2.0);
  EXPECT_EQ(HeightOf(layout, chain[2]), 0.0);
  EXPECT_EQ(PieceOf(layout, chain[2]).grade, 0.0);
  EXPECT_EQ(PieceOf(layout, chain[0]).grade, 0.0);
}

TEST(StartGrade, OnAnAnchorChangesItsRunAndLeavesOthersInForce) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 2);
  startGrade(layout, chain[0], 2.0);
  startGrade(layout, chain[1], 3.0);
  startGrade(layout, chain[0], 5.0);
  ASSERT_EQ(layout.gradeRuns.size(), 2u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 5.0, .anchor = chain[0], .conn = 0}));
  EXPECT_EQ(layout.currentGrade.anchor, chain[1]);
}

TEST(StartGrade, AllowsMoreThan6Degrees) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  EXPECT_TRUE(startGrade(layout, piece, 20.0));
  EXPECT_EQ(PieceOf(layout, piece).grade, 20.0);
}

TEST(StartGrade, TakesNoUndoStepSoThatUndoRestoresTheEarlierOne) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  startGrade(layout, piece, 2.0);
  EXPECT_TRUE(layout.undoHistory.empty());
  Undo(layout);
  EXPECT_EQ(PieceOf(layout, piece).grade, 2.0) << "nothing to undo: the grade stays";
  EXPECT_EQ(layout.gradeRuns.size(), 1u);

  PushUndo(layout);
  layout.labels.push_back({.id = TakeId(layout)});
  startGrade(layout, piece, 4.0);
  Undo(layout);
  EXPECT_TRUE(layout.labels.empty());
  EXPECT_EQ(PieceOf(layout, piece).grade, 2.0) << "the step before the label knew the first grade";
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].deg, 2.0);
}

TEST(Grades, DoNothingForAPieceThatDoesNotExist) {
  Layout layout;
  LayFlatChain(layout, 2);
  layout.gradeRuns = {{.deg = 2.0, .anchor = 99, .conn = 0}};
  SyncCurrentGrade(layout);
  const std::vector<Piece> before = layout.pieces;
  EXPECT_FALSE(startGrade(layout, 99, 2.0));
  EXPECT_FALSE(endGrade(layout, 99));
  EXPECT_FALSE(recalcElevation(layout, 99));
  EXPECT_FALSE(endGrade(layout, -1));
  EXPECT_EQ(layout.pieces, before);
  EXPECT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(Grades, CarryAClimbOverStraightAndCurveToAFlatBridgeAndOnFromARamp) {
  Layout layout;
  const std::int32_t straight = LayPiece(layout, "24188", {});
  PieceOf(layout, straight).sel = true;
  startGrade(layout, straight, 2.0);
  // The far end of the straight: 188.3 * 0.0348995 = 6.5716.
  const std::int32_t curve = autoConnectPart(layout, "24130");
  EXPECT_NEAR(HeightOf(layout, curve), 6.57, 0.01);
  EXPECT_EQ(PieceOf(layout, curve).grade, 2.0);
  // The curve climbs by its chord along x, 180 mm: 180 * 0.0348995 = 6.2819; 12.8535 in all.
  const std::int32_t bridge = autoConnectPart(layout, "74636");
  EXPECT_NEAR(HeightOf(layout, bridge), 12.85, 0.01);
  EXPECT_EQ(PieceOf(layout, bridge).grade, 0.0);
  EXPECT_TRUE(layout.gradeRuns.empty()) << "a flat bridge ends the run";
  // The bridge is level, and no run goes on from it.
  const std::int32_t ramp = autoConnectPart(layout, "74623");
  EXPECT_NEAR(HeightOf(layout, ramp), 12.85, 0.01);
  EXPECT_EQ(PieceOf(layout, ramp).grade, 0.0);
  // A new run on the ramp climbs by 437.5 sin 30 = 218.75 mm of chord: 7.6343; 20.4878 in all.
  startGrade(layout, ramp, 2.0);
  const std::int32_t after = autoConnectPart(layout, "24188");
  EXPECT_NEAR(HeightOf(layout, after), 20.49, 0.01);
  EXPECT_EQ(layout.currentGrade.anchor, after);
}

TEST(Grades, CarryAClimbOverARampWithoutABridgeBetween) {
  Layout layout;
  const std::int32_t straight = LayPiece(layout, "24188", {});
  PieceOf(layout, straight).sel = true;
  startGrade(layout, straight, 2.0);
  const std::int32_t ramp = autoConnectPart(layout, "74623");
  EXPECT_NEAR(HeightOf(layout, ramp), 6.57, 0.01);
  EXPECT_EQ(PieceOf(layout, ramp).grade, 2.0);
  const std::int32_t after = autoConnectPart(layout, "24188");
  EXPECT_NEAR(HeightOf(layout, after), 14.21, 0.01);  // 6.5716 + 7.6343
}

TEST(EndGrade, InMidChainFlattensThePieceLaysTheFlatOnesAnewAndEndsTheRunAhead) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 2.0, 0.0, 0.0, 3.0, 0.0});
  PieceOf(layout, chain[0]).z = 10.0;
  PieceOf(layout, chain[1]).z = 99.0;
  PieceOf(layout, chain[3]).z = 77.0;
  PieceOf(layout, chain[4]).z = 55.0;
  const std::int32_t elsewhere = LayPiece(layout, "24188", {});
  addGradeRun(layout, 1.0, elsewhere, 0);
  addGradeRun(layout, 3.0, chain[4], 1);
  EXPECT_TRUE(endGrade(layout, chain[1]));
  EXPECT_EQ(PieceOf(layout, chain[1]).grade, 0.0);
  EXPECT_NEAR(HeightOf(layout, chain[1]), 16.5716, 1e-4);  // the first one's far end
  EXPECT_NEAR(HeightOf(layout, chain[2]), 16.5716, 1e-4);
  EXPECT_NEAR(HeightOf(layout, chain[3]), 16.5716, 1e-4);
  EXPECT_EQ(HeightOf(layout, chain[4]), 55.0) << "it has a grade of its own";
  EXPECT_EQ(HeightOf(layout, chain[5]), 0.0);
  EXPECT_EQ(PieceOf(layout, chain[0]).grade, 2.0);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, elsewhere);
  EXPECT_EQ(layout.currentGrade.anchor, elsewhere);
}

TEST(EndGrade, EndsTheRunAnchoredOnThePieceItself) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 2.0});
  addGradeRun(layout, 2.0, chain[1], 1);
  endGrade(layout, chain[1]);
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_FALSE(layout.currentGrade.active);
}

TEST(EndGrade, EndsOnlyTheFirstRunAheadButAllWithThatAnchor) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 4);
  layout.gradeRuns = {{.deg = 1.0, .anchor = chain[0], .conn = 0},
                      {.deg = 2.0, .anchor = chain[2], .conn = 0},
                      {.deg = 3.0, .anchor = chain[3], .conn = 0},
                      {.deg = 4.0, .anchor = chain[2], .conn = 1}};
  endGrade(layout, chain[1]);
  ASSERT_EQ(layout.gradeRuns.size(), 2u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, chain[0]) << "a run behind stays";
  EXPECT_EQ(layout.gradeRuns[1].anchor, chain[3]);
}

TEST(EndGrade, EndsNoRunWhenTheChainHoldsNone) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 3);
  const std::int32_t elsewhere = LayPiece(layout, "24188", {});
  addGradeRun(layout, 1.0, elsewhere, 0);
  endGrade(layout, chain[0]);
  EXPECT_EQ(layout.gradeRuns.size(), 1u);
}

TEST(EndGrade, FindsARun100PiecesAheadButNotFarther) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 103);
  addGradeRun(layout, 2.0, chain[101], 1);
  endGrade(layout, chain[0]);
  EXPECT_EQ(layout.gradeRuns.size(), 1u) << "101 pieces ahead";
  endGrade(layout, chain[1]);
  EXPECT_TRUE(layout.gradeRuns.empty()) << "100 pieces ahead";
}

TEST(EndGrade, FindsTheRunBeyondAPieceWithItsOwnGrade) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 4.0, 0.0});
  addGradeRun(layout, 2.0, chain[2], 1);
  endGrade(layout, chain[0]);
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_EQ(HeightOf(layout, chain[2]), 0.0) << "the heights end at the piece with a grade";
}

TEST(EndGrade, DoesNotLookForARunInABranch) {
  Layout layout;
  const std::int32_t turnout = LayPiece(layout, "24611", {});
  const std::int32_t branch = LayPiece(layout, "24188", {});
  joinPieces(layout, turnout, 2, branch, 0);
  PieceOf(layout, branch).z = 40.0;
  addGradeRun(layout, 2.0, branch, 1);
  endGrade(layout, turnout);
  EXPECT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(HeightOf(layout, branch), 40.0);
}

TEST(EndGrade, IsOneUndoStepThatBringsSlopeHeightsAndRunBack) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 2.0, 0.0});
  PieceOf(layout, chain[2]).z = 70.0;
  addGradeRun(layout, 2.0, chain[1], 1);
  const std::vector<Piece> before = layout.pieces;
  endGrade(layout, chain[1]);
  ASSERT_NE(layout.pieces, before);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.currentGrade.anchor, chain[1]);
}

TEST(RecalcElevation, LaysThePieceAtTheFarEndOfTheOneBeforeAndKeepsItsGradeAndRun) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 2.0, 0.0, 0.0});
  PieceOf(layout, chain[0]).z = 100.0;
  addGradeRun(layout, 2.0, chain[1], 1);
  EXPECT_TRUE(recalcElevation(layout, chain[1]));
  EXPECT_NEAR(HeightOf(layout, chain[1]), 106.5716, 1e-4);
  // The next takes the grade of this one; from there on all is level.
  EXPECT_NEAR(HeightOf(layout, chain[2]), 113.1432, 1e-4);
  EXPECT_NEAR(HeightOf(layout, chain[3]), 113.1432, 1e-4);
  EXPECT_EQ(PieceOf(layout, chain[1]).grade, 2.0);
  EXPECT_EQ(HeightOf(layout, chain[0]), 100.0);
  EXPECT_EQ(layout.gradeRuns.size(), 1u);
}

TEST(RecalcElevation, KeepsTheHeightOfAPieceThatNothingComesBefore) {
  Layout layout;
  const auto chain = LayChain(layout, {-2.0, 0.0});
  PieceOf(layout, chain[0]).z = 50.0;
  recalcElevation(layout, chain[0]);
  EXPECT_EQ(HeightOf(layout, chain[0]), 50.0);
  EXPECT_NEAR(HeightOf(layout, chain[1]), 43.4284, 1e-4);
}

TEST(RecalcElevation, OnAChainOf250PiecesStopsAfter200) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 250);
  PieceOf(layout, chain[0]).z = 10.0;
  recalcElevation(layout, chain[0]);
  EXPECT_EQ(HeightOf(layout, chain[1]), 10.0);
  EXPECT_EQ(HeightOf(layout, chain[200]), 10.0);
  EXPECT_EQ(HeightOf(layout, chain[201]), 0.0);
}

TEST(RecalcElevation, StopsAtAPieceWithItsOwnGradeEitherWay) {
  for (const double grade : {0.0011, -0.0011, 2.0, -2.0}) {
    Layout layout;
    const auto chain = LayChain(layout, {0.0, grade, 0.0});
    PieceOf(layout, chain[0]).z = 10.0;
    recalcElevation(layout, chain[0]);
    EXPECT_EQ(HeightOf(layout, chain[1]), 0.0) << grade;
    EXPECT_EQ(HeightOf(layout, chain[2]), 0.0) << grade;
  }
}

TEST(RecalcElevation, TakesAGradeOfAThousandthForLevel) {
  Layout layout;
  const auto chain = LayChain(layout, {0.0, 0.001, -0.001});
  PieceOf(layout, chain[0]).z = 10.0;
  recalcElevation(layout, chain[0]);
  EXPECT_EQ(HeightOf(layout, chain[1]), 10.0);
  // 188.3 * sin 0.001 degrees = 188.3 * 0.0000174533 = 0.0032865
  EXPECT_NEAR(HeightOf(layout, chain[2]), 10.0032865, 1e-7);
}

TEST(RecalcElevation, ClimbsOverACurveByItsChord) {
  Layout layout;
  const std::int32_t curve = LayPiece(layout, "24130", {});
  const std::int32_t next = LayPiece(layout, "24188", {});
  joinPieces(layout, curve, 1, next, 0);
  PieceOf(layout, curve).grade = 2.0;
  recalcElevation(layout, curve);
  EXPECT_NEAR(HeightOf(layout, next), 6.2819, 1e-4);  // 180 mm, not the arc's 188.5
}

TEST(RecalcElevation, DoesNotReadTheSenseOfTheChain) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 2.0, 0.0});
  PieceOf(layout, chain[0]).rev = true;
  PieceOf(layout, chain[1]).rev = true;
  recalcElevation(layout, chain[1]);
  EXPECT_NEAR(HeightOf(layout, chain[1]), 6.5716, 1e-4);
  EXPECT_NEAR(HeightOf(layout, chain[2]), 13.1432, 1e-4);
}

TEST(RecalcElevation, TakesTheFarEndOfThePieceBeforeWhicheverEndIsJoined) {
  Layout layout;
  const std::int32_t before = LayPiece(layout, "24188", {});
  const std::int32_t piece = LayPiece(layout, "24188", {});
  joinPieces(layout, before, 0, piece, 0);
  PieceOf(layout, before).z = 20.0;
  PieceOf(layout, before).grade = 2.0;
  recalcElevation(layout, piece);
  EXPECT_NEAR(HeightOf(layout, piece), 26.5716, 1e-4);
}

TEST(RecalcElevation, WalksAgainstTheSenseOfAPieceThatIsEnteredAtConnector1) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 2);
  const std::int32_t turned = LayPiece(layout, "24188", {});
  joinPieces(layout, chain[1], 1, turned, 1);
  PieceOf(layout, chain[0]).z = 10.0;
  PieceOf(layout, turned).z = 66.0;
  const std::int32_t beyond = LayPiece(layout, "24188", {});
  joinPieces(layout, turned, 0, beyond, 0);
  recalcElevation(layout, chain[0]);
  // Slot 1 of the turned piece leads back again: what is beyond it is never reached.
  EXPECT_EQ(HeightOf(layout, turned), 10.0);
  EXPECT_EQ(HeightOf(layout, beyond), 0.0);
}

TEST(RecalcElevation, TakesTheHeightItselfFromAnUnknownPart) {
  Layout layout;
  const std::int32_t unknown = LayPiece(layout, "no such part", {});
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, unknown).z = 33.0;
  PieceOf(layout, unknown).grade = 5.0;
  PieceOf(layout, piece).joints[0] = {.target = unknown, .tconn = 1};
  recalcElevation(layout, piece);
  EXPECT_EQ(HeightOf(layout, piece), 33.0);
}

TEST(RecalcElevation, FollowsJointsThatAreHeldOnOneSideOnly) {
  Layout layout;
  const std::int32_t before = LayPiece(layout, "24188", {});
  const std::int32_t piece = LayPiece(layout, "24188", {});
  const std::int32_t after = LayPiece(layout, "24188", {});
  PieceOf(layout, before).z = 12.0;
  PieceOf(layout, piece).joints = {{.target = before, .tconn = 77}, {.target = after, .tconn = -3}};
  recalcElevation(layout, piece);
  EXPECT_EQ(HeightOf(layout, piece), 12.0);
  EXPECT_EQ(HeightOf(layout, after), 12.0);
  // Held on the other side only, it leads nowhere.
  PieceOf(layout, before).joints[1] = {.target = piece, .tconn = 0};
  PieceOf(layout, piece).joints.assign(2, Joint{});
  PieceOf(layout, before).z = 90.0;
  recalcElevation(layout, piece);
  EXPECT_EQ(HeightOf(layout, piece), 12.0);
}

TEST(RecalcElevation, EndsAtJointsThatLeadNowhere) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).z = 5.0;
  layout.pieces.push_back({.id = -9, .cat = "24188", .z = 60.0});
  for (const std::int32_t target : {999, -9, -2147483647 - 1, 2147483647}) {
    PieceOf(layout, piece).joints.assign(2, {.target = target, .tconn = 0});
    recalcElevation(layout, piece);
    endGrade(layout, piece);
    EXPECT_EQ(HeightOf(layout, piece), 5.0) << target;
    EXPECT_EQ(layout.pieces[1].z, 60.0) << target;
  }
}

TEST(RecalcElevation, NeedsNoSlots) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).z = 5.0;
  PieceOf(layout, piece).joints.clear();
  EXPECT_TRUE(recalcElevation(layout, piece));
  EXPECT_TRUE(endGrade(layout, piece));
  EXPECT_EQ(HeightOf(layout, piece), 5.0);
  const std::int32_t one = LayPiece(layout, "24188", {});
  PieceOf(layout, one).joints = {{.target = piece, .tconn = 1}};
  recalcElevation(layout, one);
  EXPECT_EQ(HeightOf(layout, one), 5.0);
}

TEST(RecalcElevation, GoesRoundARingBackOverThePieceItself) {
  Layout layout;
  // A straight of 360 mm joined to itself, with a slope that still counts as level: each of the 200
  // steps lifts it by 360 sin 0.001 degrees = 360 * 0.0000174533 = 0.0062832; 1.25664 in all.
  const std::int32_t ring = LayPiece(layout, "24360", {});
  PieceOf(layout, ring).grade = 0.001;
  PieceOf(layout, ring).joints[1] = {.target = ring, .tconn = 0};
  recalcElevation(layout, ring);
  EXPECT_NEAR(HeightOf(layout, ring), 1.25664, 1e-5);
}

TEST(RecalcElevation, InARingStopsBeforeThePieceWithTheGrade) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 0.0, 0.0});
  joinPieces(layout, chain[2], 1, chain[0], 0);
  PieceOf(layout, chain[2]).z = 40.0;
  recalcElevation(layout, chain[0]);
  EXPECT_EQ(HeightOf(layout, chain[0]), 40.0);  // from the piece behind, before that is laid anew
  EXPECT_NEAR(HeightOf(layout, chain[1]), 46.5716, 1e-4);
  EXPECT_NEAR(HeightOf(layout, chain[2]), 46.5716, 1e-4);
}

TEST(RecalcElevation, PassesOnNoHeightThatIsNotANumber) {
  Layout layout;
  const auto chain = LayFlatChain(layout, 4);
  PieceOf(layout, chain[0]).z = std::nan("");
  PieceOf(layout, chain[2]).grade = std::nan("");
  PieceOf(layout, chain[3]).z = 8.0;
  recalcElevation(layout, chain[1]);
  EXPECT_EQ(HeightOf(layout, chain[1]), 0.0);
  EXPECT_EQ(HeightOf(layout, chain[3]), 8.0);
  PieceOf(layout, chain[1]).grade = HUGE_VAL;
  PieceOf(layout, chain[2]).grade = 0.0;
  recalcElevation(layout, chain[1]);
  EXPECT_EQ(HeightOf(layout, chain[2]), 0.0);
}

TEST(RecalcElevation, IsOneUndoStep) {
  Layout layout;
  const auto chain = LayChain(layout, {2.0, 0.0});
  const std::vector<Piece> before = layout.pieces;
  recalcElevation(layout, chain[0]);
  ASSERT_NE(layout.pieces, before);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
}

}  // namespace
}  // namespace vantrel
