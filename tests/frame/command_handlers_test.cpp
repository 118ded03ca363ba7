#include <gtest/gtest.h>
#include <wx/menu.h>
#include <wx/printdlg.h>
#include <wx/toolbar.h>

#include "canvas/canvas_panel.h"
#include "doc/undo.h"
#include "properties/properties_panel.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

class CommandHandlers : public FrameTest {
 protected:
  // Chooses a check tool as a click on it does.
  void toggle(int id, bool on) {
    frame().GetToolBar()->ToggleTool(id, on);
    command(id, on);
  }
  bool checked(int id) { return frame().GetToolBar()->GetToolState(id); }
  wxToolBarToolBase& tool(int id) { return *frame().GetToolBar()->FindById(id); }

  // Runs the update of menu and toolbar states that idle time brings.
  void updateStates() {
    frame().DoMenuUpdates();
    frame().GetToolBar()->UpdateWindowUI(wxUPDATE_UI_FROMIDLE);
  }
  bool menuEnabled(int id) { return frame().GetMenuBar()->IsEnabled(id); }
};

TEST_F(CommandHandlers, MeasureWhilePolygonIsActiveLeavesOnlyMeasureChecked) {
  toggle(2014, true);
  EXPECT_EQ(plan().toolMode, 4);
  toggle(2013, true);
  EXPECT_EQ(plan().toolMode, 3);
  EXPECT_TRUE(checked(2013));
  EXPECT_FALSE(checked(2014));
}

TEST_F(CommandHandlers, PolygonWhileMeasureIsActiveLeavesOnlyPolygonChecked) {
  toggle(2013, true);
  toggle(2014, true);
  EXPECT_EQ(plan().toolMode, 4);
  EXPECT_FALSE(checked(2013));
  EXPECT_TRUE(checked(2014));
}

TEST_F(CommandHandlers, AToolThatIsUncheckedLeavesNoMode) {
  for (const int id : {2013, 2014}) {
    toggle(id, true);
    toggle(id, false);
    EXPECT_EQ(plan().toolMode, 0);
  }
  EXPECT_FALSE(frame().dirty());
}

TEST_F(CommandHandlers, AToolClearsTheSelectionWhenItIsChosenAndOnlyThen) {
  addPiece().sel = true;
  plan().labels.emplace_back().sel = true;
  toggle(2013, true);
  EXPECT_FALSE(plan().pieces[0].sel);
  EXPECT_FALSE(plan().labels[0].sel);
  plan().pieces[0].sel = true;
  toggle(2013, false);
  EXPECT_TRUE(plan().pieces[0].sel);
}

TEST_F(CommandHandlers, AToolThatTakesOverFromTheBaseboardsDrawingTakesItsHintAway) {
  plan().toolMode = 5;
  frame().setStatus(kStatusMessage, "Click vertices");
  toggle(2013, true);
  EXPECT_EQ(plan().toolMode, 3);
  EXPECT_EQ(statusText(kStatusMessage), "");
  frame().setStatus(kStatusMessage, "[ELEV]");
  toggle(2013, false);
  EXPECT_EQ(statusText(kStatusMessage), "[ELEV]");
}

TEST_F(CommandHandlers, UndoOnAnEmptyHistoryIsRefusedByTheMenuAndByTheOperation) {
  addPiece();
  updateStates();
  EXPECT_FALSE(menuEnabled(2002));
  EXPECT_FALSE(tool(2002).IsEnabled());
  const Layout before = plan();
  Undo(plan());
  EXPECT_EQ(plan().pieces, before.pieces);
  EXPECT_TRUE(plan().redoHistory.empty());
}

TEST_F(CommandHandlers, UndoAndRedoShowTheirSelectionInThePropertiesPanel) {
  const std::int32_t id = addPiece().id;
  frame().selectionChanged();
  PushUndo(plan());
  plan().pieces[0].sel = true;
  plan().pieces[0].z = 40.0;
  frame().selectionChanged();
  EXPECT_EQ(frame().properties().page().pieceId, id);
  command(2002);
  EXPECT_EQ(frame().properties().page().kind, PageKind::none);
  EXPECT_EQ(frame().properties().page().pieceId, -1);
  command(2003);
  EXPECT_EQ(frame().properties().page().pieceId, id);
  EXPECT_EQ(frame().properties().page().height.text, "40.0");
}

TEST_F(CommandHandlers, AnotherUnitShowsInThePropertiesPanel) {
  addPiece().sel = true;
  frame().selectionChanged();
  EXPECT_EQ(frame().properties().page().height.caption, "Height (mm):");
  command(kCmdInches, true);
  EXPECT_EQ(frame().properties().page().height.caption, "Height (in):");
}

TEST_F(CommandHandlers, UndoAndRedoAreOfferedWhileTheirHistoryLasts) {
  PushUndo(plan());
  updateStates();
  EXPECT_TRUE(menuEnabled(2002));
  EXPECT_TRUE(tool(2002).IsEnabled());
  EXPECT_FALSE(menuEnabled(2003));
  command(2002);
  updateStates();
  EXPECT_FALSE(menuEnabled(2002));
  EXPECT_TRUE(menuEnabled(2003));
  EXPECT_TRUE(tool(2003).IsEnabled());
}

TEST_F(CommandHandlers, AfterAnUndoTheNextEditTakesRedoAway) {
  PushUndo(plan());
  addPiece().sel = true;
  command(2002);
  updateStates();
  EXPECT_TRUE(menuEnabled(2003));
  addPiece().sel = true;
  command(2004);
  updateStates();
  EXPECT_TRUE(plan().pieces.empty());
  EXPECT_TRUE(menuEnabled(2002));
  EXPECT_FALSE(menuEnabled(2003));
  EXPECT_FALSE(tool(2003).IsEnabled());
}

TEST_F(CommandHandlers, UndoAndRedoStepThroughHistoryAndMarkTheLayoutChanged) {
  PushUndo(plan());
  addPiece();
  command(2002);
  EXPECT_TRUE(plan().pieces.empty());
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor *");
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 0");
  command(2003);
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 1");
}

TEST_F(CommandHandlers, UndoMarksTheLayoutChangedEvenWithoutAHistory) {
  command(2002);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(CommandHandlers, RedoMarksTheLayoutChangedEvenWithoutAHistory) {
  command(2003);
  EXPECT_TRUE(frame().dirty());
}

// The view at scale 1 has its origin at pixel (60, 60).
TEST_F(CommandHandlers, UndoInMidDragUndoesTheWholeDragAndNoMotionOverwritesIt) {
  addPiece();
  showFrame();
  frame().canvas().resetViewUnitScale();
  dragOnCanvas({160, 60}, {160, 260});
  EXPECT_EQ(plan().pieces[0].y, 200.0);
  command(kCmdUndo);
  EXPECT_EQ(plan().pieces[0].y, 0.0);
  mouseOnCanvas(wxEVT_MOTION, {160, 360}, true);
  mouseOnCanvas(wxEVT_LEFT_UP, {160, 360}, false);
  EXPECT_EQ(plan().pieces[0].y, 0.0);
  command(kCmdRedo);
  EXPECT_EQ(plan().pieces[0].y, 200.0);
  EXPECT_FALSE(frame().canvas().HasCapture());
}

TEST_F(CommandHandlers, SelectAllInMidDragLeavesEveryPieceInItsPlace) {
  addPiece().y = 1000.0;
  addPiece();
  showFrame();
  frame().canvas().resetViewUnitScale();
  dragOnCanvas({160, 60}, {160, 260});
  command(kCmdSelectAll);
  mouseOnCanvas(wxEVT_MOTION, {160, 360}, true);
  EXPECT_EQ(plan().pieces[0].y, 1000.0);
  EXPECT_EQ(plan().pieces[1].y, 200.0);
  EXPECT_TRUE(plan().pieces[0].sel);
  EXPECT_FALSE(frame().canvas().HasCapture());
}

TEST_F(CommandHandlers, DeleteInMidDragEndsItFirst) {
  addPiece();
  showFrame();
  frame().canvas().resetViewUnitScale();
  dragOnCanvas({160, 60}, {160, 260});
  command(kCmdDelete);
  EXPECT_TRUE(plan().pieces.empty());
  EXPECT_FALSE(frame().canvas().HasCapture());
  command(kCmdUndo);
  ASSERT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(plan().pieces[0].y, 200.0);
}

TEST_F(CommandHandlers, DeleteIsEnabledByASelectedPieceOrItemOnly) {
  addPiece();
  plan().scenery.emplace_back();
  plan().labels.emplace_back().sel = true;
  plan().shapes.emplace_back().sel = true;
  plan().measurements.emplace_back().sel = true;
  updateStates();
  EXPECT_FALSE(menuEnabled(2004));
  plan().scenery[0].sel = true;
  updateStates();
  EXPECT_TRUE(menuEnabled(2004));
  plan().scenery[0].sel = false;
  plan().pieces[0].sel = true;
  updateStates();
  EXPECT_TRUE(menuEnabled(2004));
}

TEST_F(CommandHandlers, DeleteRemovesTheSelectionAsOneStepAndTellsEveryone) {
  addPiece();
  addPiece().sel = true;
  command(2004);
  ASSERT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(plan().pieces[0].id, 1);
  EXPECT_EQ(plan().undoHistory.size(), 1u);
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 1");
}

TEST_F(CommandHandlers, DeleteAsksAboutGradedTrack) {
  addPiece().sel = true;
  plan().pieces[0].grade = 2.0;
  ModalScript script;
  script.box("Delete", "Selection includes graded pieces. Delete?", wxYES_NO | wxICON_QUESTION,
             wxID_NO);
  command(2004);
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_TRUE(plan().undoHistory.empty());
  script.box("Delete", "Selection includes graded pieces. Delete?", wxYES_NO | wxICON_QUESTION,
             wxID_YES);
  command(2004);
  EXPECT_TRUE(plan().pieces.empty());
}

TEST_F(CommandHandlers, DeleteFromTheMenuRefusesEvenAHelixSelectedAsAWhole) {
  for (int i = 0; i < 4; ++i) {
    addPiece().helix = 9;
    plan().pieces.back().sel = true;
  }
  ModalScript script;
  script.box("Helix track is locked",
             "Selection includes track that is part of a helix. Helix track cannot be deleteed "
             "individually.",
             wxOK | wxICON_INFORMATION, wxID_OK);
  command(2004);
  EXPECT_EQ(plan().pieces.size(), 4u);
  EXPECT_TRUE(plan().undoHistory.empty());
}

TEST_F(CommandHandlers, SelectAllTakesPiecesOfAHiddenLevelToo) {
  plan().levels = {Level{}};
  plan().levels[0].visible = false;
  addPiece();
  command(2005);
  EXPECT_TRUE(plan().pieces[0].sel);
}

TEST_F(CommandHandlers, SelectAllTakesPiecesAndSceneryAndNoAnnotations) {
  addPiece();
  plan().scenery.emplace_back();
  plan().labels.emplace_back();
  plan().shapes.emplace_back();
  plan().measurements.emplace_back();
  command(2005);
  EXPECT_TRUE(plan().pieces[0].sel);
  EXPECT_TRUE(plan().scenery[0].sel);
  EXPECT_FALSE(plan().labels[0].sel || plan().shapes[0].sel || plan().measurements[0].sel);
  EXPECT_FALSE(frame().dirty());
}

TEST_F(CommandHandlers, ZoomsByAQuarterInAndAFifthOut) {
  frame().canvas().resetView();
  command(2006);
  EXPECT_DOUBLE_EQ(frame().canvas().view().scale, 0.5);  // 0.4 * 1.25
  command(2007);
  EXPECT_DOUBLE_EQ(frame().canvas().view().scale, 0.4);  // 0.5 * 0.8
}

TEST_F(CommandHandlers, ZoomToFitOfAnEmptyLayoutResetsTheView) {
  command(2006);
  command(2008);
  EXPECT_EQ(frame().canvas().view(), ViewTransform{});
}

TEST_F(CommandHandlers, GridAndSnapFollowTheirChecksAndLeaveTheLayoutClean) {
  command(2009, false);
  EXPECT_FALSE(plan().gridVisible);
  command(2009, true);
  EXPECT_TRUE(plan().gridVisible);
  command(2010, false);
  EXPECT_FALSE(plan().snapEnabled);
  command(2010, true);
  EXPECT_TRUE(plan().snapEnabled);
  EXPECT_FALSE(frame().dirty());
}

TEST_F(CommandHandlers, UnitsChangeOnlyWhatIsShown) {
  command(2018);
  EXPECT_EQ(plan().units, 2);
  command(2017);
  EXPECT_EQ(plan().units, 1);
  command(2016);
  EXPECT_EQ(plan().units, 0);
  EXPECT_FALSE(frame().dirty());
}

TEST_F(CommandHandlers, AnotherUnitPaintsTheCanvasAnew) {
  showFrame();
  for (const int id : {kCmdInches, kCmdCentimetres, kCmdMillimetres}) {
    waitForRest();
    const PaintCount paints(frame().canvas());
    command(id, true);
    EXPECT_TRUE(WaitUntil([&paints] { return paints.count() > 0; })) << id;
  }
}

TEST_F(CommandHandlers, HideLabelsHidesWhileCheckedAndNamesTheOtherWay) {
  toggle(2011, true);
  EXPECT_FALSE(plan().labelsVisible);
  EXPECT_EQ(tool(2011).GetLabel(), "Show Labels");
  EXPECT_TRUE(checked(2011));
  toggle(2011, false);
  EXPECT_TRUE(plan().labelsVisible);
  EXPECT_EQ(tool(2011).GetLabel(), "Hide Labels");
}

TEST_F(CommandHandlers, ValidateSaysThatItIsNotYetImplemented) {
  ModalScript script;
  script.box("Validate", "Validation not yet implemented.", kInformationBox, wxID_OK);
  command(2020);
}

TEST_F(CommandHandlers, LayoutPropertiesSayThatTheyAreNotYetImplemented) {
  ModalScript script;
  script.box("Properties", "Layout properties not yet implemented.", kInformationBox, wxID_OK);
  command(2021);
}

TEST_F(CommandHandlers, OptionsAskForTheExperience) {
  ModalScript script;
  script.dialog("Choose Your Experience", 5103);
  command(2023);
  EXPECT_TRUE(Prefs().playful);
  EXPECT_EQ(ReadFileText(folders_.prefsPath), "playful=1\nasked=1\n");
}

// Turns the page upright and widens its left margin.
void TurnPage(wxDialog& dialog) {
  auto* setup = dynamic_cast<wxPageSetupDialogBase*>(&dialog);
  ASSERT_NE(setup, nullptr);
  wxPageSetupDialogData& data = setup->GetPageSetupDialogData();
  EXPECT_EQ(data.GetMarginTopLeft(), wxPoint(15, 15));
  data.GetPrintData().SetOrientation(wxPORTRAIT);
  data.SetMarginTopLeft(wxPoint(20, 15));
}

TEST_F(CommandHandlers, PageSetupIsTakenOverOnOk) {
  ModalScript script;
  script.dialog("", wxID_OK, TurnPage);
  command(5012);
  EXPECT_EQ(frame().pageSetupData().GetMarginTopLeft(), wxPoint(20, 15));
  EXPECT_EQ(frame().printData().GetOrientation(), wxPORTRAIT);
}

TEST_F(CommandHandlers, PageSetupIsForgottenOnCancel) {
  ModalScript script;
  script.dialog("", wxID_CANCEL, TurnPage);
  command(5012);
  EXPECT_EQ(frame().pageSetupData().GetMarginTopLeft(), wxPoint(15, 15));
  EXPECT_EQ(frame().printData().GetOrientation(), wxLANDSCAPE);
}

TEST_F(CommandHandlers, ExitAsksAboutUnsavedChanges) {
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_CANCEL);
  command(5006);
  EXPECT_FALSE(frame().IsBeingDeleted());
}

}  // namespace
}  // namespace vantrel
