#include "canvas/gestures/status_line.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace vantrel
