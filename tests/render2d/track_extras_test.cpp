#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include "catalog/track_catalog.h"
#include "tests/render2d/track_test_support.h"

namespace vantrel {
namespace {

using enum DrawOp;

PieceDef StraightBridge(double length) {
  PieceDef def = makeStraight(TrackSystem::MarklinC, "bridge", "", length);
  def.isBridge = true;
  return def;
}

PieceDef CurvedBridge(double radius, double angle) {
  PieceDef def = makeCurve(TrackSystem::MarklinC, "bridge", "", radius, angle);
  def.isBridge = true;
  return def;
}

// Its second end lies to the left, as the builder of right-hand curves never makes it.
PieceDef LeftBridge(double radius, double angle) {
  PieceDef def = CurvedBridge(radius, -angle);
  def.connectors[1].y = -def.connectors[1].y;
  return def;
}

DrawCall ArchOf(const PieceDef& def, Pose pose = {}, const ViewTransform& view = kPlainView) {
  const std::vector<DrawCall> calls = PlainCalls(def, pose, view);
  EXPECT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, ellipticArc}));
  return calls.back();
}

TEST(StraightArch, SpansTheBridgeInABoxAQuarterAsHigh) {
  // r = 100, the middle at (1100, 1000).
  const DrawCall arch = ArchOf(StraightBridge(200.0));
  EXPECT_EQ(arch.box, wxRect(1000, 975, 200, 50));
  EXPECT_EQ(arch.startAngle, 180.0);
  EXPECT_EQ(arch.endAngle, 360.0);
  EXPECT_EQ(arch.pen, SolidPen({80, 100, 130, 180}, 1));
  EXPECT_EQ(arch.brush.style, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(StraightArch, StaysUprightAndOnlyItsAnglesFollowTheHeading) {
  // The middle at (85.81, 51.35).
  const DrawCall arch = ArchOf(StraightBridge(200.0), {0.0, 0.0, 30.9});
  EXPECT_EQ(arch.box, wxRect(986, 1026, 200, 50));
  EXPECT_EQ(arch.startAngle, 210.0);
  EXPECT_EQ(arch.endAngle, 390.0);
}

TEST(StraightArch, SizesAreDividedInIntegers) {
  // r = trunc(95 * 0.35 = 33.25) = 33; the middle at trunc(0.35 * 95 + 1000.5) = 1033;
  // 33 / 4 = 8, 33 / 2 = 16.
  const DrawCall arch = ArchOf(StraightBridge(190.0), {}, {0.35, 1000.5, 1000.5});
  EXPECT_EQ(arch.box, wxRect(1000, 992, 66, 16));
  EXPECT_EQ(arch.pen.width, 1);
}

TEST(StraightArch, OneThatIsASingleUnitHighIsStillDrawn) {
  // r = trunc(100 * 0.03) = 3, so 6 wide and 3 / 2 = 1 high; the middle at 1003, 3 / 4 = 0 up.
  EXPECT_EQ(ArchOf(StraightBridge(200.0), {}, {0.03, 1000.5, 1000.5}).box,
            wxRect(1000, 1000, 6, 1));
}

TEST(StraightArch, ThePenGrowsWithTheScale) {
  EXPECT_EQ(ArchOf(StraightBridge(200.0), {}, {2.5, 0.0, 0.0}).pen.width, 3);  // 3.75
  EXPECT_EQ(ArchOf(StraightBridge(200.0), {}, {0.1, 0.0, 0.0}).pen.width, 1);  // 0.15
}

TEST(CurvedArch, StandsAtTheMiddleOfTheArc) {
  // r = trunc(105 * 0.22 = 23.1) = 23. The middle: (105 * sin 45, 105 * (1 - cos 45)) =
  // (74.25, 30.75). 23 / 3 = 7, 46 / 3 = 15.
  const DrawCall arch = ArchOf(CurvedBridge(105.0, 90.0));
  EXPECT_EQ(arch.box, wxRect(1074 - 23, 1031 - 7, 46, 15));
  EXPECT_EQ(arch.startAngle, 90.0);
  EXPECT_EQ(arch.endAngle, 270.0);
  EXPECT_EQ(arch.pen, SolidPen({80, 100, 130, 200}, 1));
  EXPECT_EQ(arch.brush.style, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(CurvedArch, IsMirroredForACurveWhoseEndLiesToTheLeft) {
  const DrawCall arch = ArchOf(LeftBridge(105.0, 90.0));
  EXPECT_EQ(arch.box, wxRect(1074 - 23, 969 - 7, 46, 15));  // 1000.5 - 30.75 = 969.75
  EXPECT_EQ(arch.startAngle, -90.0);
  EXPECT_EQ(arch.endAngle, 90.0);
}

TEST(CurvedArch, TheSideComesFromConnector1AndIsTheRightOneWithoutIt) {
  PieceDef def = LeftBridge(105.0, 90.0);
  def.connectors[1].y = -0.1;
  EXPECT_EQ(ArchOf(def).startAngle, -90.0);
  for (const double y : {0.0, 0.9}) {
    def.connectors[1].y = y;
    EXPECT_EQ(ArchOf(def).startAngle, 90.0) << y;
  }
  def.connectors.pop_back();
  EXPECT_EQ(ArchOf(def).startAngle, 90.0);
  def.connectors.clear();
  EXPECT_EQ(ArchOf(def).box, wxRect(1074 - 23, 1031 - 7, 46, 15));
}

TEST(CurvedArch, StaysUprightAndItsAnglesAreTruncated) {
  // Turned by 90.7 degrees the middle (74.25, 30.75) lies at (-31.65, 73.86).
  const DrawCall arch = ArchOf(CurvedBridge(105.0, 90.0), {0.0, 0.0, 90.7});
  EXPECT_EQ(arch.box, wxRect(968 - 23, 1074 - 7, 46, 15));
  EXPECT_EQ(arch.startAngle, 180.0);
  EXPECT_EQ(arch.endAngle, 360.0);
}

TEST(Arch, RampsHaveOneAndPlainTrackHasNone) {
  EXPECT_EQ(PlainCalls(*findPart("74618")).size(), 2u);
  EXPECT_EQ(PlainCalls(*findPart("74613")).size(), 2u);
  EXPECT_EQ(PlainCalls(*findPart("24188")).size(), 1u);
  EXPECT_EQ(PlainCalls(*findPart("24130")).size(), 1u);
}

TEST(Arch, OneTooSmallToSeeDoesNotStopWhatIsDrawnAfterIt) {
  // An arc in a box without height would leave the device unusable.
  wxBitmap bitmap(100, 100, 24);
  {
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    const ViewTransform tiny{0.01, 10.0, 10.0};
    for (const PieceDef& def : {StraightBridge(200.0), CurvedBridge(360.0, 30.0)})
      DrawTrackPiece(RenderContext{}, dc, PieceOf(def), def, tiny, false, false, false);
    dc.SetPen(*wxRED_PEN);
    dc.SetBrush(*wxRED_BRUSH);
    dc.DrawRectangle(40, 40, 20, 20);
  }
  const wxImage image = bitmap.ConvertToImage();
  EXPECT_EQ(image.GetRed(50, 50), 255);
  EXPECT_EQ(image.GetGreen(50, 50), 0);
}

TEST(Marker, ACircuitTrackHasAShortBarAcrossItsMiddle) {
  // Centred at 47.1, 8 to each end and 4 to each side.
  const std::vector<DrawCall> calls = PlainCalls(*findPart("24994"));
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(calls[1].points, (Points{{1039, 1004}, {1039, 996}, {1055, 996}, {1055, 1004}}));
  EXPECT_EQ(calls[1].pen, SolidPen({60, 60, 160}, 1));
  EXPECT_EQ(calls[1].brush, SolidBrush({100, 120, 220}));
}

TEST(Marker, AnUncouplerHasALongBar) {
  // From 31.1 to 63.1.
  const std::vector<DrawCall> calls = PlainCalls(*findPart("24997"));
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(calls[1].points, (Points{{1031, 1004}, {1031, 996}, {1063, 996}, {1063, 1004}}));
}

TEST(Marker, TurnsAndScalesWithThePiece) {
  // Heading 90 from (10, 20) at scale 2, 30 mm ahead: x from 6 to 14, y from 45 to 55.
  RecordingDC dc;
  DrawTrackMarker(dc, {2.0, 0.5, 0.5}, {10.0, 20.0}, 90.0, 30.0, 5.0, 4.0, 1);
  EXPECT_EQ(dc.calls().at(0).points, (Points{{12, 90}, {28, 90}, {28, 110}, {12, 110}}));
}

TEST(Marker, ThePenIsNeverThinnerThanOne) {
  RecordingDC dc;
  DrawTrackMarker(dc, kPlainView, {0.0, 0.0}, 0.0, 0.0, 5.0, 4.0, 0);
  DrawTrackMarker(dc, kPlainView, {0.0, 0.0}, 0.0, 0.0, 5.0, 4.0, 3);
  EXPECT_EQ(dc.calls().at(0).pen, SolidPen({60, 60, 160}, 1));
  EXPECT_EQ(dc.calls().at(1).pen, SolidPen({60, 60, 160}, 3));
}

TEST(ContactCurve, HasAMarkAtTheMiddleOfItsArc) {
  // 437.5 * sin 7.5 = 57.11, 437.5 * (1 - cos 7.5) = 3.74.
  const std::vector<DrawCall> calls = PlainCalls(*findPart("24294"));
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, rectangle}));
  EXPECT_EQ(calls[1].box, wxRect(1057 - 8, 1004 - 4, 16, 8));
  EXPECT_EQ(calls[1].pen, SolidPen({60, 60, 160}, 1));
  EXPECT_EQ(calls[1].brush, SolidBrush({100, 120, 220}));
}

TEST(ContactCurve, TheMarkStaysUpright) {
  const std::vector<DrawCall> calls = PlainCalls(*findPart("24294"), {0.0, 0.0, 90.0});
  EXPECT_EQ(calls.at(1).box, wxRect(996 - 8, 1057 - 4, 16, 8));  // at (-3.74, 57.11)
}

TEST(ContactCurve, TheMarkLiesOnTheLeftForALeftHandCurve) {
  PieceDef def = *findPart("24294");
  def.angle = -15.0;
  def.connectors[1].y = -def.connectors[1].y;
  EXPECT_EQ(PlainCalls(def).at(1).box, wxRect(1057 - 8, 996 - 4, 16, 8));  // 1000.5 - 3.74
}

TEST(ContactCurve, TheMarkKeepsALeastSize) {
  const PieceDef& def = *findPart("24294");
  const auto sizeAt = [&](double scale) {
    return PlainCalls(def, {}, {scale, 0.0, 0.0}).at(1).box.GetSize();
  };
  EXPECT_EQ(sizeAt(0.80), wxSize(12, 6));  // 6.4 and 3.2
  EXPECT_EQ(sizeAt(0.74), wxSize(10, 4));  // 5.92 and 2.96, which is below 3
  EXPECT_EQ(sizeAt(0.30), wxSize(6, 4));   // 2.4 and 1.2
}

TEST(TrackEnd, HasABumperBarAcrossItsFarEnd) {
  const PieceDef def = makeTrackEnd(TrackSystem::MarklinC, "end", "", 50.0);
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, line}));
  EXPECT_EQ(calls[0].points, (Points{{1000, 1019}, {1000, 981}, {1050, 981}, {1050, 1019}}));
  EXPECT_EQ(calls[1].points, (Points{{1050, 1008}, {1050, 992}}));
  EXPECT_EQ(calls[1].pen, SolidPen({40, 40, 40}, 4));
  EXPECT_EQ(PlainCalls(def, {}, {2.4, 0.0, 0.0}).at(1).pen.width, 9);  // 9.6
  EXPECT_EQ(PlainCalls(def, {}, {0.3, 0.0, 0.0}).at(1).pen.width, 4);
}

TEST(TrackEnd, TheBarTurnsWithThePiece) {
  const PieceDef def = makeTrackEnd(TrackSystem::MarklinC, "end", "", 50.0);
  EXPECT_EQ(PlainCalls(def, {0.0, 0.0, 90.0}).at(1).points, (Points{{992, 1050}, {1008, 1050}}));
}

TEST(StraightExtras, FollowEachOtherInTheirOrder) {
  PieceDef def = makeTrackEnd(TrackSystem::MarklinC, "end", "", 50.0);
  def.isBridge = true;
  def.mark = TrackMark::circuitBar;
  EXPECT_EQ(OpsOf(PlainCalls(def)), (std::vector<DrawOp>{polygon, ellipticArc, polygon, line}));
}

TEST(CurveExtras, FollowEachOtherInTheirOrder) {
  PieceDef def = *findPart("24294");
  def.isBridge = true;
  EXPECT_EQ(OpsOf(PlainCalls(def)), (std::vector<DrawOp>{polygon, ellipticArc, rectangle}));
}

TEST(Extras, BelongToStraightsAndCurvesOnly) {
  PieceDef turnout = *findPart("24612");
  turnout.isBridge = true;
  turnout.partNumber = "24994";
  EXPECT_EQ(OpsOf(PlainCalls(turnout)), (std::vector<DrawOp>{polygon, polygon}));
  PieceDef straight = *findPart("24188");
  straight.partNumber = "24294";
  EXPECT_EQ(OpsOf(PlainCalls(straight)), std::vector<DrawOp>{polygon});
  PieceDef curve = *findPart("24130");
  curve.partNumber = "24994";
  EXPECT_EQ(OpsOf(PlainCalls(curve)), std::vector<DrawOp>{polygon});
}

}  // namespace
}  // namespace vantrel
