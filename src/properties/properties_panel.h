// The right-hand panel of the main window: what is selected, its height, level and colour, its
// grade, new labels, and at the bottom what the plan needs. It only shows and passes on;
// src/inspection decides.
#pragma once

#include <wx/panel.h>
#include <wx/scrolwin.h>

#include "doc/vec2.h"
#include "inspection/selection_page.h"
#include "workspace/workspace.h"

class wxBoxSizer;
class wxButton;
class wxChoice;
class wxRadioButton;
class wxSizer;
class wxSpinCtrlDouble;
class wxStaticText;
class wxTextCtrl;

namespace vantrel {

class TallyPanel;
class WrappedLabel;

// Ids of the panel's controls.
inline constexpr int kHeightFieldId = 4100;
inline constexpr int kLevelChoiceId = 4101;
inline constexpr int kStartGradeId = 4102;
inline constexpr int kEndGradeId = 4104;
inline constexpr int kRecalcId = 4106;
inline constexpr int kLabelFieldId = 4107;
inline constexpr int kAddLabelId = 4108;
inline constexpr int kColourChoiceId = 4109;
inline constexpr int kApplyColourId = 4110;

// Scrolls only in a window too low, or on a screen too narrow, for its controls.
class PropertiesPanel : public wxScrolled<wxPanel> {
 public:
  // The tally's buttons lie on the `foot`, by default at the end of the panel.
  PropertiesPanel(wxWindow* parent, Workspace& workspace, wxWindow* foot = nullptr);

  // Shows what is selected, and recounts. A control that has the focus keeps what the user put into
  // it as long as the same thing is shown with the same value.
  void RefreshSelection();
  // Shows the page of an empty selection.
  void ShowNoSelection();
  // Recounts the pieces that the plan needs.
  void RefreshTally();
  // The width at which the tally shows what it usually holds, in pixels.
  int usualWidth() const;
  // The least width at which no control is cut off, with a scroll bar beside them.
  int smallestWidth() const;
  // Where the next label goes, in world mm.
  void SetPendingLabelPosition(double x, double y);

  bool hasPendingLabelPos() const { return hasPendingLabelPos_; }
  Vec2 pendingLabelPos() const { return pendingLabelPos_; }
  const SelectionPage& page() const { return page_; }

  // As wide as what is seen of the panel: what doesn't fit gets another line, or less room. Where
  // even that is too narrow for a control, the panel scrolls sideways.
  wxSize GetBestVirtualSize() const override;

 private:
  // Whether a refresh may overwrite what the user is typing.
  enum class Typed { keep, replace };

  void build(wxWindow* foot);
  void buildLabelBox(wxSizer* column);
  void buildTitle(wxSizer* column);
  void buildLevelRow(wxSizer* column);
  void buildColourBox(wxSizer* column);
  void buildGradeBox(wxSizer* column);
  void buildGradeSettings(wxWindow* box, wxSizer* column);
  void buildGradeButtons(wxWindow* box, wxSizer* column);
  int contentsWidth() const;
  bool stackNarrowRows();
  void bindEvents();

  void show(SelectionPage page, Typed typed);
  void showSelection(Typed typed);
  void showHeight(const HeightEntry& entry, bool keepTyped);
  void showLevels(const LevelEntry& entry);
  void showGrade(const GradeEntry& entry, bool keepTyped);
  void fitToWidth();
  void onSize(wxSizeEvent& event);
  static void keepHistoryKeys(wxTextCtrl& field, const wxString& untouched, wxKeyEvent& event);

  void enterHeight();
  void chooseLevel();
  void applyColour();
  void addLabel();
  void startGradeHere();
  void endGradeHere();
  void recalcHere();

  Workspace& workspace_;
  SelectionPage page_;
  bool hasPendingLabelPos_ = false;
  Vec2 pendingLabelPos_;

  wxTextCtrl* labelField_ = nullptr;
  WrappedLabel* titleLabel_ = nullptr;
  WrappedLabel* infoLabel_ = nullptr;
  wxChoice* levelChoice_ = nullptr;
  std::vector<LevelRow> levelRows_;  // what levelChoice_ was filled with
  wxChoice* colourChoice_ = nullptr;
  wxStaticText* heightCaption_ = nullptr;
  wxTextCtrl* heightField_ = nullptr;
  wxStaticText* gradeValue_ = nullptr;
  WrappedLabel* gradeWarning_ = nullptr;
  WrappedLabel* hint_ = nullptr;
  wxBoxSizer* gradeSettings_ = nullptr;
  wxRadioButton* gradeUp_ = nullptr;
  wxRadioButton* gradeDown_ = nullptr;
  wxSpinCtrlDouble* gradeSpin_ = nullptr;
  wxBoxSizer* gradeButtons_ = nullptr;
  wxButton* startGrade_ = nullptr;
  wxButton* endGrade_ = nullptr;
  wxButton* recalc_ = nullptr;
  TallyPanel* tally_ = nullptr;
  int widestContents_ = 0;  // contentsWidth() at the longest texts that are usual
  int besideRows_ = 0;      // what frames and borders take of the width of a row in the grade box
};

}  // namespace vantrel
