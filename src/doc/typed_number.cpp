#include "doc/typed_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

#include "doc/trimmed.h"

namespace vantrel {

std::optional<double> TypedNumber(std::string_view typed) {
  std::string pointed(Trimmed(typed));
  std::ranges::replace(pointed, ',', '.');
  std::string_view text = pointed;
  // from_chars knows no plus sign, and two signs are no number.
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace vantrel
