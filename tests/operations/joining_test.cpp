#include "canvas/operations/joining.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

TEST(JoinPieces, StoresTheJoinOnBothPieces) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24611", {188.3, 0.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  EXPECT_EQ(JointOf(layout, a, 1), (Joint{.target = b, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, b, 0), (Joint{.target = a, .tconn = 1}));
  EXPECT_TRUE(JointOf(layout, a, 0).open());
  EXPECT_TRUE(JointOf(layout, b, 1).open());
  EXPECT_TRUE(JointOf(layout, b, 2).open());
}

TEST(JoinPieces, GrowsSlotsThatAreMissing) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24611", {188.3, 0.0, 0.0});
  PieceOf(layout, a).joints.clear();
  PieceOf(layout, b).joints.clear();
  joinPieces(layout, b, 2, a, 0);
  ASSERT_EQ(PieceOf(layout, a).joints.size(), 2u);
  ASSERT_EQ(PieceOf(layout, b).joints.size(), 3u);
  EXPECT_EQ(JointOf(layout, b, 2), (Joint{.target = a, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, b, 0).target, -1);
  EXPECT_EQ(JointOf(layout, b, 1).target, -1);
}

TEST(JoinPieces, OpensTheFarSlotsOfTheJoinsItReplaces) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t c = LayPiece(layout, "24188", {0.0, 300.0, 0.0});
  const std::int32_t d = LayPiece(layout, "24188", {188.3, 300.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  joinPieces(layout, c, 1, d, 0);
  joinPieces(layout, a, 1, d, 0);
  EXPECT_EQ(JointOf(layout, a, 1), (Joint{.target = d, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, d, 0), (Joint{.target = a, .tconn = 1}));
  EXPECT_TRUE(JointOf(layout, b, 0).open());
  EXPECT_EQ(JointOf(layout, b, 0).tconn, -1);
  EXPECT_TRUE(JointOf(layout, c, 1).open());
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(JoinPieces, OpensASlotThatNamesTheConnectorOnItsOwnSideOnly) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t stale = LayPiece(layout, "24188", {188.3, 5.0, 0.0});
  PieceOf(layout, stale).joints[0] = {.target = a, .tconn = 1};
  joinPieces(layout, a, 1, b, 0);
  EXPECT_TRUE(JointOf(layout, stale, 0).open());
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(JoinPieces, LeavesTheOtherJoinsOfAllPiecesAlone) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::int32_t c = LayPiece(layout, "24188", {376.6, 0.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  joinPieces(layout, b, 1, c, 0);
  EXPECT_EQ(JointOf(layout, b, 0), (Joint{.target = a, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, b, 1), (Joint{.target = c, .tconn = 0}));
}

TEST(JoinPieces, CanCloseAPieceOnItself) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  joinPieces(layout, a, 0, a, 1);
  EXPECT_EQ(JointOf(layout, a, 0), (Joint{.target = a, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, a, 1), (Joint{.target = a, .tconn = 0}));
}

TEST(JoinPieces, DoesNothingForMissingPiecesWrongSlotsOrOneEndTwice) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  const std::vector<Piece> before = layout.pieces;
  joinPieces(layout, a, 1, 99, 0);
  joinPieces(layout, 99, 0, b, 0);
  joinPieces(layout, a, 2, b, 0);
  joinPieces(layout, a, -1, b, 0);
  joinPieces(layout, a, 1, b, 2);
  joinPieces(layout, a, 1, b, std::numeric_limits<std::int32_t>::min());
  joinPieces(layout, a, 1, a, 1);
  EXPECT_EQ(layout.pieces, before);
}

TEST(JoinPieces, NeverJoinsAPieceWhoseIdWouldReadAsOpen) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  layout.pieces[1].id = -1;
  const std::vector<Piece> before = layout.pieces;
  joinPieces(layout, a, 1, -1, 0);
  joinPieces(layout, -1, 0, a, 1);
  EXPECT_EQ(layout.pieces, before);
}

TEST(GrowJoints, AddsOpenSlotsUpToTheNumberOfConnectors) {
  Piece piece;
  piece.cat = "24630";
  piece.joints = {{.target = 3, .tconn = 1}};
  GrowJoints(piece);
  ASSERT_EQ(piece.joints.size(), 4u);
  EXPECT_EQ(piece.joints[0].target, 3);
  EXPECT_EQ(piece.joints[3].target, -1);
  EXPECT_EQ(piece.joints[3].tconn, -1);
}

TEST(GrowJoints, NeverTakesSlotsAwayAndLeavesUnknownParts) {
  Piece longer;
  longer.cat = "24188";
  longer.joints.resize(5);
  GrowJoints(longer);
  EXPECT_EQ(longer.joints.size(), 5u);
  Piece unknown;
  unknown.cat = "no such part";
  GrowJoints(unknown);
  EXPECT_TRUE(unknown.joints.empty());
}

TEST(GrowAllJoints, ReachesEveryPiece) {
  Layout layout;
  LayPiece(layout, "24188", {});
  LayPiece(layout, "74861", {});
  layout.pieces[0].joints.clear();
  layout.pieces[1].joints.clear();
  GrowAllJoints(layout);
  EXPECT_EQ(layout.pieces[0].joints.size(), 2u);
  EXPECT_EQ(layout.pieces[1].joints.size(), 30u);
}

}  // namespace
}  // namespace vantrel
