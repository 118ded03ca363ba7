// Which end of a dragged block snaps, and where to.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "canvas/operations/joining.h"
#include "canvas/operations/moving.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

TEST(BlockSnap, FindsWhatASinglePieceWouldFind) {
  Layout layout;
  const std::int32_t target = LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t moving = LaySelected(layout, "24188", {191.3, 4.0, 10.0});
  const BlockSnap found = findBlockSnap(layout);
  ASSERT_TRUE(found.snap.found);
  EXPECT_EQ(found.piece, moving);
  EXPECT_EQ(found.snap.targetPiece, target);
  EXPECT_EQ(found.snap.targetConnector, 1);
  EXPECT_EQ(found.snap.ownConnector, 0);
  EXPECT_NEAR(found.snap.distance, 5.0, 1e-9);  // 3 and 4
  ExpectPose(found.snap.pose(), 188.3, 0.0, 0.0, 1e-9);
}

TEST(BlockSnap, TakesTheShortestOfAllOpenEnds) {
  Layout layout;
  const std::int32_t left = LayPiece(layout, "24188", {-200.0, 0.0, 0.0});  // ends at -11.7
  const std::int32_t a = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t b = LaySelected(layout, "24188", {188.3, 0.0, 0.0});  // ends at 376.6
  joinPieces(layout, a, 1, b, 0);
  const std::int32_t right = LayPiece(layout, "24188", {386.6, 0.0, 0.0});  // 10 away
  BlockSnap found = findBlockSnap(layout);
  EXPECT_EQ(found.piece, b);
  EXPECT_EQ(found.snap.targetPiece, right);
  EXPECT_EQ(found.snap.ownConnector, 1);
  EXPECT_NEAR(found.snap.distance, 10.0, 1e-9);
  PieceOf(layout, right).x = 390.0;  // 13.4 away: now the left end is nearer
  found = findBlockSnap(layout);
  EXPECT_EQ(found.piece, a);
  EXPECT_EQ(found.snap.targetPiece, left);
  EXPECT_NEAR(found.snap.distance, 11.7, 1e-9);
}

TEST(BlockSnap, LeavesTheConnectorsJoinedInsideTheBlockOut) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t b = LaySelected(layout, "24188", {188.3, 0.0, 0.0});
  LayPiece(layout, "24188", {188.3, 2.0, 90.0});  // starts beside the middle of the block
  EXPECT_TRUE(findBlockSnap(layout).snap.found);
  joinPieces(layout, a, 1, b, 0);
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
}

TEST(BlockSnap, AtEqualDistancesTakesTheEarliestSelectedPiece) {
  Layout layout;
  // The later piece of the block meets the earlier one outside: the block's order decides.
  const std::int32_t right = LayPiece(layout, "24188", {198.3, 1000.0, 0.0});
  const std::int32_t left = LayPiece(layout, "24188", {198.3, 0.0, 0.0});
  const std::int32_t first = LaySelected(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t second = LaySelected(layout, "24188", {0.0, 1000.0, 0.0});
  BlockSnap found = findBlockSnap(layout);
  EXPECT_EQ(found.piece, first);
  EXPECT_EQ(found.snap.targetPiece, left);
  PieceOf(layout, first).sel = false;
  found = findBlockSnap(layout);
  EXPECT_EQ(found.piece, second);
  EXPECT_EQ(found.snap.targetPiece, right);
}

TEST(BlockSnap, AtEqualDistancesTakesTheEarliestOther) {
  Layout layout;
  // The spoke is 57.5 mm long: it ends 8 mm from both starts.
  const std::int32_t first = LayPiece(layout, "74871", {1000.0, 8.0, 0.0});
  LayPiece(layout, "74871", {1000.0, -8.0, 0.0});
  LaySelected(layout, "74871", {942.5, 0.0, 0.0});
  EXPECT_EQ(findBlockSnap(layout).snap.targetPiece, first);
  std::swap(layout.pieces[0].y, layout.pieces[1].y);
  EXPECT_EQ(findBlockSnap(layout).snap.targetPiece, first);
}

// A place for a turnout where the point halfway between its two far ends is as far from both, to
// the last bit.
constexpr Pose kTurnout = {5000.0, 0.0, 0.0};

Vec2 BetweenTheEndsOfTheTurnout() {
  Piece turnout;
  turnout.x = kTurnout.x;
  const std::vector<WorldConnector> ends = worldConnectors(turnout, *findPart("24611"));
  const Vec2 middle = {(ends[1].x + ends[2].x) / 2.0, (ends[1].y + ends[2].y) / 2.0};
  const Vec2 a = {ends[1].x - middle.x, ends[1].y - middle.y};
  const Vec2 b = {ends[2].x - middle.x, ends[2].y - middle.y};
  EXPECT_EQ(std::sqrt(a.x * a.x + a.y * a.y), std::sqrt(b.x * b.x + b.y * b.y));
  return middle;
}

TEST(BlockSnap, AtEqualDistancesTakesTheLowestConnectorOfTheOther) {
  const Vec2 middle = BetweenTheEndsOfTheTurnout();
  Layout layout;
  LayPiece(layout, "24611", kTurnout);
  LaySelected(layout, "24188", {middle.x, middle.y, 0.0});
  const BlockSnap found = findBlockSnap(layout);
  ASSERT_TRUE(found.snap.found);
  EXPECT_EQ(found.snap.targetConnector, 1);
}

TEST(BlockSnap, AtEqualDistancesTakesTheLowestOwnConnector) {
  const Vec2 middle = BetweenTheEndsOfTheTurnout();
  Layout layout;
  LayPiece(layout, "24188", {middle.x, middle.y, 0.0});
  LaySelected(layout, "24611", kTurnout);
  const BlockSnap found = findBlockSnap(layout);
  ASSERT_TRUE(found.snap.found);
  EXPECT_EQ(found.snap.ownConnector, 1);
}

TEST(BlockSnap, LooksAtNeitherSelectedNorHiddenPieces) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  const std::int32_t target = LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  LaySelected(layout, "24188", {190.0, 0.0, 0.0});
  EXPECT_TRUE(findBlockSnap(layout).snap.found);
  PieceOf(layout, target).level = 2;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
  PieceOf(layout, target).level = 3;  // a level that doesn't exist hides nothing
  EXPECT_TRUE(findBlockSnap(layout).snap.found);
  PieceOf(layout, target).sel = true;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
}

TEST(BlockSnap, MovesHiddenPiecesOfTheBlockToo) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t moving = LaySelected(layout, "24188", {190.0, 0.0, 0.0});
  PieceOf(layout, moving).level = 2;
  EXPECT_EQ(findBlockSnap(layout).piece, moving);
}

TEST(BlockSnap, FindsNothingWhileSnappingIsOff) {
  Layout layout;
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  LaySelected(layout, "24188", {190.0, 0.0, 0.0});
  layout.snapEnabled = false;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
  layout.snapEnabled = true;
  EXPECT_TRUE(findBlockSnap(layout).snap.found);
}

TEST(BlockSnap, KeepsTheLimitsOfTheSnapSearch) {
  Layout layout;
  LayPiece(layout, "74871", {0.0, 0.0, 0.0});  // ends at 57.5, heading 0
  const std::int32_t moving = LaySelected(layout, "74871", {82.5, 0.0, 0.0});  // 25 away
  EXPECT_TRUE(findBlockSnap(layout).snap.found);
  PieceOf(layout, moving).x = 82.501;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
  // The start of a piece with heading 201 points to 21, one with 199 to 19: too much the same way.
  PieceOf(layout, moving).x = 60.0;
  PieceOf(layout, moving).heading = 201.0;
  EXPECT_TRUE(findBlockSnap(layout).snap.found);
  PieceOf(layout, moving).heading = 199.0;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
}

TEST(BlockSnap, JoinsOnlyConnectorsOfOneSystem) {
  Layout layout;
  LayPiece(layout, "2200", {0.0, 0.0, 0.0});  // K-Track
  LaySelected(layout, "24188", {-190.0, 0.0, 0.0});
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
  LaySelected(layout, "24922", {-182.0, 0.0, 0.0});  // its far end joins K-Track, 2 mm away
  EXPECT_EQ(findBlockSnap(layout).snap.ownConnector, 1);
}

TEST(BlockSnap, SkipsUnknownPartsAndWildNumbers) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Layout layout;
  for (const double wild : {kNaN, kInfinity, -kInfinity, 1e300, -1e300, 9e15, -9e18}) {
    LayPiece(layout, "24188", {wild, 0.0, 0.0});
    LayPiece(layout, "24188", {0.0, 0.0, wild == 9e15 ? kNaN : kInfinity});
    LaySelected(layout, "24188", {0.0, -wild, 0.0});
    LaySelected(layout, "24188", {5000.0, 5000.0, kNaN});
    LaySelected(layout, "no such part", {0.0, 0.0, 0.0});
  }
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
}

TEST(BlockSnap, FindsEndsAtPlacesFarBeyondAnyTable) {
  // At 1e18 neighbouring doubles lie 128 apart: the two starts fall on one point, and the far end
  // of a straight of 188.3 one or two steps on.
  Layout layout;
  const std::int32_t target = LayPiece(layout, "24188", {1e18, -1e18, 0.0});
  LaySelected(layout, "24188", {1e18, -1e18, 180.0});
  const BlockSnap found = findBlockSnap(layout);
  EXPECT_EQ(found.snap.targetPiece, target);
  EXPECT_EQ(found.snap.distance, 0.0);
}

TEST(BlockSnap, FindsNothingWithoutSelectionOrWithoutOthers) {
  Layout layout;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
  LayPiece(layout, "24188", {});
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
  PieceOf(layout, 1).sel = true;
  EXPECT_FALSE(findBlockSnap(layout).snap.found);
}

}  // namespace
}  // namespace vantrel
