// What happens when the user chooses a level.
#include <gtest/gtest.h>

#include <limits>

#include "doc/undo.h"
#include "inspection/selection_edits.h"
#include "tests/inspection/inspection_support.h"

namespace vantrel {
namespace {

class LevelChoice : public testing::Test {
 protected:
  LevelChoice() {
    PushUndo(layout);
    Undo(layout);  // something to redo: it lasts until an undo step is taken
  }

  // Chooses on the page of what is selected.
  bool choose(std::int32_t level) { return ChooseLevel(layout, DescribeSelection(layout), level); }

  void expectUntouched() const {
    EXPECT_TRUE(layout.undoHistory.empty());
    EXPECT_EQ(layout.redoHistory.size(), 1u);
    EXPECT_EQ(layout.activeLevel, 1);
  }
  void expectOneUndoStep() const { EXPECT_EQ(layout.undoHistory.size(), 1u); }

  Piece& piece(std::int32_t id) { return PieceOf(layout, id); }
  // Level and height together.
  std::pair<std::int32_t, double> deck(std::int32_t id) { return {piece(id).level, piece(id).z}; }

  Layout layout = PlanWithThreeLevels();
};

using Deck = std::pair<std::int32_t, double>;

TEST_F(LevelChoice, PutsTheSelectedPiecesOnTheLevelAtItsHeight) {
  const std::int32_t a = LaySelected(layout, "24130");
  const std::int32_t b = LaySelected(layout, "24130");
  const std::int32_t other = LayPiece(layout, "24130", {});
  piece(a).z = 30.0;
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(a), Deck(2, 120.0));
  EXPECT_EQ(deck(b), Deck(2, 120.0));
  EXPECT_EQ(deck(other), Deck(1, 0.0));
  EXPECT_EQ(layout.activeLevel, 2);
  expectOneUndoStep();
  Undo(layout);
  EXPECT_EQ(deck(a), Deck(1, 30.0));
}

TEST_F(LevelChoice, LeavesTheHeightOfAGradedPieceAlone) {
  const std::int32_t flat = LaySelected(layout, "24130");
  const std::int32_t up = LaySelected(layout, "24130");
  const std::int32_t down = LaySelected(layout, "24130");
  piece(flat).grade = 0.0009;
  piece(up).grade = 0.001;
  piece(up).z = 33.0;
  piece(down).grade = -2.0;
  piece(down).z = 44.0;
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(flat), Deck(2, 120.0));
  EXPECT_EQ(deck(up), Deck(2, 33.0));
  EXPECT_EQ(deck(down), Deck(2, 44.0));
}

TEST_F(LevelChoice, MixedDoesNothing) {
  LaySelected(layout, "24130");
  LaySelected(layout, "24130");
  layout.pieces[0].level = 2;
  const std::vector<Piece> before = layout.pieces;
  EXPECT_FALSE(choose(-1));
  EXPECT_EQ(layout.pieces, before);
  expectUntouched();
}

TEST_F(LevelChoice, LeavesStubsOfHelicesAmongThePiecesAlone) {
  LayHelix(layout, "proses_2_5_r1r2");
  const std::int32_t stub = layout.helices[0].bottomR1;
  piece(stub).sel = true;
  const std::int32_t plain = LaySelected(layout, "24130");
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(stub), Deck(1, 0.0));
  EXPECT_EQ(deck(plain), Deck(2, 120.0));
}

TEST_F(LevelChoice, ThatChangesNoPieceTakesNoUndoStepAndKeepsTheActiveLevel) {
  const std::int32_t id = LaySelected(layout, "24130");
  piece(id).level = 2;
  piece(id).z = 120.0;
  const std::int32_t graded = LaySelected(layout, "24130");
  piece(graded).level = 2;
  piece(graded).grade = 3.0;
  EXPECT_FALSE(choose(2));
  expectUntouched();
}

TEST_F(LevelChoice, AnotherHeightAloneIsAChange) {
  const std::int32_t id = LaySelected(layout, "24130");
  piece(id).level = 2;
  piece(id).z = 119.0;
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(id), Deck(2, 120.0));
}

TEST_F(LevelChoice, AnotherLevelAloneIsAChange) {
  layout.levels[1].height = 0.0;
  const std::int32_t id = LaySelected(layout, "24130");
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(id), Deck(2, 0.0));
}

TEST_F(LevelChoice, OfStubsAloneWithoutTheirHelixChangesNothing) {
  LayHelix(layout, "proses_2_5_r1r2");
  layout.helices.clear();
  for (Piece& stub : layout.pieces) stub.sel = true;
  ASSERT_EQ(DescribeSelection(layout).kind, PageKind::piece);
  EXPECT_FALSE(choose(2));
  expectUntouched();
}

TEST_F(LevelChoice, ActsOnAllPiecesOfARun) {
  const std::int32_t a = LaySelected(layout, "24188");
  const std::int32_t b = LaySelected(layout, "24172");
  Join(layout, a, 1, b, 0);
  piece(b).level = 5;
  ASSERT_EQ(DescribeSelection(layout).kind, PageKind::run);
  EXPECT_FALSE(choose(-1));
  expectUntouched();
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(a), Deck(2, 120.0));
  EXPECT_EQ(deck(b), Deck(2, 120.0));
  EXPECT_EQ(layout.activeLevel, 2);
}

TEST_F(LevelChoice, ALevelThatIsGoneLiesAtZero) {
  const std::int32_t id = LaySelected(layout, "24130");
  piece(id).z = 70.0;
  EXPECT_TRUE(choose(9));
  EXPECT_EQ(deck(id), Deck(9, 0.0));
  EXPECT_EQ(layout.activeLevel, 9);
}

TEST_F(LevelChoice, AHeightThatIsNoNumberIsTakenAsItIs) {
  layout.levels[1].height = std::numeric_limits<double>::quiet_NaN();
  const std::int32_t id = LaySelected(layout, "24130");
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(piece(id).level, 2);
  EXPECT_NE(piece(id).z, piece(id).z);
}

TEST_F(LevelChoice, OfASceneryItemMovesItAlone) {
  PlaceScenery(layout, "platform", false);
  PlaceScenery(layout, "platform");
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(layout.scenery[0].level, 1);
  EXPECT_EQ(layout.scenery[1].level, 2);
  EXPECT_EQ(layout.activeLevel, 2);
  expectOneUndoStep();
}

TEST_F(LevelChoice, OfAPolygonMovesItAlone) {
  DrawShape(layout, {}, false);
  DrawShape(layout, {});
  layout.shapes[1].height = 30.0;
  EXPECT_TRUE(choose(5));
  EXPECT_EQ(layout.shapes[0].level, 1);
  EXPECT_EQ(layout.shapes[1].level, 5);
  EXPECT_EQ(layout.shapes[1].height, 30.0);
  EXPECT_EQ(layout.activeLevel, 5);
  expectOneUndoStep();
}

TEST_F(LevelChoice, WithNothingShownDoesNothing) {
  LayPiece(layout, "24130", {});
  EXPECT_FALSE(choose(2));
  expectUntouched();
}

TEST_F(LevelChoice, OfARecordThatIsGoneDoesNothing) {
  for (const PageKind kind : {PageKind::scenery, PageKind::polygon, PageKind::helix}) {
    SelectionPage page;
    page.kind = kind;
    page.sceneryId = page.shapeId = page.helixId = 42;
    EXPECT_FALSE(ChooseLevel(layout, page, 2));
  }
  expectUntouched();
}

class HelixLevel : public LevelChoice {
 protected:
  HelixLevel() {
    LayHelix(layout, "proses_3_5_r1r2");  // rises 340 mm
    for (Piece& stub : layout.pieces) stub.sel = true;
  }

  // A piece behind slot 1 of another.
  std::int32_t layBehind(std::int32_t before, const char* part = "24188") {
    const std::int32_t id = LayPiece(layout, part, {});
    Join(layout, before, 1, id, 0);
    return id;
  }

  Helix& helix() { return layout.helices[0]; }
};

TEST_F(HelixLevel, PutsTheBottomOnTheLevelAndTheTopOneRiseAbove) {
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(helix().bottomR1), Deck(2, 120.0));
  EXPECT_EQ(deck(helix().bottomR2), Deck(2, 120.0));
  EXPECT_EQ(deck(helix().topR1), Deck(2, 460.0));
  EXPECT_EQ(deck(helix().topR2), Deck(2, 460.0));
  EXPECT_EQ(layout.activeLevel, 2);
  expectOneUndoStep();
}

TEST_F(HelixLevel, AnUnknownKitRisesAsTheDefaultKit) {
  helix().variant = "gone";
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(helix().topR1), Deck(2, 380.0));  // 120 + 260
}

TEST_F(HelixLevel, TakesTheTrackBehindBothTopPiecesAlong) {
  const std::int32_t first = layBehind(helix().topR1);
  const std::int32_t second = layBehind(first);
  const std::int32_t other = layBehind(helix().topR2);
  EXPECT_TRUE(choose(2));
  for (const std::int32_t id : {first, second, other}) EXPECT_EQ(deck(id), Deck(2, 460.0));
}

TEST_F(HelixLevel, LeavesTheTrackBelowWhereItIs) {
  const std::int32_t below = layBehind(helix().bottomR1);
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(below), Deck(1, 0.0));
}

TEST_F(HelixLevel, KeepsTheHeightOfGradedTrackAboveAndWalksOn) {
  const std::int32_t graded = layBehind(helix().topR1);
  const std::int32_t behind = layBehind(graded);
  piece(graded).grade = -2.0;
  piece(graded).z = 71.0;
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(graded), Deck(2, 71.0));
  EXPECT_EQ(deck(behind), Deck(2, 460.0));
}

TEST_F(HelixLevel, SetsItsEndsWhateverTheirGrade) {
  piece(helix().topR1).grade = 3.0;
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(helix().topR1), Deck(2, 460.0));
}

TEST_F(HelixLevel, StopsAtTheNextHelix) {
  const std::int32_t between = layBehind(helix().topR1);
  LayHelix(layout, "proses_2_5_r1r2");
  const std::int32_t stub = layout.helices[1].bottomR1;
  const std::int32_t beyond = LayPiece(layout, "24188", {});
  Join(layout, between, 1, stub, 0);
  Join(layout, stub, 1, beyond, 0);
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(between), Deck(2, 460.0));
  EXPECT_EQ(deck(stub), Deck(1, 0.0));
  EXPECT_EQ(deck(beyond), Deck(1, 0.0));
}

TEST_F(HelixLevel, FollowsEveryBranchAndEndsInARing) {
  const std::int32_t turnout = layBehind(helix().topR1, "24611");
  const std::int32_t straight = LayPiece(layout, "24188", {});
  const std::int32_t branch = LayPiece(layout, "24188", {});
  Join(layout, turnout, 1, straight, 0);
  Join(layout, turnout, 2, branch, 0);
  Join(layout, straight, 1, branch, 1);
  EXPECT_TRUE(choose(2));
  for (const std::int32_t id : {turnout, straight, branch}) EXPECT_EQ(deck(id), Deck(2, 460.0));
}

TEST_F(HelixLevel, CopesWithEndsAndJointsThatAreGone) {
  piece(helix().topR2).joints = {{.target = 777, .tconn = 3}, {.target = -9, .tconn = -9}};
  helix().bottomR1 = -1;
  helix().topR1 = 999;
  EXPECT_TRUE(choose(2));
  EXPECT_EQ(deck(helix().bottomR2), Deck(2, 120.0));
  EXPECT_EQ(deck(helix().topR2), Deck(2, 460.0));
}

TEST_F(HelixLevel, OfTheLevelThatItIsOnIsStillAnUndoStep) {
  EXPECT_TRUE(choose(1));
  EXPECT_EQ(deck(helix().topR1), Deck(1, 340.0));
  expectOneUndoStep();
}

}  // namespace
}  // namespace vantrel
