// How the properties panel is put together, from the top downward: the order in which controls are
// made is the order in which Tab goes through them.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "inspection/selection_edits.h"
#include "properties/properties_panel.h"
#include "properties/tally_panel.h"
#include "properties/text.h"
#include "properties/warning_colour.h"
#include "properties/wrapped_label.h"

namespace vantrel {
namespace {

// Pixels.
constexpr int kBorder = 4;
constexpr int kHeightFieldWidth = 65;
constexpr int kGradeSpinWidth = 70;
constexpr int kNarrowChoice = 60;  // a choice may get narrower than its longest entry
constexpr int kScrollStep = 10;

// Lines that a text may take before it is shortened.
constexpr int kTitleLines = 4;
constexpr int kInfoLines = 3;

constexpr double kGradeStepDeg = 0.5;

const int kMiddle = wxALIGN_CENTRE_VERTICAL;

WrappedLabel* AddWrapped(wxWindow* parent, wxSizer* sizer, const char* name, int lines) {
  auto* label = new WrappedLabel(parent, lines);
  label->SetName(name);
  sizer->Add(label, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder);
  return label;
}

wxStaticText* AddText(wxWindow* parent, wxSizer* sizer, const wxString& text) {
  auto* label = new wxStaticText(parent, wxID_ANY, text);
  sizer->Add(label, 0, kMiddle | wxRIGHT, kBorder);
  return label;
}

wxButton* AddButton(wxWindow* parent, wxSizer* sizer, int id, const wxString& text) {
  auto* button = new wxButton(parent, id, text, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
  sizer->Add(button, 0, kMiddle);
  return button;
}

// A width is a wish: a control that needs more gets more.
wxSize AtLeast(int width, const wxWindow& control) {
  return {std::max(width, control.GetBestSize().x), -1};
}

}  // namespace

void PropertiesPanel::build() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(buildLabelBox(), 0, wxEXPAND | wxALL, kBorder);
  titleLabel_ = AddWrapped(this, column, "titleLabel", kTitleLines);
  titleLabel_->SetFont(titleLabel_->GetFont().Bold());
  infoLabel_ = AddWrapped(this, column, "infoLabel", kInfoLines);
  column->Add(buildLevelRow(), 0, wxEXPAND | wxALL, kBorder);
  column->Add(buildColourBox(), 0, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  column->Add(buildGradeBox(), 0, wxEXPAND | wxALL, kBorder);
  tally_ = new TallyPanel(this, workspace_);
  column->Add(tally_, 1, wxEXPAND);
  SetSizer(column);
  SetScrollRate(0, kScrollStep);
}

wxSizer* PropertiesPanel::buildLabelBox() {
  auto* row = new wxStaticBoxSizer(wxHORIZONTAL, this, "Add Label");
  wxWindow* box = row->GetStaticBox();
  labelField_ = new wxTextCtrl(box, kLabelFieldId, wxString(), wxDefaultPosition, wxDefaultSize,
                               wxTE_PROCESS_ENTER);
  row->Add(labelField_, 1, kMiddle | wxRIGHT, kBorder);
  AddButton(box, row, kAddLabelId, "OK");
  return row;
}

wxSizer* PropertiesPanel::buildLevelRow() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  AddText(this, row, "Level:");
  levelChoice_ = new wxChoice(this, kLevelChoiceId);
  levelChoice_->SetMinSize(wxSize(kNarrowChoice, -1));
  row->Add(levelChoice_, 1, kMiddle);
  return row;
}

wxSizer* PropertiesPanel::buildColourBox() {
  auto* row = new wxStaticBoxSizer(wxHORIZONTAL, this, "Color");
  wxWindow* box = row->GetStaticBox();
  colourChoice_ = new wxChoice(box, kColourChoiceId);
  for (const PaintColour& colour : paintColours()) colourChoice_->Append(ShownText(colour.name));
  colourChoice_->SetSelection(0);
  colourChoice_->SetMinSize(wxSize(kNarrowChoice, -1));
  row->Add(colourChoice_, 1, kMiddle | wxRIGHT, kBorder);
  AddButton(box, row, kApplyColourId, "Apply");
  return row;
}

wxSizer* PropertiesPanel::buildGradeBox() {
  auto* column = new wxStaticBoxSizer(wxVERTICAL, this, "Set Grade");
  wxWindow* box = column->GetStaticBox();

  auto* heightRow = new wxBoxSizer(wxHORIZONTAL);
  heightCaption_ = AddText(box, heightRow, wxString());
  heightCaption_->SetName("heightCaption");
  heightField_ = new wxTextCtrl(box, kHeightFieldId, wxString(), wxDefaultPosition, wxDefaultSize,
                                wxTE_PROCESS_ENTER);
  heightField_->SetMinSize(AtLeast(kHeightFieldWidth, *heightField_));
  heightRow->Add(heightField_, 0, kMiddle);
  column->Add(heightRow, 0, wxEXPAND);

  auto* gradeRow = new wxBoxSizer(wxHORIZONTAL);
  AddText(box, gradeRow, "Grade:");
  gradeValue_ = AddText(box, gradeRow, wxString());
  gradeValue_->SetName("gradeValue");
  column->Add(gradeRow, 0, wxEXPAND | wxTOP, kBorder);
  gradeWarning_ = AddWrapped(box, column, "gradeWarning", kInfoLines);
  gradeWarning_->SetForegroundColour(kWarningColour);
  column->Add(new wxStaticText(box, wxID_ANY, "Set height above baseboard.\nMax grade: 6 deg."), 0,
              wxTOP, kBorder);
  column->Add(buildGradeSettings(box), 0, wxEXPAND | wxTOP, kBorder);
  column->Add(buildGradeButtons(box), 0, wxEXPAND | wxTOP, kBorder);
  return column;
}

wxSizer* PropertiesPanel::buildGradeSettings(wxWindow* box) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  gradeUp_ = new wxRadioButton(box, wxID_ANY, "UP", wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
  gradeDown_ = new wxRadioButton(box, wxID_ANY, "DOWN");
  gradeUp_->SetValue(true);
  gradeSpin_ = new wxSpinCtrlDouble(box, wxID_ANY, "0.0", wxDefaultPosition, wxDefaultSize,
                                    wxSP_ARROW_KEYS, 0.0, kMaxGradeDeg, 0.0, kGradeStepDeg);
  gradeSpin_->SetDigits(1);
  gradeSpin_->SetMinSize(AtLeast(kGradeSpinWidth, *gradeSpin_));
  row->Add(gradeUp_, 0, kMiddle | wxRIGHT, kBorder);
  row->Add(gradeDown_, 0, kMiddle | wxRIGHT, kBorder);
  row->Add(gradeSpin_, 0, kMiddle | wxRIGHT, kBorder);
  AddText(box, row, "deg");
  return row;
}

wxSizer* PropertiesPanel::buildGradeButtons(wxWindow* box) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  startGrade_ = AddButton(box, row, kStartGradeId, "Start Grade");
  row->AddSpacer(kBorder);
  endGrade_ = AddButton(box, row, kEndGradeId, "End Grade");
  row->AddSpacer(kBorder);
  recalc_ = AddButton(box, row, kRecalcId, "Recalc");
  recalc_->SetToolTip("Recalculate elevation chain from this piece forward");
  return row;
}

}  // namespace vantrel
