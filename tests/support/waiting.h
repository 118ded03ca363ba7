// Waiting in tests of windows, for what is to be seen and never for a fixed time.
#pragma once

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace vantrel {

// Handles events until this holds; gives up after more than 20 seconds, which only a failure costs.
template <typename Condition>
bool WaitUntil(const Condition& holds) {
  constexpr int kPasses = 4000;
  for (int pass = 0; pass < kPasses; ++pass) {
    wxTheApp->Yield();
    if (holds()) return true;
    wxMilliSleep(5);
  }
  return false;
}

// Counts the paints of a window.
class PaintCount {
 public:
  explicit PaintCount(wxWindow& window) : window_(window) {
    window_.Bind(wxEVT_PAINT, &PaintCount::note, this);
  }
  ~PaintCount() { window_.Unbind(wxEVT_PAINT, &PaintCount::note, this); }
  PaintCount(const PaintCount&) = delete;
  PaintCount& operator=(const PaintCount&) = delete;

  int count() const { return count_; }
  void reset() { count_ = 0; }

 private:
  void note(wxPaintEvent& event) {
    ++count_;
    event.Skip();
  }

  wxWindow& window_;
  int count_ = 0;
};

// Asks for a paint of the window's first pixel and waits for it. All that was asked for before is
// done by then: the toolkit paints last, what belongs to one window on the screen at once, and not
// before the window manager has answered a new size.
inline void WaitForPaint(wxWindow& window) {
  const PaintCount paints(window);
  window.RefreshRect(wxRect(0, 0, 1, 1));
  EXPECT_TRUE(WaitUntil([&paints] { return paints.count() > 0; })) << "no paint came";
}

// The same until two paints in a row find the window as large as before: the first sizes are the
// window manager's to give, after the first paint as well.
inline void WaitUntilSettled(wxWindow& window) {
  wxWindow& around = *wxGetTopLevelParent(&window);
  wxRect before;
  wxRect outerBefore;
  do {
    before = window.GetScreenRect();
    outerBefore = around.GetScreenRect();
    WaitForPaint(window);
  } while (!testing::Test::HasFailure() &&
           (window.GetScreenRect() != before || around.GetScreenRect() != outerBefore));
}

}  // namespace vantrel
