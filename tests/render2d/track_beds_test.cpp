#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

#include "catalog/track_catalog.h"
#include "tests/render2d/track_test_support.h"

namespace vantrel {
namespace {

PieceDef StraightOf(TrackSystem system, double length) {
  return makeStraight(system, "straight", "", length);
}

PieceDef ZCurve(double radius, double angle) {
  return makeCurve(TrackSystem::MarklinZ, "curve", "", radius, angle);
}

wxPoint OuterEnd(const Points& points) {
  return points[points.size() / 2 - 1];
}

TEST(StraightBed, RunsFromTheRightCornerOfItsStartRoundToTheRightCornerOfItsEnd) {
  // Half of a Z bed is 6 mm: (0, 6), (0, -6), (100, -6), (100, 6), all plus 1000.5 and truncated.
  const PieceDef def = StraightOf(TrackSystem::MarklinZ, 100.0);
  EXPECT_EQ(StraightBedPolygon({}, def, kPlainView),
            (Points{{1000, 1006}, {1000, 994}, {1100, 994}, {1100, 1006}}));
}

TEST(StraightBed, TurnsClockwiseWithTheHeading) {
  // Heading 90 points down the screen, and the piece's right is the screen's left.
  const PieceDef def = StraightOf(TrackSystem::MarklinZ, 100.0);
  EXPECT_EQ(StraightBedPolygon({50.0, 20.0, 90.0}, def, kPlainView),
            (Points{{1044, 1020}, {1056, 1020}, {1056, 1120}, {1044, 1120}}));
}

TEST(StraightBed, TruncatesDevicePointsTowardZero) {
  // y is +-18.7 * 0.5 = +-9.35, x is 25 * 0.5 = 12.5.
  const PieceDef def = StraightOf(TrackSystem::MarklinC, 25.0);
  EXPECT_EQ(StraightBedPolygon({}, def, {0.5, 0.0, 0.0}),
            (Points{{0, 9}, {0, -9}, {12, -9}, {12, 9}}));
}

TEST(BedWidth, MarklinZPiecesAre12MmWideAndPiecesOfEveryOtherSystem37Point4) {
  const ViewTransform tenPerMm{10.0, 1000.5, 1000.5};
  const auto widthOf = [&](TrackSystem system) {
    const std::vector<DrawCall> calls = PlainCalls(StraightOf(system, 100.0), {}, tenPerMm);
    return calls.at(0).points[0].y - calls.at(0).points[1].y;
  };
  EXPECT_EQ(widthOf(TrackSystem::MarklinZ), 120);
  for (const TrackSystem system : {TrackSystem::MarklinC, TrackSystem::MarklinK, TrackSystem::TrixC,
                                   TrackSystem{4}, TrackSystem{-1}})
    EXPECT_EQ(widthOf(system), 374) << static_cast<int>(system);
}

TEST(ArcBed, ACurveOf7Point5DegreesHas34PointsAndOneOf30Has42) {
  EXPECT_EQ(ArcBedPolygon({}, ZCurve(360.0, 7.5), kPlainView, 1).size(), 34u);
  EXPECT_EQ(ArcBedPolygon({}, ZCurve(360.0, 30.0), kPlainView, 1).size(), 42u);
  EXPECT_EQ(PlainCalls(ZCurve(360.0, 30.0)).at(0).points.size(), 42u);
}

TEST(ArcBed, HasSixteenSegmentsUpTo25Point5DegreesAndThenOnePer1Point5) {
  EXPECT_EQ(ArcBedPolygon({}, ZCurve(360.0, 25.4), kPlainView, 1).size(), 34u);
  EXPECT_EQ(ArcBedPolygon({}, ZCurve(360.0, 25.5), kPlainView, 1).size(), 36u);
  EXPECT_EQ(ArcBedPolygon({}, ZCurve(360.0, -90.0), kPlainView, 1).size(), 122u);
}

TEST(ArcBed, RunsAlongTheOuterEdgeToTheEndAndBackAlongTheInnerOne) {
  // Centre (0, 100), radii 106 and 94, 60 segments.
  const Points points = ArcBedPolygon({}, ZCurve(100.0, 90.0), kPlainView, 1);
  ASSERT_EQ(points.size(), 122u);
  EXPECT_EQ(points[0], wxPoint(1000, 994));    // (0, 100 - 106)
  EXPECT_EQ(points[30], wxPoint(1075, 1025));  // 45 degrees: (74.95, 100 - 74.95)
  EXPECT_EQ(points[60], wxPoint(1106, 1100));
  EXPECT_EQ(points[61], wxPoint(1094, 1100));
  EXPECT_EQ(points[91], wxPoint(1066, 1034));  // 45 degrees: (66.47, 100 - 66.47)
  EXPECT_EQ(points[121], wxPoint(1000, 1006));
}

TEST(ArcBed, ANegativeSweepBendsToTheLeft) {
  // Centre (0, -100): the outer edge lies to the right of the start.
  const Points points = ArcBedPolygon({}, ZCurve(100.0, -90.0), kPlainView, 1);
  ASSERT_EQ(points.size(), 122u);
  EXPECT_EQ(points[0], wxPoint(1000, 1006));
  EXPECT_EQ(points[60], wxPoint(1106, 900));
  EXPECT_EQ(points[61], wxPoint(1094, 900));
  EXPECT_EQ(points[121], wxPoint(1000, 994));
}

TEST(ArcBed, ASweepOfNothingAndAVerySmallOneCountAsBentToTheRight) {
  for (const double sweep : {0.0, 0.5}) {
    const Points points = ArcBedPolygon({}, ZCurve(100.0, sweep), kPlainView, 1);
    ASSERT_EQ(points.size(), 34u);
    EXPECT_EQ(points[0], wxPoint(1000, 994)) << sweep;
    EXPECT_EQ(points[33], wxPoint(1000, 1006)) << sweep;
  }
}

TEST(ArcBed, StandsAtItsPose) {
  // Turned by 90 degrees a local (lx, ly) lies at (200 - ly, 300 + lx): the outer end (106, 100)
  // at (100, 406).
  const Points points = ArcBedPolygon({200.0, 300.0, 90.0}, ZCurve(100.0, 90.0), kPlainView, 1);
  EXPECT_EQ(points[0], wxPoint(1206, 1300));
  EXPECT_EQ(OuterEnd(points), wxPoint(1100, 1406));
}

TEST(ArcBed, ACurveWithARadiusBelow1MmIsAStraightBedOfItsLength) {
  PieceDef def = ZCurve(0.99, 30.0);
  def.length = 80.0;
  const Points straight{{1000, 1006}, {1000, 994}, {1080, 994}, {1080, 1006}};
  EXPECT_EQ(ArcBedPolygon({}, def, kPlainView, 1), straight);
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(OpsOf(calls), std::vector<DrawOp>{DrawOp::polygon});
  EXPECT_EQ(calls[0].points, straight);

  def.radius = 1.0;
  EXPECT_EQ(ArcBedPolygon({}, def, kPlainView, 1).size(), 42u);
}

TEST(Branch, IsCutWhereItWouldRunPastTheTurnoutsLength) {
  // asin(110 / 490) = 12.972 degrees instead of 13. The outer end lies at
  // (496 * 110 / 490, 490 - 496 * cos 12.972) = (111.35, 6.66); uncut x would be 111.58.
  const PieceDef right =
      makeTurnout(TrackSystem::MarklinZ, "right", "", PieceKind::RightTurnout, 110.0, 490.0, 13.0);
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, right, kPlainView, 2)), wxPoint(1111, 1007));
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, right, kPlainView, 1)), wxPoint(1112, 1007));
  const PieceDef left =
      makeTurnout(TrackSystem::MarklinZ, "left", "", PieceKind::LeftTurnout, 110.0, 490.0, 13.0);
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, left, kPlainView, 2)), wxPoint(1111, 993));
}

TEST(Branch, IsNotCutWhereTheTurnoutIsLongerThanItsRadius) {
  // Beyond the radius every angle up to 90 degrees fits. The outer end at 60 degrees:
  // (106 * 0.866, 100 - 53) = (91.8, 47).
  const PieceDef def =
      makeTurnout(TrackSystem::MarklinZ, "t", "", PieceKind::RightTurnout, 150.0, 100.0, 60.0);
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1092, 1047));
}

TEST(Branch, IsCutFromARadiusAbove1MmOn) {
  PieceDef def = Sketch(PieceKind::RightTurnout, 3);
  def.system = TrackSystem::MarklinZ;
  def.length = 0.5;
  def.angle = 60.0;
  // Uncut, 60 degrees of the outer radius 7: (6.06, 1 - 3.5 = -2.5).
  def.radius = 1.0;
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1006, 998));
  // Cut at asin(0.5 / 1.01) = 29.67 degrees of 7.01: (3.47, 1.01 - 6.09 = -5.08).
  def.radius = 1.01;
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1003, 995));
}

TEST(Branch, KeepsItsAngleWhereTheTurnoutIsLongEnough) {
  // The outer end at 30 degrees: (106 * 0.5, 100 - 106 * 0.866) = (53, 8.2).
  const PieceDef def =
      makeTurnout(TrackSystem::MarklinZ, "t", "", PieceKind::RightTurnout, 60.0, 100.0, 30.0);
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1053, 1008));
}

TEST(Branch, OfARightTurnoutBendsRightWhateverTheSignOfItsAngle) {
  PieceDef def =
      makeTurnout(TrackSystem::MarklinZ, "t", "", PieceKind::RightTurnout, 60.0, 100.0, 30.0);
  const Points right = ArcBedPolygon({}, def, kPlainView, 2);
  def.angle = -30.0;
  EXPECT_EQ(ArcBedPolygon({}, def, kPlainView, 2), right);
}

TEST(Branch, IsNotCutWithoutALengthNorForOtherKinds) {
  // The outer end at 60 degrees: (106 * 0.866, 100 - 53) = (91.8, 47).
  PieceDef def =
      makeTurnout(TrackSystem::MarklinZ, "t", "", PieceKind::RightTurnout, 50.0, 100.0, 60.0);
  def.length = 0.0;
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1092, 1047));
  def.length = 50.0;
  def.kind = PieceKind::CurvedTurnout;
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1092, 1047));
}

TEST(Branch, TheOtherOneOfAThreeWayTurnoutBendsLeftAndIsNotCut) {
  PieceDef def = Sketch(PieceKind::LeftTurnout, 4);
  def.system = TrackSystem::MarklinZ;
  def.length = 50.0;
  def.radius = 100.0;
  def.angle = 60.0;
  // Cut at asin(50 / 100) = 30 degrees: (53, 100 - 91.8 = 8.2).
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 2)), wxPoint(1053, 1008));
  // The whole 60 degrees to the left: (91.8, 53 - 100 = -47).
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 3)), wxPoint(1092, 953));
  def.connectors.pop_back();
  EXPECT_EQ(OuterEnd(ArcBedPolygon({}, def, kPlainView, 3)), wxPoint(1092, 1047));
}

TEST(FillBed, DrawsOneClosedPolygonWithSolidBrushAndPen) {
  RecordingDC dc;
  const Points triangle{{1, 2}, {3, 4}, {5, 7}};
  FillBedPolygon(dc, triangle, wxColour(1, 2, 3), wxColour(4, 5, 6), 2);
  ASSERT_EQ(dc.calls().size(), 1u);
  EXPECT_EQ(dc.calls()[0].op, DrawOp::polygon);
  EXPECT_EQ(dc.calls()[0].points, triangle);
  EXPECT_EQ(dc.calls()[0].brush, SolidBrush({1, 2, 3}));
  EXPECT_EQ(dc.calls()[0].pen, SolidPen({4, 5, 6}, 2));
}

TEST(FillBed, LeavesOutWhatHasFewerThanThreePoints) {
  RecordingDC dc;
  FillBedPolygon(dc, {}, *wxRED, *wxRED, 1);
  FillBedPolygon(dc, {{1, 1}, {2, 2}}, *wxRED, *wxRED, 1);
  EXPECT_TRUE(dc.calls().empty());
}

// Every coordinate that a call hands to the toolkit stays where sums of them can't overflow.
void ExpectSaneCoordinates(const std::vector<DrawCall>& calls, const std::string& what) {
  EXPECT_FALSE(calls.empty()) << what;
  for (const DrawCall& call : calls)
    for (const wxPoint& point : call.points) {
      // Half a label more than the limit.
      EXPECT_LE(std::abs(point.x), kDeviceLimit + 100000) << what;
      EXPECT_LE(std::abs(point.y), kDeviceLimit + 100000) << what;
    }
}

TEST(TrackDrawing, EveryCatalogRowSurvivesPosesAndScalesThatMakeNoSense) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    for (const double bad : {nan, infinite, -infinite, 1e300, -1e300, 3e9}) {
      for (const Pose& pose :
           {Pose{bad, 0.0, 0.0}, Pose{0.0, bad, 0.0}, Pose{0.0, 0.0, bad}, Pose{bad, bad, bad}}) {
        ExpectSaneCoordinates(PlainCalls(def, pose), def.partNumber);
        ExpectSaneCoordinates(GhostCalls(def, pose), def.partNumber);
      }
      ExpectSaneCoordinates(LabelledCalls(def, {bad, 0.0, 0.0}), def.partNumber);
      ExpectSaneCoordinates(LabelledCalls(def, {1.0, bad, bad}), def.partNumber);
    }
  }
}

TEST(TrackDrawing, ASweepThatMakesNoSenseHasABoundedNumberOfPoints) {
  for (const double sweep : {1e300, -1e300, std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
    PieceDef def = ZCurve(100.0, 30.0);
    def.angle = sweep;
    const std::size_t count = ArcBedPolygon({}, def, kPlainView, 1).size();
    EXPECT_GE(count, 34u);
    EXPECT_LE(count, 10000u);
  }
}

TEST(TrackDrawing, APieceLooksTheSameWhateverWasDrawnBefore) {
  std::vector<std::vector<DrawCall>> first;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
    first.push_back(PlainCalls(*catalog().pieceAt(i)));
  for (std::int32_t i = catalog().pieceCount() - 1; i >= 0; --i)
    EXPECT_EQ(PlainCalls(*catalog().pieceAt(i)), first[static_cast<std::size_t>(i)]) << i;
}

}  // namespace
}  // namespace vantrel
