// "Shape Properties": name, colour, height and outline of a free polygon.
#pragma once

#include <wx/dialog.h>

#include <cstdint>

#include "canvas/operations/shape_properties.h"

class wxCheckBox;
class wxColourPickerCtrl;
class wxSpinCtrl;
class wxSpinCtrlDouble;
class wxTextCtrl;

namespace vantrel {

class ShapePropertiesDialog : public wxDialog {
 public:
  // The height is shown in `units`.
  ShapePropertiesDialog(wxWindow* parent, const ShapeProperties& properties, std::int32_t units);

  // What the controls hold. A height that was not touched comes back as it was.
  ShapeProperties properties() const;

 private:
  void addNameRow(wxSizer& column);
  void addColourRow(wxSizer& column);
  void addHeightRow(wxSizer& column, std::int32_t units);
  void accept();

  const ShapeProperties start_;
  double mmPerUnit_ = 1.0;
  double shownHeight_ = 0.0;  // what the spin held at the start, in the shown unit
  wxTextCtrl* name_ = nullptr;
  wxColourPickerCtrl* colour_ = nullptr;
  wxSpinCtrl* opacity_ = nullptr;
  wxSpinCtrlDouble* height_ = nullptr;
  wxCheckBox* outline_ = nullptr;
};

}  // namespace vantrel
