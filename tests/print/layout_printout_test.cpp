#include "print/layout_printout.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/print.h>

#include <limits>

#include "print/layout_preview.h"
#include "tests/print/printed_layout.h"

namespace vantrel {
namespace {

TEST_F(PrintedLayout, IsTitledAsTheLayout) {
  EXPECT_EQ(printout().GetTitle(), "Vantrel Layout");
}

TEST_F(PrintedLayout, HasOnePageUntilItIsPrepared) {
  atOneToFive();
  int low = 0, high = 0, from = 0, to = 0;
  printout().GetPageInfo(&low, &high, &from, &to);
  EXPECT_EQ((std::vector<int>{low, high, from, to}), (std::vector<int>{1, 1, 1, 1}));
}

TEST_F(PrintedLayout, HasThePagesOfItsPagination) {
  atOneToFive();
  printout().OnPreparePrinting();
  int low = 0, high = 0, from = 0, to = 0;
  printout().GetPageInfo(&low, &high, &from, &to);
  EXPECT_EQ((std::vector<int>{low, high, from, to}), (std::vector<int>{1, 4, 1, 4}));
  EXPECT_FALSE(printout().HasPage(0));
  EXPECT_TRUE(printout().HasPage(1));
  EXPECT_TRUE(printout().HasPage(4));
  EXPECT_FALSE(printout().HasPage(5));
}

TEST_F(PrintedLayout, KeepsItsLevelsFromThePreparationUpToTheLastPage) {
  atOneToFive();
  printout().OnPreparePrinting();
  expectLevelsOfPrint();
  for (const int page : {1, 2, 3}) {
    EXPECT_TRUE(printout().OnPrintPage(page));
    expectLevelsOfPrint();
  }
  EXPECT_TRUE(printout().OnPrintPage(4));
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, ShowsAllLevelsWhenAllAreWanted) {
  atOneToFive();
  options_.allLevels = 1;
  printout().OnPreparePrinting();
  EXPECT_EQ(visible(), (std::vector<bool>{true, true, true}));
}

TEST_F(PrintedLayout, ThatEndsBeforeItsLastPageLeavesThePlanAsItWas) {
  atOneToFive();
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  printout().OnEndPrinting();
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, ThatIsDroppedAfterItsPreparationLeavesThePlanAsItWas) {
  atOneToFive();
  printout().OnPreparePrinting();
  expectLevelsOfPrint();
  printout_.reset();
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, WithoutADeviceContextPrintsNothingAndLeavesThePlanAsItWas) {
  atOneToFive();
  printout().OnPreparePrinting();
  printout().SetDC(nullptr);
  EXPECT_FALSE(printout().OnPrintPage(1));
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, OnAPageWithoutSizePrintsNothing) {
  printout().SetPageSizePixels(0, -3);
  printout().OnPreparePrinting();
  EXPECT_FALSE(printout().OnPrintPage(1));
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, PreparedTwiceStillKnowsHowThePlanWas) {
  atOneToFive();
  printout().OnPreparePrinting();
  printout().OnPreparePrinting();
  printout().OnEndPrinting();
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, InReverseOrderPrintsEveryPageWithItsOwnLevels) {
  atOneToFive();
  printout().OnPreparePrinting();
  for (const int page : {4, 3, 2}) EXPECT_TRUE(printout().OnPrintPage(page));
  dc_.forget();
  EXPECT_TRUE(printout().OnPrintPage(1));
  // The one on the active level, at 100 mm: 102 + 100 * 2.36 dots below the edge. The other one
  // would stand at 1519.
  const std::vector<DrawCall> numbers = dc_.texts("24188");
  ASSERT_EQ(numbers.size(), 1U);
  EXPECT_NEAR(numbers[0].points[0].y, 338, 60);
  printout().OnEndPrinting();
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, AfterALevelWasRemovedPutsTheOthersBack) {
  atOneToFive();
  printout().OnPreparePrinting();
  plan_.levels.erase(plan_.levels.begin() + 1);
  printout().OnEndPrinting();
  EXPECT_EQ(visible(), (std::vector<bool>{true, true}));
}

TEST_F(PrintedLayout, IsPaginatedAnewForAnotherPageSize) {
  atOneToFive();
  printout().OnPreparePrinting();
  EXPECT_EQ(printout().pages().pageCount(), 4);
  printout().SetPageSizePixels(2 * kLetterWidth, 2 * kLetterHeight);
  printout().OnPrintPage(1);
  EXPECT_EQ(printout().pages().pageCount(), 1);  // 0.93 by 0.60
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, IsPaginatedAnewWhenThePageHasChangedInOneDirection) {
  atOneToFive();
  printout().OnPreparePrinting();
  printout().SetPageSizePixels(2 * kLetterWidth, kLetterHeight);
  printout().OnPrintPage(1);
  EXPECT_EQ(printout().pages().pageCount(), 2);  // 0.93 by 1.21
  printout().SetPageSizePixels(2 * kLetterWidth, 2 * kLetterHeight);
  printout().OnPrintPage(1);
  EXPECT_EQ(printout().pages().pageCount(), 1);
}

TEST_F(PrintedLayout, KeepsItsPaginationOnTheSamePage) {
  atOneToFive();
  printout().OnPreparePrinting();
  printout().SetPPIPrinter(1200, 1200);
  printout().OnPrintPage(1);
  EXPECT_EQ(printout().pages().pageCount(), 4);
}

TEST_F(PrintedLayout, WithoutAResolutionIsPrintedAsOnThreeHundredDotsAnInch) {
  options_.mode = kActualScale;
  options_.scaleN = 10;
  LayoutPrintout out(plan_, options_);
  setUp(out, kLetterWidth, kLetterHeight, 0);
  out.OnPreparePrinting();
  EXPECT_NEAR(out.pages().scale, 1.1811, 1e-4);
  out.OnPrintPage(1);
  std::vector<int> widths;
  for (const DrawCall& call : dc_.calls())
    if (call.pen.colour == Rgba{120, 90, 50, 255}) widths.push_back(call.pen.width);
  ASSERT_FALSE(widths.empty());
  EXPECT_EQ(widths, std::vector<int>(widths.size(), 6));  // 2 pixels of 300 / 96 dots
}

TEST_F(PrintedLayout, TakesTheResolutionAcrossForBothDirections) {
  options_.mode = kActualScale;
  options_.scaleN = 7;
  LayoutPrintout out(plan_, options_);
  out.SetPageSizePixels(kLetterWidth, kLetterHeight);
  out.SetPPIPrinter(300, 600);
  out.SetDC(&dc_);
  out.OnPreparePrinting();
  EXPECT_NEAR(out.pages().scale, 1.68728909, 1e-8);  // 300 / 25.4 / 7
}

TEST_F(PrintedLayout, ThatFitsThePageLooksAtNoOtherNumber) {
  options_.percent = 290;
  options_.scaleN = 3;
  printout().OnPreparePrinting();
  EXPECT_NEAR(printout().pages().scale, 1.265, 1e-9);  // 3036 dots for 2400 mm
  EXPECT_EQ(printout().pages().pageCount(), 1);
}

// The page's last tile shows the table's lower right corner at 2400 by 1200 mm.
TEST_F(PrintedLayout, DrawsEachPageUnderItsOwnView) {
  atOneToFive();
  plan_.labels.resize(1);
  plan_.labels[0].text = "corner";
  plan_.labels[0].x = 2390;
  plan_.labels[0].y = 1190;
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  EXPECT_EQ(dc_.texts("corner").size(), 0U);
  dc_.forget();
  printout().OnPrintPage(4);
  ASSERT_EQ(dc_.texts("corner").size(), 1U);
  // At 2.3622 dots a mm: 132 + 2390 * 2.3622 - 3036 and 102 + 1190 * 2.3622 - 2346, truncated.
  EXPECT_EQ(dc_.texts("corner")[0].points[0], wxPoint(2741, 567));
}

TEST_F(PrintedLayout, DrawsOnlyTheActiveLevelThoughSceneryElsewhereWidensTheBounds) {
  SceneryItem item;
  item.id = 50;
  item.item = "station_small";
  item.x = 9000;
  item.y = 500;
  item.level = 1;
  plan_.scenery = {item};
  printout().OnPreparePrinting();
  EXPECT_NEAR(printout().pages().scale, 3036.0 / 9000.0, 1e-9);
  printout().OnPrintPage(1);
  const std::size_t drawn = dc_.calls().size();
  plan_.scenery.clear();
  printout().SetPageSizePixels(kLetterWidth, kLetterHeight);
  dc_.forget();
  printout().OnPrintPage(1);
  EXPECT_EQ(dc_.calls().size(), drawn);
}

TEST_F(PrintedLayout, GridAndBaseboardAreDrawnOnlyWhenIncluded) {
  const auto countOfPen = [this](Rgba colour) {
    std::size_t count = 0;
    for (const DrawCall& call : dc_.calls()) count += call.pen.colour == colour ? 1 : 0;
    return count;
  };
  const Rgba gridPen{220, 220, 215, 255};
  const Rgba boardPen{120, 90, 50, 255};
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  EXPECT_EQ(countOfPen(gridPen), 0U);
  EXPECT_GT(countOfPen(boardPen), 0U);
  printout_.reset();
  dc_.forget();
  options_.includeGrid = true;
  options_.includeBaseboard = false;
  plan_.gridSize = 10;  // without the board 188.3 mm fill 3036 dots: 32 mm would be beyond 400 dots
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  EXPECT_GT(countOfPen(gridPen), 0U);
  EXPECT_EQ(countOfPen(boardPen), 0U);
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, AnEmptyLayoutPrintsOnePage) {
  plan_ = Layout{};
  printout().OnPreparePrinting();
  EXPECT_NEAR(printout().pages().scale, 2346.0 / 1000.0, 1e-9);
  EXPECT_TRUE(printout().OnPrintPage(1));
  EXPECT_FALSE(printout().HasPage(2));
}

TEST_F(PrintedLayout, LinesAndTextsAreAsLargeOnPaperAtEveryResolution) {
  // As high as the screen shows the board's plates, which are written in 11 points there.
  wxBitmap bitmap(1, 1);
  wxMemoryDC screen(bitmap);
  screen.SetFont(wxFont(wxFontInfo(11).Family(wxFONTFAMILY_DEFAULT).Bold()));
  const int heightOnScreen = screen.GetTextExtent("2400 mm").y;
  struct Expected {
    int dpi;
    int penWidth;
  };
  // 96 dots an inch are a screen's pixels. At 1,200 a pixel is 12.5 dots: the board's pen of 2
  // pixels is 25 dots wide. At 600 a pixel is 6.25 dots, at 300 3.125: 12 and 6 whole dots.
  for (const Expected& expected : {Expected{300, 6}, Expected{600, 12}, Expected{1200, 25}}) {
    SCOPED_TRACE(expected.dpi);
    const wxSize page(11 * expected.dpi, 17 * expected.dpi / 2);
    RecordingDC dc(page, expected.dpi);
    LayoutPrintout out(plan_, options_);
    out.SetPageSizePixels(page.x, page.y);
    out.SetPPIPrinter(expected.dpi, expected.dpi);
    out.SetDC(&dc);
    out.OnPreparePrinting();
    out.OnPrintPage(1);
    bool found = false;
    for (const DrawCall& call : dc.calls()) {
      if (call.pen.colour != Rgba{120, 90, 50, 255}) continue;
      found = true;
      EXPECT_EQ(call.pen.width, expected.penWidth);
    }
    EXPECT_TRUE(found);
    const std::vector<DrawCall> plates = dc.texts("2400 mm");
    ASSERT_EQ(plates.size(), 2U);  // above the board and below it
    // The recorded texts are 2 pixels of a screen high for each point, at every resolution.
    EXPECT_NEAR(2 * plates[0].font.pointSize, heightOnScreen, 2);
  }
}

TEST_F(PrintedLayout, ATextIsAsHighOnPaperAsOnThisScreenAtEveryResolution) {
  // 100 mm fill a usable width of 92 percent of 11 inches: 10.12 inches, 971.5 pixels of 1 / 96
  // inch. A label is 11 points large for each pixel of a mm: 9.715 * 11 = 106.
  plan_.baseboard = {{0, 0}, {100, 0}, {100, 50}, {0, 50}};
  plan_.pieces.clear();
  plan_.labels.resize(1);
  plan_.labels[0].text = "Yard";
  plan_.labels[0].x = 10;
  plan_.labels[0].y = 10;
  wxBitmap bitmap(1, 1);
  wxMemoryDC screen(bitmap);
  const wxFont font(wxFontInfo(106).Bold());
  wxCoord width = 0;
  wxCoord height = 0;
  screen.GetTextExtent("Yard", &width, &height, nullptr, nullptr, &font);
  for (const int dpi : {72, 300, 1200}) {
    RecordingDC paper({11 * dpi, 17 * dpi / 2}, dpi);
    LayoutPrintout out(plan_, options_);
    out.SetPageSizePixels(11 * dpi, 17 * dpi / 2);
    out.SetPPIPrinter(dpi, dpi);
    out.SetDC(&paper);
    out.OnPreparePrinting();
    out.OnPrintPage(1);
    const std::vector<DrawCall> texts = paper.texts("Yard");
    ASSERT_EQ(texts.size(), 1U) << dpi;
    // A recorded text of 48 points is an inch high, which 96 pixels are.
    EXPECT_NEAR(texts[0].font.pointSize, height / 2.0, 1.0) << dpi;
  }
}

TEST_F(PrintedLayout, HasPartNumbersFromAFifthOfADotForAMillimetreOn) {
  struct Expected {
    int scaleN;
    int dpi;
    std::size_t numbers;
  };
  // One piece lies on the active level. 300 / 25.4 / 59 = 0.2002 and 600 / 25.4 / 118 = 0.2002 dots
  // for a mm; one step further it is 0.1969 and 0.1985.
  for (const Expected& expected :
       {Expected{10, 300, 1}, Expected{20, 300, 1}, Expected{40, 300, 1}, Expected{59, 300, 1},
        Expected{60, 300, 0}, Expected{40, 600, 1}, Expected{118, 600, 1}, Expected{119, 600, 0}}) {
    options_.mode = kActualScale;
    options_.scaleN = expected.scaleN;
    LayoutPrintout out(plan_, options_);
    dc_.forget();
    setUp(out, 297 * expected.dpi * 10 / 254, 210 * expected.dpi * 10 / 254, expected.dpi);
    out.OnPreparePrinting();
    EXPECT_TRUE(out.OnPrintPage(1));
    EXPECT_EQ(dc_.texts("24188").size(), expected.numbers)
        << "1:" << expected.scaleN << " at " << expected.dpi;
  }
}

TEST_F(PrintedLayout, ShowsNothingBeyondASeam) {
  atOneToFive();
  printout().OnPreparePrinting();
  // What goes over all else: white rectangles without an edge.
  const auto coversOf = [this](int page) {
    dc_.forget();
    printout().OnPrintPage(page);
    std::vector<wxRect> covers;
    const std::vector<DrawCall> calls = dc_.calls();
    for (std::size_t i = calls.size(); i-- > 0 && calls[i].op == DrawOp::rectangle;) {
      EXPECT_EQ(calls[i].brush.colour, (Rgba{255, 255, 255, 255}));
      EXPECT_EQ(calls[i].brush.style, wxBRUSHSTYLE_SOLID);
      EXPECT_EQ(calls[i].pen.style, wxPENSTYLE_TRANSPARENT);
      covers.insert(covers.begin(), calls[i].box);
    }
    return covers;
  };
  // Margins of 132 and 102 dots on 3,300 by 2,550.
  EXPECT_EQ(coversOf(1),
            (std::vector<wxRect>{{3168, 0, 132, kLetterHeight}, {0, 2448, kLetterWidth, 102}}));
  EXPECT_EQ(coversOf(4),
            (std::vector<wxRect>{{0, 0, 132, kLetterHeight}, {0, 0, kLetterWidth, 102}}));
  // And no clip, which a viewer would show as a hairline.
  EXPECT_TRUE(dc_.callsOf(DrawOp::clip).empty());
}

TEST_F(PrintedLayout, OnASinglePageNothingIsCovered) {
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  EXPECT_EQ(dc_.count(DrawOp::rectangle), 0U);
}

TEST_F(PrintedLayout, IsShrunkToTheDeviceOfAPreview) {
  wxBitmap bitmap(kLetterWidth / 10, kLetterHeight / 10);
  wxMemoryDC preview(bitmap);
  printout().SetDC(&preview);
  printout().OnPreparePrinting();
  EXPECT_TRUE(printout().OnPrintPage(1));
  double across = 0.0;
  double down = 0.0;
  preview.GetUserScale(&across, &down);
  EXPECT_NEAR(across, 0.1, 1e-6);
  EXPECT_NEAR(down, 0.1, 1e-6);
}

TEST_F(PrintedLayout, LengthsAtTheEdgeOfTheBoardStandWholeOnThePaper) {
  // Upright letter paper at 300 dots an inch, margins of 102 and 132 dots. A plate on the left edge
  // of a board that fills the width would reach 100 dots or more beyond the paper.
  plan_.pieces.clear();
  plan_.baseboard = {{0, 0}, {2400, 0}, {2400, 1200}, {0, 1200}};
  setUp(printout(), 2550, 3300, 300);
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  int plates = 0;
  for (const DrawCall& call : dc_.callsOf(DrawOp::roundedRectangle)) {
    ++plates;
    EXPECT_GE(call.box.x, 51);  // half a margin
    EXPECT_LE(call.box.x + call.box.width, 2550 - 51);
  }
  EXPECT_EQ(plates, 4);
  const std::vector<DrawCall> texts = dc_.texts("1200 mm");
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_NE(texts[0].points[0].x, texts[1].points[0].x);
}

// Drawing calls are counted: what is out of view costs none, and no loop runs over what a page of
// that size can't show.
TEST_F(PrintedLayout, OfAbsurdSizeIsNeitherSlowNorUndefined) {
  options_.includeGrid = true;
  for (const double far : {1e9, 1e300, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()}) {
    for (const std::int32_t mode : {0, 1, 2}) {
      plan_.pieces[0].x = far;
      plan_.pieces[0].y = -far;
      options_.mode = mode;
      options_.scaleN = 1;
      options_.percent = 1'000'000'000;
      LayoutPrintout out(plan_, options_);
      setUp(out, kLetterWidth, kLetterHeight, 300);
      out.OnPreparePrinting();
      int low = 0, high = 0, from = 0, to = 0;
      out.GetPageInfo(&low, &high, &from, &to);
      EXPECT_GE(high, 1);
      EXPECT_TRUE(out.HasPage(high));
      for (const int page : {1, high}) {
        dc_.forget();
        EXPECT_TRUE(out.OnPrintPage(page));
        // White, fill and outline of the table, its four lengths on their plates, a clip set and
        // lifted, a piece, its number and its two dots are below 20. Grid lines stand 6 dots apart
        // or more: at most 551 across 3,300 dots, 426 down 2,550, and two for the cross.
        EXPECT_LE(dc_.calls().size(), 999U) << far << " in mode " << mode;
        EXPECT_LE(dc_.calls().size() - dc_.count(DrawOp::line), 20U) << far << " in mode " << mode;
        EXPECT_LE(dc_.measurements(), 20);
      }
      expectPlanAsItWas();
    }
  }
}

TEST_F(PrintedLayout, APreviewLeavesThePlanAsItWasAfterEachPage) {
  atOneToFive();
  wxPrintData data;
  data.SetPaperId(wxPAPER_LETTER);
  data.SetOrientation(wxLANDSCAPE);
  auto preview = std::make_unique<LayoutPreview>(plan_, options_, data, PreviewPrinting{});
  ASSERT_TRUE(preview->IsOk());
  wxFrame frame(nullptr, wxID_ANY, "preview");
  wxPreviewCanvas canvas(preview.get(), &frame);
  preview->SetCanvas(&canvas);
  for (const int page : {1, 3, 4, 2}) {
    preview->SetCurrentPage(page);
    EXPECT_TRUE(preview->RenderPage(page));
    expectPlanAsItWas();
  }
  EXPECT_EQ(preview->GetMaxPage(), 4);
  preview->SetCanvas(nullptr);
}

}  // namespace
}  // namespace vantrel
