#include "canvas/operations/block_placing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

Piece Straight(std::int32_t id, double x, double y) {
  return {.id = id, .cat = "24188", .x = x, .y = y};
}

SceneryItem Tree(std::int32_t id, double x, double y) {
  return {.id = id, .item = "tree_oak", .x = x, .y = y};
}

// Two joined straights, the first of which has a neighbour outside the block, and a tree.
Block SmallYard() {
  Block block;
  block.pieces = {Straight(40, 488.3, 230), Straight(7, 300, 200)};
  block.pieces[0].joints = {{.target = 7, .tconn = 1}, {.target = 99, .tconn = 0}};
  block.pieces[1].joints = {{}, {.target = 40, .tconn = 0}};
  block.scenery = {Tree(5, 350, 260)};
  return block;
}

// A plan with a selected piece 1 and nextId 6.
Layout PlanWithOnePiece() {
  Layout layout;
  EnsureDefaultLevel(layout);
  layout.pieces = {Straight(1, 50, 60)};
  layout.pieces[0].sel = true;
  layout.nextId = 6;
  return layout;
}

TEST(PlaceBlock, ABlockWhosePiecesLieAt300By200OrMoreLandsWithItsExtremeAtTheWorldOrigin) {
  Layout layout;
  ASSERT_TRUE(placeBlock(layout, SmallYard()));
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_NEAR(layout.pieces[0].x, 188.3, 1e-9);
  EXPECT_NEAR(layout.pieces[0].y, 30.0, 1e-9);
  EXPECT_EQ(layout.pieces[1].x, 0.0);
  EXPECT_EQ(layout.pieces[1].y, 0.0);
  ASSERT_EQ(layout.scenery.size(), 1u);
  EXPECT_EQ(layout.scenery[0].x, 50.0);
  EXPECT_EQ(layout.scenery[0].y, 60.0);
}

TEST(PlaceBlock, TheExtremeIsTakenPerCoordinateAndOverSceneryToo) {
  Layout layout;
  Block block;
  block.pieces = {Straight(1, -40, 900)};
  block.scenery = {Tree(2, 10, -25.5)};
  placeBlock(layout, block);
  EXPECT_EQ(layout.pieces[0].x, 0.0);
  EXPECT_EQ(layout.pieces[0].y, 925.5);
  EXPECT_EQ(layout.scenery[0].x, 50.0);
  EXPECT_EQ(layout.scenery[0].y, 0.0);
}

TEST(PlaceBlock, IdsAreTakenAnewInOrderPiecesFirst) {
  Layout layout = PlanWithOnePiece();
  placeBlock(layout, SmallYard());
  EXPECT_EQ(layout.pieces[1].id, 6);
  EXPECT_EQ(layout.pieces[2].id, 7);
  EXPECT_EQ(layout.scenery[0].id, 8);
  EXPECT_EQ(layout.nextId, 9);
}

TEST(PlaceBlock, JointsInsideTheBlockFollowTheNewIds) {
  Layout layout = PlanWithOnePiece();
  placeBlock(layout, SmallYard());
  EXPECT_EQ(JointOf(layout, 6, 0), (Joint{.target = 7, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, 7, 1), (Joint{.target = 6, .tconn = 0}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(PlaceBlock, APieceWithAJointToAPieceOutsideTheBlockComesInWithThatConnectorOpen) {
  Layout layout = PlanWithOnePiece();
  // The plan happens to have a piece with the id that the block's joint names.
  layout.pieces.push_back(Straight(99, 0, 0));
  placeBlock(layout, SmallYard());
  EXPECT_EQ(JointOf(layout, 6, 1), Joint{});
}

TEST(PlaceBlock, ASlotForEachConnectorOfAKnownPart) {
  Layout layout;
  Block block;
  block.pieces = {Straight(1, 0, 0), {.id = 2, .cat = "no such part"}};
  placeBlock(layout, block);
  EXPECT_EQ(layout.pieces[0].joints.size(), 2u);
  EXPECT_EQ(layout.pieces[1].joints.size(), 0u);
}

TEST(PlaceBlock, ALevelThatThePlanLacksIsAddedAndNamedByItsId) {
  Layout layout = PlanWithOnePiece();
  Block block;
  block.pieces = {Straight(1, 0, 0)};
  block.pieces[0].level = 4;
  placeBlock(layout, block);
  ASSERT_EQ(layout.levels.size(), 2u);
  const Level expected{.id = 4,
                       .name = "Level 4",
                       .visible = true,
                       .height = 0.0,
                       .trackcolor = false,
                       .r = 180,
                       .g = 180,
                       .b = 180};
  EXPECT_EQ(layout.levels[1], expected);
  EXPECT_EQ(layout.pieces[1].level, 4);
  EXPECT_EQ(layout.activeLevel, 1);
}

TEST(PlaceBlock, LevelsOfPiecesAndSceneryComeInAscendingOrderAndOnceEach) {
  Layout layout = PlanWithOnePiece();
  layout.levels.push_back({.id = 3, .name = "Upper"});
  Block block;
  for (const std::int32_t level : {9, 3, 1, 9, -2}) {
    block.pieces.push_back(Straight(1, 0, 0));
    block.pieces.back().level = level;
  }
  block.scenery = {Tree(1, 0, 0), Tree(2, 0, 0)};
  block.scenery[0].level = 5;
  block.scenery[1].level = 9;
  placeBlock(layout, block);
  EXPECT_EQ(LevelIds(layout), (std::vector<std::int32_t>{1, 3, -2, 5, 9}));
  EXPECT_EQ(layout.levels[1].name, "Upper");
  EXPECT_EQ(layout.levels[2].name, "Level -2");
}

TEST(PlaceBlock, IsOneUndoStepThatKeepsTheAddedLevels) {
  Layout layout = PlanWithOnePiece();
  const std::vector<Piece> before = layout.pieces;
  Block block = SmallYard();
  block.pieces[0].level = 2;
  placeBlock(layout, block);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_EQ(LevelIds(layout), (std::vector<std::int32_t>{1, 2}));
  Redo(layout);
  EXPECT_EQ(layout.pieces.size(), 3u);
  EXPECT_EQ(layout.scenery.size(), 1u);
}

TEST(PlaceBlock, TheNewRecordsAreUnselectedAndTheSelectionStays) {
  Layout layout = PlanWithOnePiece();
  Block block = SmallYard();
  block.pieces[0].sel = true;
  block.scenery[0].sel = true;
  placeBlock(layout, block);
  EXPECT_TRUE(layout.pieces[0].sel);
  EXPECT_FALSE(layout.pieces[1].sel || layout.pieces[2].sel || layout.scenery[0].sel);
}

TEST(PlaceBlock, AnEmptyBlockChangesNothing) {
  Layout layout = PlanWithOnePiece();
  EXPECT_FALSE(placeBlock(layout, {}));
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.nextId, 6);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(PlaceBlock, ABlockOfSceneryAloneIsPlaced) {
  Layout layout;
  Block block;
  block.scenery = {Tree(3, 70, 80)};
  EXPECT_TRUE(placeBlock(layout, block));
  ASSERT_EQ(layout.scenery.size(), 1u);
  EXPECT_EQ(layout.scenery[0].x, 0.0);
  EXPECT_EQ(layout.scenery[0].id, 1);
}

TEST(PlaceBlock, ABlockPlacedTwiceLiesInOnePlaceWithIdsAndJointsOfItsOwn) {
  Layout layout;
  placeBlock(layout, SmallYard());
  placeBlock(layout, SmallYard());
  ASSERT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(layout.pieces[2].pose().x, layout.pieces[0].pose().x);
  // Ids 1 and 2 and the tree's 3, then 4 and 5.
  EXPECT_EQ(JointOf(layout, 4, 0), (Joint{.target = 5, .tconn = 1}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(PlaceBlock, ABlockBeyondAHundredKilometresStaysWhereItWas) {
  Layout layout;
  Block block;
  block.pieces = {Straight(1, 2e8, 40)};
  placeBlock(layout, block);
  EXPECT_EQ(layout.pieces[0].x, 2e8);
  EXPECT_EQ(layout.pieces[0].y, 40.0);
}

TEST(PlaceBlock, ABlockAtAHundredKilometresComesToTheOrigin) {
  Layout layout;
  Block block;
  block.pieces = {Straight(1, 1e8, 40)};
  placeBlock(layout, block);
  EXPECT_EQ(layout.pieces[0].x, 0.0);
  EXPECT_EQ(layout.pieces[0].y, 0.0);
}

// The search for the smallest y begins at 1e9: 3e9 - 1e9 = 2e9. Only x says whether a block is too
// far away.
TEST(PlaceBlock, ABlockBeyondAThousandKilometresInYAloneComesThatMuchNearer) {
  Layout layout;
  Block block;
  block.pieces = {Straight(1, 300, 3e9)};
  placeBlock(layout, block);
  EXPECT_EQ(layout.pieces[0].x, 0.0);
  EXPECT_EQ(layout.pieces[0].y, 2e9);
}

TEST(PlaceBlock, APlaceThatIsNoNumberDoesNotTakeTheOthersAlong) {
  for (const double nowhere : {kNaN, kInf, -kInf}) {
    Layout layout;
    Block block;
    block.pieces = {Straight(1, nowhere, nowhere), Straight(2, 310, 20)};
    placeBlock(layout, block);
    EXPECT_FALSE(std::isfinite(layout.pieces[0].x));
    EXPECT_EQ(layout.pieces[1].x, 0.0);
    EXPECT_EQ(layout.pieces[1].y, 0.0);
  }
}

TEST(PlaceBlock, HostileIdsAndJointsGiveAPlanWithIdsOfItsOwn) {
  Layout layout = PlanWithOnePiece();
  layout.nextId = kLargestId;
  Block block;
  block.pieces = {Straight(3, 0, 0), Straight(3, 1, 0), Straight(-1, 2, 0)};
  block.pieces[0].joints = {{.target = 3, .tconn = 500}, {.target = -7, .tconn = 0}};
  block.pieces[1].joints = {{.target = -1, .tconn = 4}};
  block.scenery = {Tree(3, 0, 0)};
  placeBlock(layout, block);
  std::set<std::int32_t> ids = {layout.scenery[0].id};
  for (const Piece& piece : layout.pieces) ids.insert(piece.id);
  EXPECT_EQ(ids.size(), 5u);
  EXPECT_EQ(ids.count(-1), 0u);
  // The first of two equal ids is the one that a joint means; a joint to -1 is open.
  EXPECT_EQ(layout.pieces[1].joints[0], (Joint{.target = layout.pieces[1].id, .tconn = 500}));
  EXPECT_EQ(layout.pieces[1].joints[1], Joint{});
  EXPECT_EQ(layout.pieces[2].joints[0], Joint{});
}

TEST(PlaceBlock, ALargeBlockTakesNoTimePerPair) {
  Layout layout;
  Block block;
  for (int i = 0; i < 100'000; ++i) {
    block.pieces.push_back(Straight(i, i, 0));
    block.pieces.back().level = i;
    block.pieces.back().joints = {{.target = i + 1, .tconn = 1}};
  }
  placeBlock(layout, std::move(block));
  EXPECT_EQ(layout.pieces.size(), 100'000u);
  EXPECT_EQ(layout.levels.size(), 100'000u);
}

}  // namespace
}  // namespace vantrel
