#include "dialogs/print_options_dialog.h"

#include <wx/checkbox.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <algorithm>
#include <string>

#include "dialogs/dialog_layout.h"
#include "dialogs/message_boxes.h"

namespace vantrel {
namespace {

// Pixels.
constexpr int kBorder = 10;
constexpr int kGap = 6;
constexpr int kSpinWidth = 80;

constexpr int kSmallest = 1;
constexpr int kLargest = 1000;

template <std::size_t Count>
wxRadioBox* MakeRadioBox(wxWindow* parent, int id, const char* title,
                         const wxString (&choices)[Count], int columns, int chosen) {
  auto* box = new wxRadioBox(parent, id, title, wxDefaultPosition, wxDefaultSize,
                             static_cast<int>(Count), choices, columns, wxRA_SPECIFY_COLS);
  box->SetSelection(chosen >= 0 && chosen < static_cast<int>(Count) ? chosen : 0);
  return box;
}

}  // namespace

PrintOptionsDialog::PrintOptionsDialog(wxWindow* parent, const PrintOptions& options)
    : wxDialog(parent, wxID_ANY, "Print Options"), options_(options), typed_(*this) {
  build();
  showMode();
  Bind(
      wxEVT_RADIOBOX, [this](wxCommandEvent&) { showMode(); }, kScalingBoxId);
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { accept(); }, wxID_OK);
  // A radio box that is given the focus keeps it from its buttons, and then no arrow key chooses.
  Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent& event) {
    event.Skip();
    CallAfter([this] { scaling_->NavigateIn(); });
  });
  Centre();
}

void PrintOptionsDialog::build() {
  const wxString scalings[] = {"Fit to page", "Actual scale 1 : N", "Custom percentage"};
  const wxString levels[] = {"Active level only", "All levels (composite)"};
  const wxString colours[] = {"Color", "Grayscale"};
  auto* column = new wxBoxSizer(wxVERTICAL);
  const auto add = [column](auto* item) {
    column->Add(item, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder);
  };
  scaling_ = MakeRadioBox(this, kScalingBoxId, "Scaling", scalings, 1, options_.mode);
  add(scaling_);
  add(makeRow(scale_, "    1 :", "  (e.g. 1:10 -- 10 mm on layout = 1 mm on paper)",
              options_.scaleN));
  add(makeRow(percent_, "    Scale:", "  %", options_.percent));
  levels_ = MakeRadioBox(this, wxID_ANY, "Levels", levels, 1, options_.allLevels != 0 ? 1 : 0);
  add(levels_);
  colour_ = MakeRadioBox(this, wxID_ANY, "Color", colours, 2, options_.grayscale != 0 ? 1 : 0);
  add(colour_);
  add(makeIncludeBox());
  column->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), 0, wxEXPAND | wxALL, kBorder);
  SetSizerAndFit(column);
}

wxSizer* PrintOptionsDialog::makeRow(NumberRow& row, const char* before, const char* behind,
                                     int value) {
  row.before = new wxStaticText(this, wxID_ANY, before);
  row.spin =
      new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS,
                     kSmallest, kLargest, std::clamp(value, kSmallest, kLargest));
  row.spin->SetMinSize(wxSize(std::max(kSpinWidth, row.spin->GetBestSize().x), -1));
  row.behind = new wxStaticText(this, wxID_ANY, behind);
  typed_.watch(*row.spin, kSmallest, kLargest);
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  sizer->Add(row.before, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
  sizer->Add(row.spin, 0, wxALIGN_CENTRE_VERTICAL);
  sizer->Add(row.behind, 0, wxALIGN_CENTRE_VERTICAL);
  return sizer;
}

wxSizer* PrintOptionsDialog::makeIncludeBox() {
  auto* box = new wxStaticBoxSizer(wxVERTICAL, this, "Include");
  grid_ = new wxCheckBox(box->GetStaticBox(), wxID_ANY, "Grid");
  grid_->SetValue(options_.includeGrid);
  box->Add(grid_, 0, wxLEFT | wxTOP, kGap);
  baseboard_ = new wxCheckBox(box->GetStaticBox(), wxID_ANY, "Baseboard outline");
  baseboard_->SetValue(options_.includeBaseboard);
  box->Add(baseboard_, 0, wxLEFT | wxTOP | wxBOTTOM, kGap);
  return box;
}

void PrintOptionsDialog::NumberRow::enable(bool on) {
  before->Enable(on);
  spin->Enable(on);
  behind->Enable(on);
}

void PrintOptionsDialog::showMode() {
  scale_.enable(scaling_->GetSelection() == kActualScale);
  percent_.enable(scaling_->GetSelection() == kCustomPercentage);
}

void PrintOptionsDialog::accept() {
  wxSpinCtrlBase* refused = typed_.takeRefused();
  // What was typed into a number that doesn't count any more is nobody's concern.
  if (refused != nullptr && !refused->IsEnabled()) refused = typed_.takeRefused();
  if (refused != nullptr && refused->IsEnabled()) {
    Warn(this, "Print Options",
         "Please enter a whole number from " + std::to_string(kSmallest) + " to " +
             std::to_string(kLargest) + ".");
    refused->SetFocus();
    return;
  }
  options_.mode = scaling_->GetSelection();
  options_.scaleN = scale_.spin->GetValue();
  options_.percent = percent_.spin->GetValue();
  options_.allLevels = levels_->GetSelection();
  options_.grayscale = colour_->GetSelection();
  options_.includeGrid = grid_->GetValue();
  options_.includeBaseboard = baseboard_->GetValue();
  EndModal(wxID_OK);
}

}  // namespace vantrel
