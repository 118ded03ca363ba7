// What a rubber band selects, and the centre lines that it goes by.
#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/joining.h"
#include "canvas/operations/selection.h"
#include "catalog/piece_builders.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// A pixel is a millimetre.
constexpr ViewTransform kPixelPerMm{.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};

// Whether a band selects this one piece.
bool Touches(std::string_view part, const Pose& pose, DevicePoint from, DevicePoint to) {
  Layout layout;
  LayPiece(layout, part, pose);
  selectInBand(layout, kPixelPerMm, from, to);
  return layout.pieces[0].sel;
}

void StandScenery(Layout& layout, std::string_view key, double x, double y,
                  std::int32_t level = 1) {
  SceneryItem item;
  item.id = TakeId(layout);
  item.item = std::string(key);
  item.x = x;
  item.y = y;
  item.level = level;
  layout.scenery.push_back(item);
}

void ExpectScreenPoint(Vec2 point, double x, double y) {
  EXPECT_NEAR(point.x, x, 0.01);
  EXPECT_NEAR(point.y, y, 0.01);
}

// The straight lies across the band at y 50 and ends outside it on both sides.
TEST(SelectInBand, TakesABandOf4By100PixelsAndRefusesOneOf4By4) {
  Layout layout;
  LayPiece(layout, "24188", {50.0, 50.0, 0.0});
  EXPECT_FALSE(selectInBand(layout, kPixelPerMm, {100, 48}, {104, 52}));
  EXPECT_FALSE(layout.pieces[0].sel);
  EXPECT_TRUE(selectInBand(layout, kPixelPerMm, {100, 0}, {104, 100}));
  EXPECT_TRUE(layout.pieces[0].sel);
}

TEST(SelectInBand, TakesABandOf5PixelsOneWay) {
  EXPECT_TRUE(Touches("24188", {50.0, 50.0, 0.0}, {100, 50}, {105, 50}));
  EXPECT_FALSE(Touches("24188", {50.0, 50.0, 0.0}, {100, 50}, {104, 54}));
  EXPECT_TRUE(Touches("24188", {50.0, 50.0, 0.0}, {100, 50}, {100, 55}));
}

TEST(SelectInBand, TakesTheCornersInAnyOrder) {
  const Pose pose{50.0, 50.0, 0.0};
  EXPECT_TRUE(Touches("24188", pose, {100, 0}, {110, 100}));
  EXPECT_TRUE(Touches("24188", pose, {110, 100}, {100, 0}));
  EXPECT_TRUE(Touches("24188", pose, {100, 100}, {110, 0}));
  EXPECT_TRUE(Touches("24188", pose, {110, 0}, {100, 100}));
}

// A straight from pixel (100, 100) to (288, 100).
TEST(SelectInBand, CountsItsBorders) {
  const Pose pose{100.0, 100.0, 0.0};
  EXPECT_TRUE(Touches("24188", pose, {50, 50}, {100, 100}));
  EXPECT_FALSE(Touches("24188", pose, {50, 50}, {99, 100}));
  EXPECT_FALSE(Touches("24188", pose, {50, 50}, {100, 99}));
  EXPECT_TRUE(Touches("24188", pose, {288, 100}, {300, 150}));
  EXPECT_FALSE(Touches("24188", pose, {289, 100}, {300, 150}));
  EXPECT_FALSE(Touches("24188", pose, {288, 101}, {300, 150}));
}

// A straight of 360 mm at 45 degrees: the diagonal from (0, 0) to (254, 254).
TEST(SelectInBand, CutsASlantingLineThatHasNoEndInIt) {
  const Pose pose{0.0, 0.0, 45.0};
  EXPECT_TRUE(Touches("24360", pose, {90, 80}, {120, 110}));
  EXPECT_TRUE(Touches("24360", pose, {100, 50}, {150, 100})) << "the corner (100, 100)";
  EXPECT_FALSE(Touches("24360", pose, {101, 50}, {150, 100})) << "above the line";
  EXPECT_TRUE(Touches("24360", pose, {50, 100}, {100, 150})) << "the corner (100, 100)";
  EXPECT_FALSE(Touches("24360", pose, {50, 101}, {100, 150})) << "below the line";
  EXPECT_FALSE(Touches("24360", pose, {260, 200}, {300, 300})) << "beyond its end";
}

TEST(SelectInBand, PaysNoHeedToTheWidthOfAPiece) {
  EXPECT_FALSE(Touches("24188", {100.0, 100.0, 0.0}, {120, 101}, {200, 119}));
}

// The arc of a 24130 passes (93.2, 12.3) and ends at (180, 48.2); the chord passes (90, 24.1).
TEST(SelectInBand, GoesByTheArcOfACurve) {
  EXPECT_TRUE(Touches("24130", {}, {85, 8}, {100, 16}));
  EXPECT_TRUE(Touches("24130", {}, {175, 45}, {185, 52}));
  EXPECT_FALSE(Touches("24130", {}, {80, 20}, {100, 30}));
}

// The branch of a 24611 ends at (180, -38.8), its straight route at (188.3, 0).
TEST(SelectInBand, GoesByTheBranchOfATurnoutAndNotByItsStraightRoute) {
  EXPECT_TRUE(Touches("24611", {}, {172, -45}, {186, -30}));
  EXPECT_FALSE(Touches("24611", {}, {172, -5}, {195, 5}));
}

// 24640: a straight of 188.3, connector 2 at (8.3, -38.7), connector 3 at (180, 38.7).
TEST(SelectInBand, GoesByTheLineToConnector2OfACrossingButNotByConnector3) {
  EXPECT_TRUE(Touches("24640", {}, {150, -5}, {160, 5}));
  EXPECT_TRUE(Touches("24640", {}, {2, -45}, {12, -30}));
  EXPECT_FALSE(Touches("24640", {}, {150, 20}, {200, 50}));
}

TEST(SelectInBand, TakesThePlanThroughTheView) {
  // The line lies at y 40 + 0.5 * 200 = 140, from x 60 + 150 to 60 + 244.
  constexpr ViewTransform view{.scale = 0.5, .offsetX = 60.0, .offsetY = 40.0};
  Layout layout;
  LayPiece(layout, "24188", {300.0, 200.0, 0.0});
  selectInBand(layout, view, {200, 100}, {304, 139});
  EXPECT_FALSE(layout.pieces[0].sel);
  selectInBand(layout, view, {304, 140}, {310, 150});
  EXPECT_TRUE(layout.pieces[0].sel);
}

TEST(SelectInBand, LeavesHiddenAndUnknownPiecesAlone) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  LayPiece(layout, "24188", {50.0, 50.0, 0.0});
  layout.pieces[0].level = 2;
  LayPiece(layout, "no such part", {50.0, 50.0, 0.0});
  LayPiece(layout, "24188", {50.0, 50.0, 0.0});
  layout.pieces[2].level = 9;
  selectInBand(layout, kPixelPerMm, {0, 0}, {400, 400});
  EXPECT_FALSE(layout.pieces[0].sel);
  EXPECT_FALSE(layout.pieces[1].sel);
  EXPECT_TRUE(layout.pieces[2].sel) << "level 9 doesn't exist";
}

TEST(SelectInBand, TakesSceneryByItsPosition) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  StandScenery(layout, "platform", 100.0, 100.0);
  StandScenery(layout, "platform", 200.9, 150.9);  // pixel (200, 150)
  StandScenery(layout, "platform", 201.0, 150.0);
  StandScenery(layout, "platform", 99.0, 100.0);
  StandScenery(layout, "platform", 150.0, 120.0, 2);
  StandScenery(layout, "no such item", 150.0, 120.0);
  selectInBand(layout, kPixelPerMm, {100, 100}, {200, 150});
  EXPECT_TRUE(layout.scenery[0].sel);
  EXPECT_TRUE(layout.scenery[1].sel);
  EXPECT_FALSE(layout.scenery[2].sel);
  EXPECT_FALSE(layout.scenery[3].sel) << "its footprint reaches into the band";
  EXPECT_FALSE(layout.scenery[4].sel) << "hidden";
  EXPECT_TRUE(layout.scenery[5].sel) << "unknown to the catalog, but it has a position";
}

TEST(SelectInBand, SelectsWholeHelicesButNoNeighboursOfATurntable) {
  Layout layout;
  const std::int32_t table = LayPiece(layout, "74861", {});
  const std::int32_t spoke = LayPiece(layout, "74871", {139.0, 0.0, 0.0});
  joinPieces(layout, table, 0, spoke, 0);
  LayPiece(layout, "24188", {0.0, 5.0, 180.0});
  LayPiece(layout, "24188", {0.0, 5000.0, 0.0});
  layout.pieces[2].helix = 70;
  layout.pieces[3].helix = 70;
  selectInBand(layout, kPixelPerMm, {-10, -10}, {10, 10});
  EXPECT_TRUE(layout.pieces[0].sel);
  EXPECT_FALSE(layout.pieces[1].sel);
  EXPECT_TRUE(layout.pieces[2].sel);
  EXPECT_TRUE(layout.pieces[3].sel);
}

TEST(SelectInBand, AddsToWhatIsSelected) {
  Layout layout;
  LayPiece(layout, "24188", {5000.0, 0.0, 0.0});
  layout.pieces[0].sel = true;
  selectInBand(layout, kPixelPerMm, {0, 0}, {10, 10});
  EXPECT_TRUE(layout.pieces[0].sel);
}

TEST(SelectInBand, SurvivesAnyNumbers) {
  const double wild[] = {0.0,
                         -1.0,
                         1e300,
                         -1e300,
                         std::numeric_limits<double>::quiet_NaN(),
                         std::numeric_limits<double>::infinity()};
  constexpr int kLow = std::numeric_limits<int>::min();
  constexpr int kHigh = std::numeric_limits<int>::max();
  for (const double a : wild) {
    for (const double b : wild) {
      Layout layout;
      for (const char* part : {"24188", "24130", "24611", "74861", "24640"})
        LayPiece(layout, part, {a, b, a});
      StandScenery(layout, "platform", a, b);
      const ViewTransform view{.scale = b, .offsetX = a, .offsetY = b};
      EXPECT_FALSE(selectInBand(layout, view, {kHigh, kLow}, {kHigh, kLow}));
      EXPECT_FALSE(layout.pieces[0].sel);
      EXPECT_TRUE(selectInBand(layout, view, {kLow, kHigh}, {kHigh, kLow}));
      for (const Piece& piece : layout.pieces) EXPECT_TRUE(piece.sel);
      EXPECT_TRUE(layout.scenery[0].sel);
    }
  }
}

TEST(PieceOutlineSegments, AreALineAlongTheHeadingForAStraight) {
  Piece piece;
  piece.x = 100.0;
  piece.y = 50.0;
  piece.heading = 90.0;
  const auto lines = pieceOutlineSegments(piece, *findPart("24188"));
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].size(), 2u);
  ExpectScreenPoint(lines[0][0], 100.0, 50.0);
  ExpectScreenPoint(lines[0][1], 100.0, 238.3);
}

// 24130 turned by 90 degrees: local (x, y) lies at (-y, x). After 15 of the 30 degrees
// 360 * sin 15 = 93.175 and 360 * (1 - cos 15) = 12.267, at the end 180 and 48.231.
TEST(PieceOutlineSegments, AreAnArcOfSixStepsAtLeast) {
  Piece piece;
  piece.heading = 90.0;
  const auto lines = pieceOutlineSegments(piece, *findPart("24130"));
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].size(), 7u);
  ExpectScreenPoint(lines[0][0], 0.0, 0.0);
  ExpectScreenPoint(lines[0][3], -12.267, 93.175);
  ExpectScreenPoint(lines[0][6], -48.231, 180.0);
  EXPECT_EQ(pieceOutlineSegments(piece, *findPart("24107"))[0].size(), 7u) << "7.5 degrees";
}

// 45 / 5 = 9 steps; 59.9 / 5 is cut to 11.
TEST(PieceOutlineSegments, TakeAStepForEvery5Degrees) {
  EXPECT_EQ(pieceOutlineSegments(Piece{}, *findPart("2210"))[0].size(), 10u);
  const PieceDef wide = makeCurve(TrackSystem::MarklinC, "wide", "", 100.0, 59.9);
  EXPECT_EQ(pieceOutlineSegments(Piece{}, wide)[0].size(), 12u);
}

// 437.5 * sin 24.3 = 180.04, 437.5 * (1 - cos 24.3) = 38.76; halfway, at 12.15 degrees, 92.08 and
// 9.80.
TEST(PieceOutlineSegments, AreTheArcAndTheLineToTheBranchForATurnout) {
  for (const double side : {-1.0, 1.0}) {
    const auto lines = pieceOutlineSegments(Piece{}, *findPart(side < 0.0 ? "24611" : "24612"));
    ASSERT_EQ(lines.size(), 2u);
    ASSERT_EQ(lines[0].size(), 7u);
    ExpectScreenPoint(lines[0][3], 92.08, side * 9.80);
    ExpectScreenPoint(lines[0][6], 180.04, side * 38.76);
    ASSERT_EQ(lines[1].size(), 2u);
    ExpectScreenPoint(lines[1][0], 0.0, 0.0);
    ExpectScreenPoint(lines[1][1], 180.04, side * 38.76);
  }
}

TEST(PieceOutlineSegments, UseNoConnectorBeyondConnector2) {
  const auto lines = pieceOutlineSegments(Piece{}, *findPart("24640"));
  ASSERT_EQ(lines.size(), 2u);
  ExpectScreenPoint(lines[0][1], 188.3, 0.0);
  ExpectScreenPoint(lines[1][1], 8.34, -38.74);
}

// Radius 139 and 12 degrees: 139 * sin 12 = 28.90, 139 * (1 - cos 12) = 3.04. An odd pair of lines,
// but no other.
TEST(PieceOutlineSegments, TakeATurntableForACurveOfItsStep) {
  const PieceDef& def = *findPart("74861");
  const auto lines = pieceOutlineSegments(Piece{}, def);
  ASSERT_EQ(lines.size(), 2u);
  ASSERT_EQ(lines[0].size(), 7u);
  ExpectScreenPoint(lines[0][0], 0.0, 0.0);
  ExpectScreenPoint(lines[0][6], 28.90, 3.04);
  ExpectScreenPoint(lines[1][0], 0.0, 0.0);
  ExpectScreenPoint(lines[1][1], def.connectors[2].x, def.connectors[2].y);
}

}  // namespace
}  // namespace vantrel
