#include "canvas/shape_properties_dialog.h"

#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

#include "app/services/number_entry.h"
#include "app/services/one_line_field.h"
#include "app/services/wx_text.h"
#include "doc/layout.h"

namespace vantrel {
namespace {

constexpr int kNameWidth = 240;
constexpr int kOpacityWidth = 70;
constexpr double kGreatestHeight = 5000.0;  // in the shown unit
constexpr int kMargin = 10;

double MmPerUnit(std::int32_t units) {
  if (units == kCentimetres) return 10.0;
  return units == kInches ? 25.4 : 1.0;
}

wxString UnitName(std::int32_t units) {
  if (units == kCentimetres) return "cm";
  return units == kInches ? "in" : "mm";
}

// A stated width is a wish: no control gets less than it needs.
void WidenTo(wxWindow& control, int width) {
  control.SetMinSize(wxSize(std::max(width, control.GetBestSize().GetWidth()), -1));
}

}  // namespace

ShapePropertiesDialog::ShapePropertiesDialog(wxWindow* parent, const ShapeProperties& properties,
                                             std::int32_t units)
    : wxDialog(parent, wxID_ANY, "Shape Properties"),
      start_(properties),
      mmPerUnit_(MmPerUnit(units)) {
  auto* const column = new wxBoxSizer(wxVERTICAL);
  addNameRow(*column);
  addColourRow(*column);
  addHeightRow(*column, units);
  outline_ = new wxCheckBox(this, wxID_ANY, "Show outline");
  outline_->SetValue(start_.outline);
  column->Add(outline_, 0, wxLEFT | wxRIGHT | wxTOP, kMargin);
  column->Add(CreateButtonSizer(wxOK | wxCANCEL), 0, wxALL | wxEXPAND, kMargin);
  SetSizerAndFit(column);
  CentreOnParent();
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { accept(); }, wxID_OK);
  name_->SetFocus();
}

void ShapePropertiesDialog::addNameRow(wxSizer& column) {
  auto* const row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, "Name:"), 0, wxALIGN_CENTRE_VERTICAL);
  name_ =
      new wxTextCtrl(this, wxID_ANY, ToWx(start_.label), wxDefaultPosition, wxSize(kNameWidth, -1));
  KeepOnOneLine(*name_);
  row->Add(name_, 1, wxLEFT, kMargin);
  column.Add(row, 0, wxLEFT | wxRIGHT | wxTOP | wxEXPAND, kMargin);
}

void ShapePropertiesDialog::addColourRow(wxSizer& column) {
  auto* const row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, "Color:"), 0, wxALIGN_CENTRE_VERTICAL);
  colour_ = new wxColourPickerCtrl(this, wxID_ANY, wxColour(start_.r, start_.g, start_.b));
  row->Add(colour_, 0, wxLEFT, kMargin);
  row->Add(new wxStaticText(this, wxID_ANY, "Opacity %:"), 0, wxLEFT | wxALIGN_CENTRE_VERTICAL,
           kMargin);
  opacity_ = new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                            wxSP_ARROW_KEYS, 0, 100, start_.opacityPercent);
  WidenTo(*opacity_, kOpacityWidth);
  WatchNumberEntry(*opacity_);
  row->Add(opacity_, 0, wxLEFT | wxALIGN_CENTRE_VERTICAL, kMargin);
  column.Add(row, 0, wxLEFT | wxRIGHT | wxTOP, kMargin);
}

void ShapePropertiesDialog::addHeightRow(wxSizer& column, std::int32_t units) {
  auto* const row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, "Height (above level deck, " + UnitName(units) + "):"),
           0, wxALIGN_CENTRE_VERTICAL);
  height_ = new wxSpinCtrlDouble(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                 wxSP_ARROW_KEYS, 0.0, kGreatestHeight, 0.0,
                                 units == kInches ? 0.1 : 1.0);
  height_->SetDigits(units == kInches ? 2 : 1);
  height_->SetValue(start_.height / mmPerUnit_);
  WidenTo(*height_, height_->GetBestSize().GetWidth());
  shownHeight_ = height_->GetValue();
  WatchNumberEntry(*height_);
  row->Add(height_, 0, wxLEFT | wxALIGN_CENTRE_VERTICAL, kMargin);
  column.Add(row, 0, wxLEFT | wxRIGHT | wxTOP, kMargin);
}

void ShapePropertiesDialog::accept() {
  for (wxWindow* field : {static_cast<wxWindow*>(opacity_), static_cast<wxWindow*>(height_)})
    if (IsMarkedRefused(*field)) {
      field->SetFocus();  // which takes the mark away: the number that stays has been seen
      return;
    }
  EndModal(wxID_OK);
}

ShapeProperties ShapePropertiesDialog::properties() const {
  const wxColour colour = colour_->GetColour();
  const double height = height_->GetValue();
  return {.label = ToUtf8(name_->GetValue()),
          .r = colour.Red(),
          .g = colour.Green(),
          .b = colour.Blue(),
          .opacityPercent = opacity_->GetValue(),
          .height = height == shownHeight_ ? start_.height : height * mmPerUnit_,
          .outline = outline_->GetValue()};
}

}  // namespace vantrel
