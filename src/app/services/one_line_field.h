// Text fields for what stands on one line of a file.
#pragma once

#include <wx/string.h>

class wxTextCtrl;

namespace vantrel {

// The text with its line breaks as blanks.
wxString WithoutLineBreaks(wxString text);

// Makes blanks of the line breaks in what is pasted or dropped into the field. To be called after
// the field was given other handlers of its text, which may keep it to themselves.
void KeepOnOneLine(wxTextCtrl& field);

}  // namespace vantrel
