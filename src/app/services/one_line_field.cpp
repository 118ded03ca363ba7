#include "app/services/one_line_field.h"

#include <wx/textctrl.h>

namespace vantrel {

wxString WithoutLineBreaks(wxString text) {
  text.Replace("\n", " ");
  text.Replace("\r", " ");
  return text;
}

void KeepOnOneLine(wxTextCtrl& field) {
  field.Bind(wxEVT_TEXT, [&field](wxCommandEvent& event) {
    event.Skip();
    const wxString text = field.GetValue();
    const wxString line = WithoutLineBreaks(text);
    if (line == text) return;
    const long at = field.GetInsertionPoint();
    field.ChangeValue(line);
    field.SetInsertionPoint(at);
  });
}

}  // namespace vantrel
