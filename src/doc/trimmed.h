// What the user meant to type: a text without the white space around it, a name on one line.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// The UTF-8 text without white space at both ends, the wide and narrow blanks of other scripts and
// no-break spaces included.
std::string_view Trimmed(std::string_view text);

// The name with its line breaks, which a pasted text may have, as blanks: in a file a name stands
// on the line of its record.
std::string OneLine(std::string_view name);

}  // namespace vantrel
