#include "catalog/routes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

const PieceDef& Part(const std::string& number) {
  return *findPart(number);
}

double Apart(double headingA, double headingB) {
  const double turned = normalizeDegrees(headingA - headingB);
  return std::min(turned, 360.0 - turned);
}

struct Misfit {
  double mm = 0.0;
  double degrees = 0.0;
};

Misfit Between(const Pose& end, double x, double y, double heading) {
  return {std::hypot(end.x - x, end.y - y), Apart(end.heading, heading)};
}

void ForEachWay(const auto& visit) {
  for (std::int32_t row = 0; row < catalog().pieceCount(); ++row) {
    const PieceDef& def = *catalog().pieceAt(row);
    for (std::size_t i = 0; i < WayCount(def); ++i) visit(def, i, WayOf(def, i));
  }
}

TEST(Ways, StartAtTheirConnectorHeadingInward) {
  ForEachWay([](const PieceDef& def, std::size_t i, const Way& way) {
    ASSERT_GE(way.from, 0) << def.partNumber << " way " << i;
    const Connector& from = def.connectors[static_cast<std::size_t>(way.from)];
    const Misfit misfit = Between(way.at(0.0), from.x, from.y, from.heading + 180.0);
    EXPECT_LT(misfit.mm, 1e-9) << def.partNumber << " way " << i;
    EXPECT_LT(misfit.degrees, 0.01) << def.partNumber << " way " << i;
  });
}

// The catalog's connectors are rounded to 0.01 mm, and some rows disagree with their own radius:
// the long arcs of the slim pieces, the crossing of the Z slip, and most of all the slim K slip.
TEST(Ways, EndAtTheirConnectorHeadingOutwardAsFarAsTheCatalogsFiguresAgree) {
  const std::map<std::string, double> looser = {
      {"24711", 0.17}, {"24712", 0.17}, {"24720", 0.17}, {"8560", 0.34}, {"2275", 1.40}};
  ForEachWay([&](const PieceDef& def, std::size_t i, const Way& way) {
    if (way.to < 0) return;
    const Connector& to = def.connectors[static_cast<std::size_t>(way.to)];
    const Misfit misfit = Between(way.at(way.length()), to.x, to.y, to.heading);
    const auto found = looser.find(def.partNumber);
    EXPECT_LT(misfit.mm, found == looser.end() ? 0.04 : found->second)
        << def.partNumber << " way " << i;
    EXPECT_LT(misfit.degrees, 0.01) << def.partNumber << " way " << i;
  });
}

void ExpectAt(const Way& way, double distance, const Pose& expected) {
  const Pose pose = way.at(distance);
  EXPECT_NEAR(pose.x, expected.x, 5e-4);
  EXPECT_NEAR(pose.y, expected.y, 5e-4);
  EXPECT_NEAR(pose.heading, expected.heading, 5e-4);
}

// 360 mm over 30 degrees: 188.4956 mm. Half way, at 15 degrees, x is 360 sin 15 = 93.1749 and y
// 360 (1 - cos 15) = 12.2667.
TEST(Ways, ACurveBendsToTheRightOverItsArc) {
  const Way way = WayOf(Part("24130"), 0);
  EXPECT_NEAR(way.length(), 188.4956, 5e-4);
  ExpectAt(way, 94.2478, {93.1749, 12.2667, 15.0});
}

// The same arc to the left, 77.5 mm further on.
TEST(Ways, ACurvedTurnoutsOuterCurveFollowsAStraightLead) {
  const PieceDef& def = Part("24671");
  ASSERT_EQ(WayCount(def), 2U);
  ExpectAt(WayOf(def, 0), 94.2478, {93.1749, -12.2667, 345.0});
  const Way outer = WayOf(def, 1);
  EXPECT_NEAR(outer.length(), 265.9956, 5e-4);
  ExpectAt(outer, 50.0, {50.0, 0.0, 0.0});
  ExpectAt(outer, 171.7478, {170.6749, -12.2667, 345.0});
}

// asin(110 / 490) is 12.97288 degrees, 0.2264194 of a radian: 110.9455 mm, and not the 111.1775 of
// 13 degrees.
TEST(Ways, AShortTurnoutsBranchEndsWhereItsStraightEnds) {
  const Way branch = WayOf(Part("8563"), 1);
  EXPECT_NEAR(branch.length(), 110.9455, 5e-4);
  ExpectAt(branch, branch.length(), {110.0, 12.5065, 12.9729});
}

TEST(Ways, AThreeWayTurnoutBranchesToTheRightAndThenToTheLeft) {
  const PieceDef& def = Part("24630");
  ASSERT_EQ(WayCount(def), 3U);
  EXPECT_EQ(WayOf(def, 1).to, 2);
  EXPECT_EQ(WayOf(def, 1).parts[0].sweep, 24.3);
  EXPECT_EQ(WayOf(def, 2).to, 3);
  EXPECT_EQ(WayOf(def, 2).parts[0].sweep, -24.3);
}

// It is listed with the angle of the left one, yet its branch lies to the right.
TEST(Ways, TheSlimRightTurnoutBranchesToTheRightWhateverItsAngleSays) {
  EXPECT_EQ(WayOf(Part("24712"), 1).parts[0].sweep, 12.1);
  EXPECT_EQ(BendSide(Part("24712")), -1.0);
  EXPECT_EQ(SideOfConnector(Part("24712"), 2), 1.0);
}

TEST(Ways, ADoubleSlipJoinsBothEndsOfOneSideWithBothOfTheOther) {
  const PieceDef& def = Part("24624");
  ASSERT_EQ(WayCount(def), 4U);
  const std::pair<int, int> expected[] = {{0, 1}, {2, 3}, {0, 3}, {2, 1}};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(WayOf(def, i).from, expected[i].first);
    EXPECT_EQ(WayOf(def, i).to, expected[i].second);
  }
}

TEST(Ways, ACrossingHasTwoThatDontMeet) {
  const PieceDef& def = Part("24640");
  ASSERT_EQ(WayCount(def), 2U);
  EXPECT_EQ(WayOf(def, 1).from, 2);
  EXPECT_EQ(WayOf(def, 1).to, 3);
  // From (8.34, -38.74) to (179.96, 38.74): the root of 171.62 squared and 77.48 squared.
  EXPECT_NEAR(WayOf(def, 1).length(), 188.2992, 5e-4);
}

// 139 mm from the rim to the centre, and 139 to the other side; 12 degrees between connectors.
TEST(Ways, ATurntableHasOneForEachPairOfOppositeConnectors) {
  const PieceDef& def = Part("74861");
  ASSERT_EQ(WayCount(def), 15U);
  const Way way = WayOf(def, 5);
  EXPECT_EQ(way.from, 5);
  EXPECT_EQ(way.to, 20);
  EXPECT_NEAR(way.length(), 278.0, 1e-9);
  ExpectAt(way, 139.0, {0.0, 0.0, 240.0});
}

TEST(Ways, EndInsideABufferStopAndAnAdapterToAnotherSystem) {
  EXPECT_EQ(WayOf(Part("24977"), 0).to, -1);
  EXPECT_NEAR(WayOf(Part("24977"), 0).length(), 48.3, 1e-9);
  EXPECT_EQ(WayOf(Part("24951"), 0).to, -1);
}

// The slow way: 20,000 small steps along the heading.
TEST(Ways, AreWhereSmallStepsAlongTheirHeadingLead) {
  ForEachWay([](const PieceDef& def, std::size_t i, const Way& way) {
    constexpr int kSteps = 20000;
    const double step = way.length() / kSteps;
    Pose pose = way.at(0.0);
    Vec2 at{pose.x, pose.y};
    for (int k = 0; k < kSteps; ++k) {
      const double heading = Radians(way.at((k + 0.5) * step).heading);
      at = {at.x + step * std::cos(heading), at.y + step * std::sin(heading)};
    }
    const Pose end = way.at(way.length());
    EXPECT_LT(std::hypot(at.x - end.x, at.y - end.y), 1e-4) << def.partNumber << " way " << i;
  });
}

TEST(Ways, GoOnStraightOrBendingBeyondTheirEnds) {
  ExpectAt(WayOf(Part("24188"), 0), 200.0, {200.0, 0.0, 0.0});
  ExpectAt(WayOf(Part("24188"), 0), -10.0, {-10.0, 0.0, 0.0});
}

TEST(Ways, OfACurveWithoutARadiusAreStraight) {
  const PieceDef def = makeCurve(TrackSystem::MarklinC, "x", "x", 0.5, 30.0);
  EXPECT_FALSE(WayOf(def, 0).parts[0].isArc());
}

}  // namespace
}  // namespace vantrel
