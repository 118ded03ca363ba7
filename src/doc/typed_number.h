// Numbers as the user types them.
#pragma once

#include <optional>
#include <string_view>

namespace vantrel {

// The real number that the text is, or nothing when it is none: empty, with something but blanks
// around the number, not finite. The decimal point is "." or ",", whatever the locale; there is no
// sign between thousands, so a text with two of them is no number.
std::optional<double> TypedNumber(std::string_view text);

}  // namespace vantrel
