#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;

const RecordedPen kBoardPen = SolidPen({120, 90, 50}, 2);
const Rgba kGrid{220, 220, 215};
const Rgba kCross{180, 180, 220};

using Points = std::vector<wxPoint>;

TEST(ContentsGround, AnEmptyPlanIsAClearedWhiteSheet) {
  const auto calls = Painted(PlainPlan());
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].op, DrawOp::clear);
  EXPECT_EQ(calls[0].background, SolidBrush({255, 255, 255}));
}

TEST(ContentsGround, TheBaseboardIsFilledAndThenOutlined) {
  Layout layout = PlainPlan();
  layout.baseboard = Outline(0, 0, 200, 100);
  const auto polygons = OfOp(Painted(layout, {1.0, 50.0, 60.0}), DrawOp::polygon);
  ASSERT_EQ(polygons.size(), 2u);
  const Points corners = {{50, 60}, {250, 60}, {250, 160}, {50, 160}};
  EXPECT_EQ(polygons[0].points, corners);
  EXPECT_EQ(polygons[0].brush, SolidBrush(kBoardFill));
  EXPECT_EQ(polygons[0].pen, kBoardPen);
  EXPECT_EQ(polygons[1].points, corners);
  EXPECT_EQ(polygons[1].brush.style, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_EQ(polygons[1].pen, kBoardPen);
}

TEST(ContentsGround, ABaseboardOfTwoVerticesOrOneSwitchedOffIsNotDrawn) {
  Layout layout = PlainPlan();
  layout.baseboard = {{0, 0}, {200, 0}};
  EXPECT_EQ(Painted(layout).size(), 1u);
  layout.baseboard = Outline(50, 50, 200, 100);
  layout.baseboardVisible = false;
  EXPECT_EQ(Painted(layout).size(), 1u);
}

TEST(ContentsGround, BaseboardEdgeLengthsStandOnPlatesOutsideTheEdge) {
  Layout layout = PlainPlan();
  layout.baseboard = Outline(0, 0, 200, 100);
  const auto calls = Painted(layout, {1.0, 50.0, 60.0});
  const auto plates = OfOp(calls, DrawOp::roundedRectangle);
  const auto across = Texts(calls, "200 mm");
  const auto down = Texts(calls, "100 mm");
  ASSERT_EQ(plates.size(), 4u);
  ASSERT_EQ(across.size(), 2u);
  ASSERT_EQ(down.size(), 2u);
  // Six characters of 11 points: 66 by 22. The upper edge's middle (100, 0) moves 12 mm up, to
  // (150, 48) on the device.
  EXPECT_EQ(across[0].points, Points({{117, 37}}));
  EXPECT_EQ(plates[0].box, wxRect(113, 35, 74, 26));
  EXPECT_EQ(plates[0].radius, 3.0);
  EXPECT_EQ(plates[0].brush, SolidBrush({255, 248, 220, 200}));
  EXPECT_EQ(plates[0].pen, SolidPen({180, 140, 80}, 1));
  EXPECT_EQ(across[0].font.pointSize, 11);
  EXPECT_EQ(across[0].font.weight, 700);
  EXPECT_EQ(across[0].textForeground, (Rgba{80, 50, 20}));
  EXPECT_EQ(across[0].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
  // Right: (200, 50) to (212, 50), on the device (262, 110). Lower: (150, 172). Left: (38, 110).
  EXPECT_EQ(down[0].points, Points({{229, 99}}));
  EXPECT_EQ(across[1].points, Points({{117, 161}}));
  EXPECT_EQ(down[1].points, Points({{5, 99}}));
}

TEST(ContentsGround, BaseboardEdgeLengthsFollowTheUnitsAndHalveOddWidthsDownward) {
  Layout layout = PlainPlan();
  layout.baseboard = Outline(0, 0, 200, 100);
  layout.units = kInches;
  const auto calls = Painted(layout, {1.0, 50.0, 60.0});
  // 200 / 25.4 = 7.874. Seven characters: 77 wide, half of it 38.
  const auto across = Texts(calls, "7.87 in");
  ASSERT_EQ(across.size(), 2u);
  EXPECT_EQ(across[0].points, Points({{112, 37}}));
  EXPECT_EQ(OfOp(calls, DrawOp::roundedRectangle)[0].box, wxRect(108, 35, 85, 26));
}

TEST(ContentsGround, ABaseboardDrawnTheOtherWayRoundHasItsLengthsOutsideToo) {
  Layout layout = PlainPlan();
  layout.baseboard = {{0, 0}, {0, 100}, {200, 100}, {200, 0}};
  const auto across = Texts(Painted(layout, {1.0, 50.0, 60.0}), "200 mm");
  ASSERT_EQ(across.size(), 2u);
  EXPECT_EQ(across[0].points, Points({{117, 161}}));  // the lower edge comes first here
  EXPECT_EQ(across[1].points, Points({{117, 37}}));
}

TEST(ContentsGround, AnEdgeInLineWithTheMeanOfTheBaseboardHasItsLengthOnTheRightOfItsDirection) {
  // The mean of this even L is its inner corner (200, 200), which lies on both inner edges.
  Layout layout = PlainPlan();
  layout.baseboard = {{0, 0}, {400, 0}, {400, 200}, {200, 200}, {200, 400}, {0, 400}};
  const auto inner = Texts(Painted(layout, {1.0, 50.0, 60.0}), "200 mm");
  ASSERT_EQ(inner.size(), 4u);
  // In the outline's order; the text is 66 by 22. Right: (400, 100) to (412, 100), on the device
  // (462, 160). The inner edge that runs left from (400, 200) has its middle at (300, 200), and
  // (-dy, dx) points up: (300, 188), on the device (350, 248). The one that runs down has its at
  // (200, 300), and (-dy, dx) points left: (188, 300), on the device (238, 360). Lower: (150, 472).
  EXPECT_EQ(inner[0].points, Points({{429, 149}}));
  EXPECT_EQ(inner[1].points, Points({{317, 237}}));
  EXPECT_EQ(inner[2].points, Points({{205, 349}}));
  EXPECT_EQ(inner[3].points, Points({{117, 461}}));
}

TEST(ContentsGround, ABaseboardEdgeOf9Point9MmHasNoLabelAndAShapeEdgeOf9Point9MmHasOne) {
  Layout layout = PlainPlan();
  layout.baseboard = Outline(100, 100, 400, 109.9);
  EXPECT_EQ(Texts(Painted(layout), "10 mm").size(), 0u);
  EXPECT_EQ(Texts(Painted(layout), "300 mm").size(), 2u);
  layout.baseboard = Outline(100, 100, 400, 110);
  EXPECT_EQ(Texts(Painted(layout), "10 mm").size(), 2u);
  layout.baseboard.clear();
  layout.shapes.push_back(Rectangle(100, 100, 400, 109.9));
  EXPECT_EQ(Texts(Painted(layout), "10 mm").size(), 2u);
}

TEST(ContentsGround, AnEdgeToNowhereHasNoLength) {
  // Its label would come to lie in the corner of the window, since its middle is no number.
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Layout layout = PlainPlan();
  layout.baseboard = {{-kInfinity, 50}, {kInfinity, 50}, {200, 100}, {100, 100}};
  const auto calls = Painted(layout, {1.0, 50.0, 60.0});
  EXPECT_EQ(OfOp(calls, DrawOp::roundedRectangle).size(), 1u);
  EXPECT_EQ(Texts(calls, "100 mm").size(), 1u);
}

TEST(ContentsGround, DecksLieLowestFirstAndWithoutLabels) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 200), DeckLevel(2, 0), DeckLevel(3, 100)};
  layout.levels[0].outline = Outline(0, 0, 100, 100);
  layout.levels[1].outline = Outline(0, 0, 200, 100);
  layout.levels[2].outline = Outline(0, 0, 300, 100);
  const auto calls = Painted(layout);
  const auto polygons = OfOp(calls, DrawOp::polygon);
  ASSERT_EQ(polygons.size(), 3u);
  EXPECT_EQ(polygons[0].points[1].x, 200);
  EXPECT_EQ(polygons[1].points[1].x, 300);
  EXPECT_EQ(polygons[2].points[1].x, 100);
  EXPECT_EQ(polygons[0].brush, SolidBrush({235, 220, 190}));
  EXPECT_EQ(polygons[0].pen, kBoardPen);
  EXPECT_EQ(OfOp(calls, DrawOp::text).size(), 0u);
}

TEST(ContentsGround, ADeckWhoseHeightIsNoNumberLiesAtZero) {
  Layout layout = PlainPlan();
  const double heights[] = {5.0, std::nan(""), 1.0, -1.0};
  for (int i = 0; i < 4; ++i) {
    layout.levels.push_back(DeckLevel(i + 1, heights[i]));
    layout.levels.back().outline = Outline(0, 0, 100.0 * (i + 1), 100);
  }
  std::vector<int> widths;
  for (const DrawCall& deck : OfOp(Painted(layout), DrawOp::polygon))
    widths.push_back(deck.points[1].x);
  EXPECT_EQ(widths, (std::vector<int>{400, 200, 300, 100}));
}

TEST(ContentsGround, ADeckWithTrackColourMixesItWithTwoPartsOfTheBaseboard) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0)};
  layout.levels[0].outline = Outline(0, 0, 100, 100);
  layout.levels[0].trackcolor = true;
  layout.levels[0].r = 10;
  layout.levels[0].g = 100;
  layout.levels[0].b = 255;
  const auto polygons = OfOp(Painted(layout), DrawOp::polygon);
  ASSERT_EQ(polygons.size(), 1u);
  // (10 + 490) / 3, (100 + 470) / 3, (255 + 420) / 3 in integers.
  EXPECT_EQ(polygons[0].brush, SolidBrush({166, 190, 225}));
}

TEST(ContentsGround, AHiddenDeckAndADeckOfTwoPointsAreNotDrawn) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0, false), DeckLevel(2, 0)};
  layout.levels[0].outline = Outline(0, 0, 100, 100);
  layout.levels[1].outline = {{0, 0}, {100, 0}};
  EXPECT_EQ(OfOp(Painted(layout), DrawOp::polygon).size(), 0u);
}

TEST(ContentsGround, GridLinesStartAtOrBeforeTheEdgeAndTheCrossMarksTheOrigin) {
  Layout layout = PlainPlan();
  layout.gridVisible = true;
  const auto lines = OfOp(Painted(layout, {1.0, 40.0, 10.0}, {100, 70}), DrawOp::line);
  // Pitch 32. Across: floor(-40 / 32) = -2, so from -64 + 40. Down: from -32 + 10.
  const std::vector<Points> expected = {
      {{-24, 0}, {-24, 70}}, {{8, 0}, {8, 70}},      {{40, 0}, {40, 70}},
      {{72, 0}, {72, 70}},   {{0, -22}, {100, -22}}, {{0, 10}, {100, 10}},
      {{0, 42}, {100, 42}},  {{30, 10}, {50, 10}},   {{40, 0}, {40, 20}}};
  ASSERT_EQ(lines.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(lines[i].points, expected[i]) << i;
    EXPECT_EQ(lines[i].pen, i < 7 ? SolidPen(kGrid, 1) : SolidPen(kCross, 2)) << i;
  }
}

TEST(ContentsGround, GridLinesAreTruncatedOneByOne) {
  Layout layout = PlainPlan();
  layout.gridVisible = true;
  const auto lines = OfOp(Painted(layout, {0.4, 61.5, 61.5}, {80, 5}), DrawOp::line);
  // Pitch 12.8: -64 + 61.5 = -2.5, 10.3, 23.1, 35.9, 48.7, 61.5, 74.3.
  ASSERT_GE(lines.size(), 7u);
  const int expected[] = {-2, 10, 23, 35, 48, 61, 74};
  for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(lines[i].points[0].x, expected[i]);
}

bool HasGrid(double scale) {
  Layout layout = PlainPlan();
  layout.gridVisible = true;
  const auto calls = Painted(layout, {scale, 60.0, 60.0});
  const bool grid = FirstPlace(calls, HasPen(kGrid)) != kNowhere;
  const bool cross = FirstPlace(calls, HasPen(kCross)) != kNowhere;
  EXPECT_EQ(grid, cross) << scale;
  return grid;
}

TEST(ContentsGround, TheDefaultGridAndItsCrossVanishBelowScale0Point1875AndAbove12Point5) {
  EXPECT_FALSE(HasGrid(0.1874));
  EXPECT_TRUE(HasGrid(0.1875));
  EXPECT_TRUE(HasGrid(12.5));
  EXPECT_FALSE(HasGrid(12.51));
}

TEST(ContentsGround, FarFromTheOriginTheGridEnds) {
  // There neighbouring lines can't be told apart any more, and where they start is left to chance.
  Layout layout = PlainPlan();
  layout.gridVisible = true;
  for (int i = 1; i <= 50; ++i)
    for (const double far : {1e299, -1e299, 3e17, -3e17})
      EXPECT_LT(Painted(layout, {0.4, i * far, i * far}, {100, 70}).size(), 20u) << i * far;
}

TEST(ContentsGround, AGridSwitchedOffHasNoCrossEither) {
  EXPECT_EQ(Painted(PlainPlan(), {1.0, 60.0, 60.0}).size(), 1u);
}

}  // namespace
}  // namespace vantrel
