// Asks for a level's name, height and colour.
#pragma once

#include <wx/dialog.h>

#include "canvas/operations/level_edits.h"
#include "dialogs/typed_spins.h"
#include "doc/layout.h"
#include "inspection/shown_unit.h"

class wxCheckBox;
class wxColourPickerCtrl;
class wxFlexGridSizer;
class wxSpinCtrlDouble;
class wxTextCtrl;

namespace vantrel {

class LevelPropertiesDialog : public wxDialog {
 public:
  LevelPropertiesDialog(wxWindow* parent, const Level& level, const ShownUnit& unit);

  // What stands in the fields. A height that the user left alone is the level's own, to the last
  // digit, unless that is not finite.
  LevelProperties properties() const;

 private:
  void build(const Level& level);
  void buildHeight(wxFlexGridSizer& grid);
  void accept();

  const ShownUnit unit_;
  const double height_;       // mm, the level's own
  double shownHeight_ = 0.0;  // what the field made of it
  TypedSpins typed_;
  wxTextCtrl* name_ = nullptr;
  wxSpinCtrlDouble* heightSpin_ = nullptr;
  wxCheckBox* trackColour_ = nullptr;
  wxColourPickerCtrl* colour_ = nullptr;
};

}  // namespace vantrel
