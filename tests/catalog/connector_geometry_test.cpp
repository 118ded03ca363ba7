#include "catalog/connector_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

Piece PieceAt(const Pose& pose) {
  Piece piece;
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  return piece;
}

// What normalising means: one full turn at a time.
double TurnByTurn(double degrees) {
  while (degrees < 0.0) degrees += 360.0;
  while (degrees >= 360.0) degrees -= 360.0;
  return degrees;
}

TEST(NormalizeDegrees, Brings360To0AndMinusATenthTo359Point9) {
  EXPECT_EQ(normalizeDegrees(360.0), 0.0);
  EXPECT_DOUBLE_EQ(normalizeDegrees(-0.1), 359.9);
}

TEST(NormalizeDegrees, LeavesWhatLiesInOneTurn) {
  EXPECT_EQ(normalizeDegrees(0.0), 0.0);
  EXPECT_EQ(normalizeDegrees(359.999), 359.999);
  EXPECT_EQ(normalizeDegrees(180.0), 180.0);
}

TEST(NormalizeDegrees, TakesOffWholeTurnsFromBothSides) {
  EXPECT_EQ(normalizeDegrees(1085.0), 5.0);
  EXPECT_EQ(normalizeDegrees(-725.0), 355.0);
  EXPECT_EQ(normalizeDegrees(1e12), 280.0);  // 360 * 2777777777 + 280
  EXPECT_EQ(normalizeDegrees(-1e12), 80.0);
}

TEST(NormalizeDegrees, NeverGives360ForAnAngleJustBelowZero) {
  // -1e-18 + 360 rounds to 360, which is a full turn again.
  EXPECT_EQ(normalizeDegrees(-1e-18), 0.0);
}

TEST(NormalizeDegrees, EqualsTurningStepByStepToTheLastBit) {
  std::mt19937_64 random(7);
  for (double span : {360.0, 1000.0, 1e5, 1e6, 2e7}) {
    std::uniform_real_distribution<double> angles(-span, span);
    for (int i = 0; i < 400; ++i) {
      const double angle = angles(random);
      ASSERT_EQ(normalizeDegrees(angle), TurnByTurn(angle)) << angle;
    }
  }
  for (double angle : {-720.0, -3600000.0, 3600000.0, -359.9999999, 720.0, 719.9999999}) {
    EXPECT_EQ(normalizeDegrees(angle), TurnByTurn(angle)) << angle;
    EXPECT_FALSE(std::signbit(normalizeDegrees(angle))) << angle;
  }
}

TEST(NormalizeDegrees, TerminatesForAnglesThatMeanNothing) {
  EXPECT_EQ(normalizeDegrees(1e300), 0.0);
  EXPECT_EQ(normalizeDegrees(-1e300), 0.0);
  EXPECT_EQ(normalizeDegrees(kInfinity), 0.0);
  EXPECT_EQ(normalizeDegrees(-kInfinity), 0.0);
  EXPECT_EQ(normalizeDegrees(std::nan("")), 0.0);
  const double large = normalizeDegrees(5e16);
  EXPECT_GE(large, 0.0);
  EXPECT_LT(large, 360.0);
}

TEST(PoseForConnector, PutsAStraightAheadOfTheTargetPointingBackAtIt) {
  const PieceDef def = makeStraight(TrackSystem::MarklinC, "s", "", 188.3);
  const Pose pose = poseForConnector(def, 1, {100.0, 0.0, 0.0});
  EXPECT_EQ(pose.heading, 180.0);
  EXPECT_NEAR(pose.x, 288.3, 1e-9);
  EXPECT_NEAR(pose.y, 0.0, 1e-9);
}

TEST(PoseForConnector, GivesTheZeroPoseForAConnectorThatDoesNotExist) {
  const PieceDef def = makeStraight(TrackSystem::MarklinC, "s", "", 188.3);
  EXPECT_EQ(poseForConnector(def, -1, {100.0, 50.0, 30.0}), Pose{});
  EXPECT_EQ(poseForConnector(def, 2, {100.0, 50.0, 30.0}), Pose{});
}

TEST(PoseForConnector, EntersACurveAtItsFarEndAsALeftHandBend) {
  // Entered at connector 1 from (0, 0) heading 0, a 30 degree curve lies with its own origin at
  // its far end. Local connector 1 is (180, 48.2309) heading 30, so the piece turns by
  // 0 + 180 - 30 = 150 degrees and its origin is minus that point turned by 150:
  // 180 cos 150 - 48.2309 sin 150 = -155.8846 - 24.1154 = -180 and
  // 180 sin 150 + 48.2309 cos 150 = 90 - 41.7691 = 48.2309.
  const PieceDef def = makeCurve(TrackSystem::MarklinC, "c", "", 360.0, 30.0);
  const Pose pose = poseForConnector(def, 1, {0.0, 0.0, 0.0});
  EXPECT_NEAR(pose.heading, 150.0, 1e-9);
  EXPECT_NEAR(pose.x, 180.0, 1e-4);
  EXPECT_NEAR(pose.y, -48.2309, 1e-4);
}

TEST(PoseForConnector, ThenWorldConnectorsGivesTheTargetBackTurnedByHalfATurn) {
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> place(-5000.0, 5000.0);
  std::uniform_real_distribution<double> angle(0.0, 360.0);
  for (std::int32_t row = 0; row < catalog().pieceCount(); ++row) {
    const PieceDef& def = *catalog().pieceAt(row);
    for (std::size_t i = 0; i < def.connectors.size(); ++i) {
      const Pose target{place(random), place(random), angle(random)};
      const Pose pose = poseForConnector(def, static_cast<std::int32_t>(i), target);
      const WorldConnector end = worldConnectors(PieceAt(pose), def)[i];
      EXPECT_NEAR(end.x, target.x, 1e-9) << def.partNumber;
      EXPECT_NEAR(end.y, target.y, 1e-9) << def.partNumber;
      EXPECT_NEAR(std::abs(end.heading - target.heading), 180.0, 1e-9) << def.partNumber;
    }
  }
}

TEST(PoseForConnector, OfAWholeHeadingTurnsByExactly180) {
  for (const char* part : {"24188", "24130", "24672", "74861", "2257"}) {
    const PieceDef& def = *findPart(part);
    for (std::size_t i = 0; i < def.connectors.size(); ++i) {
      for (double heading = 0.0; heading < 360.0; heading += 15.0) {
        const Pose pose = poseForConnector(def, static_cast<std::int32_t>(i), {5.0, 7.0, heading});
        const WorldConnector end = worldConnectors(PieceAt(pose), def)[i];
        EXPECT_DOUBLE_EQ(std::abs(end.heading - heading), 180.0) << part << " connector " << i;
      }
    }
  }
}

TEST(WorldConnectors, TurnAndShiftTheLocalOnes) {
  // Local connector 1 of the curve is (180, 48.2309) heading 30. Turned by 90 degrees that is
  // (-48.2309, 180) heading 120.
  const PieceDef def = makeCurve(TrackSystem::MarklinC, "c", "", 360.0, 30.0);
  const std::vector<WorldConnector> ends = worldConnectors(PieceAt({100.0, 200.0, 90.0}), def);
  ASSERT_EQ(ends.size(), 2u);
  EXPECT_EQ(ends[0].connectorIndex, 0);
  EXPECT_NEAR(ends[0].x, 100.0, 1e-9);
  EXPECT_NEAR(ends[0].y, 200.0, 1e-9);
  EXPECT_EQ(ends[0].heading, 270.0);
  EXPECT_EQ(ends[1].connectorIndex, 1);
  EXPECT_NEAR(ends[1].x, 51.7691, 1e-4);
  EXPECT_NEAR(ends[1].y, 380.0, 1e-9);
  EXPECT_NEAR(ends[1].heading, 120.0, 1e-9);
}

TEST(WorldConnectors, ReportConnectorsWithoutASlotAsOpen) {
  const PieceDef& turnout = *findPart("24611");
  Piece piece = PieceAt({});
  piece.joints = {{.target = 5, .tconn = 1}};
  const std::vector<WorldConnector> ends = worldConnectors(piece, turnout);
  ASSERT_EQ(ends.size(), 3u);
  EXPECT_FALSE(ends[0].open);
  EXPECT_TRUE(ends[1].open);
  EXPECT_TRUE(ends[2].open);
}

TEST(WorldConnectors, AreOpenForTheTargetMinusOneOnly) {
  const PieceDef& straight = *findPart("24188");
  Piece piece = PieceAt({});
  piece.joints = {{.target = -1, .tconn = 3}, {.target = -2, .tconn = -1}};
  const std::vector<WorldConnector> ends = worldConnectors(piece, straight);
  EXPECT_TRUE(ends[0].open);
  EXPECT_FALSE(ends[1].open);
}

}  // namespace
}  // namespace vantrel
