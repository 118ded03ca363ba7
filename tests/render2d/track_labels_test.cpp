#include <gtest/gtest.h>
#include <wx/font.h>

#include <limits>

#include "catalog/track_catalog.h"
#include "render2d/text_extent.h"
#include "tests/render2d/track_test_support.h"

namespace vantrel {
namespace {

PieceDef Straight(double length) {
  return makeStraight(TrackSystem::MarklinC, "24188", "", length);
}

DrawCall LabelOf(const PieceDef& def, const ViewTransform& view = kPlainView) {
  RecordingDC dc;
  dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def), def, view, false, true, false);
  const std::vector<DrawCall> texts = dc.texts(def.partNumber);
  EXPECT_EQ(texts.size(), 1u) << def.partNumber;
  return texts.empty() ? DrawCall{} : texts.front();
}

std::vector<DrawCall> CirclesOf(const std::vector<DrawCall>& calls) {
  std::vector<DrawCall> circles;
  for (const DrawCall& call : calls)
    if (call.isCircle()) circles.push_back(call);
  return circles;
}

TEST(PartNumber, StandsCentredOnTheMiddleInBold) {
  // Nine points: five characters of 9 are 45 wide, 18 high. The middle is at (1100, 1000).
  const DrawCall label = LabelOf(Straight(200.0));
  EXPECT_EQ(label.points, (Points{{1100 - 22, 1000 - 9}}));
  EXPECT_EQ(label.font.pointSize, 9);
  EXPECT_EQ(label.font.weight, 700);
  EXPECT_EQ(label.textForeground, (Rgba{50, 50, 50}));
  EXPECT_EQ(label.backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(PartNumber, IsUprightAtTheMiddleOfATurnedPiece) {
  RecordingDC dc;
  const PieceDef def = Straight(200.0);
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def, {0.0, 0.0, 90.0}), def, kPlainView, false, true,
                 false);
  EXPECT_EQ(dc.texts("24188").at(0).points, (Points{{1000 - 22, 1100 - 9}}));
}

TEST(PartNumber, StandsOnTheCentreLineOfACurve) {
  // (100 * cos 45, 100 - 100 * sin 45) = (70.71, 29.29)
  const PieceDef right = makeCurve(TrackSystem::MarklinC, "24188", "", 100.0, 90.0);
  EXPECT_EQ(LabelOf(right).points, (Points{{1071 - 22, 1029 - 9}}));
  const PieceDef left = makeCurve(TrackSystem::MarklinC, "24188", "", 100.0, -90.0);
  EXPECT_EQ(LabelOf(left).points, (Points{{1071 - 22, 971 - 9}}));
}

TEST(PartNumber, StandsAtHalfTheLengthOfEverythingElse) {
  PieceDef def = makeCurve(TrackSystem::MarklinC, "24188", "", 100.0, 90.0);
  def.length = 60.0;
  def.kind = PieceKind::OuterCurveTurnout;
  EXPECT_EQ(LabelOf(def).points, (Points{{1030 - 22, 1000 - 9}}));
  def.kind = PieceKind::Curve;
  def.radius = 0.0;
  EXPECT_EQ(LabelOf(def).points, (Points{{1030 - 22, 1000 - 9}}));
}

TEST(PartNumber, GrowsWithTheScaleButNotBelowSixPoints) {
  EXPECT_EQ(LabelOf(Straight(200.0), {2.5, 0.0, 0.0}).font.pointSize, 22);  // 22.5
  EXPECT_EQ(LabelOf(Straight(200.0), {0.7, 0.0, 0.0}).font.pointSize, 6);   // 6.3
  EXPECT_EQ(LabelOf(Straight(200.0), {0.2, 0.0, 0.0}).font.pointSize, 6);   // 1.8
}

TEST(PartNumber, HasTheColourOfTheSelection) {
  RecordingDC dc;
  const PieceDef def = Straight(200.0);
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def), def, kPlainView, true, true, false);
  EXPECT_EQ(dc.texts("24188").at(0).textForeground, kPickedOutline);
}

TEST(PartNumber, KeepsTheStyleOfTheDevicesFont) {
  RecordingDC dc;
  dc.SetFont(wxFont(wxFontInfo(20).Italic().Family(wxFONTFAMILY_TELETYPE)));
  const PieceDef def = Straight(200.0);
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def), def, kPlainView, false, true, false);
  const RecordedFont font = dc.texts("24188").at(0).font;
  EXPECT_EQ(font.style, wxFONTSTYLE_ITALIC);
  EXPECT_EQ(font.family, wxFONTFAMILY_TELETYPE);
  EXPECT_EQ(font.pointSize, 9);
  EXPECT_EQ(font.weight, 700);
}

TEST(PartNumber, HasEachSizeThatTheScaleAsksFor) {
  // Nine points for each pixel of a mm, cut off: 70 at a scale of 7.8.
  EXPECT_EQ(LabelOf(Straight(200.0), {7.8, 0.0, 0.0}).font.pointSize, 70);
  for (int points = 6; points <= 180; ++points)
    EXPECT_EQ(LabelOf(Straight(200.0), {(points + 0.5) / 9.0, 0.0, 0.0}).font.pointSize, points);
}

TEST(PartNumber, IsWrittenOnADeviceThatWasGivenNoFont) {
  RecordingDC dc;
  dc.SetFont(wxNullFont);
  const PieceDef def = Straight(200.0);
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def), def, kPlainView, false, true, false);
  EXPECT_EQ(dc.texts("24188").at(0).font.pointSize, 9);
}

TEST(PartNumber, IsMeasuredOnceAndItsFontSetOnceInAPaint) {
  RecordingDC dc;
  RenderContext context;
  const TextExtentsOfPaint paint(context);
  const PieceDef def = Straight(200.0);
  for (int i = 0; i < 10; ++i)
    DrawTrackPiece(context, dc, PieceOf(def, {300.0 * i, 0.0, 0.0}), def, kPlainView, false, true,
                   false);
  const std::vector<DrawCall> labels = dc.texts("24188");
  ASSERT_EQ(labels.size(), 10u);
  EXPECT_EQ(labels[9].points, (Points{{3800 - 22, 1000 - 9}}));
  EXPECT_EQ(dc.measurements(), 1);
  EXPECT_EQ(dc.fontChanges(), 1);
}

TEST(Detail, NoTextAndNoDotsAppearAtScale0Point19) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    const ViewTransform far{0.19, 0.0, 0.0};
    EXPECT_EQ(LabelledCalls(def, far), PlainCalls(def, {}, far)) << def.partNumber;
  }
  RecordingDC dc;
  DrawJoinDots(dc, PieceOf(Straight(200.0)), Straight(200.0), {0.19, 0.0, 0.0});
  EXPECT_TRUE(dc.calls().empty());
}

TEST(Detail, ALabelAndDotsAppearFromScale0Point2On) {
  const std::vector<DrawCall> calls = LabelledCalls(Straight(200.0), {0.2, 0.0, 0.0});
  EXPECT_EQ(OpsOf(calls),
            (std::vector<DrawOp>{DrawOp::polygon, DrawOp::text, DrawOp::ellipse, DrawOp::ellipse}));
}

TEST(Detail, NothingButTheBedAppearsWithoutLabels) {
  EXPECT_EQ(OpsOf(PlainCalls(Straight(200.0))), std::vector<DrawOp>{DrawOp::polygon});
}

TEST(Dots, MarkJoinedEndsGreenAndFreeEndsOrange) {
  PieceDef def = Sketch(PieceKind::Straight, 4);
  Piece piece = PieceOf(def);
  piece.joints.resize(3);       // the fourth connector has no slot
  piece.joints[1].target = 0;   // an id like any other
  piece.joints[2].target = -2;  // not -1, so not open
  RecordingDC dc;
  DrawJoinDots(dc, piece, def, kPlainView);
  EXPECT_EQ(FillsOf(dc.calls()), (std::vector<Rgba>{kOrange, kGreen, kGreen, kOrange}));
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_TRUE(dc.calls().at(i).isCircle());
    EXPECT_EQ(dc.calls()[i].brush.style, wxBRUSHSTYLE_SOLID);
    EXPECT_EQ(dc.calls()[i].centre(), wxPoint(1000 + 10 * static_cast<int>(i), 1000));
  }
}

TEST(Dots, HaveARimSevenTenthsAsLight) {
  PieceDef def = Sketch(PieceKind::Straight, 2);
  Piece piece = PieceOf(def);
  piece.joints[1].target = 3;
  RecordingDC dc;
  DrawJoinDots(dc, piece, def, kPlainView);
  const auto near = [](const RecordedPen& pen, Rgba wanted) {
    EXPECT_EQ(pen.width, 1);
    EXPECT_EQ(pen.style, wxPENSTYLE_SOLID);
    // The toolkit's own rounding may differ by one between its versions.
    EXPECT_NEAR(pen.colour.r, wanted.r, 1);
    EXPECT_NEAR(pen.colour.g, wanted.g, 1);
    EXPECT_NEAR(pen.colour.b, wanted.b, 1);
  };
  near(dc.calls().at(0).pen, {178, 98, 0});
  near(dc.calls().at(1).pen, {42, 126, 42});
}

TEST(Dots, AreTwoAndAHalfMmAndAtLeastThreeDeviceUnits) {
  const PieceDef def = Sketch(PieceKind::Straight, 1);
  const auto radiusAt = [&](double scale) {
    RecordingDC dc;
    DrawJoinDots(dc, PieceOf(def), def, {scale, 0.0, 0.0});
    return dc.calls().at(0).circleRadius();
  };
  EXPECT_EQ(radiusAt(0.2), 3);
  EXPECT_EQ(radiusAt(1.5), 3);   // 3.75
  EXPECT_EQ(radiusAt(1.61), 4);  // 4.025
  EXPECT_EQ(radiusAt(3.1), 7);   // 7.75
}

TEST(Dots, StandAtTheConnectorsOfATurnedPiece) {
  // The branch of 24640 ends at (8.34, -38.74) and (179.96, 38.74); turned by 90 degrees a local
  // (lx, ly) lies at (-ly, lx).
  const PieceDef& def = *findPart("24640");
  RecordingDC dc;
  DrawJoinDots(dc, PieceOf(def, {0.0, 0.0, 90.0}), def, kPlainView);
  ASSERT_EQ(dc.calls().size(), 4u);
  EXPECT_EQ(dc.calls()[0].centre(), wxPoint(1000, 1000));
  EXPECT_EQ(dc.calls()[1].centre(), wxPoint(1000, 1188));
  EXPECT_EQ(dc.calls()[2].centre(), wxPoint(1039, 1008));
  EXPECT_EQ(dc.calls()[3].centre(), wxPoint(961, 1180));
}

TEST(Dots, EveryKindOfPlacedPieceHasThemAfterItsLabel) {
  for (const char* part : {"24188", "24130", "24611", "24612", "24630", "24672", "24624", "24977",
                           "24640", "74861", "2269"}) {
    const PieceDef& def = *findPart(part);
    const std::vector<DrawCall> calls = LabelledCalls(def, kPlainView);
    const std::size_t shape = PlainCalls(def).size();
    ASSERT_EQ(calls.size(), shape + 1 + def.connectors.size()) << part;
    EXPECT_EQ(calls[shape].text, part);
    const std::vector<DrawCall> dots(
        calls.end() - static_cast<std::ptrdiff_t>(def.connectors.size()), calls.end());
    EXPECT_EQ(CirclesOf(dots).size(), def.connectors.size());
    for (const DrawCall& dot : dots) EXPECT_EQ(dot.brush, SolidBrush(kOrange)) << part;
  }
}

TEST(Detail, AScaleThatIsNoNumberShowsNone) {
  const ViewTransform view{std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0};
  EXPECT_EQ(OpsOf(LabelledCalls(Straight(200.0), view)), std::vector<DrawOp>{DrawOp::polygon});
}

}  // namespace
}  // namespace vantrel
