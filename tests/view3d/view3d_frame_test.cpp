#include "view3d/view3d_frame.h"

#include <wx/sizer.h>
#include <wx/statusbr.h>

#include <array>

#include "tests/view3d/view_fixture.h"
#include "view3d/gl_headers.h"

namespace vantrel {
namespace {

using Frame3D = ViewTest;

TEST_F(Frame3D, HasItsTitleSizeAndHelp) {
  auto* frame = new View3DFrame(nullptr, plan_);
  view_ = frame;
  EXPECT_EQ(frame->GetTitle(), "3D View - Vantrel");
  EXPECT_EQ(frame->GetSize(), wxSize(1000, 700));
  EXPECT_EQ(frame->GetWindowStyle() & wxDEFAULT_FRAME_STYLE, wxDEFAULT_FRAME_STYLE);
  ASSERT_NE(frame->GetStatusBar(), nullptr);
  EXPECT_EQ(frame->GetStatusBar()->GetFieldsCount(), 1);
  EXPECT_EQ(frame->GetStatusBar()->GetStatusText(),
            "Left drag: rotate  |  Right drag: pan  |  Scroll: zoom  |  R: reset view");
  EXPECT_TRUE(frame->IsShown());
}

TEST_F(Frame3D, TheCanvasFillsIt) {
  EXPECT_EQ(canvas().GetSize(), view().GetClientSize());
  EXPECT_TRUE(canvas().HasFlag(wxBORDER_NONE));
  view().SetSize(640, 480);
  EXPECT_TRUE(PumpUntil([this] { return canvas().GetSize() == view().GetClientSize(); }));
}

// Of the context that the canvas has made current, which it does before each paint.
int SamplesOf(TrackGLCanvas& canvas) {
  canvas.Refresh();
  canvas.Update();
  int samples = -1;
  glGetIntegerv(GL_SAMPLES, &samples);
  return samples;
}

TEST_F(Frame3D, SmoothsEdgesWithFourSamplesAPixel) {
  ASSERT_TRUE(TrackGLCanvas::IsSupported(4)) << "the driver here has multisampling";
  EXPECT_EQ(SamplesOf(canvas()), 4);
}

TEST_F(Frame3D, DoesWithoutSamplesThatTheDriverDoesntHave) {
  auto* frame = new wxFrame(nullptr, wxID_ANY, "plain");
  view_ = nullptr;
  const std::array<int, 2> wished{1024, 0};
  ASSERT_FALSE(TrackGLCanvas::IsSupported(1024));
  TrackGLCanvas* plain = TrackGLCanvas::Make(frame, plan_, wished);
  ASSERT_NE(plain, nullptr);
  frame->Show();
  EXPECT_TRUE(PumpUntil([plain] { return ColoursOf(*plain).contains(kBackground); }));
  EXPECT_EQ(SamplesOf(*plain), 0);
  const std::array<int, 1> tooMany{1024};
  EXPECT_EQ(TrackGLCanvas::Make(frame, plan_, tooMany), nullptr);
  delete frame;
}

TEST_F(Frame3D, PassesChangesOnToTheCanvas) {
  view();
  addPiece("24188", 0.0, 0.0);
  view().Rebuild(plan_);
  EXPECT_TRUE(canvas().isStale());
  ASSERT_TRUE(paintsWhatChanged());
  EXPECT_EQ(canvas().scene().trackInstances.size(), 1u);
}

TEST_F(Frame3D, ClosingDestroysIt) {
  bool gone = false;
  view().Bind(wxEVT_DESTROY, [&gone](wxWindowDestroyEvent& event) {
    gone = true;
    event.Skip();
  });
  view_->Close();
  view_ = nullptr;
  EXPECT_TRUE(PumpUntil([&gone] { return gone; }));
}

TEST_F(Frame3D, ClosesWithAChangeThatWasNeverPainted) {
  addPiece("24188", 0.0, 0.0);
  bool gone = false;
  view().Bind(wxEVT_DESTROY, [&gone](wxWindowDestroyEvent& event) {
    gone = true;
    event.Skip();
  });
  view().Rebuild(plan_);
  ASSERT_TRUE(canvas().isStale());
  view_->Close();
  view_ = nullptr;
  EXPECT_TRUE(PumpUntil([&gone] { return gone; }));
}

TEST_F(Frame3D, OpensAndClosesAgainAndAgain) {
  addPiece("24188", 0.0, 0.0);
  for (int i = 0; i < 12; ++i) {
    view();
    EXPECT_TRUE(ColoursOf(canvas()).contains(kBackground)) << i;
    view_->Close();
    view_ = nullptr;
    WaitForClosedWindows();
  }
}

TEST_F(Frame3D, TwoCanvasesDontDisturbEachOther) {
  addPiece("24188", 0.0, 0.0);
  view();
  Layout empty;
  auto* second = new View3DFrame(nullptr, empty);
  PumpUntil([second] { return ColoursOf(*second->canvas()).contains(kBackground); });
  EXPECT_TRUE(PumpUntil([second] { return ColoursOf(*second->canvas()).contains(kGreenAxis); }));
  second->Close();
  WaitForClosedWindows();
  view().Rebuild(plan_);
  ASSERT_TRUE(paintsWhatChanged());
  EXPECT_TRUE(PumpUntil([this] { return ShowsTrack(canvas()); }));
}

TEST_F(Frame3D, DestroyedInTheMiddleOfADragItLetsTheMouseGo) {
  mouse(wxEVT_LEFT_DOWN, {100, 100}, true, false);
  ASSERT_TRUE(canvas().HasCapture());
  delete view_;
  view_ = nullptr;
  EXPECT_EQ(wxWindow::GetCapture(), nullptr);
}

}  // namespace
}  // namespace vantrel
