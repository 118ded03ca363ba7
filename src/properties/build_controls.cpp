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

#include <algorithm>

#include "app/services/number_entry.h"
#include "app/services/one_line_field.h"
#include "app/services/wx_text.h"
#include "inspection/page_texts.h"
#include "inspection/selection_edits.h"
#include "inspection/shown_unit.h"
#include "properties/properties_panel.h"
#include "properties/tally_panel.h"
#include "properties/warning_colour.h"
#include "properties/wrapped_label.h"

namespace vantrel {
namespace {

// Pixels.
constexpr int kBorder = 3;   // to the edge of the panel
constexpr int kPadding = 2;  // to the frame of a static box
constexpr int kGap = 4;      // between controls
constexpr int kTightGap = 2;
constexpr int kButtonAir = 8;  // beside the text of a small button
constexpr int kHeightFieldWidth = 65;
constexpr int kGradeSpinWidth = 70;
constexpr int kNarrowChoice = 60;  // a choice may get narrower than its longest entry
constexpr int kScrollStep = 10;

// Lines that a text may take before it is shortened.
constexpr int kTitleLines = 4;
constexpr int kInfoLines = 3;
constexpr int kHintLines = 4;

constexpr double kGradeStepDeg = 0.5;

// None that is usual shows as a longer text.
constexpr double kLongestGradeDeg = -10.0;

const int kMiddle = wxALIGN_CENTRE_VERTICAL;

WrappedLabel* AddWrapped(wxWindow* parent, wxSizer* sizer, const char* name, int lines) {
  auto* label = new WrappedLabel(parent, lines);
  label->SetName(name);
  label->SetMinSize(wxSize(0, -1));  // takes what width there is
  sizer->Add(label, 0, wxEXPAND);
  return label;
}

wxStaticText* AddText(wxWindow* parent, wxSizer* sizer, const wxString& text) {
  auto* label = new wxStaticText(parent, wxID_ANY, text);
  sizer->Add(label, 0, kMiddle);
  return label;
}

wxButton* AddButton(wxWindow* parent, wxSizer* sizer, int id, const wxString& text,
                    int proportion) {
  auto* button = new wxButton(parent, id, text, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
  button->SetMinSize(button->GetBestSize() + wxSize(kButtonAir, 0));
  sizer->Add(button, proportion, kMiddle);
  return button;
}

// A width is a wish: a control that needs more gets more.
wxSize AtLeast(int width, const wxWindow& control) {
  return {std::max(width, control.GetBestSize().x), -1};
}

// As wide as its label at least. A plain one would want the width at which its controls stood last.
class Frame : public wxStaticBox {
 public:
  using wxStaticBox::wxStaticBox;

 private:
  wxSize DoGetBestSize() const override { return GetTextExtent(GetLabel()); }
};

wxStaticBoxSizer* MakeFrame(wxWindow* parent, const char* label) {
  return new wxStaticBoxSizer(new Frame(parent, wxID_ANY, label), wxVERTICAL);
}

// A sizer inside the frame of a static box that stands in the column.
wxBoxSizer* AddFramed(wxSizer* column, wxStaticBoxSizer* frame, wxOrientation direction) {
  auto* inside = new wxBoxSizer(direction);
  frame->Add(inside, 1, wxEXPAND | wxALL, kPadding);
  column->Add(frame, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder);
  return inside;
}

}  // namespace

void PropertiesPanel::build(wxWindow* foot) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  SetSizer(column);
  SetScrollRate(kScrollStep, kScrollStep);
  buildLabelBox(column);
  buildTitle(column);
  buildLevelRow(column);
  buildColourBox(column);
  buildGradeBox(column);
  tally_ = new TallyPanel(this, workspace_, {}, foot);
  column->Add(tally_, 1, wxEXPAND);
  widestContents_ = contentsWidth();
}

void PropertiesPanel::buildLabelBox(wxSizer* column) {
  auto* frame = MakeFrame(this, "Add Label");
  wxWindow* box = frame->GetStaticBox();
  wxSizer* row = AddFramed(column, frame, wxHORIZONTAL);
  labelField_ = new wxTextCtrl(box, kLabelFieldId, wxString(), wxDefaultPosition, wxDefaultSize,
                               wxTE_PROCESS_ENTER);
  KeepOnOneLine(*labelField_);
  row->Add(labelField_, 1, kMiddle | wxRIGHT, kGap);
  AddButton(box, row, kAddLabelId, "OK", 0);
}

void PropertiesPanel::buildTitle(wxSizer* column) {
  auto* texts = new wxBoxSizer(wxVERTICAL);
  titleLabel_ = AddWrapped(this, texts, "titleLabel", kTitleLines);
  titleLabel_->SetFont(titleLabel_->GetFont().Bold());
  texts->AddSpacer(kTightGap);
  infoLabel_ = AddWrapped(this, texts, "infoLabel", kInfoLines);
  // Room for what nearly all pages need, so that the controls below stay where they are.
  const int usualHeight =
      2 * titleLabel_->GetCharHeight() + kTightGap + infoLabel_->GetCharHeight();
  texts->SetMinSize(0, usualHeight);
  column->Add(texts, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder + kPadding);
}

void PropertiesPanel::buildLevelRow(wxSizer* column) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  AddText(this, row, "Level:");
  row->AddSpacer(kGap);
  levelChoice_ = new wxChoice(this, kLevelChoiceId);
  levelChoice_->SetMinSize(wxSize(kNarrowChoice, -1));
  row->Add(levelChoice_, 1, kMiddle);
  column->Add(row, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder + kPadding);
}

void PropertiesPanel::buildColourBox(wxSizer* column) {
  auto* frame = MakeFrame(this, "Color");
  wxWindow* box = frame->GetStaticBox();
  wxSizer* row = AddFramed(column, frame, wxHORIZONTAL);
  colourChoice_ = new wxChoice(box, kColourChoiceId);
  for (const PaintColour& colour : paintColours()) colourChoice_->Append(ToWx(colour.name));
  colourChoice_->SetSelection(0);
  colourChoice_->SetMinSize(wxSize(kNarrowChoice, -1));
  row->Add(colourChoice_, 1, kMiddle | wxRIGHT, kGap);
  AddButton(box, row, kApplyColourId, "Apply", 0);
}

void PropertiesPanel::buildGradeBox(wxSizer* column) {
  auto* frame = MakeFrame(this, "Set Grade");
  wxWindow* box = frame->GetStaticBox();
  wxSizer* inside = AddFramed(column, frame, wxVERTICAL);

  auto* heightRow = new wxBoxSizer(wxHORIZONTAL);
  // Its longest text, as that of the grade below, for what the panel's smallest width is to hold.
  heightCaption_ = AddText(box, heightRow, ToWx(BaseHeightCaption(UnitOf(workspace_.layout()))));
  heightCaption_->SetName("heightCaption");
  heightRow->AddSpacer(kGap);
  heightField_ = new wxTextCtrl(box, kHeightFieldId, wxString(), wxDefaultPosition, wxDefaultSize,
                                wxTE_PROCESS_ENTER);
  heightField_->SetMinSize(AtLeast(kHeightFieldWidth, *heightField_));
  heightRow->Add(heightField_, 0, kMiddle);
  inside->Add(heightRow, 0, wxEXPAND);

  auto* gradeRow = new wxBoxSizer(wxHORIZONTAL);
  AddText(box, gradeRow, "Grade:");
  gradeRow->AddSpacer(kGap);
  gradeValue_ = AddText(box, gradeRow, ToWx(GradeText(kLongestGradeDeg)));
  gradeValue_->SetName("gradeValue");
  inside->Add(gradeRow, 0, wxEXPAND | wxTOP, kGap);
  gradeWarning_ = AddWrapped(box, inside, "gradeWarning", kInfoLines);
  gradeWarning_->SetForegroundColour(kWarningColour);
  inside->AddSpacer(kTightGap);
  hint_ = AddWrapped(box, inside, "hint", kHintLines);
  hint_->setText("Set height above baseboard.\nMax grade: 6 deg.");
  buildGradeSettings(box, inside);
  buildGradeButtons(box, inside);
}

void PropertiesPanel::buildGradeSettings(wxWindow* box, wxSizer* column) {
  gradeUp_ = new wxRadioButton(box, wxID_ANY, "UP", wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
  gradeDown_ = new wxRadioButton(box, wxID_ANY, "DOWN");
  gradeUp_->SetValue(true);
  gradeSpin_ = new wxSpinCtrlDouble(box, wxID_ANY, "0.0", wxDefaultPosition, wxDefaultSize,
                                    wxSP_ARROW_KEYS, 0.0, kMaxGradeDeg, 0.0, kGradeStepDeg);
  gradeSpin_->SetDigits(1);
  gradeSpin_->SetMinSize(AtLeast(kGradeSpinWidth, *gradeSpin_));
  WatchNumberEntry(*gradeSpin_);

  auto* direction = new wxBoxSizer(wxHORIZONTAL);
  direction->Add(gradeUp_, 0, kMiddle);
  direction->Add(gradeDown_, 0, kMiddle);
  auto* degrees = new wxBoxSizer(wxHORIZONTAL);
  degrees->Add(gradeSpin_, 0, kMiddle | wxRIGHT, kTightGap);
  AddText(box, degrees, "deg");
  gradeSettings_ = new wxBoxSizer(wxHORIZONTAL);
  gradeSettings_->Add(direction, 0, kMiddle);
  gradeSettings_->Add(degrees, 0, kMiddle);
  column->Add(gradeSettings_, 0, wxEXPAND | wxTOP, kGap);
}

void PropertiesPanel::buildGradeButtons(wxWindow* box, wxSizer* column) {
  gradeButtons_ = new wxBoxSizer(wxHORIZONTAL);
  startGrade_ = AddButton(box, gradeButtons_, kStartGradeId, "Start Grade", 1);
  gradeButtons_->AddSpacer(kGap);
  endGrade_ = AddButton(box, gradeButtons_, kEndGradeId, "End Grade", 1);
  gradeButtons_->AddSpacer(kGap);
  recalc_ = AddButton(box, gradeButtons_, kRecalcId, "Recalc", 1);
  recalc_->SetToolTip("Recalculate elevation chain from this piece forward");
  column->Add(gradeButtons_, 0, wxEXPAND | wxTOP, kGap);
}

}  // namespace vantrel
