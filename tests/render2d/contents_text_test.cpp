#include "render2d/contents_text.h"

#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include "app/services/wx_text.h"
#include "doc/format_length.h"
#include "doc/layout.h"
#include "doc/view_transform.h"

namespace vantrel {
namespace {

TEST(ContentsText, AFontHasEachSizeThatIsAskedForOnAScreenAndOnAPage) {
  ViewTransform page;
  page.fontScale = 3.5;
  EXPECT_EQ(PlanFont(page, 20, 700).GetPointSize(), 70);
  for (int points = 1; points <= 500; ++points)
    EXPECT_EQ(PlanFont(ViewTransform{}, points, 400).GetPointSize(), points);
}

TEST(ContentsText, BoundsAreNoSmallerThanTheTextInTheFontsOfThisMachine) {
  wxBitmap bitmap(10, 10, 24);
  wxMemoryDC dc(bitmap);
  for (const int points : {6, 11, 45})
    for (const int weight : {400, 700}) {
      const wxFont font = PlanFont(ViewTransform{}, points, weight);
      const TextBounds bounds(dc, font);
      for (const char* text : {"W", "iiii", "WWWWWWWW", "%%%%%%%%", "@@@@@@@@", "mmmmmmmm", "24188",
                               "A rather long label", "\t\t\t\t", "Böblingen — Gleis 14",
                               "北京西站", "﷽﷽", "\xE9\xE9", "a\nbb"}) {
        wxCoord width = 0;
        wxCoord height = 0;
        dc.GetTextExtent(ToWx(text), &width, &height, nullptr, nullptr, &font);
        EXPECT_GE(bounds.of(text).GetWidth(), width) << text << ' ' << points;
        EXPECT_GE(bounds.of(text).GetHeight(), height) << text << ' ' << points;
      }
      for (const double length : {1.0, 9.9, 10.0, 99.99, 25.4 * 999.999, 12345.6, 1e9, 1e300})
        for (const std::int32_t units : {kMillimetres, kCentimetres, kInches}) {
          wxCoord width = 0;
          wxCoord height = 0;
          dc.GetTextExtent(ToWx(FormatLength(length, units)), &width, &height, nullptr, nullptr,
                           &font);
          EXPECT_GE(bounds.ofLength(length).GetWidth(), width) << length << ' ' << units;
        }
    }
}

TEST(ContentsText, FontSizesAreTruncatedAndKeptWithinTheirLimits) {
  EXPECT_EQ(PlanFontSize(8.99, 6), 8);
  EXPECT_EQ(PlanFontSize(5.5, 8), 8);
  EXPECT_EQ(PlanFontSize(20.0, 8, 12), 12);
  EXPECT_EQ(PlanFontSize(1e308, 8), 4000);
}

}  // namespace
}  // namespace vantrel
