#include "inspection/shown_unit.h"

#include <charconv>
#include <cmath>
#include <system_error>

#include "doc/format_length.h"
#include "inspection/trimmed.h"

namespace vantrel {

ShownUnit UnitOf(const Layout& layout) {
  switch (layout.units) {
    case kCentimetres:
      return {.name = "cm", .mm = 10.0, .heightDigits = 1, .sumDigits = 1};
    case kInches:
      return {.name = "in", .mm = 25.4, .heightDigits = 3, .sumDigits = 2};
    default:
      return {.name = "mm", .mm = 1.0, .heightDigits = 1, .sumDigits = 1};
  }
}

std::string HeightText(double mm, const ShownUnit& unit) {
  return FormatFixed(mm / unit.mm, unit.heightDigits);
}

std::optional<double> HeightFromText(std::string_view text, const ShownUnit& unit) {
  text = Trimmed(text);
  // from_chars knows no plus sign, and two signs are no number.
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end) return std::nullopt;
  const double mm = value * unit.mm;
  if (!std::isfinite(mm)) return std::nullopt;
  return mm;
}

}  // namespace vantrel
