// The plan that the manual's first steps lead to: two ovals and a siding that climbs, laid with
// nothing but what those steps tell the user to do.
#include <gtest/gtest.h>

#include <algorithm>

#include "canvas/gestures/palette_drag.h"
#include "canvas/operations/grades.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

class FirstPlan : public CanvasTest {
 protected:
  // Pulls a part onto the plan and clicks where it should lie.
  void drag(const char* part, int x, int y) {
    beginPieceDrag(context, part);
    move(x, y);
    releaseLeft(x, y);
    clickLeft(x, y);
  }
  void doubleClick(const char* part, int times) {
    for (int i = 0; i < times; ++i) placeByDoubleClick(context, part);
  }
  // The last curve, pulled a little off and let go.
  void closeRing(int x, int y) {
    pressLeft(x, y);
    move(x, y - 8);
    releaseLeft(x, y - 8);
  }
  bool joined(const Piece& piece, std::size_t end) const {
    return piece.joints.size() > end && piece.joints[end].target != kNone;
  }
  std::ptrdiff_t openEnds() const {
    std::ptrdiff_t count = 0;
    for (const Piece& piece : layout.pieces)
      count += std::ranges::count(piece.joints, kNone, &Joint::target);
    return count;
  }
};

TEST_F(FirstPlan, ComesOutAsTheStepsTell) {
  // The inner oval from 600 mm, 300 mm on, which is pixel 60 + 0.4 * 600 = 300, 60 + 0.4 * 300 =
  // 180.
  drag("24188", 300, 180);
  doubleClick("24188", 1);
  doubleClick("24130", 6);
  doubleClick("24188", 2);
  doubleClick("24130", 6);
  ASSERT_EQ(layout.pieces.size(), 16u);
  EXPECT_EQ(openEnds(), 2) << "the ring's last joint";
  // The last curve's middle is 15 degrees before (600, 300) on the circle about (600, 660):
  // (600 - 360 * sin 15, 660 - 360 * cos 15) = (506.8, 312.3), on the screen (262.7, 184.9).
  closeRing(263, 185);
  EXPECT_EQ(openEnds(), 0);

  // The outer oval: 77.5 mm above the first one, 300 - 77.5 = 222.5, on the screen 149.
  drag("24611", 300, 149);
  doubleClick("24188", 1);
  doubleClick("24230", 6);
  doubleClick("24188", 2);
  doubleClick("24230", 6);
  ASSERT_EQ(layout.pieces.size(), 32u);
  // (600 - 437.5 * sin 15, 222.5 + 437.5 - 437.5 * cos 15) = (486.8, 237.4): (254.7, 155).
  closeRing(255, 155);
  EXPECT_EQ(openEnds(), 1) << "the turnout's branch";

  // The siding, with the turnout selected, and a climb of 2 degrees from the curve on.
  clickLeft(330, 149);
  doubleClick("24224", 1);
  ASSERT_EQ(layout.pieces.size(), 33u);
  const std::int32_t curve = layout.pieces.back().id;
  EXPECT_TRUE(startGrade(layout, curve, 2.0));
  doubleClick("24188", 3);
  doubleClick("24977", 1);
  ASSERT_EQ(layout.pieces.size(), 37u);
  EXPECT_EQ(openEnds(), 0);
  const Piece& stop = layout.pieces.back();
  EXPECT_NEAR(stop.heading, 0.0, 0.001) << "parallel to the oval";
  // A catalogue turnout and its counter curve: 77.5 mm beside the oval.
  EXPECT_NEAR(stop.y, 222.5 - 77.5, 1.0);
  // The curve rises by its chord along local x, 437.5 * sin 24.3 = 180.04, the straights by 188.3
  // each: sin 2 = 0.034899 times 744.94.
  EXPECT_NEAR(stop.z, 26.0, 0.05);
}

}  // namespace
}  // namespace vantrel
