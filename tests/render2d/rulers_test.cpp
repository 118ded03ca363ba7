#include "render2d/rulers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "doc/layout.h"
#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;
using Points = std::vector<wxPoint>;

constexpr Rgba kTick{140, 140, 140};
constexpr Rgba kOrigin{200, 80, 80};

std::vector<DrawCall> Rulers(const ViewTransform& view, std::int32_t units = kMillimetres,
                             DeviceSize client = {300, 200}) {
  RecordingDC dc({client.width, client.height});
  drawRulers(dc, view, units, client);
  return dc.calls();
}

// The device positions of the ticks of the upper ruler.
std::vector<int> TopTicks(const std::vector<DrawCall>& calls) {
  std::vector<int> xs;
  for (const DrawCall& call : OfOp(calls, DrawOp::line))
    if (call.pen.colour == kTick && call.points[1].y == 20 && call.points[0].y == 14)
      xs.push_back(call.points[0].x);
  return xs;
}

std::vector<std::string> TopLabels(const std::vector<DrawCall>& calls) {
  std::vector<std::string> labels;
  for (const DrawCall& call : OfOp(calls, DrawOp::text))
    if (call.points[0].y == 2) labels.push_back(call.text);
  return labels;
}

TEST(Rulers, TwoBandsAndTheirCornerArePaintedOverThePlan) {
  const auto bands = OfOp(Rulers({1.0, 60.0, 50.0}), DrawOp::rectangle);
  ASSERT_EQ(bands.size(), 3u);
  EXPECT_EQ(bands[0].box, wxRect(0, 0, 300, 20));
  EXPECT_EQ(bands[1].box, wxRect(0, 0, 20, 200));
  EXPECT_EQ(bands[2].box, wxRect(0, 0, 20, 20));
  for (const DrawCall& band : bands) {
    EXPECT_EQ(band.brush, SolidBrush({240, 240, 240}));
    EXPECT_EQ(band.pen, SolidPen({180, 180, 180}, 1));
  }
}

TEST(Rulers, TicksStandAtWholeStepsWithTheirLabelBeside) {
  const auto calls = Rulers({1.0, 60.0, 50.0});
  // 60 units are 60 mm here, so the step is 100.
  EXPECT_EQ(TopTicks(calls), (std::vector<int>{60, 160, 260}));
  const auto lines = OfOp(calls, DrawOp::line);
  const auto texts = OfOp(calls, DrawOp::text);
  ASSERT_EQ(lines.size(), 7u);  // three ticks, two ticks, two marks of the origin
  ASSERT_EQ(texts.size(), 5u);
  EXPECT_EQ(lines[0].points, Points({{60, 14}, {60, 20}}));
  EXPECT_EQ(lines[0].pen, SolidPen(kTick, 1));
  EXPECT_EQ(texts[0].text, "0");
  EXPECT_EQ(texts[0].points, Points({{62, 2}}));
  EXPECT_EQ(texts[2].text, "200");
  EXPECT_EQ(texts[2].points, Points({{262, 2}}));
  EXPECT_EQ(lines[3].points, Points({{14, 50}, {20, 50}}));
  EXPECT_EQ(texts[3].points, Points({{1, 51}}));
  EXPECT_EQ(lines[4].points, Points({{14, 150}, {20, 150}}));
  EXPECT_EQ(texts[4].text, "100");
  EXPECT_EQ(texts[0].font.pointSize, 7);
  EXPECT_EQ(texts[0].font.weight, 400);
  EXPECT_EQ(texts[0].textForeground, (Rgba{80, 80, 80}));
}

TEST(Rulers, TicksAndLabelsLeftOfThe20PixelBandAreNotDrawn) {
  EXPECT_EQ(TopTicks(Rulers({1.0, 19.0, 50.0})), (std::vector<int>{119, 219}));
  EXPECT_EQ(TopTicks(Rulers({1.0, 20.0, 50.0})), (std::vector<int>{20, 120, 220}));
  const auto calls = Rulers({1.0, 19.9, 19.9});
  EXPECT_EQ(TopLabels(calls), (std::vector<std::string>{"100", "200"}));
  EXPECT_EQ(Texts(calls, "0").size(), 0u);
}

TEST(Rulers, ATickAtTheFarEdgeIsOutside) {
  EXPECT_EQ(TopTicks(Rulers({1.0, 100.0, 50.0})), (std::vector<int>{100, 200}));
  EXPECT_EQ(TopTicks(Rulers({1.0, 99.0, 50.0})), (std::vector<int>{99, 199, 299}));
}

TEST(Rulers, LeftOfTheOriginTheLabelsAreNegative) {
  const auto calls = Rulers({1.0, 230.0, 50.0});
  EXPECT_EQ(TopTicks(calls), (std::vector<int>{30, 130, 230}));
  EXPECT_EQ(TopLabels(calls), (std::vector<std::string>{"-200", "-100", "0"}));
}

TEST(Rulers, StepsAreAtLeast60PixelsLongWhereTheTableHasSuch) {
  EXPECT_EQ(rulerStep(kMillimetres, 20.0), 5.0);    // 3 mm
  EXPECT_EQ(rulerStep(kMillimetres, 3.0), 20.0);    // exactly 20 mm
  EXPECT_EQ(rulerStep(kMillimetres, 1.0), 100.0);   // 60 mm
  EXPECT_EQ(rulerStep(kMillimetres, 0.4), 200.0);   // 150 mm
  EXPECT_EQ(rulerStep(kMillimetres, 0.05), 500.0);  // 1200 mm: the last stands
  EXPECT_EQ(rulerStep(kMillimetres, 100.0), 1.0);
  EXPECT_EQ(rulerStep(kCentimetres, 20.0), 0.5);  // 0.3 cm
  EXPECT_EQ(rulerStep(kCentimetres, 0.4), 20.0);  // 15 cm
  EXPECT_EQ(rulerStep(kCentimetres, 0.01), 200.0);
  EXPECT_EQ(rulerStep(kInches, 20.0), 0.25);  // 0.118 in
  EXPECT_EQ(rulerStep(kInches, 1.0), 3.0);    // 2.36 in
  EXPECT_EQ(rulerStep(kInches, 0.01), 192.0);
  EXPECT_EQ(rulerStep(7, 1.0), 100.0);  // any other units are millimetres
}

TEST(Rulers, WithInchesAtScale0Point4TheStepIs6Inches) {
  EXPECT_EQ(rulerStep(kInches, 0.4), 6.0);
  const auto calls = Rulers({0.4, 60.0, 50.0}, kInches);
  // A step is 6 * 25.4 * 0.4 = 60.96 pixels.
  EXPECT_EQ(TopTicks(calls), (std::vector<int>{60, 120, 181, 242}));
  EXPECT_EQ(TopLabels(calls), (std::vector<std::string>{"0\"", "6\"", "12\"", "18\""}));
}

TEST(Rulers, WholeInchesHaveNoDecimalsAndOthersOne) {
  EXPECT_EQ(rulerLabel(kInches, 6.0), "6\"");
  EXPECT_EQ(rulerLabel(kInches, -12.0), "-12\"");
  EXPECT_EQ(rulerLabel(kInches, 0.5), "0.5\"");
  EXPECT_EQ(rulerLabel(kInches, -2.5), "-2.5\"");
  EXPECT_EQ(rulerLabel(kInches, 0.75), "0.8\"");
  EXPECT_EQ(rulerLabel(kInches, 0.25), "0.2\"");
}

TEST(Rulers, EverySixthInchReadsAsAWholeNumber) {
  // Wide enough for a hundred ticks: none of them may show a rounding error as a decimal.
  const auto labels = TopLabels(Rulers({0.4, 20.0, 50.0}, kInches, {6120, 200}));
  ASSERT_EQ(labels.size(), 101u);
  for (std::size_t i = 0; i < labels.size(); ++i)
    EXPECT_EQ(labels[i], std::to_string(6 * i) + "\"");
}

TEST(Rulers, HalfCentimetresAreLabelledInWholeNumbers) {
  EXPECT_EQ(rulerLabel(kCentimetres, 0.5), "0");
  EXPECT_EQ(rulerLabel(kCentimetres, 1.5), "2");
  EXPECT_EQ(rulerLabel(kCentimetres, 2.5), "2");
  EXPECT_EQ(rulerLabel(kCentimetres, 3.0), "3");
}

TEST(Rulers, AZeroNeverHasAMinusSign) {
  EXPECT_EQ(rulerLabel(kCentimetres, -0.5), "0");
  EXPECT_EQ(rulerLabel(kMillimetres, -0.0), "0");
  EXPECT_EQ(rulerLabel(kInches, -0.0), "0\"");
  const auto labels = TopLabels(Rulers({20.0, 140.0, 50.0}, kCentimetres));
  EXPECT_EQ(labels, (std::vector<std::string>{"0", "0", "0"}));  // -0.5, 0 and 0.5 cm
}

TEST(Rulers, TheOriginIsMarkedOnBothRulersWhileItIsInView) {
  const auto marks = [](double x, double y) {
    std::vector<Points> points;
    for (const DrawCall& call : Rulers({1.0, x, y})) {
      if (call.op != DrawOp::line || call.pen.colour != kOrigin) continue;
      EXPECT_EQ(call.pen, SolidPen(kOrigin, 1));
      points.push_back(call.points);
    }
    return points;
  };
  EXPECT_EQ(marks(60, 50), (std::vector<Points>{{{60, 0}, {60, 20}}, {{0, 50}, {20, 50}}}));
  EXPECT_EQ(marks(20, 19), (std::vector<Points>{{{20, 0}, {20, 20}}}));
  EXPECT_EQ(marks(19, 20), (std::vector<Points>{{{0, 20}, {20, 20}}}));
  EXPECT_EQ(marks(299, 199).size(), 2u);
  EXPECT_EQ(marks(300, 200).size(), 0u);
}

TEST(Rulers, LabelsOfThePlanLeaveNoGroundBehindTheRulersLabels) {
  RecordingDC dc({300, 200});
  dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
  drawRulers(dc, {1.0, 60.0, 50.0}, kMillimetres, {300, 200});
  ASSERT_EQ(dc.texts("100").size(), 2u);
  EXPECT_EQ(dc.texts("100")[0].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(Rulers, AnyViewIsPaintedInBoundedWork) {
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  const double odd[] = {0.0,   -1.0,  1e-300, 1e-9,     1.0,       20.0,        1e17,
                        1e300, 1e308, -1e308, kEndless, -kEndless, std::nan("")};
  for (const double scale : odd)
    for (const double offset : odd)
      for (const std::int32_t units : {kMillimetres, kCentimetres, kInches}) {
        const auto calls = Rulers({scale, offset, -offset}, units);
        // A tick per pixel on both rulers would be 1000 calls.
        EXPECT_LE(calls.size(), 1010u) << scale << " " << offset;
      }
}

}  // namespace
}  // namespace vantrel
