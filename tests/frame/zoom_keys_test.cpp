// '+' and '-' zoom whatever has the focus, but for the fields that take them as text.
#include "frame/character_keys.h"

#include <gtest/gtest.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include "canvas/canvas_panel.h"
#include "palette/palette_panel.h"
#include "palette/track_icon_grid.h"
#include "properties/properties_panel.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

class ZoomKeys : public FrameTest {
 protected:
  void SetUp() override {
    showFrame();
    frame().Raise();
    waitUntil([] { return wxWindow::FindFocus() != nullptr; });
  }

  template <typename Condition>
  void waitUntil(const Condition& condition) {
    for (int i = 0; i < 400 && !condition(); ++i) {
      wxTheApp->Yield();
      wxMilliSleep(5);
    }
  }

  void focus(wxWindow& window) {
    window.SetFocus();
    waitUntil([&window] { return window.HasFocus(); });
    ASSERT_TRUE(window.HasFocus());
  }

  double scale() { return frame().canvas().view().scale; }

  // A real key.
  void press(int key, int modifiers = 0) {
    wxUIActionSimulator().Char(key, modifiers);
    for (int i = 0; i < 20; ++i) {
      wxTheApp->Yield();
      wxMilliSleep(5);
    }
  }

  // Every key of either sign, from the scale at the start and back.
  void expectZoomsWith(wxWindow& window, const char* what) {
    focus(window);
    press('=', wxMOD_SHIFT);  // a plus where Shift is needed for it
    EXPECT_DOUBLE_EQ(scale(), 0.5) << what;
    press(WXK_NUMPAD_ADD);
    EXPECT_DOUBLE_EQ(scale(), 0.625) << what;
    press('-');
    EXPECT_DOUBLE_EQ(scale(), 0.5) << what;
    press(WXK_NUMPAD_SUBTRACT);
    EXPECT_DOUBLE_EQ(scale(), 0.4) << what;
  }
};

TEST_F(ZoomKeys, WorkWhileTheIconGridHasTheFocus) {
  auto* grid = FindControl<TrackIconGrid>(frame().palette());
  ASSERT_NE(grid, nullptr);
  expectZoomsWith(*grid, "grid");
}

TEST_F(ZoomKeys, WorkOnTheCanvasAndInListsAndChoices) {
  expectZoomsWith(frame().canvas(), "canvas");
  expectZoomsWith(*frame().FindWindow(kSystemChooserId), "system");
  expectZoomsWith(*frame().FindWindow(kColourChoiceId), "colour");
  expectZoomsWith(*frame().FindWindow(kApplyColourId), "a button");
  auto* tally = FindControl<wxListCtrl>(frame().properties());
  ASSERT_NE(tally, nullptr);
  expectZoomsWith(*tally, "tally");
}

TEST_F(ZoomKeys, AreTextInAFieldThatTakesText) {
  auto* field = dynamic_cast<wxTextCtrl*>(frame().FindWindow(kLabelFieldId));
  ASSERT_NE(field, nullptr);
  focus(*field);
  press('=', wxMOD_SHIFT);
  press('-');
  EXPECT_EQ(field->GetValue(), "+-");
  EXPECT_DOUBLE_EQ(scale(), 0.4);
}

TEST_F(ZoomKeys, AreTextInASpin) {
  auto* spin = FindControl<wxSpinCtrlDouble>(frame().properties());
  ASSERT_NE(spin, nullptr);
  spin->Enable();
  focus(*spin);
  press('-');
  press('=', wxMOD_SHIFT);
  EXPECT_DOUBLE_EQ(scale(), 0.4);
}

TEST_F(ZoomKeys, AreNoneWithControlOrAnotherCharacter) {
  auto* grid = FindControl<TrackIconGrid>(frame().palette());
  ASSERT_NE(grid, nullptr);
  focus(*grid);
  press('=');
  press('-', wxMOD_CONTROL);
  press('r');
  EXPECT_DOUBLE_EQ(scale(), 0.4);
}

}  // namespace
}  // namespace vantrel
