#include "print/paper_corner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

// A letter page that lies across, at 300 dots an inch. A dot is a quarter of a unit in these tests.
constexpr DeviceSize kPage{3300, 2550};

TEST(PaperCorner, IsTheOriginWhereThePageBeginsAtThePapersCorner) {
  EXPECT_EQ(paperCorner(PageTransform{.xx = 0.25, .yy = 0.25}, kPage), DevicePoint{});
  // Turned by a quarter: down the page is leftwards from the upright paper's right edge.
  EXPECT_EQ(paperCorner({.xx = 0, .yx = 0.25, .xy = -0.25, .yy = 0, .x0 = 637.5}, kPage),
            DevicePoint{});
  EXPECT_EQ(paperCorner({.xx = 0, .yx = -0.25, .xy = 0.25, .yy = 0, .y0 = 825}, kPage),
            DevicePoint{});
}

TEST(PaperCorner, LiesLeftOfAnOriginThatStandsInside) {
  EXPECT_EQ(paperCorner({.xx = 0.25, .yy = 0.25, .x0 = 24}, kPage), (DevicePoint{-96, 0}));
  EXPECT_EQ(paperCorner({.xx = 0.25, .yy = 0.25, .y0 = 24}, kPage), (DevicePoint{0, -96}));
}

TEST(PaperCorner, IsFoundOnATurnedPageToo) {
  // To the right on the page is downwards on the upright paper: 24 units too far down.
  EXPECT_EQ(paperCorner({.xx = 0, .yx = 0.25, .xy = -0.25, .yy = 0, .x0 = 637.5, .y0 = 24}, kPage),
            (DevicePoint{-96, 0}));
  // Downwards on the page is to the left: 24 units too far to the left.
  EXPECT_EQ(paperCorner({.xx = 0, .yx = 0.25, .xy = -0.25, .yy = 0, .x0 = 613.5}, kPage),
            (DevicePoint{0, -96}));
}

TEST(PaperCorner, OfATransformationThatMarginsDontExplainIsTheOrigin) {
  EXPECT_EQ(paperCorner({.xx = 0.25, .yy = 0.25, .x0 = 300}, kPage), DevicePoint{});
  EXPECT_EQ(paperCorner({.xx = 0, .yy = 0}, kPage), DevicePoint{});
  EXPECT_EQ(paperCorner({.x0 = std::nan("")}, kPage), DevicePoint{});
  EXPECT_EQ(paperCorner({.x0 = std::numeric_limits<double>::infinity()}, kPage), DevicePoint{});
}

TEST(PaperCorner, OfADeviceThatIsNoPrinterIsTheOrigin) {
  RecordingDC dc;
  EXPECT_EQ(paperCorner(dc, kPage), DevicePoint{});
}

}  // namespace
}  // namespace vantrel
