#include "canvas/operations/moving.h"

#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/joining.h"
#include "canvas/operations/selection.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

SceneryItem& AddSelectedItem(Layout& layout, const Pose& pose) {
  SceneryItem item;
  item.id = TakeId(layout);
  item.item = "platform";
  item.x = pose.x;
  item.y = pose.y;
  item.heading = pose.heading;
  item.sel = true;
  layout.scenery.push_back(item);
  return layout.scenery.back();
}

Helix& AddHelix(Layout& layout, const Pose& pose) {
  Helix helix;
  helix.id = TakeId(layout);
  helix.cx = pose.x;
  helix.cy = pose.y;
  helix.heading = pose.heading;
  layout.helices.push_back(helix);
  return layout.helices.back();
}

// Straights of 188.3 mm end to end along x, from 0 on; the ids are 1, 2, ...
Layout Chain(int length) {
  Layout layout;
  for (int i = 0; i < length; ++i) {
    LayPiece(layout, "24188", {188.3 * i, 0.0, 0.0});
    if (i > 0) joinPieces(layout, i, 1, i + 1, 0);
  }
  return layout;
}

TEST(TakeMoveStart, ListsTheSelectedPiecesThenTheSelectedSceneryInOrder) {
  Layout layout;
  LaySelected(layout, "24188", {1.0, 2.0, 3.0});
  LayPiece(layout, "24188", {9.0, 9.0, 9.0});
  LaySelected(layout, "no such part", {4.0, 5.0, 6.0});
  AddSelectedItem(layout, {7.0, 8.0, 9.0});
  AddSelectedItem(layout, {0.0, 0.0, 0.0}).sel = false;
  const MoveStart start = takeMoveStart(layout);
  EXPECT_EQ(start.poses, (std::vector<Pose>{{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, {7.0, 8.0, 9.0}}));
  EXPECT_TRUE(start.helices.empty());
}

TEST(TakeMoveStart, ListsEachHelixOfASelectedPieceOnceAndOnlyThoseThatExist) {
  Layout layout;
  AddHelix(layout, {10.0, 20.0, 0.0});  // id 1
  AddHelix(layout, {30.0, 40.0, 0.0});  // id 2
  for (const std::int32_t helix : {2, 2, 77, 1, -1}) {
    const std::int32_t id = LaySelected(layout, "24130", {});
    PieceOf(layout, id).helix = helix;
  }
  const MoveStart start = takeMoveStart(layout);
  ASSERT_EQ(start.helices.size(), 2u);
  EXPECT_EQ(start.helices[0].id, 2);
  EXPECT_EQ(start.helices[0].cx, 30.0);
  EXPECT_EQ(start.helices[0].cy, 40.0);
  EXPECT_EQ(start.helices[1].id, 1);
}

TEST(TakeMoveStart, ForADragByAnItemListsTheSceneryAlone) {
  Layout layout;
  AddHelix(layout, {10.0, 20.0, 0.0});
  PieceOf(layout, LaySelected(layout, "24130", {1.0, 2.0, 3.0})).helix = 1;
  AddSelectedItem(layout, {7.0, 8.0, 9.0});
  const MoveStart start = takeSceneryMoveStart(layout);
  EXPECT_EQ(start.poses, (std::vector<Pose>{{7.0, 8.0, 9.0}}));
  EXPECT_TRUE(start.helices.empty());
}

TEST(MoveSelection, CarriesPiecesSceneryAndHelicesAndTurnsNothing) {
  Layout layout;
  const std::int32_t helix = AddHelix(layout, {100.0, 200.0, 45.0}).id;
  const std::int32_t stays = LayPiece(layout, "24188", {1.0, 1.0, 1.0});
  const std::int32_t stub = LaySelected(layout, "24130", {10.0, 20.0, 30.0});
  PieceOf(layout, stub).helix = helix;
  AddSelectedItem(layout, {50.0, 60.0, 70.0});
  const MoveStart start = takeMoveStart(layout);
  moveSelection(layout, start, {999.0, 999.0});
  moveSelection(layout, start, {5.0, -3.0});  // from the start, not from where it stands
  EXPECT_EQ(PieceOf(layout, stub).pose(), (Pose{15.0, 17.0, 30.0}));
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{55.0, 57.0, 70.0}));
  EXPECT_EQ(layout.helices[0].cx, 105.0);
  EXPECT_EQ(layout.helices[0].cy, 197.0);
  EXPECT_EQ(layout.helices[0].heading, 45.0);
  EXPECT_EQ(PieceOf(layout, stays).pose(), (Pose{1.0, 1.0, 1.0}));
}

TEST(MoveSelection, ReachesAsFarAsTheListOfStartPoses) {
  Layout layout;
  const std::int32_t first = LaySelected(layout, "24188", {10.0, 0.0, 0.0});
  const MoveStart start = takeMoveStart(layout);
  const std::int32_t late = LaySelected(layout, "24188", {20.0, 0.0, 0.0});
  AddSelectedItem(layout, {30.0, 0.0, 0.0});
  moveSelection(layout, start, {1.0, 1.0});
  EXPECT_EQ(PieceOf(layout, first).x, 11.0);
  EXPECT_EQ(PieceOf(layout, late).pose(), (Pose{20.0, 0.0, 0.0}));
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{30.0, 0.0, 0.0}));
}

TEST(MoveSelection, DraggedByASceneryItemPutsThePiecesOnItsPosesAndLeavesTheSceneryBehind) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188", {0.0, 0.0, 15.0});
  const std::int32_t b = LaySelected(layout, "24188", {0.0, 500.0, 25.0});
  AddSelectedItem(layout, {1000.0, 2000.0, 90.0});
  moveSelection(layout, takeSceneryMoveStart(layout), {3.0, 4.0});
  EXPECT_EQ(PieceOf(layout, a).pose(), (Pose{1003.0, 2004.0, 15.0}));
  EXPECT_EQ(PieceOf(layout, b).pose(), (Pose{0.0, 500.0, 25.0}));
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{1000.0, 2000.0, 90.0}));
}

TEST(MoveSelection, DragsSceneryWithoutPieces) {
  Layout layout;
  AddSelectedItem(layout, {1000.0, 2000.0, 90.0});
  moveSelection(layout, takeSceneryMoveStart(layout), {3.0, 4.0});
  EXPECT_EQ(layout.scenery[0].pose(), (Pose{1003.0, 2004.0, 90.0}));
}

TEST(MoveSelection, DoesNothingForAWayThatIsNoNumber) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188", {1.0, 2.0, 3.0});
  const MoveStart start = takeMoveStart(layout);
  moveSelection(layout, start, {kNaN, 0.0});
  moveSelection(layout, start, {0.0, std::numeric_limits<double>::infinity()});
  EXPECT_EQ(PieceOf(layout, a).pose(), (Pose{1.0, 2.0, 3.0}));
}

TEST(MoveSelection, CarriesAWholeHelixAndNothingElseThatIsJoinedToIt) {
  Layout layout;
  const std::int32_t helix = AddHelix(layout, {0.0, 0.0, 0.0}).id;
  std::vector<std::int32_t> stubs;
  for (int i = 0; i < 4; ++i) {
    stubs.push_back(LaySelected(layout, "24130", {100.0 * i, 0.0, 0.0}));
    PieceOf(layout, stubs.back()).helix = helix;
  }
  const std::int32_t feeder = LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
  joinPieces(layout, feeder, 1, stubs[0], 0);
  const MoveStart start = takeMoveStart(layout);
  breakEdgeJoints(layout);
  moveSelection(layout, start, {0.0, 50.0});
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(PieceOf(layout, stubs[static_cast<std::size_t>(i)]).pose(),
              (Pose{100.0 * i, 50.0, 0.0}));
  EXPECT_EQ(layout.helices[0].cy, 50.0);
  EXPECT_EQ(PieceOf(layout, feeder).pose(), (Pose{-188.3, 0.0, 0.0}));
  EXPECT_TRUE(JointOf(layout, feeder, 1).open());
}

TEST(MoveSelection, TakesATurntablesNeighboursAlongAndTheirOtherEndsLetGo) {
  Layout layout;
  const std::int32_t table = LaySelected(layout, "74861", {0.0, 0.0, 0.0});
  const std::int32_t spoke = LayPiece(layout, "74871", {200.0, 0.0, 0.0});
  const std::int32_t beyond = LayPiece(layout, "24188", {257.5, 0.0, 0.0});
  joinPieces(layout, table, 0, spoke, 0);
  joinPieces(layout, spoke, 1, beyond, 0);
  selectTurntableNeighbours(layout);
  const MoveStart start = takeMoveStart(layout);
  breakEdgeJoints(layout);
  moveSelection(layout, start, {10.0, 20.0});
  EXPECT_EQ(PieceOf(layout, table).pose(), (Pose{10.0, 20.0, 0.0}));
  EXPECT_EQ(PieceOf(layout, spoke).pose(), (Pose{210.0, 20.0, 0.0}));
  EXPECT_EQ(PieceOf(layout, beyond).pose(), (Pose{257.5, 0.0, 0.0}));
  EXPECT_EQ(JointOf(layout, table, 0), (Joint{.target = spoke, .tconn = 0}));
  EXPECT_TRUE(JointOf(layout, spoke, 1).open());
  EXPECT_TRUE(JointOf(layout, beyond, 0).open());
}

TEST(BreakEdgeJoints, FreesAPieceFromTheMiddleOfAChainOnBothSidesAndUndoRestoresThem) {
  Layout layout = Chain(3);
  PieceOf(layout, 2).sel = true;
  const std::vector<Piece> before = layout.pieces;
  PushUndo(layout);
  breakEdgeJoints(layout);
  for (const std::int32_t id : {1, 2, 3})
    for (const std::size_t slot : {0u, 1u}) EXPECT_EQ(JointOf(layout, id, slot), Joint{});
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
}

TEST(BreakEdgeJoints, KeepsTheJointsInsideTheBlock) {
  Layout layout = Chain(4);
  PieceOf(layout, 2).sel = true;
  PieceOf(layout, 3).sel = true;
  breakEdgeJoints(layout);
  EXPECT_TRUE(JointOf(layout, 1, 1).open());
  EXPECT_TRUE(JointOf(layout, 2, 0).open());
  EXPECT_EQ(JointOf(layout, 2, 1), (Joint{.target = 3, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 3, 0), (Joint{.target = 2, .tconn = 1}));
  EXPECT_TRUE(JointOf(layout, 3, 1).open());
  EXPECT_TRUE(JointOf(layout, 4, 0).open());
}

TEST(BreakEdgeJoints, LeavesThePiecesOutsideJoinedToEachOther) {
  Layout layout = Chain(3);
  PieceOf(layout, 3).sel = true;
  breakEdgeJoints(layout);
  EXPECT_EQ(JointOf(layout, 1, 1), (Joint{.target = 2, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 2, 0), (Joint{.target = 1, .tconn = 1}));
}

TEST(BreakEdgeJoints, OpensOverThereOnlyTheSlotThatIsNamed) {
  Layout layout;
  const std::int32_t moving = LaySelected(layout, "24188", {});
  const std::int32_t far = LayPiece(layout, "24630", {});
  PieceOf(layout, moving).joints[0] = {.target = far, .tconn = 2};
  PieceOf(layout, far).joints[2] = {.target = moving, .tconn = 0};
  PieceOf(layout, far).joints[3] = {.target = moving, .tconn = 0};
  breakEdgeJoints(layout);
  EXPECT_TRUE(JointOf(layout, moving, 0).open());
  EXPECT_TRUE(JointOf(layout, far, 2).open());
  EXPECT_EQ(JointOf(layout, far, 3).target, moving);
}

TEST(BreakEdgeJoints, CopesWithMissingPiecesAndSlotsAndWithNegativeTargets) {
  Layout layout;
  const std::int32_t moving = LaySelected(layout, "24630", {});
  const std::int32_t far = LayPiece(layout, "24188", {});
  PieceOf(layout, moving).joints = {{.target = 99, .tconn = 0},
                                    {.target = far, .tconn = 2},
                                    {.target = far, .tconn = -5},
                                    {.target = -7, .tconn = 0}};
  PieceOf(layout, far).joints[0] = {.target = moving, .tconn = 3};
  breakEdgeJoints(layout);
  for (const std::size_t slot : {0u, 1u, 2u}) EXPECT_EQ(JointOf(layout, moving, slot), Joint{});
  EXPECT_EQ(JointOf(layout, moving, 3).target, -7);
  EXPECT_EQ(JointOf(layout, far, 0).target, moving);
}

// A straight from (0, 0) to (188.3, 0), and a selected block of two that comes from the side: a
// straight at (190, 5) that runs down the screen, and one more behind it.
struct SideBlock {
  Layout layout;
  std::int32_t target = LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  std::int32_t anchor = LaySelected(layout, "24188", {190.0, 5.0, 90.0});
  std::int32_t behind = LaySelected(layout, "24188", {190.0, 193.3, 90.0});
  MoveStart start;
  BlockSnap held{
      .snap = {.found = true, .targetPiece = target, .targetConnector = 1, .ownConnector = 0},
      .piece = anchor};

  SideBlock() {
    joinPieces(layout, anchor, 1, behind, 0);
    start = takeMoveStart(layout);
  }
  Piece& piece(std::int32_t id) { return PieceOf(layout, id); }
  void drop() { dropSelection(layout, start, held); }
};

TEST(DropSelection, TurnsTheWholeBlockAboutTheAnchorOntoTheTarget) {
  SideBlock plan;
  plan.drop();
  // The anchor's connector 0 comes to (188.3, 0) facing back: heading 0, a turn of -90. What lay
  // 188.3 below it now lies 188.3 to its right.
  ExpectPose(plan.piece(plan.anchor).pose(), 188.3, 0.0, 0.0, 1e-9);
  ExpectPose(plan.piece(plan.behind).pose(), 376.6, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(plan.layout, plan.anchor, 0), (Joint{.target = plan.target, .tconn = 1}));
  EXPECT_EQ(JointOf(plan.layout, plan.target, 1), (Joint{.target = plan.anchor, .tconn = 0}));
  EXPECT_EQ(JointOf(plan.layout, plan.anchor, 1), (Joint{.target = plan.behind, .tconn = 0}));
}

TEST(DropSelection, DoesNotNormaliseTheHeadingsOfTheTurnedBlock) {
  SideBlock plan;
  plan.piece(plan.behind).heading = 40.0;
  plan.drop();
  EXPECT_NEAR(plan.piece(plan.behind).heading, -50.0, 1e-9);  // 40 - 90
}

TEST(DropSelection, TurnsTheHelicesOfTheBlockWithIt) {
  SideBlock plan;
  AddHelix(plan.layout, {190.0, 105.0, 30.0});
  AddHelix(plan.layout, {190.0, 105.0, 30.0});
  plan.piece(plan.behind).helix = plan.layout.helices[0].id;
  plan.drop();
  // 100 below the anchor becomes 100 to its right.
  EXPECT_NEAR(plan.layout.helices[0].cx, 288.3, 1e-9);
  EXPECT_NEAR(plan.layout.helices[0].cy, 0.0, 1e-9);
  EXPECT_NEAR(plan.layout.helices[0].heading, -60.0, 1e-9);
  EXPECT_EQ(plan.layout.helices[1].cx, 190.0);
}

TEST(DropSelection, LeavesSceneryOfTheBlockWhereItWasDragged) {
  SideBlock plan;
  AddSelectedItem(plan.layout, {300.0, 400.0, 10.0});
  plan.drop();
  EXPECT_EQ(plan.layout.scenery[0].pose(), (Pose{300.0, 400.0, 10.0}));
}

TEST(DropSelection, LiftsTheBlockByTheChangeOfTheAnchorsHeight) {
  SideBlock plan;
  plan.piece(plan.target).z = 40.0;
  plan.piece(plan.anchor).z = 10.0;
  plan.piece(plan.behind).z = 12.5;
  const std::int32_t stub = LaySelected(plan.layout, "24130", {900.0, 900.0, 0.0});
  plan.piece(stub).helix = 5;
  plan.piece(stub).z = 7.0;
  plan.drop();
  EXPECT_DOUBLE_EQ(plan.piece(plan.anchor).z, 40.0);
  EXPECT_DOUBLE_EQ(plan.piece(plan.behind).z, 42.5);
  EXPECT_DOUBLE_EQ(plan.piece(stub).z, 7.0);
}

TEST(DropSelection, KeepsTheHeightsForAChangeOfAThousandthOrLess) {
  SideBlock plan;
  plan.piece(plan.target).z = 0.001;
  plan.drop();
  EXPECT_DOUBLE_EQ(plan.piece(plan.anchor).z, 0.001);
  EXPECT_DOUBLE_EQ(plan.piece(plan.behind).z, 0.0);
}

TEST(DropSelection, TakesOverNoHeightWithAHelixStubAsAnchor) {
  SideBlock plan;
  plan.piece(plan.target).z = 40.0;
  plan.piece(plan.anchor).helix = 5;
  plan.piece(plan.anchor).z = 10.0;
  plan.drop();
  EXPECT_DOUBLE_EQ(plan.piece(plan.anchor).z, 10.0);
  EXPECT_DOUBLE_EQ(plan.piece(plan.behind).z, 0.0);
  EXPECT_EQ(JointOf(plan.layout, plan.anchor, 0).target, plan.target);
}

TEST(DropSelection, GivesEachPieceOfTheBlockAsManySlotsAsItHasConnectors) {
  SideBlock plan;
  plan.piece(plan.anchor).joints.clear();
  plan.piece(plan.behind).joints.assign(4, Joint{});
  plan.piece(plan.behind).joints[3] = {.target = plan.anchor, .tconn = 1};
  plan.piece(plan.anchor).joints = {Joint{}, {.target = plan.behind, .tconn = 3}};
  const std::int32_t bare = LaySelected(plan.layout, "24611", {900.0, 900.0, 0.0});
  plan.piece(bare).joints.clear();
  const std::int32_t unknown = LaySelected(plan.layout, "no such part", {800.0, 800.0, 0.0});
  plan.piece(unknown).joints.resize(7);
  plan.drop();
  EXPECT_EQ(plan.piece(plan.behind).joints, std::vector<Joint>(2));
  EXPECT_EQ(plan.piece(bare).joints, std::vector<Joint>(3));
  EXPECT_EQ(plan.piece(unknown).joints.size(), 7u);
  EXPECT_EQ(BrokenJoint(plan.layout), "");  // nothing names the slot that is gone
}

// Their slots were what a file said; nobody has touched them.
TEST(DropSelection, LeavesTheSlotsOfThePiecesOutsideTheBlockAsTheyAre) {
  SideBlock plan;
  const std::int32_t none = LayPiece(plan.layout, "24188", {2000.0, 700.0, 30.0});
  const std::int32_t many = LayPiece(plan.layout, "24188", {2000.0, 1900.0, 60.0});
  plan.piece(none).joints.clear();
  plan.piece(many).joints.assign(5, Joint{});
  plan.piece(many).joints[4] = {.target = none, .tconn = 3};
  plan.drop();
  EXPECT_TRUE(plan.piece(none).joints.empty());
  ASSERT_EQ(plan.piece(many).joints.size(), 5u);
  EXPECT_EQ(plan.piece(many).joints[4], (Joint{.target = none, .tconn = 3}));
}

TEST(DropSelection, TakesTheFirstSelectedPieceAsAnchorWhenTheKeptOneIsGone) {
  SideBlock plan;
  plan.held.piece = 4711;
  plan.drop();
  ExpectPose(plan.piece(plan.anchor).pose(), 188.3, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(plan.layout, plan.target, 1).target, plan.anchor);
}

TEST(DropSelection, JoinsNothingWhenTargetAnchorOrConnectorNoLongerExist) {
  SideBlock plan;
  const std::vector<Piece> before = plan.layout.pieces;
  BlockSnap gone = plan.held;
  gone.snap.targetPiece = 4711;
  dropSelection(plan.layout, plan.start, gone);
  gone = plan.held;
  gone.snap.targetConnector = 2;
  dropSelection(plan.layout, plan.start, gone);
  gone = plan.held;
  gone.snap.ownConnector = -1;
  dropSelection(plan.layout, plan.start, gone);
  EXPECT_EQ(plan.layout.pieces, before);
  ClearSelection(plan.layout);
  plan.drop();
  plan.piece(plan.anchor).sel = true;
  plan.piece(plan.anchor).cat = "no such part";
  plan.drop();
  EXPECT_EQ(plan.piece(plan.anchor).pose(), (Pose{190.0, 5.0, 90.0}));
  EXPECT_TRUE(JointOf(plan.layout, plan.target, 1).open());
}

TEST(DropSelection, IsNotDraggedAlongByATargetWithoutAPlace) {
  SideBlock plan;
  plan.piece(plan.target).x = kNaN;
  plan.drop();
  EXPECT_EQ(plan.piece(plan.behind).pose(), (Pose{190.0, 193.3, 90.0}));
}

TEST(DropSelection, BreaksTheEdgeWhenAPieceLiesMoreThanAMillimetreFromItsStart) {
  for (const double way : {1.0, 1.001}) {
    Layout layout = Chain(3);
    PieceOf(layout, 2).sel = true;
    const MoveStart start = takeMoveStart(layout);
    PieceOf(layout, 2).y = way;
    dropSelection(layout, start, {});
    EXPECT_EQ(JointOf(layout, 2, 0).open(), way > 1.0);
    EXPECT_EQ(JointOf(layout, 1, 1).open(), way > 1.0);
    EXPECT_EQ(JointOf(layout, 2, 1).open(), way > 1.0);
    EXPECT_EQ(JointOf(layout, 3, 0).open(), way > 1.0);
  }
}

TEST(DropSelection, OpensEverySlotOverThereThatNamesTheMovedPiece) {
  Layout layout;
  const std::int32_t moving = LaySelected(layout, "24188", {});
  const std::int32_t far = LayPiece(layout, "24630", {500.0, 0.0, 0.0});
  const std::int32_t third = LayPiece(layout, "24188", {900.0, 0.0, 0.0});
  PieceOf(layout, moving).joints[0] = {.target = far, .tconn = 77};
  PieceOf(layout, far).joints = {{.target = moving, .tconn = 0},
                                 {.target = third, .tconn = 0},
                                 {.target = moving, .tconn = 9},
                                 {.target = moving, .tconn = 1}};
  const MoveStart start = takeMoveStart(layout);
  moveSelection(layout, start, {100.0, 0.0});
  dropSelection(layout, start, {});
  EXPECT_EQ(PieceOf(layout, far).joints,
            (std::vector<Joint>{{}, {.target = third, .tconn = 0}, {}, {}}));
  EXPECT_TRUE(JointOf(layout, moving, 0).open());
}

TEST(DropSelection, JoinsTheOtherEndsThatComeWithinFourMillimetres) {
  // Target from 0 to 188.3; a piece that starts 2.5 mm beyond where the block of two will end, at
  // 3 * 188.3 = 564.9.
  SideBlock plan;
  const std::int32_t beyond = LayPiece(plan.layout, "24188", {567.4, 0.0, 0.0});
  plan.drop();
  EXPECT_EQ(JointOf(plan.layout, plan.behind, 1), (Joint{.target = beyond, .tconn = 0}));
  EXPECT_EQ(JointOf(plan.layout, beyond, 0), (Joint{.target = plan.behind, .tconn = 1}));
  EXPECT_EQ(BrokenJoint(plan.layout), "");
}

TEST(DropSelection, MakesNoJointsWithoutASnapEvenOnOpenConnectors) {
  Layout layout;
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  LaySelected(layout, "24188", {288.3, 0.0, 0.0});
  const MoveStart start = takeMoveStart(layout);
  moveSelection(layout, start, {-100.0, 0.0});
  dropSelection(layout, start, {});
  EXPECT_TRUE(JointOf(layout, 1, 1).open());
  EXPECT_TRUE(JointOf(layout, 2, 0).open());
}

}  // namespace
}  // namespace vantrel
