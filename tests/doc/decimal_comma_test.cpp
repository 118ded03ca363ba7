#include <gtest/gtest.h>

#include "doc/typed_number.h"

namespace vantrel {
namespace {

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
