#include "canvas/resize_scenery_dialog.h"
#include "app/services/number_entry.h"
#include "app/services/wx_text.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>

#include <algorithm>
#include <string>

#include "doc/format_length.h"

namespace vantrel {
namespace {

constexpr double kSmallest = 0.1;
constexpr double kLargest = 10.0;
constexpr double kStep = 0.1;
constexpr int kSpinWidth = 80;
constexpr int kMargin = 10;

std::string Whole(double mm) {
  return FormatFixed(mm, 0);
}

// A spin rounds what it is given to the digits that it shows.
double Kept(double value, double shown, double start) {
  return value == shown && start >= kSmallest && start <= kLargest ? start : value;
}

}  // namespace

ResizeSceneryDialog::ResizeSceneryDialog(wxWindow* parent, SceneryFootprint size,
                                         SceneryScale scale)
    : wxDialog(parent, wxID_ANY, "Resize Scenery"),
      start_(scale),
      startRatio_(scale.y > 0.0 ? scale.x / scale.y : 1.0) {
  auto* const column = new wxBoxSizer(wxVERTICAL);
  const std::string sizes = "Catalog size: " + Whole(size.width) + " x " + Whole(size.depth) +
                            " mm    Current: " + Whole(size.width * scale.x) + " x " +
                            Whole(size.depth * scale.y) + " mm";
  column->Add(new wxStaticText(this, wxID_ANY, ToWx(sizes)), 0, wxALL, kMargin);
  width_ = addRow(*column, "Width scale:", scale.x, size.width * scale.x);
  depth_ = addRow(*column, "Depth scale:", scale.y, size.depth * scale.y);
  shown_ = {.x = width_->GetValue(), .y = depth_->GetValue()};
  locked_ = new wxCheckBox(this, wxID_ANY, "Lock aspect ratio");
  locked_->SetValue(true);
  column->Add(locked_, 0, wxALL, kMargin);

  auto* const buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->Add(new wxButton(this, wxID_RESET, "Reset to Default"));
  buttons->AddStretchSpacer();
  auto* const ok = new wxButton(this, wxID_OK, "OK");
  buttons->Add(ok, 0, wxLEFT, kMargin);
  buttons->Add(new wxButton(this, wxID_CANCEL, "Cancel"), 0, wxLEFT, kMargin);
  column->Add(buttons, 0, wxALL | wxEXPAND, kMargin);
  ok->SetDefault();
  SetSizerAndFit(column);
  CentreOnParent();

  width_->Bind(wxEVT_SPINCTRLDOUBLE, &ResizeSceneryDialog::onWidth, this);
  for (wxSpinCtrlDouble* spin : {width_, depth_}) WatchNumberEntry(*spin);
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { accept(); }, wxID_OK);
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_RESET); }, wxID_RESET);
}

wxSpinCtrlDouble* ResizeSceneryDialog::addRow(wxSizer& column, const wxString& caption,
                                              double factor, double sizeMm) {
  auto* const row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, caption), 0, wxALIGN_CENTRE_VERTICAL);
  auto* const spin =
      new wxSpinCtrlDouble(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                           wxSP_ARROW_KEYS, kSmallest, kLargest, factor, kStep);
  // As many digits as a factor can have that was made with the mouse and is worth reading.
  spin->SetDigits(3);
  spin->SetValue(factor);
  spin->SetMinSize(wxSize(std::max(kSpinWidth, spin->GetBestSize().GetWidth()), -1));
  row->Add(spin, 0, wxLEFT | wxALIGN_CENTRE_VERTICAL, kMargin);
  const std::string size = "(= " + Whole(sizeMm) + " mm)";
  row->Add(new wxStaticText(this, wxID_ANY, ToWx(size)), 0, wxLEFT | wxALIGN_CENTRE_VERTICAL,
           kMargin);
  column.Add(row, 0, wxLEFT | wxRIGHT | wxTOP, kMargin);
  return spin;
}

void ResizeSceneryDialog::onWidth(wxSpinDoubleEvent& event) {
  if (locked_->GetValue()) depth_->SetValue(event.GetValue() / startRatio_);
}

void ResizeSceneryDialog::accept() {
  for (wxSpinCtrlDouble* spin : {width_, depth_})
    if (IsMarkedRefused(*spin)) {
      spin->SetFocus();  // which takes the mark away: the number that stays has been seen
      return;
    }
  EndModal(wxID_OK);
}

SceneryScale ResizeSceneryDialog::scale() const {
  if (GetReturnCode() == wxID_RESET) return {};
  return {.x = Kept(width_->GetValue(), shown_.x, start_.x),
          .y = Kept(depth_->GetValue(), shown_.y, start_.y)};
}

}  // namespace vantrel
