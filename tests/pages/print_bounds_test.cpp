#include "print/pages/print_bounds.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantrel {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

// "24188" is a straight of 188.3 mm.
Piece Straight(double x, double y, double heading, std::int32_t level = 1) {
  Piece piece;
  piece.id = 1;
  piece.cat = "24188";
  piece.x = x;
  piece.y = y;
  piece.heading = heading;
  piece.level = level;
  return piece;
}

SceneryItem Item(double x, double y, std::int32_t level) {
  SceneryItem item;
  item.id = 9;
  item.item = "whatever";
  item.x = x;
  item.y = y;
  item.level = level;
  return item;
}

void ExpectBounds(const PrintBounds& bounds, double minX, double minY, double maxX, double maxY) {
  EXPECT_NEAR(bounds.minX, minX, 1e-9);
  EXPECT_NEAR(bounds.minY, minY, 1e-9);
  EXPECT_NEAR(bounds.maxX, maxX, 1e-9);
  EXPECT_NEAR(bounds.maxY, maxY, 1e-9);
}

TEST(PrintBounds, CoverBothEndsOfAPiecesStraightLine) {
  Layout plan;
  plan.pieces = {Straight(100, 50, 90)};
  ExpectBounds(boundsOfPrint(plan, {}), 100, 50, 100, 238.3);
  plan.pieces = {Straight(100, 50, 180)};
  ExpectBounds(boundsOfPrint(plan, {}), -88.3, 50, 100, 50);
}

TEST(PrintBounds, FollowAHeadingThatIsNoQuarterTurn) {
  Layout plan;
  plan.pieces = {Straight(100, 50, 30)};
  // 188.3 * 0.8660254 = 163.072583 across, half of 188.3 down.
  const PrintBounds bounds = boundsOfPrint(plan, {});
  EXPECT_NEAR(bounds.maxX, 263.072583, 1e-5);
  EXPECT_NEAR(bounds.maxY, 144.15, 1e-9);
  EXPECT_NEAR(bounds.minX, 100.0, 1e-9);
  EXPECT_NEAR(bounds.minY, 50.0, 1e-9);
}

// "24130" is a curve of 360 mm radius and 30 degrees. Its length is that of its arc, 360 * pi / 6 =
// 188.495559 mm, and counts along its heading, though its end lies at 180 by 48.2 mm.
TEST(PrintBounds, TakeACurveForAStraightOfItsLength) {
  Layout plan;
  plan.pieces = {Straight(10, 20, 0)};
  plan.pieces[0].cat = "24130";
  const PrintBounds bounds = boundsOfPrint(plan, {});
  EXPECT_NEAR(bounds.maxX, 198.495559, 1e-6);
  EXPECT_EQ(bounds.maxY, 20.0);
}

TEST(PrintBounds, StartABillionMillimetresAway) {
  // What lies beyond is extended to from there, as the smallest and largest numbers say.
  Layout plan;
  plan.scenery = {Item(3e9, -3e9, 1)};
  ExpectBounds(boundsOfPrint(plan, {}), 1e9, -3e9, 3e9, -1e9);
}

TEST(PrintBounds, NothingToPrintIsASquareOfAMetre) {
  ExpectBounds(boundsOfPrint(Layout{}, {}), 0, 0, 1000, 1000);
}

TEST(PrintBounds, TakeThePiecesOfTheActiveLevelOnlyOrOfAll) {
  Layout plan;
  plan.pieces = {Straight(0, 0, 0, 1), Straight(5000, 0, 0, 2)};
  plan.activeLevel = 1;
  ExpectBounds(boundsOfPrint(plan, {}), 0, 0, 188.3, 0);
  PrintOptions all;
  all.allLevels = 1;
  ExpectBounds(boundsOfPrint(plan, all), 0, 0, 5188.3, 0);
}

TEST(PrintBounds, SceneryOnOtherLevelsWidensThemByItsMiddleAlone) {
  Layout plan;
  plan.pieces = {Straight(0, 0, 0, 1)};
  plan.scenery = {Item(900, -70, 2)};
  ExpectBounds(boundsOfPrint(plan, {}), 0, -70, 900, 0);
}

TEST(PrintBounds, LeaveOutPartsThatNobodyKnows) {
  Layout plan;
  plan.pieces = {Straight(0, 0, 0), Straight(7000, 7000, 0)};
  plan.pieces[1].cat = "no such part";
  ExpectBounds(boundsOfPrint(plan, {}), 0, 0, 188.3, 0);
}

TEST(PrintBounds, TakeTheBaseboardOnlyWhenItIsIncluded) {
  Layout plan;
  plan.pieces = {Straight(0, 0, 0)};
  plan.baseboard = {{-10, -20}, {2400, -20}, {2400, 1200}};
  ExpectBounds(boundsOfPrint(plan, {}), -10, -20, 2400, 1200);
  PrintOptions bare;
  bare.includeBaseboard = false;
  ExpectBounds(boundsOfPrint(plan, bare), 0, 0, 188.3, 0);
}

TEST(PrintBounds, AWidthOfZeroCountsAsOneMillimetre) {
  Layout plan;
  plan.scenery = {Item(400, 30, 1)};
  const PrintBounds bounds = boundsOfPrint(plan, {});
  ExpectBounds(bounds, 400, 30, 400, 30);
  EXPECT_EQ(bounds.width(), 1.0);
  EXPECT_EQ(bounds.height(), 1.0);
}

TEST(PrintBounds, PointsThatAreNoPlaceCountForNothing) {
  Layout plan;
  plan.pieces = {Straight(0, 0, 0), Straight(kNoNumber, 5, 0), Straight(5, kInfinite, 0),
                 Straight(20, 30, kNoNumber)};
  plan.baseboard = {{-kInfinite, 0}, {3, kNoNumber}};
  // The last piece's own place is one, its far end is not.
  ExpectBounds(boundsOfPrint(plan, {}), 0, 0, 188.3, 30);
}

TEST(PrintBounds, EndsThatLieTooFarApartForANumberStillHaveAWidth) {
  Layout plan;
  plan.baseboard = {{-1.7e308, -1.7e308}, {1.7e308, 1.7e308}};
  const PrintBounds bounds = boundsOfPrint(plan, {});
  EXPECT_LE(bounds.width(), std::numeric_limits<double>::max());
  EXPECT_GT(bounds.width(), 1.7e308);
}

}  // namespace
}  // namespace vantrel
