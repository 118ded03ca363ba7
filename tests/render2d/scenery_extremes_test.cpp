// Scenery whose numbers a damaged file may bring: every drawing ends, and every point is defined.
#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <cstdlib>
#include <limits>
#include <vector>

#include "catalog/scenery_catalog.h"
#include "render2d/scenery_drawing.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kStrange[] = {kNan, kInfinity, -kInfinity, 1e308, -1e308, 1e9, 1e-308, 0.0, -3.0};

// Puts each strange number in each place in turn.
template <typename Visit>
void ForEachStrange(Visit visit) {
  for (const double strange : kStrange) {
    const ViewTransform view{1.0, 20.0, 20.0};
    visit(Pose{strange, 50, 30}, view, 1.0, 1.0);
    visit(Pose{50, strange, 30}, view, 1.0, 1.0);
    visit(Pose{50, 50, strange}, view, 1.0, 1.0);
    visit(Pose{50, 50, 30}, view, strange, 1.0);
    visit(Pose{50, 50, 30}, view, 1.0, strange);
    visit(Pose{50, 50, 30}, ViewTransform{strange, 20.0, 20.0}, 1.0, 1.0);
    visit(Pose{50, 50, 30}, ViewTransform{1.0, strange, 20.0}, 1.0, 1.0);
    visit(Pose{strange, strange, strange}, ViewTransform{strange, strange, strange}, strange,
          strange);
  }
}

TEST(SceneryExtremes, EveryPointIsWithinTheDeviceLimit) {
  for (const char* id : {"signal_color_clear", "74861", "tree_conifer"}) {
    const SceneryDef& def = *findScenery(id);
    ForEachStrange([&](const Pose& pose, const ViewTransform& view, double sx, double sy) {
      RecordingDC dc;
      DrawSceneryItem(RenderContext{}, dc, def, pose, view, true, sx, sy);
      ASSERT_EQ(dc.calls().size(), def.primitives.size() + 1);
      for (const DrawCall& call : dc.calls()) {
        if (call.op == DrawOp::text) continue;  // shifted by half its own size
        EXPECT_LE(call.points.size(), 64u);
        for (const wxPoint& point : call.points) {
          EXPECT_LE(std::abs(point.x), kDeviceLimit);
          EXPECT_LE(std::abs(point.y), kDeviceLimit);
        }
      }
    });
  }
}

TEST(SceneryExtremes, AnEllipseWithoutAMeasureHasTheFewestOrTheMostPoints) {
  const auto points = [](double scale) {
    RecordingDC dc;
    DrawSceneryItem(RenderContext{}, dc, *findScenery("signal_semaphore_stop"), {},
                    {scale, 0.0, 0.0}, false, 1.0, 1.0);
    return dc.calls().front().points.size();
  };
  EXPECT_EQ(points(kNan), 12u);
  EXPECT_EQ(points(-kInfinity), 12u);
  EXPECT_EQ(points(0.0), 12u);
  EXPECT_EQ(points(kInfinity), 64u);
  EXPECT_EQ(points(1e308), 64u);
}

TEST(SceneryExtremes, TextStopsGrowingBeforeTheTextEngineFails) {
  const auto size = [](double scale) {
    RecordingDC dc;
    DrawSceneryItem(RenderContext{}, dc, *findScenery("signal_semaphore_stop"), {},
                    {scale, 0.0, 0.0}, false, 1.0, 1.0);
    return dc.texts("SS").front().font.pointSize;
  };
  EXPECT_EQ(size(kNan), 8);
  EXPECT_EQ(size(47.0), 470);  // a page of 1200 dots per inch in full size
  EXPECT_EQ(size(1e308), 4000);
  EXPECT_EQ(size(kInfinity), 4000);
}

TEST(SceneryExtremes, AFrameBeyondAllReasonIsNotDotted) {
  // The toolkit walks every dot, and a plan may hold hundreds of such items.
  const auto style = [](double scalex) {
    RecordingDC dc;
    DrawSceneryItem(RenderContext{}, dc, *findScenery("platform"), {}, {1.0, 0.0, 0.0}, true,
                    scalex, 1.0);
    return dc.calls().back().pen.style;
  };
  EXPECT_EQ(style(100.0), wxPENSTYLE_DOT);  // 23,000 units
  EXPECT_EQ(style(1e6), wxPENSTYLE_SOLID);
  EXPECT_EQ(style(1e308), wxPENSTYLE_SOLID);
}

TEST(SceneryExtremes, ARealDeviceSurvivesThem) {
  wxBitmap bitmap(200, 200, 24);
  wxMemoryDC dc(bitmap);
  for (const char* id : {"signal_color_clear", "platform_island", "car"}) {
    const SceneryDef& def = *findScenery(id);
    ForEachStrange([&](const Pose& pose, const ViewTransform& view, double sx, double sy) {
      DrawSceneryItem(RenderContext{}, dc, def, pose, view, true, sx, sy);
      DrawSceneryGhost(RenderContext{}, dc, def, pose, view);
    });
  }
  EXPECT_TRUE(dc.IsOk());
}

}  // namespace
}  // namespace vantrel
