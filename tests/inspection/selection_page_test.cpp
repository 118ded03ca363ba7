// Which page is shown for which selection.
#include "inspection/selection_page.h"

#include <gtest/gtest.h>

#include "tests/inspection/inspection_support.h"

namespace vantrel {
namespace {

TEST(SelectionPage, SaysThatNothingIsSelected) {
  Layout layout = PlanWithThreeLevels();
  LayPiece(layout, "24188", {});
  layout.currentGrade.active = true;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::none);
  EXPECT_EQ(IdsShown(page), 0);
  EXPECT_EQ(page.title, "No selection");
  EXPECT_EQ(page.info, "");
  EXPECT_EQ(page.height, (HeightEntry{.caption = "Height (mm):", .text = "0", .enabled = false}));
  EXPECT_TRUE(page.level.rows.empty());
  EXPECT_FALSE(page.level.enabled);
  ExpectGradeDisabled(page);
}

TEST(SelectionPage, TheEmptyPageNamesTheUnitInForce) {
  Layout layout;
  layout.units = kInches;
  EXPECT_EQ(DescribeNothing(layout).height.caption, "Height (in):");
}

TEST(SelectionPage, TheEmptyPageCanBeAskedForWhateverIsSelected) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24188");
  EXPECT_EQ(DescribeNothing(layout).kind, PageKind::none);
}

TEST(SelectionPage, OnePieceGivesThePiecePage) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t id = LaySelected(layout, "24130");
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::piece);
  EXPECT_EQ(page.pieceId, id);
  EXPECT_EQ(IdsShown(page), 1);
}

TEST(SelectionPage, SeveralPiecesThatAreNoRunGiveTheOneWithTheHighestId) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24188");
  LaySelected(layout, "24130");
  LaySelected(layout, "24172");
  layout.pieces[0].id = 70;
  layout.pieces[1].id = 90;
  layout.pieces[2].id = 80;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::piece);
  EXPECT_EQ(page.pieceId, 90);
}

TEST(SelectionPage, AnUnknownPartShowsNothing) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24130");
  LaySelected(layout, "no such part");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::none);
  EXPECT_EQ(IdsShown(DescribeSelection(layout)), 0);
}

TEST(SelectionPage, OneSceneryItemGivesTheSceneryPageAndTwoGiveNone) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t id = PlaceScenery(layout, "platform").id;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::scenery);
  EXPECT_EQ(page.sceneryId, id);
  EXPECT_EQ(IdsShown(page), 1);
  PlaceScenery(layout, "platform");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::none);
}

TEST(SelectionPage, OnePolygonGivesThePolygonPageAndTwoGiveNone) {
  Layout layout = PlanWithThreeLevels();
  DrawShape(layout, {{0, 0}}, false);
  const std::int32_t id = DrawShape(layout, {{0, 0}}).id;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::polygon);
  EXPECT_EQ(page.shapeId, id);
  EXPECT_EQ(IdsShown(page), 1);
  DrawShape(layout, {{0, 0}});
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::none);
}

TEST(SelectionPage, APolygonYieldsToASceneryItemButShowsBesideTwo) {
  Layout layout = PlanWithThreeLevels();
  DrawShape(layout, {{0, 0}});
  PlaceScenery(layout, "platform");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::scenery);
  PlaceScenery(layout, "platform");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::polygon);
}

TEST(SelectionPage, APieceComesBeforeSceneryAndPolygons) {
  Layout layout = PlanWithThreeLevels();
  DrawShape(layout, {{0, 0}});
  PlaceScenery(layout, "platform");
  LaySelected(layout, "24130");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::piece);
}

TEST(SelectionPage, OnePieceOfAHelixGivesTheHelixPage) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t helix = LayHelix(layout, "proses_2_5_r1r2");
  PieceOf(layout, layout.helices[0].topR2).sel = true;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::helix);
  EXPECT_EQ(page.helixId, helix);
  EXPECT_EQ(IdsShown(page), 1);
}

TEST(SelectionPage, AHelixAndOneMorePieceGiveThePieceWithTheHighestId) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t before = LayPiece(layout, "24130", {});
  LayHelix(layout, "proses_2_5_r1r2");
  for (Piece& piece : layout.pieces) piece.sel = piece.helix != -1;
  PieceOf(layout, before).sel = true;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::piece);
  EXPECT_EQ(page.pieceId, layout.helices[0].topR2);  // the stub that was laid last
}

TEST(SelectionPage, AllPiecesOfOneHelixGiveTheHelixPage) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t helix = LayHelix(layout, "proses_2_5_r1r2");
  for (Piece& piece : layout.pieces) piece.sel = true;
  EXPECT_EQ(DescribeSelection(layout).helixId, helix);
}

TEST(SelectionPage, StubsOfTwoHelicesGiveThePieceWithTheHighestId) {
  Layout layout = PlanWithThreeLevels();
  LayHelix(layout, "proses_2_5_r1r2");
  LayHelix(layout, "proses_2_5_r1r2");
  PieceOf(layout, layout.helices[0].topR1).sel = true;
  PieceOf(layout, layout.helices[1].topR1).sel = true;
  EXPECT_EQ(DescribeSelection(layout).pieceId, layout.helices[1].topR1);
}

TEST(SelectionPage, AHelixBesideASceneryItemGivesThePiecePage) {
  Layout layout = PlanWithThreeLevels();
  LayHelix(layout, "proses_2_5_r1r2");
  PieceOf(layout, layout.helices[0].topR1).sel = true;
  PlaceScenery(layout, "platform");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::piece);
}

TEST(SelectionPage, AStubWhoseHelixIsGoneGivesThePiecePage) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t id = LaySelected(layout, "24188");
  layout.pieces[0].helix = 99;
  EXPECT_EQ(DescribeSelection(layout).pieceId, id);
  // Two of them, joined, are no run either: a stub is none of its pieces.
  const std::int32_t second = LaySelected(layout, "24188");
  layout.pieces[1].helix = 99;
  Join(layout, id, 1, second, 0);
  EXPECT_EQ(DescribeSelection(layout).pieceId, second);
}

TEST(SelectionPage, JoinedStraightsGiveTheRunPageWithoutAnyId) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t first = LaySelected(layout, "24188", {0, 0, 10});
  const std::int32_t second = LaySelected(layout, "24188", {0, 0, 190});
  Join(layout, first, 1, second, 1);
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::run);
  EXPECT_EQ(IdsShown(page), 0);
  PieceOf(layout, second).heading = 12.0;
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::piece);
  EXPECT_EQ(DescribeSelection(layout).pieceId, second);
}

TEST(SelectionPage, ARunStaysARunBesideSelectedScenery) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t first = LaySelected(layout, "24188");
  Join(layout, first, 1, LaySelected(layout, "24188"), 0);
  PlaceScenery(layout, "platform");
  EXPECT_EQ(DescribeSelection(layout).kind, PageKind::run);
}

TEST(SelectionPage, PiecesOnSeveralLevelsShowMixedInFront) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24130");
  LaySelected(layout, "24130");
  layout.pieces[0].level = 2;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.kind, PageKind::piece);
  EXPECT_EQ(LevelNames(page),
            (std::vector<std::string>{"(mixed)", "Ground", "Upper", "Hidden yard"}));
  EXPECT_EQ(page.level.chosen, 0);
  EXPECT_EQ(page.level.rows[0].id, -1);
  EXPECT_TRUE(page.level.enabled);
}

TEST(SelectionPage, PiecesOnOneLevelShowItWithoutMixed) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24130");
  LaySelected(layout, "24130");
  for (Piece& piece : layout.pieces) piece.level = 5;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(LevelNames(page), (std::vector<std::string>{"Ground", "Upper", "Hidden yard"}));
  EXPECT_EQ(ChosenLevel(page), "Hidden yard");
}

TEST(SelectionPage, APieceOnALevelThatIsGoneChoosesNone) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24130");
  layout.pieces[0].level = 77;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.level.rows.size(), 3u);
  EXPECT_EQ(page.level.chosen, -1);
  EXPECT_TRUE(page.level.enabled);
}

TEST(SelectionPage, OfTwoLevelsWithOneIdTheFirstIsChosen) {
  Layout layout;
  layout.levels = {{.id = 1, .name = "a"}, {.id = 3, .name = "b"}, {.id = 3, .name = "c"}};
  LaySelected(layout, "24130");
  layout.pieces[0].level = 3;
  EXPECT_EQ(ChosenLevel(DescribeSelection(layout)), "b");
}

}  // namespace
}  // namespace vantrel
