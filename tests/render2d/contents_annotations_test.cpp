#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;
using Points = std::vector<wxPoint>;

Layout WithLabel(const std::string& text, bool selected = false) {
  Layout layout = PlainPlan();
  layout.labels.push_back({.id = 1, .text = text, .x = 50, .y = 60, .sel = selected});
  return layout;
}

Layout WithTape(Vec2 from, Vec2 to, bool selected = false) {
  Layout layout = PlainPlan();
  Measurement tape;
  tape.startX = from.x;
  tape.startY = from.y;
  tape.endX = to.x;
  tape.endY = to.y;
  tape.sel = selected;
  layout.measurements.push_back(tape);
  return layout;
}

TEST(ContentsLabels, ALabelStandsAtItsTopLeftOnAPaleGround) {
  const auto calls = Painted(WithLabel("Depot"));
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[1].text, "Depot");
  EXPECT_EQ(calls[1].points, Points({{50, 60}}));
  EXPECT_EQ(calls[1].font.pointSize, 11);
  EXPECT_EQ(calls[1].font.weight, 700);
  EXPECT_EQ(calls[1].font.style, wxFONTSTYLE_NORMAL);
  EXPECT_EQ(calls[1].textForeground, (Rgba{20, 20, 20}));
  EXPECT_EQ(calls[1].textBackground, (Rgba{255, 255, 220, 200}));
  EXPECT_EQ(calls[1].backgroundMode, wxBRUSHSTYLE_SOLID);
}

TEST(ContentsLabels, ASelectedLabelIsBlueInADottedFrame) {
  const auto calls = Painted(WithLabel("Depot", true));
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[1].textForeground, (Rgba{40, 80, 200}));
  // Five characters of 11 points: 55 by 22, and 2 more on each side.
  EXPECT_EQ(calls[2].op, DrawOp::rectangle);
  EXPECT_EQ(calls[2].box, wxRect(48, 58, 59, 26));
  EXPECT_EQ(calls[2].pen, (RecordedPen{{40, 80, 200}, 1, wxPENSTYLE_DOT}));
  EXPECT_EQ(calls[2].brush.style, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(ContentsLabels, LabelsGrowWithTheScaleFrom8PointsUp) {
  const auto points = [](double scale) {
    return Texts(Painted(WithLabel("Depot"), {scale, 0.0, 0.0}), "Depot").at(0).font.pointSize;
  };
  EXPECT_EQ(points(0.5), 8);  // 5.5
  EXPECT_EQ(points(0.9), 9);  // 9.9
  EXPECT_EQ(points(3.0), 33);
}

TEST(ContentsLabels, TextIsUtf8AndAnythingElseStaysVisibleAsLatin1) {
  EXPECT_EQ(Texts(Painted(WithLabel("Böblingen — Gleis 3")), "Böblingen — Gleis 3").size(), 1u);
  EXPECT_EQ(Texts(Painted(WithLabel("Caf\xE9", true)), "Café").size(), 1u);
}

TEST(ContentsTapes, ATapeIsALineWithAHeadAtEachEndAndItsLengthOnAPlate) {
  const auto calls = Painted(WithTape({100, 100}, {200, 100}));
  ASSERT_EQ(calls.size(), 6u);
  EXPECT_EQ(calls[1].op, DrawOp::line);
  EXPECT_EQ(calls[1].points, Points({{100, 100}, {200, 100}}));
  EXPECT_EQ(calls[1].pen, SolidPen({60, 60, 60}, 2));
  EXPECT_EQ(calls[2].op, DrawOp::polygon);
  EXPECT_EQ(calls[2].points, Points({{100, 100}, {110, 105}, {110, 95}}));
  EXPECT_EQ(calls[2].brush, SolidBrush({60, 60, 60}));
  EXPECT_EQ(calls[2].pen, SolidPen({60, 60, 60}, 2));
  EXPECT_EQ(calls[3].points, Points({{200, 100}, {190, 105}, {190, 95}}));
  // "100 mm" in 10 points is 60 by 20.
  EXPECT_EQ(calls[4].op, DrawOp::roundedRectangle);
  EXPECT_EQ(calls[4].box, wxRect(115, 88, 70, 24));
  EXPECT_EQ(calls[4].radius, 3.0);
  EXPECT_EQ(calls[4].brush, SolidBrush({255, 248, 220, 235}));
  EXPECT_EQ(calls[4].pen, SolidPen({60, 60, 60}, 1));
  EXPECT_EQ(calls[5].text, "100 mm");
  EXPECT_EQ(calls[5].points, Points({{120, 90}}));
  EXPECT_EQ(calls[5].font.pointSize, 10);
  EXPECT_EQ(calls[5].font.weight, 700);
  EXPECT_EQ(calls[5].textForeground, (Rgba{20, 20, 20}));
  EXPECT_EQ(calls[5].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(ContentsTapes, ASelectedTapeIsBlueAndThickButItsTextStaysDark) {
  const auto calls = Painted(WithTape({100, 100}, {200, 100}, true));
  ASSERT_EQ(calls.size(), 6u);
  EXPECT_EQ(calls[1].pen, SolidPen({40, 80, 200}, 3));
  EXPECT_EQ(calls[2].brush, SolidBrush({40, 80, 200}));
  EXPECT_EQ(calls[4].brush, SolidBrush({220, 232, 255, 235}));
  EXPECT_EQ(calls[4].pen, SolidPen({40, 80, 200}, 1));
  EXPECT_EQ(calls[5].textForeground, (Rgba{20, 20, 20}));
}

TEST(ContentsTapes, ALineOf6DeviceUnitsOrLessHasNoHeads) {
  EXPECT_EQ(OfOp(Painted(WithTape({100, 100}, {106, 100})), DrawOp::polygon).size(), 0u);
  EXPECT_EQ(OfOp(Painted(WithTape({100, 100}, {107, 100})), DrawOp::polygon).size(), 2u);
  // The same 60 mm are 6 units long at a tenth of the scale.
  EXPECT_EQ(OfOp(Painted(WithTape({100, 100}, {160, 100}), {0.1, 0, 0}), DrawOp::polygon).size(),
            0u);
}

TEST(ContentsTapes, HeadsAreTruncatedAtTheirBaseAndAgainAtTheirCorners) {
  const auto heads = OfOp(Painted(WithTape({100, 100}, {150, 150})), DrawOp::polygon);
  ASSERT_EQ(heads.size(), 2u);
  // u = (0.7071, 0.7071); base 107.07, corners 107 -+ 3.54 and 107 +- 3.54.
  EXPECT_EQ(heads[0].points, Points({{100, 100}, {103, 110}, {110, 103}}));
  // Base 142.93, so 142; in one step 142.93 - 3.54 would have given 139.
  EXPECT_EQ(heads[1].points, Points({{150, 150}, {138, 145}, {145, 138}}));
}

TEST(ContentsTapes, ThePlateIsMovedInWorldMillimetres) {
  Layout layout = WithTape({100, 100}, {200, 100});
  layout.measurements[0].moveX = 20;
  layout.measurements[0].moveY = -30;
  const auto text = Texts(Painted(layout, {2.0, 0.0, 0.0}), "100 mm");
  ASSERT_EQ(text.size(), 1u);
  // (150 + 20, 100 - 30) is (340, 140) on the device.
  EXPECT_EQ(text[0].points, Points({{310, 130}}));
}

TEST(ContentsTapes, ATapeToNowhereHasNoLength) {
  const auto calls = Painted(WithTape({std::nan(""), 100}, {200, 100}));
  EXPECT_EQ(OfOp(calls, DrawOp::line).size(), 1u);
  EXPECT_EQ(OfOp(calls, DrawOp::roundedRectangle).size(), 0u);
}

TEST(ContentsTapes, TheLengthIsTheWorldDistanceInTheUnitsShown) {
  Layout layout = WithTape({100, 100}, {400, 500});  // 300 across, 400 down: 500
  const std::pair<std::int32_t, const char*> expected[] = {
      {kMillimetres, "500 mm"}, {kCentimetres, "50.0 cm"}, {kInches, "19.69 in"}};
  for (const auto& [units, text] : expected) {
    layout.units = units;
    EXPECT_EQ(Texts(Painted(layout), text).size(), 1u) << text;
    EXPECT_EQ(OfOp(Painted(layout), DrawOp::text).size(), 1u) << text;
  }
}

}  // namespace
}  // namespace vantrel
