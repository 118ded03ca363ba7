#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/textctrl.h>

#include "frame/import_dialog.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

// The dialog's controls by what they are for.
struct Controls {
  explicit Controls(wxDialog& dialog)
      : folder(*FindControls<wxTextCtrl>(dialog).at(0)),
        name(*FindControls<wxTextCtrl>(dialog).at(1)),
        list(*FindControl<wxListBox>(dialog)),
        browse(*FindControl<wxButton>(dialog, "Browse...")),
        import(*FindControl<wxButton>(dialog, "Import")) {}

  wxTextCtrl& folder;
  wxTextCtrl& name;
  wxListBox& list;
  wxButton& browse;
  wxButton& import;
};

class Import : public FrameTest {
 protected:
  void put(const std::string& fileName) {
    WriteFileText(folders_.downloads + "/" + fileName, LayoutText("inner name"));
  }
  // Chooses the row'th file of a folder under a name; an empty name keeps the one offered.
  ModalScript::Action choose(int row, const std::string& name = {}, std::string folder = {}) {
    return [=](wxDialog& dialog) {
      Controls controls(dialog);
      if (!folder.empty()) controls.folder.SetValue(wxString::FromUTF8(folder));
      ClickRow(controls.list, row);
      if (!name.empty()) controls.name.SetValue(wxString::FromUTF8(name));
      EXPECT_TRUE(controls.import.IsEnabled());
    };
  }
  static std::string question(const std::string& name) {
    return "Imported successfully.\n\nOpen \"" + name + "\" now?";
  }
};

TEST_F(Import, StartsInDownloadsOrHome) {
  put("a.vtl");
  ModalScript script;
  script.dialog("Import Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    EXPECT_EQ(Controls(dialog).folder.GetValue(), wxString(folders_.downloads));
    EXPECT_EQ(Controls(dialog).list.GetCount(), 1u);
    EXPECT_TRUE(dialog.HasFlag(wxRESIZE_BORDER));
    EXPECT_EQ(dialog.GetSize(), wxSize(440, 480));
  });
  command(1900);
  std::filesystem::remove_all(folders_.downloads);
  script.dialog("Import Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    EXPECT_EQ(Controls(dialog).folder.GetValue(), wxString(folders_.home));
  });
  command(1900);
}

TEST_F(Import, ListsFullNamesAndFollowsTheFolderText) {
  put("b.vtl");
  put("a.xml");
  WriteFileText(folders_.home + "/c.vtl", LayoutText("c"));
  ImportDialog dialog(&frame(), folders_.downloads);
  Controls controls(dialog);
  ASSERT_EQ(controls.list.GetCount(), 2u);
  EXPECT_EQ(controls.list.GetString(0), "b.vtl");
  EXPECT_EQ(controls.list.GetString(1), "a.xml");
  controls.folder.SetValue("  " + wxString(folders_.home) + " ");
  ASSERT_EQ(controls.list.GetCount(), 1u);
  EXPECT_EQ(controls.list.GetString(0), "c.vtl");
  controls.folder.SetValue(wxString(temp_.at("nowhere")));
  EXPECT_EQ(controls.list.GetCount(), 0u);
}

TEST_F(Import, NeedsASelectedRowAndAName) {
  put("Depot.vtl");
  ImportDialog dialog(&frame(), folders_.downloads);
  Controls controls(dialog);
  EXPECT_FALSE(controls.import.IsEnabled());
  controls.name.SetValue("x");
  EXPECT_FALSE(controls.import.IsEnabled()) << "no row";
  ClickRow(controls.list, 0);
  EXPECT_EQ(controls.name.GetValue(), "Depot");
  EXPECT_TRUE(controls.import.IsEnabled());
  controls.name.SetValue("");
  EXPECT_FALSE(controls.import.IsEnabled()) << "no name";
  controls.name.SetValue("y");
  EXPECT_TRUE(controls.import.IsEnabled());
  controls.folder.SetValue(wxString(folders_.home));
  EXPECT_FALSE(controls.import.IsEnabled()) << "the row is gone";
}

TEST_F(Import, ADoubleClickImportsOnlyWhenImportIsOffered) {
  put("a.vtl");
  ModalScript script;
  script.shown("Import Layout", [](wxDialog& dialog) {
    Controls controls(dialog);
    DoubleClickRow(controls.list, 0);
  });
  script.box("Import", question("a"), kQuestionBox, wxID_NO);
  command(1900);
  EXPECT_TRUE(std::filesystem::exists(inStore("a.vtl")));
}

TEST_F(Import, BrowseChoosesAFolderAndRefillsTheList) {
  WriteFileText(folders_.home + "/c.vtl", LayoutText("c"));
  ImportDialog dialog(&frame(), folders_.downloads);
  Controls controls(dialog);
  ModalScript script;
  script.shown("", ChooseFolder("Choose folder containing layout file", folders_.home));
  wxCommandEvent click(wxEVT_BUTTON, controls.browse.GetId());
  controls.browse.ProcessWindowEvent(click);
  EXPECT_EQ(controls.folder.GetValue(), wxString(folders_.home));
  EXPECT_EQ(controls.list.GetCount(), 1u);
}

TEST_F(Import, CopiesTheFileAndPutsTheNewNameIntoIt) {
  put("old.xml");
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0, "  Neue Anlage "));
  script.box("Import", question("Neue Anlage"), kQuestionBox, wxID_NO);
  command(1900);
  const std::string text = ReadFileText(inStore("Neue Anlage.vtl"));
  EXPECT_NE(text.find("<layout name=\"Neue Anlage\""), std::string::npos);
  EXPECT_NE(text.find("<lastshape "), std::string::npos) << "written in today's form";
  EXPECT_EQ(ReadFileText(folders_.downloads + "/old.xml"), LayoutText("inner name"));
  EXPECT_TRUE(plan().pieces.empty());
}

TEST_F(Import, ANameOfTwoLinesIsKeptOnOne) {
  put("North\nyard.vtl");
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, [this](wxDialog& dialog) {
    choose(0)(dialog);
    EXPECT_EQ(Controls(dialog).name.GetValue(), "North yard") << "from the file's name";
    Controls(dialog).name.SetValue("South\r\nyard\n");
    EXPECT_EQ(Controls(dialog).name.GetValue(), "South  yard ");
  });
  script.box("Import", question("South  yard"), kQuestionBox, wxID_YES);
  command(1900);
  EXPECT_EQ(frame().layoutName(), "South  yard");
  EXPECT_EQ(frame().currentPath(), inStore("South  yard.vtl"));
}

TEST_F(Import, ANameThatCouldNotBeReadBackIsAskedForAgain) {
  put("old.vtl");
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0, "Plan units="));
  script.box("Layout Name",
             "A layout named \"Plan units=\" could not be opened again: the end of the name would "
             "be read as a setting.\n\nUse this name all the same?",
             kCautiousBox, wxID_NO);
  script.dialog("Import Layout", wxID_OK, [](wxDialog& dialog) {
    EXPECT_EQ(Controls(dialog).name.GetValue(), "Plan units=");
    Controls(dialog).name.SetValue("Plan");
  });
  script.box("Import", question("Plan"), kQuestionBox, wxID_NO);
  command(1900);
  EXPECT_TRUE(std::filesystem::exists(inStore("Plan.vtl")));
  EXPECT_FALSE(std::filesystem::exists(inStore("Plan units=.vtl")));
}

TEST_F(Import, OpensTheLayoutWhenTheUserWantsIt) {
  put("a.vtl");
  frame().markDirty();
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0));
  script.box("Import", question("a"), kQuestionBox, wxID_YES);
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_NO);
  command(1900);
  EXPECT_EQ(frame().currentPath(), inStore("a.vtl"));
  EXPECT_EQ(frame().layoutName(), "a");
  EXPECT_EQ(plan().pieces.size(), 1u);
}

TEST_F(Import, LeavesTheLayoutOpenWhenTheUserWouldRatherStay) {
  put("a.vtl");
  frame().markDirty();
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0));
  script.box("Import", question("a"), kQuestionBox, wxID_YES);
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_CANCEL);
  command(1900);
  EXPECT_EQ(frame().currentPath(), "");
  EXPECT_TRUE(frame().dirty());
}

TEST_F(Import, AsksBeforeItReplacesALayout) {
  put("a.vtl");
  WriteFileText(inStore("a.vtl"), "mine");
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0));
  script.box("Confirm Replace", "A layout named \"a\" already exists.\n\nReplace it?", kCautiousBox,
             wxID_NO);
  command(1900);
  EXPECT_EQ(ReadFileText(inStore("a.vtl")), "mine");
}

TEST_F(Import, FromTheStoreUnderAnUnchangedNameAsksSkipsTheCopyAndRewritesTheFile) {
  WriteFileText(inStore("a.vtl"), LayoutText("inner name"));
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0, {}, folders_.store));
  script.box("Confirm Replace", "A layout named \"a\" already exists.\n\nReplace it?", kCautiousBox,
             wxID_YES);
  script.box("Import", question("a"), kQuestionBox, wxID_NO);
  command(1900);
  const std::string text = ReadFileText(inStore("a.vtl"));
  EXPECT_NE(text.find("<layout name=\"a\""), std::string::npos);
  EXPECT_NE(text.find("cat=\"24188\""), std::string::npos);
}

TEST_F(Import, FromTheStoreSpelledAnotherWayLosesNothing) {
  WriteFileText(inStore("a.vtl"), LayoutText("inner name"));
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0, {}, folders_.store + "/../store/"));
  script.box("Confirm Replace", "A layout named \"a\" already exists.\n\nReplace it?", kCautiousBox,
             wxID_YES);
  script.box("Import", question("a"), kQuestionBox, wxID_NO);
  command(1900);
  EXPECT_NE(ReadFileText(inStore("a.vtl")).find("cat=\"24188\""), std::string::npos);
}

TEST_F(Import, AFileThatCannotBeReadIsRefused) {
  put("a.vtl");
  const std::string source = folders_.downloads + "/a.vtl";
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, [&](wxDialog& dialog) {
    ClickRow(dialog, 0);
    std::filesystem::remove(source);
  });
  script.box("Import Failed",
             "This file does not appear to be a Vantrel layout:\n\nCannot open file: " + source,
             kErrorBox, wxID_OK);
  command(1900);
  EXPECT_FALSE(std::filesystem::exists(inStore("a.vtl")));
}

TEST_F(Import, AStoreThatCannotBeWrittenIsReported) {
  put("a.vtl");
  makeStoreUnwritable();
  Prefs().asked = true;
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, choose(0));
  script.box("Import Failed", "Could not copy the file to:\n" + inStore("a.vtl"), kErrorBox,
             wxID_OK);
  command(1900);
  EXPECT_TRUE(script.finished());
}

TEST_F(Import, CancelDoesNothing) {
  put("a.vtl");
  ModalScript script;
  script.dialog("Import Layout", wxID_CANCEL, choose(0));
  command(1900);
  EXPECT_FALSE(std::filesystem::exists(inStore("a.vtl")));
}

}  // namespace
}  // namespace vantrel
