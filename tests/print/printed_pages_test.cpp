// Real pages: printed to a file by the toolkit, turned into pictures, measured.
#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <algorithm>
#include <string>
#include <vector>

#include "print/layout_printout.h"
#include "tests/print/pdf_pages.h"
#include "tests/support/temp_folder.h"

namespace vantrel {
namespace {

constexpr int kPictureDpi = 300;
constexpr double kMmPerDot = 25.4 / kPictureDpi;
constexpr double kTolerance = 0.3;  // mm

// First and last red dot of the row in the middle of the run.
struct Stretch {
  int first = -1;
  int last = -1;

  double mm() const { return (last - first + 1) * kMmPerDot; }
};

Stretch RedStretch(const wxImage& page, int y) {
  Stretch stretch;
  for (int x = 0; x < page.GetWidth(); ++x) {
    if (page.GetRed(x, y) < 150 || page.GetGreen(x, y) > 90 || page.GetBlue(x, y) > 90) continue;
    if (stretch.first < 0) stretch.first = x;
    stretch.last = x;
  }
  return stretch;
}

// A straight red run at 1:10 on a board that is `width` mm wide.
class PrintedPages : public testing::Test {
 protected:
  PrintedPages() {
    options_.mode = kActualScale;
    options_.scaleN = 10;
  }

  void lay(double width, double from, double to) {
    Shape run;
    run.id = 5;
    run.r = 200;
    run.g = 0;
    run.b = 0;
    run.a = 255;
    run.outline = false;
    run.vertices = {{from, 0}, {to, 0}, {to, 700}, {from, 700}};
    plan_.shapes = {run};
    plan_.baseboard = {{0, 0}, {width, 0}, {width, 700}, {0, 700}};
    options_.includeBaseboard = true;
  }

  std::vector<wxImage> print(const PdfPaper& paper = {}, int pictureDpi = kPictureDpi) {
    LayoutPrintout printout(plan_, options_);
    const std::string file = temp_.at("plan.pdf");
    EXPECT_TRUE(PrintToPdf(printout, file, paper));
    return PagesOfPdf(file, temp_.at(""), pictureDpi);
  }

  Layout plan_;
  PrintOptions options_;
  TempFolder temp_;
};

TEST_F(PrintedPages, AMetreIsTenCentimetresLongAtOneToTen) {
  lay(1300, 100, 1100);
  const std::vector<wxImage> pages = print();
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_NEAR(pages[0].GetWidth() * kMmPerDot, 210.0, 0.2);  // the paper's own width
  // Clear of the texts along the edges.
  const Stretch run = RedStretch(pages[0], pages[0].GetHeight() * 48 / 100);
  RecordProperty("mm", std::to_string(run.mm()));
  EXPECT_NEAR(run.mm(), 100.0, kTolerance);
}

TEST_F(PrintedPages, AMetreAcrossTheSeamOfTwoSheetsIsTenCentimetresTogether) {
  // 92 percent of the paper's 210 mm are 193.2: the seam lies at 1,932 mm, within the run.
  lay(2500, 1500, 2500);
  const std::vector<wxImage> pages = print();
  ASSERT_EQ(pages.size(), 2U);
  const int y = pages[0].GetHeight() / 8;
  const Stretch left = RedStretch(pages[0], y);
  const Stretch right = RedStretch(pages[1], y);
  RecordProperty("mm", std::to_string(left.mm() + right.mm()));
  // No gap and no overlap: what one sheet ends with, the next one begins with.
  EXPECT_NEAR(left.mm() + right.mm(), 100.0, kTolerance);
  // The left sheet ends at its margin, 4 percent from the right edge; the right one begins at its
  // own, 4 percent from the left edge: 8.4 mm.
  EXPECT_NEAR((pages[0].GetWidth() - 1 - left.last) * kMmPerDot, 8.4, 0.15);
  EXPECT_NEAR(right.first * kMmPerDot, 8.4, 0.15);
}

// Dark ground under light ground, both across the seam: where an edge cuts through the dots of a
// viewer, each layer that ends there by itself lets what is below shine through.
TEST_F(PrintedPages, ASeamShowsNoHairlineOfWhatIsBelowAtLowZoom) {
  lay(2500, 100, 2400);
  plan_.shapes.push_back(plan_.shapes[0]);
  Shape& above = plan_.shapes.back();
  above.id = 6;
  above.r = 250;
  above.g = 240;
  above.b = 210;
  plan_.shapes[0].r = 0;
  for (const int dpi : {72, 110}) {
    const std::vector<wxImage> pages = print({}, dpi);
    ASSERT_EQ(pages.size(), 2U);
    // Along a row clear of texts, from well within the shape across the seam into the margin, red
    // goes from the light ground's 250 up to white, and nowhere below the ground.
    const int y = pages[0].GetHeight() / 10;
    const int seam = pages[0].GetWidth() * 96 / 100;
    int least = 255;
    for (int x = seam - 4; x <= seam + 4; ++x) least = std::min<int>(least, pages[0].GetRed(x, y));
    EXPECT_GE(least, 248) << dpi;
    least = 255;
    const int begin = pages[1].GetWidth() * 4 / 100;
    for (int x = begin - 4; x <= begin + 4; ++x)
      least = std::min<int>(least, pages[1].GetRed(x, y));
    EXPECT_GE(least, 248) << dpi;
  }
}

// Where the first and last dots darker than `most` lie, over the whole page.
wxRect InkOf(const wxImage& page, int most) {
  wxRect ink;
  for (int y = 0; y < page.GetHeight(); ++y)
    for (int x = 0; x < page.GetWidth(); ++x)
      if (page.GetRed(x, y) <= most) ink.Union(wxRect(x, y, 1, 1));
  return ink;
}

TEST_F(PrintedPages, ALabelStandsWhereItIsAndNotInTheCorner) {
  options_.includeBaseboard = false;
  plan_.levels = {Level{}};
  plan_.activeLevel = plan_.levels[0].id;
  // The extent is 1,000 mm by 1 mm around two scenery items, which themselves are unknown: on 210
  // by 297 mm the middle of the extent lies at 105 by 148.5 mm.
  SceneryItem item;
  item.item = "none";
  item.x = 0;
  plan_.scenery = {item, item};
  plan_.scenery[1].id = 1;
  plan_.scenery[1].x = 1000;
  Label label;
  label.text = "Yard";
  label.x = 500;
  label.y = 0;
  plan_.labels = {label};
  const std::vector<wxImage> pages = print();
  ASSERT_EQ(pages.size(), 1U);
  const wxRect ink = InkOf(pages[0], 128);
  ASSERT_FALSE(ink.IsEmpty());
  // A label's place is its upper left corner; the letters begin a little below it.
  EXPECT_NEAR(ink.x * kMmPerDot, 105.0, 1.5);
  EXPECT_NEAR(ink.y * kMmPerDot, 148.5, 3.0);
}

class PrintedAcross : public PrintedPages, public testing::WithParamInterface<wxPaperSize> {};

INSTANTIATE_TEST_SUITE_P(Papers, PrintedAcross,
                         testing::Values(wxPAPER_LETTER, wxPAPER_A4, wxPAPER_A3),
                         [](const auto& paper) {
                           if (paper.param == wxPAPER_LETTER) return std::string("Letter");
                           return std::string(paper.param == wxPAPER_A4 ? "A4" : "A3");
                         });

TEST_P(PrintedAcross, ThePlanStandsInTheMiddleOfThePaper) {
  options_.mode = kFitToPage;
  lay(1000, 0, 1000);
  const int dpi = 100;
  const std::vector<wxImage> pages = print({.size = GetParam(), .orientation = wxLANDSCAPE}, dpi);
  ASSERT_EQ(pages.size(), 1U);
  ASSERT_GT(pages[0].GetWidth(), pages[0].GetHeight());
  const Stretch run = RedStretch(pages[0], pages[0].GetHeight() / 3);
  // Within half a millimetre, 2 dots.
  EXPECT_NEAR(run.first, pages[0].GetWidth() - 1 - run.last, 2);
}

std::size_t RedDots(const wxImage& page) {
  std::size_t count = 0;
  for (int y = 0; y < page.GetHeight(); ++y)
    for (int x = 0; x < page.GetWidth(); ++x)
      count += page.GetRed(x, y) > 150 && page.GetGreen(x, y) < 90 && page.GetBlue(x, y) < 90;
  return count;
}

TEST_F(PrintedPages, ATextKeepsItsColourBehindAShapeOfAnother) {
  // The black letters of a signal stand over its red lamp; 1,000 mm on 193 mm of paper.
  SceneryItem item;
  item.id = 1;
  item.item = "signal_semaphore_stop";
  plan_.scenery = {item, item};
  plan_.scenery[1].id = 2;
  plan_.scenery[1].x = 1000;
  options_.mode = kFitToPage;
  const std::vector<wxImage> pages = print();
  ASSERT_EQ(pages.size(), 1U);
  LayoutPrintout onBitmap(plan_, options_);
  wxBitmap bitmap(2480, 3508, 24);  // A4 at 300 dots an inch
  wxMemoryDC memory(bitmap);
  memory.SetBackground(*wxWHITE_BRUSH);
  memory.Clear();
  onBitmap.SetPageSizePixels(2480, 3508);
  onBitmap.SetPPIPrinter(300, 300);
  onBitmap.SetDC(&memory);
  onBitmap.OnPreparePrinting();
  ASSERT_TRUE(onBitmap.OnPrintPage(1));
  memory.SelectObject(wxNullBitmap);
  const std::size_t expected = RedDots(bitmap.ConvertToImage());
  ASSERT_GT(expected, 100U);
  EXPECT_LE(RedDots(pages[0]), expected + expected / 4);
}

}  // namespace
}  // namespace vantrel
