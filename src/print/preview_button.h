// The button "Preview" in the printer's own dialog.
#pragma once

#include <wx/modalhook.h>

namespace vantrel {

// While this lives, that button closes the dialog, prints nothing and is noted here. By itself it
// would write the pages into a file and start a viewer for it, and without a word leave it at that
// where none is installed.
class PreviewButton : public wxModalDialogHook {
 public:
  PreviewButton() { Register(); }

  bool pressed() const { return pressed_; }

 protected:
  int Enter(wxDialog* dialog) override;

 private:
  bool pressed_ = false;
};

}  // namespace vantrel
