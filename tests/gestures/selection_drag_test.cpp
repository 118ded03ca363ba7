// Dragging the selection: the threshold, the refusals, the move and the drop.
#include "canvas/gestures/selection_drag.h"

#include <gtest/gtest.h>

#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class SelectionDragging : public EditingTest {};

TEST_F(SelectionDragging, APressAndReleaseWithinFourPixelsMovesNothingAndShowsNoWarning) {
  const Ids chain = layChain(2, 100.0, 100.0);
  piece(chain[0]).grade = 2.0;
  layTunnel({chain[1]});
  const std::vector<Piece> before = layout.pieces;
  pressLeft(150, 100);
  EXPECT_TRUE(host.captured);
  // 4 * 4 + 2 * 2 = 20 squared pixels.
  move(154, 102);
  releaseLeft(154, 102);
  EXPECT_EQ(piece(chain[0]).pose(), before[0].pose());
  EXPECT_EQ(piece(chain[0]).joints, before[0].joints);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
  EXPECT_TRUE(layout.undoHistory.empty());
  expectNextClickWorks();
}

TEST_F(SelectionDragging, TheDragBeginsAtTwentyFiveSquaredPixels) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  pressLeft(150, 100);
  move(154, 102);
  EXPECT_EQ(piece(id).x, 100.0);
  move(153, 104);
  EXPECT_EQ(piece(id).x, 103.0);
  EXPECT_EQ(piece(id).y, 104.0);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  move(160, 110);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  releaseLeft(160, 110);
  EXPECT_EQ(piece(id).pose(), (Pose{110.0, 110.0, 0.0}));
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_FALSE(host.captured);
  expectNextClickWorks();
}

TEST_F(SelectionDragging, ADragFromTheMiddleOfAChainBreaksBothJointsAtOnceAndUndoRestoresThem) {
  const Ids chain = layChain(3, 100.0, 100.0);
  const std::vector<Piece> before = layout.pieces;
  pressLeft(350, 100);
  move(350, 106);
  EXPECT_EQ(piece(chain[1]).joints, std::vector<Joint>(2));
  EXPECT_TRUE(piece(chain[0]).joints[1].open());
  EXPECT_TRUE(piece(chain[2]).joints[0].open());
  move(350, 400);
  releaseLeft(350, 400);
  EXPECT_EQ(piece(chain[1]).y, 400.0);
  Undo(layout);
  select({});
  EXPECT_EQ(layout.pieces, before);
}

TEST_F(SelectionDragging, ABlockKeepsItsInnerJoints) {
  const Ids chain = layChain(3, 100.0, 100.0);
  select({chain[0], chain[1]});
  dragLeft(150, 100, 150, 400);
  EXPECT_EQ(JointOf(layout, chain[0], 1), (Joint{chain[1], 0}));
  EXPECT_TRUE(piece(chain[1]).joints[1].open());
  EXPECT_TRUE(piece(chain[2]).joints[0].open());
  EXPECT_EQ(piece(chain[0]).y, 400.0);
  EXPECT_EQ(piece(chain[1]).y, 400.0);
  EXPECT_EQ(piece(chain[2]).y, 100.0);
}

class GradedDrag : public EditingTest {
 protected:
  Ids chain;
  void SetUp() override {
    EditingTest::SetUp();
    chain = layChain(2, 100.0, 100.0);
    piece(chain[0]).grade = -0.5;
  }
};

TEST_F(GradedDrag, NoLeavesAllJointsIntactAndAsksAgainNextTime) {
  const std::vector<Piece> before = layout.pieces;
  host.answer = false;
  dragLeft(150, 100, 250, 300);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Move");
  EXPECT_EQ(host.boxes[0].text,
            "Selection includes graded pieces. Moving will break joints and leave the chain's "
            "elevation inconsistent.\n\nMove anyway? (This warning will not appear again this "
            "session.)");
  EXPECT_EQ(host.defaults, std::vector<bool>{false});
  EXPECT_EQ(JointOf(layout, chain[0], 1), (Joint{chain[1], 0}));
  EXPECT_EQ(JointOf(layout, chain[1], 0), (Joint{chain[0], 1}));
  EXPECT_EQ(piece(chain[0]).pose(), before[0].pose());
  EXPECT_EQ(selected(), Ids{chain[0]});
  select({});
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.undoHistory.empty());
  dragLeft(150, 100, 250, 300);
  EXPECT_EQ(host.boxes.size(), 2u);
  expectNextClickWorks();
}

TEST_F(GradedDrag, AfterOneYesNoQuestionComesUntilTheProgramEndsAlsoForAnotherLayout) {
  host.answer = true;
  dragLeft(150, 100, 150, 300);
  EXPECT_EQ(piece(chain[0]).y, 300.0);
  EXPECT_TRUE(piece(chain[0]).joints[1].open());
  EXPECT_EQ(host.boxes.size(), 1u);
  layout = {};
  const std::int32_t other = lay("24188", {0.0, 50.0, 0.0});
  piece(other).grade = 3.0;
  host.answer = false;
  dragLeft(50, 50, 50, 150);
  EXPECT_EQ(piece(other).y, 150.0);
  EXPECT_EQ(host.boxes.size(), 1u);
}

TEST_F(GradedDrag, AReleaseThatWentToTheBoxEndsTheDragWithTheNextMotion) {
  host.answer = true;
  pressLeft(150, 100);
  move(150, 200);
  EXPECT_FALSE(host.captured);
  held.leftDown = false;
  move(700, 700);
  EXPECT_FALSE(state.selectionDrag.active);
  EXPECT_EQ(piece(chain[0]).y, 200.0);
  EXPECT_EQ(host.dirtyMarks, 1);
  expectNextClickWorks();
}

TEST_F(SelectionDragging, AHelixThatIsOnlyPartlySelectedCantBeMoved) {
  const Helix helix = layHelix({600.0, 600.0});
  select({helix.bottomR1, helix.topR1});
  pressLeft(650, 240);
  // The press completes the helix; another way in, such as a file, may not have.
  select({helix.bottomR1, helix.topR1});
  move(750, 300);
  releaseLeft(750, 300);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Helix partially selected");
  EXPECT_EQ(host.boxes[0].text,
            "Selection contains part of a helix. Either select the whole helix (click any of its "
            "stubs) or exclude it from the selection before moving.");
  EXPECT_EQ(host.boxes[0].icon, BoxIcon::information);
  EXPECT_EQ(piece(helix.bottomR1).x, 600.0);
  EXPECT_TRUE(layout.undoHistory.empty());
  expectNextClickWorks();
}

TEST_F(SelectionDragging, TunnelTrackCantBeMoved) {
  const Ids chain = layChain(2, 100.0, 100.0);
  layTunnel({chain[1]});
  dragLeft(350, 100, 350, 300);
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].title, "Tunnel is locked");
  EXPECT_EQ(host.boxes[0].text,
            "Selection includes tunnel track or portals. Remove the tunnel first, then move.");
  EXPECT_EQ(piece(chain[1]).y, 100.0);
  EXPECT_EQ(JointOf(layout, chain[1], 0), (Joint{chain[0], 1}));
  expectNextClickWorks();
}

TEST_F(SelectionDragging, AHelixMovesWithItsRingsAndWithNothingElseJoinedToIt) {
  const Helix helix = layHelix({600.0, 600.0});
  const std::int32_t outside = lay("24188", {788.3, 240.0, 0.0});
  joinPieces(layout, helix.bottomR1, 1, outside, 0);
  dragLeft(650, 240, 650, 440);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(layout.helices[0].cx, 600.0);
  EXPECT_EQ(layout.helices[0].cy, 800.0);
  EXPECT_EQ(piece(helix.bottomR1).y, 440.0);
  EXPECT_EQ(piece(helix.topR2).y, 1237.5);
  EXPECT_EQ(piece(outside).y, 240.0);
  EXPECT_TRUE(piece(outside).joints[0].open());
}

TEST_F(SelectionDragging, ABlockDroppedAtAnOpenEndTurnsWholeAndClosesWhatMeets) {
  // A piece lies turned by 15 degrees; its near end is brought to the open end of the first.
  const std::int32_t fixed = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t far = lay("24188", {476.6, 100.0, 0.0});
  const std::int32_t moved = lay("24188", {300.0, 400.0, 15.0});
  pressLeft(310, 403);
  move(300, 110);
  EXPECT_TRUE(state.selectionDrag.snap.snap.found);
  EXPECT_EQ(state.selectionDrag.snap.snap.targetPiece, fixed);
  EXPECT_EQ(piece(moved).heading, 15.0);
  releaseLeft(300, 110);
  // Straight on from (288.3, 100): its far end meets the third piece.
  ExpectPose(piece(moved).pose(), 288.3, 100.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, moved, 0), (Joint{fixed, 1}));
  EXPECT_EQ(JointOf(layout, moved, 1), (Joint{far, 0}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST_F(SelectionDragging, WithSnapOffADroppedBlockMakesNoJoints) {
  lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t moved = lay("24188", {288.3, 300.0, 0.0});
  layout.snapEnabled = false;
  dragLeft(400, 300, 400, 100);
  EXPECT_EQ(piece(moved).y, 100.0);
  EXPECT_EQ(piece(moved).joints, std::vector<Joint>(2));
}

TEST_F(SelectionDragging, ADraggedTurntableTakesItsJoinedNeighboursWithIt) {
  const std::int32_t table = lay("74861", {600.0, 600.0, 0.0});
  addTurntableSpokes(layout, table);
  const std::vector<Piece> before = layout.pieces;
  pressLeft(600, 600);
  // The spokes were taken out of the selection by hand: they come along all the same.
  select({table});
  move(700, 650);
  releaseLeft(700, 650);
  ASSERT_EQ(layout.pieces.size(), 7u);
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_NEAR(layout.pieces[i].x, before[i].x + 100.0, 1e-9) << i;
    EXPECT_NEAR(layout.pieces[i].y, before[i].y + 50.0, 1e-9) << i;
    EXPECT_EQ(layout.pieces[i].joints, before[i].joints) << i;
    EXPECT_TRUE(layout.pieces[i].sel) << i;
  }
}

TEST_F(SelectionDragging, ADragBegunOnSceneryMovesItAtOnceWithoutAThreshold) {
  const std::int32_t house = layScenery("platform", {300.0, 100.0, 0.0});
  pressLeft(310, 100);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_TRUE(host.captured);
  move(311, 102);
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{301.0, 102.0, 0.0}));
  releaseLeft(311, 102);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(layout.scenery[0].id, house);
  EXPECT_FALSE(host.captured);
}

TEST_F(SelectionDragging, ADragOfBothBegunOnSceneryPutsThePiecesWhereTheSceneryStood) {
  const std::int32_t track = lay("24188", {100.0, 500.0, 30.0});
  const std::int32_t house = layScenery("platform", {300.0, 100.0, 0.0});
  select({track, house});
  pressLeft(310, 100);
  move(320, 110);
  // The list of starts holds the scenery alone and serves the pieces first.
  EXPECT_EQ(piece(track).pose(), (Pose{310.0, 110.0, 30.0}));
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{300.0, 100.0, 0.0}));
  releaseLeft(320, 110);
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(SelectionDragging, AClickOnSelectedSceneryLeavesSelectedPiecesAndTheirJointsAlone) {
  const Ids chain = layChain(2, 100.0, 500.0);
  const std::int32_t house = layScenery("platform", {300.0, 100.0, 0.0});
  select({chain[0], house});
  clickLeft(310, 100);
  EXPECT_EQ(piece(chain[0]).x, 100.0);
  EXPECT_EQ(JointOf(layout, chain[0], 1), (Joint{chain[1], 0}));
  EXPECT_EQ(host.dirtyMarks, 1);
}

TEST_F(SelectionDragging, ADragOfBothBegunOnAPieceMovesBoth) {
  const std::int32_t track = lay("24188", {100.0, 500.0, 0.0});
  const std::int32_t house = layScenery("platform", {300.0, 100.0, 0.0});
  select({track, house});
  dragLeft(150, 500, 160, 530);
  EXPECT_EQ(piece(track).pose(), (Pose{110.0, 530.0, 0.0}));
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{310.0, 130.0, 0.0}));
}

TEST_F(SelectionDragging, TheTargetIsMarkedWhileTheBlockIsInReach) {
  layout.gridVisible = false;
  lay("24188", {100.0, 100.0, 0.0});
  lay("24188", {300.0, 300.0, 0.0});
  pressLeft(400, 300);
  move(400, 110);
  const std::unique_ptr<RecordingDC> dc = paint();
  const DrawCall& marker = dc->calls().back();
  EXPECT_EQ(marker.brush.colour, (Rgba{255, 220, 0, 255}));
  // At (288.3, 100), truncated, of radius 8.
  EXPECT_EQ(marker.box, wxRect(280, 92, 16, 16));
}

TEST_F(SelectionDragging, EscapeAndUndoInMidDragLeaveNothingBehind) {
  const Ids chain = layChain(3, 100.0, 100.0);
  pressLeft(350, 100);
  move(350, 300);
  key(WXK_ESCAPE);
  EXPECT_EQ(selected(), Ids{});
  move(350, 400);
  EXPECT_EQ(piece(chain[1]).y, 300.0);
  releaseLeft(350, 400);
  expectNextClickWorks();

  pressLeft(350, 300);
  move(350, 500);
  Undo(layout);
  move(350, 600);
  layout = {};
  move(350, 700);
  releaseLeft(350, 700);
  EXPECT_FALSE(host.captured);
  EXPECT_TRUE(layout.pieces.empty());
}

TEST_F(SelectionDragging, ALostMouseEndsTheDragWhereItIs) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  pressLeft(150, 100);
  move(150, 300);
  host.captured = false;
  onCaptureLost(context);
  EXPECT_FALSE(state.selectionDrag.active);
  EXPECT_EQ(piece(id).y, 300.0);
  EXPECT_EQ(host.dirtyMarks, 1);
  expectNextClickWorks();
  pressLeft(150, 300);
  onCaptureLost(context);
  EXPECT_FALSE(state.selectionPending.active);
  pressLeft(700, 700);
  move(900, 900);
  onCaptureLost(context);
  EXPECT_FALSE(state.rubberBand.active);
  expectNextClickWorks();
}

TEST_F(SelectionDragging, ARightPressInMidDragPopsUpNoMenu) {
  lay("24188", {100.0, 100.0, 0.0});
  pressLeft(150, 100);
  move(150, 300);
  EXPECT_TRUE(pressRight(150, 300));
  held.mods.alt = true;
  EXPECT_TRUE(pressRight(150, 300));
  EXPECT_TRUE(host.menus.empty());
  EXPECT_TRUE(state.selectionDrag.active);
  EXPECT_EQ(layout.pieces[0].heading, 0.0);
}

}  // namespace
}  // namespace vantrel
