#include "dialogs/dialog_layout.h"

#include <wx/button.h>
#include <wx/dirdlg.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include "app/services/wx_text.h"

namespace vantrel {
namespace {

constexpr int kGap = 8;  // pixels between buttons

}  // namespace

void FitAtLeast(wxDialog& dialog, wxSizer* sizer, wxSize size) {
  dialog.SetSizer(sizer);
  const wxSize needed = dialog.ClientToWindowSize(sizer->ComputeFittingClientSize(&dialog));
  dialog.SetMinSize(needed);
  size.IncTo(needed);
  dialog.SetSize(size);
  dialog.Layout();
}

void ReachFirstRowByKey(wxListBox& list) {
  list.Bind(wxEVT_KEY_DOWN, [&list](wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool arrow = key == WXK_DOWN || key == WXK_UP;
    if (!arrow || list.IsEmpty() || list.GetSelection() != wxNOT_FOUND) {
      event.Skip();
      return;
    }
    list.SetSelection(0);
    wxCommandEvent selected(wxEVT_LISTBOX, list.GetId());
    selected.SetEventObject(&list);
    list.ProcessWindowEvent(selected);
  });
}

AcceptRow MakeAcceptRow(wxDialog& dialog, const wxString& label) {
  AcceptRow result;
  result.accept = new wxButton(&dialog, wxID_OK, label);
  result.accept->SetDefault();
  result.accept->Disable();
  result.row = new wxBoxSizer(wxHORIZONTAL);
  result.row->AddStretchSpacer();
  result.row->Add(result.accept, 0, wxRIGHT, kGap);
  result.row->Add(new wxButton(&dialog, wxID_CANCEL, "Cancel"));
  return result;
}

FolderRow MakeFolderRow(wxDialog& dialog, const wxString& folder, const wxString& question) {
  FolderRow result;
  result.field = new wxTextCtrl(&dialog, wxID_ANY, folder);
  auto* browse = new wxButton(&dialog, wxID_ANY, "Browse...");
  browse->Bind(wxEVT_BUTTON, [&dialog, field = result.field, question](wxCommandEvent&) {
    wxDirDialog chooser(&dialog, question, Trimmed(field->GetValue()));
    if (chooser.ShowModal() == wxID_OK) field->SetValue(chooser.GetPath());
  });
  result.row = new wxBoxSizer(wxHORIZONTAL);
  result.row->Add(result.field, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
  result.row->Add(browse, 0, wxALIGN_CENTRE_VERTICAL);
  return result;
}

}  // namespace vantrel
