#include "palette/track_icon_grid.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/frame.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/palette/palette_fixture.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

class NotingListener : public TrackIconGridListener {
 public:
  void rowActivated(const std::string& key) override { calls.push_back("activated " + key); }
  void rowDragged(const std::string& key) override { calls.push_back("dragged " + key); }
  void rowPressed() override { calls.emplace_back("pressed"); }
  void rowHovered(int row) override { hovers.push_back(row); }

  std::vector<std::string> calls;
  std::vector<int> hovers;
};

using Calls = std::vector<std::string>;

// A grid of 300 by 400 with a header (6 to 27), the icons of 24188 and 24172 side by side (28 to
// 129), a header (130 to 151) and a text row (152 to 173). Three columns, pitch 98 or less.
class Grid : public testing::Test {
 protected:
  void SetUp() override {
    frame = new wxFrame(nullptr, wxID_ANY, "grid", wxPoint(0, 0), wxSize(400, 500));
    auto* ground = new wxPanel(frame);
    grid = new TrackIconGrid(ground, listener);
    grid->SetSize(0, 0, 300, 400);
    grid->AddHeader("Straights");
    grid->AddPart("24188");
    grid->AddPart("24172");
    grid->AddHeader("Helix");
    grid->AddTextRow("Kit", "@helix:kit");
  }

  void TearDown() override { delete frame; }

  void press(wxPoint at) { SendMouse(*grid, wxEVT_LEFT_DOWN, at, true); }
  void release(wxPoint at) { SendMouse(*grid, wxEVT_LEFT_UP, at); }
  void doubleClick(wxPoint at) { SendMouse(*grid, wxEVT_LEFT_DCLICK, at, true); }
  void move(wxPoint at, bool leftDown = false) { SendMouse(*grid, wxEVT_MOTION, at, leftDown); }
  void leave() { SendMouse(*grid, wxEVT_LEAVE_WINDOW, {-5, -5}); }

  static constexpr int kRow24188 = 1;
  static constexpr int kRow24172 = 2;
  static constexpr int kRowKit = 4;
  const wxPoint onHeader{40, 10};
  const wxPoint on24188{40, 60};
  const wxPoint on24172{140, 60};
  const wxPoint onKit{150, 160};
  const wxPoint onNothing{150, 300};

  NotingListener listener;
  wxFrame* frame = nullptr;
  TrackIconGrid* grid = nullptr;
};

TEST_F(Grid, KeepsItsRowsWithTheirTextsKeysAndIcons) {
  const std::vector<GridRow>& rows = grid->rows();
  ASSERT_EQ(rows.size(), 5u);
  EXPECT_TRUE(rows[0].isHeader);
  EXPECT_EQ(rows[0].title, "Straights");
  EXPECT_EQ(rows[0].key, "");
  EXPECT_FALSE(rows[0].icon.IsOk());
  EXPECT_TRUE(rows[1].isIcon());
  EXPECT_EQ(rows[1].key, "24188");
  EXPECT_EQ(rows[1].column, 0);
  EXPECT_EQ(rows[1].icon.GetSize(), wxSize(80, 80));
  EXPECT_EQ(rows[2].column, 1);
  EXPECT_TRUE(rows[4].isText);
  EXPECT_FALSE(rows[4].isHeader);
  EXPECT_EQ(rows[4].label, "Kit");
  EXPECT_EQ(rows[4].key, "@helix:kit");
  EXPECT_FALSE(rows[4].icon.IsOk());
}

TEST_F(Grid, LaysOutAfterEachRowThatIsAdded) {
  EXPECT_EQ(grid->gridLayout().columns, 3);
  EXPECT_EQ(grid->gridLayout().rowTop, (std::vector<std::int32_t>{6, 28, 28, 130, 152}));
  EXPECT_EQ(grid->GetVirtualSize().GetHeight(), 400);  // never less than the window
  for (int i = 0; i < 20; ++i) grid->AddTextRow("Kit", "@helix:kit");
  EXPECT_EQ(grid->GetVirtualSize().GetHeight(), 620);  // 6 + 22 + 102 + 22 + 21 * 22 + 6
}

TEST_F(Grid, LaysOutAnewWhenItsSizeChanges) {
  grid->SetSize(0, 0, 200, 400);
  EXPECT_EQ(grid->gridLayout().columns, 2);
  grid->SetSize(0, 0, 120, 400);
  EXPECT_EQ(grid->gridLayout().columns, 1);
  EXPECT_EQ(grid->gridLayout().rowTop, (std::vector<std::int32_t>{6, 28, 130, 232, 254}));
}

TEST_F(Grid, ScrollsUpAndDownOnly) {
  int x = -1;
  int y = -1;
  grid->GetScrollPixelsPerUnit(&x, &y);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 10);
}

TEST_F(Grid, AddsNothingForAPartThatTheCatalogDoesNotHave) {
  EXPECT_EQ(grid->AddPart("no such part"), -1);
  EXPECT_EQ(grid->AddPart(""), -1);
  EXPECT_EQ(grid->rows().size(), 5u);
  EXPECT_EQ(grid->rowOfPart("no such part"), -1);
}

TEST_F(Grid, FindsTheLaterOfTwoRowsOfOnePart) {
  EXPECT_EQ(grid->rowOfPart("24188"), 1);
  EXPECT_EQ(grid->AddPart("24188"), 5);
  EXPECT_EQ(grid->rowOfPart("24188"), 5);
  EXPECT_EQ(grid->rowOfPart("@helix:kit"), -1);
}

TEST_F(Grid, ClearForgetsRowsAndSelection) {
  press(on24188);
  ASSERT_EQ(grid->selectedRow(), kRow24188);
  grid->Clear();
  EXPECT_TRUE(grid->rows().empty());
  EXPECT_EQ(grid->rowOfPart("24188"), -1);
  EXPECT_EQ(grid->selectedRow(), -1);
  EXPECT_EQ(grid->gridLayout().height, 12);
}

TEST_F(Grid, APressSelectsTheRowTakesTheFocusAndHidesThePreview) {
  press(on24172);
  EXPECT_EQ(grid->selectedRow(), kRow24172);
  EXPECT_EQ(wxWindow::FindFocus(), grid);
  EXPECT_EQ(listener.calls, (Calls{"pressed"}));
  press(onKit);
  EXPECT_EQ(grid->selectedRow(), kRowKit);
}

TEST_F(Grid, APressLetsTheEventPassOn) {
  EXPECT_FALSE(SendMouse(*grid, wxEVT_LEFT_DOWN, on24188, true));
  EXPECT_FALSE(SendMouse(*grid, wxEVT_LEFT_DOWN, onNothing, true));
}

TEST_F(Grid, AClickOnAHeaderChangesNeitherTheSelectionNorTheHover) {
  move(on24188);
  press(on24188);
  release(on24188);
  listener.calls.clear();
  press(onHeader);
  release(onHeader);
  EXPECT_EQ(grid->selectedRow(), kRow24188);
  EXPECT_EQ(grid->hoverRow(), kRow24188);
  EXPECT_EQ(listener.calls, Calls{});
}

TEST_F(Grid, APressBesideTheRowsKeepsTheSelection) {
  press(on24188);
  press(onNothing);
  EXPECT_EQ(grid->selectedRow(), kRow24188);
}

TEST_F(Grid, APressOnThePartNumberBelowTheIconSelectsTheCell) {
  press({40, 120});  // the icon ends at 108, the cell at 130
  EXPECT_EQ(grid->selectedRow(), kRow24188);
}

TEST_F(Grid, PressingOnARowAndMovingOffItDragsThePressedRow) {
  press(on24188);
  move(on24172, true);
  EXPECT_EQ(listener.calls, (Calls{"pressed", "dragged 24188"}));
  move({-50, 500}, true);
  EXPECT_EQ(listener.calls, (Calls{"pressed", "dragged 24188", "dragged 24188"}));
}

TEST_F(Grid, MovingWithoutTheButtonDragsNothing) {
  press(on24188);
  release(on24188);
  listener.calls.clear();
  move(on24172);
  EXPECT_EQ(listener.calls, Calls{});
}

TEST_F(Grid, MovingWithTheButtonDownButNothingSelectedDragsNothing) {
  press(onHeader);
  move(on24188, true);
  EXPECT_EQ(listener.calls, Calls{});
}

TEST_F(Grid, ADoubleClickSelectsAndActivatesItsRow) {
  doubleClick(on24172);
  EXPECT_EQ(grid->selectedRow(), kRow24172);
  EXPECT_EQ(listener.calls, (Calls{"activated 24172"}));
  doubleClick(onKit);
  EXPECT_EQ(listener.calls, (Calls{"activated 24172", "activated @helix:kit"}));
}

TEST_F(Grid, ADoubleClickOnAHeaderActivatesNothing) {
  doubleClick(onHeader);
  EXPECT_EQ(grid->selectedRow(), -1);
  EXPECT_EQ(listener.calls, Calls{});
}

TEST_F(Grid, ADoubleClickKeepsTheHeldButtonFromDraggingUntilItIsReleased) {
  doubleClick(on24188);
  listener.calls.clear();
  move(on24172, true);
  EXPECT_EQ(listener.calls, Calls{});
  release(on24172);
  press(on24172);
  move(on24188, true);
  EXPECT_EQ(listener.calls, (Calls{"pressed", "dragged 24172"}));
}

TEST_F(Grid, AMotionWithoutTheButtonAlsoEndsTheRestAfterADoubleClick) {
  doubleClick(on24188);  // the canvas may take the release
  move(on24188);
  listener.calls.clear();
  move(on24172, true);
  EXPECT_EQ(listener.calls, (Calls{"dragged 24188"}));
}

TEST_F(Grid, TheHoverFollowsThePointerAndEndsWhenItLeaves) {
  move(on24188);
  EXPECT_EQ(grid->hoverRow(), kRow24188);
  move(onHeader);
  EXPECT_EQ(grid->hoverRow(), -1);
  move(onKit);
  EXPECT_EQ(grid->hoverRow(), kRowKit);
  leave();
  EXPECT_EQ(grid->hoverRow(), -1);
  EXPECT_EQ(listener.hovers, (std::vector<int>{1, -1, 4, -1}));
}

TEST_F(Grid, HitsRowsWhereTheyAreAfterScrolling) {
  for (int i = 0; i < 40; ++i) grid->AddTextRow("Kit", "@helix:kit");
  frame->Show();
  wxTheApp->SafeYield(nullptr, false);
  grid->Scroll(0, 14);  // 140 pixels up: the kit's row lies at 12 to 33
  ASSERT_EQ(grid->GetViewStart(), wxPoint(0, 14));
  press({100, 13});
  EXPECT_EQ(grid->selectedRow(), kRowKit);
}

TEST_F(Grid, PaintsTheRowsThatAreInViewAfterScrolling) {
  // 400 rows of 22 below the kit's, which starts at 152: row i of them starts at 174 + 22 * i.
  for (int i = 0; i < 400; ++i) grid->AddTextRow(wxString::Format("%d", i), "@helix:kit");
  frame->Show();
  wxTheApp->SafeYield(nullptr, false);
  grid->Scroll(0, 100);
  ASSERT_EQ(grid->GetViewStart(), wxPoint(0, 100));
  RecordingDC dc({300, 400});
  grid->paintOn(dc);
  // 1000 is the first y in view: row 37 ends at 1010 and row 36 at 988. 1399 is the last: row 55
  // starts at 1384 and row 56 at 1406.
  const std::vector<DrawCall> texts = dc.callsOf(DrawOp::text);
  ASSERT_EQ(texts.size(), 19u);
  EXPECT_EQ(texts.front().text, "  37");
  EXPECT_EQ(texts.back().text, "  55");
  EXPECT_EQ(dc.GetDeviceOrigin(), wxPoint(0, -1000));
}

}  // namespace
}  // namespace vantrel
