#include "palette/part_icon.h"

#include <gtest/gtest.h>
#include <wx/image.h>

#include "catalog/track_catalog.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

constexpr double kTiny = 1e-4;

// 64 / 218.75 * 0.82, the scale of every part that neither bends nor branches much.
constexpr double kCommonScale = 0.2399086;

const PieceDef& Part(const char* number) {
  const PieceDef* def = findPart(number);
  EXPECT_NE(def, nullptr) << number;
  return *def;
}

PieceDef Arc(double radius, double angle) {
  PieceDef def;
  def.kind = PieceKind::Curve;
  def.radius = radius;
  def.angle = angle;
  def.connectors.resize(2);
  return def;
}

TEST(IconView, GivesAStraightTheCommonScaleAndCentresIt) {
  // The bend is 40: 64 / 40 = 1.6 is the larger of the two.
  const ViewTransform view = iconView(Part("24188"));
  EXPECT_NEAR(view.scale, kCommonScale, 1e-7);
  EXPECT_NEAR(view.offsetX, 17.4126, kTiny);  // 40 - 188.3 * 0.2399086 / 2
  EXPECT_DOUBLE_EQ(view.offsetY, 40.0);
}

TEST(IconView, GivesAWideCurveTheCommonScaleToo) {
  // 1 - cos 12.1 is 0.022216, times 1114.6 times 2.5 is a bend of 61.9: 64 / 61.9 = 1.03.
  const ViewTransform view = iconView(Part("24912"));
  EXPECT_NEAR(view.scale, kCommonScale, 1e-7);
  EXPECT_NEAR(view.offsetX, 11.7643, kTiny);  // arc length 235.3866
}

TEST(IconView, GivesACurvedTurnoutTheCommonScaleToo) {
  // 1 - cos 30 is 0.1339746, times 360 times 2.5 is a bend of 120.6: 64 / 120.6 = 0.53.
  const ViewTransform view = iconView(Part("24671"));
  EXPECT_NEAR(view.scale, kCommonScale, 1e-7);
  EXPECT_NEAR(view.offsetX, 9.1118, kTiny);  // length 257.5
}

TEST(IconView, ShrinksATurntableToAnExtentOf600) {
  // 64 / 600 * 0.82 = 0.0874667; the length is 378.
  const ViewTransform view = iconView(Part("74861"));
  EXPECT_NEAR(view.scale, 0.0874667, 1e-7);
  EXPECT_NEAR(view.offsetX, 23.4688, kTiny);
  EXPECT_DOUBLE_EQ(view.offsetY, 40.0);
}

TEST(IconView, ShrinksAPartThatBendsFurtherThanItIsLong) {
  // 1 - cos 90 is 1: a bend of 500 * 2.5 = 1250, and 64 / 1250 = 0.0512.
  EXPECT_NEAR(iconView(Arc(500.0, 90.0)).scale, 0.0512, 1e-9);
  EXPECT_NEAR(iconView(Arc(500.0, -90.0)).scale, 0.0512, 1e-9);
}

TEST(IconView, NeverShrinksBelowThreeHundredths) {
  EXPECT_DOUBLE_EQ(iconView(Arc(5000.0, 90.0)).scale, 0.03);  // 64 / 12500 = 0.005
}

TEST(IconView, TakesNoBendFromARadiusWithoutAnAngle) {
  EXPECT_NEAR(iconView(Arc(5000.0, 0.0)).scale, kCommonScale, 1e-7);
}

TEST(IconView, CountsALengthBelowOneAsOne) {
  PieceDef def = Arc(0.0, 0.0);
  def.length = 0.25;
  EXPECT_NEAR(iconView(def).offsetX, 39.880046, 1e-6);  // 40 - 0.2399086 / 2
}

TEST(PreviewView, FitsAStraightIntoFourFifthsOf68) {
  // 33 / 40 = 0.825 is larger than 68 / 188.3 = 0.361126; times 0.8 that is 0.288901.
  const ViewTransform view = previewView(Part("24188"));
  EXPECT_NEAR(view.scale, 0.288901, 1e-6);
  EXPECT_NEAR(view.offsetX, 12.8, 1e-9);  // 40 - 68 * 0.8 / 2
  EXPECT_DOUBLE_EQ(view.offsetY, 30.5);
}

TEST(PreviewView, FitsACurveByItsBend) {
  // A bend of 0.1339746 * 360 * 2.5 = 120.577: 33 / 120.577 = 0.273684, times 0.8 is 0.218947.
  const ViewTransform view = previewView(Part("24130"));
  EXPECT_NEAR(view.scale, 0.218947, 1e-6);
  EXPECT_NEAR(view.offsetX, 19.36465, kTiny);  // arc length 188.49556
}

TEST(PreviewView, GivesABranchingPartABendOf60) {
  PieceDef def;
  def.length = 10.0;
  def.connectors.resize(2);
  EXPECT_NEAR(previewView(def).scale, 0.66, 1e-9);  // 33 / 40 * 0.8
  def.connectors.resize(3);
  EXPECT_NEAR(previewView(def).scale, 0.44, 1e-9);  // 33 / 60 * 0.8
}

TEST(PreviewView, NeverShrinksBelowFiveHundredths) {
  PieceDef def;
  def.length = 5000.0;
  EXPECT_DOUBLE_EQ(previewView(def).scale, 0.05);  // 68 / 5000 * 0.8 = 0.011
}

TEST(LoosePart, DrawsAStraightInItsPlainColoursWithoutLabelOrDots) {
  RecordingDC dc;
  drawLoosePart({}, dc, Part("24188"), iconView(Part("24188")));
  ASSERT_EQ(dc.calls().size(), 1u);
  const DrawCall& bed = dc.calls()[0];
  EXPECT_EQ(bed.op, DrawOp::polygon);
  // x: 17.41 and 17.41 + 188.3 * 0.23991 = 62.59; y: 40 +- 18.7 * 0.23991 = 44.49 and 35.51.
  EXPECT_EQ(bed.points, (std::vector<wxPoint>{{17, 44}, {17, 35}, {62, 35}, {62, 44}}));
  EXPECT_EQ(bed.brush, SolidBrush({210, 210, 205}));
  EXPECT_EQ(bed.pen, SolidPen({120, 120, 115}, 1));
}

TEST(LoosePart, DrawsATurntableWithoutSpokes) {
  RecordingDC dc;
  drawLoosePart({}, dc, Part("74861"), iconView(Part("74861")));
  EXPECT_EQ(dc.count(DrawOp::line), 1u);  // the bridge
  const std::vector<DrawCall> circles = dc.circles();
  ASSERT_EQ(circles.size(), 32u);  // deck, pit and 30 stubs
  EXPECT_EQ(circles[0].centre(), wxPoint(23, 40));
  EXPECT_EQ(circles[0].circleRadius(), 16);  // 189 * 0.0874667 = 16.53
  EXPECT_EQ(circles[1].circleRadius(), 12);  // 139 * 0.0874667 = 12.16
}

TEST(PartIcon, Is80SquareWithTheBedOnWhite) {
  const wxBitmap icon = renderPartIcon({}, &Part("24188"));
  ASSERT_TRUE(icon.IsOk());
  EXPECT_EQ(icon.GetSize(), wxSize(80, 80));
  EXPECT_EQ(icon.GetMask(), nullptr);
  const wxImage image = icon.ConvertToImage();
  for (const wxPoint& corner : {wxPoint(0, 0), wxPoint(79, 0), wxPoint(0, 79), wxPoint(79, 79)}) {
    EXPECT_EQ(image.GetRed(corner.x, corner.y), 255);
    EXPECT_EQ(image.GetBlue(corner.x, corner.y), 255);
  }
  EXPECT_EQ(image.GetRed(40, 40), 210);
  EXPECT_EQ(image.GetGreen(40, 40), 210);
  EXPECT_EQ(image.GetBlue(40, 40), 205);
}

TEST(PartIcon, OfNoPartIsPlainWhite) {
  const wxImage image = renderPartIcon({}, nullptr).ConvertToImage();
  ASSERT_EQ(image.GetSize(), wxSize(80, 80));
  const unsigned char* data = image.GetData();
  int coloured = 0;
  for (int i = 0; i < 80 * 80 * 3; ++i) coloured += data[i] != 255 ? 1 : 0;
  EXPECT_EQ(coloured, 0);
}

}  // namespace
}  // namespace vantrel
