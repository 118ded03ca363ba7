// What tests of dialogs share: a parent window, a plan, and hands for the controls.
#pragma once

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/panel.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <string>
#include <vector>

#include "doc/layout.h"
#include "tests/support/modal_script.h"

namespace vantrel {

class DialogTest : public testing::Test {
 protected:
  DialogTest() : parent_(new wxFrame(nullptr, wxID_ANY, "parent")) {}
  ~DialogTest() override {
    delete parent_;
    wxTheApp->ProcessPendingEvents();
  }

  wxFrame* parent_;
  Layout plan_;
};

inline void Press(wxWindow& dialog, const wxString& label) {
  auto* button = FindControl<wxButton>(dialog, label);
  ASSERT_NE(button, nullptr) << label;
  ASSERT_TRUE(button->IsEnabled()) << label;
  wxCommandEvent click(wxEVT_BUTTON, button->GetId());
  click.SetEventObject(button);
  button->ProcessWindowEvent(click);
}

// What is cut off: the labels, or else class names, of controls smaller than they need to be, or
// outside the window that holds them.
inline std::vector<std::string> CutOffControls(wxWindow& window) {
  std::vector<std::string> found;
  for (wxWindow* child : window.GetChildren()) {
    if (!child->IsShown()) continue;
    const wxSize best = child->GetBestSize();
    const wxRect rect = child->GetRect();
    const bool scrolls = dynamic_cast<wxListCtrlBase*>(child) != nullptr ||
                         (dynamic_cast<wxTextCtrl*>(child) != nullptr);
    const bool small = !scrolls && (rect.width < best.x || rect.height < best.y);
    const bool outside = !wxRect(window.GetClientSize()).Contains(rect);
    if (small || outside) {
      wxString name = child->GetLabel();
      if (name.empty()) name = child->GetClassInfo()->GetClassName();
      found.push_back(name.utf8_string());
    }
    if (dynamic_cast<wxPanel*>(child) != nullptr && !scrolls)
      for (const std::string& deeper : CutOffControls(*child)) found.push_back(deeper);
  }
  return found;
}

// A new size of a window on the screen is the window manager's to give, in its own time.
inline void WaitUntilNothingIsCutOff(wxWindow& window) {
  for (int i = 0; i < 100; ++i) {
    wxTheApp->Yield();
    if (CutOffControls(window).empty()) return;
    wxMilliSleep(10);
  }
}

}  // namespace vantrel
