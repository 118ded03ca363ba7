// Where one piece can be hit: points just inside and just outside each border of each kind.
#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/hit_test.h"
#include "catalog/piece_builders.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

bool HitAt(std::string_view part, const Pose& pose, Vec2 world) {
  const PieceDef* const def = findPart(part);
  EXPECT_NE(def, nullptr) << part;
  Piece piece;
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  return def != nullptr && hitTestPieceShape(piece, *def, world);
}

bool HitAt(std::string_view part, Vec2 local) {
  return HitAt(part, Pose{}, local);
}

// A 24130: radius 360, 30 degrees, the centre at (0, 360). `angle` may be turned to -30.
bool HitCurveAt(double angle, Vec2 local) {
  PieceDef def = makeCurve(TrackSystem::MarklinC, "curve", "", 360.0, 30.0);
  def.angle = angle;
  return hitTestPieceShape(Piece{}, def, local);
}

// 24188 is 188.3 mm long.
TEST(HitTestPieceShape, AllowsAStraight5MmAtItsEndsButNoneAtItsSides) {
  EXPECT_TRUE(HitAt("24188", {-4.9, 0.0}));
  EXPECT_FALSE(HitAt("24188", {-5.1, 0.0}));
  EXPECT_TRUE(HitAt("24188", {193.2, 0.0}));
  EXPECT_FALSE(HitAt("24188", {193.4, 0.0}));
  EXPECT_TRUE(HitAt("24188", {90.0, 20.0}));
  EXPECT_FALSE(HitAt("24188", {90.0, 20.1}));
  EXPECT_TRUE(HitAt("24188", {90.0, -20.0}));
  EXPECT_FALSE(HitAt("24188", {90.0, -20.1}));
}

TEST(HitTestPieceShape, TurnsWithThePiece) {
  // Heading 90: local (lx, ly) lies at (100 - ly, 50 + lx).
  const Pose down{100.0, 50.0, 90.0};
  EXPECT_TRUE(HitAt("24188", down, {80.1, 150.0}));
  EXPECT_FALSE(HitAt("24188", down, {79.9, 150.0}));
  EXPECT_TRUE(HitAt("24188", down, {119.9, 243.2}));
  EXPECT_FALSE(HitAt("24188", down, {119.9, 243.4}));
  EXPECT_FALSE(HitAt("24188", down, {119.9, 44.9}));
  // A heading with cosine 0.8 and sine 0.6: local (100, 19) is (80 - 11.4, 60 + 15.2), local
  // (100, 21) is (80 - 12.6, 60 + 16.8); local (100, -21) is (92.6, 43.2).
  const Pose slanting{0.0, 0.0, 36.86989764584402};
  EXPECT_TRUE(HitAt("24188", slanting, {68.6, 75.2}));
  EXPECT_FALSE(HitAt("24188", slanting, {67.4, 76.8}));
  EXPECT_FALSE(HitAt("24188", slanting, {92.6, 43.2}));
}

// 8500 is 110 mm long.
TEST(HitTestPieceShape, HasATargetOf7MmInZScale) {
  EXPECT_TRUE(HitAt("8500", {50.0, 7.0}));
  EXPECT_FALSE(HitAt("8500", {50.0, 7.1}));
  EXPECT_TRUE(HitAt("8500", {50.0, -7.0}));
  EXPECT_FALSE(HitAt("8500", {50.0, -7.1}));
  EXPECT_TRUE(HitAt("8500", {114.9, 0.0}));
  EXPECT_FALSE(HitAt("8500", {115.1, 0.0}));
}

TEST(HitTestPieceShape, AllowsACurve25MmOnBothSidesOfItsArc) {
  EXPECT_TRUE(HitAt("24130", {0.0, 24.9}));
  EXPECT_FALSE(HitAt("24130", {0.0, 25.1}));
  EXPECT_TRUE(HitAt("24130", {0.0, -24.9}));
  EXPECT_FALSE(HitAt("24130", {0.0, -25.1}));
  // 8510 in Z scale, radius 145: 7 + 5 mm.
  EXPECT_TRUE(HitAt("8510", {0.0, 11.9}));
  EXPECT_FALSE(HitAt("8510", {0.0, 12.1}));
  EXPECT_TRUE(HitAt("8510", {0.0, -11.9}));
  EXPECT_FALSE(HitAt("8510", {0.0, -12.1}));
}

// From the centre the arc runs from -90 to -60 degrees; 360 mm from it lie, at -92.9 degrees,
// (-18.21, 0.46), at -93.1 (-19.47, 0.53), at -57.1 (195.54, 57.74), at -56.9 (196.60, 58.42).
TEST(HitTestPieceShape, AllowsACurve3DegreesAtItsEnds) {
  EXPECT_TRUE(HitCurveAt(30.0, {-18.2134, 0.4611}));
  EXPECT_FALSE(HitCurveAt(30.0, {-19.4685, 0.5268}));
  EXPECT_TRUE(HitCurveAt(30.0, {195.5423, 57.7368}));
  EXPECT_FALSE(HitCurveAt(30.0, {196.5973, 58.4213}));
}

// The same mirrored: the centre at (0, -360), the arc from 90 down to 60 degrees.
TEST(HitTestPieceShape, BendsToTheLeftForANegativeAngle) {
  EXPECT_TRUE(HitCurveAt(-30.0, {0.0, 24.9}));
  EXPECT_FALSE(HitCurveAt(-30.0, {0.0, 25.1}));
  EXPECT_TRUE(HitCurveAt(-30.0, {-18.2134, -0.4611}));
  EXPECT_FALSE(HitCurveAt(-30.0, {-19.4685, -0.5268}));
  EXPECT_TRUE(HitCurveAt(-30.0, {195.5423, -57.7368}));
  EXPECT_FALSE(HitCurveAt(-30.0, {196.5973, -58.4213}));
  EXPECT_FALSE(HitCurveAt(-30.0, {195.5423, 57.7368}));
  EXPECT_FALSE(HitCurveAt(30.0, {195.5423, -57.7368}));
}

// On the circle at 90, 150 and -150 degrees, and on both sides of 180.
TEST(HitTestPieceShape, FindsNothingOnTheRestOfACurvesCircle) {
  for (const Vec2 local : {Vec2{0.0, 720.0}, Vec2{-311.77, 540.0}, Vec2{-311.77, 180.0},
                           Vec2{-359.9, 361.0}, Vec2{-359.9, 359.0}}) {
    EXPECT_FALSE(HitCurveAt(30.0, local)) << local.x << ", " << local.y;
    EXPECT_FALSE(HitCurveAt(-30.0, {local.x, -local.y})) << local.x << ", " << local.y;
  }
}

// A curve at heading 180 and (1000, 1000): local (x, y) lies at (1000 - x, 1000 - y).
TEST(HitTestPieceShape, FindsATurnedCurve) {
  const Pose turned{1000.0, 1000.0, 180.0};
  EXPECT_TRUE(HitAt("24130", turned, {1000.0 - 195.5423, 1000.0 - 57.7368}));
  EXPECT_FALSE(HitAt("24130", turned, {1000.0 - 196.5973, 1000.0 - 58.4213}));
  EXPECT_FALSE(HitAt("24130", turned, {1195.5423, 1057.7368}));
}

TEST(HitTestPieceShape, TakesACurveWithoutARadiusForAStraight) {
  PieceDef def = makeCurve(TrackSystem::MarklinC, "curve", "", 360.0, 30.0);
  def.radius = 0.0;
  def.length = 100.0;
  EXPECT_TRUE(hitTestPieceShape(Piece{}, def, {104.9, 19.9}));
  EXPECT_FALSE(hitTestPieceShape(Piece{}, def, {105.1, 19.9}));
  EXPECT_FALSE(hitTestPieceShape(Piece{}, def, {90.0, 20.1}));
}

// 24611, left, and 24612, right: 188.3 mm; the branch ends at (180.04, -+38.76).
TEST(HitTestPieceShape, TakesATurnoutForAStraightOfItsLengthWithoutItsBranch) {
  EXPECT_TRUE(HitAt("24611", {180.0, -19.9}));
  EXPECT_TRUE(HitAt("24611", {180.0, 19.9}));
  EXPECT_FALSE(HitAt("24611", {180.04, -38.76}));
  EXPECT_FALSE(HitAt("24612", {180.04, 38.76}));
  EXPECT_FALSE(HitAt("24611", {150.0, -20.1}));
  EXPECT_TRUE(HitAt("24612", {193.2, 0.0}));
  EXPECT_FALSE(HitAt("24612", {193.4, 0.0}));
}

// Curved turnout 24672, 257.5 mm; slip 24624, 188.3 mm; crossing 2258, 90 mm; bumper 24977,
// 48.3 mm.
TEST(HitTestPieceShape, TakesTheOtherKindsForStraightsOfTheirLength) {
  EXPECT_TRUE(HitAt("24672", {262.4, 19.9}));
  EXPECT_FALSE(HitAt("24672", {262.6, 0.0}));
  EXPECT_FALSE(HitAt("24672", {257.5, 48.2}));
  EXPECT_TRUE(HitAt("24624", {193.2, -19.9}));
  EXPECT_FALSE(HitAt("24624", {179.96, 38.74}));
  EXPECT_TRUE(HitAt("2258", {94.9, 19.9}));
  EXPECT_FALSE(HitAt("2258", {76.82, 31.82}));
  EXPECT_TRUE(HitAt("24977", {53.2, 0.0}));
  EXPECT_FALSE(HitAt("24977", {53.4, 0.0}));
}

// 8569 in Z scale: 25 mm, radius 195. The corners of its box lie outside both rings: (-4.9, -11.95)
// is sqrt(24.0 + 42828.3) = 207.008 from (0, 195), and the ring ends at 207.
TEST(HitTestPieceShape, AllowsTheStraightOfAnOuterCurveTurnout5MmAtItsSidesToo) {
  EXPECT_TRUE(HitAt("8569", {-4.9, -11.95}));
  EXPECT_FALSE(HitAt("8569", {-5.1, -11.95}));
  EXPECT_FALSE(HitAt("8569", {-4.9, -12.1}));
  EXPECT_TRUE(HitAt("8568", {-4.9, 11.95}));
  EXPECT_FALSE(HitAt("8568", {-4.9, 12.1}));
}

// 2269: 64.6 mm, radius 360, to the right: rings from 335 to 385 mm about (0, 360) and (64.6, 360).
TEST(HitTestPieceShape, FindsAnOuterCurveTurnoutOnTwoFullCircles) {
  EXPECT_TRUE(HitAt("2269", {-384.9, 360.0}));
  EXPECT_FALSE(HitAt("2269", {-385.1, 360.0}));
  EXPECT_TRUE(HitAt("2269", {449.5, 360.0}));
  EXPECT_FALSE(HitAt("2269", {449.7, 360.0}));
  EXPECT_TRUE(HitAt("2269", {0.0, 744.9}));
  EXPECT_TRUE(HitAt("2269", {30.0, 720.0}));
  EXPECT_FALSE(HitAt("2269", {30.0, 360.0}));
  // 334.9 from the first centre, 270.3 from the second; then 335.1 from the first.
  EXPECT_FALSE(HitAt("2269", {334.9, 360.0}));
  EXPECT_TRUE(HitAt("2269", {335.1, 360.0}));
  // 2268 is its mirror image.
  EXPECT_TRUE(HitAt("2268", {30.0, -720.0}));
  EXPECT_FALSE(HitAt("2268", {30.0, 720.0}));
}

// 74861: 378 / 2 + 10 = 199 mm.
TEST(HitTestPieceShape, FindsATurntableAllOverItsDisc) {
  const Pose pose{1000.0, 1000.0, 77.0};
  EXPECT_TRUE(HitAt("74861", pose, {1000.0, 1000.0}));
  EXPECT_TRUE(HitAt("74861", pose, {1199.0, 1000.0}));
  EXPECT_FALSE(HitAt("74861", pose, {1199.1, 1000.0}));
  EXPECT_TRUE(HitAt("74861", pose, {1000.0, 801.0}));
  EXPECT_FALSE(HitAt("74861", pose, {1000.0, 800.9}));
  // 140.7 and 140.8 both ways: 198.98 and 199.12 mm.
  EXPECT_TRUE(HitAt("74861", pose, {859.3, 1140.7}));
  EXPECT_FALSE(HitAt("74861", pose, {859.2, 1140.8}));
}

TEST(HitTestPieceShape, FindsNothingOnAPieceWithoutAPlace) {
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const char* part : {"24188", "24130", "24611", "2269"}) {
    EXPECT_FALSE(HitAt(part, {0.0, 0.0, nan}, {0.0, 0.0})) << part;
    EXPECT_FALSE(HitAt(part, {0.0, 0.0, inf}, {0.0, 0.0})) << part;
  }
  for (const char* part : {"24188", "24130", "24611", "2269", "74861"}) {
    EXPECT_FALSE(HitAt(part, {nan, 0.0, 0.0}, {0.0, 0.0})) << part;
    EXPECT_FALSE(HitAt(part, {0.0, inf, 0.0}, {0.0, 0.0})) << part;
    EXPECT_FALSE(HitAt(part, {1e300, -1e300, 0.0}, {0.0, 0.0})) << part;
    EXPECT_FALSE(HitAt(part, {0.0, 0.0, 0.0}, {nan, nan})) << part;
  }
  // Turned by any finite angle, its origin stays on it.
  EXPECT_TRUE(HitAt("24130", {5.0, 5.0, 1e300}, {5.0, 5.0}));
  EXPECT_TRUE(HitAt("24188", {5.0, 5.0, -1e300}, {5.0, 5.0}));
}

}  // namespace
}  // namespace vantrel
