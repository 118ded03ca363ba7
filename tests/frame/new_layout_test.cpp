#include <gtest/gtest.h>

#include "canvas/canvas_panel.h"
#include "catalog/scenery_catalog.h"
#include "doc/layout_ops.h"
#include "io/layout_file.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

class NewLayout : public FrameTest {
 protected:
  void fill() {
    addPiece();
    plan().scenery.emplace_back();
    plan().baseboard = {{0, 0}, {100, 0}, {0, 100}};
    plan().levels = {Level{}, Level{.id = 2, .name = "Upper", .height = 120.0}};
    plan().activeLevel = 2;
    plan().gradeRuns = {{3.0, 1, 1}};
    SyncCurrentGrade(plan());
    plan().units = kInches;
    plan().snapEnabled = false;
    frame().canvas().zoomCentred(3.0);
  }
};

TEST_F(NewLayout, EmptiesTheDocumentButNotItsSettings) {
  fill();
  frame().setStatus(kStatusPieces, "Pieces: 1");
  command(5002);
  EXPECT_TRUE(plan().pieces.empty() && plan().scenery.empty() && plan().baseboard.empty());
  ASSERT_EQ(plan().levels.size(), 1u);
  EXPECT_EQ(plan().levels[0].id, 1);
  EXPECT_EQ(plan().activeLevel, 1);
  EXPECT_EQ(plan().nextId, 1);
  EXPECT_TRUE(plan().gradeRuns.empty());
  EXPECT_FALSE(plan().currentGrade.active);
  EXPECT_EQ(plan().units, kInches);
  EXPECT_FALSE(plan().snapEnabled);
  EXPECT_EQ(frame().canvas().view(), ViewTransform{});
  EXPECT_EQ(statusText(kStatusMessage), "Ready");
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 0");
}

TEST_F(NewLayout, InMidDragEndsTheDragSoThatTheEmptyLayoutStaysClean) {
  // Pressed at (100, 0) under the first view: pixel (60 + 40, 60).
  addPiece();
  showFrame();
  dragOnCanvas({100, 60}, {100, 160});
  EXPECT_TRUE(frame().canvas().state().selectionDrag.active);
  ModalScript script;
  script.dialog("Unsaved Changes", wxID_NO);
  command(5002);
  EXPECT_FALSE(frame().canvas().HasCapture());
  EXPECT_TRUE(plan().pieces.empty());
  mouseOnCanvas(wxEVT_MOTION, {100, 260}, true);
  mouseOnCanvas(wxEVT_LEFT_UP, {100, 260}, false);
  EXPECT_FALSE(frame().dirty());
}

TEST_F(NewLayout, OneYesToMovingGradedTrackHoldsForEveryLaterLayoutToo) {
  // Pressed at (100, 0) under the first view, 0.4 from (60, 60); 100 pixels down are 250 mm.
  const auto dragDown = [this] {
    dragOnCanvas({100, 60}, {100, 160});
    mouseOnCanvas(wxEVT_LEFT_UP, {100, 160}, false);
    return plan().pieces.at(0).y;
  };
  addPiece().grade = 2.0;
  showFrame();
  ModalScript script;
  script.box("Move",
             "Selection includes graded pieces. Moving will break joints and leave the chain's "
             "elevation inconsistent.\n\nMove anyway? (This warning will not appear again this "
             "session.)",
             wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, wxID_YES);
  EXPECT_EQ(dragDown(), 250.0);
  script.dialog("Unsaved Changes", wxID_NO);
  command(5002);
  addPiece().grade = 3.0;
  EXPECT_EQ(dragDown(), 250.0);

  Layout other;
  other.pieces = {{.id = 1, .cat = "24188", .grade = -2.0}};
  ASSERT_EQ(SaveLayoutFile(other, inStore("other.vtl"), "other"), "");
  frame().LoadIntoFrame(inStore("other.vtl"));
  frame().canvas().resetView();
  EXPECT_EQ(dragDown(), 250.0);
}

TEST_F(NewLayout, DropsWhatHangsAtThePointer) {
  showFrame();
  frame().canvas().beginPieceDrag("24188");
  command(5002);
  expectNothingUnderWay();
  frame().canvas().beginSceneryDrag(sceneryCatalog().front().id);
  ASSERT_TRUE(frame().canvas().state().sceneryDrag.active);
  command(5002);
  expectNothingUnderWay();
  frame().canvas().beginHelixDrag("24130");
  ASSERT_TRUE(frame().canvas().state().helixPlacement.active);
  command(5002);
  expectNothingUnderWay();
  // The next press finds an empty canvas.
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  mouseOnCanvas(wxEVT_LEFT_UP, {100, 60}, false);
  EXPECT_TRUE(plan().pieces.empty() && plan().scenery.empty() && plan().helices.empty());
}

TEST_F(NewLayout, TakesTheTapeAndItsDraftAway) {
  showFrame();
  armTool(2013);
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  ASSERT_TRUE(frame().canvas().state().measureDraft.active);
  command(5002);
  expectNothingUnderWay();
}

TEST_F(NewLayout, TakesAwayATapeThatStayedOnShowAfterItsToolWasPutAway) {
  showFrame();
  armTool(2013);
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  command(2013, false);
  frame().GetToolBar()->ToggleTool(2013, false);
  ASSERT_TRUE(frame().canvas().state().measureDraft.active);
  command(5002);
  expectNothingUnderWay();
}

TEST_F(NewLayout, TakesThePolygonAndItsDraftAway) {
  showFrame();
  armTool(2014);
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  ASSERT_TRUE(frame().canvas().state().polygonDraft.active);
  command(5002);
  expectNothingUnderWay();
}

TEST_F(NewLayout, TakesTheOutlineOfTheTableAwayWithItsHint) {
  showFrame();
  plan().toolMode = kBaseboardTool;
  frame().setStatus(kStatusMessage, "Click vertices");
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  ASSERT_TRUE(frame().canvas().state().polygonDraft.active);
  command(5002);
  expectNothingUnderWay();
  EXPECT_EQ(statusText(kStatusMessage), "Ready");
}

TEST_F(NewLayout, ThatIsCalledOffLeavesToolAndDraftAlone) {
  showFrame();
  frame().markDirty();
  armTool(2013);
  mouseOnCanvas(wxEVT_LEFT_DOWN, {100, 60}, true);
  ModalScript script;
  script.dialog("Unsaved Changes", wxID_CANCEL);
  command(5002);
  EXPECT_TRUE(frame().canvas().state().measureDraft.active);
  EXPECT_EQ(plan().toolMode, kMeasureTool);
  EXPECT_TRUE(isToolDown(2013));
}

TEST_F(NewLayout, CloseDoesTheSame) {
  fill();
  command(5001);
  EXPECT_TRUE(plan().pieces.empty());
  EXPECT_EQ(plan().nextId, 1);
}

TEST_F(NewLayout, ReachesBackByUndoToTheTrackButNotToLevelsAndBaseboard) {
  fill();
  plan().pieces[0].level = 2;
  command(5002);
  command(2002);
  ASSERT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(plan().pieces[0].level, 2) << "the name of a level that is gone";
  EXPECT_EQ(FindLevel(plan(), 2), nullptr);
  EXPECT_TRUE(plan().baseboard.empty());
  EXPECT_EQ(plan().gradeRuns.size(), 1u);
  EXPECT_EQ(plan().nextId, 1);
}

TEST_F(NewLayout, KeepsTheOldNameForTheNextSaveAndTheNextTitle) {
  WriteFileText(inStore("Old.vtl"), LayoutText("Old"));
  frame().LoadIntoFrame(inStore("Old.vtl"));
  command(5002);
  EXPECT_EQ(frame().currentPath(), "");
  EXPECT_FALSE(frame().dirty());
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor");
  EXPECT_EQ(frame().layoutName(), "Old");
  frame().markDirty();
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor - Old *");
}

// The straight lies from (0, 0) to (188.3, 0): under the first view its middle is 38 pixels right
// of (60, 60).
class AfterAnotherPlan : public NewLayout {
 protected:
  void layTwoJoined() {
    Piece first{.id = 1, .cat = "24188", .joints = {{}, {.target = 2, .tconn = 0}}};
    Piece second{.id = 2, .cat = "24188", .x = 188.3, .joints = {{.target = 1, .tconn = 1}, {}}};
    plan().pieces = {first, second};
    plan().nextId = 3;
  }
  // The middle of the second straight is at 282.45: 60 + 0.4 * 282.45 = 172.98.
  void doubleClickOnTheSecond() {
    mouseOnCanvas(wxEVT_LEFT_DOWN, {173, 60}, true);
    mouseOnCanvas(wxEVT_LEFT_UP, {173, 60}, false);
    mouseOnCanvas(wxEVT_LEFT_DCLICK, {173, 60}, true);
    mouseOnCanvas(wxEVT_LEFT_UP, {173, 60}, false);
  }
  void expectAThirdAndTheJointsWhole() {
    ASSERT_EQ(plan().pieces.size(), 3u);
    EXPECT_EQ(plan().pieces[2].id, 3);
    EXPECT_EQ(plan().pieces[0].joints, (std::vector<Joint>{{}, {.target = 2, .tconn = 0}}));
    EXPECT_EQ(plan().pieces[1].joints,
              (std::vector<Joint>{{.target = 1, .tconn = 1}, {.target = 3, .tconn = 0}}));
  }
};

TEST_F(AfterAnotherPlan, NewAndUndoADoubleClickLaysAPieceWithAnIdOfItsOwn) {
  layTwoJoined();
  showFrame();
  command(5002);
  command(2002);
  doubleClickOnTheSecond();
  expectAThirdAndTheJointsWhole();
}

TEST_F(AfterAnotherPlan, OpenAndUndoADoubleClickLaysAPieceWithAnIdOfItsOwn) {
  // The file has a piece 1 alone, so that the counter stands at 2.
  WriteFileText(inStore("other.vtl"), LayoutText("other"));
  layTwoJoined();
  showFrame();
  plan().undoHistory.emplace_back().pieces = plan().pieces;
  frame().LoadIntoFrame(inStore("other.vtl"));
  ASSERT_EQ(plan().nextId, 2);
  command(2002);
  frame().canvas().resetView();
  doubleClickOnTheSecond();
  expectAThirdAndTheJointsWhole();
}

TEST_F(AfterAnotherPlan, OpenATapeThatStaysDoesNotShareItsIdWithAPieceOfTheFile) {
  WriteFileText(inStore("other.vtl"), LayoutText("other"));
  plan().measurements = {{.id = 1, .startX = 5.0, .endX = 400.0}};
  frame().LoadIntoFrame(inStore("other.vtl"));
  ASSERT_EQ(plan().pieces.size(), 1u);
  ASSERT_EQ(plan().measurements.size(), 1u);
  EXPECT_EQ(plan().pieces[0].id, 1);
  EXPECT_EQ(plan().measurements[0].id, 2);
  EXPECT_EQ(plan().measurements[0].endX, 400.0);
}

}  // namespace
}  // namespace vantrel
