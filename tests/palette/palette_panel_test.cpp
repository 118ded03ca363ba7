#include "palette/palette_panel.h"

#include <gtest/gtest.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/tooltip.h>

#include <string>
#include <vector>

#include "catalog/track_catalog.h"
#include "palette/piece_preview_popup.h"
#include "tests/palette/palette_fixture.h"

namespace vantrel {
namespace {

using Texts = std::vector<std::string>;

const Texts kFreshPages = {"Track", "Library", "Scenery", "Signals"};
const Texts kPagesAtZ = {"Track", "Library", "Signals"};
const Texts kPagesAfterZ = {"Track", "Library", "Signals", "Scenery"};
const Texts kSignalTexts = {"Semaphore (Stop)", "Semaphore (Clear)", "Color light (Stop)",
                            "Color light (Clear)"};
const Texts kZSignals = {"Semaphore Z (Stop)", "Semaphore Z (Clear)", "Color light Z (Stop)",
                         "Color light Z (Clear)"};

// Every row of the grid, with "# " before a header and "= " before a text row.
Texts Outline(const TrackIconGrid& grid) {
  Texts rows;
  for (const GridRow& row : grid.rows()) {
    if (row.isHeader)
      rows.push_back("# " + row.title.utf8_string());
    else if (row.isText)
      rows.push_back("= " + row.label.utf8_string() + " " + row.key);
    else
      rows.push_back(row.key);
  }
  return rows;
}

TEST_F(PaletteTest, HasTheChooserAHintAndFourPagesFromTopToBottom) {
  EXPECT_EQ(chooser->GetCount(), 4u);
  EXPECT_EQ(chooser->GetString(0), "Marklin C-Track");
  EXPECT_EQ(chooser->GetString(1), "Marklin K-Track");
  EXPECT_EQ(chooser->GetString(2), "TRIX C-Track");
  EXPECT_EQ(chooser->GetString(3), "Marklin Z-Track");
  EXPECT_EQ(chooser->GetSelection(), 0);
  EXPECT_EQ(panel->systemIndex(), 0);
  EXPECT_EQ(pageTitles(), kFreshPages);
  EXPECT_EQ(notebook->GetSelection(), 0);

  wxSizer* sizer = panel->GetSizer();
  ASSERT_EQ(sizer->GetItemCount(), 3u);
  EXPECT_EQ(sizer->GetItem(std::size_t{0})->GetWindow(), chooser);
  const auto* hint = dynamic_cast<wxStaticText*>(sizer->GetItem(std::size_t{1})->GetWindow());
  ASSERT_NE(hint, nullptr);
  EXPECT_EQ(hint->GetLabel(), "Double-click to place on canvas.");
  EXPECT_EQ(sizer->GetItem(std::size_t{2})->GetWindow(), notebook);
  EXPECT_EQ(sizer->GetItem(std::size_t{2})->GetProportion(), 1);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(sizer->GetItem(i)->GetBorder(), 4);
}

TEST_F(PaletteTest, FillsTheGridWithTheSectionsAndTheHelixKitsOfCTrack) {
  const Texts rows = Outline(*grid);
  const Texts end = {
      "# Bridges",
      "74636",
      "74620",
      "74623",
      "74613",
      "74618",
      "# Helix",
      "= Proses 2.5 R1&R2 26cm/10.2\" @helix:proses_2_5_r1r2",
      "= Proses 3.5 R1&R2 34cm/13.4\" @helix:proses_3_5_r1r2",
      "= Proses 4.5 R1&R2 42cm/16.5\" @helix:proses_4_5_r1r2",
      "= Proses 2.5 R2&R3 26cm/10.2\" @helix:proses_2_5_r2r3",
      "= Proses 3.5 R2&R3 34cm/13.4\" @helix:proses_3_5_r2r3",
      "= Proses 2.5 R3&R4 26cm/10.2\" @helix:proses_2_5_r3r4",
      "= Proses 4.5 R3&R4 42cm/16.5\" @helix:proses_4_5_r3r4",
      "= Proses 2.5 R4&R5 26cm/10.2\" @helix:proses_2_5_r4r5",
      "= Proses 3.5 R4&R5 34cm/13.4\" @helix:proses_3_5_r4r5",
      "= Proses 4.5 R4&R5 42cm/16.5\" @helix:proses_4_5_r4r5",
  };
  // Ten sections with 51 parts, then the header and the ten kits.
  ASSERT_EQ(rows.size(), 72u);
  EXPECT_EQ(rows[0], "# Straights");
  EXPECT_EQ(rows[1], "24064");
  EXPECT_EQ(rows[10], "# Curves");
  EXPECT_EQ(Texts(rows.end() - static_cast<std::ptrdiff_t>(end.size()), rows.end()), end);
}

TEST_F(PaletteTest, FindsTheRepeatedCircuitCurveInTheLaterSection) {
  // 9 straights, 14 curves, 5, 3, 2 and 4 parts in seven sections, then 24994 and 24294.
  EXPECT_EQ(grid->rowOfPart("24294"), 45);
  EXPECT_EQ(grid->rows()[45].key, "24294");
  EXPECT_EQ(grid->rows()[43].title, "Circuit Tracks");
}

TEST_F(PaletteTest, OffersHelicesForCTrackOnly) {
  for (const int index : {1, 2, 3}) {
    choose(index);
    for (const GridRow& row : grid->rows()) {
      EXPECT_FALSE(row.isText);
      EXPECT_NE(row.title, "Helix");
    }
  }
  choose(0);
  EXPECT_EQ(grid->rows().size(), 72u);
}

TEST_F(PaletteTest, ShowsTheTrixPartsWhoseSystemNumberIsThreeAtTheThirdEntry) {
  choose(2);
  const Texts rows = Outline(*grid);
  ASSERT_EQ(rows.size(), 41u);  // 9 sections, 32 parts
  EXPECT_EQ(rows[1], "62064");
  EXPECT_EQ(rows[10], "# Curves R1 (360mm)");
  EXPECT_EQ(rows.back(), "62613");
}

TEST_F(PaletteTest, ShowsTheKAndZPartsAtTheirEntries) {
  choose(1);
  EXPECT_EQ(grid->rows().size(), 63u);  // 12 sections, 51 parts
  EXPECT_EQ(grid->rows()[1].key, "2200");
  EXPECT_EQ(grid->rows().back().key, "7267");
  choose(3);
  EXPECT_EQ(grid->rows().size(), 44u);  // 10 sections, 34 parts
  EXPECT_EQ(grid->rows()[1].key, "8500");
  EXPECT_EQ(grid->rows().back().key, "8977");
}

TEST_F(PaletteTest, ForgetsTheSelectedRowWhenTheSystemChanges) {
  SendMouse(*grid, wxEVT_LEFT_DOWN, pointOnRow(3), true);
  ASSERT_EQ(grid->selectedRow(), 3);
  choose(1);
  EXPECT_EQ(grid->selectedRow(), -1);
}

TEST_F(PaletteTest, ListsTheSceneryUnderHeadingsInCatalogOrder) {
  EXPECT_EQ(texts(scenery), (Texts{"--- Platforms", "Platform", "Island platform 460mm",
                                   "--- Stations", "Station Gueglingen", "Station Schwarzburg",
                                   "--- Bridges", "Truss bridge (scenery)", "Arch bridge (scenery)",
                                   "--- Other", "Roundhouse 72886 (3-stall)", "--- Nature",
                                   "Deciduous tree (small)", "Deciduous tree (large)",
                                   "Conifer tree", "Tree group (3 mixed)", "Bush / shrub"}));
}

TEST_F(PaletteTest, ListsTheSignalsOfTheChosenScale) {
  EXPECT_EQ(texts(signals), kSignalTexts);
  for (const int index : {1, 2}) {
    choose(index);
    EXPECT_EQ(texts(signals), kSignalTexts) << index;
  }
  choose(3);
  EXPECT_EQ(texts(signals), kZSignals);
  choose(0);
  EXPECT_EQ(texts(signals), kSignalTexts);
}

TEST_F(PaletteTest, AtZTrackHasOnlyTrackLibraryAndSignalsAndOnlyZSignals) {
  choose(3);
  EXPECT_EQ(pageTitles(), kPagesAtZ);
  EXPECT_EQ(texts(signals), kZSignals);
}

TEST_F(PaletteTest, GoingToZTrackWhileSceneryIsCurrentSelectsTrackFirst) {
  openPage("Scenery");
  ASSERT_EQ(notebook->GetCurrentPage(), scenery);
  std::size_t pagesAtTheChange = 0;
  int selected = -1;
  notebook->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [&](wxBookCtrlEvent& event) {
    if (selected < 0) {
      selected = event.GetSelection();
      pagesAtTheChange = notebook->GetPageCount();
    }
  });
  choose(3);
  EXPECT_EQ(selected, 0);
  EXPECT_EQ(pagesAtTheChange, 4u);  // the page was still there
  EXPECT_EQ(notebook->GetCurrentPage(), grid);
  EXPECT_EQ(pageTitles(), kPagesAtZ);
}

TEST_F(PaletteTest, GoingToZTrackKeepsAnotherCurrentPage) {
  openPage("Signals");
  choose(3);
  EXPECT_EQ(notebook->GetCurrentPage(), signals);
}

TEST_F(PaletteTest, ComingBackFromZTrackPutsSceneryLastAndDoesNotSelectIt) {
  choose(3);
  choose(0);
  EXPECT_EQ(pageTitles(), kPagesAfterZ);
  EXPECT_EQ(notebook->GetSelection(), 0);
  EXPECT_EQ(scenery->GetCount(), 17u);
  // A second visit finds the page at its new place.
  choose(3);
  EXPECT_EQ(pageTitles(), kPagesAtZ);
  choose(1);
  EXPECT_EQ(pageTitles(), kPagesAfterZ);
  choose(2);
  EXPECT_EQ(pageTitles(), kPagesAfterZ);
}

TEST_F(PaletteTest, ChoosingZTrackTwiceChangesNothingMore) {
  choose(3);
  choose(3);
  EXPECT_EQ(pageTitles(), kPagesAtZ);
}

TEST_F(PaletteTest, ReadingEverythingAnewBringsTheSceneryPageBack) {
  choose(3);
  panel->RefreshAll();
  EXPECT_EQ(pageTitles(), kPagesAfterZ);
  EXPECT_EQ(texts(signals), kZSignals);
  panel->RefreshAll();
  EXPECT_EQ(pageTitles(), kPagesAfterZ);
  EXPECT_EQ(scenery->GetCount(), 17u);
  EXPECT_EQ(signals->GetCount(), 4u);
}

TEST_F(PaletteTest, SelectsTheSystemOfALoadedLayoutAndShowsIt) {
  Layout layout;
  Piece piece;
  piece.cat = "8500";
  layout.pieces.push_back(piece);
  panel->SelectSystemFor(layout);
  EXPECT_EQ(chooser->GetSelection(), 3);
  EXPECT_EQ(grid->rows()[1].key, "8500");
  EXPECT_EQ(texts(signals), kZSignals);
  EXPECT_EQ(pageTitles(), kPagesAtZ);

  piece.cat = "62188";
  layout.pieces.push_back(piece);
  panel->SelectSystemFor(layout);
  EXPECT_EQ(chooser->GetSelection(), 2);
  EXPECT_EQ(grid->rows()[1].key, "62064");
  EXPECT_EQ(pageTitles(), kPagesAfterZ);

  panel->SelectSystemFor({});
  EXPECT_EQ(chooser->GetSelection(), 0);
}

TEST_F(PaletteTest, ChangesNothingInTheDocument) {
  choose(3);
  choose(0);
  panel->RefreshAll();
  EXPECT_EQ(workspace.changes, Texts{});
}

TEST_F(PaletteTest, ADoubleClickOnAPartPlacesIt) {
  SendMouse(*grid, wxEVT_LEFT_DCLICK, pointOnRow(rowOfKey("24188")), true);
  EXPECT_EQ(canvas.calls, (Texts{"double click 24188"}));
}

// The presses of three double clicks as the toolkit tells them: it takes the third for a triple
// click, and counts anew with the fourth.
TEST_F(PaletteTest, DoubleClicksInQuickSuccessionPlaceAPieceEach) {
  const wxPoint at = pointOnRow(rowOfKey("24188"));
  long timeMs = 10000;
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_LEFT_DOWN, wxEVT_LEFT_DOWN,
                           wxEVT_LEFT_DCLICK, wxEVT_LEFT_DOWN}) {
    SendMouse(*grid, type, at, true, timeMs);
    SendMouse(*grid, wxEVT_LEFT_UP, at, false, timeMs + 20);
    timeMs += 50;
  }
  EXPECT_EQ(canvas.calls,
            (Texts{"double click 24188", "double click 24188", "double click 24188"}));
}

TEST_F(PaletteTest, ADoubleClickOnAGridRowDoesNotAlsoStartADragWhileTheButtonStaysDown) {
  const wxPoint at = pointOnRow(rowOfKey("24188"));
  SendMouse(*grid, wxEVT_LEFT_DOWN, at, true);
  SendMouse(*grid, wxEVT_LEFT_UP, at);
  SendMouse(*grid, wxEVT_LEFT_DCLICK, at, true);
  SendMouse(*grid, wxEVT_MOTION, at + wxPoint(3, 3), true);
  SendMouse(*grid, wxEVT_MOTION, at + wxPoint(60, 90), true);
  EXPECT_EQ(canvas.calls, (Texts{"double click 24188"}));
}

TEST_F(PaletteTest, ADoubleClickOnAHelixPlacesItAt500By500) {
  SendMouse(*grid, wxEVT_LEFT_DCLICK, pointOnRow(rowOfKey("@helix:proses_3_5_r2r3")), true);
  EXPECT_EQ(canvas.calls, Texts{});
  EXPECT_EQ(workspace.kits, (Texts{"proses_3_5_r2r3"}));
  ASSERT_EQ(workspace.poses.size(), 1u);
  EXPECT_DOUBLE_EQ(workspace.poses[0].x, 500.0);
  EXPECT_DOUBLE_EQ(workspace.poses[0].y, 500.0);
  EXPECT_DOUBLE_EQ(workspace.poses[0].heading, 0.0);
}

TEST_F(PaletteTest, DraggingAGridRowStartsItsDragOnTheCanvas) {
  const wxPoint part = pointOnRow(rowOfKey("24611"));
  SendMouse(*grid, wxEVT_LEFT_DOWN, part, true);
  SendMouse(*grid, wxEVT_MOTION, part + wxPoint(1, 0), true);
  const wxPoint kit = pointOnRow(rowOfKey("@helix:proses_4_5_r4r5"));
  SendMouse(*grid, wxEVT_LEFT_DOWN, kit, true);
  SendMouse(*grid, wxEVT_MOTION, kit + wxPoint(1, 0), true);
  EXPECT_EQ(canvas.calls, (Texts{"piece drag 24611", "helix drag proses_4_5_r4r5"}));
}

TEST_F(PaletteTest, ADoubleClickInAListStartsASceneryDrag) {
  openPage("Scenery");
  scenery->SetSelection(1);
  doubleClick(scenery);
  openPage("Signals");
  signals->SetSelection(2);
  doubleClick(signals);
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag platform", "scenery drag signal_color_stop"}));
}

TEST_F(PaletteTest, ZSignalsAreDraggedByTheirOwnKeys) {
  choose(3);
  openPage("Signals");
  signals->SetSelection(2);
  doubleClick(signals);
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag signal_z_color_stop"}));
}

TEST_F(PaletteTest, DraggingAListRowStartsASceneryDragAndLetsTheListSeeTheEvents) {
  openPage("Scenery");
  scenery->SetSelection(10);
  EXPECT_FALSE(SendMouse(*scenery, wxEVT_LEFT_DOWN, {20, 20}, true));
  EXPECT_FALSE(SendMouse(*scenery, wxEVT_MOTION, {22, 20}, true));
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag 72886"}));
}

TEST_F(PaletteTest, MovingOverAListWithoutTheButtonStartsNothing) {
  openPage("Signals");
  signals->SetSelection(0);
  SendMouse(*signals, wxEVT_MOTION, {22, 20});
  EXPECT_EQ(canvas.calls, Texts{});
}

TEST_F(PaletteTest, ADoubleClickInAListDoesNotAlsoDragUntilTheNextPress) {
  openPage("Scenery");
  scenery->SetSelection(4);
  SendMouse(*scenery, wxEVT_LEFT_DOWN, {20, 20}, true);
  doubleClick(scenery);
  SendMouse(*scenery, wxEVT_MOTION, {22, 20}, true);
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag station_small"}));
  SendMouse(*scenery, wxEVT_LEFT_DOWN, {20, 20}, true);
  SendMouse(*scenery, wxEVT_MOTION, {22, 20}, true);
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag station_small", "scenery drag station_small"}));
}

TEST_F(PaletteTest, AHeadingOrNoSelectionStartsNothing) {
  openPage("Scenery");
  doubleClick(scenery);
  scenery->SetSelection(0);
  doubleClick(scenery);
  SendMouse(*scenery, wxEVT_LEFT_DOWN, {20, 20}, true);
  SendMouse(*scenery, wxEVT_MOTION, {22, 20}, true);
  EXPECT_EQ(canvas.calls, Texts{});
}

TEST_F(PaletteTest, TheListOfTheCurrentPageSaysWhatIsDragged) {
  scenery->SetSelection(1);
  signals->SetSelection(0);
  openPage("Signals");
  doubleClick(scenery);
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag signal_semaphore_stop"}));
  openPage("Track");
  doubleClick(scenery);
  openPage("Library");
  doubleClick(signals);
  EXPECT_EQ(canvas.calls.size(), 1u);
}

TEST_F(PaletteTest, TheSceneryPageStillDragsAfterAVisitToZTrack) {
  choose(3);
  choose(0);
  openPage("Scenery");
  ASSERT_EQ(notebook->GetCurrentPage(), scenery);
  scenery->SetSelection(16);
  doubleClick(scenery);
  EXPECT_EQ(canvas.calls, (Texts{"scenery drag bush"}));
}

TEST_F(PaletteTest, TheTooltipIsTheDescriptionOfThePartUnderThePointer) {
  SendMouse(*grid, wxEVT_MOTION, pointOnRow(rowOfKey("24130")));
  EXPECT_EQ(grid->GetToolTipText().utf8_string(), "24130 (30°) R1 - 360mm (14-3/16)");
  SendMouse(*grid, wxEVT_MOTION, pointOnRow(rowOfKey("24188")));
  EXPECT_EQ(grid->GetToolTipText(), "24188 - 188.3mm");
  SendMouse(*grid, wxEVT_LEAVE_WINDOW, {-1, -1});
  EXPECT_EQ(grid->GetToolTip(), nullptr);
}

TEST_F(PaletteTest, HelixRowsAndHeadersHaveNoTooltip) {
  SendMouse(*grid, wxEVT_MOTION, pointOnRow(rowOfKey("24188")));
  SendMouse(*grid, wxEVT_MOTION, pointOnRow(rowOfKey("@helix:proses_2_5_r1r2")));
  EXPECT_EQ(grid->GetToolTip(), nullptr);
  SendMouse(*grid, wxEVT_MOTION, pointOnRow(rowOfKey("24188")));
  SendMouse(*grid, wxEVT_MOTION, {40, 10});
  EXPECT_EQ(grid->GetToolTip(), nullptr);
}

TEST_F(PaletteTest, TheTooltipIsNotSetAnewWhileThePointerStaysOnARow) {
  const wxPoint at = pointOnRow(rowOfKey("24188"));
  SendMouse(*grid, wxEVT_MOTION, at);
  grid->SetToolTip("a mark");
  SendMouse(*grid, wxEVT_MOTION, at + wxPoint(5, 5));
  EXPECT_EQ(grid->GetToolTipText(), "a mark");
  SendMouse(*grid, wxEVT_MOTION, pointOnRow(rowOfKey("24172")));
  EXPECT_EQ(grid->GetToolTipText(), "24172 - 171.7mm");
}

TEST_F(PaletteTest, APressLetsTheNextMotionSetTheTooltipAnew) {
  const wxPoint at = pointOnRow(rowOfKey("24188"));
  SendMouse(*grid, wxEVT_MOTION, at);
  grid->SetToolTip("a mark");
  SendMouse(*grid, wxEVT_LEFT_DOWN, at, true);
  SendMouse(*grid, wxEVT_LEFT_UP, at);
  SendMouse(*grid, wxEVT_MOTION, at);
  EXPECT_EQ(grid->GetToolTipText(), "24188 - 188.3mm");
}

TEST_F(PaletteTest, TheTooltipIsThatOfTheNewSystemsPartAfterAChange) {
  const wxPoint first = pointOnRow(1);
  SendMouse(*grid, wxEVT_MOTION, first);
  EXPECT_EQ(grid->GetToolTipText(), "24064 - 64.3mm");
  choose(3);
  SendMouse(*grid, wxEVT_MOTION, first);
  EXPECT_EQ(grid->GetToolTipText(), "8500 Straight 110mm / 4-3/8\"");
}

PiecePreviewPopup* PopupOf(const wxWindow* panel) {
  for (wxWindow* child : panel->GetChildren())
    if (auto* popup = dynamic_cast<PiecePreviewPopup*>(child)) return popup;
  return nullptr;
}

TEST_F(PaletteTest, NeverShowsThePreviewPopup) {
  const PiecePreviewPopup* popup = PopupOf(panel);
  ASSERT_NE(popup, nullptr);
  const wxPoint at = pointOnRow(rowOfKey("24188"));
  for (const wxEventType type :
       {wxEVT_MOTION, wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_LEAVE_WINDOW}) {
    SendMouse(*grid, type, at);
    EXPECT_FALSE(popup->IsShown());
    EXPECT_EQ(popup->def(), nullptr);
  }
}

TEST_F(PaletteTest, HidesThePreviewPopupWheneverTheGridIsUsed) {
  PiecePreviewPopup* popup = PopupOf(panel);
  ASSERT_NE(popup, nullptr);
  const PieceDef* part = findPart("24130");
  const wxPoint at = pointOnRow(rowOfKey("24188"));
  for (const wxEventType type :
       {wxEVT_MOTION, wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_LEAVE_WINDOW}) {
    popup->setDef(part);
    popup->Show();
    SendMouse(*grid, type, at);
    EXPECT_FALSE(popup->IsShown());
    EXPECT_EQ(popup->def(), nullptr);
  }
}

TEST_F(PaletteTest, BeforeTheCanvasIsConnectedNothingIsDragged) {
  auto* other = new wxFrame(nullptr, wxID_ANY, "other");
  auto* loose = new PalettePanel(other, workspace, temp.at("library"));
  loose->RefreshAll();
  wxNotebook* book = nullptr;
  for (wxWindow* child : loose->GetChildren())
    if (auto* found = dynamic_cast<wxNotebook*>(child)) book = found;
  ASSERT_NE(book, nullptr);
  const wxPoint onFirstPart{40, 60};
  SendMouse(*book->GetPage(0), wxEVT_LEFT_DOWN, onFirstPart, true);
  SendMouse(*book->GetPage(0), wxEVT_MOTION, onFirstPart, true);
  SendMouse(*book->GetPage(0), wxEVT_LEFT_DCLICK, onFirstPart, true);
  book->SetSelection(2);
  auto* box = dynamic_cast<wxListBox*>(book->GetPage(2));
  ASSERT_NE(box, nullptr);
  box->SetSelection(1);
  doubleClick(box);
  EXPECT_EQ(canvas.calls, Texts{});
  delete other;
}

}  // namespace
}  // namespace vantrel
