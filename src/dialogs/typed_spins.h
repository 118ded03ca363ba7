// Spin controls as a dialog's OK wants them. A spin control silently puts a number of its own in
// the place of a text that it can't take, when the focus leaves it or Enter is pressed; a dialog
// that accepts then would take a number that the user never saw.
#pragma once

#include <wx/event.h>

#include <vector>

class wxDialog;
class wxSpinCtrl;
class wxSpinCtrlBase;
class wxSpinCtrlDouble;

namespace vantrel {

// Lives at least as long as its dialog's controls are used.
class TypedSpins {
 public:
  // `dialog` is where Enter accepts.
  explicit TypedSpins(wxDialog& dialog);
  TypedSpins(const TypedSpins&) = delete;
  TypedSpins& operator=(const TypedSpins&) = delete;

  // Watches a spin control for texts that are no number or none within the bounds, or for whole
  // numbers no whole one. Before they are refused here, such texts are marked in the control.
  void watch(wxSpinCtrl& spin, double smallest, double largest);
  void watch(wxSpinCtrlDouble& spin, double smallest, double largest);
  // Forgets all controls; to be called before they are destroyed.
  void clear();

  // The first control whose typed text was not taken since it last got the focus, or null. Asking
  // forgets it: the user has been told, and sees what stands there now.
  wxSpinCtrlBase* takeRefused();

 private:
  struct Watched {
    wxSpinCtrlBase* spin = nullptr;
    double smallest = 0.0;
    double largest = 0.0;
    bool wholeOnly = false;
    bool refused = false;
  };

  void watchText(wxSpinCtrlBase& spin, double smallest, double largest, bool wholeOnly);
  static bool isTaken(const Watched& watched);
  Watched* find(wxSpinCtrlBase* spin);
  void noteAll();

  std::vector<Watched> watched_;
};

}  // namespace vantrel
