#include "canvas/gestures/status_line.h"

#include <gtest/gtest.h>
#include <wx/defs.h>

#include "canvas/gestures/helix_placement.h"
#include "canvas/gestures/palette_drag.h"
#include "canvas/gestures/scenery_drag.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

class StatusLine : public CanvasTest {
 protected:
  std::string positionAt(int x, int y) {
    move(x, y);
    return host.status(kStatusPosition);
  }
  void addRun(double deg) {
    GradeRun run;
    run.deg = deg;
    layout.gradeRuns.push_back(run);
  }
  std::string message() { return host.status(kStatusMessage); }
};

TEST_F(StatusLine, MotionShowsTheWorldPositionInTheLayoutsUnits) {
  // (160, 100) at scale 0.4 from (60, 60) is (250 mm, 100 mm).
  EXPECT_EQ(positionAt(160, 100), "250 mm,  100 mm");
  layout.units = kCentimetres;
  EXPECT_EQ(positionAt(160, 100), "25.0 cm,  10.0 cm");
  layout.units = kInches;
  EXPECT_EQ(positionAt(160, 100), "9.84 in,  3.94 in");
  layout.units = kMillimetres;
  EXPECT_EQ(positionAt(0, 60), "-150 mm,  0 mm");
}

TEST_F(StatusLine, OneGradeRunIsShownAndReadyComesBackAfterIt) {
  host.setStatus(kStatusMessage, "Ready");
  addRun(2.5);
  paint();
  EXPECT_EQ(message(), "[ELEV] 2.5 deg  (right-click piece to stop)");
  layout.gradeRuns.clear();
  paint();
  EXPECT_EQ(message(), "Ready");
}

TEST_F(StatusLine, SeveralGradeRunsAreShownInTheirOrder) {
  addRun(2.5);
  addRun(-3.25);
  addRun(6.0);
  paint();
  EXPECT_EQ(message(), "[ELEV] 2.5 deg -3.2 deg 6.0 deg  (right-click piece to stop)");
}

TEST_F(StatusLine, WithoutGradeRunsAnotherTextStays) {
  host.setStatus(kStatusMessage, "Saved");
  paint();
  EXPECT_EQ(message(), "Saved");
  host.setStatus(kStatusMessage, "  [ELEV] in the middle");
  paint();
  EXPECT_EQ(message(), "  [ELEV] in the middle");
}

class Prompts : public StatusLine {
 protected:
  void SetUp() override {
    host.setStatus(kStatusMessage, "Grade ended");
    layout.toolMode = kNoTool;
  }
  // What a paint leaves there.
  std::string shown() {
    paint();
    return message();
  }
};

TEST_F(Prompts, TellHowToGoOnWithWhatHangsAtThePointerAndThenTheOldTextIsBack) {
  EXPECT_EQ(shown(), "Grade ended");
  beginPieceDrag(context, "24188");
  EXPECT_EQ(shown(), "Click sets it down, the wheel or R turns it, Escape gives it up.");
  beginSceneryDrag(context, "platform");
  EXPECT_EQ(shown(), "Click sets it down, the wheel or R turns it, Escape gives it up.");
  beginHelixPlacement(context, "proses_2_5_r1r2");
  EXPECT_EQ(shown(), "Click where the middle of the helix should lie.");
  clickLeft(400, 300);
  EXPECT_EQ(shown(), "Grade ended");
  beginPieceDrag(context, "24188");
  paint();
  key(WXK_ESCAPE);
  EXPECT_EQ(shown(), "Grade ended");
}

TEST_F(Prompts, TellTheStepsOfTheTape) {
  layout.toolMode = kMeasureTool;
  EXPECT_EQ(shown(), "Click where the tape begins; Escape puts the tool away.");
  clickLeft(100, 100);
  EXPECT_EQ(shown(), "Click where the tape ends; Escape puts the tool away.");
  clickLeft(300, 100);
  EXPECT_EQ(shown(), "Grade ended");
}

TEST_F(Prompts, TellTheStepsOfThePolygonAndThatThreeCornersCanBeClosed) {
  layout.toolMode = kPolygonTool;
  EXPECT_EQ(shown(), "Click the polygon's corners; Escape puts the tool away.");
  clickLeft(100, 100);
  clickLeft(300, 100);
  EXPECT_EQ(shown(), "Click the next corner; Backspace takes one back, Escape all.");
  clickLeft(300, 250);
  EXPECT_EQ(shown(), "Next corner, or the first (or Enter) to close; Escape gives up.");
  key(WXK_RETURN);
  EXPECT_EQ(shown(), "Grade ended");
}

TEST_F(Prompts, OneToolAfterTheOtherKeepsTheTextFromBeforeBoth) {
  layout.toolMode = kMeasureTool;
  paint();
  layout.toolMode = kPolygonTool;
  EXPECT_TRUE(shown().starts_with("Click the polygon"));
  layout.toolMode = kNoTool;
  EXPECT_EQ(shown(), "Grade ended");
}

TEST_F(Prompts, ATextThatComesInBetweenStays) {
  layout.toolMode = kMeasureTool;
  paint();
  host.setStatus(kStatusMessage, "Saved");
  EXPECT_EQ(shown(), "Saved");
  layout.toolMode = kNoTool;
  EXPECT_EQ(shown(), "Saved");
}

TEST_F(Prompts, LeaveTheFieldToTheGradesInForce) {
  addRun(2.5);
  layout.toolMode = kMeasureTool;
  EXPECT_EQ(shown(), "[ELEV] 2.5 deg  (right-click piece to stop)");
  layout.gradeRuns.clear();
  EXPECT_TRUE(shown().starts_with("Click where the tape begins"));
  addRun(3.0);
  EXPECT_EQ(shown(), "[ELEV] 3.0 deg  (right-click piece to stop)");
  layout.toolMode = kNoTool;
  layout.gradeRuns.clear();
  EXPECT_EQ(shown(), "Ready");
}

TEST_F(Prompts, LeaveTheBaseboardsToolItsOwnText) {
  host.setStatus(kStatusMessage, "Click vertices to outline the baseboard.");
  layout.toolMode = kBaseboardTool;
  EXPECT_EQ(shown(), "Click vertices to outline the baseboard.");
  clickLeft(100, 100);
  EXPECT_EQ(shown(), "Click vertices to outline the baseboard.");
  key(WXK_ESCAPE);
  EXPECT_EQ(shown(), "");
}

}  // namespace
}  // namespace vantrel
