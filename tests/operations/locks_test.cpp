#include "canvas/operations/locks.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// Pieces 1 to 6, of which 3 to 6 are the stubs of helix 70; portals 21 and 22 and a platform 23.
// A tunnel with these portals covers piece 2.
Layout Plan() {
  Layout layout;
  for (int i = 0; i < 6; ++i) LayPiece(layout, "24188", {200.0 * i, 0.0, 0.0});
  for (std::size_t i = 2; i < 6; ++i) layout.pieces[i].helix = 70;
  for (const std::int32_t id : {21, 22, 23}) {
    SceneryItem item;
    item.id = id;
    item.item = id == 23 ? "platform" : "tunnel_portal_single";
    layout.scenery.push_back(item);
  }
  Tunnel other;
  other.covers = {998, 999};
  layout.tunnels.push_back(other);
  Tunnel tunnel;
  tunnel.id = 40;
  tunnel.portalA = 21;
  tunnel.portalB = 22;
  tunnel.anchorA = 1;
  tunnel.covers = {2, 999};
  layout.tunnels.push_back(tunnel);
  return layout;
}

void Choose(Layout& layout, const std::vector<std::int32_t>& ids) {
  for (const std::int32_t id : ids) {
    for (Piece& piece : layout.pieces)
      if (piece.id == id) piece.sel = true;
    for (SceneryItem& item : layout.scenery)
      if (item.id == id) item.sel = true;
  }
}

// "title: text", or empty.
std::string Told(const std::optional<Notice>& notice) {
  return notice ? notice->title + ": " + notice->text : "";
}

std::string DeleteLock(const std::vector<std::int32_t>& ids) {
  Layout layout = Plan();
  Choose(layout, ids);
  return Told(selectionLock(layout, "delete"));
}

std::string RotateLock(const std::vector<std::int32_t>& ids) {
  Layout layout = Plan();
  Choose(layout, ids);
  return Told(selectionLock(layout, "rotate"));
}

std::string MoveLock(const std::vector<std::int32_t>& ids) {
  Layout layout = Plan();
  Choose(layout, ids);
  return Told(moveLock(layout));
}

TEST(SelectionLock, LetsPlainTrackAndSceneryGo) {
  EXPECT_EQ(DeleteLock({}), "");
  EXPECT_EQ(DeleteLock({1, 23}), "") << "a tunnel's anchor isn't in it";
  EXPECT_EQ(RotateLock({1, 23}), "");
}

TEST(SelectionLock, HoldsHelixTrack) {
  EXPECT_EQ(RotateLock({1, 4}),
            "Helix track is locked: Selection includes track that is part of a helix. Helix track "
            "cannot be rotateed individually.");
}

// The verb is put in as it comes, and so "delete" becomes this.
TEST(SelectionLock, SaysDeleteed) {
  EXPECT_EQ(DeleteLock({4}),
            "Helix track is locked: Selection includes track that is part of a helix. Helix track "
            "cannot be deleteed individually.");
}

TEST(SelectionLock, HoldsAWholeHelixToo) {
  EXPECT_EQ(DeleteLock({3, 4, 5, 6}), DeleteLock({4}));
}

TEST(SelectionLock, HoldsTrackInATunnel) {
  EXPECT_EQ(DeleteLock({1, 2}),
            "Tunnel is locked: Selection includes tunnel track or portals. Remove the tunnel "
            "first, then delete.");
  EXPECT_EQ(RotateLock({2}),
            "Tunnel is locked: Selection includes tunnel track or portals. Remove the tunnel "
            "first, then rotate.");
}

TEST(SelectionLock, HoldsBothPortals) {
  for (const std::int32_t portal : {21, 22}) {
    EXPECT_EQ(DeleteLock({portal}),
              "Tunnel is locked: Selection includes tunnel track or portals. Remove the tunnel "
              "first, then delete.");
  }
}

TEST(SelectionLock, NamesTheHelixWhenATunnelIsSelectedToo) {
  EXPECT_EQ(DeleteLock({2, 3}), DeleteLock({3}));
  EXPECT_EQ(DeleteLock({6, 21}), DeleteLock({3}));
}

TEST(SelectionLock, HoldsAStubInATunnelAsHelixTrack) {
  Layout layout = Plan();
  layout.tunnels[0].covers.push_back(4);
  Choose(layout, {4});
  EXPECT_EQ(Told(selectionLock(layout, "delete")), DeleteLock({4}));
}

TEST(SelectionLock, DoesntTakeMissingPortalsForItemsWithoutAnId) {
  Layout layout = Plan();
  layout.scenery[2].id = kNone;
  layout.scenery[2].sel = true;
  EXPECT_EQ(Told(selectionLock(layout, "delete")), "");
}

TEST(MoveLock, LetsPlainTrackSceneryAndWholeHelicesGo) {
  EXPECT_EQ(MoveLock({}), "");
  EXPECT_EQ(MoveLock({1, 23}), "");
  EXPECT_EQ(MoveLock({1, 3, 4, 5, 6}), "");
}

constexpr const char* kPartOfAHelix =
    "Helix partially selected: Selection contains part of a helix. Either select the whole helix "
    "(click any of its stubs) or exclude it from the selection before moving.";

constexpr const char* kTunnelFirst =
    "Tunnel is locked: Selection includes tunnel track or portals. Remove the tunnel first, then "
    "move.";

TEST(MoveLock, HoldsAHelixWithoutExactlyFourOfItsPieces) {
  EXPECT_EQ(MoveLock({3, 4, 5}), kPartOfAHelix);
  EXPECT_EQ(MoveLock({3}), kPartOfAHelix);
  Layout layout = Plan();
  LayPiece(layout, "24188", {});
  layout.pieces.back().helix = 70;
  for (Piece& piece : layout.pieces) piece.sel = piece.helix == 70;
  EXPECT_EQ(Told(moveLock(layout)), kPartOfAHelix) << "a fifth stub";
}

TEST(MoveLock, CountsEachHelixByItself) {
  Layout layout = Plan();
  layout.pieces[5].helix = 71;
  Choose(layout, {3, 4, 5, 6});
  EXPECT_EQ(Told(moveLock(layout)), kPartOfAHelix);
}

TEST(MoveLock, HoldsTunnelTrackAndPortals) {
  EXPECT_EQ(MoveLock({1, 2}), kTunnelFirst);
  EXPECT_EQ(MoveLock({21}), kTunnelFirst);
  EXPECT_EQ(MoveLock({22}), kTunnelFirst);
}

TEST(MoveLock, AsksForTheHelixBeforeTheTunnel) {
  EXPECT_EQ(MoveLock({2, 3}), kPartOfAHelix);
}

TEST(MoveLock, LetsAWholeHelixGoThoughATunnelCoversAStub) {
  Layout layout = Plan();
  layout.tunnels[0].covers.push_back(4);
  Choose(layout, {3, 4, 5, 6});
  EXPECT_EQ(Told(moveLock(layout)), "");
}

TEST(IsGradedSelection, IsTrueAboveAThousandthOfADegreeEitherWay) {
  Layout layout = Plan();
  layout.pieces[0].grade = 2.5;
  EXPECT_FALSE(isGradedSelection(layout)) << "not selected";
  layout.pieces[0].sel = true;
  for (const double grade : {2.5, -2.5, 0.0011, -0.0011}) {
    layout.pieces[0].grade = grade;
    EXPECT_TRUE(isGradedSelection(layout)) << grade;
  }
  for (const double grade : {0.0, 0.001, -0.001, std::numeric_limits<double>::quiet_NaN()}) {
    layout.pieces[0].grade = grade;
    EXPECT_FALSE(isGradedSelection(layout)) << grade;
  }
}

}  // namespace
}  // namespace vantrel
