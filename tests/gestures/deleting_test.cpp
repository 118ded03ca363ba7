// Delete and Backspace on the canvas.
#include "canvas/gestures/deleting.h"

#include <gtest/gtest.h>

#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class Deleting : public EditingTest {};

TEST_F(Deleting, TheSelectionGoesAsOneStepAndEveryoneIsTold) {
  const Ids chain = layChain(3, 100.0, 100.0);
  select({chain[1]});
  deleteFromCanvas(context);
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(BrokenJoint(layout), "");
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 2");
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(JointOf(layout, chain[0], 1), (Joint{chain[1], 0}));
}

TEST_F(Deleting, WithNothingSelectedNothingHappens) {
  lay("24188", {100.0, 100.0, 0.0});
  deleteFromCanvas(context);
  EXPECT_FALSE(key(WXK_DELETE));
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(Deleting, BothKeysDelete) {
  for (const int code : {WXK_DELETE, WXK_BACK}) {
    lay("24188", {100.0, 100.0, 0.0});
    layout.pieces[0].sel = true;
    EXPECT_TRUE(key(code));
    EXPECT_TRUE(layout.pieces.empty());
  }
}

TEST_F(Deleting, ShapesAloneGoByTheCommandAndNotByTheKeysOwnPath) {
  layShape({0.0, 0.0}, 100.0);
  layout.shapes[0].sel = true;
  EXPECT_FALSE(key(WXK_DELETE));
  EXPECT_EQ(layout.shapes.size(), 1u);
  deleteFromCanvas(context);
  EXPECT_TRUE(layout.shapes.empty());
}

TEST_F(Deleting, AGradedPieceIsAskedAboutAndNoDeletesNothing) {
  const Ids chain = layChain(2, 100.0, 100.0);
  piece(chain[0]).grade = 1.0;
  select({chain[0]});
  host.answer = false;
  deleteFromCanvas(context);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Delete");
  EXPECT_EQ(host.boxes[0].text, "Selection includes graded pieces. Delete?");
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_TRUE(layout.undoHistory.empty());
  host.answer = true;
  deleteFromCanvas(context);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(Deleting, ATurntableGoesWithItsSixSpokes) {
  const std::int32_t table = lay("74861", {600.0, 600.0, 0.0});
  addTurntableSpokes(layout, table);
  const std::int32_t apart = lay("24188", {0.0, 0.0, 0.0});
  ASSERT_EQ(layout.pieces.size(), 8u);
  select({table});
  deleteFromCanvas(context);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, apart);
}

TEST_F(Deleting, AWholeHelixGoesWithItsRecord) {
  const Helix helix = layHelix({600.0, 600.0});
  clickLeft(650, 240);
  deleteFromCanvas(context);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(layout.helices.empty());
  Undo(layout);
  ASSERT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.helices[0], helix);
}

TEST_F(Deleting, EitherKeyDeletesAHelixSelectedAsAWholeAndItsRecord) {
  for (const int code : {WXK_DELETE, WXK_BACK}) {
    const Helix helix = layHelix({600.0, 600.0});
    select({helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2});
    EXPECT_TRUE(key(code));
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(layout.pieces.empty());
    EXPECT_TRUE(layout.helices.empty());
  }
}

TEST_F(Deleting, AHelixWithOtherThingsIsLocked) {
  const Helix helix = layHelix({600.0, 600.0});
  const std::int32_t house = layScenery("platform", {0.0, 0.0, 0.0});
  select({helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2, house});
  deleteFromCanvas(context);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Helix track is locked");
  EXPECT_EQ(host.boxes[0].text,
            "Selection includes track that is part of a helix. Helix track cannot be deleteed "
            "individually.");
  EXPECT_EQ(layout.pieces.size(), 4u);
}

TEST_F(Deleting, TunnelTrackIsLocked) {
  const Ids chain = layChain(2, 100.0, 100.0);
  layTunnel({chain[0], chain[1]});
  select({chain[0]});
  EXPECT_TRUE(key(WXK_DELETE));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text,
            "Selection includes tunnel track or portals. Remove the tunnel first, then delete.");
  EXPECT_EQ(layout.pieces.size(), 2u);
}

TEST_F(Deleting, OnePieceOfAPairTakesTheOtherAlong) {
  std::string paired;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.isPaired && def.connectors.size() >= 2) paired = def.partNumber;
  }
  ASSERT_NE(paired, "");
  const std::int32_t first = lay(paired, {100.0, 100.0, 0.0});
  const std::int32_t second = addPairPartner(layout, first);
  const std::int32_t plain = lay("24188", {0.0, 500.0, 0.0});
  layout.undoHistory.clear();
  select({second});
  deleteFromCanvas(context);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, plain);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

}  // namespace
}  // namespace vantrel
