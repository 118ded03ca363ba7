// Texts for message boxes, which grow with what they say: a name from a file may be of any length,
// and a box that is larger than the screen has its buttons out of reach.
#pragma once

#include <wx/string.h>

namespace vantrel {

// The text with an invisible place to break in words that no line can hold, and without its middle
// when it is too long for the screen. Ordinary texts stay as they are.
wxString BoxText(const wxString& text);

}  // namespace vantrel
