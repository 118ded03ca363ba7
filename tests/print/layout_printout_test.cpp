#include "print/layout_printout.h"

#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/print.h>

#include <chrono>
#include <functional>
#include <limits>
#include <memory>

#include "print/grey_dc.h"
#include "print/layout_preview.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

constexpr int kLetterWidth = 3300;  // landscape at 300 dots an inch; usable: 3036 by 2346
constexpr int kLetterHeight = 2550;

class PrintedLayout : public testing::Test {
 protected:
  PrintedLayout() {
    for (const std::int32_t id : {1, 2, 3}) {
      Level level;
      level.id = id;
      level.visible = id != 2;
      plan_.levels.push_back(level);
    }
    plan_.activeLevel = 2;
    plan_.baseboard = {{0, 0}, {2400, 0}, {2400, 1200}, {0, 1200}};
    addStraight(100, 2);
    addStraight(600, 1);
  }

  void addStraight(double y, std::int32_t level) {
    Piece piece;
    piece.id = plan_.nextId++;
    piece.cat = "24188";
    piece.x = 100;
    piece.y = y;
    piece.level = level;
    plan_.pieces.push_back(piece);
  }

  LayoutPrintout& printout() {
    if (!printout_) {
      printout_ = std::make_unique<LayoutPrintout>(plan_, options_);
      setUp(*printout_, kLetterWidth, kLetterHeight, 300);
    }
    return *printout_;
  }

  void setUp(LayoutPrintout& out, int width, int height, int dpi) {
    out.SetPageSizePixels(width, height);
    out.SetPPIPrinter(dpi, dpi);
    out.SetDC(&dc_);
  }

  std::vector<bool> visible() const {
    std::vector<bool> visible;
    for (const Level& level : plan_.levels) visible.push_back(level.visible);
    return visible;
  }
  void expectPlanAsItWas() const {
    EXPECT_EQ(visible(), (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(plan_.gridVisible);
    EXPECT_TRUE(plan_.baseboardVisible);
  }
  void expectLevelsOfPrint() const {
    EXPECT_EQ(visible(), (std::vector<bool>{false, true, false}));
  }

  void atOneToFive() {  // 2 sheets by 2
    options_.mode = kActualScale;
    options_.scaleN = 5;
  }

  Layout plan_;
  PrintOptions options_;
  RecordingDC dc_{{kLetterWidth, kLetterHeight}, 300};
  std::unique_ptr<LayoutPrintout> printout_;
};

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
  std::size_t beds = 0;
  for (const int page : {4, 3, 2, 1}) {
    dc_.forget();
    EXPECT_TRUE(printout().OnPrintPage(page));
    if (page == 1) beds = dc_.texts("24188").size();
  }
  EXPECT_EQ(beds, 1U);  // the one on the active level
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
  options_.mode = kActualScale;  // at fit the grid would be too fine to be drawn
  options_.scaleN = 4;
  printout().OnPreparePrinting();
  printout().OnPrintPage(1);
  EXPECT_EQ(countOfPen(gridPen), 0U);
  EXPECT_GT(countOfPen(boardPen), 0U);
  printout_.reset();
  dc_.forget();
  options_.includeGrid = true;
  options_.includeBaseboard = false;
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
  // 96 dots an inch are a screen's pixels. At 1,200 a pixel is 12.5 dots: the board's pen of 2
  // pixels is 25 dots wide. The recorded texts measure 100 dots for 8 points at 1,200 dots an inch,
  // as they would on any printer: the font keeps its points.
  RecordingDC fine({13200, 10200}, 1200);
  LayoutPrintout out(plan_, options_);
  out.SetPageSizePixels(13200, 10200);
  out.SetPPIPrinter(1200, 1200);
  out.SetDC(&fine);
  out.OnPreparePrinting();
  out.OnPrintPage(1);
  bool found = false;
  for (const DrawCall& call : fine.calls()) {
    if (call.pen.colour != Rgba{120, 90, 50, 255}) continue;
    found = true;
    EXPECT_EQ(call.pen.width, 25);
  }
  EXPECT_TRUE(found);
}

// Whatever the page's bitmap fails of.
class WithoutBitmap : public LayoutPrintout {
 public:
  using LayoutPrintout::LayoutPrintout;
  mutable int asked = 0;

 protected:
  wxBitmap makePageBitmap(wxSize) const override {
    ++asked;
    return wxNullBitmap;
  }
};

bool IsGrey(const Rgba& colour) {
  return colour.r == colour.g && colour.g == colour.b;
}

TEST_F(PrintedLayout, InGreyIsOneBitmapOfThePage) {
  options_.grayscale = 1;
  LayoutPrintout out(plan_, options_);
  setUp(out, 660, 510, 60);
  out.OnPreparePrinting();
  EXPECT_TRUE(out.OnPrintPage(1));
  ASSERT_EQ(dc_.calls().size(), 1U);
  EXPECT_EQ(dc_.calls()[0].op, DrawOp::bitmap);
  EXPECT_EQ(dc_.calls()[0].box, wxRect(0, 0, 660, 510));
}

TEST_F(PrintedLayout, InGreyWithoutABitmapIsDrawnInShadesOfGrey) {
  options_.grayscale = 1;
  WithoutBitmap out(plan_, options_);
  setUp(out, kLetterWidth, kLetterHeight, 300);
  out.OnPreparePrinting();
  EXPECT_TRUE(out.OnPrintPage(1));
  EXPECT_EQ(out.asked, 1);
  ASSERT_GT(dc_.calls().size(), 5U);
  for (const DrawCall& call : dc_.calls()) {
    EXPECT_TRUE(IsGrey(call.pen.colour)) << call;
    EXPECT_TRUE(IsGrey(call.brush.colour)) << call;
    EXPECT_TRUE(IsGrey(call.textForeground)) << call;
  }
  expectPlanAsItWas();
}

TEST_F(PrintedLayout, InGreyLooksTheSameWithAndWithoutABitmap) {
  options_.grayscale = 1;
  const auto paint = [this](LayoutPrintout&& out) {
    wxBitmap bitmap(660, 510, 24);
    wxMemoryDC memory(bitmap);
    memory.SetBackground(*wxWHITE_BRUSH);
    memory.Clear();
    out.SetPageSizePixels(660, 510);
    out.SetPPIPrinter(60, 60);
    out.SetDC(&memory);
    out.OnPreparePrinting();
    EXPECT_TRUE(out.OnPrintPage(1));
    memory.SelectObject(wxNullBitmap);
    return bitmap.ConvertToImage();
  };
  const wxImage drawn = paint(WithoutBitmap(plan_, options_));
  const wxImage blitted = paint(LayoutPrintout(plan_, options_));
  ASSERT_EQ(drawn.GetSize(), blitted.GetSize());
  int differing = 0;
  for (int y = 0; y < 510; ++y)
    for (int x = 0; x < 660; ++x)
      differing += std::abs(drawn.GetRed(x, y) - blitted.GetRed(x, y)) > 3 ? 1 : 0;
  EXPECT_EQ(differing, 0);
  int ink = 0;
  for (int y = 0; y < 510; ++y)
    for (int x = 0; x < 660; ++x) ink += drawn.GetRed(x, y) < 250 ? 1 : 0;
  EXPECT_GT(ink, 10'000);
}

TEST_F(PrintedLayout, InGreyOnALargeFinePageNeedsNoBitmap) {
  options_.grayscale = 1;
  LayoutPrintout out(plan_, options_);
  setUp(out, 19843, 14031, 1200);  // A3
  out.OnPreparePrinting();
  EXPECT_TRUE(out.OnPrintPage(1));
  EXPECT_EQ(dc_.count(DrawOp::bitmap), 0U);
  EXPECT_GT(dc_.count(DrawOp::polygon), 0U);
}

TEST_F(PrintedLayout, OfAbsurdSizeIsNeitherSlowNorUndefined) {
  const auto start = std::chrono::steady_clock::now();
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
      EXPECT_TRUE(out.OnPrintPage(1));
      EXPECT_TRUE(out.OnPrintPage(high));
      expectPlanAsItWas();
    }
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
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

TEST(GreyOf, IsTheLightnessWithTheColoursOwnOpacity) {
  // 0.299 * 200 + 0.587 * 100 + 0.114 * 50 = 124.2.
  EXPECT_EQ(greyOf(wxColour(200, 100, 50, 77)), wxColour(124, 124, 124, 77));
  EXPECT_EQ(greyOf(*wxWHITE), *wxWHITE);
  EXPECT_FALSE(greyOf(wxColour()).IsOk());
}

}  // namespace
}  // namespace vantrel
