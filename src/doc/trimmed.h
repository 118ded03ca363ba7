// What the user meant to type: a text without the white space around it.
#pragma once

#include <string_view>

namespace vantrel {

// The UTF-8 text without white space at both ends, the wide and narrow blanks of other scripts and
// no-break spaces included.
std::string_view Trimmed(std::string_view text);

}  // namespace vantrel
