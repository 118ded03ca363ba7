// Asks how the layout is to be printed.
#pragma once

#include <wx/dialog.h>

#include "dialogs/typed_spins.h"
#include "print/pages/print_options.h"

class wxCheckBox;
class wxRadioBox;
class wxSizer;
class wxSpinCtrl;
class wxStaticText;

namespace vantrel {

// The number of the radio box "Scaling" is the program's own and stays as it is.
inline constexpr int kScalingBoxId = 6001;

class PrintOptionsDialog : public wxDialog {
 public:
  PrintOptionsDialog(wxWindow* parent, const PrintOptions& options);

  // As they were given, until OK has taken what stands in the controls.
  const PrintOptions& options() const { return options_; }

 private:
  // A number between its two texts, all of them enabled together.
  struct NumberRow {
    wxStaticText* before = nullptr;
    wxSpinCtrl* spin = nullptr;
    wxStaticText* behind = nullptr;

    void enable(bool on);
  };

  void build();
  wxSizer* makeRow(NumberRow& row, const char* before, const char* behind, int value);
  wxSizer* makeIncludeBox();
  void showMode();
  void accept();

  PrintOptions options_;
  TypedSpins typed_;
  wxRadioBox* scaling_ = nullptr;
  NumberRow scale_;
  NumberRow percent_;
  wxRadioBox* levels_ = nullptr;
  wxRadioBox* colour_ = nullptr;
  wxCheckBox* grid_ = nullptr;
  wxCheckBox* baseboard_ = nullptr;
};

}  // namespace vantrel
