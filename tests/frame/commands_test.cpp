#include "frame/commands.h"

#include <gtest/gtest.h>
#include <wx/menu.h>
#include <wx/toolbar.h>

#include <string>
#include <vector>

#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

struct Entry {
  int id = 0;  // 0 for a separator
  std::string label;

  friend bool operator==(const Entry&, const Entry&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Entry& entry) {
    return out << entry.id << " " << entry.label;
  }
};

const Entry kBar{};

std::vector<Entry> EntriesOf(const wxMenu& menu) {
  std::vector<Entry> entries;
  for (const wxMenuItem* item : menu.GetMenuItems()) {
    if (item->IsSeparator())
      entries.push_back(kBar);
    else
      entries.push_back(
          {item->IsSubMenu() ? -1 : item->GetId(), item->GetItemLabel().utf8_string()});
  }
  return entries;
}

class Menus : public FrameTest {
 protected:
  const wxMenu& menu(std::size_t index) { return *frame().GetMenuBar()->GetMenu(index); }
  const wxMenuItem& item(int id) { return *frame().GetMenuBar()->FindItem(id); }
};

TEST_F(Menus, StandInTheirOrder) {
  wxMenuBar& bar = *frame().GetMenuBar();
  ASSERT_EQ(bar.GetMenuCount(), 6u);
  EXPECT_EQ(bar.GetMenuLabel(0), "&File");
  EXPECT_EQ(bar.GetMenuLabel(1), "&Edit");
  EXPECT_EQ(bar.GetMenuLabel(2), "&View");
  EXPECT_EQ(bar.GetMenuLabel(3), "&Layout");
  EXPECT_EQ(bar.GetMenuLabel(4), "&Tools");
  EXPECT_EQ(bar.GetMenuLabel(5), "&Help");
}

TEST_F(Menus, FileHoldsItsEntriesAndSeparators) {
  const std::vector<Entry> expected = {{5002, "&New Layout\tCtrl+N"},
                                       {5000, "&Open Layout...\tCtrl+O"},
                                       kBar,
                                       {5003, "&Save\tCtrl+S"},
                                       {5004, "Save &As...\tCtrl+Shift+S"},
                                       kBar,
                                       {1900, "&Import Layout..."},
                                       {1901, "&Export Layout..."},
                                       kBar,
                                       {5001, "&Close Layout\tCtrl+W"},
                                       kBar,
                                       {5012, "Page Set&up..."},
                                       {5013, "Print Pre&view..."},
                                       {5010, "&Print...\tCtrl+P"},
                                       kBar,
                                       {2001, "Save as &Library Block..."},
                                       kBar,
                                       {5006, "E&xit"}};
  EXPECT_EQ(EntriesOf(menu(0)), expected);
}

TEST_F(Menus, EditHoldsItsEntriesAndSeparators) {
  const std::vector<Entry> expected = {{2002, "&Undo\tCtrl+Z"},
                                       {2003, "&Redo\tCtrl+Y"},
                                       kBar,
                                       {2004, "&Delete\tDel"},
                                       {2005, "Select &All\tCtrl+A"}};
  EXPECT_EQ(EntriesOf(menu(1)), expected);
}

TEST_F(Menus, ViewHoldsItsEntriesAndSeparators) {
  const std::vector<Entry> expected = {
      {2006, "Zoom &In\t+"},          {2007, "Zoom &Out\t-"},
      {2008, "Zoom to &Fit\tCtrl+0"}, kBar,
      {2009, "Show &Grid\tCtrl+G"},   {2010, "&Snap\tCtrl+Shift+G"}};
  EXPECT_EQ(EntriesOf(menu(2)), expected);
}

TEST_F(Menus, LayoutHoldsTheUnitsAndTheShape) {
  const std::vector<Entry> expected = {{-1, "Units of Measure"}, kBar, {2015, "Layout &Shape..."}};
  EXPECT_EQ(EntriesOf(menu(3)), expected);
  const std::vector<Entry> units = {
      {2016, "Millimetres (mm)"}, {2017, "Centimetres (cm)"}, {2018, "Inches (in)"}};
  EXPECT_EQ(EntriesOf(*menu(3).GetMenuItems().front()->GetSubMenu()), units);
}

TEST_F(Menus, HelpHoldsItsEntriesAndSeparators) {
  const std::vector<Entry> expected = {{2022, "&Help\tF1"}, kBar, {2023, "&Options..."}};
  EXPECT_EQ(EntriesOf(menu(5)), expected);
}

TEST_F(Menus, GridSnapAndMillimetresStartChecked) {
  EXPECT_EQ(item(2009).GetKind(), wxITEM_CHECK);
  EXPECT_TRUE(item(2009).IsChecked());
  EXPECT_EQ(item(2010).GetKind(), wxITEM_CHECK);
  EXPECT_TRUE(item(2010).IsChecked());
  for (const int id : {2016, 2017, 2018}) EXPECT_EQ(item(id).GetKind(), wxITEM_RADIO);
  EXPECT_TRUE(item(2016).IsChecked());
  EXPECT_FALSE(item(2017).IsChecked());
  EXPECT_FALSE(item(2018).IsChecked());
}

TEST_F(Menus, EveryEntryCanBeChosen) {
  for (const int id : {5002, 5000, 5003, 5004, 1900, 1901, 5001, 5012, 5013, 5010, 2001, 5006, 2004,
                       2005, 2006, 2007, 2008, 2009, 2010, 2016, 2017, 2018, 2015, 2022, 2023})
    EXPECT_TRUE(item(id).IsEnabled()) << id;
}

class Toolbar : public FrameTest {
 protected:
  std::vector<Entry> entries() {
    std::vector<Entry> found;
    wxToolBar& bar = *frame().GetToolBar();
    for (std::size_t i = 0; i < bar.GetToolsCount(); ++i) {
      const wxToolBarToolBase* tool = bar.GetToolByPos(static_cast<int>(i));
      if (tool->IsSeparator())
        found.push_back(kBar);
      else
        found.push_back({tool->GetId(), tool->GetLabel().utf8_string()});
    }
    return found;
  }
};

TEST_F(Toolbar, HoldsItsToolsAndSeparatorsInOrder) {
  const std::vector<Entry> expected = {{2002, "Undo"},
                                       {2003, "Redo"},
                                       kBar,
                                       {2019, "Levels"},
                                       kBar,
                                       {2000, "3D View"},
                                       kBar,
                                       {2008, "Fit"},
                                       kBar,
                                       {2011, "Hide Labels"},
                                       kBar,
                                       {2012, "Tunnel"},
                                       {2013, "Measure"},
                                       {2014, "Polygon"},
                                       kBar};
  EXPECT_EQ(entries(), expected);
}

TEST_F(Toolbar, ShowsTextOnlyAndLiesFlat) {
  const long style = frame().GetToolBar()->GetWindowStyle();
  EXPECT_TRUE(style & wxTB_TEXT);
  EXPECT_TRUE(style & wxTB_NOICONS);
  EXPECT_FALSE(style & wxTB_VERTICAL);
}

TEST_F(Toolbar, GivesTooltipsToFiveTools) {
  wxToolBar& bar = *frame().GetToolBar();
  EXPECT_EQ(bar.GetToolShortHelp(2019), "Manage layout levels (decks): height, color, and shape");
  EXPECT_EQ(bar.GetToolShortHelp(2011), "Toggle track labels and join dots");
  EXPECT_EQ(bar.GetToolShortHelp(2012),
            "Place tunnel portals on the selected chain (or remove if already in a tunnel)");
  EXPECT_EQ(bar.GetToolShortHelp(2013),
            "Measuring tape: click two points on the canvas to lay down a length annotation");
  EXPECT_EQ(bar.GetToolShortHelp(2014),
            "Draw a free-form polygon (access hatch, river, mountain, etc.)");
  for (const int id : {2002, 2003, 2000, 2008}) EXPECT_EQ(bar.GetToolShortHelp(id), "") << id;
}

TEST_F(Toolbar, HasThreeCheckTools) {
  wxToolBar& bar = *frame().GetToolBar();
  for (const int id : {2011, 2013, 2014})
    EXPECT_EQ(bar.FindById(id)->GetKind(), wxITEM_CHECK) << id;
  for (const int id : {2002, 2003, 2019, 2000, 2008, 2012})
    EXPECT_EQ(bar.FindById(id)->GetKind(), wxITEM_NORMAL) << id;
}

TEST_F(Toolbar, OffersOnlyWhatIsBuilt) {
  wxToolBar& bar = *frame().GetToolBar();
  for (const int id : {2000, 2008, 2011, 2013, 2014, 2019})
    EXPECT_TRUE(bar.GetToolEnabled(id)) << id;
}

TEST(Commands, UndoAndRedoNeedHistory) {
  Layout layout;
  EXPECT_FALSE(DocumentAllows(2002, layout));
  EXPECT_FALSE(DocumentAllows(2003, layout));
  layout.undoHistory.emplace_back();
  EXPECT_TRUE(DocumentAllows(2002, layout));
  EXPECT_FALSE(DocumentAllows(2003, layout));
  layout.redoHistory.emplace_back();
  EXPECT_TRUE(DocumentAllows(2003, layout));
}

TEST(Commands, DeleteNeedsASelectedPieceOrSceneryItem) {
  Layout layout;
  layout.pieces.emplace_back();
  layout.scenery.emplace_back();
  layout.labels.emplace_back();
  layout.shapes.emplace_back();
  layout.measurements.emplace_back();
  layout.labels[0].sel = layout.shapes[0].sel = layout.measurements[0].sel = true;
  EXPECT_FALSE(DocumentAllows(2004, layout)) << "annotations don't count";
  layout.pieces[0].sel = true;
  EXPECT_TRUE(DocumentAllows(2004, layout));
  layout.pieces[0].sel = false;
  layout.scenery[0].sel = true;
  EXPECT_TRUE(DocumentAllows(2004, layout));
}

TEST(Commands, OthersHaveNoRule) {
  EXPECT_TRUE(DocumentAllows(5003, Layout{}));
}

}  // namespace
}  // namespace vantrel
