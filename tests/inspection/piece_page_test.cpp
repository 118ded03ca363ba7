// The page of one piece.
#include <gtest/gtest.h>

#include <limits>

#include "inspection/page_texts.h"
#include "inspection/selection_page.h"
#include "tests/inspection/inspection_support.h"

namespace vantrel {
namespace {

PieceDef MakeDef(int system, double length) {
  PieceDef def;
  def.system = static_cast<TrackSystem>(system);
  def.length = length;
  return def;
}

class PiecePage : public testing::Test {
 protected:
  PiecePage() : layout(PlanWithThreeLevels()) { LaySelected(layout, "24188"); }

  Piece& piece() { return layout.pieces[0]; }
  SelectionPage page() const { return DescribeSelection(layout); }
  SelectionPage pageAtGrade(double deg) {
    piece().grade = deg;
    return page();
  }

  Layout layout;
};

TEST_F(PiecePage, IsTitledByTheDescriptionOfThePart) {
  EXPECT_EQ(page().title, "24188 - 188.3mm");
  EXPECT_EQ(page().info, "Märklin C  |  188.3 mm");
}

TEST_F(PiecePage, TellsTheLengthInMillimetresInEveryUnit) {
  for (const std::int32_t units : {0, 1, 2, 7}) {
    layout.units = units;
    EXPECT_EQ(page().info, "Märklin C  |  188.3 mm");
  }
}

TEST_F(PiecePage, NamesTheSystemByItsNumber) {
  const char* const names[] = {"Märklin C", "Märklin K",  "Märklin Z", "TRIX C",
                               "Rokuhan Z", "Minitrix N", "Kato N"};
  for (int system = 0; system < 7; ++system)
    EXPECT_EQ(PieceInfo(MakeDef(system, 12.0)), std::string(names[system]) + "  |  12.0 mm");
  for (const int system : {-1, 7, 100})
    EXPECT_EQ(PieceInfo(MakeDef(system, 12.0)), "Unknown  |  12.0 mm");
}

TEST_F(PiecePage, APartWithoutLengthTellsOnlyItsSystem) {
  EXPECT_EQ(PieceInfo(MakeDef(1, 0.0)), "Märklin K  |  ");
  EXPECT_EQ(PieceInfo(MakeDef(1, -1.0)), "Märklin K  |  ");
}

TEST_F(PiecePage, ShowsTheHeightInTheUnitInForce) {
  piece().z = 123.45;
  EXPECT_EQ(page().height,
            (HeightEntry{.caption = "Height (mm):", .text = "123.5", .enabled = true}));
  layout.units = 1;  // 12.345 cm
  EXPECT_EQ(page().height,
            (HeightEntry{.caption = "Height (cm):", .text = "12.3", .enabled = true}));
  layout.units = 2;  // 123.45 / 25.4 = 4.86023 in
  EXPECT_EQ(page().height,
            (HeightEntry{.caption = "Height (in):", .text = "4.860", .enabled = true}));
  layout.units = 9;
  EXPECT_EQ(page().height.caption, "Height (mm):");
}

TEST_F(PiecePage, AHeightThatRoundsToZeroHasNoSign) {
  piece().z = -0.04;
  EXPECT_EQ(page().height.text, "0.0");
  piece().z = -0.06;
  EXPECT_EQ(page().height.text, "-0.1");
}

TEST_F(PiecePage, ListsAllLevelsInTheirOrderWithThePiecesOwnChosen) {
  piece().level = 2;
  EXPECT_EQ(page().level.rows,
            (std::vector<LevelRow>{{1, "Ground"}, {2, "Upper"}, {5, "Hidden yard"}}));
  EXPECT_EQ(page().level.chosen, 1);
  EXPECT_TRUE(page().level.enabled);
}

TEST_F(PiecePage, FlatTrackShowsADashAndOffersToStartFromZeroUpward) {
  for (const double flat : {0.0, 0.001, -0.001}) {
    const GradeEntry grade = pageAtGrade(flat).grade;
    EXPECT_EQ(grade.text, "-");
    EXPECT_EQ(grade.warning, "");
    EXPECT_TRUE(grade.up);
    EXPECT_EQ(grade.degrees, 0.0);
    EXPECT_TRUE(grade.settingEnabled);
    EXPECT_TRUE(grade.startEnabled);
    EXPECT_TRUE(grade.recalcEnabled);
  }
}

TEST_F(PiecePage, AClimbShowsItsSignDegreesAndPercent) {
  // tan 2 degrees = 0.034921
  const GradeEntry grade = pageAtGrade(2.0).grade;
  EXPECT_EQ(grade.text, "+2.00 deg (3.5%)");
  EXPECT_TRUE(grade.up);
  EXPECT_EQ(grade.degrees, 2.0);
}

TEST_F(PiecePage, AGradeOfMinusThreeShowsItsPercentWithoutASign) {
  // tan 3 degrees = 0.052408
  const GradeEntry grade = pageAtGrade(-3.0).grade;
  EXPECT_EQ(grade.text, "-3.00 deg (5.2%)");
  EXPECT_FALSE(grade.up);
  EXPECT_EQ(grade.degrees, 3.0);
}

TEST_F(PiecePage, TheSmallestSlopeThatCountsIsShownRounded) {
  EXPECT_EQ(pageAtGrade(0.0011).grade.text, "+0.00 deg (0.0%)");
  EXPECT_EQ(pageAtGrade(-0.0011).grade.text, "-0.00 deg (0.0%)");
}

TEST_F(PiecePage, WarnsAboveSixDegreesEitherWay) {
  EXPECT_EQ(pageAtGrade(6.0).grade.warning, "");
  EXPECT_EQ(pageAtGrade(-6.0).grade.warning, "");
  EXPECT_EQ(pageAtGrade(6.1).grade.warning, "WARNING: Grade 6.1 deg exceeds 6 deg max!");
  EXPECT_EQ(pageAtGrade(-6.1).grade.warning, "WARNING: Grade 6.1 deg exceeds 6 deg max!");
}

TEST_F(PiecePage, ASteeperGradeThanTheSpinHoldsLeavesItAtItsEnd) {
  const GradeEntry grade = pageAtGrade(-12.5).grade;
  EXPECT_EQ(grade.degrees, 6.0);
  EXPECT_FALSE(grade.up);
  // tan 12.5 degrees = 0.221695
  EXPECT_EQ(grade.text, "-12.50 deg (22.2%)");
}

TEST_F(PiecePage, EndingAGradeIsOfferedExactlyWhileOneIsInForce) {
  EXPECT_FALSE(pageAtGrade(3.0).grade.endEnabled);
  layout.currentGrade.active = true;
  EXPECT_TRUE(pageAtGrade(0.0).grade.endEnabled);
}

TEST_F(PiecePage, HostileNumbersStayTexts) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  piece().z = nan;
  EXPECT_EQ(page().height.text, "nan");
  EXPECT_EQ(pageAtGrade(nan).grade.text, "-");
  EXPECT_EQ(pageAtGrade(nan).grade.degrees, 0.0);
  EXPECT_EQ(pageAtGrade(infinity).grade.degrees, 6.0);
  EXPECT_EQ(pageAtGrade(infinity).grade.warning, "WARNING: Grade inf deg exceeds 6 deg max!");
  piece().z = 1e300;
  EXPECT_EQ(page().height.text.size(), 303u);  // 301 digits, the point, one digit
}

}  // namespace
}  // namespace vantrel
