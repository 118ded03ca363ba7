#include "doc/typed_number.h"

#include <gtest/gtest.h>

#include <string>

namespace vantrel {
namespace {

TEST(TypedNumber, IsTheWholeTextAsANumber) {
  EXPECT_EQ(TypedNumber("37"), 37.0);
  EXPECT_EQ(TypedNumber("-12.75"), -12.75);
  EXPECT_EQ(TypedNumber(".5"), 0.5);
  EXPECT_EQ(TypedNumber("7."), 7.0);
  EXPECT_EQ(TypedNumber("1.25e3"), 1250.0);
  EXPECT_EQ(TypedNumber("007"), 7.0);
}

TEST(TypedNumber, TakesAPlusSignAndTheBlanksAroundIt) {
  EXPECT_EQ(TypedNumber("+3.5"), 3.5);
  EXPECT_EQ(TypedNumber(" \t41.5 \n"), 41.5);
  EXPECT_EQ(TypedNumber("\u00a0+41.5\u202f"), 41.5) << "no-break blanks of a pasted number";
}

TEST(TypedNumber, IsNothingForWhatIsNoNumberToItsEnd) {
  for (const char* text : {"", "  ", "abc", "12 mm", "12mm", "1 2", "+ 5", "0x10", "--5", "+-5",
                           "-+5", "++5", "-", "+", ".", "e5", "1e", "3..5", "½"})
    EXPECT_EQ(TypedNumber(text), std::nullopt) << '"' << text << '"';
}

TEST(TypedNumber, IsNothingForWhatHasNoEnd) {
  for (const char* text : {"inf", "-inf", "infinity", "nan", "nan(1)", "1e999", "-1e999"})
    EXPECT_EQ(TypedNumber(text), std::nullopt) << text;
  EXPECT_EQ(TypedNumber("1e308"), 1e308);
}

TEST(TypedNumber, ADecimalCommaIsADecimalPoint) {
  EXPECT_EQ(TypedNumber("12,5"), 12.5);
  EXPECT_EQ(TypedNumber("-,5"), -0.5);
  EXPECT_EQ(TypedNumber("+1,5"), 1.5);
  EXPECT_EQ(TypedNumber("50,"), 50.0);
}

// Nobody can tell which of them was meant as what.
TEST(TypedNumber, TwoOfThemAreNoNumber) {
  for (const char* text : {"1,234.5", "1.234,5", "1,234,567", "1,,5", ",", "1,.5"})
    EXPECT_FALSE(TypedNumber(text).has_value()) << text;
}

}  // namespace
}  // namespace vantrel
