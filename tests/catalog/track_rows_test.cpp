// Every row of the track catalog against the manufacturer's tables, typed here a second time:
// nothing is taken from the tables of the program.
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

using enum PieceKind;

struct Expected {
  const char* part;
  const char* description;
  PieceKind kind;
  double length;
  double radius;
  double angle;
  bool bridge;
  bool paired;
  bool ramp;
  int spareA;
  int spareB;
  // Connectors after connector 0: x, y, heading.
  std::vector<std::vector<double>> more;
};

void Check(TrackSystem system, std::int32_t firstIndex, const std::vector<Expected>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Expected& row = rows[i];
    SCOPED_TRACE(row.part);
    const PieceDef* def = catalog().pieceAt(firstIndex + static_cast<std::int32_t>(i));
    ASSERT_NE(def, nullptr);
    EXPECT_EQ(def->partNumber, row.part);
    EXPECT_EQ(def->description, row.description);
    EXPECT_EQ(def->system, system);
    EXPECT_EQ(def->kind, row.kind);
    EXPECT_NEAR(def->length, row.length, 1e-3);
    EXPECT_DOUBLE_EQ(def->radius, row.radius);
    EXPECT_DOUBLE_EQ(def->angle, row.angle);
    EXPECT_EQ(def->isBridge, row.bridge);
    EXPECT_EQ(def->isPaired, row.paired);
    EXPECT_EQ(def->isRamp, row.ramp);
    EXPECT_EQ(def->spareCountA, row.spareA);
    EXPECT_EQ(def->spareCountB, row.spareB);
    if (def->kind == Turntable) continue;  // thirty connectors, tested on their own
    ASSERT_EQ(def->connectors.size(), row.more.size() + 1);
    EXPECT_EQ(def->connectors[0].x, 0.0);
    EXPECT_EQ(def->connectors[0].y, 0.0);
    EXPECT_EQ(def->connectors[0].heading, 180.0);
    for (std::size_t c = 1; c < def->connectors.size(); ++c) {
      EXPECT_NEAR(def->connectors[c].x, row.more[c - 1][0], 6e-5) << "connector " << c;
      EXPECT_NEAR(def->connectors[c].y, row.more[c - 1][1], 6e-5) << "connector " << c;
      EXPECT_NEAR(def->connectors[c].heading, row.more[c - 1][2], 6e-5) << "connector " << c;
      EXPECT_EQ(def->connectors[c].connectorId, static_cast<std::int32_t>(c));
      EXPECT_TRUE(def->connectors[c].connectable);
    }
  }
}

TEST(TrackRows, MarklinCRowsAreThoseOfTheTable) {
  // clang-format off
  Check(TrackSystem::MarklinC, 0,
        {
            {"24188", "24188 - 188.3mm", Straight, 188.3, 0.0, 0.0, false, false, false, 1, 1, {{188.3, 0.0, 0.0}}},
            {"24172", "24172 - 171.7mm", Straight, 171.7, 0.0, 0.0, false, false, false, 1, 1, {{171.7, 0.0, 0.0}}},
            {"24360", "24360 - 360mm", Straight, 360.0, 0.0, 0.0, false, false, false, 1, 1, {{360.0, 0.0, 0.0}}},
            {"74636", "74636 Arch Bridge 360mm", Straight, 360.0, 0.0, 0.0, true, false, false, 1, 1, {{360.0, 0.0, 0.0}}},
            {"74620", "74620 Truss Bridge 180mm", Straight, 188.3, 0.0, 0.0, true, false, false, 1, 1, {{188.3, 0.0, 0.0}}},
            {"74623", "74623 Curved Ramp R2 30deg", Curve, 229.0745, 437.5, 30.0, true, false, true, 1, 1, {{218.75, 58.6139, 30.0}}},
            {"74613", "74613 Curved Ramp R1 30deg", Curve, 188.4956, 360.0, 30.0, true, false, true, 1, 1, {{180.0, 48.2309, 30.0}}},
            {"74618", "74618 Straight Ramp 180mm (pair)", Straight, 180.0, 0.0, 0.0, true, true, true, 1, 1, {{180.0, 0.0, 0.0}}},
            {"24229", "24229 - 229.3mm", Straight, 229.3, 0.0, 0.0, false, false, false, 1, 1, {{229.3, 0.0, 0.0}}},
            {"24236", "24236 - 236.1mm", Straight, 236.1, 0.0, 0.0, false, false, false, 1, 1, {{236.1, 0.0, 0.0}}},
            {"24094", "24094 - 94.2mm", Straight, 94.2, 0.0, 0.0, false, false, false, 1, 1, {{94.2, 0.0, 0.0}}},
            {"24077", "24077 - 77.5mm", Straight, 77.5, 0.0, 0.0, false, false, false, 1, 1, {{77.5, 0.0, 0.0}}},
            {"24071", "24071 - 70.8mm", Straight, 70.8, 0.0, 0.0, false, false, false, 1, 1, {{70.8, 0.0, 0.0}}},
            {"24064", "24064 - 64.3mm", Straight, 64.3, 0.0, 0.0, false, false, false, 1, 1, {{64.3, 0.0, 0.0}}},
            {"24130", "24130 (30°) R1 - 360mm (14-3/16)", Curve, 188.4956, 360.0, 30.0, false, false, false, 1, 1, {{180.0, 48.2309, 30.0}}},
            {"24230", "24230 (30°) R2 - 437.5mm (17-1/4)", Curve, 229.0745, 437.5, 30.0, false, false, false, 1, 1, {{218.75, 58.6139, 30.0}}},
            {"24330", "24330 (30°) R3 - 515mm (20-1/4)", Curve, 269.6534, 515.0, 30.0, false, false, false, 1, 1, {{257.5, 68.9969, 30.0}}},
            {"24315", "24315 (15°) R3 - 515mm (20-1/4)", Curve, 134.8267, 515.0, 15.0, false, false, false, 1, 1, {{133.2918, 17.5482, 15.0}}},
            {"24430", "24430 (30°) R4 - 579.3mm (22-13/16)", Curve, 303.3208, 579.3, 30.0, false, false, false, 1, 1, {{289.65, 77.6115, 30.0}}},
            {"24530", "24530 (30°) R5 - 643.6mm (25-11/32)", Curve, 336.9882, 643.6, 30.0, false, false, false, 1, 1, {{321.8, 86.2261, 30.0}}},
            {"24115", "24115 (15°) R1 - 360mm (14-3/16)", Curve, 94.2478, 360.0, 15.0, false, false, false, 1, 1, {{93.1749, 12.2667, 15.0}}},
            {"24107", "24107 (7.5°) R1 - 360mm (14-3/16)", Curve, 47.1239, 360.0, 7.5, false, false, false, 1, 1, {{46.9894, 3.0798, 7.5}}},
            {"24224", "24224 (24.3°) R2 - 437.5mm (17-1/4)", Curve, 185.5503, 437.5, 24.3, false, false, false, 1, 1, {{180.0375, 38.7611, 24.3}}},
            {"24206", "24206 (5.7°) R2 - 437.5mm (17-1/4)", Curve, 43.5241, 437.5, 5.7, false, false, false, 1, 1, {{43.4524, 2.1632, 5.7}}},
            {"24207", "24207 (7.5°) R2 - 437.5mm (17-1/4)", Curve, 57.2686, 437.5, 7.5, false, false, false, 1, 1, {{57.1052, 3.7429, 7.5}}},
            {"24294", "24294 (15°) R2 - 437.5mm (17-1/4) Circuit", Curve, 114.5372, 437.5, 15.0, false, false, false, 1, 1, {{113.2333, 14.9075, 15.0}}},
            {"24994", "24994 - 94.2mm Circuit", Straight, 94.2, 0.0, 0.0, false, false, false, 1, 1, {{94.2, 0.0, 0.0}}},
            {"24215", "24215 (15°) R2 - 437.5mm (17-1/4)", Curve, 114.5372, 437.5, 15.0, false, false, false, 1, 1, {{113.2333, 14.9075, 15.0}}},
            {"24912", "24912 (12.1°) R9 - 1114.6mm (43-7/8)", Curve, 235.3866, 1114.6, 12.1, false, false, false, 1, 1, {{233.6409, 24.7628, 12.1}}},
            {"24611", "24611 Left Turnout R2=437.5mm 24.3°", LeftTurnout, 188.3, 437.5, -24.3, false, false, false, 2, 1, {{188.3, 0.0, 0.0}, {180.04, -38.76, 335.7}}},
            {"24612", "24612 Right Turnout R2=437.5mm 24.3°", RightTurnout, 188.3, 437.5, 24.3, false, false, false, 2, 1, {{188.3, 0.0, 0.0}, {180.04, 38.76, 24.3}}},
            {"24630", "24630 Three-Way Turnout 2x24.3°", LeftTurnout, 188.3, 437.5, 24.3, false, false, false, 2, 2, {{188.3, 0.0, 0.0}, {180.04, 38.76, 24.3}, {180.04, -38.76, 335.7}}},
            {"24671", "24671 Left Curved Turnout (R360)", CurvedTurnout, 257.5, 360.0, -30.0, false, false, false, 2, 1, {{180.0, -48.2, 330.0}, {257.5, -48.2, 330.0}}},
            {"24672", "24672 Right Curved Turnout (R360)", CurvedTurnout, 257.5, 360.0, 30.0, false, false, false, 2, 1, {{180.0, 48.2, 30.0}, {257.5, 48.2, 30.0}}},
            {"24740", "24740 Wide-Angle Crossing 12.1° 236.1mm", Crossing, 236.1, 0.0, 12.1, false, false, false, 2, 1, {{236.1, 0.0, 0.0}, {2.62, -24.75, 192.1}, {233.48, 24.75, 12.1}}},
            {"24649", "24649 Crossing 48.6° 103.3mm", Crossing, 103.3, 0.0, 48.6, false, false, false, 2, 1, {{103.3, 0.0, 0.0}, {17.49, -38.74, 228.6}, {85.81, 38.74, 48.6}}},
            {"24640", "24640 Crossing 24.3° 188.3mm", Crossing, 188.3, 0.0, 24.3, false, false, false, 2, 1, {{188.3, 0.0, 0.0}, {8.34, -38.74, 204.3}, {179.96, 38.74, 24.3}}},
            {"24624", "24624 Double Slip Switch 24.3°", DoubleSlip, 188.3, 437.4, 24.3, false, false, false, 2, 2, {{188.3, 0.0, 0.0}, {8.34, -38.74, 204.3}, {179.96, 38.74, 24.3}}},
            {"24720", "24720 Double Slip Switch slim 12.1°", DoubleSlip, 236.1, 1114.6, 12.1, false, false, false, 2, 2, {{236.1, 0.0, 0.0}, {2.62, -24.75, 192.1}, {233.48, 24.75, 12.1}}},
            {"24711", "24711 Slim Left Turnout (R1114.6, 236.1mm)", LeftTurnout, 236.1, 1114.6, -12.1, false, false, false, 2, 1, {{236.1, 0.0, 0.0}, {233.485, -24.729, 347.908}}},
            {"24712", "24712 Slim Right Turnout (R1114.6, 236.1mm)", RightTurnout, 236.1, 1114.6, -12.1, false, false, false, 2, 1, {{236.1, 0.0, 0.0}, {233.485, 24.729, 12.092}}},
            {"24771", "24771 Slim Left Curved Turnout (R515)", CurvedTurnout, 321.5, 515.0, -30.0, false, false, false, 2, 1, {{257.5, -69.0, 330.0}, {321.5, -69.0, 330.0}}},
            {"24772", "24772 Slim Right Curved Turnout (R515)", CurvedTurnout, 321.5, 515.0, 30.0, false, false, false, 2, 1, {{257.5, 69.0, 30.0}, {321.5, 69.0, 30.0}}},
            {"24977", "24977 Bumper Stop", TrackEnd, 48.3, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"24978", "24978 Bumper Stop with Light", TrackEnd, 48.3, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"24997", "24997 Uncoupler 94.2mm", Straight, 94.2, 0.0, 0.0, false, false, false, 1, 1, {{94.2, 0.0, 0.0}}},
            {"24922", "24922 Adapter C-Track to K-Track 180mm", Straight, 180.0, 0.0, 0.0, false, false, false, 1, 1, {{180.0, 0.0, 0.0}}},
            {"24951", "24951 Adapter C-Track to M-Track 180mm", Straight, 180.0, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"74861", "74861 Turntable (pit 278mm)", Turntable, 378.0, 139.0, 12.0, false, false, false, 4, 4, {}},
            {"74871", "74871 Turntable Spoke Extension 57.5mm", Straight, 57.5, 0.0, 0.0, false, false, false, 1, 1, {{57.5, 0.0, 0.0}}},
        });
  // clang-format on
}

TEST(TrackRows, TrixCRowsAreThoseOfTheTable) {
  // clang-format off
  Check(TrackSystem::TrixC, 50,
        {
            {"62064", "62064 Straight 64.3mm / 2-9/16\"", Straight, 64.3, 0.0, 0.0, false, false, false, 1, 1, {{64.3, 0.0, 0.0}}},
            {"62071", "62071 Straight 70.8mm / 2-13/16\"", Straight, 70.8, 0.0, 0.0, false, false, false, 1, 1, {{70.8, 0.0, 0.0}}},
            {"62077", "62077 Straight 77.5mm / 3-1/16\"", Straight, 77.5, 0.0, 0.0, false, false, false, 1, 1, {{77.5, 0.0, 0.0}}},
            {"62094", "62094 Straight 94.2mm / 3-3/4\"", Straight, 94.2, 0.0, 0.0, false, false, false, 1, 1, {{94.2, 0.0, 0.0}}},
            {"62172", "62172 Straight 171.7mm / 6-3/4\"", Straight, 171.7, 0.0, 0.0, false, false, false, 1, 1, {{171.7, 0.0, 0.0}}},
            {"62188", "62188 Straight 188.3mm / 7-3/8\"", Straight, 188.3, 0.0, 0.0, false, false, false, 1, 1, {{188.3, 0.0, 0.0}}},
            {"62229", "62229 Straight 229.3mm / 9\"", Straight, 229.3, 0.0, 0.0, false, false, false, 1, 1, {{229.3, 0.0, 0.0}}},
            {"62236", "62236 Straight 236.1mm / 9-5/16\"", Straight, 236.1, 0.0, 0.0, false, false, false, 1, 1, {{236.1, 0.0, 0.0}}},
            {"62360", "62360 Straight 360mm / 14-3/16\"", Straight, 360.0, 0.0, 0.0, false, false, false, 1, 1, {{360.0, 0.0, 0.0}}},
            {"62107", "62107 (7.5deg) R1 - 360mm", Curve, 47.1239, 360.0, 7.5, false, false, false, 1, 1, {{46.9894, 3.0798, 7.5}}},
            {"62115", "62115 (15deg) R1 - 360mm", Curve, 94.2478, 360.0, 15.0, false, false, false, 1, 1, {{93.1749, 12.2667, 15.0}}},
            {"62130", "62130 (30deg) R1 - 360mm", Curve, 188.4956, 360.0, 30.0, false, false, false, 1, 1, {{180.0, 48.2309, 30.0}}},
            {"62206", "62206 (5.7deg) R2 - 437.5mm", Curve, 43.5241, 437.5, 5.7, false, false, false, 1, 1, {{43.4524, 2.1632, 5.7}}},
            {"62207", "62207 (7.5deg) R2 - 437.5mm", Curve, 57.2686, 437.5, 7.5, false, false, false, 1, 1, {{57.1052, 3.7429, 7.5}}},
            {"62215", "62215 (15deg) R2 - 437.5mm", Curve, 114.5372, 437.5, 15.0, false, false, false, 1, 1, {{113.2333, 14.9075, 15.0}}},
            {"62224", "62224 (24.3deg) R2 - 437.5mm", Curve, 185.5503, 437.5, 24.3, false, false, false, 1, 1, {{180.0375, 38.7611, 24.3}}},
            {"62230", "62230 (30deg) R2 - 437.5mm", Curve, 229.0745, 437.5, 30.0, false, false, false, 1, 1, {{218.75, 58.6139, 30.0}}},
            {"62315", "62315 (15deg) R3 - 515mm", Curve, 134.8267, 515.0, 15.0, false, false, false, 1, 1, {{133.2918, 17.5482, 15.0}}},
            {"62330", "62330 (30deg) R3 - 515mm", Curve, 269.6534, 515.0, 30.0, false, false, false, 1, 1, {{257.5, 68.9969, 30.0}}},
            {"62912", "62912 (12.1deg) R9 - 1114.6mm", Curve, 235.3866, 1114.6, 12.1, false, false, false, 1, 1, {{233.6409, 24.7628, 12.1}}},
            {"62611", "62611 Left Turnout R2=437.5mm 24.3deg", LeftTurnout, 188.3, 437.5, -24.3, false, false, false, 2, 1, {{188.3, 0.0, 0.0}, {180.04, -38.76, 335.7}}},
            {"62612", "62612 Right Turnout R2=437.5mm 24.3deg", RightTurnout, 188.3, 437.5, 24.3, false, false, false, 2, 1, {{188.3, 0.0, 0.0}, {180.04, 38.76, 24.3}}},
            {"62671", "62671 Left Curved Turnout", CurvedTurnout, 257.5, 437.5, -24.3, false, false, false, 2, 1, {{180.0, -38.76, 335.7}, {257.5, -38.76, 335.7}}},
            {"62672", "62672 Right Curved Turnout", CurvedTurnout, 257.5, 437.5, 24.3, false, false, false, 2, 1, {{180.0, 38.76, 24.3}, {257.5, 38.76, 24.3}}},
            {"62630", "62630 Three-Way Turnout 2x24.3deg", LeftTurnout, 188.3, 437.5, 24.3, false, false, false, 2, 2, {{188.3, 0.0, 0.0}, {180.04, 38.76, 24.3}, {180.04, -38.76, 335.7}}},
            {"62624", "62624 Double Slip Switch 24.3deg", DoubleSlip, 188.3, 437.4, 24.3, false, false, false, 2, 2, {{188.3, 0.0, 0.0}, {8.34, -38.74, 204.3}, {179.96, 38.74, 24.3}}},
            {"62977", "62977 Track End with Bumper 80.5mm", TrackEnd, 80.5, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"62997", "62997 Uncoupler Track 94.2mm", Straight, 94.2, 0.0, 0.0, false, false, false, 1, 1, {{94.2, 0.0, 0.0}}},
            {"62636", "62636 Arch Bridge 360mm", Straight, 360.0, 0.0, 0.0, true, false, false, 1, 1, {{360.0, 0.0, 0.0}}},
            {"62620", "62620 Truss Bridge 188mm", Straight, 188.3, 0.0, 0.0, true, false, false, 1, 1, {{188.3, 0.0, 0.0}}},
            {"62623", "62623 Curved Ramp R2 30deg", Curve, 229.0745, 437.5, 30.0, true, false, true, 1, 1, {{218.75, 58.6139, 30.0}}},
            {"62613", "62613 Curved Ramp R1 30deg", Curve, 188.4956, 360.0, 30.0, true, false, true, 1, 1, {{180.0, 48.2309, 30.0}}},
        });
  // clang-format on
}

TEST(TrackRows, MarklinZRowsAreThoseOfTheTable) {
  // clang-format off
  Check(TrackSystem::MarklinZ, 82,
        {
            {"8500", "8500 Straight 110mm / 4-3/8\"", Straight, 110.0, 0.0, 0.0, false, false, false, 1, 1, {{110.0, 0.0, 0.0}}},
            {"8501", "8501 Straight 55mm / 2-3/16\" (half)", Straight, 55.0, 0.0, 0.0, false, false, false, 1, 1, {{55.0, 0.0, 0.0}}},
            {"8502", "8502 Straight 27.5mm / 1-1/8\" (qtr)", Straight, 27.5, 0.0, 0.0, false, false, false, 1, 1, {{27.5, 0.0, 0.0}}},
            {"8503", "8503 Straight 55mm / 2-3/16\"", Straight, 55.0, 0.0, 0.0, false, false, false, 1, 1, {{55.0, 0.0, 0.0}}},
            {"8504", "8504 Straight 25mm / 1\"", Straight, 25.0, 0.0, 0.0, false, false, false, 1, 1, {{25.0, 0.0, 0.0}}},
            {"8505", "8505 Straight 220mm / 8-13/16\"", Straight, 220.0, 0.0, 0.0, false, false, false, 1, 1, {{220.0, 0.0, 0.0}}},
            {"8506", "8506 Straight 112.8mm / 4-7/16\"", Straight, 112.8, 0.0, 0.0, false, false, false, 1, 1, {{112.8, 0.0, 0.0}}},
            {"8507", "8507 Straight 112.8mm / 4-7/16\"", Straight, 112.8, 0.0, 0.0, false, false, false, 1, 1, {{112.8, 0.0, 0.0}}},
            {"8587", "8587 Uncoupler 55mm / 2-3/16\"", Straight, 55.0, 0.0, 0.0, false, false, false, 1, 1, {{55.0, 0.0, 0.0}}},
            {"8588", "8588 Isolating Track 55mm / 2-3/16\"", Straight, 55.0, 0.0, 0.0, false, false, false, 1, 1, {{55.0, 0.0, 0.0}}},
            {"8590", "8590 Feeder Track 110mm / 4-3/8\"", Straight, 110.0, 0.0, 0.0, false, false, false, 1, 1, {{110.0, 0.0, 0.0}}},
            {"8598", "8598 Isolating Track 55mm / 2-3/16\"", Straight, 55.0, 0.0, 0.0, false, false, false, 1, 1, {{55.0, 0.0, 0.0}}},
            {"8510", "8510 Curve R1=145mm 45deg", Curve, 113.8827, 145.0, 45.0, false, false, false, 1, 1, {{102.5305, 42.4695, 45.0}}},
            {"8511", "8511 Curve R1=145mm 30deg", Curve, 75.9218, 145.0, 30.0, false, false, false, 1, 1, {{72.5, 19.4263, 30.0}}},
            {"8520", "8520 Curve R2=195mm 45deg", Curve, 153.1526, 195.0, 45.0, false, false, false, 1, 1, {{137.8858, 57.1142, 45.0}}},
            {"8521", "8521 Curve R2=195mm 30deg", Curve, 102.1018, 195.0, 30.0, false, false, false, 1, 1, {{97.5, 26.125, 30.0}}},
            {"8529", "8529 Circuit Curve R2=195mm 45deg", Curve, 153.1526, 195.0, 45.0, false, false, false, 1, 1, {{137.8858, 57.1142, 45.0}}},
            {"8530", "8530 Curve R3=220mm 45deg", Curve, 172.7876, 220.0, 45.0, false, false, false, 1, 1, {{155.5635, 64.4365, 45.0}}},
            {"8531", "8531 Curve R3=220mm 30deg", Curve, 115.1917, 220.0, 30.0, false, false, false, 1, 1, {{110.0, 29.4744, 30.0}}},
            {"8539", "8539 Circuit Curve R3=220mm 45deg", Curve, 172.7876, 220.0, 45.0, false, false, false, 1, 1, {{155.5635, 64.4365, 45.0}}},
            {"8591", "8591 Turnout Branch Curve R4=490mm 13deg", Curve, 111.1775, 490.0, 13.0, false, false, false, 1, 1, {{110.226, 12.5587, 13.0}}},
            {"8562", "8562 Electric Left Turnout 110mm 13deg", LeftTurnout, 110.0, 490.0, -13.0, false, false, false, 2, 1, {{110.0, 0.0, 0.0}, {110.0, -12.5065, 347.0271}}},
            {"8563", "8563 Electric Right Turnout 110mm 13deg", RightTurnout, 110.0, 490.0, 13.0, false, false, false, 2, 1, {{110.0, 0.0, 0.0}, {110.0, 12.5065, 12.9729}}},
            {"8565", "8565 Manual Left Turnout 110mm 13deg", LeftTurnout, 110.0, 490.0, -13.0, false, false, false, 2, 1, {{110.0, 0.0, 0.0}, {110.0, -12.5065, 347.0271}}},
            {"8566", "8566 Manual Right Turnout 110mm 13deg", RightTurnout, 110.0, 490.0, 13.0, false, false, false, 2, 1, {{110.0, 0.0, 0.0}, {110.0, 12.5065, 12.9729}}},
            {"8568", "8568 Electric Left Curved Turnout R=195mm 30deg", OuterCurveTurnout, 25.0, 195.0, -30.0, false, false, false, 2, 1, {{97.5, -26.125, 330.0}, {122.5, -26.125, 330.0}}},
            {"8569", "8569 Electric Right Curved Turnout R=195mm 30deg", OuterCurveTurnout, 25.0, 195.0, 30.0, false, false, false, 2, 1, {{97.5, 26.125, 30.0}, {122.5, 26.125, 30.0}}},
            {"8559", "8559 Crossing 112.8mm 13deg", Crossing, 112.8, 0.0, 13.0, false, false, false, 2, 2, {{112.8, 0.0, 0.0}, {1.4455, -12.6872, 193.0}, {111.3545, 12.6872, 13.0}}},
            {"8560", "8560 Double Slip Switch 13°", DoubleSlip, 112.8, 501.4424, 13.0, false, false, false, 2, 2, {{112.8, 0.0, 0.0}, {0.0, -12.8519, 193.0}, {112.8, 12.8519, 13.0}}},
            {"8991", "8991 Track Bumper 15mm", TrackEnd, 15.0, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"8975", "8975 Arch Bridge 220mm", Straight, 220.0, 0.0, 0.0, true, false, false, 1, 1, {{220.0, 0.0, 0.0}}},
            {"89759", "89759 Girder Bridge 110mm", Straight, 110.0, 0.0, 0.0, true, false, false, 1, 1, {{110.0, 0.0, 0.0}}},
            {"8976", "8976 Straight Ramp 110mm", Straight, 110.0, 0.0, 0.0, true, false, true, 1, 1, {{110.0, 0.0, 0.0}}},
            {"8977", "8977 Curved Ramp R1=145mm 45deg", Curve, 113.8827, 145.0, 45.0, true, false, true, 1, 1, {{102.5305, 42.4695, 45.0}}},
        });
  // clang-format on
}

TEST(TrackRows, MarklinKRowsAreThoseOfTheTable) {
  // clang-format off
  Check(TrackSystem::MarklinK, 116,
        {
            {"2200", "2200 Straight Track Length 180 mm / 7-3/32\"", Straight, 180.0, 0.0, 0.0, false, false, false, 1, 1, {{180.0, 0.0, 0.0}}},
            {"2201", "2201 Straight Track Length 90 mm / 3-9/16\"", Straight, 90.0, 0.0, 0.0, false, false, false, 1, 1, {{90.0, 0.0, 0.0}}},
            {"2202", "2202 Straight Track Length 45 mm / 1-3/4\"", Straight, 45.0, 0.0, 0.0, false, false, false, 1, 1, {{45.0, 0.0, 0.0}}},
            {"2203", "2203 Straight Track Length 30 mm / 1-3/16\"", Straight, 30.0, 0.0, 0.0, false, false, false, 1, 1, {{30.0, 0.0, 0.0}}},
            {"2204", "2204 Straight Track Length 22.5 mm / 7/8\"", Straight, 22.5, 0.0, 0.0, false, false, false, 1, 1, {{22.5, 0.0, 0.0}}},
            {"2205", "2205 Flex Track Length 900 mm / 35-7/16\"", Straight, 900.0, 0.0, 0.0, false, false, false, 1, 1, {{900.0, 0.0, 0.0}}},
            {"2206", "2206 Straight Track Length 168.9 mm / 6-5/8\"", Straight, 168.9, 0.0, 0.0, false, false, false, 1, 1, {{168.9, 0.0, 0.0}}},
            {"2207", "2207 Straight Track Length 156 mm / 6-1/8\"", Straight, 156.0, 0.0, 0.0, false, false, false, 1, 1, {{156.0, 0.0, 0.0}}},
            {"2208", "2208 Straight Track Length 35.1 mm / 1-3/8\"", Straight, 35.1, 0.0, 0.0, false, false, false, 1, 1, {{35.1, 0.0, 0.0}}},
            {"2209", "2209 Straight Track Length 217.9 mm / 8-9/16\"", Straight, 217.9, 0.0, 0.0, false, false, false, 1, 1, {{217.9, 0.0, 0.0}}},
            {"2293", "2293 Straight Track Length 41.3 mm / 1-5/8\"", Straight, 41.3, 0.0, 0.0, false, false, false, 1, 1, {{41.3, 0.0, 0.0}}},
            {"2290", "2290 Straight Feeder Track Length 180 mm / 7-3/32\"", Straight, 180.0, 0.0, 0.0, false, false, false, 1, 1, {{180.0, 0.0, 0.0}}},
            {"2291", "2291 Adapter Track for M Track Length 180 mm / 7-3/32\"", Straight, 180.0, 0.0, 0.0, false, false, false, 1, 1, {{180.0, 0.0, 0.0}}},
            {"2292", "2292 Straight Feeder Track Length 180 mm / 7-3/32\"", Straight, 180.0, 0.0, 0.0, false, false, false, 1, 1, {{180.0, 0.0, 0.0}}},
            {"2295", "2295 Contact Track Set Length 2 x 90 mm / 3-9/16\"", Straight, 90.0, 0.0, 0.0, false, false, false, 1, 1, {{90.0, 0.0, 0.0}}},
            {"2297", "2297 Straight Uncoupler Track Length 90 mm / 3-9/16\"", Straight, 90.0, 0.0, 0.0, false, false, false, 1, 1, {{90.0, 0.0, 0.0}}},
            {"2299", "2299 Straight Circuit Track Length 90 mm / 3-9/16\"", Straight, 90.0, 0.0, 0.0, false, false, false, 1, 1, {{90.0, 0.0, 0.0}}},
            {"2210", "2210 Curved Track R0=295.4mm 45deg", Curve, 232.0066, 295.4, 45.0, false, false, false, 1, 1, {{208.8793, 86.5207, 45.0}}},
            {"2229", "2229 Curved Circuit Track Radius 360 mm", Curve, 282.7433, 360.0, 45.0, false, false, false, 1, 1, {{254.5584, 105.4416, 45.0}}},
            {"2221", "2221 Curved Track R1=360mm 30deg", Curve, 188.4956, 360.0, 30.0, false, false, false, 1, 1, {{180.0, 48.2309, 30.0}}},
            {"2223", "2223 Curved Track Radius 15° (R2=424.6 mm / 16-3/4\")", Curve, 111.16, 424.6, 15.0, false, false, false, 1, 1, {{109.8946, 14.4679, 15.0}}},
            {"2224", "2224 Curved Track Radius 7° (R2=424.6 mm / 16-3/4\")", Curve, 55.58, 424.6, 7.5, false, false, false, 1, 1, {{55.4214, 3.6325, 7.5}}},
            {"2239", "2239 Curved Circuit Track Radius 424.6 mm / 16-3/4\"", Curve, 222.32, 424.6, 30.0, false, false, false, 1, 1, {{212.3, 56.8856, 30.0}}},
            {"2231", "2231 Curved Track R2=424.6mm 30deg", Curve, 222.32, 424.6, 30.0, false, false, false, 1, 1, {{212.3, 56.8856, 30.0}}},
            {"2232", "2232 Curved Track R2=424.6mm 22.5deg", Curve, 166.74, 424.6, 22.5, false, false, false, 1, 1, {{162.4874, 32.3208, 22.5}}},
            {"2233", "2233 Curved Track Radius 15° (R3=515 mm)", Curve, 134.8267, 515.0, 15.0, false, false, false, 1, 1, {{133.2918, 17.5482, 15.0}}},
            {"2234", "2234 Curved Track Radius 7° (R3=515 mm)", Curve, 67.4133, 515.0, 7.5, false, false, false, 1, 1, {{67.221, 4.4059, 7.5}}},
            {"2235", "2235 Curved Track Radius 3° (R3=515 mm)", Curve, 26.9653, 515.0, 3.0, false, false, false, 1, 1, {{26.953, 0.7058, 3.0}}},
            {"2241", "2241 Curved Track Radius 30° (R4=573.6 mm)", Curve, 300.3363, 573.6, 30.0, false, false, false, 1, 1, {{286.8, 76.8478, 30.0}}},
            {"2251", "2251 Curved Track Radius 30° (R4=573.6 mm)", Curve, 300.3363, 573.6, 30.0, false, false, false, 1, 1, {{286.8, 76.8478, 30.0}}},
            {"2274", "2274 Curved Track Radius 14° (R5=636 mm)", Curve, 155.4041, 636.0, 14.0, false, false, false, 1, 1, {{153.8623, 18.8919, 14.0}}},
            {"2257", "2257 Crossing Length 225 mm / 8-7/8\"", Crossing, 225.0, 0.0, 22.5, false, false, false, 2, 1, {{225.0, 0.0, 0.0}, {8.56, -43.05, 202.5}, {216.44, 43.05, 22.5}}},
            {"2258", "2258 Crossing Length 90 mm / 3-9/16\"", Crossing, 90.0, 0.0, 45.0, false, false, false, 2, 1, {{90.0, 0.0, 0.0}, {13.18, -31.82, 225.0}, {76.82, 31.82, 45.0}}},
            {"2259", "2259 Crossing Length 168.9 mm / 6-5/8\"", Crossing, 168.9, 0.0, 22.5, false, false, false, 2, 1, {{168.9, 0.0, 0.0}, {6.43, -32.32, 202.5}, {162.47, 32.32, 22.5}}},
            {"2262", "2262 Left Turnout Length 168.9 mm / 6-5/8\"", LeftTurnout, 168.9, 424.6, -22.5, false, false, false, 2, 1, {{168.9, 0.0, 0.0}, {162.4874, -32.3208, 337.5}}},
            {"2263", "2263 Right Turnout Length 168.9 mm / 6-5/8\"", RightTurnout, 168.9, 424.6, 22.5, false, false, false, 2, 1, {{168.9, 0.0, 0.0}, {162.4874, 32.3208, 22.5}}},
            {"2265", "2265 Left Turnout Length 168.9 mm / 6-5/8\" (manual)", LeftTurnout, 168.9, 424.6, -22.5, false, false, false, 2, 1, {{168.9, 0.0, 0.0}, {162.4874, -32.3208, 337.5}}},
            {"2266", "2266 Right Turnout Length 168.9 mm / 6-5/8\" (manual)", RightTurnout, 168.9, 424.6, 22.5, false, false, false, 2, 1, {{168.9, 0.0, 0.0}, {162.4874, 32.3208, 22.5}}},
            {"2269", "2269 Right Curved Turnout Outer Curve 30° Spacing 64.6 mm / 2-1/2\"", OuterCurveTurnout, 64.6, 360.0, 30.0, false, false, false, 2, 2, {{180.0, 48.23, 30.0}, {244.6, 48.23, 30.0}}},
            {"2268", "2268 Left Curved Turnout Outer Curve 30° Spacing 64.6 mm / 2-1/2\"", OuterCurveTurnout, 64.6, 360.0, -30.0, false, false, false, 2, 2, {{180.0, -48.23, 330.0}, {244.6, -48.23, 330.0}}},
            {"2270", "2270 Symmetrical Three-Way Turnout Length 168.9 mm / Radius 424.6 mm / 16-3/4\"", LeftTurnout, 168.9, 424.6, 22.5, false, false, false, 2, 2, {{168.9, 0.0, 0.0}, {162.49, 32.32, 22.5}, {162.49, -32.32, 337.5}}},
            {"22715", "22715 Left Turnout Length 225 mm / 8-7/8\" / Radius 902.4 mm / 35-1/2\"", LeftTurnout, 225.0, 902.4, -14.3, false, false, false, 2, 1, {{225.0, 0.0, 0.0}, {222.8919, -27.9602, 345.7}}},
            {"22716", "22716 Right Turnout Length 225 mm / 8-7/8\" / Radius 902.4 mm / 35-1/2\"", RightTurnout, 225.0, 902.4, 14.3, false, false, false, 2, 1, {{225.0, 0.0, 0.0}, {222.8919, 27.9602, 14.3}}},
            {"2260", "2260 Double Slip Switch Length 168.9 mm / 6-5/8\"", DoubleSlip, 168.9, 424.6, 22.5, false, false, false, 2, 2, {{168.9, 0.0, 0.0}, {6.41, -32.32, 202.5}, {162.49, 32.32, 22.5}}},
            {"2275", "2275 Double Slip Switch Length 225 mm / 8-7/8\" / Radius 902.4 mm / 35-1/2\"", DoubleSlip, 225.0, 902.4, 14.3, false, false, false, 2, 2, {{225.0, 0.0, 0.0}, {3.49, -27.79, 194.3}, {221.51, 27.79, 14.3}}},
            {"7389", "7389 Track Bumper", TrackEnd, 60.0, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"7391", "7391 Track Bumper", TrackEnd, 40.0, 0.0, 0.0, false, false, false, 1, 1, {}},
            {"7263", "7263 Arch Bridge 360mm", Straight, 360.0, 0.0, 0.0, true, false, false, 1, 1, {{360.0, 0.0, 0.0}}},
            {"7262", "7262 Truss Bridge 180mm", Straight, 180.0, 0.0, 0.0, true, false, false, 1, 1, {{180.0, 0.0, 0.0}}},
            {"7569", "7569 Curved Ramp R2 30deg", Curve, 222.32, 424.6, 30.0, true, false, true, 1, 1, {{212.3, 56.8856, 30.0}}},
            {"7267", "7267 Curved Ramp R1 45deg", Curve, 282.7433, 360.0, 45.0, true, false, true, 1, 1, {{254.5584, 105.4416, 45.0}}},
        });
  // clang-format on
}

TEST(TrackRows, ThereAre167AndNoPartNumberTwice) {
  EXPECT_EQ(catalog().pieceCount(), 167);
  std::set<std::string> parts;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
    parts.insert(catalog().pieceAt(i)->partNumber);
  EXPECT_EQ(parts.size(), 167u);
}

TEST(TrackRows, EachSystemHasItsNumberOfRows) {
  int counts[4] = {};
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
    ++counts[static_cast<int>(catalog().pieceAt(i)->system)];
  EXPECT_EQ(counts[static_cast<int>(TrackSystem::MarklinC)], 50);
  EXPECT_EQ(counts[static_cast<int>(TrackSystem::TrixC)], 32);
  EXPECT_EQ(counts[static_cast<int>(TrackSystem::MarklinZ)], 34);
  EXPECT_EQ(counts[static_cast<int>(TrackSystem::MarklinK)], 51);
}

TEST(TrackRows, TheTrixDoubleSlipHasTheConnectorsOfTheMarklinOne) {
  const PieceDef* trix = findPart("62624");
  const PieceDef* marklin = findPart("24624");
  ASSERT_NE(trix, nullptr);
  ASSERT_NE(marklin, nullptr);
  EXPECT_EQ(static_cast<int>(trix->system), 3);
  EXPECT_EQ(trix->description, "62624 Double Slip Switch 24.3deg");
  ASSERT_EQ(trix->connectors.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(trix->connectors[i].x, marklin->connectors[i].x);
    EXPECT_EQ(trix->connectors[i].y, marklin->connectors[i].y);
    EXPECT_EQ(trix->connectors[i].heading, marklin->connectors[i].heading);
  }
}

TEST(TrackRows, TheTurntableHasThirtyConnectorsAroundItsCentre) {
  const PieceDef* def = findPart("74861");
  ASSERT_NE(def, nullptr);
  ASSERT_EQ(def->connectors.size(), 30u);
  EXPECT_DOUBLE_EQ(def->connectors[0].x, 139.0);
  EXPECT_DOUBLE_EQ(def->connectors[0].y, 0.0);
  EXPECT_DOUBLE_EQ(def->connectors[0].heading, 0.0);
  EXPECT_NEAR(def->connectors[15].x, -139.0, 1e-9);
  EXPECT_NEAR(def->connectors[15].y, 0.0, 1e-9);
  EXPECT_DOUBLE_EQ(def->connectors[15].heading, 180.0);
  // Connector 5 at 60 degrees: 139 * 0.5 = 69.5, 139 * 0.866025 = 120.3776.
  EXPECT_NEAR(def->connectors[5].x, 69.5, 1e-4);
  EXPECT_NEAR(def->connectors[5].y, 120.3775, 1e-3);
  EXPECT_DOUBLE_EQ(def->connectors[5].heading, 60.0);
  for (std::size_t i = 0; i < 30; ++i)
    EXPECT_EQ(def->connectors[i].connectorId, static_cast<std::int32_t>(i));
}

TEST(TrackRows, AZTurnoutsBranchIsClippedAtItsLengthAndAKTurnoutsIsNot) {
  // 490 * sin 13 = 110.23 is past the turnout's 110 mm; asin(110 / 490) = 12.97 degrees.
  const PieceDef* z = findPart("8562");
  ASSERT_NE(z, nullptr);
  EXPECT_DOUBLE_EQ(z->connectors[2].x, 110.0);
  EXPECT_NEAR(z->connectors[2].heading, 360.0 - 12.97, 0.005);
  EXPECT_NEAR(z->connectors[2].y, -12.51, 0.005);
  // 424.6 * sin 22.5 = 162.49 stays below 168.9.
  const PieceDef* k = findPart("2262");
  ASSERT_NE(k, nullptr);
  EXPECT_NEAR(k->connectors[2].x, 162.49, 0.005);
  EXPECT_NEAR(k->connectors[2].heading, 337.5, 1e-9);
}

TEST(TrackRows, TheAdapterToMTrackOffersNoFarEnd) {
  ASSERT_NE(findPart("24951"), nullptr);
  EXPECT_EQ(findPart("24951")->connectors.size(), 1u);
  EXPECT_DOUBLE_EQ(findPart("24951")->length, 180.0);
}

TEST(TrackRows, OnlyTheAdapterToKTrackJoinsTwoSystems) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.partNumber == "24922")
      EXPECT_EQ(def.connectorSystems, (std::vector<std::int32_t>{0, 1}));
    else
      EXPECT_TRUE(def.connectorSystems.empty()) << def.partNumber;
  }
  EXPECT_EQ(connectorSystem(*findPart("24922"), 0), 0);
  EXPECT_EQ(connectorSystem(*findPart("24922"), 1), 1);
}

}  // namespace
}  // namespace vantrel
