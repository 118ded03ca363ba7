#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/menu.h>

#include "canvas/canvas_panel.h"
#include "frame/open_dialog.h"
#include "io/layout_file.h"
#include "palette/palette_panel.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

class Open : public FrameTest {
 protected:
  void put(const std::string& name, const std::string& part = "24188") {
    WriteFileText(inStore(name + ".vtl"), LayoutText(name, part));
  }
  // Opens the row'th layout of the list.
  void openRow(int row) {
    ModalScript script;
    script.dialog("Open Layout", wxID_OK, [row](wxDialog& dialog) { ClickRow(dialog, row); });
    command(5000);
  }
  static wxButton& button(wxWindow& dialog, const wxString& label) {
    return *FindControl<wxButton>(dialog, label);
  }
};

TEST_F(Open, LeavesNoGhostNoDraftAndNoToolOfTheLayoutBefore) {
  put("A");
  showFrame();
  armTool(2014);
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  ASSERT_TRUE(frame().canvas().state().polygonDraft.active);
  openRow(0);
  expectNothingUnderWay();
  frame().canvas().beginPieceDrag("24188");
  openRow(0);
  expectNothingUnderWay();
  EXPECT_EQ(plan().pieces.size(), 1u);
}

TEST_F(Open, OfAFileThatCannotBeReadLeavesToolAndDraftAlone) {
  showFrame();
  armTool(2013);
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  ModalScript script;
  script.dialog("Open Failed", wxID_OK);
  frame().LoadIntoFrame(inStore("missing.vtl"));
  EXPECT_TRUE(frame().canvas().state().measureDraft.active);
  EXPECT_EQ(plan().toolMode, kMeasureTool);
}

TEST_F(Open, SaysWhenTheStoreHoldsNoLayouts) {
  ModalScript script;
  script.box("Open Layout", "No layouts found in\n" + folders_.store, kInformationBox, wxID_OK);
  command(5000);
}

TEST_F(Open, ListsBaseNamesInAscendingOrderOfBothKinds) {
  put("b");
  put("a");
  WriteFileText(inStore("a.xml"), LayoutText("older"));
  WriteFileText(inStore("C.xml"), LayoutText("C"));
  wxArrayString rows;
  ModalScript script;
  script.dialog("Open Layout", wxID_CANCEL,
                [&](wxDialog& dialog) { rows = FindControl<wxListBox>(dialog)->GetStrings(); });
  command(5000);
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[0], "C");
  EXPECT_EQ(rows[1], "a");
  EXPECT_EQ(rows[2], "a");
  EXPECT_EQ(rows[3], "b");
}

TEST_F(Open, BothRowsOfOneNameOpenTheVtlFile) {
  put("a");
  WriteFileText(inStore("a.xml"), LayoutText("older"));
  openRow(1);
  EXPECT_EQ(frame().currentPath(), inStore("a.vtl"));
}

TEST_F(Open, StartsWithDisabledButtonsUntilARowIsSelected) {
  put("a");
  ModalScript script;
  script.dialog("Open Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    EXPECT_FALSE(button(dialog, "Open").IsEnabled());
    EXPECT_FALSE(button(dialog, "Delete...").IsEnabled());
    EXPECT_TRUE(button(dialog, "Cancel").IsEnabled());
    EXPECT_EQ(button(dialog, "Open").GetId(), wxID_OK);
    EXPECT_EQ(button(dialog, "Cancel").GetId(), wxID_CANCEL);
    ClickRow(dialog, 0);
    EXPECT_TRUE(button(dialog, "Open").IsEnabled());
    EXPECT_TRUE(button(dialog, "Delete...").IsEnabled());
  });
  command(5000);
  EXPECT_EQ(frame().currentPath(), "");
}

TEST_F(Open, TheDialogIsResizableAndAtLeast320By420) {
  put("a");
  ModalScript script;
  script.dialog("Open Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    EXPECT_TRUE(dialog.HasFlag(wxRESIZE_BORDER));
    EXPECT_EQ(dialog.GetParent(), &frame());
    EXPECT_GE(dialog.GetSize().x, 320);
    EXPECT_EQ(dialog.GetSize().y, 420);
  });
  command(5000);
}

TEST_F(Open, ADoubleClickOnARowOpensIt) {
  put("a");
  put("b");
  ModalScript script;
  script.shown("Open Layout",
               [](wxDialog& dialog) { DoubleClickRow(*FindControl<wxListBox>(dialog), 1); });
  command(5000);
  EXPECT_EQ(frame().layoutName(), "b");
}

TEST_F(Open, TheFirstArrowKeySelectsTheFirstRow) {
  put("a");
  put("b");
  ModalScript script;
  script.dialog("Open Layout", wxID_OK, [](wxDialog& dialog) {
    wxKeyEvent down(wxEVT_KEY_DOWN);
    down.m_keyCode = WXK_DOWN;
    FindControl<wxListBox>(dialog)->ProcessWindowEvent(down);
    EXPECT_TRUE(button(dialog, "Open").IsEnabled());
  });
  command(5000);
  EXPECT_EQ(frame().layoutName(), "a");
}

TEST_F(Open, LoadsTheFileIntoTheFrame) {
  put("a");
  plan().levels.clear();
  frame().markDirty();
  {
    ModalScript script;
    script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
               wxID_NO);
    script.dialog("Open Layout", wxID_OK, [](wxDialog& dialog) { ClickRow(dialog, 0); });
    command(5000);
  }
  ASSERT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(plan().pieces[0].joints.size(), 2u) << "open slots for both ends of a straight";
  EXPECT_EQ(plan().levels.size(), 1u);
  EXPECT_EQ(frame().currentPath(), inStore("a.vtl"));
  EXPECT_EQ(frame().layoutName(), "a");
  EXPECT_FALSE(frame().dirty());
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - a");
  EXPECT_EQ(statusText(kStatusMessage), "Ready");
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 1");
}

TEST_F(Open, ChecksTheUnitsOfTheFile) {
  Layout inches;
  inches.units = kInches;
  ASSERT_EQ(SaveLayoutFile(inches, inStore("inches.vtl"), "inches"), "");
  frame().LoadIntoFrame(inStore("inches.vtl"));
  EXPECT_TRUE(frame().GetMenuBar()->IsChecked(2018));
  EXPECT_FALSE(frame().GetMenuBar()->IsChecked(2016));
  inches.units = kCentimetres;
  ASSERT_EQ(SaveLayoutFile(inches, inStore("inches.vtl"), "inches"), "");
  frame().LoadIntoFrame(inStore("inches.vtl"));
  EXPECT_TRUE(frame().GetMenuBar()->IsChecked(2017));
}

TEST_F(Open, FitsHoTrackIntoTheViewAndShowsZTrackAtUnitScale) {
  put("z", "8500");
  frame().canvas().zoomCentred(2.0);
  frame().LoadIntoFrame(inStore("z.vtl"));
  EXPECT_EQ(frame().canvas().view(), (ViewTransform{1.0, 60.0, 60.0}));
  put("ho");
  frame().LoadIntoFrame(inStore("ho.vtl"));
  // From one margin of 80 pixels to the other: the straight runs from x 100 to 288.3.
  const ViewTransform& view = frame().canvas().view();
  ASSERT_GT(frame().canvas().GetClientSize().x, 200);
  EXPECT_NEAR(view.offsetX + 100.0 * view.scale, 80.0, 1e-6);
  EXPECT_NEAR(view.offsetX + 288.3 * view.scale, frame().canvas().GetClientSize().x - 80.0, 1e-6);
}

TEST_F(Open, ChoosesTheSystemOfTheLayoutInThePalette) {
  put("k", "2200");
  frame().LoadIntoFrame(inStore("k.vtl"));
  EXPECT_EQ(frame().palette().systemIndex(), 1);
}

TEST_F(Open, ShowsTheGradeRunsOfTheFile) {
  Layout graded;
  graded.gradeRuns = {{2.5, 1, 1}, {-3.0, 2, 0}};
  ASSERT_EQ(SaveLayoutFile(graded, inStore("g.vtl"), "g"), "");
  frame().LoadIntoFrame(inStore("g.vtl"));
  EXPECT_EQ(statusText(kStatusMessage), "[ELEV] 2.5 deg -3.0 deg  (right-click piece to stop)");
}

TEST_F(Open, KeepsTheGradeRunsOfTheLayoutBeforeUnlessItWasEmptiedFirst) {
  put("a");
  plan().gradeRuns = {{2.5, 1, 1}};
  openRow(0);
  EXPECT_EQ(plan().gradeRuns.size(), 1u);
  EXPECT_EQ(statusText(kStatusMessage), "[ELEV] 2.5 deg  (right-click piece to stop)");
  command(5002);
  openRow(0);
  EXPECT_TRUE(plan().gradeRuns.empty());
  EXPECT_FALSE(plan().currentGrade.active);
  EXPECT_EQ(statusText(kStatusMessage), "Ready");
}

TEST_F(Open, KeepsTheHistorySoThatUndoBringsThePreviousPiecesIntoTheOpenedWindow) {
  put("a");
  addPiece("24172");
  plan().undoHistory.emplace_back().pieces = plan().pieces;
  openRow(0);
  EXPECT_EQ(plan().pieces[0].cat, "24188");
  command(2002);
  ASSERT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(plan().pieces[0].cat, "24172");
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - a *");
}

TEST_F(Open, AFileThatCannotBeOpenedChangesNothing) {
  addPiece();
  frame().markDirty();
  ModalScript script;
  script.box("Open Failed", "Cannot open file: " + inStore("gone.vtl"), kErrorBox, wxID_OK);
  frame().LoadIntoFrame(inStore("gone.vtl"));
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(frame().currentPath(), "");
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor *");
}

TEST_F(Open, TheNameIsTakenAsTheFileHoldsIt) {
  Layout layout;
  ASSERT_EQ(SaveLayoutFile(layout, inStore("amp.vtl"), "Salt & Pepper"), "");
  frame().LoadIntoFrame(inStore("amp.vtl"));
  EXPECT_EQ(frame().layoutName(), "Salt &amp; Pepper");
}

TEST_F(Open, DeletingTheOpenLayoutThenCancelKeepsTheDocumentAndTheNextSaveAsks) {
  put("a");
  frame().LoadIntoFrame(inStore("a.vtl"));
  ModalScript script;
  script.dialog("Open Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    ClickRow(dialog, 0);
    script.box("Delete Layout", "Delete layout \"a\"?\n\nThis cannot be undone.", kWarningBox,
               wxID_YES);
    wxCommandEvent click(wxEVT_BUTTON, button(dialog, "Delete...").GetId());
    button(dialog, "Delete...").ProcessWindowEvent(click);
    EXPECT_EQ(FindControl<wxListBox>(dialog)->GetCount(), 0u);
    EXPECT_FALSE(button(dialog, "Open").IsEnabled());
    EXPECT_FALSE(button(dialog, "Delete...").IsEnabled());
  });
  command(5000);
  EXPECT_FALSE(std::filesystem::exists(inStore("a.vtl")));
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(frame().currentPath(), "");
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - a");
  script.dialog("Save Layout", wxID_CANCEL);
  command(5003);
  EXPECT_TRUE(script.finished());
}

TEST_F(Open, DeletingAnotherLayoutLeavesTheOpenOneItsFile) {
  put("a");
  put("b");
  frame().LoadIntoFrame(inStore("a.vtl"));
  ModalScript script;
  script.dialog("Open Layout", wxID_OK, [&](wxDialog& dialog) {
    ClickRow(dialog, 1);
    script.box("Delete Layout", "Delete layout \"b\"?\n\nThis cannot be undone.", kWarningBox,
               wxID_YES);
    wxCommandEvent click(wxEVT_BUTTON, button(dialog, "Delete...").GetId());
    button(dialog, "Delete...").ProcessWindowEvent(click);
    EXPECT_EQ(FindControl<wxListBox>(dialog)->GetStrings().size(), 1u);
  });
  command(5000);  // OK without a selected row opens nothing
  EXPECT_EQ(frame().currentPath(), inStore("a.vtl"));
  EXPECT_FALSE(std::filesystem::exists(inStore("b.vtl")));
}

TEST_F(Open, ADeleteThatIsNotConfirmedKeepsTheFile) {
  put("a");
  ModalScript script;
  script.dialog("Open Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    ClickRow(dialog, 0);
    script.box("Delete Layout", "Delete layout \"a\"?\n\nThis cannot be undone.", kWarningBox,
               wxID_NO);
    wxCommandEvent click(wxEVT_BUTTON, button(dialog, "Delete...").GetId());
    button(dialog, "Delete...").ProcessWindowEvent(click);
    EXPECT_TRUE(button(dialog, "Open").IsEnabled());
  });
  command(5000);
  EXPECT_TRUE(std::filesystem::exists(inStore("a.vtl")));
}

TEST_F(Open, ADeleteThatFailsIsReportedAndKeepsTheRow) {
  put("a");
  ModalScript script;
  script.dialog("Open Layout", wxID_CANCEL, [&](wxDialog& dialog) {
    ClickRow(dialog, 0);
    std::filesystem::remove(inStore("a.vtl"));  // somebody else was faster
    script.box("Delete Layout", "Delete layout \"a\"?\n\nThis cannot be undone.", kWarningBox,
               wxID_YES);
    script.box("Delete Failed", "Could not delete:\n" + inStore("a.vtl"), kErrorBox, wxID_OK);
    wxCommandEvent click(wxEVT_BUTTON, button(dialog, "Delete...").GetId());
    button(dialog, "Delete...").ProcessWindowEvent(click);
    EXPECT_EQ(FindControl<wxListBox>(dialog)->GetCount(), 1u);
    EXPECT_TRUE(button(dialog, "Open").IsEnabled());
  });
  command(5000);
}

}  // namespace
}  // namespace vantrel
