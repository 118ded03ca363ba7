#include "doc/format_length.h"

#include <array>
#include <charconv>

#include "doc/layout.h"

namespace vantrel {

std::string FormatFixed(double value, int digits) {
  // Large enough for the 309 digits before the point of the largest double.
  std::array<char, 400> buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                          std::chars_format::fixed, digits);
  std::string text(buffer.data(), error == std::errc{} ? end : buffer.data());
  if (text.starts_with('-') && text.find_first_of("123456789in") == std::string::npos)
    text.erase(0, 1);
  return text;
}

std::string FormatLength(double lengthMm, std::int32_t units) {
  if (units == kCentimetres) return FormatFixed(lengthMm / 10.0, 1) + " cm";
  if (units == kInches) return FormatFixed(lengthMm / 25.4, 2) + " in";
  return FormatFixed(lengthMm, 0) + " mm";
}

}  // namespace vantrel
