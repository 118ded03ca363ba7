// Pages in grey: by way of a bitmap, and without one.
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <cstdlib>

#include "print/paper_dc.h"
#include "tests/print/printed_layout.h"

namespace vantrel {
namespace {

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

// Of everything that a plan can show: see-through areas over coloured ones, texts and plates,
// dotted frames, bridges, turntables, ramps.
void LayEverything(Layout& plan) {
  const auto shape = [&plan](double left, double top, Rgba fill) {
    Shape area;
    area.id = plan.nextId++;
    area.vertices = {{left, top}, {left + 500, top}, {left + 500, top + 300}, {left, top + 300}};
    area.label = "Lake";
    area.level = 2;
    area.r = fill.r;
    area.g = fill.g;
    area.b = fill.b;
    area.a = fill.a;
    plan.shapes.push_back(area);
  };
  shape(900, 200, {220, 30, 30, 255});
  shape(1100, 350, {30, 60, 230, 90});
  double y = 150;
  for (const char* part : {"24188", "24611", "24624", "24640", "24649", "24994", "24997", "24977",
                           "74861", "74636", "24130"}) {
    Piece piece;
    piece.id = plan.nextId++;
    piece.cat = part;
    piece.x = 450;
    piece.y = y += 85;
    piece.heading = 10;
    piece.level = 2;
    piece.sel = plan.pieces.size() % 2 == 0;
    plan.pieces.push_back(piece);
  }
  double x = 1700;
  for (const char* id : {"station_small", "tree_sm_dec", "72886", "water_tower", "platform"}) {
    SceneryItem item;
    item.id = plan.nextId++;
    item.item = id;
    item.x = x += 90;
    item.y = 600;
    item.heading = 30;
    item.level = 2;
    plan.scenery.push_back(item);
  }
  plan.labels.resize(1);
  plan.labels[0].text = "Yard";
  plan.labels[0].x = 1500;
  plan.labels[0].y = 900;
  plan.labels[0].sel = true;
  plan.measurements.resize(1);
  plan.measurements[0].startX = 900;
  plan.measurements[0].startY = 800;
  plan.measurements[0].endX = 1700;
  plan.measurements[0].endY = 1000;
  plan.gradeRuns.resize(1);
  plan.gradeRuns[0].anchor = plan.pieces.back().id;
  plan.gradeRuns[0].deg = 3.0;
}

TEST_F(PrintedLayout, InGreyLooksTheSameWithAndWithoutABitmap) {
  options_.grayscale = 1;
  options_.includeGrid = true;
  LayEverything(plan_);
  plan_.gridSize = 100;
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

TEST_F(PrintedLayout, InGreyIsOneBitmapOfAnA4PageAtThreeHundredDotsAnInch) {
  options_.grayscale = 1;
  LayoutPrintout out(plan_, options_);
  setUp(out, 2480, 3508, 300);
  out.OnPreparePrinting();
  EXPECT_TRUE(out.OnPrintPage(1));
  EXPECT_EQ(dc_.count(DrawOp::bitmap), 1U);
  EXPECT_EQ(dc_.count(DrawOp::polygon), 0U);
}

TEST_F(PrintedLayout, InGreyIsWhiteBeyondASeam) {
  options_.grayscale = 1;
  atOneToFive();
  wxBitmap bitmap(660, 510, 24);
  wxMemoryDC paper(bitmap);
  paper.SetBackground(*wxBLACK_BRUSH);
  paper.Clear();
  LayoutPrintout out(plan_, options_);
  setUp(out, 660, 510, 60);
  out.SetDC(&paper);
  out.OnPreparePrinting();
  EXPECT_TRUE(out.OnPrintPage(1));
  EXPECT_TRUE(out.HasPage(2));
  wxColour corner;
  paper.GetPixel(655, 505, &corner);
  EXPECT_EQ(corner, *wxWHITE);
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

// A banner of little area: 32,768 by 900 dots are 29 million, but the toolkit draws on no bitmap
// with a side beyond 32,767.
TEST_F(PrintedLayout, InGreyOnALongBannerNeedsNoBitmap) {
  options_.grayscale = 1;
  for (const wxSize page : {wxSize(32'768, 900), wxSize(900, 32'768)}) {
    dc_.forget();
    LayoutPrintout out(plan_, options_);
    setUp(out, page.x, page.y, 300);
    out.OnPreparePrinting();
    EXPECT_TRUE(out.OnPrintPage(1));
    EXPECT_EQ(dc_.count(DrawOp::bitmap), 0U);
    EXPECT_GT(dc_.count(DrawOp::polygon), 0U);
  }
}

TEST_F(PrintedLayout, InGreyOnTheLongestBannerIsOneBitmap) {
  options_.grayscale = 1;
  LayoutPrintout out(plan_, options_);
  setUp(out, 32'767, 300, 300);
  out.OnPreparePrinting();
  EXPECT_TRUE(out.OnPrintPage(1));
  EXPECT_EQ(dc_.count(DrawOp::bitmap), 1U);
  EXPECT_EQ(dc_.count(DrawOp::polygon), 0U);
}

TEST(GreyOf, IsTheLightnessWithTheColoursOwnOpacity) {
  // 0.299 * 200 + 0.587 * 100 + 0.114 * 50 = 124.2.
  EXPECT_EQ(greyOf(wxColour(200, 100, 50, 77)), wxColour(124, 124, 124, 77));
  EXPECT_EQ(greyOf(*wxWHITE), *wxWHITE);
  EXPECT_FALSE(greyOf(wxColour()).IsOk());
}

}  // namespace
}  // namespace vantrel
