#include "inspection/shown_unit.h"

#include <cmath>

#include "doc/format_length.h"
#include "doc/typed_number.h"

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
  const std::optional<double> value = TypedNumber(text);
  if (!value || !std::isfinite(*value * unit.mm)) return std::nullopt;
  return *value * unit.mm;
}

}  // namespace vantrel
