// '+' and '-' zoom whatever has the focus, but for the fields that take them as text.
#include "frame/character_keys.h"

#include <gtest/gtest.h>
#include <wx/choice.h>
#include <wx/eventfilter.h>
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

// Whether a key has come up since: this one, or any.
class KeyRelease : public wxEventFilter {
 public:
  explicit KeyRelease(int key) : key_(key) { wxEvtHandler::AddFilter(this); }
  ~KeyRelease() override { wxEvtHandler::RemoveFilter(this); }
  KeyRelease(const KeyRelease&) = delete;
  KeyRelease& operator=(const KeyRelease&) = delete;

  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() == wxEVT_KEY_UP &&
        (key_ == WXK_NONE || dynamic_cast<wxKeyEvent&>(event).GetKeyCode() == key_))
      came_ = true;
    return Event_Skip;
  }
  bool came() const { return came_; }

 private:
  int key_;
  bool came_ = false;
};

class ZoomKeys : public FrameTest {
 protected:
  void SetUp() override {
    showFrame();
    frame().Raise();
    WaitUntil([] { return wxWindow::FindFocus() != nullptr; });
  }

  void focus(wxWindow& window) {
    window.SetFocus();
    ASSERT_TRUE(WaitUntil([&window] { return window.HasFocus(); }));
  }

  double scale() { return frame().canvas().view().scale; }

  // A real key: what it does is done when what was pressed last has come up.
  void press(int key, int modifiers = 0) {
    const KeyRelease release(modifiers == wxMOD_SHIFT     ? WXK_SHIFT
                             : modifiers == wxMOD_CONTROL ? WXK_CONTROL
                                                          : WXK_NONE);
    wxUIActionSimulator().Char(key, modifiers);
    EXPECT_TRUE(WaitUntil([&release] { return release.came(); })) << key;
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
