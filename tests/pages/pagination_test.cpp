#include "print/pages/pagination.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantrel {
namespace {

constexpr PrintBounds kTable{0.0, 0.0, 2400.0, 1200.0};
// At 300 dots per inch; behind them what is usable, 92 percent, truncated.
constexpr DeviceSize kLetterLandscape{3300, 2550};  // 3036 x 2346
constexpr DeviceSize kA4Portrait{2480, 3508};       // 2281 x 3227
constexpr DeviceSize kA3Landscape{4961, 3508};      // 4564 x 3227

PrintOptions AtScale(std::int32_t n) {
  PrintOptions options;
  options.mode = kActualScale;
  options.scaleN = n;
  return options;
}

PrintOptions AtPercent(std::int32_t percent) {
  PrintOptions options;
  options.mode = kCustomPercentage;
  options.percent = percent;
  return options;
}

void ExpectPages(const Pagination& pages, int across, int down) {
  EXPECT_EQ(pages.pagesAcross, across);
  EXPECT_EQ(pages.pagesDown, down);
}

TEST(PrintPages, ATableAtOneToTenNeedsTwoSheetsAcrossWhereTwoThousandDotsAreUsable) {
  // 0.92 * 2174 = 2000.08.
  const Pagination pages = paginate(kTable, AtScale(10), {2174, 2174}, 300);
  EXPECT_NEAR(pages.scale, 1.181, 0.0005);  // 300 / 25.4 / 10
  // 2400 * 1.1811 = 2834.6 dots: 1.42 sheets; 1200 mm are 1417.3: 0.71.
  ExpectPages(pages, 2, 1);
}

// 2400 by 1200 mm at 1:10 is 2834.6 by 1417.3 dots, at 1:5 5669.3 by 2834.6, at 1:1 28346.5 by
// 14173.2.
TEST(PrintPages, OfALetterSheetInLandscape) {
  ExpectPages(paginate(kTable, AtScale(10), kLetterLandscape, 300), 1, 1);  // 0.93, 0.60
  ExpectPages(paginate(kTable, AtScale(5), kLetterLandscape, 300), 2, 2);   // 1.87, 1.21
  ExpectPages(paginate(kTable, AtScale(1), kLetterLandscape, 300), 10, 7);  // 9.34, 6.04
}

TEST(PrintPages, OfAnA4SheetInPortrait) {
  ExpectPages(paginate(kTable, AtScale(10), kA4Portrait, 300), 2, 1);  // 1.24, 0.44
  ExpectPages(paginate(kTable, AtScale(5), kA4Portrait, 300), 3, 1);   // 2.49, 0.88
  ExpectPages(paginate(kTable, AtScale(1), kA4Portrait, 300), 13, 5);  // 12.43, 4.39
}

TEST(PrintPages, OfAnA3SheetInLandscape) {
  ExpectPages(paginate(kTable, AtScale(10), kA3Landscape, 300), 1, 1);  // 0.62, 0.44
  ExpectPages(paginate(kTable, AtScale(5), kA3Landscape, 300), 2, 1);   // 1.24, 0.88
  ExpectPages(paginate(kTable, AtScale(1), kA3Landscape, 300), 7, 5);   // 6.21, 4.39
}

TEST(PrintPages, FitToPageIsOnePageAtTheTighterScale) {
  // 3036 / 2400 = 1.265, 2346 / 1200 = 1.955.
  const Pagination wide = paginate(kTable, {}, kLetterLandscape, 300);
  EXPECT_NEAR(wide.scale, 1.265, 1e-9);
  ExpectPages(wide, 1, 1);
  // 2346 / 2346 = 1, 3036 / 1000 = 3.036.
  const Pagination high = paginate({0, 0, 1000, 2346}, {}, kLetterLandscape, 300);
  EXPECT_NEAR(high.scale, 1.0, 1e-9);
}

TEST(PrintPages, PartsOfADotAreNotUsable) {
  // 0.92 * 2480 = 2281.6 and 0.92 * 3508 = 3227.36.
  EXPECT_NEAR(paginate({0, 0, 1000, 1}, {}, kA4Portrait, 300).scale, 2.281, 1e-9);
  // 0.92 * 1238 = 1138.96.
  EXPECT_NEAR(paginate({0, 0, 1, 1000}, {}, {2480, 1238}, 300).scale, 1.138, 1e-9);
  // At 254 dots an inch and 1:10 a millimetre is a dot.
  ExpectPages(paginate({0, 0, 2281, 3227}, AtScale(10), kA4Portrait, 254), 1, 1);
  ExpectPages(paginate({0, 0, 2282, 3228}, AtScale(10), kA4Portrait, 254), 2, 2);
}

TEST(PrintPages, AHundredPercentIsTheSameAsFitToPage) {
  for (int i = 0; i < 2000; ++i) {
    const PrintBounds bounds{0.1 * i, 3.3, 0.1 * i + 7.77 * i + 1.3, 1000.0 / 3.0 + 0.77 * i};
    for (const DeviceSize page : {kLetterLandscape, kA4Portrait, kA3Landscape})
      ASSERT_EQ(paginate(bounds, AtPercent(100), page, 300), paginate(bounds, {}, page, 300)) << i;
  }
}

TEST(PrintPages, TwoHundredPercentGivesTwoSheetsTheTightWayAndOneOrTwoTheOther) {
  // Fitted the table is 3036 by 1518 dots, doubled 6072 by 3036: 2.00 and 1.29 sheets.
  ExpectPages(paginate(kTable, AtPercent(200), kLetterLandscape, 300), 2, 2);
  // 2400 by 600 mm: doubled 6072 by 1518, which is 0.65 of a sheet down.
  ExpectPages(paginate({0, 0, 2400, 600}, AtPercent(200), kLetterLandscape, 300), 2, 1);
  // Upright on a sheet in landscape: 1200 by 2400 mm fit at 2346 / 2400, so twice as many down.
  ExpectPages(paginate({0, 0, 1200, 2400}, AtPercent(200), kLetterLandscape, 300), 1, 2);
}

TEST(PrintPages, EachScalingLooksAtItsOwnNumberAlone) {
  // The numbers of the other scalings stay in their fields: 37 percent, and 1:23.
  PrintOptions fit;
  fit.percent = 37;
  fit.scaleN = 23;
  const Pagination fitted = paginate(kTable, fit, kLetterLandscape, 300);
  EXPECT_NEAR(fitted.scale, 1.265, 1e-9);  // 3036 / 2400
  ExpectPages(fitted, 1, 1);
  fit.percent = 290;
  EXPECT_EQ(paginate(kTable, fit, kLetterLandscape, 300), fitted);
  EXPECT_EQ(paginate(kTable, fit, kLetterLandscape, 1200), fitted);
  PrintOptions actual = AtScale(5);
  actual.percent = 37;
  const Pagination atFive = paginate(kTable, actual, kLetterLandscape, 300);
  EXPECT_NEAR(atFive.scale, 2.36220472, 1e-8);  // 300 / 25.4 / 5
  ExpectPages(atFive, 2, 2);
  PrintOptions part = AtPercent(290);
  part.scaleN = 23;
  const Pagination enlarged = paginate(kTable, part, kLetterLandscape, 1200);
  EXPECT_NEAR(enlarged.scale, 3.6685, 1e-9);  // 2.9 * 1.265
  ExpectPages(enlarged, 3, 2);                // 2.9 and 1518 * 2.9 / 2346 = 1.88
}

TEST(PrintPages, AnExactFitDoesNotSpill) {
  // At 254 dots per inch a millimetre at 1:1 is 10 dots. 230 usable dots: 0.92 * 250.
  ExpectPages(paginate({0, 0, 46, 23}, AtScale(1), {250, 250}, 254), 2, 1);
  // A hair more than a billionth of a sheet does.
  ExpectPages(paginate({0, 0, 46.0000001, 23}, AtScale(1), {250, 250}, 254), 3, 1);
}

TEST(PrintPages, ResolutionScaleAndPercentageBelowOneHaveTheirUsualValues) {
  EXPECT_EQ(paginate(kTable, AtScale(10), kA4Portrait, 0),
            paginate(kTable, AtScale(10), kA4Portrait, 300));
  EXPECT_EQ(paginate(kTable, AtScale(10), kA4Portrait, -600),
            paginate(kTable, AtScale(10), kA4Portrait, 300));
  EXPECT_EQ(paginate(kTable, AtScale(0), kA4Portrait, 300),
            paginate(kTable, AtScale(1), kA4Portrait, 300));
  EXPECT_EQ(paginate(kTable, AtScale(-7), kA4Portrait, 300),
            paginate(kTable, AtScale(1), kA4Portrait, 300));
  EXPECT_EQ(paginate(kTable, AtPercent(0), kA4Portrait, 300),
            paginate(kTable, AtPercent(1), kA4Portrait, 300));
  EXPECT_EQ(paginate(kTable, AtPercent(-50), kA4Portrait, 300),
            paginate(kTable, AtPercent(1), kA4Portrait, 300));
}

TEST(PrintPages, APercentageShrinksOrGrowsTheFittedScale) {
  // Fitted 3036 / 2400 = 1.265.
  const Pagination half = paginate(kTable, AtPercent(50), kLetterLandscape, 300);
  EXPECT_NEAR(half.scale, 0.6325, 1e-9);
  ExpectPages(half, 1, 1);
  EXPECT_NEAR(paginate(kTable, AtPercent(101), kLetterLandscape, 300).scale, 1.27765, 1e-9);
  // 1.01 sheets across, 1518 * 1.01 / 2346 = 0.65 down.
  ExpectPages(paginate(kTable, AtPercent(101), kLetterLandscape, 300), 2, 1);
}

TEST(PrintPages, OfTheStrangestNumbersHaveAScaleAndACount) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  for (const PrintBounds& bounds :
       {kTable, PrintBounds{nan, nan, nan, nan},
        PrintBounds{-infinite, -infinite, infinite, infinite},
        PrintBounds{-1e300, 1e300, 1e300, -1e300}, PrintBounds{5, 5, 5, 5}})
    for (const std::int32_t number : {kLeast, -1, 0, 1, kMost})
      for (const PrintOptions& options : {PrintOptions{}, AtScale(number), AtPercent(number)})
        for (const DeviceSize page :
             {DeviceSize{kMost, kMost}, {kLeast, kLeast}, {0, 0}, {1, kMost}, {2480, 3508}})
          for (const int dpi : {kLeast, 0, 1, kMost}) {
            const Pagination pages = paginate(bounds, options, page, dpi);
            ASSERT_GE(pages.pagesAcross, 1);
            ASSERT_GE(pages.pagesDown, 1);
            ASSERT_GE(pages.pageCount(), 1);
            for (const int sheet : {1, pages.pageCount(), kMost}) {
              pageView(pages, bounds, page, sheet);
              drawnArea(pages, page, sheet);
            }
          }
}

TEST(PrintPages, AnUnknownModeFitsToThePage) {
  PrintOptions options;
  options.mode = 17;
  EXPECT_EQ(paginate(kTable, options, kA4Portrait, 300), paginate(kTable, {}, kA4Portrait, 300));
}

TEST(PrintPages, APageWithoutSizeIsOneDot) {
  const Pagination pages = paginate({0, 0, 10, 10}, {}, {0, -5}, 300);
  EXPECT_NEAR(pages.scale, 0.1, 1e-12);
  ExpectPages(pages, 1, 1);
}

TEST(PrintPages, MoreSheetsThanANumberCanSayAreTheLargestNumber) {
  const double limit = std::numeric_limits<double>::max();
  for (const double far : {1e9, 1e300, limit}) {
    const Pagination pages = paginate({0, 0, far, far}, AtScale(1), {1, 1}, 1200);
    ExpectPages(pages, 1'000'000'000, 1'000'000'000);
    EXPECT_EQ(pages.pageCount(), std::numeric_limits<int>::max());
    for (const int number : {1, 2, std::numeric_limits<int>::max()}) {
      const ViewTransform view = pageView(pages, {0, 0, far, far}, {1, 1}, number);
      EXPECT_FALSE(std::isnan(view.offsetX));
      EXPECT_FALSE(std::isnan(view.offsetY));
    }
  }
}

TEST(PrintPages, ASinglePageHasItsContentInTheMiddle) {
  // Margins of 4 percent: 132 and 102 dots. The table fills the width of 3036; of the height of
  // 2346 it takes 1518, and half of the rest, 414, lies above it.
  const PrintBounds moved{-500.0, 100.0, 1900.0, 1300.0};
  const Pagination pages = paginate(moved, {}, kLetterLandscape, 300);
  const ViewTransform view = pageView(pages, moved, kLetterLandscape, 1);
  EXPECT_EQ(view.toDevice({-500.0, 100.0}), (DevicePoint{132, 516}));
  EXPECT_NEAR(view.scale * 1900.0 + view.offsetX, 3168.0, 1e-9);
  EXPECT_NEAR(view.scale * 1300.0 + view.offsetY, 2034.0, 1e-9);
}

TEST(PrintPages, ASinglePageHasItsContentInTheMiddleAcrossToo) {
  // Upright: 2400 mm fill the height of 2346 dots, at 0.9775; 1200 mm are 1173 of 3036 dots across,
  // and half of the rest, 931.5, lies left of them.
  const PrintBounds upright{40.0, -30.0, 1240.0, 2370.0};
  const Pagination pages = paginate(upright, {}, kLetterLandscape, 300);
  const ViewTransform view = pageView(pages, upright, kLetterLandscape, 1);
  EXPECT_NEAR(view.scale * 40.0 + view.offsetX, 132.0 + 931.5, 1e-9);
  EXPECT_NEAR(view.scale * -30.0 + view.offsetY, 102.0, 1e-9);
}

TEST(PrintPages, MarginsAreWholeDotsCutOff) {
  // 0.04 * 2490 = 99.6 and 0.04 * 1215 = 48.6; 2490 - 2 * 99 and 1215 - 2 * 48 are left.
  EXPECT_EQ(usableArea({2490, 1215}), (PageArea{99, 48, 2292, 1119}));
}

TEST(PrintPages, SeveralInOneDirectionAreNotCentredInTheOther) {
  // 1:5 on A4: 5669 by 2835 dots on 3 sheets by 1, of which 2835 of 3228 dots are used down. The
  // margins are 99 and 140 dots.
  const Pagination across = paginate(kTable, AtScale(5), kA4Portrait, 300);
  ExpectPages(across, 3, 1);
  EXPECT_NEAR(pageView(across, kTable, kA4Portrait, 1).offsetX, 99.0, 1e-9);
  EXPECT_NEAR(pageView(across, kTable, kA4Portrait, 1).offsetY, 140.0, 1e-9);
  // The usable width is 2480 - 2 * 99 = 2282: 99 - 2 * 2282.
  EXPECT_NEAR(pageView(across, kTable, kA4Portrait, 3).offsetX, -4465.0, 1e-9);
  EXPECT_NEAR(pageView(across, kTable, kA4Portrait, 3).offsetY, 140.0, 1e-9);
  const PrintBounds narrow{0.0, 0.0, 600.0, 2400.0};
  const Pagination down = paginate(narrow, AtScale(5), kLetterLandscape, 300);
  ExpectPages(down, 1, 3);  // 1417 by 5669 dots: 0.47, 2.42
  EXPECT_NEAR(pageView(down, narrow, kLetterLandscape, 1).offsetX, 132.0, 1e-9);
  // 102 - 2 * 2346.
  EXPECT_NEAR(pageView(down, narrow, kLetterLandscape, 3).offsetX, 132.0, 1e-9);
  EXPECT_NEAR(pageView(down, narrow, kLetterLandscape, 3).offsetY, -4590.0, 1e-9);
}

TEST(PrintPages, AreCountedRowByRow) {
  // 3 across and 2 down: the fourth is the first of the second row.
  const Pagination pages{1.0, 3, 2};
  const PrintBounds bounds{0.0, 0.0, 9000.0, 4000.0};
  const ViewTransform third = pageView(pages, bounds, kLetterLandscape, 3);
  EXPECT_NEAR(third.offsetX, 132.0 - 2 * 3036, 1e-9);
  EXPECT_NEAR(third.offsetY, 102.0, 1e-9);
  const ViewTransform fourth = pageView(pages, bounds, kLetterLandscape, 4);
  EXPECT_NEAR(fourth.offsetX, 132.0, 1e-9);
  EXPECT_NEAR(fourth.offsetY, 102.0 - 2346, 1e-9);
}

TEST(PrintPages, OfSeveralStartAtTheirMarginsAndMeet) {
  const PrintBounds moved{-500.0, 100.0, 1900.0, 1300.0};
  const Pagination pages = paginate(moved, AtScale(5), kLetterLandscape, 300);  // 2 by 2
  const ViewTransform first = pageView(pages, moved, kLetterLandscape, 1);
  EXPECT_NEAR(first.scale * -500.0 + first.offsetX, 132.0, 1e-9);
  EXPECT_NEAR(first.scale * 100.0 + first.offsetY, 102.0, 1e-9);
  // The column of millimetres at the first page's right margin, 3168, is the second one's left.
  const ViewTransform second = pageView(pages, moved, kLetterLandscape, 2);
  const double seam = (3168.0 - first.offsetX) / first.scale;
  EXPECT_NEAR(second.scale * seam + second.offsetX, 132.0, 1e-9);
  EXPECT_EQ(second.offsetY, first.offsetY);
  // Page 3 stands below page 1: 2448 is the lower margin.
  const ViewTransform third = pageView(pages, moved, kLetterLandscape, 3);
  const double below = (2448.0 - first.offsetY) / first.scale;
  EXPECT_NEAR(third.scale * below + third.offsetY, 102.0, 1e-9);
  EXPECT_EQ(third.offsetX, first.offsetX);
  const ViewTransform fourth = pageView(pages, moved, kLetterLandscape, 4);
  EXPECT_EQ(fourth.offsetX, second.offsetX);
  EXPECT_EQ(fourth.offsetY, third.offsetY);
}

TEST(PrintPages, EndAtTheSeamsAndRunOutToTheEdgesElsewhere) {
  const Pagination pages{1.0, 3, 2};
  EXPECT_EQ(drawnArea(pages, kLetterLandscape, 1), (PageArea{0, 0, 3168, 2448}));
  EXPECT_EQ(drawnArea(pages, kLetterLandscape, 2), (PageArea{132, 0, 3036, 2448}));
  EXPECT_EQ(drawnArea(pages, kLetterLandscape, 3), (PageArea{132, 0, 3168, 2448}));
  EXPECT_EQ(drawnArea(pages, kLetterLandscape, 5), (PageArea{132, 102, 3036, 2448}));
  EXPECT_EQ(drawnArea(Pagination{}, kLetterLandscape, 1), (PageArea{0, 0, 3300, 2550}));
}

TEST(WholeArea, IsTheSameSeenFromEverySheet) {
  // Margins of 40 and 20 dots leave 920 by 460: two sheets across are 920 apart.
  const Pagination pagination{1.0, 2, 1};
  const DeviceSize page{1000, 500};
  EXPECT_EQ(wholeArea(pagination, page, 1), (PageArea{20, 10, 1880, 480}));
  EXPECT_EQ(wholeArea(pagination, page, 2), (PageArea{-900, 10, 1880, 480}));
}

TEST(WholeArea, GrowsByUsableHeightsDownTheRows) {
  // Three sheets across and four down are 2 * 920 and 3 * 460 more than one of 960 by 480. The
  // eighth is the second of the third row: 920 and 2 * 460 before it.
  const Pagination pagination{1.0, 3, 4};
  const DeviceSize page{1000, 500};
  EXPECT_EQ(wholeArea(pagination, page, 1), (PageArea{20, 10, 2800, 1860}));
  EXPECT_EQ(wholeArea(pagination, page, 8), (PageArea{-900, -910, 2800, 1860}));
}

}  // namespace
}  // namespace vantrel
