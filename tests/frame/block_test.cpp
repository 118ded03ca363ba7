#include <gtest/gtest.h>
#include <wx/menu.h>
#include <wx/stattext.h>
#include <wx/textdlg.h>

#include <filesystem>
#include <string>

#include "palette/palette_panel.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

class Blocks : public FrameTest {
 protected:
  std::string library(const std::string& name) const {
    return inStore("library/Marklin_C-Track/" + name);
  }

  wxListBox& list() {
    auto* found = dynamic_cast<wxListBox*>(wxWindow::FindWindowById(3002, &frame().palette()));
    EXPECT_NE(found, nullptr);
    return *found;
  }

  void save() { command(2001); }

  void saveUnder(const std::string& name) {
    ModalScript script;
    script.dialog("Save Library Block", wxID_OK, typed(name));
    script.box("Save Block", "Block saved: " + name, kInformationBox, wxID_OK);
    save();
  }

  static ModalScript::Action typed(const std::string& name) {
    return [name](wxDialog& dialog) {
      auto* entry = dynamic_cast<wxTextEntryDialog*>(&dialog);
      ASSERT_NE(entry, nullptr);
      EXPECT_EQ(entry->GetValue(), "");
      EXPECT_NE(FindControl<wxStaticText>(dialog, "Block name:"), nullptr);
      entry->SetValue(wxString::FromUTF8(name));
    };
  }
};

TEST_F(Blocks, WithNothingSelectedTheCommandSaysSoAndEnds) {
  addPiece();
  plan().labels.push_back({.id = 50, .sel = true});
  ModalScript script;
  script.box("Save Block", "Select pieces first to save as library block.", kInformationBox,
             wxID_OK);
  save();
  EXPECT_FALSE(fs::exists(inStore("library")));
}

TEST_F(Blocks, ASelectionIsWrittenIntoTheFolderOfTheSystemWhichIsMadeForIt) {
  addPiece().sel = true;
  addPiece();
  saveUnder("Yard");
  const std::string text = ReadFileText(library("Yard.xml"));
  EXPECT_NE(text.find("<block name=\"Yard\" version=\"1\">\n  <piece id=\"1\""), std::string::npos);
  EXPECT_EQ(text.find("<piece id=\"2\""), std::string::npos);
  EXPECT_FALSE(frame().dirty());
}

TEST_F(Blocks, AnotherSystemHasAnotherFolder) {
  addPiece("8500").sel = true;
  frame().palette().SelectSystemFor(plan());
  saveUnder("Small");
  EXPECT_TRUE(fs::exists(inStore("library/Marklin_Z-Track/Small.xml")));
}

TEST_F(Blocks, SceneryAloneIsEnough) {
  frame();
  plan().scenery.push_back({.id = 1, .item = "tree", .sel = true});
  saveUnder("Trees");
  EXPECT_TRUE(fs::exists(library("Trees.xml")));
}

TEST_F(Blocks, TheNameIsNotTrimmed) {
  addPiece().sel = true;
  saveUnder("  Süd ");
  EXPECT_TRUE(fs::exists(library("  Süd .xml")));
}

TEST_F(Blocks, CancelOrAnEmptyNameWritesNothing) {
  addPiece().sel = true;
  ModalScript script;
  script.dialog("Save Library Block", wxID_CANCEL, typed("Unwanted"));
  save();
  script.dialog("Save Library Block", wxID_OK, typed(""));
  save();
  EXPECT_FALSE(fs::exists(inStore("library")));
}

TEST_F(Blocks, TheSecondOfTwoSavesUnderOneNameReplacesTheFirstSilently) {
  addPiece().sel = true;
  saveUnder("Yard");
  addPiece().sel = true;
  saveUnder("Yard");
  EXPECT_NE(ReadFileText(library("Yard.xml")).find("<piece id=\"2\""), std::string::npos);
}

TEST_F(Blocks, ANameThatTheFileSystemRefusesIsReported) {
  addPiece().sel = true;
  ModalScript script;
  script.dialog("Save Library Block", wxID_OK, typed("north/south"));
  script.box("Save Block Failed", "Cannot open file: " + library("north/south.xml"), kErrorBox,
             wxID_OK);
  save();
  EXPECT_TRUE(script.finished());
}

// What lies there may be a plan: older ones have the same extension.
TEST_F(Blocks, ANameThatLeadsElsewhereIsReportedAndNothingIsWrittenThere) {
  addPiece().sel = true;
  WriteFileText(inStore("Plan.xml"), "a plan");
  fs::create_directories(library("north"));
  for (const std::string name : {"../../Plan", "north/south", "north/"}) {
    ModalScript script;
    script.dialog("Save Library Block", wxID_OK, typed(name));
    script.box("Save Block Failed", "Cannot open file: " + library(name + ".xml"), kErrorBox,
               wxID_OK);
    save();
  }
  EXPECT_EQ(ReadFileText(inStore("Plan.xml")), "a plan");
  EXPECT_TRUE(fs::is_empty(library("north")));
}

TEST_F(Blocks, ANameOfDotsIsAnOrdinaryName) {
  addPiece().sel = true;
  for (const std::string name : {"..", ".north", "a..b"}) {
    saveUnder(name);
    EXPECT_TRUE(fs::exists(library(name + ".xml"))) << name;
  }
}

TEST_F(Blocks, APastedNameOfTwoLinesIsKeptOnOne) {
  addPiece().sel = true;
  ModalScript script;
  script.dialog("Save Library Block", wxID_OK, typed("North\nyard\r\n"));
  script.box("Save Block", "Block saved: North yard  ", kInformationBox, wxID_OK);
  save();
  EXPECT_NE(ReadFileText(library("North yard  .xml")).find("<block name=\"North yard  \""),
            std::string::npos);
}

TEST_F(Blocks, ANameTooLongForAFileIsReportedInABoxThatFitsTheScreen) {
  addPiece().sel = true;
  ModalScript script;
  script.dialog("Save Library Block", wxID_OK, typed(std::string(10000, 'n')));
  script.dialog("Save Block Failed", wxID_OK);
  save();
  ASSERT_EQ(script.boxTexts().size(), 1u);
  EXPECT_LT(script.boxTexts()[0].size(), 1300u);
  EXPECT_TRUE(script.boxTexts()[0].starts_with("Cannot open file: "));
}

TEST_F(Blocks, AFolderThatCannotBeMadeIsReported) {
  makeStoreUnwritable();
  addPiece().sel = true;
  ModalScript script;
  script.dialog("Save Library Block", wxID_OK, typed("Yard"));
  script.box("Save Block Failed", "Cannot open file: " + library("Yard.xml"), kErrorBox, wxID_OK);
  save();
  EXPECT_TRUE(script.finished());
}

TEST_F(Blocks, ABlockJustSavedDoesNotShowUpButOneWithItsExtensionChangedDoesAndPlaces) {
  addPiece().sel = true;
  plan().pieces[0].x = 640;
  saveUnder("Yard");
  EXPECT_EQ(list().GetCount(), 0u);
  fs::rename(library("Yard.xml"), library("Yard.vtl"));
  plan().pieces[0].sel = false;
  addPiece().sel = true;
  saveUnder("Other");  // lists the folder anew
  ASSERT_EQ(list().GetCount(), 1u);
  EXPECT_EQ(list().GetString(0), "Yard");
  DoubleClickRow(list(), 0);
  ASSERT_EQ(plan().pieces.size(), 3u);
  EXPECT_EQ(plan().pieces[2].id, 3);
  EXPECT_EQ(plan().pieces[2].x, 0.0);
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 3");
  command(2002);
  EXPECT_EQ(plan().pieces.size(), 2u);
}

TEST_F(Blocks, APieceSavedAt30MmOnAGradeIsPlacedFlatOnTheGround) {
  Piece& raised = addPiece();
  raised.sel = true;
  raised.z = 30.0;
  raised.grade = 2.5;
  saveUnder("Yard");
  const std::string file = ReadFileText(library("Yard.xml"));
  EXPECT_NE(file.find("z=\"30.0000\" grade=\"2.5000\""), std::string::npos) << "what was saved";
  fs::rename(library("Yard.xml"), library("Yard.vtl"));
  frame().palette().RefreshLibrary();
  DoubleClickRow(list(), 0);
  ASSERT_EQ(plan().pieces.size(), 2u);
  EXPECT_EQ(plan().pieces[1].z, 0.0);
  EXPECT_EQ(plan().pieces[1].grade, 0.0);
  EXPECT_EQ(plan().pieces[0].z, 30.0) << "the piece that was saved stays as it is";
  EXPECT_EQ(plan().pieces[0].grade, 2.5);
}

TEST_F(Blocks, PlacingFitsTheViewToTheTrackAndNotToTheBaseboard) {
  frame();
  fs::create_directories(library(""));
  WriteFileText(library("One.vtl"),
                "<piece id=\"1\" cat=\"24188\" x=\"0\" y=\"0\" heading=\"0\">\n");
  frame().palette().RefreshLibrary();
  plan().baseboard = {{0, 0}, {9000, 0}, {9000, 9000}};
  DoubleClickRow(list(), 0);
  const double placed = frame().canvas().view().scale;
  frame().canvas().zoomToFit(false);
  EXPECT_GT(placed, frame().canvas().view().scale);
  frame().canvas().zoomToFit(true);
  EXPECT_EQ(placed, frame().canvas().view().scale);
}

// The view at scale 1 has its origin at pixel (60, 60).
TEST_F(Blocks, SavingInMidDragEndsItAndSavesThePieceWhereItIsThen) {
  addPiece();
  showFrame();
  frame().canvas().resetViewUnitScale();
  dragOnCanvas({160, 60}, {160, 260});
  saveUnder("Yard");
  EXPECT_FALSE(frame().canvas().HasCapture());
  EXPECT_NE(ReadFileText(library("Yard.xml")).find("y=\"200.0000\""), std::string::npos);
  mouseOnCanvas(wxEVT_MOTION, {160, 360}, true);
  EXPECT_EQ(plan().pieces[0].y, 200.0);
}

TEST_F(Blocks, TheSaveEntryIsAlwaysOffered) {
  EXPECT_TRUE(frame().GetMenuBar()->IsEnabled(2001));
  wxUpdateUIEvent event(2001);
  frame().ProcessWindowEvent(event);
  EXPECT_TRUE(!event.GetSetEnabled() || event.GetEnabled());
}

}  // namespace
}  // namespace vantrel
