// Heights as the user reads and types them.
#include "inspection/shown_unit.h"

#include <gtest/gtest.h>

#include "doc/trimmed.h"

namespace vantrel {
namespace {

ShownUnit Unit(std::int32_t units) {
  Layout layout;
  layout.units = units;
  return UnitOf(layout);
}

TEST(ShownUnit, TurnsTypedHeightsIntoMillimetres) {
  EXPECT_DOUBLE_EQ(HeightFromText("12.5", Unit(0)).value(), 12.5);
  EXPECT_DOUBLE_EQ(HeightFromText("12.5", Unit(1)).value(), 125.0);
  EXPECT_DOUBLE_EQ(HeightFromText("12.5", Unit(2)).value(), 317.5);
  EXPECT_DOUBLE_EQ(HeightFromText("12.5", Unit(3)).value(), 12.5);
  EXPECT_DOUBLE_EQ(HeightFromText("-3", Unit(1)).value(), -30.0);
}

TEST(ShownUnit, TakesNumbersInTheWaysInWhichPeopleTypeThem) {
  for (const char* text : {"50", " 50", "50 ", "\t50\n", "+50", "50.", "5e1", "050", "50.000"})
    EXPECT_EQ(HeightFromText(text, Unit(0)), 50.0) << text;
  EXPECT_EQ(HeightFromText(".5", Unit(0)), 0.5);
  EXPECT_EQ(HeightFromText("-.5", Unit(0)), -0.5);
  EXPECT_EQ(HeightFromText("0", Unit(0)), 0.0);
}

TEST(ShownUnit, TakesADecimalCommaForTheDecimalPoint) {
  EXPECT_EQ(HeightFromText("12,5", Unit(0)), 12.5);
  EXPECT_EQ(HeightFromText(" -0,25 ", Unit(1)), -2.5);
  EXPECT_EQ(HeightFromText(",5", Unit(0)), 0.5);
  for (const char* text : {"1,234.5", "1.234,5", "1,,5", ","})
    EXPECT_FALSE(HeightFromText(text, Unit(0)).has_value()) << text;
}

TEST(ShownUnit, TakesNothingElseForANumber) {
  for (const char* text : {"",    " ",    "abc",      "12 mm", "12mm",   "1,2,5", "1 2", "0x10",
                           "--5", "+-5",  "++5",      "-",     "+",      ".",     "e5",  "1e",
                           "inf", "-inf", "infinity", "nan",   "nan(1)", "1e999", "5\"", "½"})
    EXPECT_FALSE(HeightFromText(text, Unit(0)).has_value()) << text;
}

TEST(ShownUnit, AHeightThatOnlyItsUnitMakesEndlessIsNone) {
  EXPECT_TRUE(HeightFromText("1e308", Unit(0)).has_value());
  EXPECT_FALSE(HeightFromText("1e308", Unit(2)).has_value());
}

TEST(Trimmed, TakesWhiteSpaceOffBothEndsOnly) {
  EXPECT_EQ(Trimmed("  North  yard \t\r\n"), "North  yard");
  EXPECT_EQ(Trimmed("Yard"), "Yard");
  EXPECT_EQ(Trimmed(" \v\f "), "");
  EXPECT_EQ(Trimmed(""), "");
}

TEST(Trimmed, KnowsTheBlanksOfOtherScripts) {
  // An ideographic space, a no-break space, an em space.
  EXPECT_EQ(Trimmed("\u3000駅\u00a0\u2003"), "駅");
  EXPECT_EQ(Trimmed("\u3000\u3000"), "");
}

TEST(Trimmed, LeavesBytesThatAreNoTextAlone) {
  EXPECT_EQ(Trimmed(" \xff\xfe "), "\xff\xfe");
  EXPECT_EQ(Trimmed("\x80\x80"), "\x80\x80");
}

}  // namespace
}  // namespace vantrel
