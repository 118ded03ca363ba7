#include "canvas/autofill_dialog.h"
#include "app/services/wx_text.h"

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
constexpr int kRowAir = 10;  // what a list keeps free above and below the text of a row

wxSizer* ButtonRow(wxDialog& dialog) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* place = new wxButton(&dialog, wxID_OK, "Place");
  place->SetDefault();
  row->AddStretchSpacer();
  row->Add(place, 0, wxRIGHT, kBorder);
  row->Add(new wxButton(&dialog, wxID_CANCEL, "Cancel"));
  return row;
}

// What the list needs to show all its rows whole, as far as the window behind it reaches.
wxSize ListSize(const wxDialog& dialog, const wxListBox& list) {
  const int rows = static_cast<int>(list.GetCount());
  wxSize size(list.GetBestSize().x, rows * (list.GetCharHeight() + kRowAir));
  if (const wxWindow* behind = dialog.GetParent())
    size.DecTo(wxGetTopLevelParent(const_cast<wxWindow*>(behind))->GetClientSize());
  size.IncTo(kSmallestList);
  return size;
}

}  // namespace

AutofillDialog::AutofillDialog(wxWindow* parent, double gapMm, const std::vector<std::string>& rows)
    : wxDialog(parent, wxID_ANY, "Autofill Gap", wxDefaultPosition, kSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const std::string gap = "Gap: " + FormatFixed(gapMm, 1) + " mm. Select fill:";
  column->Add(new wxStaticText(this, wxID_ANY, ToWx(gap)), 0, wxALL, kBorder);
  wxArrayString texts;
  for (const std::string& row : rows) texts.Add(ToWx(row));
  // A row of many pieces may be wider than the window: the list scrolls to its end.
  list_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, texts,
                        wxLB_SINGLE | wxLB_HSCROLL | wxLB_NEEDED_SB);
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

// As large as the rows need; the user may make it smaller, down to a small list.
void AutofillDialog::fitAtLeast(wxSize size) {
  list_->SetMinSize(ListSize(*this, *list_));
  size.IncTo(ClientToWindowSize(GetSizer()->ComputeFittingClientSize(this)));
  list_->SetMinSize(kSmallestList);
  SetMinSize(ClientToWindowSize(GetSizer()->ComputeFittingClientSize(this)));
  SetSize(size);
  Layout();
}

}  // namespace vantrel
