#include "canvas/autofill_dialog.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "doc/format_length.h"
#include "doc/records.h"

namespace vantrel {
namespace {

constexpr int kBorder = 8;  // pixels
const wxSize kSize(380, 320);
const wxSize kSmallestList(200, 100);

wxSizer* ButtonRow(wxDialog& dialog) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* place = new wxButton(&dialog, wxID_OK, "Place");
  place->SetDefault();
  row->AddStretchSpacer();
  row->Add(place, 0, wxRIGHT, kBorder);
  row->Add(new wxButton(&dialog, wxID_CANCEL, "Cancel"));
  return row;
}

}  // namespace

AutofillDialog::AutofillDialog(wxWindow* parent, double gapMm, const std::vector<std::string>& rows)
    : wxDialog(parent, wxID_ANY, "Autofill Gap", wxDefaultPosition, kSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const std::string gap = "Gap: " + FormatFixed(gapMm, 1) + " mm. Select fill:";
  column->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8(gap)), 0, wxALL, kBorder);
  wxArrayString texts;
  for (const std::string& row : rows) texts.Add(wxString::FromUTF8(row));
  // A row of many pieces is far wider than the dialog: the list scrolls to its end.
  list_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, texts,
                        wxLB_SINGLE | wxLB_HSCROLL | wxLB_NEEDED_SB);
  list_->SetMinSize(kSmallestList);
  if (!rows.empty()) list_->SetSelection(0);
  list_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { EndModal(wxID_OK); });
  column->Add(list_, 1, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  column->Add(ButtonRow(*this), 0, wxEXPAND | wxALL, kBorder);
  SetSizer(column);
  fitAtLeast(kSize);
  CentreOnParent();
  list_->SetFocus();
}

int AutofillDialog::row() const {
  const int selected = list_->GetSelection();
  return selected == wxNOT_FOUND ? kNone : selected;
}

void AutofillDialog::fitAtLeast(wxSize size) {
  const wxSize needed = ClientToWindowSize(GetSizer()->ComputeFittingClientSize(this));
  SetMinSize(needed);
  size.IncTo(needed);
  SetSize(size);
  Layout();
}

}  // namespace vantrel
