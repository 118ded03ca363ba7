// "Resize Scenery": the two factors of a scenery item.
#pragma once

#include <wx/dialog.h>

#include "canvas/operations/shape_properties.h"

class wxCheckBox;
class wxSpinCtrlDouble;
class wxSpinDoubleEvent;

namespace vantrel {

class ResizeSceneryDialog : public wxDialog {
 public:
  // `size` is the item's in the catalog, `scale` what it has now.
  ResizeSceneryDialog(wxWindow* parent, SceneryFootprint size, SceneryScale scale);

  // The factors that the spins hold; both 1 after "Reset to Default". A factor within the spins'
  // range that was not touched comes back to the last digit.
  SceneryScale scale() const;

 private:
  wxSpinCtrlDouble* addRow(wxSizer& column, const wxString& caption, double factor, double sizeMm);
  void onWidth(wxSpinDoubleEvent& event);
  void accept();

  const SceneryScale start_;
  SceneryScale shown_;       // what the spins made of it
  double startRatio_ = 1.0;  // width factor over depth factor
  wxSpinCtrlDouble* width_ = nullptr;
  wxSpinCtrlDouble* depth_ = nullptr;
  wxCheckBox* locked_ = nullptr;
};

}  // namespace vantrel
