#include <gtest/gtest.h>
#include <sys/stat.h>
#include <wx/textdlg.h>

#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

constexpr const char* kUnsavedText = "You have unsaved changes. Save before continuing?";

// What the save dialog is given; what it offered goes to `offered`.
ModalScript::Action TypeName(const std::string& name, std::string* offered = nullptr) {
  return [=](wxDialog& dialog) {
    auto* entry = dynamic_cast<wxTextEntryDialog*>(&dialog);
    ASSERT_NE(entry, nullptr);
    if (offered) *offered = entry->GetValue().utf8_string();
    entry->SetValue(wxString::FromUTF8(name));
  };
}

class Save : public FrameTest {
 protected:
  void save() { command(5003); }
  void saveAs() { command(5004); }
  void saveUnder(const std::string& name) {
    ModalScript script;
    script.dialog("Save Layout", wxID_OK, TypeName(name));
    saveAs();
  }
};

TEST_F(Save, AsksForANameTheFirstTimeAndWritesIntoTheStore) {
  addPiece();
  frame().markDirty();
  std::string offered;
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("  Hauptbahnhof Süd \t", &offered));
  save();
  EXPECT_EQ(offered, "My Layout");
  EXPECT_EQ(frame().currentPath(), inStore("Hauptbahnhof Süd.vtl"));
  EXPECT_EQ(frame().layoutName(), "Hauptbahnhof Süd");
  EXPECT_FALSE(frame().dirty());
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - Hauptbahnhof Süd");
  EXPECT_NE(ReadFileText(inStore("Hauptbahnhof Süd.vtl"))
                .find("<layout name=\"Hauptbahnhof Süd\" version=\"1\" units=\"0\">"),
            std::string::npos);
}

TEST_F(Save, AsksNothingWhenTheLayoutHasAFile) {
  saveUnder("One");
  addPiece();
  frame().markDirty();
  ModalScript none;
  save();
  EXPECT_FALSE(frame().dirty());
  EXPECT_NE(ReadFileText(inStore("One.vtl")).find("cat=\"24188\""), std::string::npos);
}

TEST_F(Save, APastedNameOfTwoLinesIsKeptOnOneAndReadBackWithTheUnits) {
  plan().units = kInches;
  saveUnder("North\nyard\r\n");
  EXPECT_EQ(frame().layoutName(), "North yard");
  EXPECT_EQ(frame().currentPath(), inStore("North yard.vtl"));
  plan().units = kMillimetres;
  frame().LoadIntoFrame(inStore("North yard.vtl"));
  EXPECT_EQ(frame().layoutName(), "North yard");
  EXPECT_EQ(plan().units, kInches);
}

TEST_F(Save, AnEmptyNameBecomesMyLayout) {
  saveUnder("   ");
  EXPECT_EQ(frame().layoutName(), "My Layout");
  EXPECT_TRUE(std::filesystem::exists(inStore("My Layout.vtl")));
}

TEST_F(Save, CancelChangesNothing) {
  frame().markDirty();
  ModalScript script;
  script.dialog("Save Layout", wxID_CANCEL, TypeName("Unwanted"));
  save();
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(frame().currentPath(), "");
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor *");
  EXPECT_FALSE(std::filesystem::exists(inStore("Unwanted.vtl")));
}

TEST_F(Save, AsUnderTheSameNameAsksToReplaceTheFileThatIsOpen) {
  saveUnder("One");
  addPiece();
  frame().markDirty();
  ModalScript script;
  std::string offered;
  script.dialog("Save Layout", wxID_OK, TypeName("One", &offered));
  script.box("Confirm Replace", "A layout named \"One\" already exists.\n\nReplace it?",
             kCautiousBox, wxID_YES);
  saveAs();
  EXPECT_EQ(offered, "One");
  EXPECT_TRUE(script.finished());
  EXPECT_FALSE(frame().dirty());
  EXPECT_NE(ReadFileText(inStore("One.vtl")).find("cat=\"24188\""), std::string::npos);
}

TEST_F(Save, AnswerOtherThanYesToReplaceChangesNothing) {
  WriteFileText(inStore("Taken.vtl"), "old");
  saveUnder("One");
  frame().markDirty();
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("Taken"));
  script.box("Confirm Replace", "A layout named \"Taken\" already exists.\n\nReplace it?",
             kCautiousBox, wxID_NO);
  saveAs();
  EXPECT_EQ(ReadFileText(inStore("Taken.vtl")), "old");
  EXPECT_EQ(frame().currentPath(), inStore("One.vtl"));
  EXPECT_EQ(frame().layoutName(), "One");
  EXPECT_TRUE(frame().dirty());
}

TEST_F(Save, ANameWithASlashFailsAndStaysAsThePathAndDirty) {
  frame().markDirty();
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("north/south"));
  script.box("Save Failed", "Cannot open file: " + inStore("north/south.vtl"), kErrorBox, wxID_OK);
  save();
  EXPECT_EQ(frame().currentPath(), inStore("north/south.vtl"));
  EXPECT_TRUE(frame().dirty());
  EXPECT_TRUE(script.finished());
}

TEST_F(Save, AFullDiskIsReportedAndTheLayoutStaysDirty) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  std::filesystem::create_symlink("/dev/full", inStore("Full.vtl"));
  frame().markDirty();
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("Full"));
  script.box("Confirm Replace", "A layout named \"Full\" already exists.\n\nReplace it?",
             kCautiousBox, wxID_YES);
  script.box("Save Failed", "Cannot write file: " + inStore("Full.vtl"), kErrorBox, wxID_OK);
  save();
  EXPECT_TRUE(frame().dirty());
}

TEST_F(Save, AFailureTellsItsReason) {
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("north/south"));
  script.box("Save Failed", "Cannot open file: " + inStore("north/south.vtl"), kErrorBox, wxID_OK);
  saveAs();
  std::filesystem::create_directory(inStore("Yard.vtl"));
  script.dialog("Save Layout", wxID_OK, TypeName("Yard"));
  script.box("Save Failed", "Cannot open file: " + inStore("Yard.vtl"), kErrorBox, wxID_OK);
  saveAs();
  EXPECT_EQ(script.boxReasons(),
            (std::vector<std::string>{"There is no such folder.", "A folder has that name."}));
}

TEST_F(Save, OntoAPipeIsRefusedAndNotWaitedFor) {
  ASSERT_EQ(mkfifo(inStore("Pipe.vtl").c_str(), 0600), 0);
  frame().markDirty();
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("Pipe"));
  script.box("Confirm Replace", "A layout named \"Pipe\" already exists.\n\nReplace it?",
             kCautiousBox, wxID_YES);
  script.box("Save Failed", "Cannot write file: " + inStore("Pipe.vtl"), kErrorBox, wxID_OK);
  save();
  EXPECT_EQ(script.boxReasons().back(), "What has that name is no file, but a pipe or a device.");
  EXPECT_TRUE(frame().dirty());
}

constexpr const char* kUnreadableName =
    "A layout named \"Plan units=\" could not be opened again: the end of the name would be read "
    "as a setting.\n\nUse this name all the same?";

TEST_F(Save, ANameThatCouldNotBeReadBackIsAskedForAgain) {
  std::string offered;
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("  Plan units= "));
  script.box("Layout Name", kUnreadableName, kCautiousBox, wxID_NO);
  script.dialog("Save Layout", wxID_OK, TypeName("Plan", &offered));
  saveAs();
  EXPECT_EQ(offered, "  Plan units= ");
  EXPECT_EQ(frame().layoutName(), "Plan");
  EXPECT_FALSE(std::filesystem::exists(inStore("Plan units=.vtl")));
}

TEST_F(Save, ANameThatCouldNotBeReadBackIsTakenWhenTheUserWantsIt) {
  ModalScript script;
  script.dialog("Save Layout", wxID_OK, TypeName("Plan units="));
  script.box("Layout Name", kUnreadableName, kCautiousBox, wxID_YES);
  saveAs();
  EXPECT_EQ(frame().layoutName(), "Plan units=");
  EXPECT_TRUE(std::filesystem::exists(inStore("Plan units=.vtl")));
}

// The units stand before the name, so that today's reader takes them, as it does from the files of
// other programs.
std::string NamedLast(const std::string& name, const std::string& level = "Deck") {
  return "<layout version=\"1\" units=\"0\" name=\"" + name +
         "\">\n  <levels active=\"1\">\n    <level id=\"1\" visible=\"1\" height=\"50.0\" "
         "trackcolor=\"0\" r=\"1\" g=\"2\" b=\"3\" name=\"" +
         level + "\"/>\n  </levels>\n  <pieces>\n  </pieces>\n</layout>\n";
}

constexpr const char* kUnreadableLevel =
    "A layout with a level named \"Deck height=\" could not be opened again: the end of the name "
    "would be read as a setting.\n\nUse this name all the same?";

TEST_F(Save, ANameFromAFileThatCouldNotBeReadBackIsAskedAboutOnceBeforeItIsWritten) {
  const std::string text = NamedLast("Plan units=");
  WriteFileText(inStore("Old.vtl"), text);
  frame().LoadIntoFrame(inStore("Old.vtl"));
  ASSERT_EQ(frame().layoutName(), "Plan units=");
  for (const bool first : {true, false}) {
    frame().markDirty();
    ModalScript script;
    if (first) script.box("Layout Name", kUnreadableName, kCautiousBox, wxID_YES);
    save();
    EXPECT_FALSE(frame().dirty());
  }
  EXPECT_NE(ReadFileText(inStore("Old.vtl")).find("<layout name=\"Plan units=\""),
            std::string::npos);

  WriteFileText(inStore("Old.vtl"), text);
  frame().LoadIntoFrame(inStore("Old.vtl"));
  ModalScript script;
  script.box("Layout Name", kUnreadableName, kCautiousBox, wxID_NO);
  script.dialog("Save Layout", wxID_CANCEL);
  save();
  EXPECT_TRUE(script.finished()) << "another session asks again";
  EXPECT_EQ(ReadFileText(inStore("Old.vtl")), text) << "nothing is written before the answer";
}

TEST_F(Save, ANameFromAFileThatTheUserWouldRatherChangeIsAskedForAsBySaveAs) {
  const std::string text = NamedLast("Plan units=");
  WriteFileText(inStore("Old.vtl"), text);
  frame().LoadIntoFrame(inStore("Old.vtl"));
  frame().markDirty();
  std::string offered;
  ModalScript script;
  script.box("Layout Name", kUnreadableName, kCautiousBox, wxID_NO);
  script.dialog("Save Layout", wxID_OK, TypeName("Plan", &offered));
  save();
  EXPECT_EQ(offered, "Plan units=");
  EXPECT_EQ(frame().layoutName(), "Plan");
  EXPECT_EQ(frame().currentPath(), inStore("Plan.vtl"));
  EXPECT_FALSE(frame().dirty());
  EXPECT_EQ(ReadFileText(inStore("Old.vtl")), text);
}

TEST_F(Save, ANameThatWasAgreedToWhenTypedIsNotAskedAboutAgain) {
  {
    ModalScript script;
    script.dialog("Save Layout", wxID_OK, TypeName("Plan units="));
    script.box("Layout Name", kUnreadableName, kCautiousBox, wxID_YES);
    saveAs();
  }
  ModalScript none;
  save();
  EXPECT_FALSE(frame().dirty());
}

TEST_F(Save, ALevelsNameFromAFileThatCouldNotBeReadBackIsAskedAboutOnce) {
  WriteFileText(inStore("Old.vtl"), NamedLast("Plan", "Deck height="));
  frame().LoadIntoFrame(inStore("Old.vtl"));
  ASSERT_EQ(plan().levels.at(0).name, "Deck height=");
  {
    ModalScript script;
    script.box("Level Name", kUnreadableLevel, kCautiousBox, wxID_YES);
    save();
  }
  ModalScript none;
  save();
  EXPECT_EQ(plan().levels[0].name, "Deck height=");
  EXPECT_NE(ReadFileText(inStore("Old.vtl")).find("name=\"Deck height=\" visible"),
            std::string::npos);
}

TEST_F(Save, ALevelsNameFromAFileIsChangedWhereTheUserWouldRatherHaveAnother) {
  const std::string text = NamedLast("Plan", "Deck height=");
  WriteFileText(inStore("Old.vtl"), text);
  frame().LoadIntoFrame(inStore("Old.vtl"));
  frame().markDirty();
  ModalScript script;
  script.box("Level Name", kUnreadableLevel, kCautiousBox, wxID_NO);
  script.dialog("Level Name", wxID_CANCEL);
  save();
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(ReadFileText(inStore("Old.vtl")), text) << "nothing is written on Cancel";

  std::string offered;
  script.box("Level Name", kUnreadableLevel, kCautiousBox, wxID_NO);
  script.dialog("Level Name", wxID_OK, TypeName(" Deck ", &offered));
  save();
  EXPECT_EQ(offered, "Deck height=");
  EXPECT_EQ(plan().levels.at(0).name, "Deck");
  EXPECT_FALSE(frame().dirty());
  frame().LoadIntoFrame(inStore("Old.vtl"));
  EXPECT_EQ(plan().levels.at(0).name, "Deck");
  EXPECT_EQ(plan().levels.at(0).height, 50.0);
}

TEST_F(Save, ConfirmDiscardAsksNothingOfACleanLayout) {
  ModalScript none;
  EXPECT_TRUE(frame().ConfirmDiscard());
}

TEST_F(Save, ConfirmDiscardWithYesReturnsWhatTheSavingDid) {
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_YES);
  script.dialog("Save Layout", wxID_OK, TypeName("Kept"));
  EXPECT_TRUE(frame().ConfirmDiscard());
  EXPECT_TRUE(std::filesystem::exists(inStore("Kept.vtl")));

  frame().markDirty();
  std::filesystem::remove(inStore("Kept.vtl"));
  std::filesystem::create_directory(inStore("Kept.vtl"));  // a folder can't be written
  script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_YES);
  script.box("Save Failed", "Cannot open file: " + inStore("Kept.vtl"), kErrorBox, wxID_OK);
  EXPECT_FALSE(frame().ConfirmDiscard());
}

TEST_F(Save, ConfirmDiscardWithNoGoesOn) {
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_NO);
  EXPECT_TRUE(frame().ConfirmDiscard());
  EXPECT_TRUE(frame().dirty());
}

TEST_F(Save, CancelInTheUnsavedBoxLeavesEverythingAsItWas) {
  saveUnder("One");
  addPiece();
  frame().markDirty();
  WriteFileText(inStore("Other.vtl"), LayoutText("Other"));
  const std::string before = title();
  for (const int id : {5002, 5001, 5000, 5006}) {
    ModalScript script;
    script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_CANCEL);
    command(id);
    EXPECT_TRUE(script.finished()) << id;
    EXPECT_EQ(plan().pieces.size(), 1u) << id;
    EXPECT_TRUE(plan().undoHistory.empty()) << id;
    EXPECT_TRUE(frame().dirty()) << id;
    EXPECT_EQ(frame().currentPath(), inStore("One.vtl")) << id;
    EXPECT_EQ(title(), before) << id;
  }
  EXPECT_EQ(before, "Vantrel v1.5 by Kelmor - One *");
}

TEST_F(Save, ARefusedNameInTheSaveDialogCountsAsCancel) {
  addPiece();
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_YES);
  script.dialog("Save Layout", wxID_CANCEL);
  command(5002);
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_TRUE(frame().dirty());

  WriteFileText(inStore("Taken.vtl"), "old");
  script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_YES);
  script.dialog("Save Layout", wxID_OK, TypeName("Taken"));
  script.box("Confirm Replace", "A layout named \"Taken\" already exists.\n\nReplace it?",
             kCautiousBox, wxID_NO);
  command(5002);
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor *");
}

TEST_F(Save, ClosingADirtyFrameAsksAndStaysOnCancel) {
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", kUnsavedText, kUnsavedBox, wxID_CANCEL);
  EXPECT_FALSE(frame().Close(false));
  EXPECT_FALSE(frame().IsBeingDeleted());
}

TEST_F(Save, ClosingACleanFrameDestroysIt) {
  ModalScript none;
  wxWeakRef<MainFrame> weak(&frame());
  EXPECT_TRUE(frame().Close(false));
  wxTheApp->ProcessIdle();
  if (!weak) frame_ = nullptr;
  EXPECT_EQ(weak.get(), nullptr);
}

TEST_F(Save, AForcedCloseDoesNotAsk) {
  frame().markDirty();
  ModalScript none;
  wxWeakRef<MainFrame> weak(&frame());
  frame().Close(true);
  wxTheApp->ProcessIdle();
  if (!weak) frame_ = nullptr;
  EXPECT_EQ(weak.get(), nullptr);
}

}  // namespace
}  // namespace vantrel
