#include "canvas/operations/elevation.h"

#include <gtest/gtest.h>

#include "canvas/operations/joining.h"
#include "tests/operations/plan_support.h"

// sin 2 degrees = 0.0348995, so 188.3 mm of straight climb by 6.5716 mm and 180 mm by 6.2819 mm.

namespace vantrel {
namespace {

// A straight 24188 with a grade run in force, as the panel's button starts one.
std::int32_t LayAnchor(Layout& layout, double deg, double z = 0.0) {
  const std::int32_t id = LayPiece(layout, "24188", {});
  PieceOf(layout, id).z = z;
  PieceOf(layout, id).grade = deg;
  addGradeRun(layout, deg, id, 0);
  return id;
}

std::int32_t Join(Layout& layout, std::string_view part, std::int32_t own, std::int32_t target,
                  std::int32_t targetConnector) {
  const std::int32_t id = LayPiece(layout, part, {});
  joinPieces(layout, id, own, target, targetConnector);
  applyJoinElevation(layout, id, target, targetConnector, own);
  return id;
}

TEST(PieceRise, IsTheLengthOfAStraight) {
  EXPECT_EQ(pieceRise(*findPart("24188")), 188.3);
}

TEST(PieceRise, OfACurveIsItsChordAlongXAndNotItsArc) {
  EXPECT_NEAR(pieceRise(*findPart("24130")), 180.0, 1e-9);  // the arc has 188.4956
}

TEST(PieceRise, OfATurnoutIsItsStraightRoute) {
  EXPECT_EQ(pieceRise(*findPart("24611")), 188.3);
  EXPECT_EQ(pieceRise(*findPart("24671")), 180.0);  // curved turnout: its nearer end
}

TEST(PieceRise, IsTheLengthWhenConnector1LiesNotAhead) {
  PieceDef def;
  def.length = 50.0;
  def.radius = 100.0;
  def.connectors = {{.x = 0.0}, {.x = 1.0}};
  EXPECT_EQ(pieceRise(def), 50.0);
  def.connectors[1].x = 1.5;
  EXPECT_EQ(pieceRise(def), 1.5);
  def.radius = 0.0;
  EXPECT_EQ(pieceRise(def), 50.0);
  def.radius = 100.0;
  def.connectors.pop_back();
  EXPECT_EQ(pieceRise(def), 50.0);
}

TEST(ExitElevation, IsTheHeightAtConnector0AndTheFarHeightAtAnyOther) {
  Piece piece;
  piece.z = 40.0;
  piece.grade = 2.0;
  const PieceDef& turnout = *findPart("24611");
  EXPECT_EQ(exitElevation(piece, turnout, 0), 40.0);
  EXPECT_NEAR(exitElevation(piece, turnout, 1), 46.5716, 1e-4);
  EXPECT_NEAR(exitElevation(piece, turnout, 2), 46.5716, 1e-4);
}

TEST(ExitElevation, FallsTowardTheFarEndOfAReversedPiece) {
  Piece piece;
  piece.z = 40.0;
  piece.grade = 2.0;
  piece.rev = true;
  EXPECT_NEAR(exitElevation(piece, *findPart("24188"), 1), 33.4284, 1e-4);
  EXPECT_EQ(exitElevation(piece, *findPart("24188"), 0), 40.0);
}

TEST(ApplyJoinElevation, ContinuesAClimbOf2DegreesFromTheFarEnd) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  const std::int32_t clone = Join(layout, "24188", 0, anchor, 1);
  EXPECT_NEAR(PieceOf(layout, clone).z, 6.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, clone).grade, 2.0);
  EXPECT_FALSE(PieceOf(layout, clone).rev);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = clone, .conn = 1}));
  EXPECT_EQ(layout.currentGrade.anchor, clone);
  EXPECT_EQ(layout.currentGrade.conn, 1);
  // and once more: twice the climb
  const std::int32_t next = Join(layout, "24188", 0, clone, 1);
  EXPECT_NEAR(PieceOf(layout, next).z, 13.1432, 1e-4);
  EXPECT_EQ(layout.gradeRuns[0].anchor, next);
}

TEST(ApplyJoinElevation, ContinuesADescentTheSameWay) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, -2.0);
  const std::int32_t clone = Join(layout, "24188", 0, anchor, 1);
  EXPECT_NEAR(PieceOf(layout, clone).z, -6.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, clone).grade, -2.0);
  EXPECT_EQ(layout.gradeRuns[0].anchor, clone);
}

TEST(ApplyJoinElevation, ReversesAPieceThatTheRunEntersAtConnector1) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0, 100.0);
  // e = 106.5716 at the anchor's far end; the curve's own rise is 6.2819.
  const std::int32_t curve = Join(layout, "24130", 1, anchor, 1);
  const Piece& piece = PieceOf(layout, curve);
  EXPECT_NEAR(piece.z, 112.8535, 1e-4);
  EXPECT_TRUE(piece.rev);
  EXPECT_EQ(piece.grade, 2.0);
  EXPECT_NEAR(exitElevation(piece, *findPart("24130"), 1), 106.5716, 1e-4);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = curve, .conn = 0}));
  // The chain goes on from connector 0, whose height is z.
  const std::int32_t next = Join(layout, "24188", 0, curve, 0);
  EXPECT_NEAR(PieceOf(layout, next).z, 112.8535, 1e-4);
}

TEST(ApplyJoinElevation, GoesThroughATurnoutJoinedByItsBranchInTheForwardSense) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  const std::int32_t turnout = Join(layout, "24611", 2, anchor, 1);
  EXPECT_NEAR(PieceOf(layout, turnout).z, 6.5716, 1e-4);
  EXPECT_FALSE(PieceOf(layout, turnout).rev);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = turnout, .conn = 1}));
}

TEST(ApplyJoinElevation, LetsACurveRiseByItsChord) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  const std::int32_t curve = Join(layout, "24130", 0, anchor, 1);
  const std::int32_t after = Join(layout, "24188", 0, curve, 1);
  // 6.5716 + 180 sin 2 = 12.8535; by the arc it would be 13.1500.
  EXPECT_NEAR(PieceOf(layout, after).z, 12.8535, 1e-4);
}

TEST(ApplyJoinElevation, EndsTheRunAtAFlatBridgeThatLiesLevelAtTheExitHeight) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  const std::int32_t bridge = Join(layout, "74636", 0, anchor, 1);
  EXPECT_NEAR(PieceOf(layout, bridge).z, 6.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, bridge).grade, 0.0);
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_FALSE(layout.currentGrade.active);
  const std::int32_t after = Join(layout, "24188", 0, bridge, 1);
  EXPECT_NEAR(PieceOf(layout, after).z, 6.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, after).grade, 0.0);
}

TEST(ApplyJoinElevation, EndsOnlyTheRunThatTheFlatBridgeJoins) {
  Layout layout;
  const std::int32_t other = LayAnchor(layout, 1.0);
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  Join(layout, "74636", 0, anchor, 1);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, other);
  EXPECT_EQ(layout.currentGrade.anchor, other);
}

TEST(ApplyJoinElevation, GoesOnOverARamp) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  const std::int32_t ramp = Join(layout, "74618", 0, anchor, 1);
  EXPECT_NEAR(PieceOf(layout, ramp).z, 6.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, ramp).grade, 2.0);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, ramp);
  const std::int32_t after = Join(layout, "24188", 0, ramp, 1);
  EXPECT_NEAR(PieceOf(layout, after).z, 12.8535, 1e-4);  // 6.5716 + 180 sin 2
}

TEST(ApplyJoinElevation, AtConnector0OfTheAnchorStartsFromTheAnchorsOwnHeight) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0, 50.0);
  // The connector doesn't matter to the run: it moves on to the first piece joined.
  const std::int32_t first = Join(layout, "24188", 0, anchor, 0);
  EXPECT_EQ(PieceOf(layout, first).z, 50.0);
  EXPECT_EQ(PieceOf(layout, first).grade, 2.0);
  EXPECT_EQ(layout.gradeRuns[0].anchor, first);
  // The second finds no run at the anchor any more and stays flat.
  const std::int32_t second = Join(layout, "24188", 1, anchor, 0);
  EXPECT_EQ(PieceOf(layout, second).z, 50.0);
  EXPECT_EQ(PieceOf(layout, second).grade, 0.0);
  EXPECT_EQ(layout.gradeRuns[0].anchor, first);
}

TEST(ApplyJoinElevation, WithoutARunTakesTheExitHeightAndStaysFlat) {
  Layout layout;
  const std::int32_t target = LayPiece(layout, "24188", {});
  PieceOf(layout, target).z = 30.0;
  PieceOf(layout, target).grade = 2.0;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).grade = 4.0;
  applyJoinElevation(layout, piece, target, 1, 0);
  EXPECT_NEAR(PieceOf(layout, piece).z, 36.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, piece).grade, 0.0);
}

TEST(ApplyJoinElevation, LeavesTheSenseOfAFlatPieceAndOfABridgeAsItWas) {
  Layout layout;
  const std::int32_t target = LayPiece(layout, "24188", {});
  const std::int32_t plain = LayPiece(layout, "24188", {});
  const std::int32_t bridge = LayPiece(layout, "74636", {});
  PieceOf(layout, plain).rev = true;
  PieceOf(layout, bridge).rev = true;
  applyJoinElevation(layout, plain, target, 1, 0);
  applyJoinElevation(layout, bridge, target, 1, 1);
  EXPECT_TRUE(PieceOf(layout, plain).rev);
  EXPECT_TRUE(PieceOf(layout, bridge).rev);
}

TEST(ApplyJoinElevation, MovesTheFirstOfSeveralRunsWithOneAnchor) {
  Layout layout;
  const std::int32_t anchor = LayPiece(layout, "24188", {});
  layout.gradeRuns = {{.deg = 2.0, .anchor = anchor, .conn = 0},
                      {.deg = 5.0, .anchor = anchor, .conn = 0}};
  const std::int32_t piece = Join(layout, "24188", 0, anchor, 1);
  EXPECT_EQ(PieceOf(layout, piece).grade, 2.0);
  EXPECT_EQ(layout.gradeRuns[0].anchor, piece);
  EXPECT_EQ(layout.gradeRuns[1].anchor, anchor);
}

TEST(ApplyJoinElevation, OfAnUnknownPartRunsOnWithoutARiseOfItsOwn) {
  Layout layout;
  const std::int32_t anchor = LayAnchor(layout, 2.0);
  const std::int32_t piece = LayPiece(layout, "no such part", {});
  applyJoinElevation(layout, piece, anchor, 1, 1);
  EXPECT_NEAR(PieceOf(layout, piece).z, 6.5716, 1e-4);
  EXPECT_EQ(PieceOf(layout, piece).grade, 2.0);
  EXPECT_TRUE(PieceOf(layout, piece).rev);
}

TEST(ApplyJoinElevation, DoesNothingWithoutATargetOrItsDefinition) {
  Layout layout;
  const std::int32_t unknown = LayPiece(layout, "no such part", {});
  PieceOf(layout, unknown).z = 80.0;
  addGradeRun(layout, 2.0, unknown, 0);
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).z = 12.0;
  PieceOf(layout, piece).grade = 3.0;
  const std::vector<Piece> before = layout.pieces;
  applyJoinElevation(layout, piece, unknown, 1, 0);
  applyJoinElevation(layout, piece, 99, 1, 0);
  applyJoinElevation(layout, 99, piece, 1, 0);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_EQ(layout.gradeRuns[0].anchor, unknown);
}

TEST(AddGradeRun, AppendsARunAndMakesItCurrent) {
  Layout layout;
  addGradeRun(layout, 2.0, 5, 0);
  addGradeRun(layout, -1.5, 8, 1);
  ASSERT_EQ(layout.gradeRuns.size(), 2u);
  EXPECT_EQ(layout.gradeRuns[1], (GradeRun{.deg = -1.5, .anchor = 8, .conn = 1}));
  EXPECT_EQ(layout.currentGrade,
            (CurrentGrade{.active = true, .deg = -1.5, .anchor = 8, .conn = 1}));
}

TEST(AddGradeRun, ChangesTheRunThatHasTheAnchorAlready) {
  Layout layout;
  addGradeRun(layout, 2.0, 5, 0);
  addGradeRun(layout, -1.5, 8, 1);
  addGradeRun(layout, 4.0, 5, 1);
  ASSERT_EQ(layout.gradeRuns.size(), 2u);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 4.0, .anchor = 5, .conn = 1}));
  EXPECT_EQ(layout.currentGrade.anchor, 8) << "the last run stays the current one";
}

TEST(RemoveGradeRun, RemovesEveryRunWithTheAnchor) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1.0, .anchor = 5, .conn = 0},
                      {.deg = 2.0, .anchor = 6, .conn = 0},
                      {.deg = 3.0, .anchor = 5, .conn = 1}};
  SyncCurrentGrade(layout);
  removeGradeRun(layout, 5);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, 6);
  EXPECT_EQ(layout.currentGrade.anchor, 6);
  removeGradeRun(layout, 6);
  EXPECT_FALSE(layout.currentGrade.active);
}

}  // namespace
}  // namespace vantrel
