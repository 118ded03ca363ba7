#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/textctrl.h>

#include "frame/export_dialog.h"
#include "frame/store_folder.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

struct ExportControls {
  explicit ExportControls(wxDialog& dialog)
      : folder(*FindControls<wxTextCtrl>(dialog).at(0)),
        name(*FindControls<wxTextCtrl>(dialog).at(1)),
        list(*FindControl<wxListBox>(dialog)),
        browse(*FindControl<wxButton>(dialog, "Browse...")),
        accept(*FindControl<wxButton>(dialog, "Export")) {}

  wxTextCtrl& folder;
  wxTextCtrl& name;
  wxListBox& list;
  wxButton& browse;
  wxButton& accept;
};

class Export : public FrameTest {
 protected:
  void put(const std::string& fileName) {
    WriteFileText(inStore(fileName), LayoutText("content of " + fileName));
  }
  std::string inDownloads(const std::string& name) { return folders_.downloads + "/" + name; }
  ModalScript::Action choose(int row, const std::string& name = {},
                             const std::string& folder = {}) {
    return [=](wxDialog& dialog) {
      ExportControls controls(dialog);
      ClickRow(controls.list, row);
      if (!name.empty()) controls.name.SetValue(wxString::FromUTF8(name));
      if (!folder.empty()) controls.folder.SetValue(wxString::FromUTF8(folder));
    };
  }
};

TEST_F(Export, SaysWhenThereIsNothingToExport) {
  ModalScript script;
  script.box("Export Layout", "No layouts to export. Save a layout first.", kInformationBox,
             wxID_OK);
  command(1901);
}

TEST_F(Export, CopiesTheLayoutAsItIs) {
  put("Yard.vtl");
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0));
  script.box("Export", "Exported to:\n" + inDownloads("Yard.vtl"), kInformationBox, wxID_OK);
  command(1901);
  EXPECT_EQ(ReadFileText(inDownloads("Yard.vtl")), LayoutText("content of Yard.vtl"));
}

TEST_F(Export, AnOlderFileLeavesWithTheNewExtensionAndItsOldContent) {
  put("Old.xml");
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0));
  script.box("Export", "Exported to:\n" + inDownloads("Old.vtl"), kInformationBox, wxID_OK);
  command(1901);
  EXPECT_EQ(ReadFileText(inDownloads("Old.vtl")), LayoutText("content of Old.xml"));
}

TEST_F(Export, DropsAnExtensionThatTheUserTyped) {
  put("Yard.vtl");
  for (const char* typed : {"Copy.xml", "  Copy.vtl ", "Copy.txt"}) {
    ModalScript script;
    script.dialog("Export Layout", wxID_OK, choose(0, typed));
    script.box("Export", "Exported to:\n" + inDownloads("Copy.vtl"), kInformationBox, wxID_OK);
    command(1901);
    EXPECT_TRUE(std::filesystem::remove(inDownloads("Copy.vtl"))) << typed;
  }
}

TEST_F(Export, ANameWithADotInItLeavesWhole) {
  put("Anlage Nr. 491.vtl");
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0));
  script.box("Export", "Exported to:\n" + inDownloads("Anlage Nr. 491.vtl"), kInformationBox,
             wxID_OK);
  command(1901);
  EXPECT_TRUE(std::filesystem::exists(inDownloads("Anlage Nr. 491.vtl")));
}

TEST_F(Export, StartsWithTheOpenLayoutSelectedWhateverItsCase) {
  put("Alpha.vtl");
  put("Yard.vtl");
  ExportDialog dialog(&frame(), LayoutFiles(folders_.store), folders_.downloads, "yARD");
  ExportControls controls(dialog);
  EXPECT_EQ(controls.list.GetSelection(), 1);
  EXPECT_EQ(controls.name.GetValue(), "Yard");
  EXPECT_TRUE(controls.accept.IsEnabled());
  EXPECT_EQ(dialog.sourcePath(), inStore("Yard.vtl"));
}

TEST_F(Export, TheFrameHandsItsLayoutNameOn) {
  put("Yard.vtl");
  put("Alpha.vtl");
  WriteFileText(inStore("Yard.vtl"), LayoutText("Yard"));
  frame().LoadIntoFrame(inStore("Yard.vtl"));
  ModalScript script;
  script.dialog("Export Layout", wxID_CANCEL, [](wxDialog& dialog) {
    EXPECT_EQ(ExportControls(dialog).name.GetValue(), "Yard");
    EXPECT_TRUE(dialog.HasFlag(wxRESIZE_BORDER));
    EXPECT_EQ(dialog.GetSize(), wxSize(440, 480));
  });
  command(1901);
}

TEST_F(Export, StartsWithNothingSelectedForALayoutWithoutAName) {
  put("Alpha.vtl");
  ExportDialog dialog(&frame(), LayoutFiles(folders_.store), folders_.downloads, "");
  ExportControls controls(dialog);
  EXPECT_EQ(controls.list.GetSelection(), wxNOT_FOUND);
  EXPECT_FALSE(controls.accept.IsEnabled());
  controls.name.SetValue("x");
  EXPECT_FALSE(controls.accept.IsEnabled()) << "no row";
  ClickRow(controls.list, 0);
  EXPECT_EQ(controls.name.GetValue(), "Alpha");
  EXPECT_TRUE(controls.accept.IsEnabled());
  controls.name.SetValue("North\nyard");
  EXPECT_EQ(controls.name.GetValue(), "North yard");
  controls.name.SetValue("   ");
  EXPECT_FALSE(controls.accept.IsEnabled()) << "only blanks";
}

TEST_F(Export, ADoubleClickExports) {
  put("Alpha.vtl");
  ModalScript script;
  script.shown("Export Layout",
               [](wxDialog& dialog) { DoubleClickRow(ExportControls(dialog).list, 0); });
  script.box("Export", "Exported to:\n" + inDownloads("Alpha.vtl"), kInformationBox, wxID_OK);
  command(1901);
}

TEST_F(Export, BrowseChoosesTheDestination) {
  put("Alpha.vtl");
  ExportDialog dialog(&frame(), LayoutFiles(folders_.store), folders_.downloads, "");
  ExportControls controls(dialog);
  ModalScript script;
  script.shown("", ChooseFolder("Choose destination folder", folders_.home));
  wxCommandEvent click(wxEVT_BUTTON, controls.browse.GetId());
  controls.browse.ProcessWindowEvent(click);
  EXPECT_EQ(dialog.folder(), folders_.home);
}

TEST_F(Export, ADestinationThatDoesNotExistIsReported) {
  put("Alpha.vtl");
  const std::string nowhere = temp_.at("nowhere");
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0, {}, "  " + nowhere + " "));
  script.box("Export Failed", "Destination folder does not exist:\n" + nowhere, kErrorBox, wxID_OK);
  command(1901);
}

TEST_F(Export, AsksBeforeItReplacesAFile) {
  put("Alpha.vtl");
  WriteFileText(inDownloads("Alpha.vtl"), "theirs");
  const std::string question = "\"Alpha.vtl\" already exists in that folder.\n\nReplace it?";
  {
    ModalScript script;
    script.dialog("Export Layout", wxID_OK, choose(0));
    script.box("Confirm Replace", question, kCautiousBox, wxID_NO);
    command(1901);
  }
  EXPECT_EQ(ReadFileText(inDownloads("Alpha.vtl")), "theirs");
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0));
  script.box("Confirm Replace", question, kCautiousBox, wxID_YES);
  script.box("Export", "Exported to:\n" + inDownloads("Alpha.vtl"), kInformationBox, wxID_OK);
  command(1901);
  EXPECT_EQ(ReadFileText(inDownloads("Alpha.vtl")), LayoutText("content of Alpha.vtl"));
}

TEST_F(Export, OntoItselfLosesNothing) {
  put("Alpha.vtl");
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0, {}, folders_.store));
  script.box("Confirm Replace", "\"Alpha.vtl\" already exists in that folder.\n\nReplace it?",
             kCautiousBox, wxID_YES);
  script.box("Export", "Exported to:\n" + inStore("Alpha.vtl"), kInformationBox, wxID_OK);
  command(1901);
  EXPECT_EQ(ReadFileText(inStore("Alpha.vtl")), LayoutText("content of Alpha.vtl"));
}

TEST_F(Export, ACopyThatFailsIsReported) {
  put("Alpha.vtl");
  std::filesystem::create_directory(inDownloads("Alpha.vtl"));  // a folder in the way
  ModalScript script;
  script.dialog("Export Layout", wxID_OK, choose(0));
  script.box("Export Failed", "Could not copy the file to:\n" + inDownloads("Alpha.vtl"), kErrorBox,
             wxID_OK);
  command(1901);
}

}  // namespace
}  // namespace vantrel
