#include <wx/timer.h>
#include <wx/toplevel.h>

#include <algorithm>

#include "canvas/canvas_panel.h"
#include "doc/undo.h"
#include "tests/frame/frame_fixture.h"
#include "view3d/track_gl_canvas.h"
#include "view3d/view3d_frame.h"

namespace vantrel {
namespace {

int OpenViews() {
  int count = 0;
  for (const wxWindow* window : wxTopLevelWindows)
    if (dynamic_cast<const View3DFrame*>(window)) ++count;
  return count;
}

class View3D : public FrameTest {
 protected:
  ~View3D() override {
    // A closed view is deleted when nothing else is to be done.
    EXPECT_TRUE(WaitUntil([] { return std::ranges::none_of(wxTopLevelWindows, IsLeaving); }));
  }

  static bool IsLeaving(wxWindow* window) { return wxTheApp->IsScheduledForDestruction(window); }
  static bool allViewsGo() {
    return WaitUntil([] { return OpenViews() == 0; });
  }

  View3DFrame& open() {
    if (!frame().view3D()) command(2000);
    return *frame().view3D();
  }
  TrackGLCanvas& canvas() { return *open().canvas(); }
  // As the next paint would show it.
  std::size_t piecesShown() {
    EXPECT_TRUE(WaitUntil([this] { return !canvas().isStale(); })) << "no paint came";
    return canvas().scene().trackInstances.size();
  }
};

TEST_F(View3D, TheCommandOpensTheWindowOnTheDocument) {
  EXPECT_EQ(frame().view3D(), nullptr);
  addPiece();
  command(2000);
  ASSERT_NE(frame().view3D(), nullptr);
  EXPECT_TRUE(frame().view3D()->IsShown());
  EXPECT_EQ(frame().view3D()->GetParent(), &frame());
  EXPECT_EQ(canvas().scene().trackInstances.size(), 1u);
}

TEST_F(View3D, TheCommandRebuildsAnOpenWindowAndOpensNoSecond) {
  View3DFrame& first = open();
  addPiece();
  command(2000);
  EXPECT_EQ(frame().view3D(), &first);
  EXPECT_EQ(OpenViews(), 1);
  EXPECT_EQ(piecesShown(), 1u);
}

TEST_F(View3D, ClosingItIsForgottenAndItOpensAgain) {
  open();
  EXPECT_TRUE(frame().view3D()->Close());
  EXPECT_EQ(frame().view3D(), nullptr);
  frame().markDirty();
  frame().refreshViews();
  EXPECT_TRUE(allViewsGo());
  addPiece();
  command(2000);
  ASSERT_NE(frame().view3D(), nullptr);
  EXPECT_EQ(OpenViews(), 1);
  EXPECT_EQ(piecesShown(), 1u);
}

TEST_F(View3D, OpensAndClosesManyTimes) {
  addPiece();
  for (int i = 0; i < 10; ++i) {
    command(2000);
    ASSERT_NE(frame().view3D(), nullptr);
    if (i % 2 == 0) WaitForPaint(canvas());
    frame().view3D()->Close();
  }
  EXPECT_TRUE(allViewsGo());
}

TEST_F(View3D, FollowsEveryChangeOfTheDocument) {
  open();
  PushUndo(plan());
  addPiece();
  frame().markDirty();
  EXPECT_EQ(piecesShown(), 1u);
  command(2002);
  EXPECT_EQ(piecesShown(), 0u) << "Undo";
  command(2003);
  EXPECT_EQ(piecesShown(), 1u) << "Redo";
  plan().pieces[0].sel = true;
  command(2004);
  EXPECT_EQ(piecesShown(), 0u) << "Delete";
  addPiece();
  frame().refreshViews();
  EXPECT_EQ(piecesShown(), 1u) << "refreshViews";
}

TEST_F(View3D, FollowsNewAndOpen) {
  addPiece();
  addPiece();
  open();
  EXPECT_EQ(piecesShown(), 2u);
  command(5002);
  EXPECT_EQ(piecesShown(), 0u) << "New";
  WriteFileText(inStore("One.vtl"), LayoutText("One"));
  frame().LoadIntoFrame(inStore("One.vtl"));
  EXPECT_EQ(piecesShown(), 1u) << "Open";
}

TEST_F(View3D, FollowsAPlacementOnTheCanvas) {
  open();
  EXPECT_EQ(piecesShown(), 0u);
  frame().placeHelix("helix", {});
  ASSERT_FALSE(plan().helices.empty());
  EXPECT_GT(piecesShown(), 0u);
}

TEST_F(View3D, ABurstOfChangesIsOneRebuild) {
  open();
  WaitForPaint(canvas());
  for (int i = 0; i < 5; ++i) {
    addPiece();
    frame().markDirty();
    frame().refreshViews();
    EXPECT_TRUE(canvas().scene().trackInstances.empty());
  }
  EXPECT_EQ(piecesShown(), 5u);
}

TEST_F(View3D, WaitsForTheEndOfADragOnTheCanvas) {
  open();
  showFrame();
  WaitForPaint(canvas());
  ASSERT_FALSE(canvas().isStale());
  int looks = 0;  // of its timer, whether the drag is over
  canvas().Bind(wxEVT_TIMER, [&looks](wxTimerEvent& event) {
    ++looks;
    event.Skip();
  });
  frame().canvas().CaptureMouse();
  addPiece();
  frame().markDirty();
  EXPECT_TRUE(WaitUntil([&looks] { return looks == 3; }));
  WaitForPaint(frame().canvas());
  EXPECT_TRUE(canvas().isStale());
  frame().canvas().ReleaseMouse();
  EXPECT_EQ(piecesShown(), 1u);
}

TEST_F(View3D, WhatOnlyTheCanvasShowsKeepsTheZoomOfTheView) {
  addPiece();
  open();
  WaitForPaint(canvas());
  for (const int id : {2005, 2006, 2007, 2008, 2009, 2010, 2011, 2017}) command(id, true);
  EXPECT_FALSE(canvas().isStale());
}

TEST_F(View3D, GoesWithTheMainWindow) {
  addPiece();
  open();
  WaitForPaint(canvas());
  delete frame_;
  frame_ = nullptr;
  EXPECT_TRUE(allViewsGo());
}

TEST_F(View3D, GoesWithTheMainWindowThatTheUserCloses) {
  addPiece();
  open();
  frame_->Show();
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_NO);
  frame_->Close();
  frame_ = nullptr;
  EXPECT_TRUE(allViewsGo());
}

TEST_F(View3D, AMainWindowThatGoesRightAfterItsViewLeavesNothing) {
  open();
  frame().markDirty();
  frame().view3D()->Close();
  delete frame_;
  frame_ = nullptr;
  EXPECT_TRUE(allViewsGo());
}

}  // namespace
}  // namespace vantrel
