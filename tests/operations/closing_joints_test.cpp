#include "canvas/operations/closing_joints.h"

#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/joining.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

TEST(ClosingJoints, JoinOpenEndsLessThanFourMillimetresApart) {
  // The spoke is 57.5 mm long.
  for (const double gap : {0.0, 3.99, 4.0, 4.01}) {
    Layout layout;
    const std::int32_t moved = LaySelected(layout, "74871", {0.0, 0.0, 0.0});
    const std::int32_t other = LayPiece(layout, "74871", {57.5 + gap, 0.0, 0.0});
    joinClosingEnds(layout);
    if (gap < 4.0) {
      EXPECT_EQ(JointOf(layout, moved, 1), (Joint{.target = other, .tconn = 0})) << gap;
      EXPECT_EQ(JointOf(layout, other, 0), (Joint{.target = moved, .tconn = 1})) << gap;
    } else {
      EXPECT_TRUE(JointOf(layout, moved, 1).open()) << gap;
      EXPECT_TRUE(JointOf(layout, other, 0).open()) << gap;
    }
  }
}

TEST(ClosingJoints, LookAtNeitherHeadingNorSystemNorLevelNorSnapping) {
  Layout layout;
  layout.snapEnabled = false;
  layout.levels.resize(1);
  layout.levels[0].visible = false;
  const std::int32_t moved = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  // K-Track on a hidden level that runs the same way.
  const std::int32_t other = LayPiece(layout, "2200", {0.0, 1.0, 0.0});
  joinClosingEnds(layout);
  EXPECT_EQ(JointOf(layout, moved, 0), (Joint{.target = other, .tconn = 0}));
}

TEST(ClosingJoints, CloseSeveralEndsAtOnce) {
  Layout layout;
  const std::int32_t left = LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
  const std::int32_t right = LayPiece(layout, "24188", {189.0, 1.0, 0.0});
  const std::int32_t moved = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  joinClosingEnds(layout);
  EXPECT_EQ(JointOf(layout, moved, 0), (Joint{.target = left, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, moved, 1), (Joint{.target = right, .tconn = 0}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(ClosingJoints, OfSeveralMatchesTheLastStandsAndTheOthersOpenAgain) {
  Layout layout;
  const std::int32_t moved = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t nearest = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t middle = LayPiece(layout, "24188", {188.3, 1.0, 90.0});
  const std::int32_t last = LayPiece(layout, "24188", {188.3, 3.0, 45.0});
  joinClosingEnds(layout);
  EXPECT_EQ(JointOf(layout, moved, 1), (Joint{.target = last, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, last, 0), (Joint{.target = moved, .tconn = 1}));
  EXPECT_TRUE(JointOf(layout, nearest, 0).open());
  EXPECT_TRUE(JointOf(layout, middle, 0).open());
}

TEST(ClosingJoints, AnEndOutsideGoesToTheFirstOfTheBlockThatMeetsIt) {
  Layout layout;
  const std::int32_t other = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t first = LaySelected(layout, "24188", {0.0, 3.0, 0.0});
  const std::int32_t second = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  joinClosingEnds(layout);
  EXPECT_EQ(JointOf(layout, other, 0), (Joint{.target = first, .tconn = 1}));
  EXPECT_TRUE(JointOf(layout, second, 1).open());
}

TEST(ClosingJoints, LeaveEndsThatAreJoinedAndThoseWithinTheBlock) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t b = LaySelected(layout, "24188", {188.3, 0.0, 0.0});
  joinClosingEnds(layout);
  EXPECT_TRUE(JointOf(layout, a, 1).open());  // both ends belong to the block
  joinPieces(layout, a, 1, b, 0);
  const std::int32_t c = LayPiece(layout, "24188", {188.3, 0.0, 90.0});
  const std::int32_t d = LayPiece(layout, "24188", {376.6, 0.0, 0.0});
  const std::int32_t e = LayPiece(layout, "24188", {376.6, 0.0, 90.0});
  joinPieces(layout, d, 0, e, 0);
  const std::vector<Piece> before = layout.pieces;
  joinClosingEnds(layout);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(JointOf(layout, c, 0).open());
}

TEST(ClosingJoints, GrowSlotsThatAreMissing) {
  Layout layout;
  const std::int32_t moved = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t other = LayPiece(layout, "24611", {188.3, 0.0, 0.0});
  PieceOf(layout, moved).joints.clear();
  PieceOf(layout, other).joints.clear();
  joinClosingEnds(layout);
  EXPECT_EQ(PieceOf(layout, moved).joints, (std::vector<Joint>{{}, {.target = other, .tconn = 0}}));
  EXPECT_EQ(PieceOf(layout, other).joints,
            (std::vector<Joint>{{.target = moved, .tconn = 1}, {}, {}}));
}

TEST(ClosingJoints, OpenWhatADamagedPlanNamesOnOneSideOnly) {
  Layout layout;
  const std::int32_t moved = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t other = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t stale = LayPiece(layout, "24188", {900.0, 0.0, 0.0});
  PieceOf(layout, stale).joints = {{.target = moved, .tconn = 1}, {.target = other, .tconn = 0}};
  joinClosingEnds(layout);
  EXPECT_EQ(JointOf(layout, moved, 1), (Joint{.target = other, .tconn = 0}));
  EXPECT_EQ(PieceOf(layout, stale).joints, std::vector<Joint>(2));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(ClosingJoints, SkipUnknownPartsAndWildNumbers) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Layout layout;
  for (const double wild : {kNaN, kInfinity, -kInfinity, 1e300, -1e300}) {
    LayPiece(layout, "24188", {wild, 0.0, 0.0});
    LayPiece(layout, "24188", {0.0, 0.0, kNaN});
    LaySelected(layout, "24188", {0.0, wild, 0.0});
    LaySelected(layout, "24188", {wild, 0.0, kNaN});
    LaySelected(layout, "no such part", {wild, 0.0, 0.0});
  }
  joinClosingEnds(layout);
  // The two at 1e300 (and at -1e300) stand apart in y; nothing else has a place.
  EXPECT_EQ(BrokenJoint(layout), "");
  for (const Piece& piece : layout.pieces)
    for (const Joint& joint : piece.joints) EXPECT_TRUE(joint.open());
}

TEST(EndJoiner, JoinsAndOpensLikeASingleJoin) {
  Layout layout;
  for (int i = 0; i < 4; ++i) LayPiece(layout, "24188", {500.0 * i, 0.0, 0.0});
  joinPieces(layout, 1, 1, 2, 0);
  joinPieces(layout, 3, 1, 4, 0);
  Layout plain = layout;
  EndJoiner joiner(layout);
  joiner.join(0, 1, 3, 0);  // over both joins
  joinPieces(plain, 1, 1, 4, 0);
  EXPECT_EQ(layout.pieces, plain.pieces);
  joiner.join(1, 0, 3, 0);  // over the one just made
  joinPieces(plain, 2, 0, 4, 0);
  EXPECT_EQ(layout.pieces, plain.pieces);
  joiner.join(1, 0, 1, 0);  // an end and itself
  joiner.join(1, 2, 0, 0);  // no such connector
  EXPECT_EQ(layout.pieces, plain.pieces);
  EXPECT_EQ(BrokenJoint(layout), "");
}

}  // namespace
}  // namespace vantrel
