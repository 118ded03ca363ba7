// The widths of the main window's side panes, through sizes of all kinds.
#include "frame/side_panes.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/notebook.h>
#include <wx/scrolwin.h>
#include <wx/spinctrl.h>
#include <wx/splitter.h>
#include <wx/statusbr.h>
#include <wx/utils.h>

#include "app/services/least_width.h"
#include "canvas/canvas_panel.h"
#include "palette/palette_panel.h"
#include "properties/properties_panel.h"
#include "tests/frame/frame_fixture.h"
#include "tests/frame/toolkit_below.h"

namespace vantrel {
namespace {

class SidePanesTest : public FrameTest {
 protected:
  wxSplitterWindow& inner() {
    return dynamic_cast<wxSplitterWindow&>(*frame().canvas().GetParent());
  }
  wxSplitterWindow& outer() { return dynamic_cast<wxSplitterWindow&>(*inner().GetParent()); }
  int palette() { return frame().palette().GetSize().x; }
  int properties() { return frame().properties().GetSize().x; }
  int canvas() { return frame().canvas().GetSize().x; }

  void resize(int width, int height = 900) {
    frame().SetSize(width, height);
    settle();
  }

  void settle() { WaitUntilSettled(frame().canvas()); }

  // As the user's mouse leaves a sash.
  void dragSash(wxSplitterWindow& splitter, int position) {
    splitter.SetSashPosition(position);
    wxSplitterEvent event(wxEVT_SPLITTER_SASH_POS_CHANGED, &splitter);
    event.SetSashPosition(position);
    splitter.HandleWindowEvent(event);
    settle();
  }
};

TEST_F(SidePanesTest, HaveTheirWidthsAgainAfterTheWindowWasNarrow) {
  showFrame();
  settle();
  const int paletteWidth = palette();
  const int propertiesWidth = properties();
  resize(600);
  EXPECT_LT(palette(), paletteWidth);
  EXPECT_LT(properties(), propertiesWidth);
  resize(1400);
  EXPECT_EQ(palette(), paletteWidth);
  EXPECT_EQ(properties(), propertiesWidth);
}

TEST_F(SidePanesTest, HaveTheirWidthsWhateverSizesTheWindowPassesThroughWhileItComesUp) {
  outer().SetSize(1390, 700);
  const int paletteSash = outer().GetSashPosition();
  const int propertiesWidth = inner().GetClientSize().x - inner().GetSashPosition();
  for (const int width : {2, 60, 200, 300, 405, 1390}) outer().SetSize(width, 700);
  EXPECT_GE(paletteSash, 235);
  EXPECT_EQ(outer().GetSashPosition(), paletteSash);
  EXPECT_GE(propertiesWidth, 280);
  EXPECT_EQ(inner().GetClientSize().x - inner().GetSashPosition(), propertiesWidth);
}

TEST_F(SidePanesTest, LeaveThePlanItsPartOfANarrowWindow) {
  showFrame();
  resize(800);
  EXPECT_GE(canvas(), 275);
  EXPECT_GE(palette(), 150);
  EXPECT_GE(properties(), 200);
}

TEST_F(SidePanesTest, KeepAWidthThatTheUserGaveThem) {
  showFrame();
  settle();
  dragSash(outer(), 400);
  dragSash(inner(), inner().GetClientSize().x - inner().GetSashSize() - 250);
  EXPECT_EQ(palette(), 400);
  EXPECT_EQ(properties(), 250);
  resize(1500);
  EXPECT_EQ(palette(), 400);
  EXPECT_EQ(properties(), 250);
  resize(600);
  resize(1400);
  EXPECT_EQ(palette(), 400);
  EXPECT_EQ(properties(), 250);
}

TEST_F(SidePanesTest, StayWhenTheUserLeftThePlanLessThanItWouldHave) {
  showFrame();
  settle();
  const int propertiesWidth = properties();
  const int room = outer().GetClientSize().x - outer().GetSashSize() - inner().GetSashSize();
  const int wide = room - propertiesWidth - 220;  // which leaves the plan 220
  dragSash(outer(), wide);
  ASSERT_EQ(canvas(), 220);
  resize(1410);
  EXPECT_EQ(palette(), wide);
  EXPECT_EQ(properties(), propertiesWidth);
}

class LowWindow : public SidePanesTest {
 protected:
  wxButton* shownButton(const char* label) {
    for (wxButton* button : FindControls<wxButton>(frame()))
      if (button->GetLabel() == label) return button;
    return nullptr;
  }
};

TEST_F(LowWindow, HasTheWayToTheStoreInViewWhileThePropertiesScroll) {
  showFrame();
  resize(1000, 480);
  PropertiesPanel& panel = frame().properties();
  EXPECT_GT(panel.GetVirtualSize().y, panel.GetClientSize().y);
  const wxRect seen = inner().GetScreenRect();
  for (const int scrolled : {0, 1000}) {
    panel.Scroll(0, scrolled);
    settle();
    for (const char* label : {"  Buy Track  ", "?"}) {
      const wxButton* button = shownButton(label);
      ASSERT_NE(button, nullptr) << label;
      EXPECT_TRUE(button->IsShownOnScreen()) << label;
      EXPECT_TRUE(seen.Contains(button->GetScreenRect())) << label << " at " << scrolled;
      EXPECT_FALSE(panel.GetScreenRect().Intersects(button->GetScreenRect())) << label;
    }
  }
}

TEST_F(LowWindow, ComesToTheStoreAfterThePanelsControlsByTab) {
  const wxWindow* pane = frame().properties().GetParent();
  const wxWindow* foot = shownButton("?")->GetParent();
  ASSERT_EQ(foot->GetParent(), pane);
  EXPECT_EQ(pane->GetChildren().GetLast()->GetData(), foot);
}

TEST_F(LowWindow, GetsNoSmallerThanItsPanesNeed) {
  showFrame();
  settle();
  resize(100, 100);
  EXPECT_GE(palette(), 150);
  EXPECT_GE(canvas(), 200);
  EXPECT_GE(properties(), 200);
  // Twenty lines of text: the palette has a row of parts below its tabs.
  EXPECT_GE(outer().GetSize().y, 20 * frame().GetCharHeight());
}

TEST_F(LowWindow, SqueezesNoControlOnItsWayToItsSmallest) {
  showFrame();
  settle();
  wxSpinCtrlDouble* spin = FindControls<wxSpinCtrlDouble>(frame().properties()).front();
  int narrowest = spin->GetSize().x;
  spin->Bind(wxEVT_SIZE, [&](wxSizeEvent& event) {
    event.Skip();
    narrowest = std::min(narrowest, event.GetSize().x);
  });
  const ToolkitComplaints complaints;
  for (int i = 0; i < 2; ++i) {
    resize(1400);
    resize(100, 100);
  }
  EXPECT_GE(narrowest, spin->GetBestSize().x);
  EXPECT_EQ(complaints.text(), "");
}

TEST_F(LowWindow, HasRoomForEachControlAtALargeFont) {
  const ToolkitFont font("Sans 16");
  const ToolkitComplaints complaints;
  showFrame();
  settle();
  resize(100, 100);
  EXPECT_EQ(complaints.text(), "");
  for (wxNotebook* notebook : FindControls<wxNotebook>(frame()))
    EXPECT_GE(notebook->GetSize().x, LeastWidth(*notebook));
  for (wxSpinCtrlDouble* spin : FindControls<wxSpinCtrlDouble>(frame()))
    EXPECT_GE(spin->GetSize().x, spin->GetBestSize().x);
  const wxRect seen = inner().GetScreenRect();
  for (wxButton* button : FindControls<wxButton>(frame())) {
    EXPECT_GE(button->GetSize().x, button->GetBestSize().x) << button->GetLabel();
    EXPECT_LE(button->GetScreenRect().GetRight(), seen.GetRight()) << button->GetLabel();
  }
  EXPECT_LE(frame().properties().GetVirtualSize().x, frame().properties().GetClientSize().x);
  wxRect message;
  wxStatusBar& bar = *frame().GetStatusBar();
  ASSERT_TRUE(bar.GetFieldRect(0, message));
  EXPECT_GE(message.width, bar.GetTextExtent("Ready").x);
}

TEST_F(SidePanesTest, ScrollSidewaysInAWindowTooNarrowForTheirControls) {
  const ToolkitFont font("Sans 24");
  showFrame();
  settle();
  const ToolkitComplaints complaints;
  frame().SetMinSize(wxSize(100, 100));  // as a small display would have it
  resize(700, 500);
  EXPECT_EQ(complaints.text(), "");
  PropertiesPanel& panel = frame().properties();
  EXPECT_GT(panel.GetVirtualSize().x, panel.GetClientSize().x);
  for (wxSpinCtrlDouble* spin : FindControls<wxSpinCtrlDouble>(panel))
    EXPECT_GE(spin->GetSize().x, spin->GetBestSize().x);
  panel.Scroll(1000, -1);
  EXPECT_GT(panel.GetViewStart().x, 0);
}

// Run on a display of 800 by 600 too; here a larger one has room for the usual size.
TEST_F(SidePanesTest, BelongToAWindowThatLiesOnTheScreenWhole) {
  showFrame();
  settle();
  const wxRect screen = wxGetClientDisplayRect();
  const wxRect window = frame().GetScreenRect();
  EXPECT_TRUE(screen.Contains(window))
      << window.x << " " << window.y << " " << window.width << " " << window.height;
  EXPECT_EQ(window.width, std::min(1400, screen.width));
  EXPECT_EQ(window.height, std::min(900, screen.height));
}

}  // namespace
}  // namespace vantrel
