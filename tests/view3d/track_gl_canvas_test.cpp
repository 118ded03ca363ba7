#include "view3d/track_gl_canvas.h"

#include <wx/glcanvas.h>

#include "tests/view3d/view_fixture.h"

namespace vantrel {
namespace {

class GlCanvas : public ViewTest {
 protected:
  void press(wxPoint at, bool left, bool right) {
    mouse(left ? wxEVT_LEFT_DOWN : wxEVT_RIGHT_DOWN, at, left, right);
  }
};

TEST_F(GlCanvas, IsNamedAndRepaintsFullyWhenItsSizeChanges) {
  EXPECT_EQ(canvas().GetName(), "GLCanvas");
  EXPECT_TRUE(canvas().HasFlag(wxFULL_REPAINT_ON_RESIZE));
  EXPECT_TRUE(canvas().hasContext());
}

TEST_F(GlCanvas, BuildsTheSceneInItsConstructor) {
  addPiece("24188", 0.0, 0.0);
  addPiece("24188", 188.3, 0.0);
  auto frame = std::make_unique<wxFrame>(nullptr, wxID_ANY, "hidden");
  const TrackGLCanvas hidden(frame.get(), plan_);
  EXPECT_EQ(hidden.scene().trackInstances.size(), 2u);
  EXPECT_EQ(hidden.scene().trackModels.size(), 1u);
  EXPECT_FALSE(hidden.isStale());
}

TEST_F(GlCanvas, FramesWhatItBuilt) {
  addPiece("24188", 0.0, 100.0);
  addPiece("24188", 811.7, 300.0);
  // From (0, 100) to (811.7 + 188.3, 300): the middle is (500, 200), y negated; 1000 times 1.8.
  EXPECT_NEAR(camera().centreX, 500.0F, 1e-3F);
  EXPECT_NEAR(camera().centreY, -200.0F, 1e-3F);
  EXPECT_NEAR(camera().distance, 1800.0F, 1e-2F);
  EXPECT_EQ(camera().pitch, 35.0F);
  EXPECT_EQ(camera().yaw, 30.0F);
}

TEST_F(GlCanvas, ShowsGridAndAxesOnlyForAnEmptyLayout) {
  view();
  ASSERT_TRUE(PumpUntil([this] { return ColoursOf(canvas()).contains(kGreenAxis); }));
  const std::map<Colour, int> colours = ColoursOf(canvas());
  EXPECT_TRUE(colours.contains(kGrid));
  EXPECT_TRUE(colours.contains(kRedAxis));
  for (const auto& [colour, count] : colours) {
    const bool expected =
        colour == kBackground || colour == kGrid || colour == kRedAxis || colour == kGreenAxis;
    EXPECT_TRUE(expected) << std::get<0>(colour) << " " << std::get<1>(colour) << " "
                          << std::get<2>(colour) << " on " << count << " pixels";
  }
}

TEST_F(GlCanvas, ShowsTrackThatIsThere) {
  view();
  EXPECT_FALSE(ShowsTrack(canvas()));
  addPiece("24188", 0.0, 0.0);
  view().Rebuild(plan_);
  EXPECT_TRUE(PumpUntil([this] { return ShowsTrack(canvas()); }));
}

TEST_F(GlCanvas, LeftDragTurns) {
  press({100, 100}, true, false);
  mouse(wxEVT_MOTION, {110, 96}, true, false);
  EXPECT_EQ(camera().yaw, 35.0F);
  EXPECT_EQ(camera().pitch, 33.0F);
  mouse(wxEVT_MOTION, {112, 96}, true, false);  // each motion counts from the one before
  EXPECT_EQ(camera().yaw, 36.0F);
  EXPECT_EQ(camera().pitch, 33.0F);
  EXPECT_EQ(camera().panX, 0.0F);
  EXPECT_EQ(camera().panY, 0.0F);
}

TEST_F(GlCanvas, PitchStopsAt89AndMinus89) {
  press({100, 100}, true, false);
  mouse(wxEVT_MOTION, {100, 400}, true, false);
  EXPECT_EQ(camera().pitch, 89.0F);
  mouse(wxEVT_MOTION, {100, -400}, true, false);
  EXPECT_EQ(camera().pitch, -89.0F);
}

TEST_F(GlCanvas, RightDragPans) {
  press({100, 100}, false, true);
  mouse(wxEVT_MOTION, {109, 100}, false, true);
  // 9 pixels at the first distance of 800: 8 mm, at a yaw of 30 degrees.
  EXPECT_NEAR(camera().panX, 6.928203F, 1e-4F);
  EXPECT_NEAR(camera().panY, -4.0F, 1e-4F);
  EXPECT_EQ(camera().yaw, 30.0F);
  EXPECT_EQ(camera().pitch, 35.0F);
}

TEST_F(GlCanvas, BothButtonsTurnAndPanAtOnce) {
  press({100, 100}, false, true);
  mouse(wxEVT_LEFT_DOWN, {100, 100}, true, true);
  mouse(wxEVT_MOTION, {100, 118}, true, true);
  EXPECT_EQ(camera().pitch, 44.0F);
  EXPECT_NEAR(camera().panX, 8.0F, 1e-4F);  // 18 pixels are 16 mm, half of them to the side
  EXPECT_NEAR(camera().panY, 13.856406F, 1e-4F);
}

TEST_F(GlCanvas, AReleaseOfEitherButtonEndsBothDrags) {
  press({100, 100}, false, true);
  mouse(wxEVT_LEFT_DOWN, {100, 100}, true, true);
  mouse(wxEVT_LEFT_UP, {100, 100}, false, true);
  EXPECT_FALSE(canvas().HasCapture());
  mouse(wxEVT_MOTION, {150, 150}, false, true);
  EXPECT_EQ(camera().panX, 0.0F);
  EXPECT_EQ(camera().yaw, 30.0F);
}

TEST_F(GlCanvas, HoldsTheMouseWhileAButtonIsDown) {
  press({100, 100}, true, false);
  EXPECT_TRUE(canvas().HasCapture());
  mouse(wxEVT_RIGHT_DOWN, {100, 100}, true, true);
  EXPECT_TRUE(canvas().HasCapture());
  mouse(wxEVT_RIGHT_UP, {100, 100}, true, false);
  EXPECT_FALSE(canvas().HasCapture());
  mouse(wxEVT_LEFT_UP, {100, 100}, false, false);
  EXPECT_FALSE(canvas().HasCapture());
}

TEST_F(GlCanvas, ForgetsADragWhoseReleaseWentElsewhere) {
  press({100, 100}, true, false);
  mouse(wxEVT_MOTION, {150, 150}, false, false);
  EXPECT_EQ(camera().yaw, 30.0F);
  EXPECT_FALSE(canvas().HasCapture());
  wxMouseCaptureLostEvent lost(canvas().GetId());
  press({100, 100}, true, false);
  canvas().HandleWindowEvent(lost);
  mouse(wxEVT_MOTION, {150, 150}, true, false);
  EXPECT_EQ(camera().yaw, 30.0F);
}

TEST_F(GlCanvas, MovingWithoutAButtonDoesNothing) {
  mouse(wxEVT_MOTION, {10, 10}, false, false);
  mouse(wxEVT_MOTION, {210, 210}, false, false);
  EXPECT_EQ(camera(), Camera{});
}

TEST_F(GlCanvas, ADoubleClicksSecondPressDragsToo) {
  press({100, 100}, true, false);
  mouse(wxEVT_LEFT_UP, {100, 100}, false, false);
  mouse(wxEVT_LEFT_DCLICK, {100, 100}, true, false);
  mouse(wxEVT_MOTION, {104, 100}, true, false);
  EXPECT_EQ(camera().yaw, 32.0F);
}

TEST_F(GlCanvas, WheelZoomsAndStopsAt50And15000) {
  wheel(120);
  EXPECT_FLOAT_EQ(camera().distance, 704.0F);
  wheel(0);  // away, as any rotation that isn't positive
  EXPECT_NEAR(camera().distance, 800.0F, 1e-3F);
  for (int i = 0; i < 40; ++i) wheel(120);
  EXPECT_EQ(camera().distance, 50.0F);
  for (int i = 0; i < 60; ++i) wheel(-120);
  EXPECT_EQ(camera().distance, 15000.0F);
}

TEST_F(GlCanvas, ASidewaysWheelIsNotTaken) {
  wheel(120, wxMOUSE_WHEEL_HORIZONTAL);
  EXPECT_EQ(camera().distance, 800.0F);
}

TEST_F(GlCanvas, RLeavesTheZoomAsItIs) {
  press({100, 100}, true, false);
  mouse(wxEVT_MOTION, {150, 150}, true, false);
  mouse(wxEVT_LEFT_UP, {150, 150}, false, false);
  press({100, 100}, false, true);
  mouse(wxEVT_MOTION, {150, 150}, false, true);
  mouse(wxEVT_RIGHT_UP, {150, 150}, false, false);
  wheel(120);
  ASSERT_NE(camera().yaw, 30.0F);
  ASSERT_NE(camera().panX, 0.0F);
  EXPECT_TRUE(key('R'));
  EXPECT_EQ(camera().pitch, 35.0F);
  EXPECT_EQ(camera().yaw, 30.0F);
  EXPECT_EQ(camera().panX, 0.0F);
  EXPECT_EQ(camera().panY, 0.0F);
  EXPECT_FLOAT_EQ(camera().distance, 704.0F);
}

TEST_F(GlCanvas, TakesRWithShiftAndInSmallAndLeavesOtherKeys) {
  EXPECT_TRUE(key('r'));
  EXPECT_TRUE(key('R', wxMOD_SHIFT));
  EXPECT_FALSE(key('R', wxMOD_CONTROL));
  EXPECT_FALSE(key('T'));
  EXPECT_FALSE(key(WXK_ESCAPE));
}

TEST_F(GlCanvas, TakesTheFocusWithAPress) {
  for (const bool left : {true, false}) {
    auto* other = new wxWindow(&view(), wxID_ANY, {0, 0}, {10, 10});
    other->SetFocus();
    ASSERT_EQ(wxWindow::FindFocus(), other);
    press({100, 100}, left, !left);
    EXPECT_EQ(wxWindow::FindFocus(), &canvas()) << left;
    mouse(left ? wxEVT_LEFT_UP : wxEVT_RIGHT_UP, {100, 100}, false, false);
  }
}

TEST_F(GlCanvas, RebuildsOnceBeforeTheNextPaintHoweverManyChangesCame) {
  view();
  for (int i = 0; i < 3; ++i) {
    addPiece("24188", 200.0 * i, 0.0);
    canvas().Rebuild(plan_);
    EXPECT_TRUE(canvas().isStale());
    EXPECT_TRUE(canvas().scene().trackInstances.empty()) << "only a paint looks at the plan";
  }
  ASSERT_TRUE(paintsWhatChanged());
  EXPECT_EQ(canvas().scene().trackInstances.size(), 3u);
}

TEST_F(GlCanvas, ARebuildFramesAnewAndKeepsDirectionAndPan) {
  press({100, 100}, true, false);
  mouse(wxEVT_MOTION, {120, 100}, true, false);
  mouse(wxEVT_LEFT_UP, {120, 100}, false, false);
  press({100, 100}, false, true);
  mouse(wxEVT_MOTION, {100, 109}, false, true);
  mouse(wxEVT_RIGHT_UP, {100, 109}, false, false);
  wheel(120);
  const Camera before = camera();
  addPiece("24188", 0.0, 0.0);
  canvas().Rebuild(plan_);
  ASSERT_TRUE(paintsWhatChanged());
  EXPECT_EQ(camera().yaw, before.yaw);
  EXPECT_EQ(camera().pitch, before.pitch);
  EXPECT_EQ(camera().panX, before.panX);
  EXPECT_EQ(camera().panY, before.panY);
  EXPECT_EQ(camera().distance, 400.0F);  // 188.3 times 1.8 is less than the least distance
  EXPECT_NEAR(camera().centreX, 94.15F, 1e-3F);
}

TEST_F(GlCanvas, PaintsOnWithoutAClientArea) {
  view();
  canvas().SetSize(0, 0);
  WaitForPaint(view());
  canvas().Rebuild(plan_);
  WaitForPaint(view());
  canvas().SetSize(300, 200);
  EXPECT_TRUE(paintsWhatChanged());
}

}  // namespace
}  // namespace vantrel
