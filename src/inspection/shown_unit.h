// The unit in which the panel shows and takes heights.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

struct ShownUnit {
  std::string_view name;  // "mm", "cm" or "in"
  double mm = 1.0;        // how many mm one unit is
  int heightDigits = 1;   // digits after the point of a height
  int sumDigits = 1;      // digits after the point of a length that was summed up
};

// Millimetres for any value of Layout::units that is none.
ShownUnit UnitOf(const Layout& layout);

// A height in mm as the unit's bare number.
std::string HeightText(double mm, const ShownUnit& unit);

// The mm that a height typed by the user stands for, or nothing when the text is no real number:
// empty, with something but blanks around the number, not finite. The decimal point is ".".
std::optional<double> HeightFromText(std::string_view text, const ShownUnit& unit);

}  // namespace vantrel
