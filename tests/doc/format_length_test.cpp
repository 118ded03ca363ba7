#include "doc/format_length.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vantrel {
namespace {

TEST(FormatLength, ShowsWholeMillimetres) {
  EXPECT_EQ(FormatLength(188.3, 0), "188 mm");
  EXPECT_EQ(FormatLength(188.7, 0), "189 mm");
  EXPECT_EQ(FormatLength(0.0, 0), "0 mm");
}

TEST(FormatLength, ShowsCentimetresToOneDigit) {
  EXPECT_EQ(FormatLength(188.3, 1), "18.8 cm");
  EXPECT_EQ(FormatLength(2400.0, 1), "240.0 cm");
}

TEST(FormatLength, ShowsInchesToTwoDigits) {
  EXPECT_EQ(FormatLength(25.4, 2), "1.00 in");
  EXPECT_EQ(FormatLength(188.3, 2), "7.41 in");  // 188.3 / 25.4 = 7.4134
}

TEST(FormatLength, TakesAnyOtherUnitsForMillimetres) {
  EXPECT_EQ(FormatLength(12.0, 3), "12 mm");
  EXPECT_EQ(FormatLength(12.0, -1), "12 mm");
}

TEST(FormatFixed, NeverShowsAMinusBeforeZero) {
  EXPECT_EQ(FormatFixed(-0.04, 1), "0.0");
  EXPECT_EQ(FormatFixed(-0.06, 1), "-0.1");
  EXPECT_EQ(FormatFixed(-0.0, 0), "0");
}

TEST(FormatFixed, WritesTheLargestNumberInFull) {
  const std::string text = FormatFixed(std::numeric_limits<double>::max(), 4);
  EXPECT_EQ(text.size(), 309u + 5u);
  EXPECT_TRUE(text.starts_with("17976931348623157"));
  EXPECT_TRUE(text.ends_with(".0000"));
}

}  // namespace
}  // namespace vantrel
