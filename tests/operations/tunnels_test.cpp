#include "canvas/operations/tunnels.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "canvas/operations/joining.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class Tunnels : public testing::Test {
 protected:
  Layout layout;

  // Straights of 188.3 mm in a row from the origin on, joined, ids 1 to `count`.
  void layRow(int count) {
    for (int i = 0; i < count; ++i) {
      LayPiece(layout, "24188", {188.3 * i, 0.0, 0.0});
      if (i > 0) joinPieces(layout, i, 1, i + 1, 0);
    }
  }
  void select(const std::vector<std::int32_t>& ids) {
    ClearSelection(layout);
    for (const std::int32_t id : ids) PieceOf(layout, id).sel = true;
  }
  void layTunnel(const std::vector<std::int32_t>& covers) {
    Tunnel tunnel;
    tunnel.id = TakeId(layout);
    tunnel.covers = covers;
    layout.tunnels.push_back(tunnel);
  }
  bool valid() const { return planTunnel(layout).valid; }
};

TEST_F(Tunnels, ThreeJoinedPiecesInALineGetPortalsAtTheirOuterEnds) {
  layRow(3);
  select({1, 2, 3});
  const TunnelPlan expected{.valid = true,
                            .removing = false,
                            .tunnelId = -1,
                            .anchorA = 1,
                            .anchorB = 3,
                            .connA = 0,
                            .connB = 1,
                            .covers = {1, 2, 3}};
  EXPECT_EQ(planTunnel(layout), expected);
  EXPECT_TRUE(toggleTunnel(layout));
  ASSERT_EQ(layout.scenery.size(), 2u);
  EXPECT_EQ(layout.scenery[0].item, "tunnel_portal_single");
  EXPECT_EQ(layout.scenery[1].item, "tunnel_portal_single");
  // The headings lead out of the hill: 180 at the start, 0 at 3 * 188.3 mm.
  ExpectPose(layout.scenery[0].pose(), 0.0, 0.0, 180.0, 1e-9);
  ExpectPose(layout.scenery[1].pose(), 564.9, 0.0, 0.0, 1e-9);
  ASSERT_EQ(layout.tunnels.size(), 1u);
  const Tunnel& tunnel = layout.tunnels[0];
  EXPECT_EQ(layout.scenery[0].id, 4);
  EXPECT_EQ(layout.scenery[1].id, 5);
  EXPECT_EQ(tunnel.id, 6);
  EXPECT_EQ(tunnel.portalA, 4);
  EXPECT_EQ(tunnel.portalB, 5);
  EXPECT_EQ(tunnel.anchorA, 1);
  EXPECT_EQ(tunnel.anchorB, 3);
  EXPECT_EQ(tunnel.covers, (std::vector<std::int32_t>{1, 2, 3}));
}

TEST_F(Tunnels, APortalStandsOnLevel1UnscaledWhateverTheTrackIs) {
  layRow(2);
  for (Piece& piece : layout.pieces) {
    piece.level = 4;
    piece.z = 80.0;
    piece.grade = 2.0;
  }
  select({1, 2});
  const std::vector<Piece> before = layout.pieces;
  toggleTunnel(layout);
  ASSERT_EQ(layout.scenery.size(), 2u);
  for (const SceneryItem& portal : layout.scenery) {
    EXPECT_EQ(portal.level, 1);
    EXPECT_EQ(portal.scalex, 1.0);
    EXPECT_EQ(portal.scaley, 1.0);
    EXPECT_FALSE(portal.sel);
  }
  EXPECT_EQ(layout.pieces, before);
}

TEST_F(Tunnels, TheSameSelectionAgainRemovesBothPortalsAndTheRecordAndLeavesTheTrack) {
  layRow(3);
  layout.scenery.push_back({.id = TakeId(layout), .item = "car"});
  select({1, 2, 3});
  toggleTunnel(layout);
  const TunnelPlan plan = planTunnel(layout);
  EXPECT_TRUE(plan.valid);
  EXPECT_TRUE(plan.removing);
  EXPECT_EQ(plan.tunnelId, layout.tunnels.at(0).id);
  const std::vector<Piece> track = layout.pieces;
  EXPECT_TRUE(toggleTunnel(layout));
  EXPECT_TRUE(layout.tunnels.empty());
  ASSERT_EQ(layout.scenery.size(), 1u);
  EXPECT_EQ(layout.scenery[0].item, "car");
  EXPECT_EQ(layout.pieces, track);
}

TEST_F(Tunnels, MakingAndRemovingAreOneUndoStepEach) {
  layRow(2);
  select({1, 2});
  toggleTunnel(layout);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  toggleTunnel(layout);
  EXPECT_EQ(layout.undoHistory.size(), 2u);
  Undo(layout);
  EXPECT_EQ(layout.tunnels.size(), 1u);
  EXPECT_EQ(layout.scenery.size(), 2u);
  Undo(layout);
  EXPECT_TRUE(layout.tunnels.empty());
  EXPECT_TRUE(layout.scenery.empty());
}

TEST_F(Tunnels, OnlyTheTunnelThatIsSelectedIsRemoved) {
  layRow(4);
  select({1, 2});
  toggleTunnel(layout);
  select({3, 4});
  toggleTunnel(layout);
  ASSERT_EQ(layout.tunnels.size(), 2u);
  toggleTunnel(layout);
  ASSERT_EQ(layout.tunnels.size(), 1u);
  EXPECT_EQ(layout.tunnels[0].covers, (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(layout.scenery.size(), 2u);
}

TEST_F(Tunnels, AClosedRingIsNotValid) {
  layRow(3);
  joinPieces(layout, 3, 1, 1, 0);
  select({1, 2, 3});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, ATurnoutWithAllThreeOfItsArmsIsNotValid) {
  const std::int32_t turnout = LayPiece(layout, "24611", {});
  for (int i = 0; i < 3; ++i) {
    const std::int32_t arm = LayPiece(layout, "24188", {});
    joinPieces(layout, turnout, i, arm, 0);
  }
  select({1, 2, 3, 4});
  EXPECT_FALSE(valid());
  select({1, 2, 3});
  EXPECT_TRUE(valid()) << "through the turnout";
}

TEST_F(Tunnels, TwoPiecesThatAreNotJoinedAreNotValid) {
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  LayPiece(layout, "24188", {188.3, 0.0, 0.0});
  select({1, 2});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, TwoPiecesJoinedOnlyThroughAnUnselectedOneAreNotValid) {
  layRow(3);
  select({1, 3});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, OnePieceOrNoneIsNotValid) {
  EXPECT_FALSE(valid());
  layRow(2);
  EXPECT_FALSE(valid());
  select({1});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, APieceOfATunnelAndAnotherAreNotValid) {
  layRow(4);
  layTunnel({1, 2, 3});
  select({3, 4});
  EXPECT_FALSE(valid());
  select({1, 2, 3, 4});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, APartOfATunnelIsNotValid) {
  layRow(3);
  layTunnel({1, 2, 3});
  select({1, 2});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, AFullEndPieceGetsThePortalAtItsFirstConnectorThatLeadsOut) {
  layRow(4);
  select({2, 3});
  const TunnelPlan plan = planTunnel(layout);
  EXPECT_TRUE(plan.valid);
  EXPECT_EQ(plan.connA, 0) << "it leads to piece 1, and needn't be open";
  EXPECT_EQ(plan.connB, 1);
  toggleTunnel(layout);
  ExpectPose(layout.scenery.at(0).pose(), 188.3, 0.0, 180.0, 1e-9);
  ExpectPose(layout.scenery.at(1).pose(), 564.9, 0.0, 0.0, 1e-9);
}

TEST_F(Tunnels, TheEndsComeInTheOrderOfThePiecesAndTheCoversSorted) {
  layRow(3);
  std::swap(layout.pieces[0], layout.pieces[2]);  // ids 3, 2, 1
  select({1, 2, 3});
  const TunnelPlan plan = planTunnel(layout);
  EXPECT_EQ(plan.anchorA, 3);
  EXPECT_EQ(plan.connA, 1);
  EXPECT_EQ(plan.anchorB, 1);
  EXPECT_EQ(plan.connB, 0);
  EXPECT_EQ(plan.covers, (std::vector<std::int32_t>{1, 2, 3}));
}

TEST_F(Tunnels, AnInvalidCommandLeavesNoTraceInHistory) {
  layRow(2);
  select({1});
  EXPECT_FALSE(toggleTunnel(layout));
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(Tunnels, AnEndOfAnUnknownPartTakesTheSnapshotAndNothingElse) {
  layRow(2);
  layout.pieces[1].cat = "no such part";
  select({1, 2});
  EXPECT_TRUE(valid());
  EXPECT_TRUE(toggleTunnel(layout));
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_TRUE(layout.tunnels.empty());
  EXPECT_EQ(layout.nextId, 3);
}

TEST_F(Tunnels, AMiddlePieceOfAnUnknownPartIsNoObstacle) {
  layRow(3);
  layout.pieces[1].cat = "no such part";
  select({1, 2, 3});
  EXPECT_TRUE(toggleTunnel(layout));
  EXPECT_EQ(layout.tunnels.size(), 1u);
}

TEST_F(Tunnels, AnEndThatHasNoFurtherSlotIsNotValid) {
  layRow(2);
  layout.pieces[1].joints.resize(1);  // its only slot leads to piece 1
  select({1, 2});
  EXPECT_FALSE(valid());
}

TEST_F(Tunnels, AnEndWithMoreSlotsThanItsPartHasConnectorsGetsNoPortals) {
  LayPiece(layout, "7389", {});  // a bumper: its only connector is 0
  LayPiece(layout, "2200", {});
  joinPieces(layout, 1, 0, 2, 0);
  layout.pieces[0].joints.resize(2);
  select({1, 2});
  EXPECT_EQ(planTunnel(layout).connA, 1);
  EXPECT_TRUE(toggleTunnel(layout));
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_TRUE(layout.tunnels.empty());
}

TEST_F(Tunnels, AJointThatNamesAMissingPieceLeadsOut) {
  layRow(2);
  layout.pieces[0].joints[0] = {.target = 99, .tconn = 0};
  select({1, 2});
  const TunnelPlan plan = planTunnel(layout);
  EXPECT_TRUE(plan.valid);
  EXPECT_EQ(plan.connA, 0);
}

TEST_F(Tunnels, AnOpenConnectorLeadsNowhereEvenWhenAPieceHasTheIdOfNone) {
  layRow(2);
  for (Piece& piece : layout.pieces) piece.sel = true;
  layout.pieces[1].id = kNone;  // piece 1 now names a missing piece
  EXPECT_FALSE(valid());
  layout.pieces[1].id = 2;
  layout.pieces[0].id = kNone;  // names piece 2, whose slots now are both as good as open
  layout.pieces[1].joints.assign(2, Joint{});
  const TunnelPlan plan = planTunnel(layout);
  EXPECT_TRUE(plan.valid);
  EXPECT_EQ(plan.connA, 0);
  EXPECT_EQ(plan.connB, 0);
}

TEST_F(Tunnels, APortalThatIsGoneDoesNotKeepTheTunnelFromBeingRemoved) {
  layRow(2);
  layout.scenery.push_back({.id = kNone, .item = "car"});
  layTunnel({2, 1});
  select({1, 2});
  EXPECT_TRUE(toggleTunnel(layout));
  EXPECT_TRUE(layout.tunnels.empty());
  EXPECT_EQ(layout.scenery.size(), 1u) << "an item without an id is nobody's portal";
}

TEST_F(Tunnels, OfTwoTunnelsWithOneIdTheSelectedOneIsRemoved) {
  layRow(4);
  layTunnel({1, 2});
  layTunnel({3, 4});
  layout.tunnels[1].id = layout.tunnels[0].id;
  select({3, 4});
  toggleTunnel(layout);
  ASSERT_EQ(layout.tunnels.size(), 1u);
  EXPECT_EQ(layout.tunnels[0].covers, (std::vector<std::int32_t>{1, 2}));
}

TEST_F(Tunnels, TwoPiecesWithOneIdAreNotOneRun) {
  layRow(3);
  layout.pieces[2].id = 2;
  for (Piece& piece : layout.pieces) piece.sel = true;
  EXPECT_FALSE(valid());
  toggleTunnel(layout);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(Tunnels, PlanningChangesNothing) {
  layRow(3);
  select({1, 2, 3});
  const std::vector<Piece> before = layout.pieces;
  planTunnel(layout);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_TRUE(layout.scenery.empty());
}

}  // namespace
}  // namespace vantrel
