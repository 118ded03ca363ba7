#include "frame/main_frame.h"

#include <gtest/gtest.h>
#include <wx/notebook.h>
#include <wx/splitter.h>
#include <wx/statusbr.h>
#include <wx/utils.h>

#include <set>
#include <string>

#include "canvas/canvas_panel.h"
#include "palette/palette_panel.h"
#include "properties/properties_panel.h"
#include "tests/frame/frame_fixture.h"
#include "view3d/view3d_frame.h"

namespace vantrel {
namespace {

using MainFrameTest = FrameTest;

TEST_F(MainFrameTest, TracesItsConstructionStepByStep) {
  frame();
  EXPECT_EQ(ReadFileText(folders_.data + "/mainframe.log"),
            "A: wxFrame base constructed\r\n"
            "B: MenuBar done\r\n"
            "C: ToolBar done\r\n"
            "BuildPanels: start\r\n"
            "BuildPanels: root panel created\r\n"
            "BuildPanels: palette created\r\n"
            "BuildPanels: splitter created\r\n"
            "BuildPanels: canvas created\r\n"
            "BuildPanels: properties created\r\n"
            "BuildPanels: split done\r\n"
            "BuildPanels: adding to sizer\r\n"
            "BuildPanels: outerSplit added\r\n"
            "BuildPanels: sizer set\r\n"
            "BuildPanels: layout done\r\n"
            "BuildPanels: palette populated\r\n"
            "D: Panels done\r\n"
            "E: StatusBar done\r\n"
            "F: MainFrame constructor complete\r\n");
}

TEST_F(MainFrameTest, StartsWithItsSizeAndStatus) {
  EXPECT_EQ(frame().GetSize(), wxSize(1400, 900));
  EXPECT_EQ(frame().GetStatusBar()->GetFieldsCount(), 3);
  EXPECT_EQ(statusText(kStatusMessage), "Ready");
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 0");
  EXPECT_EQ(statusText(kStatusPosition), "x: 0  y: 0 mm");
}

// Dialogs take the icon of the window that they belong to.
TEST_F(MainFrameTest, HasTheProgramsIconInAllSizesAndSoHasThe3DWindow) {
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    const wxIcon icon = frame().GetIcons().GetIcon(wxSize(side, side), wxIconBundle::FALLBACK_NONE);
    EXPECT_TRUE(icon.IsOk()) << side;
  }
  command(kCmd3DView);
  ASSERT_NE(frame().view3D(), nullptr);
  EXPECT_EQ(frame().view3D()->GetIcons().GetIconCount(), 6u);
  frame().view3D()->Close();
}

TEST_F(MainFrameTest, PrintsOnLetterInLandscapeWithMarginsOf15Mm) {
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
  EXPECT_EQ(frame().printData().GetOrientation(), wxLANDSCAPE);
  const wxPageSetupDialogData& page = frame().pageSetupData();
  EXPECT_EQ(page.GetPrintData().GetOrientation(), wxLANDSCAPE);
  EXPECT_EQ(page.GetMarginTopLeft(), wxPoint(15, 15));
  EXPECT_EQ(page.GetMarginBottomRight(), wxPoint(15, 15));
}

TEST_F(MainFrameTest, GivesTheCanvasAllTheRoomThatTheWindowGains) {
  frame().Show();
  WaitUntilSettled(frame().canvas());
  EXPECT_GE(frame().palette().GetSize().x, 235);
  // 280 or more to the right of the sash, which has a width of its own.
  const auto* inner = dynamic_cast<wxSplitterWindow*>(frame().canvas().GetParent());
  ASSERT_NE(inner, nullptr);
  EXPECT_GE(inner->GetClientSize().x - inner->GetSashPosition(), 280);
  EXPECT_GE(frame().canvas().GetSize().x, 700) << "half of the window is the plan's";
  const int paletteWidth = frame().palette().GetSize().x;
  const int propertiesWidth = frame().properties().GetSize().x;
  const int canvasWidth = frame().canvas().GetSize().x;
  const int frameWidth = frame().GetSize().x;
  frame().SetSize(1500, 900);
  WaitUntilSettled(frame().canvas());
  EXPECT_EQ(frame().palette().GetSize().x, paletteWidth);
  EXPECT_EQ(frame().properties().GetSize().x, propertiesWidth);
  EXPECT_EQ(frame().canvas().GetSize().x - canvasWidth, frame().GetSize().x - frameWidth);
}

// A tab that the toolkit has put behind its arrows lies under no point.
TEST_F(MainFrameTest, ShowsTheTabsOfAllPalettePagesAtOnce) {
  frame().Show();
  WaitUntilSettled(frame().canvas());
  const auto* pages = FindControl<wxNotebook>(frame().palette());
  ASSERT_NE(pages, nullptr);
  std::set<int> seen;
  for (int x = 0; x < pages->GetSize().x; ++x) seen.insert(pages->HitTest(wxPoint(x, 10)));
  seen.erase(wxNOT_FOUND);
  EXPECT_EQ(seen, (std::set<int>{0, 1, 2, 3}));
}

TEST_F(MainFrameTest, HasRoomInTheStatusBarForWhatItSays) {
  frame().Show();
  WaitUntilSettled(frame().canvas());
  const wxStatusBar& bar = *frame().GetStatusBar();
  const auto room = [&bar](int field) {
    wxRect rect;
    EXPECT_TRUE(bar.GetFieldRect(field, rect));
    return rect.width;
  };
  EXPECT_GE(room(0),
            bar.GetTextExtent("Click vertices to outline the baseboard. Click first vertex "
                              "(or press Enter) to close. Backspace removes last vertex; "
                              "Escape cancels.")
                .x);
  EXPECT_GE(room(1), bar.GetTextExtent("Pieces: 100000").x);
  EXPECT_GE(room(2), bar.GetTextExtent("-100000 mm,  -100000 mm").x);
  EXPECT_GE(room(2), bar.GetTextExtent("-10000.0 cm,  -10000.0 cm").x);
}

TEST_F(MainFrameTest, SplittersMoveLiveWithoutBorders) {
  auto* inner = dynamic_cast<wxSplitterWindow*>(frame().canvas().GetParent());
  ASSERT_NE(inner, nullptr);
  auto* outer = dynamic_cast<wxSplitterWindow*>(inner->GetParent());
  ASSERT_NE(outer, nullptr);
  EXPECT_EQ(outer->GetSashGravity(), 0.0);
  EXPECT_EQ(inner->GetSashGravity(), 1.0);
  EXPECT_EQ(outer->GetMinimumPaneSize(), 150);
  EXPECT_EQ(inner->GetMinimumPaneSize(), 200);
  EXPECT_EQ(frame().palette().GetMinSize().x, 150);
  EXPECT_TRUE(outer->HasFlag(wxSP_LIVE_UPDATE) && inner->HasFlag(wxSP_LIVE_UPDATE));
  EXPECT_FALSE(outer->HasFlag(wxSP_BORDER) || inner->HasFlag(wxSP_BORDER));
}

TEST_F(MainFrameTest, ALayoutNeverSavedShowsTheBaseTitleAndAStarWhenDirty) {
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor");
  frame().markDirty();
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor *");
}

TEST_F(MainFrameTest, TheTitleNamesTheFileWhenTheLayoutHasNoName) {
  WriteFileText(inStore("Branch.line.vtl"), LayoutText(""));
  frame().LoadIntoFrame(inStore("Branch.line.vtl"));
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - Branch.line");
  frame().markDirty();
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - Branch.line *");
}

TEST_F(MainFrameTest, TheTitlePrefersTheLayoutsName) {
  WriteFileText(inStore("file.vtl"), LayoutText("Harbour"));
  frame().LoadIntoFrame(inStore("file.vtl"));
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - Harbour");
}

TEST_F(MainFrameTest, HandsACanvasClickToThePropertiesPanel) {
  EXPECT_FALSE(frame().properties().hasPendingLabelPos());
  frame().noteCanvasClick({120.5, -30.0});
  EXPECT_TRUE(frame().properties().hasPendingLabelPos());
  EXPECT_EQ(frame().properties().pendingLabelPos(), (Vec2{120.5, -30.0}));
}

TEST_F(MainFrameTest, PanelsReadAndWriteTheStatus) {
  frame().setStatus(kStatusMessage, "Brücke");
  EXPECT_EQ(frame().status(kStatusMessage), "Brücke");
}

TEST_F(MainFrameTest, MenuHelpNeverCoversTheStatus) {
  EXPECT_EQ(frame().GetStatusBarPane(), -1);
}

TEST_F(MainFrameTest, ConnectsThePaletteToTheCanvas) {
  frame().Show();
  WaitUntilSettled(frame().canvas());
  auto* pages = FindControl<wxNotebook>(frame().palette());
  auto* scenery = dynamic_cast<wxListBox*>(frame().FindWindow(kSceneryListId));
  ASSERT_TRUE(pages && scenery);
  pages->SetSelection(2);  // Track, Library, Scenery
  DoubleClickRow(*scenery, 1);
  EXPECT_TRUE(frame().canvas().state().sceneryDrag.active);
  frame().canvas().cancelPaletteDrag();
}

}  // namespace
}  // namespace vantrel
