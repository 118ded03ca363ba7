#include "doc/layout_ops.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr std::int32_t kLargestId = std::numeric_limits<std::int32_t>::max();

Piece PieceWithId(std::int32_t id) {
  Piece piece;
  piece.id = id;
  return piece;
}

TEST(TakeId, CountsUpFromOneForAllKindsTogether) {
  Layout layout;
  layout.pieces.push_back(PieceWithId(TakeId(layout)));
  layout.scenery.push_back({.id = TakeId(layout)});
  layout.labels.push_back({.id = TakeId(layout)});
  EXPECT_EQ(layout.pieces[0].id, 1);
  EXPECT_EQ(layout.scenery[0].id, 2);
  EXPECT_EQ(layout.labels[0].id, 3);
  EXPECT_EQ(layout.nextId, 4);
}

TEST(TakeId, NeverOverflowsButFindsTheLowestFreeIdOfAllKinds) {
  Layout layout;
  layout.nextId = kLargestId;
  layout.pieces.push_back(PieceWithId(1));
  layout.scenery.push_back({.id = 2});
  layout.labels.push_back({.id = 3});
  layout.measurements.push_back({.id = 4});
  layout.shapes.push_back({.id = 5});
  layout.tunnels.push_back({.id = 6});
  layout.helices.push_back({.id = 7});
  const std::int32_t id = TakeId(layout);
  EXPECT_EQ(id, 8);
  EXPECT_EQ(layout.nextId, kLargestId);
  layout.pieces.push_back(PieceWithId(id));
  EXPECT_EQ(TakeId(layout), 9);
}

TEST(TakeId, DoesNotReviveAnIdThatADanglingReferenceStillNames) {
  Layout layout;
  layout.nextId = kLargestId;
  Piece piece = PieceWithId(kLargestId);
  piece.joints = {{.target = 1, .tconn = 0}};
  piece.helix = 2;
  layout.pieces.push_back(piece);
  layout.gradeRuns.push_back({.deg = 2.0, .anchor = 3, .conn = 0});
  layout.tunnels.push_back({.id = kLargestId - 1,
                            .portalA = 4,
                            .portalB = 5,
                            .anchorA = 6,
                            .anchorB = 7,
                            .covers = {8, 9}});
  layout.helices.push_back(
      {.id = kLargestId - 2, .bottomR1 = 10, .bottomR2 = 11, .topR1 = 12, .topR2 = 13});
  EXPECT_EQ(TakeId(layout), 14);
}

TEST(TakeIds, CountsUpAsOneByOne) {
  Layout layout;
  EXPECT_EQ(TakeIds(layout, 3), (std::vector<std::int32_t>{1, 2, 3}));
  EXPECT_TRUE(TakeIds(layout, 0).empty());
  EXPECT_EQ(TakeId(layout), 4);
}

TEST(TakeIds, GivesTheLastOnesOfTheCounterAndThenTheLowestFreeOnes) {
  Layout layout;
  layout.nextId = kLargestId - 2;
  layout.pieces = {PieceWithId(1), PieceWithId(3)};
  EXPECT_EQ(TakeIds(layout, 5),
            (std::vector<std::int32_t>{kLargestId - 2, kLargestId - 1, 2, 4, 5}));
  EXPECT_EQ(layout.nextId, kLargestId);
}

// Where the counter stands when New or a load wound it back and undo brought the records back.
TEST(TakeId, PassesOverTheIdsOfEachKindThatUndoBroughtBack) {
  const auto taken = [](auto put) {
    Layout layout;
    put(layout);
    return TakeId(layout);
  };
  EXPECT_EQ(taken([](Layout& plan) { plan.pieces = {PieceWithId(2), PieceWithId(1)}; }), 3);
  EXPECT_EQ(taken([](Layout& plan) { plan.scenery = {{.id = 1}, {.id = 2}}; }), 3);
  EXPECT_EQ(taken([](Layout& plan) { plan.labels = {{.id = 2}, {.id = 1}}; }), 3);
  EXPECT_EQ(taken([](Layout& plan) { plan.measurements = {{.id = 1}, {.id = 2}}; }), 3);
  EXPECT_EQ(taken([](Layout& plan) { plan.shapes = {{.id = 2}, {.id = 1}}; }), 3);
  EXPECT_EQ(taken([](Layout& plan) { plan.tunnels = {{.id = 1}, {.id = 2}}; }), 3);
  EXPECT_EQ(taken([](Layout& plan) { plan.helices = {{.id = 2}, {.id = 1}}; }), 3);
}

TEST(TakeId, TakesNoIdTwiceWhenThePlanBeforeNewComesBack) {
  Layout layout;
  layout.pieces = {PieceWithId(TakeId(layout)), PieceWithId(TakeId(layout))};
  StartNewPlan(layout);
  Undo(layout);
  EXPECT_EQ(layout.nextId, 1) << "the counter is no part of history";
  EXPECT_EQ(TakeId(layout), 3);
  EXPECT_EQ(TakeIds(layout, 2), (std::vector<std::int32_t>{4, 5}));
}

TEST(TakeIds, PassesOverWhatIsHeldAndNamedInTheMiddleOfTheWay) {
  Layout layout;
  layout.nextId = 4;
  layout.scenery = {{.id = 9}, {.id = 6}, {.id = 2}};
  // Nothing holds 7 any more, but its old neighbour still names it.
  layout.pieces = {PieceWithId(3)};
  layout.pieces[0].joints = {{.target = 7, .tconn = 0}};
  EXPECT_EQ(TakeIds(layout, 4), (std::vector<std::int32_t>{4, 5, 8, 10}));
  EXPECT_EQ(layout.nextId, 11);
}

TEST(TakeIds, LeavesTheCounterAloneWhereNoRecordHoldsALaterId) {
  Layout layout;
  layout.nextId = 40;
  layout.pieces = {PieceWithId(39)};
  EXPECT_EQ(TakeId(layout), 40) << "an id is not given out again while the plan is open";
  layout.pieces = {PieceWithId(60)};
  EXPECT_TRUE(TakeIds(layout, 0).empty());
  EXPECT_EQ(layout.nextId, 41);
}

TEST(TakeIds, SearchesTheLowestFreeIdOnceARecordHoldsTheLastOfAll) {
  Layout layout;
  layout.nextId = kLargestId - 1;
  layout.pieces = {PieceWithId(kLargestId), PieceWithId(kLargestId - 1), PieceWithId(1)};
  EXPECT_EQ(TakeIds(layout, 2), (std::vector<std::int32_t>{2, 3}));
}

TEST(RenewTapeIds, GivesATapeWhoseIdAReadRecordHoldsANewOneAndLeavesTheOthers) {
  Layout layout;
  layout.measurements = {{.id = 2, .startX = 10.0}, {.id = 9, .startX = 20.0}, {.id = 3}};
  layout.pieces = {PieceWithId(1), PieceWithId(2)};
  layout.helices = {{.id = 3}};
  layout.nextId = 4;  // as a reader leaves it: it doesn't count the tapes
  RenewTapeIds(layout);
  ASSERT_EQ(layout.measurements.size(), 3u);
  EXPECT_EQ(layout.measurements[0].id, 4);
  EXPECT_EQ(layout.measurements[0].startX, 10.0);
  EXPECT_EQ(layout.measurements[1].id, 9);
  EXPECT_EQ(layout.measurements[2].id, 5);
  EXPECT_EQ(TakeIds(layout, 4), (std::vector<std::int32_t>{6, 7, 8, 10}));
}

TEST(EnsureDefaultLevel, AppendsTheBlueGreyFirstLevelToNone) {
  Layout layout;
  layout.activeLevel = 5;
  EnsureDefaultLevel(layout);
  ASSERT_EQ(layout.levels.size(), 1u);
  const Level& level = layout.levels[0];
  EXPECT_EQ(level.id, 1);
  EXPECT_EQ(level.name, "Level 1");
  EXPECT_TRUE(level.visible);
  EXPECT_EQ(level.height, 0.0);
  EXPECT_FALSE(level.trackcolor);
  EXPECT_EQ(level.r, 180);
  EXPECT_EQ(level.g, 200);
  EXPECT_EQ(level.b, 220);
  EXPECT_TRUE(level.outline.empty());
  EXPECT_EQ(layout.activeLevel, 5);
}

TEST(EnsureDefaultLevel, LeavesAnyExistingLevelAlone) {
  Layout layout;
  layout.levels.push_back({.id = 9, .name = "Attic", .visible = false});
  EnsureDefaultLevel(layout);
  ASSERT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.levels[0].id, 9);
}

TEST(ClearSelection, ReachesAllFiveKindsThatCanBeSelected) {
  Layout layout;
  layout.pieces.resize(2);
  layout.pieces[1].sel = true;
  layout.scenery.resize(1);
  layout.scenery[0].sel = true;
  layout.labels.resize(1);
  layout.labels[0].sel = true;
  layout.measurements.resize(1);
  layout.measurements[0].sel = true;
  layout.shapes.resize(1);
  layout.shapes[0].sel = true;
  ClearSelection(layout);
  EXPECT_FALSE(layout.pieces[1].sel);
  EXPECT_FALSE(layout.scenery[0].sel);
  EXPECT_FALSE(layout.labels[0].sel);
  EXPECT_FALSE(layout.measurements[0].sel);
  EXPECT_FALSE(layout.shapes[0].sel);
}

TEST(SyncCurrentGrade, MirrorsTheLastRun) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1.5, .anchor = 3, .conn = 1}, {.deg = -2.0, .anchor = 8, .conn = 0}};
  SyncCurrentGrade(layout);
  EXPECT_EQ(layout.currentGrade,
            (CurrentGrade{.active = true, .deg = -2.0, .anchor = 8, .conn = 0}));
}

TEST(SyncCurrentGrade, FallsBackToItsDefaultsWithoutARun) {
  Layout layout;
  layout.currentGrade = {.active = true, .deg = 3.0, .anchor = 4, .conn = 0};
  SyncCurrentGrade(layout);
  EXPECT_FALSE(layout.currentGrade.active);
  EXPECT_EQ(layout.currentGrade.deg, 0.0);
  EXPECT_EQ(layout.currentGrade.anchor, -1);
  EXPECT_EQ(layout.currentGrade.conn, 1);
}

TEST(ResetGrades, EndsAllRunsAndTheCurrentGrade) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1.5, .anchor = 3, .conn = 1}};
  SyncCurrentGrade(layout);
  ResetGrades(layout);
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_FALSE(layout.currentGrade.active);
  EXPECT_EQ(layout.currentGrade.anchor, -1);
}

TEST(FindPiece, GivesTheFirstOfEqualIdsOrNothing) {
  Layout layout;
  layout.pieces = {PieceWithId(4), PieceWithId(6), PieceWithId(6)};
  EXPECT_EQ(FindPiece(layout, 6), &layout.pieces[1]);
  EXPECT_EQ(FindPiece(layout, 5), nullptr);
  const PieceIndex index = IndexPieces(layout);
  EXPECT_EQ(index.at(4), 0u);
  EXPECT_EQ(index.at(6), 1u);
  EXPECT_FALSE(index.contains(5));
}

TEST(HiddenLevels, AreThoseThatExistAndAreNotVisible) {
  Layout layout;
  layout.levels = {{.id = 1, .visible = true}, {.id = 2, .visible = false}};
  EXPECT_FALSE(IsLevelHidden(layout, 1));
  EXPECT_TRUE(IsLevelHidden(layout, 2));
  EXPECT_FALSE(IsLevelHidden(layout, 3)) << "a level that doesn't exist hides nothing";
  EXPECT_EQ(HiddenLevels(layout), (std::unordered_set<std::int32_t>{2}));
}

TEST(HighestVisibleLevel, IsTheFirstOfTheHighestThatCanBeSeen) {
  Layout layout;
  layout.levels = {{.id = 1, .visible = true, .height = 0.0},
                   {.id = 2, .visible = true, .height = 120.0},
                   {.id = 3, .visible = true, .height = 120.0},
                   {.id = 4, .visible = false, .height = 500.0}};
  EXPECT_EQ(HighestVisibleLevel(layout), 2);
}

TEST(HighestVisibleLevel, IsTheActiveLevelWhenAllAreHidden) {
  Layout layout;
  layout.levels = {{.id = 1, .visible = false}, {.id = 2, .visible = false}};
  layout.activeLevel = 2;
  EXPECT_EQ(HighestVisibleLevel(layout), 2);
}

TEST(HighestVisibleLevel, CountsACellarBelowZeroButNothingAtMinusABillion) {
  Layout layout;
  layout.activeLevel = 7;
  layout.levels = {{.id = 1, .visible = true, .height = -1e9}};
  EXPECT_EQ(HighestVisibleLevel(layout), 7);
  layout.levels = {{.id = 1, .visible = true, .height = std::nan("")},
                   {.id = 2, .visible = true, .height = -400.0}};
  EXPECT_EQ(HighestVisibleLevel(layout), 2);
}

}  // namespace
}  // namespace vantrel
