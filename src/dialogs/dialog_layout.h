// What the dialogs have in common.
#pragma once

#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/string.h>

class wxButton;
class wxListBox;
class wxTextCtrl;

namespace vantrel {

// Lays the dialog out at `size` pixels, or larger where its controls would be cut off.
void FitAtLeast(wxDialog& dialog, wxSizer* sizer, wxSize size);

// Lets the first Down or Up in a list without a selection choose its first row: the list's own
// invisible cursor stands there already and would pass it over.
void ReachFirstRowByKey(wxListBox& list);

// The accepting button and Cancel at the right end of a row; Enter stands for the first. The
// accepting button starts disabled.
struct AcceptRow {
  wxSizer* row = nullptr;
  wxButton* accept = nullptr;
};
AcceptRow MakeAcceptRow(wxDialog& dialog, const wxString& label);

// A text field with a "Browse..." button behind it; the button asks for a folder, from the field's
// text on, and puts it into the field, which raises the field's text event.
struct FolderRow {
  wxSizer* row = nullptr;
  wxTextCtrl* field = nullptr;
};
FolderRow MakeFolderRow(wxDialog& dialog, const wxString& folder, const wxString& question);

}  // namespace vantrel
