// The pages of a helix, a scenery item, a polygon and a run of straights.
#include <gtest/gtest.h>

#include <limits>

#include "inspection/page_texts.h"
#include "inspection/selection_page.h"
#include "tests/inspection/inspection_support.h"

namespace vantrel {
namespace {

class HelixPage : public testing::Test {
 protected:
  void lay(const std::string& variant, std::int32_t level = 1) {
    LayHelix(layout, variant, level);
    for (Piece& piece : layout.pieces) piece.sel = true;
  }
  Piece& stub(std::int32_t Helix::*end) { return PieceOf(layout, layout.helices[0].*end); }
  SelectionPage page() const { return DescribeSelection(layout); }

  Layout layout = PlanWithThreeLevels();
};

TEST_F(HelixPage, IsTitledByTheKitAndTellsItsFigures) {
  lay("proses_3_5_r3r4");  // no such kit: 3.5 turns come on R1, R2 and R4 only
  EXPECT_EQ(page().title, "Helix");
  lay("proses_2_5_r1r2");
  layout.helices[0].variant = "proses_4_5_r3r4";
  for (Piece& piece : layout.pieces) piece.sel = piece.helix == layout.helices[0].id;
  EXPECT_EQ(page().title, "Proses 4.5 R3&R4 42cm/16.5\"");
  EXPECT_EQ(page().info, "4.5 turns  |  rise 420.0 mm  |  R1 515 / R2 579.3 mm");
}

TEST_F(HelixPage, AnUnknownKitHasTheFiguresOfTheDefaultKit) {
  lay("gone");
  EXPECT_EQ(page().title, "Helix");
  EXPECT_EQ(page().info, "2.5 turns  |  rise 260.0 mm  |  R1 360 / R2 437.5 mm");
}

TEST_F(HelixPage, TellsTheRiseInTheUnitInForceAndTheRadiiInMillimetres) {
  lay("proses_2_5_r2r3");
  layout.units = 1;
  EXPECT_EQ(page().info, "2.5 turns  |  rise 26.0 cm  |  R1 437.5 / R2 515 mm");
  layout.units = 2;  // 260 / 25.4 = 10.23622
  EXPECT_EQ(page().info, "2.5 turns  |  rise 10.236 in  |  R1 437.5 / R2 515 mm");
}

TEST_F(HelixPage, ShowsTheHeightOfTheFirstEndPieceAndDoesNotTakeAnother) {
  lay("proses_2_5_r1r2");
  stub(&Helix::bottomR1).z = 123.45;
  stub(&Helix::bottomR2).z = 1.0;
  EXPECT_EQ(page().height, (HeightEntry{"Base height (mm):", "123.5", false}));
  layout.units = 1;
  EXPECT_EQ(page().height, (HeightEntry{"Base height (cm):", "12.3", false}));
  layout.units = 2;
  EXPECT_EQ(page().height, (HeightEntry{"Base height (in):", "4.860", false}));
}

TEST_F(HelixPage, ChoosesTheLevelOfTheHelixAndDisablesTheGrade) {
  lay("proses_2_5_r1r2", 2);
  layout.currentGrade.active = true;
  stub(&Helix::bottomR1).grade = 3.0;
  EXPECT_EQ(LevelNames(page()), (std::vector<std::string>{"Ground", "Upper", "Hidden yard"}));
  EXPECT_EQ(ChosenLevel(page()), "Upper");
  EXPECT_TRUE(page().level.enabled);
  ExpectGradeDisabled(page());
}

TEST_F(HelixPage, WithoutItsFirstEndPieceTheOtherBottomPieceStandsForIt) {
  lay("proses_2_5_r1r2", 5);
  stub(&Helix::bottomR2).z = 40.0;
  layout.helices[0].bottomR1 = 999;
  EXPECT_EQ(page().height.text, "40.0");
  EXPECT_EQ(ChosenLevel(page()), "Hidden yard");
  layout.helices[0].bottomR2 = -1;
  EXPECT_EQ(page().kind, PageKind::helix);
  EXPECT_EQ(page().height.text, "-");
  EXPECT_EQ(ChosenLevel(page()), "");
}

TEST(SceneryPage, TellsNameAndScaledSize) {
  Layout layout = PlanWithThreeLevels();
  SceneryItem& item = PlaceScenery(layout, "platform");  // 230 x 60
  item.scalex = 1.5;
  item.scaley = 0.51;
  item.level = 5;
  layout.currentGrade.active = true;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.title, "Platform");
  EXPECT_EQ(page.info, "Scenery  |  345 x 31 mm");  // 230 * 1.5, 60 * 0.51 = 30.6
  EXPECT_EQ(page.height, (HeightEntry{"Height:", "-", false}));
  EXPECT_EQ(ChosenLevel(page), "Hidden yard");
  EXPECT_TRUE(page.level.enabled);
  ExpectGradeDisabled(page);
}

TEST(SceneryPage, TellsTheSizeInMillimetresInEveryUnit) {
  Layout layout = PlanWithThreeLevels();
  PlaceScenery(layout, "platform");
  layout.units = kInches;
  EXPECT_EQ(DescribeSelection(layout).info, "Scenery  |  230 x 60 mm");
  EXPECT_EQ(DescribeSelection(layout).height.caption, "Height:");
}

TEST(SceneryPage, AnUnknownItemIsTitledByItsKey) {
  Layout layout = PlanWithThreeLevels();
  PlaceScenery(layout, "windmill 2000");
  EXPECT_EQ(DescribeSelection(layout).title, "windmill 2000");
  EXPECT_EQ(DescribeSelection(layout).info, "Scenery");
}

TEST(PolygonPage, TellsLabelVerticesSizeAndHeight) {
  Layout layout = PlanWithThreeLevels();
  Shape& shape = DrawShape(layout, {{-100, 20}, {150.4, 20}, {0, -30.3}, {10, 10}});
  shape.label = "Müllers Wiese";
  shape.height = 35.4;
  shape.level = 2;
  layout.currentGrade.active = true;
  const SelectionPage page = DescribeSelection(layout);
  EXPECT_EQ(page.title, "Müllers Wiese");
  // 150.4 + 100 = 250.4; 20 + 30.3 = 50.3
  EXPECT_EQ(page.info, "Polygon  |  4 verts  |  250 x 50 mm  |  height 35 mm");
  EXPECT_EQ(page.height, (HeightEntry{"Height:", "-", false}));
  EXPECT_EQ(ChosenLevel(page), "Upper");
  EXPECT_TRUE(page.level.enabled);
  ExpectGradeDisabled(page);
}

TEST(PolygonPage, TellsWhenItHasNoLabelAndNoVertices) {
  Layout layout = PlanWithThreeLevels();
  DrawShape(layout, {}).height = 20.0;
  EXPECT_EQ(DescribeSelection(layout).title, "(unnamed shape)");
  EXPECT_EQ(DescribeSelection(layout).info, "Polygon  |  (no vertices)");
}

TEST(PolygonPage, OneVertexHasNoSize) {
  Layout layout = PlanWithThreeLevels();
  DrawShape(layout, {{70, -70}});
  EXPECT_EQ(DescribeSelection(layout).info, "Polygon  |  1 verts  |  0 x 0 mm  |  height 0 mm");
}

TEST(PolygonPage, VerticesAtTheEndOfTheWorldStillGiveAText) {
  Layout layout = PlanWithThreeLevels();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  DrawShape(layout, {{-infinity, nan}, {infinity, 5}, {nan, 0}});
  EXPECT_EQ(DescribeSelection(layout).info, "Polygon  |  3 verts  |  inf x 5 mm  |  height 0 mm");
}

class RunPage : public testing::Test {
 protected:
  // Lays the parts joined one behind the other, all selected.
  void lay(std::initializer_list<const char*> parts) {
    for (const char* part : parts) {
      const std::int32_t id = LaySelected(layout, part);
      if (layout.pieces.size() > 1) Join(layout, layout.pieces.end()[-2].id, 1, id, 0);
    }
  }
  SelectionPage page() const { return DescribeSelection(layout); }

  Layout layout = PlanWithThreeLevels();
};

TEST_F(RunPage, ListsThePartsAndSumsTheirLengths) {
  lay({"24188", "24172", "24229"});  // 188.3 + 171.7 + 229.3
  EXPECT_EQ(page().kind, PageKind::run);
  EXPECT_EQ(page().title, "24188 + 24172 + 24229");
  EXPECT_EQ(page().info, "3 pieces  |  589.3 mm");
  layout.units = 1;
  EXPECT_EQ(page().info, "3 pieces  |  58.9 cm");
  layout.units = 2;  // 589.3 / 25.4 = 23.2008
  EXPECT_EQ(page().info, "3 pieces  |  23.20 in");
}

TEST_F(RunPage, BeginsAtTheFirstSelectedPieceThatIsAnEnd) {
  // Laid as middle, end, end: 24188 between 24172 and 24229. The end that was laid first begins.
  const std::int32_t middle = LaySelected(layout, "24188");
  const std::int32_t right = LaySelected(layout, "24172");
  const std::int32_t left = LaySelected(layout, "24229");
  Join(layout, middle, 1, right, 0);
  Join(layout, left, 1, middle, 0);
  EXPECT_EQ(page().title, "24172 + 24188 + 24229");
}

TEST_F(RunPage, ARingOfStraightsBeginsAtTheFirstSelectedPiece) {
  // No straights close a ring on a table, but a file may say so.
  lay({"24188", "24172", "24229"});
  Join(layout, layout.pieces[2].id, 1, layout.pieces[0].id, 0);
  EXPECT_EQ(page().kind, PageKind::run);
  EXPECT_EQ(page().title, "24188 + 24229 + 24172");  // slot 0 leads back to the last one
}

TEST_F(RunPage, APieceJoinedTwiceToItsOnlyNeighbourIsAnEnd) {
  // As only a file can say: the first piece lies between the others, twice joined to the second.
  const std::int32_t middle = LaySelected(layout, "24188");
  const std::int32_t twice = LaySelected(layout, "24172");
  const std::int32_t once = LaySelected(layout, "24229");
  PieceOf(layout, middle).joints = {
      {.target = twice, .tconn = 0}, {.target = twice, .tconn = 1}, {.target = once, .tconn = 0}};
  PieceOf(layout, twice).joints = {{.target = middle, .tconn = 0}, {.target = middle, .tconn = 1}};
  PieceOf(layout, once).joints = {{.target = middle, .tconn = 2}, {}};
  EXPECT_EQ(page().title, "24172 + 24188 + 24229");
}

TEST_F(RunPage, NeitherHeightNorGradeCanBeSet) {
  lay({"24188", "24172"});
  layout.currentGrade.active = true;
  layout.pieces[0].grade = layout.pieces[1].grade = 2.0;
  EXPECT_EQ(page().height, (HeightEntry{"", "-", false}));
  ExpectGradeDisabled(page());
}

TEST_F(RunPage, ShowsTheCommonLevelOrMixed) {
  lay({"24188", "24172"});
  layout.pieces[0].level = layout.pieces[1].level = 2;
  EXPECT_EQ(ChosenLevel(page()), "Upper");
  EXPECT_EQ(page().level.rows.size(), 3u);
  EXPECT_TRUE(page().level.enabled);
  layout.pieces[1].level = 1;
  EXPECT_EQ(ChosenLevel(page()), "(mixed)");
  EXPECT_EQ(page().level.rows.size(), 4u);
  EXPECT_EQ(page().level.rows[0].id, -1);
  EXPECT_TRUE(page().level.enabled);
}

}  // namespace
}  // namespace vantrel
