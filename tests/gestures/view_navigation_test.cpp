#include "canvas/gestures/view_navigation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "canvas/gestures/palette_drag.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

class ViewNavigation : public CanvasTest {
 protected:
  void expectView(double scale, double offsetX, double offsetY) {
    EXPECT_NEAR(state.view.scale, scale, 1e-9);
    EXPECT_NEAR(state.view.offsetX, offsetX, 1e-6);
    EXPECT_NEAR(state.view.offsetY, offsetY, 1e-6);
  }
  void expectUsableView() {
    EXPECT_GE(state.view.scale, 0.05);
    EXPECT_LE(state.view.scale, 20.0);
    EXPECT_TRUE(std::isfinite(state.view.offsetX));
    EXPECT_TRUE(std::isfinite(state.view.offsetY));
  }
  void addScenery(double x, double y) {
    SceneryItem item;
    item.item = "car";
    item.x = x;
    item.y = y;
    layout.scenery.push_back(item);
  }
  void addHelix(const std::string& kit, double x, double y) {
    Helix helix;
    helix.variant = kit;
    helix.cx = x;
    helix.cy = y;
    layout.helices.push_back(helix);
  }
};

TEST_F(ViewNavigation, TheWheelAtScale20LeavesScaleAndWorldPointAlone) {
  state.view = {.scale = 20.0, .offsetX = 60.0, .offsetY = 60.0};
  EXPECT_TRUE(wheel(260, 160, kNotch));
  expectView(20.0, 60.0, 60.0);
}

TEST_F(ViewNavigation, TheWheelStopsAtScale20WithTheWorldPointUnderThePointer) {
  // (250, 250) shows (10, 10); 19 * 1.15 = 21.85 is too much; 250 - 10 * 20 = 50.
  state.view = {.scale = 19.0, .offsetX = 60.0, .offsetY = 60.0};
  wheel(250, 250, kNotch);
  expectView(20.0, 50.0, 50.0);
}

TEST_F(ViewNavigation, OneWheelStepInFromAFittedScaleOf01JumpsTo03) {
  // (100, 50) shows (1000, 500); 100 - 1000 * 0.3 = -200, 50 - 500 * 0.3 = -100.
  state.view = {.scale = 0.1, .offsetX = 0.0, .offsetY = 0.0};
  wheel(100, 50, kNotch);
  expectView(0.3, -200.0, -100.0);
}

TEST_F(ViewNavigation, ALayoutFittedTo01IsAt03AfterOneWheelStepIn) {
  // 10 m wide: 1000 pixels between the margins are a tenth of a pixel to the millimetre, and the
  // middle of the height lies at 80 + 640 / 2 = 400.
  Shape& river = layout.shapes.emplace_back();
  river.vertices = {{0.0, 0.0}, {10000.0, 0.0}, {10000.0, 0.0}};
  zoomToFit(context, false);
  expectView(0.1, 80.0, 399.95);
  // The left end stays where it is: (80 - 80) / 0.1 = 0.
  wheel(80, 400, kNotch);
  EXPECT_NEAR(state.view.scale, 0.3, 1e-9);
  EXPECT_NEAR(state.view.offsetX, 80.0, 1e-6);
}

TEST_F(ViewNavigation, TheWheelStepsBy15PercentAndBack) {
  wheel(60, 60, 1);
  expectView(0.46, 60.0, 60.0);
  wheel(60, 60, -kNotch);
  expectView(0.4, 60.0, 60.0);
  wheel(60, 60, -1);
  expectView(0.34782608695652176, 60.0, 60.0);
  EXPECT_EQ(host.repaints, 3);
}

TEST_F(ViewNavigation, AWheelThatDidNotTurnZoomsNothing) {
  EXPECT_FALSE(wheel(100, 100, 0));
  expectView(0.4, 60.0, 60.0);
  EXPECT_EQ(host.repaints, 0);
}

TEST_F(ViewNavigation, TheWheelWithCtrlZoomsWhenNothingIsSelected) {
  held.mods.ctrl = true;
  wheel(60, 60, kNotch);
  expectView(0.46, 60.0, 60.0);
}

TEST_F(ViewNavigation, TheZoomCommandWorksAboutTheMiddleInWholePixels) {
  // The middle of 1161 by 801 is (580, 400) and shows (1300, 850); 580 - 1300 * 0.5 = -70,
  // 400 - 850 * 0.5 = -25.
  host.client = {1161, 801};
  zoomCentred(context, 1.25);
  expectView(0.5, -70.0, -25.0);
  zoomCentred(context, 0.8);
  expectView(0.4, 60.0, 60.0);
  EXPECT_EQ(host.repaints, 2);
}

TEST_F(ViewNavigation, TheZoomCommandStopsAt03) {
  state.view.scale = 0.31;
  zoomCentred(context, 0.8);
  EXPECT_EQ(state.view.scale, 0.3);
}

TEST_F(ViewNavigation, PlusAndMinusAreTheZoomCommands) {
  host.client = {1160, 800};
  EXPECT_TRUE(type('+'));
  EXPECT_NEAR(state.view.scale, 0.5, 1e-12);
  EXPECT_TRUE(type('-'));
  EXPECT_NEAR(state.view.scale, 0.4, 1e-12);
  EXPECT_TRUE(type(WXK_NUMPAD_ADD));
  EXPECT_NEAR(state.view.scale, 0.5, 1e-12);
  EXPECT_TRUE(type(WXK_NUMPAD_SUBTRACT));
  EXPECT_NEAR(state.view.scale, 0.4, 1e-12);
  EXPECT_FALSE(type('='));
  held.mods.ctrl = true;
  EXPECT_FALSE(type('+'));
  EXPECT_NEAR(state.view.scale, 0.4, 1e-12);
}

TEST_F(ViewNavigation, ZoomingKeepsTheWorldPointUnderThePointer) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> scale(0.05, 20.0);
  std::uniform_real_distribution<double> offset(-50000.0, 50000.0);
  std::uniform_real_distribution<double> factor(0.05, 20.0);
  std::uniform_int_distribution<int> pixel(-200, 3000);
  for (int i = 0; i < 2000; ++i) {
    state.view = {.scale = scale(random), .offsetX = offset(random), .offsetY = offset(random)};
    const DevicePoint point{pixel(random), pixel(random)};
    const Vec2 before = state.view.toWorld(point);
    zoomAt(context, point, factor(random));
    const Vec2 after = state.view.toWorld(point);
    // A millionth of a millimetre, at coordinates of up to a thousand metres.
    ASSERT_NEAR(after.x, before.x, 1e-6);
    ASSERT_NEAR(after.y, before.y, 1e-6);
    ASSERT_GE(state.view.scale, 0.3);
    ASSERT_LE(state.view.scale, 20.0);
  }
}

TEST_F(ViewNavigation, FittingAnEmptyLayoutResetsTheView) {
  state.view = {.scale = 3.0, .offsetX = 1.0, .offsetY = 2.0};
  zoomToFit(context, false);
  EXPECT_EQ(state.view, (ViewTransform{.scale = 0.4, .offsetX = 60.0, .offsetY = 60.0}));
  EXPECT_EQ(host.repaints, 1);
}

// The room inside the margins is 1160 - 160 = 1000 by 800 - 160 = 640.

TEST_F(ViewNavigation, FitsAStraightFromItsOriginToItsEnd) {
  // 188.3 by 1 mm: 1000 / 188.3 = 5.3106745; x: 80 - 265.5337228; y: 317.3446628
  // + 80 - 531.0674456.
  lay("24188", {50.0, 100.0, 0.0});
  zoomToFit(context, false);
  expectView(5.310674455656, -185.5337228, -133.7227828);
}

TEST_F(ViewNavigation, FitsACurveByItsLengthAlongItsHeadingOnly) {
  // 30 degrees of 360 mm are 188.4956 mm; the curve's own end, 48 mm aside, isn't looked at, so
  // the box is 1 mm high.
  lay("24130", {0.0, 0.0, 0.0});
  zoomToFit(context, false);
  // 1000 / 188.4955592 = 5.3051648; y: 317.3474176 + 80.
  expectView(5.305164769730, 80.0, 397.3474176);
}

TEST_F(ViewNavigation, FitsAPieceWithoutExtentAtScale20) {
  // A box of one millimetre: x (1000 - 20) / 2 + 80 - 20 * 100, y (640 - 20) / 2 + 80 - 20 * 50.
  addScenery(100.0, 50.0);
  zoomToFit(context, false);
  expectView(20.0, -1430.0, -610.0);
  layout.scenery.clear();
  // A heading that means nothing leaves the piece its origin alone.
  lay("24188", {100.0, 50.0, kNan});
  zoomToFit(context, false);
  expectView(20.0, -1430.0, -610.0);
}

TEST_F(ViewNavigation, FitsABaseboardUnlessOnlyTrackIsAskedFor) {
  // 1000 / 2400 is the smaller ratio; the height takes 500 of 640.
  layout.baseboard = {{0.0, 0.0}, {2400.0, 0.0}, {2400.0, 1200.0}, {0.0, 1200.0}};
  zoomToFit(context, false);
  expectView(1000.0 / 2400.0, 80.0, 150.0);
  zoomToFit(context, true);
  expectView(0.4, 60.0, 60.0);
}

TEST_F(ViewNavigation, ADeckOfThreeVerticesIsContentAndOneOfTwoIsNot) {
  layout.levels = {Level{}};
  layout.levels[0].outline = {{0.0, 0.0}, {1000.0, 640.0}};
  zoomToFit(context, false);
  expectView(0.4, 60.0, 60.0);
  layout.levels[0].outline.push_back({0.0, 640.0});
  zoomToFit(context, false);
  expectView(1.0, 80.0, 80.0);
  zoomToFit(context, true);
  expectView(0.4, 60.0, 60.0);
}

TEST_F(ViewNavigation, TakesInOutlinesOfAnyVertexCountOnceThereIsContent) {
  layout.levels = {Level{}};
  layout.levels[0].outline = {{0.0, 0.0}, {500.0, 0.0}};
  layout.baseboard = {{1000.0, 640.0}};
  addScenery(10.0, 10.0);
  zoomToFit(context, false);
  expectView(1.0, 80.0, 80.0);
}

TEST_F(ViewNavigation, ShapesCountEvenWhenOnlyTrackIsAskedFor) {
  Shape shape;
  shape.vertices = {{-1000.0, 0.0}, {1000.0, 0.0}};
  layout.shapes.push_back(shape);
  layout.baseboard = {{0.0, 0.0}, {9000.0, 0.0}, {9000.0, 9000.0}};
  zoomToFit(context, true);
  // 2000 by 1: scale 0.5; x 80 + 500; y (640 - 0.5) / 2 + 80.
  expectView(0.5, 580.0, 399.75);
}

TEST_F(ViewNavigation, AHelixReachesToItsOuterRing) {
  // 875 by 875 mm about (0, 0): 640 / 875; x (1000 - 640) / 2 + 80 + 320.
  addHelix("proses_2_5_r1r2", 0.0, 0.0);
  zoomToFit(context, true);
  expectView(640.0 / 875.0, 580.0, 400.0);
}

TEST_F(ViewNavigation, AHelixOfAnUnknownKitReaches500Mm) {
  addHelix("no such kit", 0.0, 0.0);
  zoomToFit(context, false);
  expectView(0.64, 580.0, 400.0);
}

TEST_F(ViewNavigation, ALargeLayoutIsFittedBelowTheWheelsLimitButNotBelow005) {
  addScenery(0.0, 0.0);
  addScenery(10000.0, 0.0);
  zoomToFit(context, false);
  EXPECT_DOUBLE_EQ(state.view.scale, 0.1);
  addScenery(100000.0, 0.0);
  zoomToFit(context, false);
  // 1000 / 100000 is too small; x (1000 - 5000) / 2 + 80.
  expectView(0.05, -1920.0, (640.0 - 0.05) / 2.0 + 80.0);
}

TEST_F(ViewNavigation, AWindowSmallerThanItsMarginsFitsAtTheLowerLimit) {
  host.client = {100, 0};
  addScenery(0.0, 0.0);
  zoomToFit(context, false);
  // x (-60 - 0.05) / 2 + 80, y (-160 - 0.05) / 2 + 80.
  expectView(0.05, 49.975, -0.025);
}

TEST_F(ViewNavigation, UnknownPartsAloneCountAsNothingToFit) {
  lay("24188", {5000.0, 5000.0, 0.0});
  layout.pieces[0].cat = "no such part";
  state.view.scale = 7.0;
  zoomToFit(context, false);
  expectView(0.4, 60.0, 60.0);
}

TEST_F(ViewNavigation, NumbersWithoutMeaningLeaveAUsableView) {
  for (const double bad : {kNan, kInfinity, -kInfinity, 1e308, -1e308}) {
    layout = Layout{};
    lay("24188", {bad, 0.0, 0.0});
    lay("24188", {0.0, bad, bad});
    addScenery(0.0, bad);
    addHelix("proses_2_5_r1r2", bad, bad);
    layout.baseboard = {{bad, 0.0}, {0.0, bad}, {bad, bad}};
    zoomToFit(context, false);
    expectUsableView();
    // What makes sense beside it is still fitted.
    layout.baseboard = {{0.0, 0.0}, {1000.0, 0.0}, {1000.0, 640.0}, {bad, 0.0}};
    zoomToFit(context, false);
    expectView(1.0, 80.0, 80.0);
    wheel(500, 300, kNotch);
    expectUsableView();
  }
}

TEST_F(ViewNavigation, ResettingGoesToTheFirstViewOrToScale1) {
  state.view = {.scale = 3.0, .offsetX = 1.0, .offsetY = 2.0};
  resetViewUnitScale(context);
  expectView(1.0, 60.0, 60.0);
  resetView(context);
  expectView(0.4, 60.0, 60.0);
  EXPECT_EQ(host.repaints, 2);
}

TEST_F(ViewNavigation, ShowingTheGridIsAFlagOfTheLayout) {
  showGrid(context, false);
  EXPECT_FALSE(layout.gridVisible);
  const std::size_t without = paint()->calls().size();
  showGrid(context, true);
  EXPECT_TRUE(layout.gridVisible);
  state.view.scale = 0.4;  // a pitch of 12.8 pixels
  EXPECT_GT(paint()->calls().size(), without);
  EXPECT_EQ(host.repaints, 2);
}

TEST_F(ViewNavigation, TheGridOf32MmIsDrawnFromScale01875To125Only) {
  const auto drawn = [this](double scale) {
    state.view = {.scale = scale, .offsetX = 60.0, .offsetY = 60.0};
    layout.gridVisible = false;
    const std::size_t without = paint()->calls().size();
    layout.gridVisible = true;
    return paint()->calls().size() > without;
  };
  EXPECT_FALSE(drawn(0.187));
  EXPECT_TRUE(drawn(0.1875));
  EXPECT_TRUE(drawn(12.5));
  EXPECT_FALSE(drawn(12.51));
}

TEST_F(ViewNavigation, TheRulersTickEvery6InchesAtScale04) {
  layout.units = kInches;
  // 6 inches are 60.96 pixels: one tick to the right of the origin lies at 60 + 60.96, labelled
  // 2 pixels further on.
  const std::unique_ptr<RecordingDC> dc = paint();
  const std::vector<DrawCall> labels = dc->texts("6\"");
  ASSERT_FALSE(labels.empty());
  EXPECT_EQ(labels[0].points[0], wxPoint(122, 2));
}

// The client area is 1160 by 800. A point is seen from 36 pixels on, 20 of the ruler and 16 more,
// to 1144 and 784.
class Following : public CanvasTest {
 protected:
  void SetUp() override { state.view = {.scale = 0.5, .offsetX = 60.0, .offsetY = 60.0}; }
  // Lays a straight of 188.3 mm, 94.15 pixels, and selects it.
  std::int32_t layLast(const Pose& pose) {
    const std::int32_t id = lay("24188", pose);
    for (Piece& piece : layout.pieces) piece.sel = piece.id == id;
    return id;
  }
};

TEST_F(Following, APieceLaidFromThePaletteBeyondTheEdgeMovesTheViewJustSoFar) {
  // It ends at 60 + 0.5 (2000 + 188.3) = 1154.15, the new one at 1248.3: 104.3 too far.
  layLast({2000.0, 700.0, 0.0});
  placeByDoubleClick(context, "24188");
  EXPECT_EQ(state.view, (ViewTransform{.scale = 0.5, .offsetX = -45.0, .offsetY = 60.0}));
}

TEST_F(Following, APieceWhoseFarEndIsSeenLeavesTheViewAlone) {
  // The new one ends at 60 + 0.5 (1790 + 376.6) = 1143.3.
  layLast({1790.0, 700.0, 0.0});
  placeByDoubleClick(context, "24188");
  EXPECT_EQ(state.view, (ViewTransform{.scale = 0.5, .offsetX = 60.0, .offsetY = 60.0}));
}

TEST_F(Following, TheRulersHideAnEndAndTheViewMovesBothWays) {
  // Along a heading of 225 degrees, 188.3 sin 45 = 133.1482 mm or 66.5741 pixels each way a piece:
  // two of them end at 125 - 133.1482 = -8.1482 and 145 - 133.1482 = 11.8518.
  layLast({130.0, 170.0, 225.0});
  placeByDoubleClick(context, "24188");
  EXPECT_EQ(state.view, (ViewTransform{.scale = 0.5, .offsetX = 105.0, .offsetY = 85.0}));
}

TEST_F(Following, ACloneByDoubleClickIsFollowedToo) {
  lay("24188", {2000.0, 700.0, 0.0});
  state.view.offsetX = 30.0;
  // Its middle shows at 30 + 0.5 (2000 + 94.15) = 1077, 410; the clone ends at 1218.3, 74.3 too
  // far.
  onDoubleClick(context, at(1077, 410));
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(state.view, (ViewTransform{.scale = 0.5, .offsetX = -45.0, .offsetY = 60.0}));
}

// The bumper has one connector, and its far end is where its rails end.
TEST_F(Following, APieceWithoutAFarConnectorIsFollowedToTheEndOfItsRails) {
  const double length = findPart("24977")->length;
  ASSERT_GT(length, 40.0);
  layLast({2000.0, 700.0, 0.0});
  placeByDoubleClick(context, "24977");
  const int end = state.view.toDevice({2188.3 + length, 700.0}).x;
  EXPECT_GE(end, 1142);
  EXPECT_LE(end, 1144);
}

TEST_F(Following, AnEndThatNoViewCanShowLeavesTheViewAlone) {
  const ViewTransform before = state.view;
  for (const double far : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
    bringIntoView(context, {far, 0.0});
    bringIntoView(context, {0.0, far});
  }
  EXPECT_EQ(state.view, before);
}

TEST_F(Following, InAWindowSmallerThanItsMarginsTheEndComesRightBehindTheRuler) {
  host.client = {40, 30};
  bringIntoView(context, {1000.0, 500.0});
  EXPECT_EQ(state.view.toDevice({1000.0, 500.0}), (DevicePoint{36, 36}));
}

}  // namespace
}  // namespace vantrel
