// Hits on shapes, measurements, labels, deck outlines and scale handles.
#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/hit_test.h"
#include "canvas/operations/point_tests.h"
#include "catalog/scenery_catalog.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// A pixel is a millimetre; two pixels are one.
constexpr ViewTransform kPlain{.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};
constexpr ViewTransform kDouble{.scale = 2.0, .offsetX = 0.0, .offsetY = 0.0};

// Open at the bottom: arms 100 wide, the notch from x 100 to 200 below y 100.
const std::vector<Vec2> kU = {{0, 0},     {300, 0},   {300, 300}, {200, 300},
                              {200, 100}, {100, 100}, {100, 300}, {0, 300}};

void AddShape(Layout& layout, std::int32_t id, std::vector<Vec2> vertices, std::int32_t level = 1) {
  Shape shape;
  shape.id = id;
  shape.vertices = std::move(vertices);
  shape.level = level;
  layout.shapes.push_back(shape);
}

void AddDeck(Layout& layout, std::int32_t id, double height, std::vector<Vec2> outline) {
  Level level;
  level.id = id;
  level.height = height;
  level.outline = std::move(outline);
  layout.levels.push_back(level);
}

Measurement& AddTape(Layout& layout, std::int32_t id, Vec2 start, Vec2 end) {
  Measurement tape;
  tape.id = id;
  tape.startX = start.x;
  tape.startY = start.y;
  tape.endX = end.x;
  tape.endY = end.y;
  layout.measurements.push_back(tape);
  return layout.measurements.back();
}

void ExpectTapeHit(const Layout& layout, const ViewTransform& view, DevicePoint point,
                   std::int32_t id, MeasurementPart part) {
  const MeasurementHit hit = hitTestMeasurement(layout, view, point);
  EXPECT_EQ(hit.id, id) << point.x << ", " << point.y;
  EXPECT_EQ(hit.part, part) << point.x << ", " << point.y;
}

SceneryItem PlatformAt(double x, double y, double heading) {
  SceneryItem item;
  item.id = 5;
  item.item = "platform";
  item.x = x;
  item.y = y;
  item.heading = heading;
  return item;
}

TEST(HitTestShape, FindsTheInsideOfAConcavePolygonButNotItsNotch) {
  Layout layout;
  AddShape(layout, 3, kU);
  EXPECT_EQ(hitTestShape(layout, kPlain, {50, 250}), 3);
  EXPECT_EQ(hitTestShape(layout, kPlain, {250, 250}), 3);
  EXPECT_EQ(hitTestShape(layout, kPlain, {150, 50}), 3);
  EXPECT_EQ(hitTestShape(layout, kPlain, {150, 250}), kNone);
}

TEST(HitTestShape, FindsAnEdgeWithin8PixelsAtAnyScale) {
  Layout layout;
  AddShape(layout, 3, kU);
  EXPECT_EQ(hitTestShape(layout, kPlain, {150, 108}), 3);
  EXPECT_EQ(hitTestShape(layout, kPlain, {150, 109}), kNone);
  // 8 pixels are 4 mm: y 104 and 104.5.
  EXPECT_EQ(hitTestShape(layout, kDouble, {300, 208}), 3);
  EXPECT_EQ(hitTestShape(layout, kDouble, {300, 209}), kNone);
  // Off the corner (0, 0): 5 and 6 both ways are 7.07 and 8.49.
  EXPECT_EQ(hitTestShape(layout, kPlain, {-5, -5}), 3);
  EXPECT_EQ(hitTestShape(layout, kPlain, {-6, -6}), kNone);
}

TEST(HitTestShape, CountsTheClosingEdge) {
  Layout layout;
  AddShape(layout, 3, kU);
  EXPECT_EQ(hitTestShape(layout, kPlain, {-8, 150}), 3);
  EXPECT_EQ(hitTestShape(layout, kPlain, {-9, 150}), kNone);
}

TEST(HitTestShape, IsOutsideWhereAPolygonLiesOnItselfTwice) {
  Layout layout;
  AddShape(layout, 3,
           {{0, 0}, {300, 0}, {300, 300}, {0, 300}, {0, 0}, {300, 0}, {300, 300}, {0, 300}});
  EXPECT_EQ(hitTestShape(layout, kPlain, {150, 150}), kNone);
  EXPECT_EQ(hitTestShape(layout, kPlain, {150, 5}), 3);
}

TEST(HitTestShape, TakesTheLaterShapeAndPassesOverHiddenOnesAndLines) {
  Layout layout;
  layout.levels.resize(1);
  AddShape(layout, 3, kU);
  AddShape(layout, 4, kU);
  AddShape(layout, 5, {{0, 0}, {300, 0}});
  EXPECT_EQ(hitTestShape(layout, kPlain, {50, 0}), 4);
  layout.shapes[1].level = 9;
  EXPECT_EQ(hitTestShape(layout, kPlain, {50, 0}), 4) << "level 9 doesn't exist";
  layout.shapes[1].level = 1;
  layout.levels[0].visible = false;
  EXPECT_EQ(hitTestShape(layout, kPlain, {50, 0}), kNone);
}

// Below a scale of 0.0001 the reach stays at 8 / 0.0001 = 80000 mm.
TEST(HitTestShape, LimitsItsReachAtTinyScales) {
  constexpr ViewTransform tiny{.scale = 1e-6, .offsetX = 0.0, .offsetY = 0.0};
  Layout layout;
  AddShape(layout, 3, {{79000, 0}, {79010, 0}, {79010, 10}});
  EXPECT_EQ(hitTestShape(layout, tiny, {0, 0}), 3);
  layout.shapes[0].vertices = {{81000, 0}, {81010, 0}, {81010, 10}};
  EXPECT_EQ(hitTestShape(layout, tiny, {0, 0}), kNone);
}

// The plate stands at (100, 100).
TEST(HitTestMeasurement, FindsThePlateWithin32And9Pixels) {
  Layout layout;
  AddTape(layout, 6, {0, 0}, {200, 0}).moveY = 100.0;
  for (const DevicePoint point : {DevicePoint{68, 100}, {132, 100}, {100, 91}, {132, 109}})
    ExpectTapeHit(layout, kPlain, point, 6, MeasurementPart::label);
  for (const DevicePoint point : {DevicePoint{67, 100}, {133, 100}, {100, 90}, {100, 110}})
    ExpectTapeHit(layout, kPlain, point, kNone, MeasurementPart::line);
  // At two pixels a millimetre, 16 and 4.5 mm about (100, 100).
  for (const DevicePoint point : {DevicePoint{168, 200}, {232, 200}, {200, 191}, {200, 209}})
    ExpectTapeHit(layout, kDouble, point, 6, MeasurementPart::label);
  for (const DevicePoint point : {DevicePoint{167, 200}, {233, 200}, {200, 190}, {200, 210}})
    ExpectTapeHit(layout, kDouble, point, kNone, MeasurementPart::line);
}

TEST(HitTestMeasurement, FindsTheLineWithin8PixelsWhereverThePlateWasMoved) {
  Layout layout;
  Measurement& tape = AddTape(layout, 6, {0, 0}, {200, 0});
  tape.moveX = 1000.0;
  for (const DevicePoint point : {DevicePoint{100, 8}, {100, -8}, {-8, 0}, {208, 0}})
    ExpectTapeHit(layout, kPlain, point, 6, MeasurementPart::line);
  for (const DevicePoint point : {DevicePoint{100, 9}, {100, -9}, {-9, 0}, {209, 0}})
    EXPECT_EQ(hitTestMeasurement(layout, kPlain, point).id, kNone);
  EXPECT_EQ(hitTestMeasurement(layout, kDouble, {200, 8}).id, 6) << "4 mm";
  EXPECT_EQ(hitTestMeasurement(layout, kDouble, {200, 9}).id, kNone) << "4.5 mm";
}

TEST(HitTestMeasurement, PrefersThePlateToTheLineBeneathIt) {
  Layout layout;
  AddTape(layout, 6, {0, 0}, {200, 0});
  ExpectTapeHit(layout, kPlain, {100, 0}, 6, MeasurementPart::label);
  ExpectTapeHit(layout, kPlain, {60, 0}, 6, MeasurementPart::line);
}

TEST(HitTestMeasurement, PrefersTheLineOfALaterTapeToThePlateOfAnEarlier) {
  Layout layout;
  AddTape(layout, 6, {0, 0}, {200, 0});
  AddTape(layout, 8, {100, -200}, {100, 50});
  ExpectTapeHit(layout, kPlain, {100, 0}, 8, MeasurementPart::line);
}

TEST(HitTestMeasurement, FindsATapeWithoutLengthAtItsPoint) {
  Layout layout;
  AddTape(layout, 6, {50, 50}, {50, 50}).moveX = 500.0;
  EXPECT_EQ(hitTestMeasurement(layout, kPlain, {58, 50}).id, 6);
  EXPECT_EQ(hitTestMeasurement(layout, kPlain, {59, 50}).id, kNone);
}

TEST(SegmentDistance, TakesASegmentOfNoLengthForItsStart) {
  EXPECT_EQ(SegmentDistance({10.0, 0.0}, {0.0, 0.0}, {3e-5, 0.0}), 10.0);  // squared 9e-10
  EXPECT_LT(SegmentDistance({10.0, 0.0}, {0.0, 0.0}, {4e-5, 0.0}), 10.0);  // squared 1.6e-9
  EXPECT_EQ(SegmentDistance({5.0, 7.0}, {0.0, 0.0}, {10.0, 0.0}), 7.0);
  EXPECT_EQ(SegmentDistance({13.0, 4.0}, {0.0, 0.0}, {10.0, 0.0}), 5.0);
}

TEST(HitTestLabel, FindsABoxToTheRightAndBelow) {
  Layout layout;
  layout.labels.push_back({.id = 11, .text = "Yard", .x = 100.9, .y = 100.9});  // pixel 100
  for (const DevicePoint point : {DevicePoint{96, 100}, {220, 100}, {100, 96}, {220, 124}})
    EXPECT_EQ(hitTestLabel(layout, kPlain, point), 11) << point.x << ", " << point.y;
  for (const DevicePoint point : {DevicePoint{95, 100}, {221, 100}, {100, 95}, {100, 125}})
    EXPECT_EQ(hitTestLabel(layout, kPlain, point), kNone) << point.x << ", " << point.y;
  // The box is in pixels: at (202, 202) of the doubled view, 201.8 truncated is 201.
  EXPECT_EQ(hitTestLabel(layout, kDouble, {197, 201}), 11);
  EXPECT_EQ(hitTestLabel(layout, kDouble, {196, 201}), kNone);
  EXPECT_EQ(hitTestLabel(layout, kDouble, {321, 225}), 11);
}

TEST(HitTestLabel, TakesTheFirstInTheList) {
  Layout layout;
  layout.labels.push_back({.id = 11, .x = 100.0, .y = 100.0});
  layout.labels.push_back({.id = 12, .x = 100.0, .y = 100.0});
  EXPECT_EQ(hitTestLabel(layout, kPlain, {100, 100}), 11);
}

TEST(HitTestDeckOutline, FindsTheEdgesButNotTheInside) {
  Layout layout;
  AddDeck(layout, 4, 0.0, {{0, 0}, {300, 0}, {300, 300}, {0, 300}});
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {150, 8}), 4);
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {150, 9}), kNone);
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {150, -8}), 4);
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {-8, 150}), 4) << "the closing edge";
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {150, 150}), kNone);
  EXPECT_EQ(hitTestDeckOutline(layout, kDouble, {300, 8}), 4) << "4 mm";
  EXPECT_EQ(hitTestDeckOutline(layout, kDouble, {300, 9}), kNone) << "4.5 mm";
}

TEST(HitTestDeckOutline, TakesTheHighestVisibleLevelWithAnOutline) {
  const std::vector<Vec2> square = {{0, 0}, {300, 0}, {300, 300}, {0, 300}};
  Layout layout;
  AddDeck(layout, 1, 0.0, square);
  AddDeck(layout, 2, 200.0, square);
  AddDeck(layout, 3, 100.0, square);
  AddDeck(layout, 4, 300.0, {{0, 0}, {300, 0}});
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {150, 0}), 2);
  layout.levels[1].visible = false;
  EXPECT_EQ(hitTestDeckOutline(layout, kPlain, {150, 0}), 3);
}

// A platform of 230 by 60 mm about (100, 100).
TEST(ScaleHandlePoints, RunAroundTheFootprintFromTheTopLeft) {
  const SceneryDef& def = *findScenery("platform");
  const std::array<Vec2, 8> expected = {{{-15, 70},
                                         {100, 70},
                                         {215, 70},
                                         {215, 100},
                                         {215, 130},
                                         {100, 130},
                                         {-15, 130},
                                         {-15, 100}}};
  EXPECT_EQ(scaleHandlePoints(PlatformAt(100, 100, 0), def), expected);
}

TEST(ScaleHandlePoints, TurnAndScaleWithTheItem) {
  SceneryItem item = PlatformAt(100, 100, 90);
  item.scalex = 2.0;
  item.scaley = 0.5;
  const std::array<Vec2, 8> points = scaleHandlePoints(item, *findScenery("platform"));
  // Local (-230, -15) and (230, 0).
  EXPECT_NEAR(points[0].x, 115.0, 1e-9);
  EXPECT_NEAR(points[0].y, -130.0, 1e-9);
  EXPECT_NEAR(points[3].x, 100.0, 1e-9);
  EXPECT_NEAR(points[3].y, 330.0, 1e-9);
}

TEST(HitTestScaleHandle, FindsEachHandleBelow37SquaredPixels) {
  const SceneryItem item = PlatformAt(100, 100, 0);
  const DevicePoint at[] = {{-15, 70},  {100, 70},  {215, 70},  {215, 100},
                            {215, 130}, {100, 130}, {-15, 130}, {-15, 100}};
  for (int n = 0; n < 8; ++n) {
    const auto [x, y] = at[n];
    EXPECT_EQ(hitTestScaleHandle(item, kPlain, {x, y}), n);
    EXPECT_EQ(hitTestScaleHandle(item, kPlain, {x + 6, y}), n) << "36";
    EXPECT_EQ(hitTestScaleHandle(item, kPlain, {x - 4, y + 4}), n) << "32";
    EXPECT_EQ(hitTestScaleHandle(item, kPlain, {x + 6, y + 1}), kNone) << "37";
  }
}

TEST(HitTestScaleHandle, TakesTheLowestNumberWhereHandlesMeet) {
  constexpr ViewTransform far{.scale = 0.001, .offsetX = 0.0, .offsetY = 0.0};
  EXPECT_EQ(hitTestScaleHandle(PlatformAt(0, 0, 0), far, {0, 0}), 0);
}

TEST(HitTestScaleHandle, FindsNothingOnAnUnknownItem) {
  SceneryItem item = PlatformAt(0, 0, 0);
  item.item = "no such item";
  EXPECT_EQ(hitTestScaleHandle(item, kPlain, {0, 0}), kNone);
}

TEST(SingleSelectedScenery, IsTheOnlySelectedItemOfCategory0) {
  Layout layout;
  layout.scenery.push_back(PlatformAt(0, 0, 0));
  EXPECT_EQ(singleSelectedScenery(layout), kNone);
  layout.scenery[0].sel = true;
  EXPECT_EQ(singleSelectedScenery(layout), 5);
  layout.scenery[0].item = "bush";
  EXPECT_EQ(singleSelectedScenery(layout), kNone) << "another category";
  layout.scenery[0].item = "no such item";
  EXPECT_EQ(singleSelectedScenery(layout), kNone);
}

TEST(SingleSelectedScenery, IsNoneBesideASecondItemAPieceOrALabel) {
  Layout layout;
  layout.scenery.push_back(PlatformAt(0, 0, 0));
  layout.scenery[0].sel = true;
  layout.scenery.push_back(PlatformAt(0, 0, 0));
  layout.labels.resize(1);
  layout.shapes.resize(1);
  layout.shapes[0].sel = true;
  LayPiece(layout, "24188", {});
  EXPECT_EQ(singleSelectedScenery(layout), 5);
  layout.scenery[1].sel = true;
  EXPECT_EQ(singleSelectedScenery(layout), kNone);
  layout.scenery[1].sel = false;
  layout.labels[0].sel = true;
  EXPECT_EQ(singleSelectedScenery(layout), kNone);
  layout.labels[0].sel = false;
  layout.pieces[0].sel = true;
  EXPECT_EQ(singleSelectedScenery(layout), kNone);
}

TEST(AnnotationHits, SurviveAnyNumbers) {
  const double wild[] = {0.0, -1.0, 1e-300, 1e300, -1e300, kNaN, kInf, -kInf};
  const int farthest = std::numeric_limits<int>::max();
  for (const double a : wild) {
    for (const double b : wild) {
      Layout layout;
      AddShape(layout, 3, {{a, b}, {b, a}, {a, a}, {b, b}});
      for (int i = 0; i < 40; ++i)
        AddDeck(layout, i + 1, i % 3 == 0 ? a : b, {{a, b}, {b, a}, {0, 0}});
      AddTape(layout, 6, {a, b}, {b, a});
      layout.labels.push_back({.id = 11, .x = a, .y = b});
      const ViewTransform view{.scale = a, .offsetX = b, .offsetY = b};
      for (const DevicePoint point : {DevicePoint{0, 0}, {farthest, -farthest - 1}}) {
        const std::int32_t shape = hitTestShape(layout, view, point);
        EXPECT_TRUE(shape == kNone || shape == 3);
        const std::int32_t tape = hitTestMeasurement(layout, view, point).id;
        EXPECT_TRUE(tape == kNone || tape == 6);
        const std::int32_t label = hitTestLabel(layout, view, point);
        EXPECT_TRUE(label == kNone || label == 11);
        EXPECT_LE(hitTestDeckOutline(layout, view, point), 40);
      }
    }
  }
}

}  // namespace
}  // namespace vantrel
