#include "io/number_text.h"

#include <locale.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace vantrel {
namespace {

constexpr int kDecimals = 4;

std::string_view SkipBlanks(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
  return text.substr(start == std::string_view::npos ? text.size() : start);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The platform's own conversion: it knows every form and its exact range, but needs a terminated
// copy and several times as long.
double RealByPlatform(std::string_view text) {
  static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", locale_t{});
  const std::string copy(text);
  char* end = nullptr;
  errno = 0;
  const double value = strtod_l(copy.c_str(), &end, cLocale);
  if (end == copy.c_str()) throw BadNumber("invalid stod argument");
  if (errno == ERANGE) throw BadNumber("stod argument out of range");
  return value;
}

}  // namespace

std::int32_t IntFromText(std::string_view text) {
  text = SkipBlanks(text);
  // from_chars knows "-" but not "+".
  if (text.starts_with('+') && text.size() > 1 && IsDigit(text[1])) text.remove_prefix(1);
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument) throw BadNumber("invalid stoi argument");
  if (error == std::errc::result_out_of_range) throw BadNumber("stoi argument out of range");
  return value;
}

double RealFromText(std::string_view text) {
  const std::string_view number = SkipBlanks(text);
  double value = 0.0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  // A file of this program holds nothing but plain decimals of ordinary size. What from_chars can't
  // judge goes the slow way: a plus sign, hexadecimal (where it stops at the x), and the
  // neighbourhood of the ends of the range.
  const bool plain = error == std::errc{} && std::isfinite(value) &&
                     (end == number.data() + number.size() || (*end != 'x' && *end != 'X'));
  if (plain) {
    if (std::abs(value) > std::numeric_limits<double>::min()) return value;
    const std::string_view taken(number.data(), static_cast<std::size_t>(end - number.data()));
    if (taken.find_first_of("123456789") == std::string_view::npos) return value;
  }
  return RealByPlatform(text);
}

void AppendInt(std::string& out, std::int32_t value) {
  std::array<char, 16> digits;
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  out.append(digits.data(), end);
}

void AppendReal(std::string& out, double value) {
  // Enough for the 309 digits before the point of the largest double.
  std::array<char, 400> digits;
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                          std::chars_format::fixed, kDecimals);
  out.append(digits.data(), end);
}

}  // namespace vantrel
