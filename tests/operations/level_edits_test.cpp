#include "canvas/operations/level_edits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "canvas/operations/helix_placing.h"
#include "canvas/operations/joining.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

Layout PlanWithLevels(const std::vector<std::int32_t>& ids) {
  Layout layout;
  for (const std::int32_t id : ids) {
    Level level;
    level.id = id;
    level.name = "Level " + std::to_string(id);
    layout.levels.push_back(level);
  }
  return layout;
}

template <typename Record>
std::vector<std::int32_t> IdsOf(const std::vector<Record>& records) {
  std::vector<std::int32_t> ids;
  for (const Record& record : records) ids.push_back(record.id);
  return ids;
}

std::int32_t LayOn(Layout& layout, std::int32_t level, std::int32_t helix = kNone) {
  const std::int32_t id = LayPiece(layout, "24188", {200.0 * layout.nextId, 100.0, 0.0});
  PieceOf(layout, id).level = level;
  PieceOf(layout, id).helix = helix;
  return id;
}

std::int32_t PutSceneryOn(Layout& layout, std::int32_t level, const std::string& item = "tree") {
  layout.scenery.push_back({.id = TakeId(layout), .item = item, .level = level});
  return layout.scenery.back().id;
}

// Three levels, 1 to 3, each with a straight, a tree and a shape. Helix A climbs from level 1 to 2,
// helix B from level 2 to 3; a tunnel runs on level 2.
struct ThreeDecks {
  ThreeDecks() : layout(PlanWithLevels({1, 2, 3})) {
    for (const std::int32_t level : {1, 2, 3}) {
      track.push_back(LayOn(layout, level));
      trees.push_back(PutSceneryOn(layout, level));
      layout.shapes.push_back({.id = TakeId(layout), .level = level});
    }
    helixA = addHelix(1, 2);
    helixB = addHelix(2, 3);
    portalA = PutSceneryOn(layout, 2, "tunnel_portal_single");
    portalB = PutSceneryOn(layout, 2, "tunnel_portal_single");
    tunnel = TakeId(layout);
    layout.tunnels.push_back({tunnel, portalA, portalB, track[1], track[1], {track[1]}});
  }

  std::int32_t addHelix(std::int32_t bottom, std::int32_t top) {
    Helix helix;
    helix.id = TakeId(layout);
    helix.bottomR1 = LayOn(layout, bottom, helix.id);
    helix.bottomR2 = LayOn(layout, bottom, helix.id);
    helix.topR1 = LayOn(layout, top, helix.id);
    helix.topR2 = LayOn(layout, top, helix.id);
    layout.helices.push_back(helix);
    return helix.id;
  }

  std::vector<std::int32_t> stubsOf(std::int32_t helix) const {
    std::vector<std::int32_t> ids;
    for (const Piece& piece : layout.pieces)
      if (piece.helix == helix) ids.push_back(piece.id);
    return ids;
  }

  Layout layout;
  std::vector<std::int32_t> track;  // one straight per level
  std::vector<std::int32_t> trees;
  std::int32_t helixA = kNone;
  std::int32_t helixB = kNone;
  std::int32_t portalA = kNone;
  std::int32_t portalB = kNone;
  std::int32_t tunnel = kNone;
};

// ---- Adding

TEST(AddLevel, TakesTheIdBehindTheHighest) {
  Layout layout = PlanWithLevels({7, 2});
  EXPECT_EQ(nextLevelId(layout), 8);
  addLevel(layout, "Yard");
  EXPECT_EQ(LevelIds(layout), (std::vector<std::int32_t>{7, 2, 8}));
}

TEST(AddLevel, IsVisibleAtHeightZeroAndLeavesItsTrackTheColourItHas) {
  Layout layout = PlanWithLevels({1});
  addLevel(layout, "Yard");
  EXPECT_EQ(layout.levels[1], (Level{2, "Yard", true, 0.0, false, 220, 180, 180, {}}));
  EXPECT_EQ(layout.activeLevel, 1);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(AddLevel, KeepsTheNameAsEntered) {
  Layout layout = PlanWithLevels({1});
  addLevel(layout, "  Upper deck \xC3\xBC ");
  EXPECT_EQ(layout.levels[1].name, "  Upper deck \xC3\xBC ");
  addLevel(layout, "   ");
  EXPECT_EQ(layout.levels[2].name, "   ");
}

TEST(AddLevel, WithoutANameAddsNone) {
  Layout layout = PlanWithLevels({1});
  addLevel(layout, "");
  EXPECT_EQ(layout.levels.size(), 1u);
}

TEST(AddLevel, KeepsAPastedNameOnOneLine) {
  Layout layout = PlanWithLevels({1});
  addLevel(layout, "Upper\r\ndeck\n");
  EXPECT_EQ(layout.levels[1].name, "Upper  deck ");
}

TEST(AddLevel, GoesThroughSixColoursInTurn) {
  Layout layout;
  for (int i = 0; i < 7; ++i) addLevel(layout, "Deck");
  const int expected[][3] = {{180, 200, 220}, {220, 180, 180}, {180, 220, 180}, {220, 210, 160},
                             {200, 180, 220}, {160, 220, 220}, {180, 200, 220}};
  for (std::size_t i = 0; i < 7; ++i) {
    EXPECT_EQ(layout.levels[i].id, static_cast<std::int32_t>(i) + 1);
    EXPECT_EQ(layout.levels[i].r, expected[i][0]) << i;
    EXPECT_EQ(layout.levels[i].g, expected[i][1]) << i;
    EXPECT_EQ(layout.levels[i].b, expected[i][2]) << i;
  }
}

TEST(AddLevel, AfterTheSecondOfThreeWasRemovedGetsTheFourthId) {
  Layout layout = PlanWithLevels({1, 2, 3});
  removeLevel(layout, 1);
  addLevel(layout, "Level 4");
  EXPECT_EQ(LevelIds(layout), (std::vector<std::int32_t>{1, 3, 4}));
}

TEST(AddLevel, CopesWithAnyIdThatAFileCouldHold) {
  Layout layout = PlanWithLevels({1, kLargestId, 2});
  EXPECT_EQ(nextLevelId(layout), 3) << "the lowest free one";
  layout = PlanWithLevels({-10});
  addLevel(layout, "Cellar");
  // -9 - 1 = -10, which is 2 more than -12, two full turns down: the third colour.
  EXPECT_EQ(layout.levels[1].id, -9);
  EXPECT_EQ(layout.levels[1].r, 180);
  EXPECT_EQ(layout.levels[1].g, 220);
  layout = PlanWithLevels({std::numeric_limits<std::int32_t>::min()});
  addLevel(layout, "Cellar");
  EXPECT_EQ(layout.levels.size(), 2u);
}

// ---- Showing and hiding

TEST(ShowLevel, HidesAndShowsAndNothingElse) {
  ThreeDecks decks;
  Layout before = decks.layout;
  showLevel(decks.layout, 1, false);
  EXPECT_FALSE(decks.layout.levels[1].visible);
  EXPECT_EQ(decks.layout.pieces, before.pieces);
  showLevel(decks.layout, 1, true);
  EXPECT_EQ(decks.layout.levels, before.levels);
}

TEST(ShowLevel, HidingTheActiveLevelLeavesItActive) {
  Layout layout = PlanWithLevels({1, 2});
  layout.activeLevel = 2;
  showLevel(layout, 1, false);
  EXPECT_EQ(layout.activeLevel, 2);
}

TEST(ShowLevel, OfARowThatDoesNotExistDoesNothing) {
  Layout layout = PlanWithLevels({1});
  showLevel(layout, 1, false);
  showLevel(layout, std::numeric_limits<std::size_t>::max(), false);
  EXPECT_TRUE(layout.levels[0].visible);
}

// ---- Properties

TEST(ChangeLevel, StoresNameHeightAndColour) {
  Layout layout = PlanWithLevels({1, 2});
  layout.levels[1].outline = {{0, 0}, {1, 0}, {1, 1}};
  changeLevel(layout, 1, {"Station", 75.5, true, 10, 20, 30});
  EXPECT_EQ(layout.levels[1],
            (Level{2, "Station", true, 75.5, true, 10, 20, 30, {{0, 0}, {1, 0}, {1, 1}}}));
  EXPECT_EQ(layout.levels[0].name, "Level 1");
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(ChangeLevel, TrimsTheName) {
  Layout layout = PlanWithLevels({1});
  changeLevel(layout, 0, {" \t Lower  deck \xC2\xA0", 0.0, false, 0, 0, 0});
  EXPECT_EQ(layout.levels[0].name, "Lower  deck");
}

TEST(ChangeLevel, ABlankNameKeepsTheOldOneAndStoresTheRest) {
  for (const char* name : {"", "   ", "\t\n"}) {
    Layout layout = PlanWithLevels({1});
    changeLevel(layout, 0, {name, 40.0, true, 1, 2, 3});
    EXPECT_EQ(layout.levels[0].name, "Level 1");
    EXPECT_EQ(layout.levels[0].height, 40.0);
    EXPECT_TRUE(layout.levels[0].trackcolor);
  }
}

TEST(ChangeLevel, MovesFlatTrackButNotGradedTrack) {
  Layout layout = PlanWithLevels({1, 2});
  const double grades[] = {0.0, 0.00099, -0.00099, 0.001, -0.001, 2.5};
  for (const double grade : grades) PieceOf(layout, LayOn(layout, 2)).grade = grade;
  for (Piece& piece : layout.pieces) piece.z = 5.0;
  changeLevel(layout, 1, {"Level 2", 80.0, false, 0, 0, 0});
  const double expected[] = {80.0, 80.0, 80.0, 5.0, 5.0, 5.0};
  for (std::size_t i = 0; i < 6; ++i)
    EXPECT_EQ(layout.pieces[i].z, expected[i]) << "grade " << grades[i];
}

TEST(ChangeLevel, LeavesHelicesAndOtherLevelsWhereTheyAre) {
  ThreeDecks decks;
  for (Piece& piece : decks.layout.pieces) piece.z = 5.0;
  changeLevel(decks.layout, 1, {"Level 2", 80.0, false, 0, 0, 0});
  for (const Piece& piece : decks.layout.pieces)
    EXPECT_EQ(piece.z, piece.id == decks.track[1] ? 80.0 : 5.0) << piece.id;
}

TEST(ChangeLevel, LeavesTrackWhoseGradeIsNotANumber) {
  Layout layout = PlanWithLevels({1});
  PieceOf(layout, LayOn(layout, 1)).grade = std::numeric_limits<double>::quiet_NaN();
  changeLevel(layout, 0, {"", 80.0, false, 0, 0, 0});
  EXPECT_EQ(layout.pieces[0].z, 0.0);
}

TEST(ChangeLevel, OfARowThatDoesNotExistDoesNothing) {
  Layout layout = PlanWithLevels({1});
  LayOn(layout, 1);
  changeLevel(layout, 1, {"x", 80.0, true, 0, 0, 0});
  EXPECT_EQ(layout.levels, PlanWithLevels({1}).levels);
  EXPECT_EQ(layout.pieces[0].z, 0.0);
}

// ---- What hangs on a level

// Level 1: its straight, its tree, helix A. Level 2: straight, tree and two portals, helix B.
// Level 3: straight and tree; helix B only ends there.
TEST(LevelContents, CountsTrackSceneryAndTheHelicesThatBeginThere) {
  const ThreeDecks decks;
  EXPECT_EQ(levelContents(decks.layout, 0), (LevelContents{1, 1, 1}));
  EXPECT_EQ(levelContents(decks.layout, 1), (LevelContents{1, 3, 1}));
  EXPECT_EQ(levelContents(decks.layout, 2), (LevelContents{1, 1, 0}));
  EXPECT_EQ(levelContents(decks.layout, 3), (LevelContents{0, 0, 0}));
}

TEST(LevelContents, DoesNotCountAHelixWithoutABottom) {
  Layout layout = PlanWithLevels({1});
  Helix helix;
  helix.id = 5;
  layout.helices.push_back(helix);
  helix.id = 6;
  helix.bottomR1 = 99;  // no such piece
  layout.helices.push_back(helix);
  Piece piece;  // id -1 is no piece of anybody's
  layout.pieces.push_back(piece);
  EXPECT_EQ(levelContents(layout, 0), (LevelContents{1, 0, 0}));
}

// ---- Removing

TEST(RemoveLevel, OfTheLowestTakesItsTrackItsSceneryAndTheHelixThatBeginsThere) {
  ThreeDecks decks;
  const std::vector<std::int32_t> b = decks.stubsOf(decks.helixB);
  removeLevel(decks.layout, 0);
  // Helix A's stubs on level 2 went with it.
  EXPECT_EQ(IdsOf(decks.layout.pieces),
            (std::vector<std::int32_t>{decks.track[1], decks.track[2], b[0], b[1], b[2], b[3]}));
  EXPECT_EQ(IdsOf(decks.layout.helices), (std::vector<std::int32_t>{decks.helixB}));
  EXPECT_EQ(IdsOf(decks.layout.scenery), (std::vector<std::int32_t>{decks.trees[1], decks.trees[2],
                                                                    decks.portalA, decks.portalB}));
  EXPECT_EQ(LevelIds(decks.layout), (std::vector<std::int32_t>{2, 3}));
}

TEST(RemoveLevel, LeavesTheStubsOfAHelixThatBeginsElsewhere) {
  ThreeDecks decks;
  const std::vector<std::int32_t> a = decks.stubsOf(decks.helixA);
  const std::vector<std::int32_t> b = decks.stubsOf(decks.helixB);
  removeLevel(decks.layout, 2);
  EXPECT_EQ(IdsOf(decks.layout.pieces),
            (std::vector<std::int32_t>{decks.track[0], decks.track[1], a[0], a[1], a[2], a[3], b[0],
                                       b[1], b[2], b[3]}));
  EXPECT_EQ(PieceOf(decks.layout, b[2]).level, 3) << "it still names the level that went";
  EXPECT_EQ(IdsOf(decks.layout.helices), (std::vector<std::int32_t>{decks.helixA, decks.helixB}));
}

TEST(RemoveLevel, TakesPortalsAndLeavesTheTunnelRecord) {
  ThreeDecks decks;
  const std::vector<Tunnel> before = decks.layout.tunnels;
  removeLevel(decks.layout, 1);
  EXPECT_EQ(IdsOf(decks.layout.scenery),
            (std::vector<std::int32_t>{decks.trees[0], decks.trees[2]}));
  EXPECT_EQ(decks.layout.tunnels, before);
}

TEST(RemoveLevel, LeavesShapesWithTheLevelThatWent) {
  ThreeDecks decks;
  const std::vector<Shape> before = decks.layout.shapes;
  removeLevel(decks.layout, 1);
  EXPECT_EQ(decks.layout.shapes, before);
}

TEST(RemoveLevel, LeavesJointsToRemovedPiecesAsTheyAre) {
  Layout layout = PlanWithLevels({1, 2});
  const std::int32_t lower = LayOn(layout, 1);
  const std::int32_t upper = LayOn(layout, 2);
  joinPieces(layout, lower, 1, upper, 0);
  removeLevel(layout, 1);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(JointOf(layout, lower, 1), (Joint{.target = upper, .tconn = 0}));
}

TEST(RemoveLevel, IsNoUndoStep) {
  ThreeDecks decks;
  removeLevel(decks.layout, 1);
  EXPECT_TRUE(decks.layout.undoHistory.empty());
}

TEST(RemoveLevel, OfTheActiveOneMakesTheFirstThatRemainsActive) {
  Layout layout = PlanWithLevels({4, 2, 3});
  layout.activeLevel = 4;
  removeLevel(layout, 0);
  EXPECT_EQ(layout.activeLevel, 2);
  layout.activeLevel = 3;
  removeLevel(layout, 0);
  EXPECT_EQ(layout.activeLevel, 3) << "another one went";
}

TEST(RemoveLevel, CantRemoveTheLastOne) {
  Layout layout = PlanWithLevels({1});
  LayOn(layout, 1);
  PutSceneryOn(layout, 1);
  removeLevel(layout, 0);
  EXPECT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.scenery.size(), 1u);
}

TEST(RemoveLevel, OfARowThatDoesNotExistDoesNothing) {
  ThreeDecks decks;
  const std::vector<Piece> before = decks.layout.pieces;
  removeLevel(decks.layout, 3);
  EXPECT_EQ(decks.layout.levels.size(), 3u);
  EXPECT_EQ(decks.layout.pieces, before);
}

TEST(RemoveLevel, AHelixWhoseIdStandsForNoneTakesNoTrackWithIt) {
  Layout layout = PlanWithLevels({1, 2});
  const std::int32_t bottom = LayOn(layout, 1);
  LayOn(layout, 2);
  Helix helix;  // id -1, which all track without a helix names
  helix.bottomR1 = bottom;
  layout.helices.push_back(helix);
  removeLevel(layout, 0);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].level, 2);
}

TEST(RemoveLevel, OfALevelWhoseIdAppearsTwiceTakesOneRecord) {
  Layout layout = PlanWithLevels({5, 5});
  layout.activeLevel = 5;
  removeLevel(layout, 1);
  EXPECT_EQ(LevelIds(layout), (std::vector<std::int32_t>{5}));
  EXPECT_EQ(layout.activeLevel, 5);
}

TEST(RemoveLevel, TakesAHelixAsItIsPlaced) {
  Layout layout = PlanWithLevels({1, 2});
  layout.activeLevel = 1;
  const std::int32_t helix = placeHelix(layout, {500.0, 500.0}, 0.0, "");
  ASSERT_NE(helix, kNone);
  const std::size_t row = layout.helices.empty() ? 0 : 1;
  ASSERT_EQ(row, 1u);
  const std::int32_t level = PieceOf(layout, layout.helices[0].bottomR1).level;
  removeLevel(layout, level == 1 ? 0 : 1);
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(layout.helices.empty());
}

TEST(RemoveLevel, OfAPlanOfManyPiecesAndHelicesKeepsTheOthersInOrder) {
  Layout layout = PlanWithLevels({1, 2});
  std::vector<std::int32_t> kept;
  for (int i = 0; i < 5000; ++i) {
    const std::int32_t level = i % 2 + 1;
    const std::int32_t id = LayOn(layout, level);
    if (level == 2) kept.push_back(id);
  }
  removeLevel(layout, 0);
  EXPECT_EQ(IdsOf(layout.pieces), kept);
}

}  // namespace
}  // namespace vantrel
