#include "canvas/operations/extending.h"

#include <gtest/gtest.h>

#include <cmath>

#include "canvas/operations/elevation.h"
#include "canvas/operations/grades.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

std::int32_t CloneOf(Layout& layout, std::int32_t id) {
  const CloneResult result = clonePiece(layout, id);
  EXPECT_EQ(result.outcome, CloneOutcome::cloned);
  return result.clone;
}

// The piece is asked to be cloned in vain, and nothing changes.
void ExpectRefused(Layout& layout, std::int32_t id, CloneOutcome outcome) {
  const std::vector<Piece> before = layout.pieces;
  const CloneResult result = clonePiece(layout, id);
  EXPECT_EQ(result.outcome, outcome);
  EXPECT_EQ(result.clone, kNone);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(ClonePiece, ContinuesTheBendOfACurveFromConnector1InTheSameSense) {
  Layout layout;
  const std::int32_t curve = LayPiece(layout, "24130", {});
  // Radius 360 through 30 degrees: 360 sin 30 = 180, 360 (1 - cos 30) = 48.2309.
  const std::int32_t clone = CloneOf(layout, curve);
  ExpectPose(PieceOf(layout, clone).pose(), 180.0, 48.2309, 30.0, 1e-4);
  EXPECT_EQ(PieceOf(layout, clone).cat, "24130");
  EXPECT_EQ(JointOf(layout, curve, 1), (Joint{.target = clone, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, clone, 0), (Joint{.target = curve, .tconn = 1}));
  EXPECT_EQ(BrokenJoint(layout), "");
  // And through 60 degrees: 360 sin 60 = 311.7691, 360 (1 - cos 60) = 180.
  const std::int32_t next = CloneOf(layout, clone);
  ExpectPose(PieceOf(layout, next).pose(), 311.7691, 180.0, 60.0, 1e-4);
}

TEST(ClonePiece, GoesToConnector0WithTheFarEndOfTheCloneWhenConnector1IsTaken) {
  Layout layout;
  const std::int32_t first = LayPiece(layout, "24188", {});
  const std::int32_t second = LayPiece(layout, "24172", {188.3, 0.0, 0.0});
  joinPieces(layout, first, 1, second, 0);
  const std::int32_t clone = CloneOf(layout, first);
  ExpectPose(PieceOf(layout, clone).pose(), -188.3, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, first, 0), (Joint{.target = clone, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, first, 1).target, second);
}

TEST(ClonePiece, ChangesNothingWithBothEndsJoined) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
  const std::int32_t b = LayPiece(layout, "24188", {});
  const std::int32_t c = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  joinPieces(layout, b, 1, c, 0);
  PieceOf(layout, a).sel = true;
  ExpectRefused(layout, b, CloneOutcome::noFreeEnd);
}

TEST(ClonePiece, NeverExtendsABranch) {
  Layout layout;
  const std::int32_t turnout = LayPiece(layout, "24611", {});
  const std::int32_t before = LayPiece(layout, "24188", {});
  const std::int32_t after = LayPiece(layout, "24188", {});
  joinPieces(layout, turnout, 0, before, 1);
  joinPieces(layout, turnout, 1, after, 0);
  ExpectRefused(layout, turnout, CloneOutcome::noFreeEnd);
}

TEST(ClonePiece, TakesAnEndForJoinedThatOnlyTheOtherPieceNames) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  const std::int32_t other = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  PieceOf(layout, other).joints[0] = {.target = piece, .tconn = 1};
  const std::int32_t clone = CloneOf(layout, piece);
  EXPECT_EQ(JointOf(layout, piece, 0).target, clone);
  EXPECT_TRUE(JointOf(layout, piece, 1).open());
}

TEST(ClonePiece, FindsNoFreeEndWhenOneIsHeldHereAndTheOtherOnlyOverThere) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  const std::int32_t other = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).joints[1] = {.target = 999, .tconn = 0};  // a piece that is gone
  PieceOf(layout, other).joints[1] = {.target = piece, .tconn = 0};
  ExpectRefused(layout, piece, CloneOutcome::noFreeEnd);
}

TEST(ClonePiece, IsNotBlockedByAJointOfThePieceToItself) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24611", {});
  PieceOf(layout, piece).joints[2] = {.target = piece, .tconn = 1};
  const std::int32_t clone = CloneOf(layout, piece);
  EXPECT_EQ(JointOf(layout, piece, 1).target, clone);
}

TEST(ClonePiece, DoesNotApplyToAHelixStub) {
  Layout layout;
  const std::int32_t stub = LayPiece(layout, "24188", {});
  PieceOf(layout, stub).helix = 12;
  ExpectRefused(layout, stub, CloneOutcome::notApplicable);
}

TEST(ClonePiece, DoesNotApplyToAnUnknownPartOrAMissingPiece) {
  Layout layout;
  const std::int32_t unknown = LayPiece(layout, "no such part", {});
  ExpectRefused(layout, unknown, CloneOutcome::notApplicable);
  ExpectRefused(layout, 999, CloneOutcome::notApplicable);
  ExpectRefused(layout, -1, CloneOutcome::notApplicable);
}

TEST(ClonePiece, GivesThePieceItsMissingSlotsEvenWhenItFindsNoFreeEnd) {
  Layout layout;
  const std::int32_t turnout = LayPiece(layout, "24611", {});
  PieceOf(layout, turnout).joints = {{.target = 50, .tconn = 0}, {.target = 51, .tconn = 0}};
  EXPECT_EQ(clonePiece(layout, turnout).outcome, CloneOutcome::noFreeEnd);
  EXPECT_EQ(PieceOf(layout, turnout).joints.size(), 3u);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(ClonePiece, TreatsMissingSlotsAsOpenAndKeepsSlotsBeyondTheConnectors) {
  Layout layout;
  const std::int32_t bare = LayPiece(layout, "24188", {});
  PieceOf(layout, bare).joints.clear();
  EXPECT_EQ(JointOf(layout, CloneOf(layout, bare), 0), (Joint{.target = bare, .tconn = 1}));
  const std::int32_t wide = LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  PieceOf(layout, wide).joints.resize(9);
  CloneOf(layout, wide);
  EXPECT_EQ(PieceOf(layout, wide).joints.size(), 9u);
}

TEST(ClonePiece, OfATrackEndJoinsTheTwoFaceToFace) {
  Layout layout;
  const std::int32_t end = LayPiece(layout, "24977", {});
  const std::int32_t clone = CloneOf(layout, end);
  EXPECT_EQ(JointOf(layout, end, 0), (Joint{.target = clone, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, clone, 0), (Joint{.target = end, .tconn = 0}));
  ExpectPose(PieceOf(layout, clone).pose(), 0.0, 0.0, 180.0, 1e-9);
}

TEST(ClonePiece, TakesPartAndLevelButNeitherHeightNorColourNorFreedom) {
  Layout layout;
  const std::int32_t id = LayPiece(layout, "24188", {});
  Piece& piece = PieceOf(layout, id);
  piece.level = 5;
  piece.hasColor = true;
  piece.colorR = 200;
  piece.free = true;
  piece.rev = true;
  const Piece clone = PieceOf(layout, CloneOf(layout, id));
  EXPECT_EQ(clone.level, 5);
  EXPECT_FALSE(clone.hasColor);
  EXPECT_FALSE(clone.free);
  EXPECT_FALSE(clone.rev);
  EXPECT_EQ(clone.helix, kNone);
}

TEST(ClonePiece, IsOneUndoStepAndSelectsTheCloneAlone) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).sel = true;
  layout.scenery.push_back({.id = TakeId(layout), .sel = true});
  const std::vector<Piece> before = layout.pieces;
  const std::int32_t clone = CloneOf(layout, piece);
  EXPECT_FALSE(PieceOf(layout, piece).sel);
  EXPECT_TRUE(PieceOf(layout, clone).sel);
  EXPECT_FALSE(layout.scenery[0].sel);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
}

TEST(ClonePiece, BringsNeitherSpokesNorAPartner) {
  Layout layout;
  CloneOf(layout, LayPiece(layout, "74861", {}));
  CloneOf(layout, LayPiece(layout, "74618", {0.0, 2000.0, 0.0}));
  EXPECT_EQ(layout.pieces.size(), 4u);
}

TEST(ClonePiece, DoesNotAskWhetherSnappingIsOn) {
  Layout layout;
  layout.snapEnabled = false;
  CloneOf(layout, LayPiece(layout, "24188", {}));
  EXPECT_EQ(layout.pieces.size(), 2u);
}

// sin 2 degrees = 0.0348995: 188.3 mm climb by 6.5716 mm.
TEST(ClonePiece, ContinuesAGradeOf2DegreesUp) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  startGrade(layout, piece, 2.0);
  const std::int32_t clone = CloneOf(layout, piece);
  EXPECT_NEAR(PieceOf(layout, clone).z, 6.57, 0.005);
  EXPECT_EQ(PieceOf(layout, clone).grade, 2.0);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, clone);
}

TEST(ClonePiece, ContinuesAGradeOf2DegreesDown) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  startGrade(layout, piece, -2.0);
  const std::int32_t clone = CloneOf(layout, piece);
  EXPECT_NEAR(PieceOf(layout, clone).z, -6.57, 0.005);
  EXPECT_EQ(PieceOf(layout, clone).grade, -2.0);
  EXPECT_EQ(layout.gradeRuns[0].anchor, clone);
}

TEST(ClonePiece, BehindTheAnchorOfARunEntersItAtItsFarEnd) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  const std::int32_t ahead = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, piece, 1, ahead, 0);
  startGrade(layout, piece, 2.0);
  // At the anchor's connector 0 the height is 0; the clone climbs from its connector 1 to its
  // connector 0.
  const Piece clone = PieceOf(layout, CloneOf(layout, piece));
  EXPECT_NEAR(clone.z, 6.57, 0.005);
  EXPECT_TRUE(clone.rev);
  EXPECT_EQ(layout.gradeRuns[0], (GradeRun{.deg = 2.0, .anchor = clone.id, .conn = 0}));
}

TEST(ClonePiece, WithoutARunLiesLevelAtTheExitHeightOfASlope) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24188", {});
  PieceOf(layout, piece).z = 10.0;
  PieceOf(layout, piece).grade = 2.0;
  const Piece clone = PieceOf(layout, CloneOf(layout, piece));
  EXPECT_NEAR(clone.z, 16.57, 0.005);
  EXPECT_EQ(clone.grade, 0.0);
}

TEST(ClonePiece, SurvivesAPieceThatNoNumberPlaces) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24130", {HUGE_VAL, 1e300, HUGE_VAL});
  CloneOf(layout, piece);
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(BrokenJoint(layout), "");
}

// Two joined straights, 1 and 2, that undo has brought back from before New: the counter stands
// at 1.
Layout StraightsFromBeforeNew() {
  Layout layout;
  const std::int32_t first = LayPiece(layout, "24188", {});
  const std::int32_t second = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, first, 1, second, 0);
  StartNewPlan(layout);
  Undo(layout);
  return layout;
}

void ExpectStraightsStillJoined(Layout& layout) {
  EXPECT_EQ(JointOf(layout, 1, 1), (Joint{.target = 2, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 2, 0), (Joint{.target = 1, .tconn = 1}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(Ids, AfterNewAndUndoACloneGetsOneOfItsOwn) {
  Layout layout = StraightsFromBeforeNew();
  EXPECT_EQ(CloneOf(layout, 2), 3);
  EXPECT_EQ(JointOf(layout, 2, 1), (Joint{.target = 3, .tconn = 0}));
  ExpectStraightsStillJoined(layout);
}

TEST(Ids, AfterNewAndUndoAPartOfThePaletteGetsOneOfItsOwn) {
  Layout layout = StraightsFromBeforeNew();
  PieceOf(layout, 2).sel = true;
  EXPECT_EQ(autoConnectPart(layout, "24130"), 3);
  EXPECT_TRUE(PieceOf(layout, 3).sel);
  EXPECT_FALSE(PieceOf(layout, 1).sel);
  ExpectStraightsStillJoined(layout);
}

TEST(Ids, AfterNewAndUndoAFreeDropGetsOneOfItsOwnSoThatItIsTheOneSelected) {
  Layout layout = StraightsFromBeforeNew();
  const std::int32_t id = placePiece(layout, *findPart("24130"), {}, {0.0, 700.0, 0.0});
  EXPECT_EQ(id, 3);
  EXPECT_EQ(PieceOf(layout, id).cat, "24130");
  ExpectStraightsStillJoined(layout);
}

}  // namespace
}  // namespace vantrel
