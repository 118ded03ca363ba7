// Presses on a window, as the toolkit tells them and as they are counted.
#include "app/services/left_presses.h"

#include <gtest/gtest.h>
#include <wx/event.h>
#include <wx/frame.h>
#include <wx/settings.h>

#include <string>

namespace vantrel {
namespace {

class LeftPresses : public testing::Test {
 protected:
  LeftPresses() : frame(new wxFrame(nullptr, wxID_ANY, "presses")) {
    frame->Bind(wxEVT_RIGHT_DOWN, [this](wxMouseEvent&) { heard += 'r'; });
    BindLeftPresses(
        *frame, [this](wxMouseEvent&) { heard += 's'; }, [this](wxMouseEvent&) { heard += 'D'; });
    within = wxSystemSettings::GetMetric(wxSYS_DCLICK_MSEC, frame);
  }
  ~LeftPresses() override { delete frame; }

  void send(wxEventType type, long timeMs, wxPoint at = {50, 50}) {
    wxMouseEvent event(type);
    event.SetEventObject(frame);
    event.SetPosition(at);
    event.SetTimestamp(timeMs);
    frame->HandleWindowEvent(event);
  }

  wxFrame* frame;
  std::string heard;
  long within = 0;  // ms, some hundreds
};

TEST_F(LeftPresses, TheDesktopTellsHowQuickADoubleClickIs) {
  ASSERT_GT(within, 100);
  send(wxEVT_LEFT_DOWN, 10000);
  send(wxEVT_LEFT_DOWN, 10000 + within - 1);
  EXPECT_EQ(heard, "sD");
  send(wxEVT_LEFT_DOWN, 30000);
  send(wxEVT_LEFT_DOWN, 30000 + within);
  EXPECT_EQ(heard, "sDss");
}

TEST_F(LeftPresses, EachIsHandedOnOnceAsItIsCounted) {
  send(wxEVT_LEFT_DOWN, 10000);
  send(wxEVT_LEFT_DCLICK, 10030);
  send(wxEVT_LEFT_DOWN, 10060);  // the toolkit's triple click
  send(wxEVT_LEFT_DOWN, 10090);
  send(wxEVT_LEFT_DCLICK, 10120);
  send(wxEVT_LEFT_DOWN, 10150);
  EXPECT_EQ(heard, "sDsDsD");
}

TEST_F(LeftPresses, AnotherButtonIsCountedAndGoesOn) {
  send(wxEVT_LEFT_DOWN, 10000);
  send(wxEVT_RIGHT_DOWN, 10030);
  send(wxEVT_LEFT_DOWN, 10060);
  EXPECT_EQ(heard, "srs");
}

// The area that the desktop gives is as wide to the left of the first press as to its right.
TEST_F(LeftPresses, TheDesktopTellsHowFarApartADoubleClickMayBe) {
  const int width = wxSystemSettings::GetMetric(wxSYS_DCLICK_X, frame);
  ASSERT_GT(width, 1);
  send(wxEVT_LEFT_DOWN, 10000);
  send(wxEVT_LEFT_DOWN, 10030, {50 + width / 2, 50});
  EXPECT_EQ(heard, "sD");
  send(wxEVT_LEFT_DOWN, 30000);
  send(wxEVT_LEFT_DOWN, 30030, {50 + width / 2 + 1, 50});
  EXPECT_EQ(heard, "sDss");
}

TEST_F(LeftPresses, EachWindowCountsItsOwn) {
  auto* inner = new wxWindow(frame, wxID_ANY);
  BindLeftPresses(
      *inner, [this](wxMouseEvent&) { heard += 'i'; }, [this](wxMouseEvent&) { heard += 'I'; });
  send(wxEVT_LEFT_DOWN, 10000);
  wxMouseEvent event(wxEVT_LEFT_DOWN);
  event.SetPosition({50, 50});
  event.SetTimestamp(10030);
  inner->HandleWindowEvent(event);
  EXPECT_EQ(heard, "si");
}

}  // namespace
}  // namespace vantrel
