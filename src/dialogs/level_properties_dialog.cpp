#include "dialogs/level_properties_dialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "app/services/one_line_field.h"
#include "app/services/wx_text.h"
#include "dialogs/message_boxes.h"
#include "doc/format_length.h"

namespace vantrel {
namespace {

// Pixels.
constexpr int kBorder = 10;
constexpr int kGap = 8;
constexpr int kNameWidth = 220;

struct HeightRange {
  double largest;
  double step;
  int digits;
};

// In the unit.
HeightRange RangeOf(const ShownUnit& unit) {
  if (unit.name == "cm") return {.largest = 1000.0, .step = 1.0, .digits = 2};
  if (unit.name == "in") return {.largest = 400.0, .step = 0.1, .digits = 3};
  return {.largest = 10000.0, .step = 1.0, .digits = 1};
}

}  // namespace

LevelPropertiesDialog::LevelPropertiesDialog(wxWindow* parent, const Level& level,
                                             const ShownUnit& unit)
    : wxDialog(parent, wxID_ANY, "Level Properties: " + ToWx(level.name)),
      unit_(unit),
      height_(level.height),
      typed_(*this) {
  build(level);
  shownHeight_ = heightSpin_->GetValue();
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { accept(); }, wxID_OK);
  name_->SetFocus();
  name_->SelectAll();
  Centre();
}

void LevelPropertiesDialog::build(const Level& level) {
  auto* grid = new wxFlexGridSizer(2, wxSize(kGap, kGap));
  grid->AddGrowableCol(1);
  grid->Add(new wxStaticText(this, wxID_ANY, "Name:"), 0, wxALIGN_CENTRE_VERTICAL);
  name_ = new wxTextCtrl(this, wxID_ANY, ToWx(level.name));
  KeepOnOneLine(*name_);
  name_->SetMinSize(wxSize(std::max(kNameWidth, name_->GetBestSize().x), -1));
  grid->Add(name_, 0, wxEXPAND);
  buildHeight(*grid);
  trackColour_ = new wxCheckBox(this, wxID_ANY, "Color track on this level:");
  trackColour_->SetValue(level.trackcolor);
  grid->Add(trackColour_, 0, wxALIGN_CENTRE_VERTICAL);
  colour_ = new wxColourPickerCtrl(this, wxID_ANY, wxColour(level.r, level.g, level.b));
  grid->Add(colour_, 0, wxALIGN_CENTRE_VERTICAL);

  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  auto* ok = new wxButton(this, wxID_OK, "OK");
  ok->SetDefault();
  buttons->AddStretchSpacer();
  buttons->Add(ok, 0, wxRIGHT, kGap);
  buttons->Add(new wxButton(this, wxID_CANCEL, "Cancel"));
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(grid, 1, wxEXPAND | wxALL, kBorder);
  column->Add(buttons, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, kBorder);
  SetSizerAndFit(column);
}

void LevelPropertiesDialog::buildHeight(wxFlexGridSizer& grid) {
  const HeightRange range = RangeOf(unit_);
  grid.Add(new wxStaticText(this, wxID_ANY,
                            "Height off the ground (" + ToWx(std::string(unit_.name)) + "):"),
           0, wxALIGN_CENTRE_VERTICAL);
  heightSpin_ = new wxSpinCtrlDouble(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                     wxSP_ARROW_KEYS, 0.0, range.largest, 0.0, range.step);
  heightSpin_->SetDigits(static_cast<unsigned>(range.digits));
  const double shown = std::isnan(height_) ? 0.0 : height_ / unit_.mm;
  heightSpin_->SetValue(std::clamp(shown, 0.0, range.largest));
  grid.Add(heightSpin_, 0, wxALIGN_CENTRE_VERTICAL);
  typed_.watch(*heightSpin_, 0.0, range.largest);
}

LevelProperties LevelPropertiesDialog::properties() const {
  const double shown = heightSpin_->GetValue();
  const bool leftAlone = shown == shownHeight_ && std::isfinite(height_);
  const wxColour colour = colour_->GetColour();
  return {.name = ToUtf8(name_->GetValue()),
          .height = leftAlone ? height_ : shown * unit_.mm,
          .trackcolor = trackColour_->GetValue(),
          .r = colour.Red(),
          .g = colour.Green(),
          .b = colour.Blue()};
}

void LevelPropertiesDialog::accept() {
  if (wxSpinCtrlBase* spin = typed_.takeRefused()) {
    Warn(this, "Level Properties",
         "Please enter a height from 0 to " + FormatFixed(RangeOf(unit_).largest, 0) + " " +
             std::string(unit_.name) + ".");
    spin->SetFocus();
    return;
  }
  EndModal(wxID_OK);
}

}  // namespace vantrel
