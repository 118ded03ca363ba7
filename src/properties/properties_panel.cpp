// What the panel shows and what it does; how it is put together stands in build_controls.cpp.
#include "properties/properties_panel.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "app/services/number_entry.h"
#include "app/services/wx_text.h"
#include "canvas/operations/grades.h"
#include "inspection/page_texts.h"
#include "inspection/selection_edits.h"
#include "inspection/shown_unit.h"
#include "properties/tally_panel.h"
#include "properties/warning_colour.h"
#include "properties/wrapped_label.h"

namespace vantrel {
namespace {

// Setting a label anew, even to the same text, makes it flicker.
void SetTextOf(wxStaticText& control, std::string_view text) {
  const wxString shown = ToWx(text);
  if (control.GetLabelText() != shown) control.SetLabelText(shown);
}

void SetColourOf(wxWindow& control, const wxColour& colour) {
  if (control.GetForegroundColour() == colour) return;
  control.SetForegroundColour(colour);
  control.Refresh();
}

// Puts the members of a row one below the other when its room is less than they need together. True
// when that changed.
bool StackIfNarrow(wxBoxSizer& row, int room) {
  int together = 0;
  for (wxSizerItem* item : row.GetChildren()) together += item->CalcMin().x;
  const int direction = together <= room ? wxHORIZONTAL : wxVERTICAL;
  if (row.GetOrientation() == direction) return false;
  row.SetOrientation(direction);
  return true;
}

// The keys that undo and redo the plan. The toolkit offers them to a field before the menu.
bool IsHistoryKey(const wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  return event.GetModifiers() == wxMOD_CONTROL && (key == 'Z' || key == 'Y');
}

void* ClientData(std::int32_t id) {
  return reinterpret_cast<void*>(static_cast<std::intptr_t>(id));
}

std::int32_t IdFrom(const void* clientData) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(clientData));
}

}  // namespace

PropertiesPanel::PropertiesPanel(wxWindow* parent, Workspace& workspace, wxWindow* foot)
    : wxScrolled<wxPanel>(parent, wxID_ANY), workspace_(workspace) {
  build(foot);
  bindEvents();
  ShowNoSelection();
}

void PropertiesPanel::RefreshSelection() {
  showSelection(Typed::keep);
  RefreshTally();
}

void PropertiesPanel::ShowNoSelection() {
  show(DescribeNothing(workspace_.layout()), Typed::replace);
}

int PropertiesPanel::usualWidth() const {
  return tally_->usualWidth();
}

void PropertiesPanel::RefreshTally() {
  tally_->RefreshTally();
}

void PropertiesPanel::SetPendingLabelPosition(double x, double y) {
  pendingLabelPos_ = {x, y};
  hasPendingLabelPos_ = true;
}

void PropertiesPanel::showSelection(Typed typed) {
  show(DescribeSelection(workspace_.layout()), typed);
}

void PropertiesPanel::show(SelectionPage page, Typed typed) {
  const bool keepTyped = typed == Typed::keep && page.showsTheSameAs(page_);
  titleLabel_->setText(ToWx(page.title));
  infoLabel_->setText(ToWx(page.info));
  showHeight(page.height, keepTyped && page.height == page_.height);
  showLevels(page.level);
  showGrade(page.grade, keepTyped && page.grade == page_.grade);
  page_ = std::move(page);
  fitToWidth();
}

void PropertiesPanel::showHeight(const HeightEntry& entry, bool keepTyped) {
  SetTextOf(*heightCaption_, entry.caption);
  const wxString text = ToWx(entry.text);
  if (heightField_->GetValue() != text && !(keepTyped && heightField_->HasFocus()))
    heightField_->ChangeValue(text);
  if (!keepTyped) ClearRefusedEntry(*heightField_);
  heightField_->Enable(entry.enabled);
}

void PropertiesPanel::showLevels(const LevelEntry& entry) {
  if (levelRows_ != entry.rows) {
    levelRows_ = entry.rows;
    levelChoice_->Clear();
    for (const LevelRow& row : levelRows_) levelChoice_->Append(ToWx(row.name), ClientData(row.id));
  }
  if (levelChoice_->GetSelection() != entry.chosen) levelChoice_->SetSelection(entry.chosen);
  levelChoice_->Enable(entry.enabled);
}

void PropertiesPanel::showGrade(const GradeEntry& entry, bool keepTyped) {
  SetTextOf(*gradeValue_, entry.text);
  SetColourOf(*gradeValue_, entry.warning.empty()
                                ? wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT)
                                : kWarningColour);
  gradeWarning_->setText(ToWx(entry.warning));
  const bool inUse = gradeUp_->HasFocus() || gradeDown_->HasFocus() || gradeSpin_->HasFocus();
  if (!(keepTyped && inUse)) {
    (entry.up ? gradeUp_ : gradeDown_)->SetValue(true);
    gradeSpin_->SetValue(entry.degrees);
    ClearRefusedEntry(*gradeSpin_);
  }
  for (wxWindow* setting : {static_cast<wxWindow*>(gradeUp_), static_cast<wxWindow*>(gradeDown_),
                            static_cast<wxWindow*>(gradeSpin_)})
    setting->Enable(entry.settingEnabled);
  startGrade_->Enable(entry.startEnabled);
  endGrade_->Enable(entry.endEnabled);
  recalc_->Enable(entry.recalcEnabled);
}

int PropertiesPanel::smallestWidth() const {
  return widestContents_ + wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
}

// With all rows stacked that can be.
int PropertiesPanel::contentsWidth() const {
  const int direction = gradeSettings_->GetOrientation();
  const int buttonsDirection = gradeButtons_->GetOrientation();
  gradeSettings_->SetOrientation(wxVERTICAL);
  gradeButtons_->SetOrientation(wxVERTICAL);
  const int width = GetSizer()->CalcMin().x;
  gradeSettings_->SetOrientation(direction);
  gradeButtons_->SetOrientation(buttonsDirection);
  return width;
}

wxSize PropertiesPanel::GetBestVirtualSize() const {
  const int width = std::max(GetClientSize().x, contentsWidth());
  return {width, GetSizer()->CalcMin().y};
}

// Before each layout, since one that is too narrow for a row would squeeze the last control in it.
bool PropertiesPanel::stackNarrowRows() {
  const int room = GetBestVirtualSize().x - besideRows_;
  bool changed = false;
  for (wxBoxSizer* row : {gradeSettings_, gradeButtons_})
    if (StackIfNarrow(*row, room)) changed = true;
  return changed;
}

// The sizers give each label its width; how many lines it takes for that shows only then.
void PropertiesPanel::fitToWidth() {
  stackNarrowRows();
  FitInside();
  besideRows_ = GetSizer()->GetSize().x - gradeSettings_->GetSize().x;
  bool changed = stackNarrowRows();
  for (WrappedLabel* label : {titleLabel_, infoLabel_, gradeWarning_, hint_})
    if (label->wrapTo(label->GetSize().x)) changed = true;
  if (changed) FitInside();
}

void PropertiesPanel::onSize(wxSizeEvent& event) {
  event.Skip();
  fitToWidth();
}

void PropertiesPanel::bindEvents() {
  Bind(wxEVT_SIZE, &PropertiesPanel::onSize, this);
  // A press puts the caret where it is: only after that may the number be selected to be replaced.
  heightField_->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
    event.Skip();
    CallAfter([this] { heightField_->SelectAll(); });
  });
  heightField_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    keepHistoryKeys(*heightField_, ToWx(page_.height.text), event);
  });
  heightField_->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
    event.Skip();
    ClearRefusedEntry(*heightField_);
  });
  labelField_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    keepHistoryKeys(*labelField_, wxString(), event);
  });
  const auto bind = [this](const auto& type, int id, void (PropertiesPanel::*handler)()) {
    Bind(
        type, [this, handler](wxCommandEvent&) { (this->*handler)(); }, id);
  };
  bind(wxEVT_TEXT_ENTER, kHeightFieldId, &PropertiesPanel::enterHeight);
  bind(wxEVT_CHOICE, kLevelChoiceId, &PropertiesPanel::chooseLevel);
  bind(wxEVT_BUTTON, kApplyColourId, &PropertiesPanel::applyColour);
  bind(wxEVT_BUTTON, kStartGradeId, &PropertiesPanel::startGradeHere);
  bind(wxEVT_BUTTON, kEndGradeId, &PropertiesPanel::endGradeHere);
  bind(wxEVT_BUTTON, kRecalcId, &PropertiesPanel::recalcHere);
  bind(wxEVT_BUTTON, kAddLabelId, &PropertiesPanel::addLabel);
  bind(wxEVT_TEXT_ENTER, kLabelFieldId, &PropertiesPanel::addLabel);
}

// Whoever takes back what they are typing doesn't mean the plan: that would change out of sight.
void PropertiesPanel::keepHistoryKeys(wxTextCtrl& field, const wxString& untouched,
                                      wxKeyEvent& event) {
  if (!IsHistoryKey(event) || field.GetValue() == untouched) {
    event.Skip();
    return;
  }
  if (event.GetKeyCode() == 'Z') field.ChangeValue(untouched);
}

void PropertiesPanel::enterHeight() {
  const std::string typed = ToUtf8(heightField_->GetValue());
  if (!EnterHeight(workspace_.layout(), page_.pieceId, typed)) {
    if (!HeightFromText(typed, UnitOf(workspace_.layout())))
      MarkRefusedEntry(*heightField_, "This is no number. The height stays as it was.");
    return;
  }
  workspace_.markDirty();
  showSelection(Typed::replace);
  heightField_->SelectAll();  // ready for another number
  workspace_.refreshViews();
}

void PropertiesPanel::chooseLevel() {
  const int row = levelChoice_->GetSelection();
  if (row == wxNOT_FOUND) return;
  const std::int32_t level = IdFrom(levelChoice_->GetClientData(static_cast<unsigned>(row)));
  if (!ChooseLevel(workspace_.layout(), page_, level)) {
    showSelection(Typed::keep);  // the list shows the level that it still is
    return;
  }
  workspace_.markDirty();
  showSelection(Typed::replace);
  workspace_.refreshViews();
}

void PropertiesPanel::applyColour() {
  if (!ApplyColour(workspace_.layout(), colourChoice_->GetSelection())) return;
  workspace_.markDirty();
  showSelection(Typed::replace);
  workspace_.refreshViews();
}

void PropertiesPanel::addLabel() {
  const Vec2 at = hasPendingLabelPos_ ? pendingLabelPos_ : Vec2{};
  if (!AddLabel(workspace_.layout(), ToUtf8(labelField_->GetValue()), at)) return;
  labelField_->ChangeValue(wxString());
  hasPendingLabelPos_ = false;
  workspace_.markDirty();
  workspace_.refreshViews();
}

// No undo step is taken, so the plan isn't marked as changed either.
void PropertiesPanel::startGradeHere() {
  if (page_.pieceId == kNone) return;
  const bool up = gradeUp_->GetValue();
  const double degrees = gradeSpin_->GetValue();
  // A difference, since the negative of 0 would be another zero.
  if (!startGrade(workspace_.layout(), page_.pieceId, up ? degrees : 0.0 - degrees)) return;
  workspace_.setStatus(kStatusMessage, GradeStartedText(up, degrees));
  workspace_.refreshViews();
  showSelection(Typed::replace);
}

void PropertiesPanel::endGradeHere() {
  if (page_.pieceId == kNone || !endGrade(workspace_.layout(), page_.pieceId)) return;
  workspace_.setStatus(kStatusMessage, std::string(kGradeEndedText));
  workspace_.markDirty();
  workspace_.refreshViews();
  showSelection(Typed::replace);
}

void PropertiesPanel::recalcHere() {
  if (page_.pieceId == kNone || !recalcElevation(workspace_.layout(), page_.pieceId)) return;
  workspace_.markDirty();
  workspace_.refreshViews();
  showSelection(Typed::replace);
}

}  // namespace vantrel
