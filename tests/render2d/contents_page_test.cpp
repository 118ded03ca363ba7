// On a page of many dots an inch a plan looks as it does on a screen, only finer; and because it is
// finer, details are shown down to smaller scales.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "catalog/track_catalog.h"
#include "render2d/contents_drawing.h"
#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;

constexpr int kDots = 10;  // per pixel

// One of everything, with whatever is drawn in pixels on it.
Layout RichPlan() {
  Layout plan;
  plan.gridVisible = true;
  plan.baseboard = {{0, 0}, {1000, 0}, {1000, 600}, {0, 600}};
  plan.levels = {DeckLevel(1, 0.0)};
  plan.levels[0].outline = Outline(20, 20, 300, 200);
  Shape shape = Rectangle(400, 300, 600, 420);
  shape.label = "Pond";
  plan.shapes = {shape};
  double y = 60.0;
  std::int32_t id = 1;
  for (const char* part :
       {"24188", "24130", "24611", "24624", "24640", "24649", "24994", "24997", "24977"}) {
    if (findPart(part) == nullptr) continue;
    Piece piece;
    piece.id = id++;
    piece.cat = part;
    piece.x = 100.0;
    piece.y = y;
    y += 60.0;
    plan.pieces.push_back(piece);
  }
  plan.pieces[0].sel = true;
  GradeRun run;
  run.deg = 2.5;
  run.anchor = 1;
  plan.gradeRuns = {run};
  Label label;
  label.text = "Yard";
  label.x = 700;
  label.y = 500;
  label.sel = true;
  plan.labels = {label};
  Measurement tape;
  tape.startX = 650;
  tape.startY = 100;
  tape.endX = 900;
  tape.endY = 140;
  plan.measurements = {tape};
  SceneryItem item;
  item.id = 90;
  item.item = "station_small";
  item.x = 800;
  item.y = 300;
  item.sel = true;
  plan.scenery = {item};
  return plan;
}

// Whole dots are cut off at ten times as many places.
void ExpectTenfold(int screen, int page, int slack) {
  EXPECT_LE(std::abs(page - kDots * screen), slack);
}

wxRect BoxOf(const std::vector<wxPoint>& points) {
  wxRect box;
  for (const wxPoint& point : points) box.Union(wxRect(point, wxSize(1, 1)));
  return box;
}

// The same middle and the same radius, or radii. Of few corners none need lie at the utmost left or
// right: at 12 of them up to 1 - cos 15 degrees, 3.4 percent, of the radius may be missing there.
void ExpectSameBox(const wxRect& screen, const wxRect& page) {
  const int slack = 3 * kDots + kDots * std::max(screen.width, screen.height) * 34 / 1000;
  ExpectTenfold(screen.x, page.x, slack);
  ExpectTenfold(screen.y, page.y, slack);
  ExpectTenfold(screen.x + screen.width, page.x + page.width, slack);
  ExpectTenfold(screen.y + screen.height, page.y + page.height, slack);
}

void ExpectAlike(const DrawCall& screen, const DrawCall& page) {
  ASSERT_EQ(screen.op, page.op);
  EXPECT_EQ(screen.text, page.text);
  EXPECT_EQ(screen.brush, page.brush);
  if (screen.pen.style != wxPENSTYLE_TRANSPARENT)
    ExpectTenfold(screen.pen.width, page.pen.width, kDots - 1);
  if (screen.op == DrawOp::text) {
    EXPECT_EQ(page.font.pointSize, kDots * screen.font.pointSize);
  }
  // A circle is the rounder the more dots it has.
  const std::size_t corners = 12;
  if (screen.points.size() >= corners && page.points.size() > screen.points.size()) {
    ExpectSameBox(BoxOf(screen.points), BoxOf(page.points));
    return;
  }
  ASSERT_EQ(screen.points.size(), page.points.size());
  // A text's middle is rounded, and so are its size's halves.
  const int slack = 3 * kDots;
  for (std::size_t i = 0; i < screen.points.size(); ++i) {
    ExpectTenfold(screen.points[i].x, page.points[i].x, slack);
    ExpectTenfold(screen.points[i].y, page.points[i].y, slack);
  }
  ExpectTenfold(screen.box.x, page.box.x, slack);
  ExpectTenfold(screen.box.y, page.box.y, slack);
  ExpectTenfold(screen.box.width, page.box.width, slack);
  ExpectTenfold(screen.box.height, page.box.height, slack);
  EXPECT_EQ(page.radius, kDots * screen.radius);
}

class PlanOnAPage : public testing::TestWithParam<double> {};

// From the scale on at which a screen shows all details, up to one at which nothing has its
// smallest size any more.
INSTANTIATE_TEST_SUITE_P(Scales, PlanOnAPage, testing::Values(0.25, 0.4, 0.8));

TEST_P(PlanOnAPage, LooksAsItDoesOnAScreenWithTenDotsForAPixel) {
  const Layout plan = RichPlan();
  const ViewTransform onScreen{GetParam(), 60.0, 30.0};
  const ViewTransform onPage{GetParam() * kDots, 600.0, 300.0, kDots, kDots};
  const std::vector<DrawCall> screen = Painted(plan, onScreen, {1200, 700});
  const std::vector<DrawCall> page = Painted(plan, onPage, {12000, 7000});
  ASSERT_EQ(screen.size(), page.size());
  ASSERT_GT(screen.size(), 40U);
  for (std::size_t i = 0; i < screen.size() && !HasFailure(); ++i) {
    SCOPED_TRACE(testing::Message() << i << ": " << screen[i] << "\n" << page[i]);
    ExpectAlike(screen[i], page[i]);
  }
}

// So many dots for a mm, ten dots for a pixel, and texts ten times as large for it.
std::vector<DrawCall> OnFinePage(const Layout& plan, double scale) {
  return Painted(plan, {scale, 60.0, 30.0, kDots, kDots}, {12000, 7000});
}

Layout OneStraight() {
  Layout plan;
  plan.gridVisible = false;
  Piece piece;
  piece.id = 1;
  piece.cat = "24188";
  plan.pieces = {piece};
  return plan;
}

std::vector<int> DotRadii(const std::vector<DrawCall>& calls) {
  std::vector<int> radii;
  for (const DrawCall& call : calls)
    if (call.isCircle()) radii.push_back(call.box.width / 2);
  return radii;
}

TEST(PlanOnAFinePage, ShowsPartNumbersAndDotsFromAFifthOfADotForAMillimetreOn) {
  EXPECT_TRUE(Texts(OnFinePage(OneStraight(), 0.199), "24188").empty());
  EXPECT_TRUE(DotRadii(OnFinePage(OneStraight(), 0.199)).empty());
  EXPECT_EQ(Texts(OnFinePage(OneStraight(), 0.2), "24188").size(), 1u);
  EXPECT_EQ(DotRadii(OnFinePage(OneStraight(), 0.2)).size(), 2u);
}

TEST(PlanOnAFinePage, NumbersAndDotsShrinkWithTheirPieceWhereAScreenHasNoneAnyMore) {
  const auto points = [](double scale) {
    const std::vector<DrawCall> texts = Texts(OnFinePage(OneStraight(), scale), "24188");
    return texts.empty() ? 0 : texts[0].font.pointSize;
  };
  // 6 points at a fifth of a pixel for a mm, which are 2 dots: 60 of the page's own. Half of it at
  // half the scale. A tenth of it is as small as the page's own six points.
  EXPECT_EQ(points(6.0), 60);
  EXPECT_EQ(points(2.0), 60);
  EXPECT_EQ(points(1.0), 30);
  EXPECT_EQ(points(0.2), 6);
  // 3 pixels are 30 dots, half of them 15; never fewer than 3 dots.
  EXPECT_EQ(DotRadii(OnFinePage(OneStraight(), 6.0)), (std::vector<int>{30, 30}));
  EXPECT_EQ(DotRadii(OnFinePage(OneStraight(), 1.0)), (std::vector<int>{15, 15}));
  EXPECT_EQ(DotRadii(OnFinePage(OneStraight(), 0.2)), (std::vector<int>{3, 3}));
}

TEST(PlanOnAFinePage, HasAGridWhoseLinesStandSixToFourHundredDotsApart) {
  Layout plan;
  plan.gridVisible = true;
  plan.gridSize = 32.0;
  const auto lines = [&plan](double scale) {
    return OfOp(OnFinePage(plan, scale), DrawOp::line).size();
  };
  EXPECT_EQ(lines(0.1874), 0u);  // 5.997 dots
  EXPECT_GT(lines(0.1875), 0u);
  EXPECT_GT(lines(12.5), 0u);
  EXPECT_EQ(lines(12.51), 0u);
  ASSERT_GT(lines(1.0), 0u);
  // They themselves are a pixel wide.
  EXPECT_EQ(OfOp(OnFinePage(plan, 1.0), DrawOp::line).front().pen.width, kDots);
}

TEST(PlanOnAFinePage, TellsSlopesFromAQuarterOfADotForAMillimetreOn) {
  Layout plan = OneStraight();
  GradeRun run;
  run.deg = 2.5;
  run.anchor = 1;
  plan.gradeRuns = {run};
  EXPECT_TRUE(Texts(OnFinePage(plan, 0.249), "+2.5 deg").empty());
  EXPECT_EQ(Texts(OnFinePage(plan, 0.25), "+2.5 deg").size(), 1u);
}

TEST(PixelsOfAView, AreNeverNothingAndOneForOneOnAScreen) {
  ViewTransform view;
  EXPECT_EQ(view.pixels(3), 3);
  EXPECT_EQ(view.fontPoints(11), 11);
  view.pixel = 12.5;  // 1,200 dots an inch
  view.fontScale = 2.5;
  EXPECT_EQ(view.pixels(0), 0);
  EXPECT_EQ(view.pixels(1), 12);
  EXPECT_EQ(view.pixels(2), 25);
  EXPECT_EQ(view.fontPoints(9), 23);  // 22.5
  view.scale = 5.0;
  EXPECT_EQ(view.pixelScale(), 0.4);
  view.pixel = 0.75;  // 72 dots an inch
  EXPECT_EQ(view.pixels(1), 1);
  view.fontScale = 1e300;
  EXPECT_EQ(view.fontPoints(9), 4000);
}

}  // namespace
}  // namespace vantrel
