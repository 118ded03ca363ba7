#include "canvas/operations/snap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "canvas/operations/joining.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

SnapResult Snap(const Layout& layout, std::string_view part, const Pose& pose) {
  const std::vector<const Piece*> others = VisiblePieces(layout);
  return findSnap(*findPart(part), pose, others);
}

IncompatibleJoin Refusal(const Layout& layout, std::string_view part, const Pose& pose) {
  const std::vector<const Piece*> others = AllPieces(layout);
  return findIncompatibleJoin(*findPart(part), pose, others);
}

// One 24188 from (0, 0) to (188.3, 0), both ends open.
Layout OneStraight() {
  Layout layout;
  LayPiece(layout, "24188", {});
  return layout;
}

TEST(Snap, JoinsAt24Point9MmAndNotAt25Point1) {
  const Layout layout = OneStraight();
  // The moving piece's connector 1 lies 188.3 mm ahead of its origin.
  const SnapResult near = Snap(layout, "24188", {-188.3 - 24.9, 0.0, 0.0});
  ASSERT_TRUE(near.found);
  EXPECT_EQ(near.targetPiece, layout.pieces[0].id);
  EXPECT_EQ(near.targetConnector, 0);
  EXPECT_EQ(near.ownConnector, 1);
  EXPECT_NEAR(near.distance, 24.9, 1e-9);
  ExpectPose(near.pose(), -188.3, 0.0, 0.0, 1e-9);

  const SnapResult far = Snap(layout, "24188", {-188.3 - 25.1, 0.0, 0.0});
  EXPECT_FALSE(far.found);
  EXPECT_EQ(far.targetPiece, -1);
  EXPECT_EQ(far.targetConnector, -1);
  EXPECT_EQ(far.ownConnector, -1);
}

TEST(Snap, StillJoinsAtExactly25Mm) {
  Layout layout;
  LayPiece(layout, "24360", {});
  EXPECT_TRUE(Snap(layout, "24360", {-385.0, 0.0, 0.0}).found);
}

TEST(Snap, JoinsAtAHeadingDifferenceOf20DegreesAndNotAt19Point9) {
  const Layout layout = OneStraight();
  // With the same origin the two connectors 0 differ by the moving piece's heading.
  const SnapResult passes = Snap(layout, "24188", {0.0, 0.0, 20.0});
  ASSERT_TRUE(passes.found);
  EXPECT_EQ(passes.targetConnector, 0);
  EXPECT_EQ(passes.ownConnector, 0);
  EXPECT_FALSE(Snap(layout, "24188", {0.0, 0.0, 19.9}).found);
  // The same on the other side of north.
  EXPECT_TRUE(Snap(layout, "24188", {0.0, 0.0, 340.0}).found);
  EXPECT_FALSE(Snap(layout, "24188", {0.0, 0.0, 340.1}).found);
}

TEST(Snap, TurnsAPieceAtNearlyAnyAngleToMate) {
  const Layout layout = OneStraight();
  // Connector 0 at (190, 4), lying across the open end at (188.3, 0).
  const SnapResult snap = Snap(layout, "24172", {190.0, 4.0, 90.0});
  ASSERT_TRUE(snap.found);
  EXPECT_EQ(snap.targetConnector, 1);
  EXPECT_EQ(snap.ownConnector, 0);
  ExpectPose(snap.pose(), 188.3, 0.0, 0.0, 1e-9);
  EXPECT_NEAR(snap.distance, std::sqrt(1.7 * 1.7 + 16.0), 1e-9);
}

TEST(Snap, OfTwoOpenEndsAtEqualDistancesTakesTheLowerConnector) {
  Layout layout;
  LayPiece(layout, "8504", {});  // 25 mm: ends at (0, 0) and (25, 0)
  // Across its middle: own connector 0 at (12.5, 0), own connector 1 out of reach at (12.5, -25).
  const SnapResult snap = Snap(layout, "8504", {12.5, 0.0, 270.0});
  ASSERT_TRUE(snap.found);
  EXPECT_EQ(snap.distance, 12.5);
  EXPECT_EQ(snap.targetConnector, 0);
  EXPECT_EQ(snap.ownConnector, 0);
}

TEST(Snap, OfTwoOwnEndsAtEqualDistancesTakesTheLower) {
  Layout layout;
  LayPiece(layout, "8504", {});
  // Its ends at (0, -12.5) and (0, 12.5), both 12.5 from (0, 0) and out of reach of (25, 0).
  const SnapResult snap = Snap(layout, "8504", {0.0, -12.5, 90.0});
  ASSERT_TRUE(snap.found);
  EXPECT_EQ(snap.distance, 12.5);
  EXPECT_EQ(snap.targetConnector, 0);
  EXPECT_EQ(snap.ownConnector, 0);
}

TEST(Snap, OfTwoPiecesAtEqualDistancesTakesTheEarlierWhateverTheAngle) {
  Layout layout;
  const std::int32_t askew = LayPiece(layout, "24188", {0.0, 10.0, 100.0});
  LayPiece(layout, "24188", {10.0, 0.0, 0.0});
  // The moving connector 1 lies at (0, 0) heading 0: it would only have to move to join the second.
  const SnapResult snap = Snap(layout, "24360", {-360.0, 0.0, 0.0});
  ASSERT_TRUE(snap.found);
  EXPECT_EQ(snap.distance, 10.0);
  EXPECT_EQ(snap.targetPiece, askew);
}

TEST(Snap, TakesTheNearestEndOfAll) {
  Layout layout;
  LayPiece(layout, "24188", {10.0, 0.0, 0.0});
  const std::int32_t nearer = LayPiece(layout, "24188", {9.0, 0.0, 0.0});
  LayPiece(layout, "24188", {11.0, 0.0, 0.0});
  const SnapResult snap = Snap(layout, "24360", {-360.0, 0.0, 0.0});
  EXPECT_EQ(snap.targetPiece, nearer);
  EXPECT_EQ(snap.distance, 9.0);
}

TEST(Snap, SkipsEndsThatAreJoinedAlready) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  EXPECT_FALSE(Snap(layout, "24188", {190.0, 0.0, 90.0}).found);
  PieceOf(layout, b).joints.clear();  // a missing slot is an open end
  EXPECT_EQ(Snap(layout, "24188", {190.0, 0.0, 90.0}).targetPiece, b);
}

TEST(Snap, SkipsPiecesThatTheCatalogDoesNotKnow) {
  Layout layout;
  LayPiece(layout, "no such part", {});
  EXPECT_FALSE(Snap(layout, "24188", {-188.3, 0.0, 0.0}).found);
  EXPECT_FALSE(Refusal(layout, "24188", {-188.3, 0.0, 0.0}).found);
}

TEST(Snap, IsHarmlessAmongPiecesThatLieNowhere) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  Layout layout;
  for (double broken : {std::nan(""), infinity, -infinity, 1e308, -1e308}) {
    LayPiece(layout, "2200", {broken, 0.0, 0.0});
    LayPiece(layout, "2200", {0.0, broken, 0.0});
    LayPiece(layout, "24188", {broken, broken, broken});
    LayPiece(layout, "24188", {0.0, broken, broken});
  }
  LayPiece(layout, "24188", {0.0, 0.0, std::nan("")});
  LayPiece(layout, "2200", {0.0, 0.0, infinity});
  const std::int32_t sound = LayPiece(layout, "24188", {20.0, 0.0, 0.0});
  const SnapResult snap = Snap(layout, "24188", {-188.3, 0.0, 0.0});
  ASSERT_TRUE(snap.found);
  EXPECT_EQ(snap.targetPiece, sound);
  EXPECT_FALSE(Refusal(layout, "24188", {-188.3, 0.0, 0.0}).found);
  EXPECT_FALSE(Snap(layout, "24188", {std::nan(""), 0.0, 0.0}).found);
  EXPECT_FALSE(Refusal(layout, "24188", {std::nan(""), 0.0, 0.0}).found);
}

TEST(Snap, SeesTheEndsWhereRoundingPutsThemFarFromTheOrigin) {
  // At 2e16 mm neighbouring doubles lie 4 mm apart. The end at 94.2 becomes 96 and the one at
  // 216 - 94.2 = 121.8 becomes 120: 24 mm between ends that would be 27.6 mm apart near the origin.
  constexpr double far = 2e16;
  Layout layout;
  LayPiece(layout, "24094", {far, 0.0, 0.0});
  const SnapResult snap = Snap(layout, "24094", {far + 216.0, 0.0, 180.0});
  ASSERT_TRUE(snap.found);
  EXPECT_EQ(snap.distance, 24.0);
  EXPECT_EQ(snap.targetConnector, 1);
  EXPECT_EQ(snap.ownConnector, 1);
}

TEST(Refusal, OfCTrackAtAKTrackEndWithNoOwnSystemInReach) {
  Layout layout;
  LayPiece(layout, "2200", {});
  const Pose pose{-188.3 - 5.0, 0.0, 0.0};
  EXPECT_FALSE(Snap(layout, "24188", pose).found);
  const IncompatibleJoin refusal = Refusal(layout, "24188", pose);
  ASSERT_TRUE(refusal.found);
  EXPECT_EQ(refusal.ownSystem, 0);
  EXPECT_EQ(refusal.otherSystem, 1);
}

TEST(Refusal, HasTheLimitsOfTheSnap) {
  Layout layout;
  LayPiece(layout, "2200", {});
  EXPECT_TRUE(Refusal(layout, "24188", {-188.3 - 24.9, 0.0, 0.0}).found);
  EXPECT_FALSE(Refusal(layout, "24188", {-188.3 - 25.1, 0.0, 0.0}).found);
  EXPECT_TRUE(Refusal(layout, "24188", {0.0, 0.0, 20.0}).found);
  EXPECT_FALSE(Refusal(layout, "24188", {0.0, 0.0, 19.9}).found);
}

TEST(Refusal, NamesTheFirstPairAndNotTheNearest) {
  Layout layout;
  LayPiece(layout, "2200", {20.0, 0.0, 0.0});
  LayPiece(layout, "62188", {1.0, 0.0, 0.0});
  const IncompatibleJoin refusal = Refusal(layout, "24188", {-188.3, 0.0, 0.0});
  ASSERT_TRUE(refusal.found);
  EXPECT_EQ(refusal.otherSystem, 1);
}

TEST(Refusal, DoesNotConcernEndsOfTheSameSystemOrJoinedEnds) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "2200", {});
  const std::int32_t b = LayPiece(layout, "2200", {180.0, 0.0, 0.0});
  joinPieces(layout, a, 1, b, 0);
  EXPECT_FALSE(Refusal(layout, "2200", {-180.0, 0.0, 0.0}).found);
  EXPECT_FALSE(Refusal(layout, "24188", {180.0, 0.0, 90.0}).found);
}

TEST(Adapter, SnapsItsConnector1ToKTrackAndItsConnector0ToCTrack) {
  Layout layout;
  const std::int32_t k = LayPiece(layout, "2200", {});
  const SnapResult toK = Snap(layout, "24922", {-180.0 - 5.0, 0.0, 0.0});
  ASSERT_TRUE(toK.found);
  EXPECT_EQ(toK.targetPiece, k);
  EXPECT_EQ(toK.targetConnector, 0);
  EXPECT_EQ(toK.ownConnector, 1);
  ExpectPose(toK.pose(), -180.0, 0.0, 0.0, 1e-9);
  EXPECT_FALSE(Refusal(layout, "24922", {-180.0 - 5.0, 0.0, 0.0}).found);

  // Turned round, its C end meets the K end and is refused.
  EXPECT_FALSE(Snap(layout, "24922", {-5.0, 0.0, 180.0}).found);
  EXPECT_TRUE(Refusal(layout, "24922", {-5.0, 0.0, 180.0}).found);

  Layout cTrack;
  LayPiece(cTrack, "24188", {});
  const SnapResult toC = Snap(cTrack, "24922", {190.0, 0.0, 0.0});
  ASSERT_TRUE(toC.found);
  EXPECT_EQ(toC.ownConnector, 0);
}

TEST(Adapter, OnceLaidOffersAnEndToEachSystem) {
  Layout layout;
  LayPiece(layout, "24922", {});
  const SnapResult c = Snap(layout, "24188", {-188.3 - 3.0, 0.0, 0.0});
  ASSERT_TRUE(c.found);
  EXPECT_EQ(c.targetConnector, 0);
  const SnapResult k = Snap(layout, "2200", {183.0, 0.0, 0.0});
  ASSERT_TRUE(k.found);
  EXPECT_EQ(k.targetConnector, 1);
  const IncompatibleJoin refusal = Refusal(layout, "24188", {183.0, 0.0, 0.0});
  ASSERT_TRUE(refusal.found);
  EXPECT_EQ(refusal.otherSystem, 1);
}

TEST(HiddenLevel, OffersNoSnapYetRefusesAnotherSystem) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[0].id = 1;
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  const std::int32_t c = LayPiece(layout, "24188", {});
  PieceOf(layout, c).level = 2;
  EXPECT_FALSE(Snap(layout, "24188", {-190.0, 0.0, 0.0}).found);
  const std::int32_t k = LayPiece(layout, "2200", {0.0, 500.0, 0.0});
  PieceOf(layout, k).level = 2;
  EXPECT_FALSE(Snap(layout, "24188", {-190.0, 500.0, 0.0}).found);
  EXPECT_TRUE(Refusal(layout, "24188", {-190.0, 500.0, 0.0}).found);

  layout.levels[1].visible = true;
  EXPECT_TRUE(Snap(layout, "24188", {-190.0, 0.0, 0.0}).found);
}

TEST(HiddenLevel, ThatDoesNotExistHidesNothing) {
  Layout layout = OneStraight();
  layout.levels.resize(1);
  layout.levels[0].visible = false;
  layout.pieces[0].level = 7;
  EXPECT_EQ(VisiblePieces(layout).size(), 1u);
  layout.pieces[0].level = 1;
  EXPECT_TRUE(VisiblePieces(layout).empty());
  EXPECT_EQ(AllPieces(layout).size(), 1u);
}

TEST(Snap, IsFoundWhateverTheSnapSettingSaysBecauseTheGestureAsksIt) {
  Layout layout = OneStraight();
  layout.snapEnabled = false;
  EXPECT_TRUE(Snap(layout, "24188", {-190.0, 0.0, 0.0}).found);
}

TEST(Snap, NeverMovesTheTarget) {
  const Layout layout = OneStraight();
  const std::vector<Piece> before = layout.pieces;
  Snap(layout, "24188", {-190.0, 0.0, 0.0});
  EXPECT_EQ(layout.pieces, before);
}

}  // namespace
}  // namespace vantrel
