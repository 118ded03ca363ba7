// The window of a print preview.
#pragma once

#include <wx/print.h>

namespace vantrel {

// Stands in the middle of its parent and has the keyboard as soon as the window manager has put it
// on the screen, whenever that is and however often a preview was open before. Escape closes it,
// whichever of its controls has the focus. Takes the preview over; keeps all other windows disabled
// while it is open.
class PreviewFrame : public wxPreviewFrame {
 public:
  PreviewFrame(wxPrintPreviewBase* preview, wxWindow* parent, const wxString& title, wxSize size);

  // Instead of Initialize and Show.
  void open();

 private:
  void takePlace();

  int places_ = 0;        // that the window manager has given it and that were not the middle
  bool settled_ = false;  // the window manager has placed it and given it the keyboard
};

}  // namespace vantrel
