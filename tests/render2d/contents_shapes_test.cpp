#include <gtest/gtest.h>

#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;
using Points = std::vector<wxPoint>;

Layout WithShape(const Shape& shape) {
  Layout layout = PlainPlan();
  layout.shapes.push_back(shape);
  return layout;
}

TEST(ContentsShapes, AShapeIsATranslucentPolygonWithAnEdgeOfHalfItsColour) {
  const auto polygons = OfOp(Painted(WithShape(Rectangle(100, 100, 300, 200))), DrawOp::polygon);
  ASSERT_EQ(polygons.size(), 1u);
  EXPECT_EQ(polygons[0].points, Points({{100, 100}, {300, 100}, {300, 200}, {100, 200}}));
  EXPECT_EQ(polygons[0].brush, SolidBrush({120, 170, 110, 140}));
  EXPECT_EQ(polygons[0].pen, SolidPen({60, 85, 55}, 2));
}

TEST(ContentsShapes, ASelectedShapeHasAThickBlueEdge) {
  Shape shape = Rectangle(100, 100, 300, 200);
  shape.sel = true;
  const auto polygons = OfOp(Painted(WithShape(shape)), DrawOp::polygon);
  ASSERT_EQ(polygons.size(), 1u);
  EXPECT_EQ(polygons[0].pen, SolidPen({40, 80, 200}, 3));
  EXPECT_EQ(polygons[0].brush, SolidBrush({120, 170, 110, 140}));
}

TEST(ContentsShapes, AShapeWithoutOutlineHasNoEdgeEvenSelectedButItsLengthsAreDrawn) {
  Shape shape = Rectangle(100, 100, 300, 200);
  shape.outline = false;
  for (const bool selected : {false, true}) {
    shape.sel = selected;
    const auto calls = Painted(WithShape(shape));
    const auto polygons = OfOp(calls, DrawOp::polygon);
    ASSERT_EQ(polygons.size(), 1u);
    EXPECT_EQ(polygons[0].pen.style, wxPENSTYLE_TRANSPARENT);
    EXPECT_EQ(Texts(calls, "200 mm").size(), 2u);
    EXPECT_EQ(Texts(calls, "100 mm").size(), 2u);
  }
}

TEST(ContentsShapes, TheNameIsCentredOnTheMeanOfTheVertices) {
  Shape shape = Rectangle(100, 100, 300, 200);
  shape.label = "Yard";
  const auto calls = Painted(WithShape(shape));
  const auto names = Texts(calls, "Yard");
  ASSERT_EQ(names.size(), 1u);
  // Four characters of 11 points: 44 by 22 around (200, 150).
  EXPECT_EQ(names[0].points, Points({{178, 139}}));
  EXPECT_EQ(names[0].font.pointSize, 11);
  EXPECT_EQ(names[0].font.weight, 700);
  EXPECT_EQ(names[0].textForeground, (Rgba{20, 20, 20}));
  EXPECT_EQ(names[0].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_LT(FirstPlace(calls, IsText("Yard")), FirstPlace(calls, IsText("200 mm")));
}

TEST(ContentsShapes, LevelEdgesHaveTheirLengthOutsideAndUprightOnesInside) {
  const auto calls = Painted(WithShape(Rectangle(100, 100, 300, 200)));
  const auto texts = OfOp(calls, DrawOp::text);
  ASSERT_EQ(texts.size(), 4u);
  // Six characters of 10 points: 60 by 20, around (200, 88), (288, 150), (200, 212), (112, 150).
  EXPECT_EQ(texts[0].points, Points({{170, 78}}));
  EXPECT_EQ(texts[1].points, Points({{258, 140}}));
  EXPECT_EQ(texts[2].points, Points({{170, 202}}));
  EXPECT_EQ(texts[3].points, Points({{82, 140}}));
  EXPECT_EQ(texts[0].text, "200 mm");
  EXPECT_EQ(texts[1].text, "100 mm");
  EXPECT_EQ(texts[0].font.pointSize, 10);
  EXPECT_EQ(texts[0].font.weight, 400);
  EXPECT_EQ(texts[0].textForeground, (Rgba{30, 30, 30}));
  EXPECT_EQ(texts[0].backgroundMode, wxBRUSHSTYLE_SOLID);
  EXPECT_EQ(texts[0].textBackground, (Rgba{255, 255, 255}));
}

TEST(ContentsShapes, ASlantedEdgeShiftsItsLengthByBothTruncatedComponents) {
  Shape shape;
  shape.vertices = {{100, 100}, {400, 500}, {100, 500}};
  const auto lengths = Texts(Painted(WithShape(shape)), "500 mm");
  ASSERT_EQ(lengths.size(), 1u);
  // Middle (250, 300), inward normal (-0.8, 0.6): 12 times that is (-9.6, 7.2), so the text's
  // centre is (250 - 9, 300 - 7).
  EXPECT_EQ(lengths[0].points, Points({{211, 283}}));
  // Upside down: inward (-0.8, -0.6), 12 times that (-9.6, -7.2), centre (250 - 9, 300 + 7).
  shape.vertices = {{100, 500}, {400, 100}, {100, 100}};
  const auto mirrored = Texts(Painted(WithShape(shape)), "500 mm");
  ASSERT_EQ(mirrored.size(), 1u);
  EXPECT_EQ(mirrored[0].points, Points({{211, 297}}));
}

int LengthPoints(double scale) {
  const auto texts =
      OfOp(Painted(WithShape(Rectangle(100, 100, 300, 200)), {scale, 0.0, 0.0}), DrawOp::text);
  return texts.empty() ? 0 : texts[0].font.pointSize;
}

TEST(ContentsShapes, EdgeLengthsGrowWithTheScaleFrom8To12Points) {
  EXPECT_EQ(LengthPoints(0.5), 8);
  EXPECT_EQ(LengthPoints(0.95), 9);
  EXPECT_EQ(LengthPoints(1.19), 11);
  EXPECT_EQ(LengthPoints(2.0), 12);
}

TEST(ContentsShapes, AnEdgeBelowOneMillimetreHasNoLength) {
  EXPECT_EQ(Texts(Painted(WithShape(Rectangle(100, 100, 300, 100.75))), "1 mm").size(), 0u);
  EXPECT_EQ(Texts(Painted(WithShape(Rectangle(100, 100, 300, 101))), "1 mm").size(), 2u);
}

TEST(ContentsShapes, TwoVerticesAreNoShape) {
  Shape shape;
  shape.vertices = {{100, 100}, {300, 100}};
  shape.label = "Line";
  EXPECT_EQ(Painted(WithShape(shape)).size(), 1u);
}

// The red channels of the shapes in drawing order.
std::vector<int> Stacking(const Layout& layout) {
  std::vector<int> reds;
  for (const DrawCall& call : OfOp(Painted(layout), DrawOp::polygon))
    reds.push_back(call.brush.colour.r);
  return reds;
}

Shape RedShape(std::uint8_t red, std::int32_t level) {
  Shape shape = Rectangle(100, 100, 300, 200);
  shape.r = red;
  shape.level = level;
  return shape;
}

TEST(ContentsShapes, ShapesAreStackedByTheHeightOfTheirLevelAndALostLevelIsAtZero) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 10), DeckLevel(2, 100), DeckLevel(3, -50)};
  layout.shapes = {RedShape(1, 2), RedShape(2, 1), RedShape(3, 99), RedShape(4, 3)};
  EXPECT_EQ(Stacking(layout), (std::vector<int>{4, 3, 2, 1}));
}

TEST(ContentsShapes, TwoShapesOnLevelsOfEqualHeightAreBothDrawnInThePlansOrder) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 40), DeckLevel(2, 40)};
  layout.shapes = {RedShape(1, 2), RedShape(2, 1), RedShape(3, 2)};
  EXPECT_EQ(Stacking(layout), (std::vector<int>{1, 2, 3}));
}

TEST(ContentsShapes, TextThatIsNoUtf8IsShownAsLatin1) {
  Shape shape = Rectangle(100, 100, 300, 200);
  shape.label = "Caf\xE9";
  EXPECT_EQ(Texts(Painted(WithShape(shape)), "Café").size(), 1u);
  shape.label = "Böschung";
  EXPECT_EQ(Texts(Painted(WithShape(shape)), "Böschung").size(), 1u);
}

}  // namespace
}  // namespace vantrel
