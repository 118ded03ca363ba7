#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/utils.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "doc/layout_ops.h"
#include "io/layout_file.h"
#include "palette/block_library.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/modal_script.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// Two straights at x 300 and more, y 200; the first is joined to the second and to a piece outside.
const char* const kYard =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<block name=\"Yard\" version=\"1\">\n"
    "  <piece id=\"8\" cat=\"24188\" x=\"488.3000\" y=\"200.0000\" heading=\"0.0000\" "
    "z=\"30.0000\" "
    "grade=\"2.5000\" level=\"1\" sel=\"1\">\n"
    "    <joint conn=\"0\" target=\"9\" tconn=\"1\"/>\n"
    "    <joint conn=\"1\" target=\"10\" tconn=\"0\"/>\n  </piece>\n"
    "  <piece id=\"9\" cat=\"24188\" x=\"300.0000\" y=\"200.0000\" heading=\"0.0000\" "
    "z=\"30.0000\" "
    "grade=\"2.5000\" level=\"7\" sel=\"1\">\n"
    "    <joint conn=\"1\" target=\"8\" tconn=\"0\"/>\n  </piece>\n</block>\n";

class LibraryPage : public PaletteTest {
 protected:
  void SetUp() override {
    PaletteTest::SetUp();
    fs::create_directories(folderC());
    EnsureDefaultLevel(workspace.document);
  }

  std::string folderC() const { return temp.at("library/Marklin_C-Track"); }
  std::string fileC(const std::string& name) const { return folderC() + "/" + name; }

  void add(const std::string& name, const std::string& text) {
    WriteFileText(fileC(name), text);
    panel->RefreshLibrary();
  }

  Texts sortedRows() const {
    Texts rows = texts(library);
    std::ranges::sort(rows);
    return rows;
  }

  void place(int row) {
    library->SetSelection(row);
    doubleClick(library);
  }

  // The keyboard's menu key, or a right click at a point of the list.
  void askForMenu(wxPoint screen = wxDefaultPosition) {
    wxContextMenuEvent event(wxEVT_CONTEXT_MENU, library->GetId(), screen);
    event.SetEventObject(library);
    library->GetEventHandler()->ProcessEvent(event);
  }
};

TEST(LibraryFolder, IsNamedByTheEntryOfTheChooser) {
  EXPECT_EQ(libraryFolderName("Marklin C-Track"), "Marklin_C-Track");
  EXPECT_EQ(libraryFolderName("Marklin K-Track"), "Marklin_K-Track");
  EXPECT_EQ(libraryFolderName("TRIX C-Track"), "TRIX_C-Track");
  EXPECT_EQ(libraryFolderName("Marklin Z-Track"), "Marklin_Z-Track");
  EXPECT_EQ(libraryFolderName("Minitrix"), "Minitrix-Track");
  EXPECT_EQ(libraryFolderName("Some other  track"), "Some_other__track");
}

TEST_F(LibraryPage, LiesInTheFolderOfTheChosenSystem) {
  EXPECT_EQ(panel->libraryFolder(), folderC());
  choose(3);
  EXPECT_EQ(panel->libraryFolder(), temp.at("library/Marklin_Z-Track"));
}

TEST_F(LibraryPage, AMissingFolderIsAnEmptyListAndIsNotMade) {
  library->Append("left over");
  choose(1);
  EXPECT_EQ(texts(library), Texts{});
  EXPECT_FALSE(fs::exists(temp.at("library/Marklin_K-Track")));
}

TEST_F(LibraryPage, ListsTheVtlFilesOfTheFolderWithoutTheirExtension) {
  WriteFileText(fileC("Throat.vtl"), kYard);
  WriteFileText(fileC("Süd.2.vtl"), kYard);
  WriteFileText(fileC("Saved.xml"), kYard);
  WriteFileText(fileC("notes.txt"), "");
  WriteFileText(fileC(".hidden.vtl"), kYard);
  fs::create_directory(fileC("folder.vtl"));
  panel->RefreshLibrary();
  EXPECT_EQ(sortedRows(), (Texts{"Süd.2", "Throat"}));
}

TEST_F(LibraryPage, ListsTheFilesInTheOrderThatTheDirectoryGives) {
  for (const char* name : {"m", "a", "z", "k", "b"})
    WriteFileText(fileC(std::string(name) + ".vtl"), kYard);
  Texts order;
  for (const fs::directory_entry& entry : fs::directory_iterator(folderC()))
    order.push_back(entry.path().stem());
  panel->RefreshLibrary();
  EXPECT_EQ(texts(library), order);
}

TEST_F(LibraryPage, IsListedAnewWithThePaletteAndWithTheChooser) {
  WriteFileText(fileC("One.vtl"), kYard);
  panel->RefreshAll();
  EXPECT_EQ(texts(library), Texts{"One"});
  choose(2);
  EXPECT_EQ(texts(library), Texts{});
  WriteFileText(fileC("Two.vtl"), kYard);
  choose(0);
  EXPECT_EQ(sortedRows(), (Texts{"One", "Two"}));
}

TEST_F(LibraryPage, ALoadedLayoutShowsTheBlocksOfItsSystem) {
  fs::create_directories(temp.at("library/Marklin_Z-Track"));
  WriteFileText(temp.at("library/Marklin_Z-Track/Small.vtl"), kYard);
  Layout layout;
  layout.pieces = {{.cat = "8500"}};
  panel->SelectSystemFor(layout);
  EXPECT_EQ(texts(library), Texts{"Small"});
}

TEST_F(LibraryPage, AFileWithBytesThatAreNoTextIsListedAndPlacesAllTheSame) {
  add("Gr\xFC\xDF.vtl", kYard);
  EXPECT_EQ(texts(library), Texts{"Grüß"});
  place(0);
  EXPECT_EQ(workspace.document.pieces.size(), 2u);
}

TEST_F(LibraryPage, ADoubleClickPlacesTheWholeBlockAtTheWorldOrigin) {
  add("Yard.vtl", kYard);
  place(0);
  const Layout& plan = workspace.document;
  ASSERT_EQ(plan.pieces.size(), 2u);
  EXPECT_NEAR(plan.pieces[0].x, 188.3, 1e-9);
  EXPECT_EQ(plan.pieces[1].x, 0.0);
  EXPECT_EQ(plan.pieces[0].y, 0.0);
  EXPECT_EQ(plan.pieces[0].joints[1], Joint{});
  EXPECT_EQ(plan.pieces[0].joints[0], (Joint{.target = plan.pieces[1].id, .tconn = 1}));
  ASSERT_EQ(plan.levels.size(), 2u);
  EXPECT_EQ(plan.levels[1].name, "Level 7");
  EXPECT_FALSE(plan.pieces[0].sel || plan.pieces[1].sel);
  EXPECT_EQ(plan.undoHistory.size(), 1u);
}

TEST_F(LibraryPage, ASelectedPieceWithAHeightAndASlopeIsPlacedFlat) {
  add("Yard.vtl", kYard);
  place(0);
  ASSERT_EQ(workspace.document.pieces.size(), 2u);
  for (const Piece& piece : workspace.document.pieces) {
    EXPECT_EQ(piece.z, 0.0);
    EXPECT_EQ(piece.grade, 0.0);
  }
}

TEST_F(LibraryPage, PlacingTellsAllWhoShowThePlan) {
  add("Yard.vtl", kYard);
  place(0);
  EXPECT_EQ(workspace.changes, (Texts{"dirty", "selection", "views"}));
  EXPECT_EQ(workspace.piecesText, "Pieces: 2");
  EXPECT_EQ(canvas.calls, (Texts{"end gestures", "fit track"}));
}

TEST_F(LibraryPage, ADoubleClickWithoutASelectionOrBeyondThePathsDoesNothing) {
  add("Yard.vtl", kYard);
  library->SetSelection(wxNOT_FOUND);
  doubleClick(library);
  library->Append("no file of its own");
  place(1);
  EXPECT_TRUE(workspace.document.pieces.empty());
  EXPECT_EQ(workspace.changes, Texts{});
}

TEST_F(LibraryPage, AFileThatIsGoneIsToldAndNothingElseHappens) {
  add("Yard.vtl", kYard);
  fs::remove(fileC("Yard.vtl"));
  ModalScript script;
  script.box("Load Block Failed", "Cannot open file: " + fileC("Yard.vtl"), kErrorBox, wxID_OK);
  place(0);
  EXPECT_EQ(workspace.changes, Texts{});
  EXPECT_TRUE(workspace.document.undoHistory.empty());
  EXPECT_EQ(canvas.calls, Texts{});
}

TEST_F(LibraryPage, AnEmptyOrForeignFileDoesNothing) {
  for (const std::string text : {"", "just some text\n", "<block name=\"a\" version=\"1\">\n"}) {
    add("Empty.vtl", text);
    const ModalScript none;
    place(0);
    EXPECT_EQ(workspace.changes, Texts{}) << text;
    EXPECT_TRUE(workspace.document.undoHistory.empty()) << text;
  }
}

TEST_F(LibraryPage, ABlockOfUnknownPartsIsPlacedLikeAnyOther) {
  add("Odd.vtl", "<piece id=\"1\" cat=\"no such part\" x=\"70\" y=\"80\" heading=\"0\">\n");
  place(0);
  ASSERT_EQ(workspace.document.pieces.size(), 1u);
  EXPECT_EQ(workspace.document.pieces[0].cat, "no such part");
}

// The program then ends in good order, with the plan rescued; see the tests of the rescue.
TEST_F(LibraryPage, ABrokenFileThrowsBeforeThePlanIsTouched) {
  add("Broken.vtl", std::string(kYard) + "<piece id=\"1\" cat=\"a\" x=\"oops\">\n");
  library->SetSelection(0);
  wxCommandEvent event(wxEVT_LISTBOX_DCLICK, library->GetId());
  event.SetEventObject(library);
  EXPECT_THROW(library->GetEventHandler()->ProcessEvent(event), MalformedFile);
  EXPECT_TRUE(workspace.document.pieces.empty());
  EXPECT_EQ(workspace.document.levels.size(), 1u);
  EXPECT_TRUE(workspace.document.undoHistory.empty());
}

TEST_F(LibraryPage, ABlockFileRenamedFromXmlToVtlShowsUpAndPlaces) {
  add("Yard.xml", kYard);
  EXPECT_EQ(texts(library), Texts{});
  fs::rename(fileC("Yard.xml"), fileC("Yard.vtl"));
  panel->RefreshLibrary();
  EXPECT_EQ(texts(library), Texts{"Yard"});
  place(0);
  EXPECT_EQ(workspace.document.pieces.size(), 2u);
}

const char* const kQuestion = "Delete library block \"Yard\"?\n\nThis cannot be undone.";
constexpr long kDeleteBox = wxYES_NO | wxICON_WARNING;

TEST_F(LibraryPage, DeleteAsksAndRemovesTheFileAndItsRow) {
  add("Yard.vtl", kYard);
  library->SetSelection(0);
  panel->choice = 6001;
  ModalScript script;
  script.box("Delete Library Block", kQuestion, kDeleteBox, wxID_YES);
  askForMenu();
  EXPECT_EQ(panel->menus, Texts{"6001 Delete..."});
  EXPECT_FALSE(fs::exists(fileC("Yard.vtl")));
  EXPECT_EQ(texts(library), Texts{});
  EXPECT_EQ(workspace.changes, Texts{});
}

// Without a blank the box would be wider than the screen, and its Yes out of reach.
TEST_F(LibraryPage, TheQuestionBreaksAWordThatIsTooLongForALine) {
  add(std::string(100, 'n') + ".vtl", kYard);
  library->SetSelection(0);
  panel->choice = 6001;
  ModalScript script;
  script.box("Delete Library Block",
             "Delete library block \"" + std::string(59, 'n') + "\u200b" + std::string(41, 'n') +
                 "\"?\n\nThis cannot be undone.",
             kDeleteBox, wxID_NO);
  askForMenu();
}

TEST_F(LibraryPage, AnAnswerOtherThanYesKeepsTheFile) {
  add("Yard.vtl", kYard);
  library->SetSelection(0);
  panel->choice = 6001;
  ModalScript script;
  script.box("Delete Library Block", kQuestion, kDeleteBox, wxID_NO);
  askForMenu();
  EXPECT_TRUE(fs::exists(fileC("Yard.vtl")));
  EXPECT_EQ(texts(library), Texts{"Yard"});
}

TEST_F(LibraryPage, AMenuThatIsDismissedAsksNothing) {
  add("Yard.vtl", kYard);
  library->SetSelection(0);
  const ModalScript none;
  askForMenu();
  EXPECT_EQ(panel->menus.size(), 1u);
  EXPECT_TRUE(fs::exists(fileC("Yard.vtl")));
}

TEST_F(LibraryPage, AFileThatCannotBeDeletedIsToldAndItsRowStays) {
  add("Yard.vtl", kYard);
  library->SetSelection(0);
  fs::remove(fileC("Yard.vtl"));
  panel->choice = 6001;
  ModalScript script;
  script.box("Delete Library Block", kQuestion, kDeleteBox, wxID_YES);
  script.box("Delete Failed", "Could not delete:\n" + fileC("Yard.vtl"), kErrorBox, wxID_OK);
  askForMenu();
  EXPECT_EQ(texts(library), Texts{"Yard"});
}

TEST_F(LibraryPage, WithoutARowThatHasAFileThereIsNoMenu) {
  askForMenu();
  add("Yard.vtl", kYard);
  library->SetSelection(wxNOT_FOUND);
  askForMenu();
  library->Append("no file of its own");
  library->SetSelection(1);
  askForMenu();
  EXPECT_EQ(panel->menus, Texts{});
}

TEST_F(LibraryPage, TheMenuIsForTheRowUnderThePointerElseForTheSelectedOne) {
  add("Yard.vtl", kYard);
  add("Throat.vtl", kYard);
  openPage("Library");
  frame->Show();
  for (int i = 0; i < 200 && library->HitTest(wxPoint(20, 10)) != 0; ++i) {
    wxTheApp->Yield();
    wxMilliSleep(10);
  }
  ASSERT_EQ(library->HitTest(wxPoint(20, 10)), 0);
  int y = 10;
  while (y < 200 && library->HitTest(wxPoint(20, y)) != 1) ++y;
  ASSERT_EQ(library->HitTest(wxPoint(20, y)), 1);
  library->SetSelection(0);
  askForMenu(library->ClientToScreen(wxPoint(20, y)));
  EXPECT_EQ(library->GetSelection(), 1);
  // Below the last row.
  library->SetSelection(0);
  askForMenu(library->ClientToScreen(wxPoint(20, 300)));
  EXPECT_EQ(library->GetSelection(), 0);
  EXPECT_EQ(panel->menus.size(), 2u);
}

}  // namespace
}  // namespace vantrel
