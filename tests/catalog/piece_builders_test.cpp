#include "catalog/piece_builders.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

void ExpectConnector(const PieceDef& def, std::size_t i, double x, double y, double heading) {
  ASSERT_LT(i, def.connectors.size());
  const Connector& connector = def.connectors[i];
  EXPECT_NEAR(connector.x, x, 1e-3) << "connector " << i;
  EXPECT_NEAR(connector.y, y, 1e-3) << "connector " << i;
  EXPECT_NEAR(connector.heading, heading, 1e-2) << "connector " << i;
  EXPECT_TRUE(connector.connectable);
  EXPECT_EQ(connector.connectorId, static_cast<std::int32_t>(i));
}

TEST(PieceDef, IsAnEmptyStraightByDefault) {
  const PieceDef def;
  EXPECT_TRUE(def.partNumber.empty());
  EXPECT_TRUE(def.description.empty());
  EXPECT_EQ(static_cast<int>(def.system), 0);
  EXPECT_EQ(static_cast<int>(def.kind), 0);
  EXPECT_EQ(def.length + def.radius + def.angle, 0.0);
  EXPECT_TRUE(def.connectors.empty());
  EXPECT_EQ(def.spareCountA, 1);
  EXPECT_EQ(def.spareCountB, 1);
  EXPECT_FALSE(def.spareFlag || def.isBridge || def.isPaired || def.isRamp);
  EXPECT_TRUE(def.connectorSystems.empty());
}

TEST(MakeStraight, RunsFromTheOriginAlongX) {
  const PieceDef def = makeStraight(TrackSystem::TrixC, "62188", "62188 Straight", 188.3);
  EXPECT_EQ(def.partNumber, "62188");
  EXPECT_EQ(def.description, "62188 Straight");
  EXPECT_EQ(def.system, TrackSystem::TrixC);
  EXPECT_EQ(def.kind, PieceKind::Straight);
  EXPECT_EQ(def.length, 188.3);
  EXPECT_EQ(def.radius, 0.0);
  EXPECT_EQ(def.angle, 0.0);
  EXPECT_EQ(def.connectors.size(), 2u);
  ExpectConnector(def, 0, 0.0, 0.0, 180.0);
  ExpectConnector(def, 1, 188.3, 0.0, 0.0);
}

TEST(MakeCurve, HasTheArcForItsLengthAndNeverTheRadius) {
  const PieceDef def = makeCurve(TrackSystem::MarklinC, "24130", "", 360.0, 30.0);
  EXPECT_EQ(def.kind, PieceKind::Curve);
  EXPECT_NEAR(def.length, 188.4955, 1e-4);  // 60 pi
  EXPECT_EQ(def.radius, 360.0);
  EXPECT_EQ(def.angle, 30.0);
}

TEST(MakeCurve, BendsTowardPositiveY) {
  const PieceDef def = makeCurve(TrackSystem::MarklinC, "24130", "", 360.0, 30.0);
  EXPECT_EQ(def.connectors.size(), 2u);
  ExpectConnector(def, 0, 0.0, 0.0, 180.0);
  // 360 sin 30 and 360 (1 - 0.8660254)
  ExpectConnector(def, 1, 180.0, 48.2309, 30.0);
}

TEST(MakeTurnout, CutsOffABranchThatWouldReachPastItsLength) {
  // 490 sin 13 = 110.226 is more than 110. The clipped arc ends at asin(110 / 490) = 12.97 degrees,
  // 490 (1 - sqrt(1 - 0.0503957)) = 12.5065 to the side.
  const PieceDef left =
      makeTurnout(TrackSystem::MarklinZ, "8562", "", PieceKind::LeftTurnout, 110.0, 490.0, 13.0);
  EXPECT_EQ(left.kind, PieceKind::LeftTurnout);
  EXPECT_EQ(left.length, 110.0);
  EXPECT_EQ(left.radius, 490.0);
  EXPECT_EQ(left.angle, -13.0);
  EXPECT_EQ(left.connectors.size(), 3u);
  ExpectConnector(left, 0, 0.0, 0.0, 180.0);
  ExpectConnector(left, 1, 110.0, 0.0, 0.0);
  ExpectConnector(left, 2, 110.0, -12.5065, 347.027);
  EXPECT_LT(360.0 - left.connectors[2].heading, 13.0);
}

TEST(MakeTurnout, KeepsTheAngleOfABranchThatEndsWithinItsLength) {
  // 424.6 sin 22.5 = 162.487 is less than 168.9; 424.6 (1 - 0.9238795) = 32.3208.
  const PieceDef right =
      makeTurnout(TrackSystem::MarklinK, "2263", "", PieceKind::RightTurnout, 168.9, 424.6, 22.5);
  EXPECT_EQ(right.kind, PieceKind::RightTurnout);
  EXPECT_EQ(right.angle, 22.5);
  ExpectConnector(right, 1, 168.9, 0.0, 0.0);
  ExpectConnector(right, 2, 162.4874, 32.3208, 22.5);
  EXPECT_NEAR(right.connectors[2].heading, 22.5, 1e-9);
}

TEST(MakeTurnout, HasSpareCountsTwoAndOne) {
  const PieceDef def =
      makeTurnout(TrackSystem::MarklinK, "", "", PieceKind::RightTurnout, 168.9, 424.6, 22.5);
  EXPECT_EQ(def.spareCountA, 2);
  EXPECT_EQ(def.spareCountB, 1);
}

TEST(MakeTrackEnd, HasOneConnector) {
  const PieceDef def = makeTrackEnd(TrackSystem::MarklinK, "7389", "7389 Track Bumper", 60.0);
  EXPECT_EQ(def.kind, PieceKind::TrackEnd);
  EXPECT_EQ(def.length, 60.0);
  EXPECT_EQ(def.connectors.size(), 1u);
  ExpectConnector(def, 0, 0.0, 0.0, 180.0);
}

}  // namespace
}  // namespace vantrel
