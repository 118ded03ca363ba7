// The picture kept while a gesture draws over the plan.
#include "canvas/kept_picture.h"

#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <cstring>
#include <functional>
#include <limits>

#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/palette_drag.h"
#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class KeptPictures : public EditingTest {
 protected:
  KeptPicture kept;

  void SetUp() override {
    EditingTest::SetUp();
    host.client = {640, 480};
    layChain(3, 50.0, 120.0);
    lay("24130", {300.0, 250.0, 40.0});
    layScenery("station_small", {200.0, 320.0, 15.0});
    layShape({380.0, 60.0}, 90.0);
    beginPieceDrag(context, "24188");
    move(320, 200);
  }

  wxImage painted(const std::function<void(wxDC&)>& paint) {
    wxBitmap bitmap(host.client.width, host.client.height, 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxBLACK_BRUSH);
    dc.Clear();
    paint(dc);
    dc.SelectObject(wxNullBitmap);
    return bitmap.ConvertToImage();
  }
  wxImage plain() {
    return painted([this](wxDC& dc) { paintCanvas(context, dc); });
  }
  wxImage throughTheKept() {
    return painted([this](wxDC& dc) {
      kept.draw(context, dc, 1.0);
      paintMoving(context, dc);
    });
  }
  static bool same(const wxImage& a, const wxImage& b) {
    return a.GetSize() == b.GetSize() &&
           std::memcmp(a.GetData(), b.GetData(),
                       static_cast<std::size_t>(a.GetWidth() * a.GetHeight() * 3)) == 0;
  }
};

TEST_F(KeptPictures, WhatTheEyeSeesIsTheSameToThePixel) {
  const wxImage expected = plain();
  EXPECT_TRUE(same(throughTheKept(), expected));
  EXPECT_TRUE(same(throughTheKept(), expected));
  EXPECT_EQ(kept.timesMade(), 1);
  move(400, 300);
  EXPECT_FALSE(same(plain(), expected));
  EXPECT_TRUE(same(throughTheKept(), plain()));
  EXPECT_EQ(kept.timesMade(), 1);
}

TEST_F(KeptPictures, WhateverChangesThePlanOrTheViewMakesItAnew) {
  const std::function<void()> changes[] = {
      [this] { layout.pieces[0].sel = true; },
      [this] { layout.pieces[0].x += 3.0; },
      [this] { layout.scenery[0].scalex = 2.0; },
      [this] { layout.labels.emplace_back().text = "Note"; },
      [this] { layout.shapes[0].r = 1; },
      [this] { layout.measurements.emplace_back().endX = 300.0; },
      [this] { layout.gradeRuns.push_back({.deg = 2.0, .anchor = 1, .conn = 0}); },
      [this] { layout.levels = {Level{}}; },
      [this] { layout.levels[0].visible = false; },
      [this] {
        layout.baseboard = {{0.0, 0.0}, {500.0, 0.0}, {500.0, 400.0}};
      },
      [this] { layout.baseboardVisible = false; },
      [this] { layout.gridVisible = false; },
      [this] { layout.labelsVisible = false; },
      [this] { layout.units = kInches; },
      [this] { state.view.offsetX += 1.0; },
      [this] { state.view.scale = 2.0; },
      [this] {
        host.client = {641, 480};
      },
      [this] {
        layHelix({300.0, 300.0});
      },
      [this] { layTunnel({1}); },
      [this] { layout.pieces.pop_back(); },
  };
  throughTheKept();
  int made = 1;
  for (const auto& change : changes) {
    change();
    EXPECT_TRUE(same(throughTheKept(), plain())) << made;
    EXPECT_EQ(kept.timesMade(), ++made);
  }
}

TEST_F(KeptPictures, NumbersThatEqualNothingAreDrawnAnewEachTime) {
  layout.pieces[0].x = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(same(throughTheKept(), plain()));
  EXPECT_TRUE(same(throughTheKept(), plain()));
  EXPECT_EQ(kept.timesMade(), 2);
}

TEST_F(KeptPictures, ForgottenItIsMadeAnew) {
  throughTheKept();
  kept.forget();
  EXPECT_TRUE(same(throughTheKept(), plain()));
  EXPECT_EQ(kept.timesMade(), 2);
}

TEST_F(KeptPictures, ThePlanIsAtRestWhileGesturesOnlyDrawOverIt) {
  EXPECT_TRUE(isPlanAtRest(state));
  key(WXK_ESCAPE);
  EXPECT_FALSE(isPlanAtRest(state));
  pressLeft(600, 400);
  EXPECT_TRUE(isPlanAtRest(state));
  releaseLeft(600, 400);
  pressLeft(100, 120);
  move(120, 150);
  EXPECT_TRUE(state.selectionDrag.active);
  EXPECT_FALSE(isPlanAtRest(state));
}

TEST_F(KeptPictures, ATapePutAwayUnfinishedKeepsNoPictureOfAPlanThatIsDragged) {
  key(WXK_ESCAPE);
  layout.toolMode = kMeasureTool;
  clickLeft(600, 400);
  layout.toolMode = kNoTool;
  EXPECT_TRUE(isPlanAtRest(state));
  pressLeft(100, 120);
  move(120, 150);
  ASSERT_TRUE(state.selectionDrag.active);
  EXPECT_FALSE(isPlanAtRest(state));
}

}  // namespace
}  // namespace vantrel
