// Lengths as the user reads them.
#pragma once

#include <cstdint>
#include <string>

namespace vantrel {

// "%.1f cm" for units 1, "%.2f in" for units 2, "%.0f mm" for anything else. The decimal point is
// always ".", whatever the locale.
std::string FormatLength(double lengthMm, std::int32_t units);

// `value` with a fixed number of digits after the point, independent of the locale. Never "-0".
std::string FormatFixed(double value, int digits);

}  // namespace vantrel
