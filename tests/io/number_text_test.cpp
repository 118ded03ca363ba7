#include "io/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "tests/io/io_support.h"

namespace vantrel {
namespace {

std::string ProblemOfInt(std::string_view text) {
  try {
    return "gives " + std::to_string(IntFromText(text));
  } catch (const BadNumber& problem) {
    return problem.what();
  }
}

std::string ProblemOfReal(std::string_view text) {
  try {
    return "gives " + std::to_string(RealFromText(text));
  } catch (const BadNumber& problem) {
    return problem.what();
  }
}

TEST(NumberText, TakesTheWholeNumberAtTheStartOfAText) {
  EXPECT_EQ(IntFromText("0"), 0);
  EXPECT_EQ(IntFromText("42"), 42);
  EXPECT_EQ(IntFromText("-42"), -42);
  EXPECT_EQ(IntFromText("+42"), 42);
  EXPECT_EQ(IntFromText(" \t\n\v\f\r7"), 7);
  EXPECT_EQ(IntFromText("007"), 7);
  EXPECT_EQ(IntFromText("12abc"), 12);
  EXPECT_EQ(IntFromText("1.9"), 1);
  EXPECT_EQ(IntFromText("3 4"), 3);
  EXPECT_EQ(IntFromText("0x10"), 0);
  EXPECT_EQ(IntFromText(std::string_view("5\0006", 3)), 5);
  EXPECT_EQ(IntFromText("2147483647"), 2147483647);
  EXPECT_EQ(IntFromText("-2147483648"), -2147483647 - 1);
}

TEST(NumberText, RefusesATextThatStartsWithNoWholeNumber) {
  for (const char* text : {"", " ", "abc", "-", "+", "+-5", "-+5", "- 5", ".5", "nan", "&lt;1"})
    EXPECT_EQ(ProblemOfInt(text), "invalid stoi argument") << text;
  EXPECT_EQ(ProblemOfInt(std::string_view("\0005", 2)), "invalid stoi argument");
}

TEST(NumberText, RefusesAWholeNumberBeyond32Bits) {
  for (const char* text : {"2147483648", "-2147483649", "99999999999", "+9999999999999999999999",
                           "-9999999999999999999999abc"})
    EXPECT_EQ(ProblemOfInt(text), "stoi argument out of range") << text;
}

TEST(NumberText, TakesTheRealAtTheStartOfAText) {
  EXPECT_EQ(RealFromText("2400.0000"), 2400.0);
  EXPECT_EQ(RealFromText("-0.5000"), -0.5);
  EXPECT_EQ(RealFromText("+1.25"), 1.25);
  EXPECT_EQ(RealFromText(" \t\n\v\f\r3.5"), 3.5);
  EXPECT_EQ(RealFromText(".5"), 0.5);
  EXPECT_EQ(RealFromText("5."), 5.0);
  EXPECT_EQ(RealFromText("1e3"), 1000.0);
  EXPECT_EQ(RealFromText("1E-3mm"), 0.001);
  EXPECT_EQ(RealFromText("1e"), 1.0);
  EXPECT_EQ(RealFromText("1e+x"), 1.0);
  EXPECT_EQ(RealFromText("1,5"), 1.0);
  EXPECT_EQ(RealFromText("0x1.8p1"), 3.0);
  EXPECT_EQ(RealFromText("-0X10"), -16.0);
  EXPECT_EQ(RealFromText("0xg"), 0.0);
  EXPECT_EQ(RealFromText(std::string_view("5\0006", 3)), 5.0);
  EXPECT_EQ(RealFromText("1e308"), 1e308);
  EXPECT_TRUE(std::signbit(RealFromText("-0.0000")));
}

TEST(NumberText, TakesInfinityAndNotANumberByName) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(RealFromText("inf"), infinity);
  EXPECT_EQ(RealFromText("-Infinity"), -infinity);
  EXPECT_EQ(RealFromText("INFx"), infinity);
  EXPECT_TRUE(std::isnan(RealFromText("nan")));
  EXPECT_TRUE(std::isnan(RealFromText("+NaN(12)")));
}

TEST(NumberText, RefusesATextThatStartsWithNoReal) {
  for (const char* text :
       {"", " ", "abc", "-", "+", ".", "-.", "+-5", "e5", "--1", "in", "&quot;1"})
    EXPECT_EQ(ProblemOfReal(text), "invalid stod argument") << text;
}

TEST(NumberText, RefusesARealBeyondTheLargest) {
  for (const char* text : {"1e309", "-1e309", "1.8e308", "0x1p1024", "1e99999999999"})
    EXPECT_EQ(ProblemOfReal(text), "stod argument out of range") << text;
  EXPECT_EQ(RealFromText("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(NumberText, RefusesARealTooSmallForFullPrecision) {
  for (const char* text : {"1e-400", "-1e-400", "4.9406564584124654e-324", "1e-310",
                           "2.2250738585072009e-308", "0x1p-1075", "1e-99999999999"})
    EXPECT_EQ(ProblemOfReal(text), "stod argument out of range") << text;
  const std::string longZero = "0." + std::string(400, '0') + "1";
  EXPECT_EQ(ProblemOfReal(longZero), "stod argument out of range");
  // It rounds to the least full number, but only after falling below it.
  EXPECT_EQ(ProblemOfReal("2.2250738585072012e-308"), "stod argument out of range");
}

TEST(NumberText, TakesTheLeastNumbersThatAreExact) {
  EXPECT_EQ(RealFromText("2.2250738585072014e-308"), std::numeric_limits<double>::min());
  EXPECT_EQ(RealFromText("0x1p-1074"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(RealFromText("0e-999"), 0.0);
  EXPECT_EQ(RealFromText("0." + std::string(400, '0')), 0.0);
}

TEST(NumberText, AgreesWithTheStandardConversionsOnRandomTexts) {
  std::mt19937 random(20260731);
  const std::string_view alphabet = "0123456789012345678900..--++eeExXpinfaINFNT() \t,";
  std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> length(0, 12);
  int numbers = 0;
  for (int i = 0; i < 200'000; ++i) {
    std::string text;
    for (int n = length(random); n > 0; --n) text += alphabet[letter(random)];
    std::string wholeByStandard;
    try {
      wholeByStandard = "gives " + std::to_string(std::stoi(text));
    } catch (const std::invalid_argument&) {
      wholeByStandard = "invalid stoi argument";
    } catch (const std::out_of_range&) {
      wholeByStandard = "stoi argument out of range";
    }
    ASSERT_EQ(ProblemOfInt(text), wholeByStandard) << '[' << text << ']';
    try {
      const double expected = std::stod(text);
      const double value = RealFromText(text);
      ASSERT_TRUE(value == expected || (std::isnan(value) && std::isnan(expected))) << text;
      ASSERT_EQ(std::signbit(value), std::signbit(expected)) << '[' << text << ']';
      ++numbers;
    } catch (const std::invalid_argument&) {
      ASSERT_EQ(ProblemOfReal(text), "invalid stod argument") << '[' << text << ']';
    } catch (const std::out_of_range&) {
      ASSERT_EQ(ProblemOfReal(text), "stod argument out of range") << '[' << text << ']';
    }
  }
  EXPECT_GT(numbers, 50'000) << "too few of the texts are numbers for the comparison to mean much";
}

std::string RealText(double value) {
  std::string text;
  AppendReal(text, value);
  return text;
}

TEST(NumberText, PrintsRealsWithFourDigitsBehindThePoint) {
  EXPECT_EQ(RealText(2400), "2400.0000");
  EXPECT_EQ(RealText(-0.5), "-0.5000");
  EXPECT_EQ(RealText(0.00005), "0.0001");    // held as 0.0000500000000000000023960868
  EXPECT_EQ(RealText(0.00015), "0.0001");    // held as 0.000149999999999999993
  EXPECT_EQ(RealText(0.03125), "0.0312");    // an exact half goes to the even digit
  EXPECT_EQ(RealText(0.09375), "0.0938");    // the same, upward
  EXPECT_EQ(RealText(-0.00001), "-0.0000");  // the sign stays
  EXPECT_EQ(RealText(-0.0), "-0.0000");
  EXPECT_EQ(RealText(1e22), "10000000000000000000000.0000");
  EXPECT_EQ(RealText(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(RealText(-std::numeric_limits<double>::infinity()), "-inf");
  EXPECT_EQ(RealText(std::copysign(std::nan(""), 1.0)), "nan");
  EXPECT_EQ(RealText(std::copysign(std::nan(""), -1.0)), "-nan");
}

TEST(NumberText, PrintsRealsAsPrintfDoes) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> ordinary(-5000.0, 5000.0);
  std::vector<double> values = {std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::denorm_min()};
  for (int i = 0; i < 20'000; ++i) {
    values.push_back(ordinary(random));
    // Any bits at all: every size, infinities and not-a-numbers among them.
    const std::uint64_t bits = random();
    values.push_back(std::bit_cast<double>(bits));
  }
  for (const double value : values) {
    char expected[400];
    std::snprintf(expected, sizeof expected, "%.4f", value);
    ASSERT_EQ(RealText(value), expected);
  }
}

TEST(NumberText, NeitherPrintsNorReadsByTheLocale) {
  const testing::CommaLocale locale;
  ASSERT_TRUE(locale.active()) << "this machine takes no locale with a decimal comma";
  EXPECT_EQ(RealText(1234567.5), "1234567.5000");
  EXPECT_EQ(RealFromText("2.5"), 2.5);
  EXPECT_EQ(RealFromText("+2.5"), 2.5);  // these three go by the platform's own conversion
  EXPECT_EQ(RealFromText("0x1.8p0"), 1.5);
  EXPECT_EQ(ProblemOfReal("2.5e999"), "stod argument out of range");
  EXPECT_EQ(RealFromText("2,5"), 2.0);
  std::string whole;
  AppendInt(whole, 1234567);
  EXPECT_EQ(whole, "1234567");
}

TEST(NumberText, PrintsWholeNumbersPlainly) {
  std::string text;
  for (const std::int32_t value : {0, -1, 2147483647, std::numeric_limits<std::int32_t>::min()}) {
    AppendInt(text, value);
    text += ' ';
  }
  EXPECT_EQ(text, "0 -1 2147483647 -2147483648 ");
}

}  // namespace
}  // namespace vantrel
