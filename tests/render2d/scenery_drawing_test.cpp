// What DrawSceneryItem and DrawSceneryGhost hand to the device, primitive by primitive.
#include "render2d/scenery_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "catalog/scenery_catalog.h"
#include "render2d/text_extent.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

constexpr Rgba kNone{0, 0, 0, 0};
constexpr Rgba kFill{101, 53, 7};
constexpr Rgba kStroke{10, 20, 30};
// 0.7 * 101 + 30 = 100.7; 0.7 * 53 + 48 = 85.1; 0.7 * 7 + 66 = 70.9.
constexpr Rgba kTinted{100, 85, 70};

using Points = std::vector<wxPoint>;

ScenePrimitive Primitive(PrimitiveKind kind, double x, double y, double w, double h) {
  ScenePrimitive primitive;
  primitive.kind = kind;
  primitive.fill = kFill;
  primitive.stroke = kStroke;
  primitive.strokeWidth = 2;
  primitive.x = x;
  primitive.y = y;
  primitive.w = w;
  primitive.h = h;
  return primitive;
}

SceneryDef Def(double width, double depth, std::vector<ScenePrimitive> primitives) {
  SceneryDef def;
  def.width = width;
  def.depth = depth;
  def.primitives = std::move(primitives);
  return def;
}

struct Setting {
  Pose pose{50.0, 30.0, 0.0};
  ViewTransform view{1.0, 0.5, 0.5};
  bool selected = false;
  double scalex = 1.0;
  double scaley = 1.0;
};

std::vector<DrawCall> Draw(const SceneryDef& def, const Setting& setting) {
  RecordingDC dc;
  DrawSceneryItem(RenderContext{}, dc, def, setting.pose, setting.view, setting.selected,
                  setting.scalex, setting.scaley);
  return dc.calls();
}

// With a footprint of 100 by 60 the default setting puts the definition point (x, y) at the device
// point (x, y): the half unit of offset keeps whole numbers clear of the truncation.
DrawCall DrawOne(const ScenePrimitive& primitive, const Setting& setting = {}) {
  const std::vector<DrawCall> calls = Draw(Def(100, 60, {primitive}), setting);
  EXPECT_GE(calls.size(), 1u);
  return calls.empty() ? DrawCall{} : calls.front();
}

// Footprint 20 by 10, twice as wide and three times as deep: W = 40, H = 30. A quarter turn takes
// the local (lx, ly) to the world (100 - ly, 50 + lx), at scale 2 to (210.5 - 2 ly, 120.5 + 2 lx),
// where lx = 2 px - 20 and ly = 3 py - 15.
constexpr Setting kQuarterTurn{
    .pose = {100, 50, 90}, .view = {2.0, 10.5, 20.5}, .scalex = 2.0, .scaley = 3.0};

TEST(SceneryItem, ARectangleIsAPolygonOfItsCornersTurnedAndScaled) {
  const SceneryDef def = Def(20, 10, {Primitive(PrimitiveKind::filledRectangle, 4, 2, 10, 5)});
  const std::vector<DrawCall> calls = Draw(def, kQuarterTurn);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].op, DrawOp::polygon);
  // Corners (4, 2), (14, 2), (14, 7), (4, 7): lx is -12 or 8, ly is -9 or 6.
  EXPECT_EQ(calls[0].points, (Points{{228, 96}, {228, 136}, {198, 136}, {198, 96}}));
  EXPECT_EQ(calls[0].brush, SolidBrush(kFill));
  EXPECT_EQ(calls[0].pen, SolidPen(kStroke, 2));
}

TEST(SceneryItem, AnOutlinedRectangleHasTheSameCornersAndNoFill) {
  const SceneryDef def = Def(20, 10, {Primitive(PrimitiveKind::outlinedRectangle, 4, 2, 10, 5)});
  const std::vector<DrawCall> calls = Draw(def, kQuarterTurn);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].points, (Points{{228, 96}, {228, 136}, {198, 136}, {198, 96}}));
  EXPECT_EQ(calls[0].brush.style, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_EQ(calls[0].pen, SolidPen(kStroke, 2));
}

TEST(SceneryItem, APolygonKeepsItsVertices) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::polygon, 0, 0, 0, 0);
  primitive.points = {{0, 0}, {20, 0}, {10, 10}};
  const std::vector<DrawCall> calls = Draw(Def(20, 10, {primitive}), kQuarterTurn);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].op, DrawOp::polygon);
  // (0, 0): lx -20, ly -15. (20, 0): lx 20, ly -15. (10, 10): lx 0, ly 15.
  EXPECT_EQ(calls[0].points, (Points{{240, 80}, {240, 160}, {180, 120}}));
  EXPECT_EQ(calls[0].brush, SolidBrush(kFill));
}

TEST(SceneryItem, APolygonWithoutVerticesIsNotDrawn) {
  EXPECT_TRUE(Draw(Def(20, 10, {Primitive(PrimitiveKind::polygon, 0, 0, 5, 5)}), {}).empty());
}

TEST(SceneryItem, ALineRunsBetweenItsTwoEndsInItsFillColour) {
  const SceneryDef def = Def(20, 10, {Primitive(PrimitiveKind::line, 0, 5, 20, 10)});
  const std::vector<DrawCall> calls = Draw(def, kQuarterTurn);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].op, DrawOp::line);
  // (0, 5): lx -20, ly 0. (20, 10): lx 20, ly 15.
  EXPECT_EQ(calls[0].points, (Points{{210, 80}, {180, 160}}));
  EXPECT_EQ(calls[0].pen, SolidPen(kFill, 2));
  EXPECT_EQ(calls[0].brush.style, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(SceneryItem, ALineWithoutFillTakesItsStrokeColour) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::line, 0, 0, 20, 10);
  primitive.fill = kNone;
  EXPECT_EQ(DrawOne(primitive).pen, SolidPen(kStroke, 2));
}

TEST(SceneryItem, ALineKeepsItsAlphaAndAWidthOfZero) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::line, 0, 0, 20, 10);
  primitive.fill = {150, 140, 140, 80};
  primitive.strokeWidth = 0;
  EXPECT_EQ(DrawOne(primitive).pen, SolidPen({150, 140, 140, 80}, 0));
}

TEST(SceneryItem, AHeadingOf30DegreesTurnsClockwiseAndTruncatesLast) {
  // W = 20, H = 10. Corners at (-10, -5), (10, -5), (10, 5), (-10, 5), with c = 0.866025 and
  // s = 0.5: -8.660 + 2.5 = -6.160, -5 - 4.330 = -9.330; 8.660 + 2.5 = 11.160, 5 - 4.330 = 0.670;
  // the other two are the negatives. At scale 1 about (0, 0) the truncation goes toward zero.
  const SceneryDef def = Def(20, 10, {Primitive(PrimitiveKind::filledRectangle, 0, 0, 20, 10)});
  const std::vector<DrawCall> calls = Draw(def, {.pose = {0, 0, 30}, .view = {1.0, 0.0, 0.0}});
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].points, (Points{{-6, -9}, {11, 0}, {6, 9}, {-11, 0}}));
}

TEST(SceneryItem, AnEllipseIsAPolygonThatStartsAtItsRight) {
  const DrawCall call = DrawOne(Primitive(PrimitiveKind::filledEllipse, 10, 20, 40, 20));
  EXPECT_EQ(call.op, DrawOp::polygon);
  // Half of 40 device units: 20 points, 18 degrees apart.
  ASSERT_EQ(call.points.size(), 20u);
  EXPECT_EQ(call.points[0], wxPoint(50, 30));
  // cos 18 = 0.95106, sin 18 = 0.30902: (30 + 19.021, 30 + 3.090).
  EXPECT_EQ(call.points[1], wxPoint(49, 33));
  EXPECT_EQ(call.points[5], wxPoint(30, 40));
  EXPECT_EQ(call.points[10], wxPoint(10, 30));
  EXPECT_EQ(call.points[15], wxPoint(30, 20));
  EXPECT_EQ(call.brush, SolidBrush(kFill));
  EXPECT_EQ(call.pen, SolidPen(kStroke, 2));
}

TEST(SceneryItem, AnOutlinedEllipseHasNoFill) {
  const DrawCall call = DrawOne(Primitive(PrimitiveKind::outlinedEllipse, 10, 20, 40, 20));
  EXPECT_EQ(call.points.size(), 20u);
  EXPECT_EQ(call.points[10], wxPoint(10, 30));
  EXPECT_EQ(call.brush.style, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_EQ(call.pen, SolidPen(kStroke, 2));
}

TEST(SceneryItem, AnEllipseHasHalfItsLongerSideInPointsButAtLeast12AndAtMost64) {
  const auto count = [](double w, double h, double scale, double itemScale) {
    return DrawOne(Primitive(PrimitiveKind::filledEllipse, 0, 0, w, h),
                   {.view = {scale, 0.5, 0.5}, .scalex = itemScale, .scaley = itemScale})
        .points.size();
  };
  EXPECT_EQ(count(10, 4, 1.0, 1.0), 12u);      // 5
  EXPECT_EQ(count(25.9, 4, 1.0, 1.0), 12u);    // 12.95
  EXPECT_EQ(count(4, 27, 1.0, 1.0), 13u);      // 13.5, by the height
  EXPECT_EQ(count(30, 30, 2.5, 1.0), 37u);     // 37.5
  EXPECT_EQ(count(127, 10, 1.0, 1.0), 63u);    // 63.5
  EXPECT_EQ(count(130, 10, 1.0, 1.0), 64u);    // 65
  EXPECT_EQ(count(100, 100, 20.0, 1.0), 64u);  // 1000
  EXPECT_EQ(count(30, 30, 1.0, 9.0), 15u);     // the item's own factors don't count
}

TEST(SceneryItem, AFillOfAlpha0IsNoBrush) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::filledRectangle, 0, 0, 10, 10);
  primitive.fill = {9, 9, 9, 0};
  EXPECT_EQ(DrawOne(primitive).brush.style, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_EQ(DrawOne(primitive).pen, SolidPen(kStroke, 2));
}

TEST(SceneryItem, AStrokeOfAlpha0OrWithoutWidthIsNoPen) {
  for (const auto& [alpha, width] : {std::pair{0, 2}, std::pair{255, 0}, std::pair{255, -1}}) {
    ScenePrimitive primitive = Primitive(PrimitiveKind::filledEllipse, 0, 0, 10, 10);
    primitive.stroke.a = static_cast<std::uint8_t>(alpha);
    primitive.strokeWidth = width;
    const DrawCall call = DrawOne(primitive);
    EXPECT_EQ(call.pen.style, wxPENSTYLE_TRANSPARENT) << alpha << ", " << width;
    EXPECT_EQ(call.brush, SolidBrush(kFill));
  }
}

TEST(SceneryItem, AlphaReachesBrushAndPen) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::filledRectangle, 0, 0, 10, 10);
  primitive.fill.a = 90;
  primitive.stroke.a = 40;
  const DrawCall call = DrawOne(primitive);
  EXPECT_EQ(call.brush, SolidBrush({101, 53, 7, 90}));
  EXPECT_EQ(call.pen, SolidPen({10, 20, 30, 40}, 2));
}

TEST(SceneryItem, PensAndBrushesFollowThePrimitivesOneByOne) {
  ScenePrimitive plain = Primitive(PrimitiveKind::filledRectangle, 0, 0, 10, 10);
  ScenePrimitive bare = plain;
  bare.stroke = kNone;
  ScenePrimitive hairline = Primitive(PrimitiveKind::line, 0, 0, 10, 10);
  hairline.fill = kStroke;
  hairline.strokeWidth = 0;
  const std::vector<DrawCall> calls =
      Draw(Def(100, 60, {plain, hairline, bare, plain, hairline, plain}), {});
  ASSERT_EQ(calls.size(), 6u);
  EXPECT_EQ(calls[0].pen, SolidPen(kStroke, 2));
  EXPECT_EQ(calls[1].pen, SolidPen(kStroke, 0));
  EXPECT_EQ(calls[2].pen.style, wxPENSTYLE_TRANSPARENT);
  EXPECT_EQ(calls[2].brush, SolidBrush(kFill));
  EXPECT_EQ(calls[3].pen, SolidPen(kStroke, 2));
  EXPECT_EQ(calls[4].pen, SolidPen(kStroke, 0));
  EXPECT_EQ(calls[5].pen, SolidPen(kStroke, 2));
  EXPECT_EQ(calls[5].brush, SolidBrush(kFill));
}

ScenePrimitive TextAt(double x, double y, double size, std::string text) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::text, x, y, 0, size);
  primitive.text = std::move(text);
  return primitive;
}

TEST(SceneryItem, ATextIsBoldInItsFillColourAndCentredOnItsPoint) {
  const DrawCall call = DrawOne(TextAt(40, 30, 10, "SL"));
  EXPECT_EQ(call.op, DrawOp::text);
  EXPECT_EQ(call.text, "SL");
  EXPECT_EQ(call.font.pointSize, 10);
  EXPECT_EQ(call.font.weight, 700);
  EXPECT_EQ(call.font.style, wxFONTSTYLE_NORMAL);
  EXPECT_EQ(call.textForeground, kFill);
  EXPECT_EQ(call.backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
  // Two characters at 10 points are 20 wide and 20 high here.
  EXPECT_EQ(call.points, (Points{{30, 20}}));
}

TEST(SceneryItem, ATextOfOddExtentIsCentredInWholeNumbers) {
  // 9 wide, 18 high: 9 / 2 is 4.
  EXPECT_EQ(DrawOne(TextAt(40, 30, 9, "P")).points, (Points{{36, 21}}));
}

TEST(SceneryItem, ATextsPointsTurnWithTheItemButTheTextStaysUpright) {
  const std::vector<DrawCall> calls = Draw(Def(20, 10, {TextAt(0, 0, 10, "SS")}), kQuarterTurn);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].op, DrawOp::text);
  // At (240, 80) as worked above; 20 points at scale 2, so 40 by 40.
  EXPECT_EQ(calls[0].font.pointSize, 20);
  EXPECT_EQ(calls[0].points, (Points{{220, 60}}));
}

TEST(SceneryItem, ATextIsNeverSmallerThan8Points) {
  const auto size = [](double scale) {
    return DrawOne(TextAt(40, 30, 10, "SS"), {.view = {scale, 0.5, 0.5}}).font.pointSize;
  };
  EXPECT_EQ(size(0.05), 8);
  EXPECT_EQ(size(0.89), 8);
  EXPECT_EQ(size(0.92), 9);
  EXPECT_EQ(size(1.29), 12);
}

// The toolkit knows numbers that stand for "whatever is usual": 70 points once came out as 10.
TEST(SceneryItem, ATextHasEachSizeThatItsHeightAsksFor) {
  // 10 mm at a scale of 7.05 are 70.5 points, cut off to 70.
  EXPECT_EQ(DrawOne(TextAt(40, 30, 10, "SS"), {.view = {7.05, 0.5, 0.5}}).font.pointSize, 70);
  for (int points = 9; points <= 400; ++points) {
    const double scale = (points + 0.5) / 10.0;
    EXPECT_EQ(DrawOne(TextAt(40, 30, 10, "SS"), {.view = {scale, 0.5, 0.5}}).font.pointSize,
              points);
  }
}

TEST(SceneryItem, TextsOfOneSizeInARowShareTheirFont) {
  RecordingDC dc;
  const ViewTransform view{7.05, 0.5, 0.5};
  const SceneryDef def = Def(100, 60, {TextAt(10, 10, 10, "A"), TextAt(40, 30, 10, "B")});
  for (int i = 0; i < 3; ++i)
    DrawSceneryItem(RenderContext{}, dc, def, {50, 30, 0}, view, false, 1.0, 1.0);
  EXPECT_EQ(dc.texts("A").size(), 3u);
  EXPECT_EQ(dc.texts("B").size(), 3u);
  EXPECT_EQ(dc.fontChanges(), 1);
}

TEST(SceneryItem, ATextIsReadAsUtf8) {
  // Five characters of seven bytes, at 10 points 50 wide.
  const DrawCall call = DrawOne(TextAt(40, 30, 10,
                                       "Gr\xC3\xB6\xC3\x9F"
                                       "e"));
  EXPECT_EQ(call.text,
            "Gr\xC3\xB6\xC3\x9F"
            "e");
  EXPECT_EQ(call.points, (Points{{15, 20}}));
}

TEST(SceneryItem, ASelectedItemIsTintedAndKeepsItsStrokes) {
  ScenePrimitive area = Primitive(PrimitiveKind::filledRectangle, 0, 0, 10, 10);
  area.fill.a = 90;
  ScenePrimitive strokedLine = Primitive(PrimitiveKind::line, 0, 0, 10, 10);
  strokedLine.fill = kNone;
  const std::vector<DrawCall> calls = Draw(Def(100, 60,
                                               {area, Primitive(PrimitiveKind::line, 0, 0, 10, 10),
                                                strokedLine, TextAt(40, 30, 10, "SS")}),
                                           {.selected = true});
  ASSERT_EQ(calls.size(), 5u);
  EXPECT_EQ(calls[0].brush, SolidBrush({kTinted.r, kTinted.g, kTinted.b, 90}));
  EXPECT_EQ(calls[0].pen, SolidPen(kStroke, 2));
  EXPECT_EQ(calls[1].pen, SolidPen(kTinted, 2));
  EXPECT_EQ(calls[2].pen, SolidPen(kStroke, 2));
  EXPECT_EQ(calls[3].textForeground, kTinted);
}

TEST(SceneryItem, ASelectedItemWithoutFillStaysWithoutFill) {
  ScenePrimitive primitive = Primitive(PrimitiveKind::filledRectangle, 0, 0, 10, 10);
  primitive.fill = kNone;
  EXPECT_EQ(DrawOne(primitive, {.selected = true}).brush.style, wxBRUSHSTYLE_TRANSPARENT);
}

void ExpectFrame(const DrawCall& call, Rgba colour, const Points& corners) {
  EXPECT_EQ(call.op, DrawOp::polygon);
  EXPECT_EQ(call.points, corners);
  EXPECT_EQ(call.pen, (RecordedPen{colour, 1, wxPENSTYLE_DOT}));
  EXPECT_EQ(call.brush.style, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(SceneryItem, ASelectedItemIsFramedByItsScaledFootprintAfterAllElse) {
  Setting setting = kQuarterTurn;
  setting.selected = true;
  const std::vector<DrawCall> calls =
      Draw(Def(20, 10, {Primitive(PrimitiveKind::filledRectangle, 4, 2, 10, 5)}), setting);
  ASSERT_EQ(calls.size(), 2u);
  // lx -20 or 20, ly -15 or 15.
  ExpectFrame(calls[1], {40, 100, 200}, {{240, 80}, {240, 160}, {180, 160}, {180, 80}});
}

TEST(SceneryItem, AnUnselectedItemHasNoFrame) {
  const std::vector<DrawCall> calls = Draw(*findScenery("car"), {});
  ASSERT_FALSE(calls.empty());
  for (const DrawCall& call : calls) EXPECT_NE(call.pen.style, wxPENSTYLE_DOT);
}

TEST(SceneryItem, DrawsOneCallPerPrimitiveInTheirOrder) {
  for (const SceneryDef& def : sceneryCatalog()) {
    const std::vector<DrawCall> calls = Draw(def, {});
    ASSERT_EQ(calls.size(), def.primitives.size()) << def.id;
    for (std::size_t i = 0; i < calls.size(); ++i) {
      const PrimitiveKind kind = def.primitives[i].kind;
      const DrawOp expected = kind == PrimitiveKind::line   ? DrawOp::line
                              : kind == PrimitiveKind::text ? DrawOp::text
                                                            : DrawOp::polygon;
      EXPECT_EQ(calls[i].op, expected) << def.id << " primitive " << i;
    }
  }
}

TEST(SceneryItem, AStopSignalShowsItsRedLightUnderItsLetters) {
  const std::vector<DrawCall> calls =
      Draw(*findScenery("signal_color_stop"), {.pose = {10, 10, 0}});
  ASSERT_EQ(calls.size(), 5u);
  EXPECT_EQ(calls[0].brush, SolidBrush({255, 255, 255}));
  EXPECT_EQ(calls[1].brush, SolidBrush({220, 40, 40}));
  // The arrow head: (2, 15.6), (6.4, 14), (6.4, 17.2), each plus the half unit.
  EXPECT_EQ(calls[2].points, (Points{{2, 16}, {6, 14}, {6, 17}}));
  EXPECT_EQ(calls[3].points, (Points{{6, 16}, {11, 16}}));
  // At (10, 8): 8.4 plus the half unit; 20 by 20.
  EXPECT_EQ(calls[4].points, (Points{{0, -2}}));
}

TEST(SceneryGhost, IsTheItemAtNaturalSizeInADottedGreenFrame) {
  const SceneryDef def = Def(20, 10, {Primitive(PrimitiveKind::filledRectangle, 4, 2, 10, 5)});
  RecordingDC dc;
  DrawSceneryGhost(RenderContext{}, dc, def, {100, 50, 90}, {2.0, 10.5, 20.5});
  ASSERT_EQ(dc.calls().size(), 2u);
  // lx = px - 10, ly = py - 5, then (210.5 - 2 ly, 120.5 + 2 lx): lx -6 or 4, ly -3 or 2.
  EXPECT_EQ(dc.calls()[0].points, (Points{{216, 108}, {216, 128}, {206, 128}, {206, 108}}));
  EXPECT_EQ(dc.calls()[0].brush, SolidBrush(kFill));
  ExpectFrame(dc.calls()[1], {80, 150, 80}, {{220, 100}, {220, 140}, {200, 140}, {200, 100}});
}

TEST(SceneryItem, MeasuresTheLettersOfManySignalsOnce) {
  RecordingDC dc;
  RenderContext context;
  const TextExtentsOfPaint paint(context);
  for (int i = 0; i < 50; ++i)
    DrawSceneryItem(context, dc, *findScenery("signal_color_stop"), {20.0 * i, 10, 0},
                    {1.0, 0.5, 0.5}, false, 1.0, 1.0);
  EXPECT_EQ(dc.texts("SL").size(), 50u);
  EXPECT_EQ(dc.measurements(), 1);
}

}  // namespace
}  // namespace vantrel
