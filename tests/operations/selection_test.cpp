#include "canvas/operations/selection.h"

#include <gtest/gtest.h>

#include <random>

#include "canvas/operations/joining.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

using Ids = std::vector<std::int32_t>;

Ids ChosenIds(const Layout& layout) {
  Ids ids;
  for (const Piece* piece : selectedPieces(layout)) ids.push_back(piece->id);
  return ids;
}

Ids SelectedSceneryIds(const Layout& layout) {
  Ids ids;
  for (const SceneryItem* item : selectedScenery(layout)) ids.push_back(item->id);
  return ids;
}

// Straights with the ids 1 to `count`, each joined with its slot 1 to slot 0 of the next.
Layout Line(int count) {
  Layout layout;
  for (int i = 0; i < count; ++i) LayPiece(layout, "24188", {188.3 * i, 0.0, 0.0});
  for (int i = 1; i < count; ++i) joinPieces(layout, i, 1, i + 1, 0);
  return layout;
}

Layout Ring(int count) {
  Layout layout = Line(count);
  joinPieces(layout, count, 1, 1, 0);
  return layout;
}

void LayStubs(Layout& layout, std::int32_t helix, int count = 4) {
  for (int i = 0; i < count; ++i) {
    LayPiece(layout, "24188", {0.0, 1000.0 + 100.0 * i, 0.0});
    layout.pieces.back().helix = helix;
  }
}

void SelectThese(Layout& layout, const Ids& ids) {
  for (const std::int32_t id : ids) PieceOf(layout, id).sel = true;
}

void SetScenery(Layout& layout, std::int32_t id, bool sel) {
  SceneryItem item;
  item.id = id;
  item.item = "platform";
  item.sel = sel;
  layout.scenery.push_back(item);
}

TEST(Selection, ListsWhatIsSelectedInListOrder) {
  Layout layout = Line(4);
  std::swap(layout.pieces[0], layout.pieces[3]);
  SelectThese(layout, {1, 2, 4});
  SetScenery(layout, 30, true);
  SetScenery(layout, 31, false);
  SetScenery(layout, 29, true);
  EXPECT_EQ(ChosenIds(layout), (Ids{4, 2, 1}));
  EXPECT_EQ(SelectedSceneryIds(layout), (Ids{30, 29}));
  selectedPieces(layout)[1]->sel = false;
  selectedScenery(layout)[0]->sel = false;
  EXPECT_EQ(ChosenIds(layout), (Ids{4, 1}));
  EXPECT_EQ(SelectedSceneryIds(layout), (Ids{29}));
}

TEST(Selection, KnowsPiecesAndObjects) {
  Layout layout = Line(1);
  SetScenery(layout, 30, false);
  layout.labels.resize(1);
  layout.labels[0].sel = true;
  EXPECT_FALSE(hasSelectedPiece(layout));
  EXPECT_FALSE(hasSelectedObject(layout)) << "a label is neither piece nor scenery";
  layout.scenery[0].sel = true;
  EXPECT_FALSE(hasSelectedPiece(layout));
  EXPECT_TRUE(hasSelectedObject(layout));
  layout.scenery[0].sel = false;
  layout.pieces[0].sel = true;
  EXPECT_TRUE(hasSelectedPiece(layout));
  EXPECT_TRUE(hasSelectedObject(layout));
}

TEST(CommonHelixOfSelection, IsTheHelixThatAllSelectedPiecesShare) {
  Layout layout;
  LayStubs(layout, 70, 4);  // 1 to 4
  LayStubs(layout, 80, 4);  // 5 to 8
  LayPiece(layout, "24188", {});
  EXPECT_EQ(commonHelixOfSelection(layout), kNone) << "nothing is selected";
  SelectThese(layout, {2});
  EXPECT_EQ(commonHelixOfSelection(layout), 70);
  SelectThese(layout, {1, 3, 4});
  EXPECT_EQ(commonHelixOfSelection(layout), 70);
  SelectThese(layout, {9});
  EXPECT_EQ(commonHelixOfSelection(layout), kNone) << "a piece without a helix";
  PieceOf(layout, 9).sel = false;
  SelectThese(layout, {5});
  EXPECT_EQ(commonHelixOfSelection(layout), kNone) << "two helices";
  PieceOf(layout, 5).sel = false;
  SetScenery(layout, 30, true);
  EXPECT_EQ(commonHelixOfSelection(layout), kNone) << "scenery";
}

TEST(CommonHelixOfSelection, IsNoneWhenAPieceWithoutAHelixComesFirst) {
  Layout layout = Line(1);
  LayStubs(layout, 70);
  SelectThese(layout, {1, 2});
  EXPECT_EQ(commonHelixOfSelection(layout), kNone);
}

TEST(ExpandHelixSelection, SelectsEveryPieceOfEachHelixTouched) {
  Layout layout = Line(1);
  LayStubs(layout, 70);  // 2 to 5
  LayStubs(layout, 80);  // 6 to 9
  LayStubs(layout, 90);  // 10 to 13
  SelectThese(layout, {3, 9});
  expandHelixSelection(layout);
  EXPECT_EQ(ChosenIds(layout), (Ids{2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(ClickPiece, SelectsThePieceAlone) {
  Layout layout = Line(3);
  SelectThese(layout, {1});
  SetScenery(layout, 30, true);
  layout.labels.resize(1);
  layout.labels[0].sel = true;
  layout.shapes.resize(1);
  layout.shapes[0].sel = true;
  layout.measurements.resize(1);
  layout.measurements[0].sel = true;
  clickPiece(layout, 2);
  EXPECT_EQ(ChosenIds(layout), (Ids{2}));
  EXPECT_FALSE(layout.scenery[0].sel);
  EXPECT_FALSE(layout.labels[0].sel);
  EXPECT_FALSE(layout.shapes[0].sel);
  EXPECT_FALSE(layout.measurements[0].sel);
}

TEST(ClickPiece, KeepsASelectionThatThePieceIsPartOf) {
  Layout layout = Line(3);
  SelectThese(layout, {1, 3});
  SetScenery(layout, 30, true);
  clickPiece(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 3}));
  EXPECT_TRUE(layout.scenery[0].sel);
}

TEST(ClickPiece, OnOneStubSelectsAllFourStubsOfItsHelix) {
  Layout layout = Line(1);
  LayStubs(layout, 70);
  LayStubs(layout, 80);
  SelectThese(layout, {1});
  clickPiece(layout, 4);
  EXPECT_EQ(ChosenIds(layout), (Ids{2, 3, 4, 5}));
}

TEST(ClickPiece, OnASelectedStubCompletesItsHelix) {
  Layout layout = Line(1);
  LayStubs(layout, 70);
  SelectThese(layout, {1, 4});
  clickPiece(layout, 4);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4, 5}));
}

TEST(ClickPiece, OnATurntableSelectsWhatIsJoinedToItsOwnSlots) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  const std::int32_t first = LayPiece(layout, "74871", {139.0, 0.0, 0.0});
  const std::int32_t second = LayPiece(layout, "74871", {-139.0, 0.0, 180.0});
  const std::int32_t beyond = LayPiece(layout, "24188", {196.5, 0.0, 0.0});
  const std::int32_t oneSided = LayPiece(layout, "24188", {0.0, 139.0, 90.0});
  LayPiece(layout, "24188", {1000.0, 0.0, 0.0});
  joinPieces(layout, table, 0, first, 0);
  joinPieces(layout, table, 15, second, 0);
  joinPieces(layout, first, 1, beyond, 0);
  PieceOf(layout, oneSided).joints[0] = {.target = table, .tconn = 7};
  PieceOf(layout, table).joints[3] = {.target = 999, .tconn = 0};
  clickPiece(layout, table);
  EXPECT_EQ(ChosenIds(layout), (Ids{table, first, second}));
}

TEST(ClickPiece, OnATurntableBringsTheWholeHelixOfAStubJoinedToIt) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  LayStubs(layout, 70);
  joinPieces(layout, table, 0, 3, 0);
  clickPiece(layout, table);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4, 5}));
}

TEST(ClickPiece, OnATurntableInAHelixGoesByTheHelix) {
  Layout layout;
  LayStubs(layout, 70, 3);
  const std::int32_t table = LayPiece(layout, "74861", {});
  layout.pieces.back().helix = 70;
  const std::int32_t spoke = LayPiece(layout, "74871", {139.0, 0.0, 0.0});
  joinPieces(layout, table, 0, spoke, 0);
  clickPiece(layout, table);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, table}));
}

TEST(ClickPiece, OnASpokeDoesntSelectItsTurntable) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  const std::int32_t spoke = LayPiece(layout, "74871", {139.0, 0.0, 0.0});
  joinPieces(layout, table, 0, spoke, 0);
  clickPiece(layout, spoke);
  EXPECT_EQ(ChosenIds(layout), (Ids{spoke}));
}

TEST(ClickPiece, LeavesTheJointsAsTheyAre) {
  Layout layout = Line(2);
  PieceOf(layout, 1).joints.clear();
  clickPiece(layout, 1);
  EXPECT_TRUE(PieceOf(layout, 1).joints.empty());
}

TEST(SelectTurntableNeighbours, FollowsOnlySelectedTurntables) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  const std::int32_t other = LayPiece(layout, "74861", {2000.0, 0.0, 0.0});
  const std::int32_t spoke = LayPiece(layout, "74871", {139.0, 0.0, 0.0});
  const std::int32_t otherSpoke = LayPiece(layout, "74871", {2139.0, 0.0, 0.0});
  joinPieces(layout, table, 0, spoke, 0);
  joinPieces(layout, other, 0, otherSpoke, 0);
  SelectThese(layout, {table});
  selectTurntableNeighbours(layout);
  EXPECT_EQ(ChosenIds(layout), (Ids{table, spoke}));
}

TEST(ClickPieceToggle, TurnsThePieceOverAndKeepsTheRest) {
  Layout layout = Line(3);
  SelectThese(layout, {1});
  clickPieceToggle(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 3}));
  clickPieceToggle(layout, 1);
  EXPECT_EQ(ChosenIds(layout), (Ids{3}));
}

TEST(ClickPieceToggle, CantDeselectOneStubOfASelectedHelix) {
  Layout layout;
  LayStubs(layout, 70);
  SelectThese(layout, {1, 2, 3, 4});
  clickPieceToggle(layout, 2);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4}));
}

TEST(ClickPieceToggle, AddsAWholeHelix) {
  Layout layout = Line(1);
  LayStubs(layout, 70);
  SelectThese(layout, {1});
  clickPieceToggle(layout, 5);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4, 5}));
}

TEST(ClickPieceToggle, DoesntBringTheNeighboursOfATurntable) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  const std::int32_t spoke = LayPiece(layout, "74871", {139.0, 0.0, 0.0});
  joinPieces(layout, table, 0, spoke, 0);
  clickPieceToggle(layout, table);
  EXPECT_EQ(ChosenIds(layout), (Ids{table}));
}

TEST(ClickPieceChain, SelectsTheWayFromTheSelectedPiece) {
  Layout layout = Line(5);
  SelectThese(layout, {1});
  clickPieceChain(layout, 4);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4}));
}

TEST(ClickPieceChain, StartsFromTheSelectedPieceLatestInTheList) {
  Layout layout = Line(5);
  clickPiece(layout, 5);
  clickPieceToggle(layout, 1);  // the one clicked last
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 3, 4, 5}));
}

TEST(ClickPieceChain, GoesByTheOrderOfTheListAndNotByIds) {
  Layout layout = Line(5);
  std::swap(layout.pieces[0], layout.pieces[4]);
  SelectThese(layout, {1, 5});
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{5, 2, 3, 1}));
}

TEST(ClickPieceChain, KeepsTheSelectionMadeBefore) {
  Layout layout = Line(5);
  const std::int32_t apart = LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  std::swap(layout.pieces[0], layout.pieces[5]);
  SelectThese(layout, {1, apart});
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{apart, 2, 3, 1}));
}

TEST(ClickPieceChain, TurnsThePieceOverWithoutAnAnchor) {
  Layout layout = Line(3);
  clickPieceChain(layout, 2);
  EXPECT_EQ(ChosenIds(layout), (Ids{2}));
}

TEST(ClickPieceChain, TurnsTheAnchorItselfOver) {
  Layout layout = Line(3);
  SelectThese(layout, {1, 3});
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1}));
}

TEST(ClickPieceChain, WithNoPathBetweenTheTwoTurnsTheClickedPieceOver) {
  Layout layout = Line(2);
  const std::int32_t apart = LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  SelectThese(layout, {2});
  clickPieceChain(layout, apart);
  EXPECT_EQ(ChosenIds(layout), (Ids{2, apart}));
  // The anchor is `apart` now, and 2 can't be reached from it.
  clickPieceChain(layout, 2);
  EXPECT_EQ(ChosenIds(layout), (Ids{apart}));
}

TEST(ClickPieceChain, TakesTheShorterSideOfARing) {
  Layout layout = Ring(8);
  SelectThese(layout, {1});
  clickPieceChain(layout, 4);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4}));
  ClearSelection(layout);
  SelectThese(layout, {1});
  clickPieceChain(layout, 7);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 7, 8}));
}

// Both ways from 1 to 4 have two pieces between; slot 0 of piece 1 leads to 6.
TEST(ClickPieceChain, OfEqualWaysTakesTheOneOverTheLowerSlot) {
  Layout layout = Ring(6);
  SelectThese(layout, {1});
  clickPieceChain(layout, 4);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 4, 5, 6}));
}

// From 1 over the turnout 2: the straight route 3, 4, 5 and the branch 6 both lead to 7.
TEST(ClickPieceChain, TakesTheShortestRouteOverAnyBranchOfATurnout) {
  Layout layout;
  LayPiece(layout, "24188", {});
  LayPiece(layout, "24611", {});
  for (int i = 0; i < 4; ++i) LayPiece(layout, "24188", {});
  LayPiece(layout, "24611", {});
  joinPieces(layout, 1, 1, 2, 0);
  joinPieces(layout, 2, 1, 3, 0);
  joinPieces(layout, 3, 1, 4, 0);
  joinPieces(layout, 4, 1, 5, 0);
  joinPieces(layout, 5, 1, 7, 1);
  joinPieces(layout, 2, 2, 6, 0);
  joinPieces(layout, 6, 1, 7, 2);
  SelectThese(layout, {1});
  clickPieceChain(layout, 7);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 6, 7}));
}

TEST(ClickPieceChain, EndsABranchAtAPieceThatDoesntExist) {
  Layout layout = Line(5);
  layout.pieces.erase(layout.pieces.begin() + 2);
  SelectThese(layout, {1});
  clickPieceChain(layout, 5);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 5}));
}

TEST(ClickPieceChain, DoesntFollowTargetsBelow0) {
  Layout layout = Line(3);
  PieceOf(layout, 2).id = -2;
  PieceOf(layout, 1).joints[1].target = -2;
  SelectThese(layout, {1});
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 3}));
}

TEST(ClickPieceChain, FollowsJointsThatNoPieceNamesBack) {
  Layout layout = Line(3);
  PieceOf(layout, 2).joints[0] = {};
  PieceOf(layout, 1).joints[1].tconn = 77;
  SelectThese(layout, {1});
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3}));
}

TEST(ClickPieceChain, OverAStubBringsItsHelix) {
  Layout layout = Line(2);
  LayStubs(layout, 70);  // 3 to 6
  joinPieces(layout, 2, 1, 3, 0);
  SelectThese(layout, {1});
  clickPieceChain(layout, 3);
  EXPECT_EQ(ChosenIds(layout), (Ids{1, 2, 3, 4, 5, 6}));
}

TEST(ClicksOnAMissingPiece, DoNothing) {
  Layout layout = Line(2);
  SelectThese(layout, {1});
  const Layout before = layout;
  for (const std::int32_t id : {kNone, 99, -7}) {
    clickPiece(layout, id);
    clickPieceToggle(layout, id);
    clickPieceChain(layout, id);
    clickScenery(layout, id, false);
    clickScenery(layout, id, true);
  }
  EXPECT_EQ(layout.pieces, before.pieces);
}

TEST(ClickScenery, SelectsTheItemAloneOrKeepsTheSelectionItIsPartOf) {
  Layout layout = Line(1);
  SelectThese(layout, {1});
  SetScenery(layout, 30, true);
  SetScenery(layout, 31, false);
  clickScenery(layout, 30, false);
  EXPECT_EQ(ChosenIds(layout), (Ids{1}));
  EXPECT_EQ(SelectedSceneryIds(layout), (Ids{30}));
  clickScenery(layout, 31, false);
  EXPECT_EQ(ChosenIds(layout), (Ids{}));
  EXPECT_EQ(SelectedSceneryIds(layout), (Ids{31}));
}

TEST(ClickScenery, TurnsTheItemOverWhenAsked) {
  Layout layout = Line(1);
  SelectThese(layout, {1});
  SetScenery(layout, 30, true);
  SetScenery(layout, 31, false);
  clickScenery(layout, 31, true);
  EXPECT_EQ(SelectedSceneryIds(layout), (Ids{30, 31}));
  clickScenery(layout, 30, true);
  EXPECT_EQ(SelectedSceneryIds(layout), (Ids{31}));
  EXPECT_EQ(ChosenIds(layout), (Ids{1}));
}

// Joints of all kinds of damage, ids that repeat: every click ends, and what it is about is done.
TEST(Clicks, EndOnDamagedPlans) {
  std::mt19937 random(3);
  const auto pick = [&](int low, int high) {
    return std::uniform_int_distribution<std::int32_t>(low, high)(random);
  };
  for (int round = 0; round < 200; ++round) {
    Layout layout;
    for (int i = 0; i < 30; ++i) {
      LayPiece(layout, pick(0, 4) == 0 ? "74861" : "24188", {});
      Piece& piece = layout.pieces.back();
      piece.id = pick(-3, 25);
      piece.helix = pick(0, 9) == 0 ? pick(-2, 2) : kNone;
      piece.joints.resize(static_cast<std::size_t>(pick(0, 5)));
      for (Joint& joint : piece.joints) joint = {.target = pick(-4, 40), .tconn = pick(-9, 9)};
      piece.sel = pick(0, 5) == 0;
    }
    const std::int32_t id = pick(-3, 25);
    clickPieceChain(layout, id);
    clickPieceToggle(layout, id);
    clickPiece(layout, id);
    const Piece* piece = FindPiece(layout, id);
    if (piece != nullptr) {
      EXPECT_TRUE(piece->sel);
    }
    for (const Piece& each : layout.pieces) {
      if (piece == nullptr || piece->helix == kNone || each.helix != piece->helix) continue;
      EXPECT_TRUE(each.sel);
    }
  }
}

}  // namespace
}  // namespace vantrel
