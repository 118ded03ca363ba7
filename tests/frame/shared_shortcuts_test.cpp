// The menus' keys in the 3D window, pressed for real.
#include "frame/shared_shortcuts.h"

#include <wx/menu.h>
#include <wx/uiaction.h>

#include "doc/undo.h"
#include "tests/frame/frame_fixture.h"
#include "view3d/track_gl_canvas.h"
#include "view3d/view3d_frame.h"

namespace vantrel {
namespace {

class KeysIn3D : public FrameTest {
 protected:
  void SetUp() override {
    showFrame();
    addPiece();
    command(kCmd3DView);
    ASSERT_NE(view().canvas(), nullptr);
    waitUntil([this] { return view().canvas()->IsShownOnScreen(); });
    view().Raise();
    view().canvas()->SetFocus();
    ASSERT_TRUE(waitUntil([this] { return view().canvas()->HasFocus() && view().IsActive(); }));
  }
  ~KeysIn3D() override {
    for (int i = 0; i < 20; ++i) wxTheApp->Yield();
  }

  View3DFrame& view() { return *frame().view3D(); }

  template <typename Condition>
  bool waitUntil(const Condition& condition) {
    for (int i = 0; i < 400 && !condition(); ++i) {
      wxTheApp->Yield();
      wxMilliSleep(5);
    }
    return condition();
  }

  // A real key; whether what it should do was done.
  template <typename Condition>
  bool pressUntil(int key, int modifiers, const Condition& done) {
    wxUIActionSimulator().Char(key, modifiers);
    return waitUntil(done);
  }

  bool isChecked(int id) { return frame().GetMenuBar()->IsChecked(id); }
};

TEST_F(KeysIn3D, ControlZTakesAStepBackAndControlYForth) {
  PushUndo(plan());
  addPiece();
  EXPECT_TRUE(pressUntil('Z', wxMOD_CONTROL, [this] { return plan().pieces.size() == 1; }));
  EXPECT_TRUE(pressUntil('Y', wxMOD_CONTROL, [this] { return plan().pieces.size() == 2; }));
}

TEST_F(KeysIn3D, ControlSSaves) {
  WriteFileText(inStore("Attic.vtl"), "");
  frame().LoadIntoFrame(inStore("Attic.vtl"));
  addPiece();
  frame().markDirty();
  EXPECT_TRUE(pressUntil('S', wxMOD_CONTROL, [this] { return !frame().dirty(); }));
  EXPECT_NE(ReadFileText(inStore("Attic.vtl")).find("24188"), std::string::npos);
}

TEST_F(KeysIn3D, DeleteAndSelectAllWorkOnThePlan) {
  EXPECT_TRUE(pressUntil('A', wxMOD_CONTROL, [this] { return plan().pieces[0].sel; }));
  EXPECT_TRUE(pressUntil(WXK_DELETE, 0, [this] { return plan().pieces.empty(); }));
}

TEST_F(KeysIn3D, PlusAndMinusZoomThePlan) {
  const double scale = frame().canvas().view().scale;
  // A plus where Shift is needed for it.
  EXPECT_TRUE(
      pressUntil('=', wxMOD_SHIFT, [&] { return frame().canvas().view().scale > 1.2 * scale; }));
  EXPECT_TRUE(pressUntil('-', 0, [&] { return frame().canvas().view().scale < 1.01 * scale; }));
}

TEST_F(KeysIn3D, TheBracketsTurnTheSelection) {
  plan().pieces[0].sel = true;
  EXPECT_TRUE(pressUntil(']', 0, [this] { return plan().pieces[0].heading == 15.0; }));
  EXPECT_TRUE(pressUntil('[', 0, [this] { return plan().pieces[0].heading == 0.0; }));
}

TEST_F(KeysIn3D, ASwitchOfTheMenuIsSwitchedThereToo) {
  ASSERT_TRUE(isChecked(kCmdShowGrid));
  EXPECT_TRUE(pressUntil('G', wxMOD_CONTROL, [this] { return !isChecked(kCmdShowGrid); }));
  EXPECT_TRUE(isChecked(kCmdSnap));
  EXPECT_TRUE(
      pressUntil('G', wxMOD_CONTROL | wxMOD_SHIFT, [this] { return !isChecked(kCmdSnap); }));
  EXPECT_FALSE(plan().snapEnabled);
  EXPECT_FALSE(isChecked(kCmdShowGrid));
}

TEST_F(KeysIn3D, WhatTheMenuDoesntAllowStaysUndone) {
  // Nothing is selected and nothing was done; the key after them shows that they have come.
  wxUIActionSimulator().Char(WXK_DELETE);
  wxUIActionSimulator().Char('Z', wxMOD_CONTROL);
  EXPECT_TRUE(pressUntil('G', wxMOD_CONTROL, [this] { return !isChecked(kCmdShowGrid); }));
  EXPECT_EQ(plan().pieces.size(), 1u);
}

TEST_F(KeysIn3D, RStillResetsTheView) {
  wxMouseEvent press(wxEVT_LEFT_DOWN);
  press.SetLeftDown(true);
  wxMouseEvent motion(wxEVT_MOTION);
  motion.SetLeftDown(true);
  motion.SetPosition({30, 0});
  for (wxMouseEvent* event : {&press, &motion}) view().canvas()->HandleWindowEvent(*event);
  wxMouseEvent release(wxEVT_LEFT_UP);
  view().canvas()->HandleWindowEvent(release);
  ASSERT_EQ(view().canvas()->camera().yaw, 45.0F);
  EXPECT_TRUE(pressUntil('R', 0, [this] { return view().canvas()->camera().yaw == 30.0F; }));
}

}  // namespace
}  // namespace vantrel
