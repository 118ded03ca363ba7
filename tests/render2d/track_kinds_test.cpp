// Which beds each kind is made of, in which order and colour. Bed outlines have their own tests;
// here a bed is known by the call that makes it, and places are worked out by hand.
#include <gtest/gtest.h>

#include "catalog/track_catalog.h"
#include "tests/render2d/track_test_support.h"

namespace vantrel {
namespace {

using enum DrawOp;

const PieceDef& Row(const char* part) {
  const PieceDef* def = findPart(part);
  if (def == nullptr) throw std::runtime_error(std::string("no row ") + part);
  return *def;
}

Points StraightOf(const PieceDef& def) {
  return StraightBedPolygon({}, def, kPlainView);
}

Points ArcOf(const PieceDef& def, int route, Pose pose = {}) {
  return ArcBedPolygon(pose, def, kPlainView, route);
}

void ExpectOutlined(const std::vector<DrawCall>& calls) {
  for (const DrawCall& call : calls) EXPECT_EQ(call.pen, SolidPen(kDefaultOutline, 1));
}

TEST(StraightTrack, IsOneStraightBed) {
  const std::vector<DrawCall> calls = PlainCalls(Row("24188"));
  ASSERT_EQ(OpsOf(calls), std::vector<DrawOp>{polygon});
  // 188.3 long, 18.7 to each side.
  EXPECT_EQ(calls[0].points, (Points{{1000, 1019}, {1000, 981}, {1188, 981}, {1188, 1019}}));
  EXPECT_EQ(calls[0].brush, SolidBrush(kDefaultFill));
  ExpectOutlined(calls);
}

TEST(StraightTrack, TheUnnamedKindSevenIsDrawnLikeAStraightOne) {
  PieceDef def = Row("74620");
  const std::vector<DrawCall> straight = PlainCalls(def);
  EXPECT_EQ(OpsOf(straight), (std::vector<DrawOp>{polygon, ellipticArc}));
  def.kind = PieceKind{7};
  EXPECT_EQ(PlainCalls(def), straight);
}

TEST(UnknownKind, IsAStraightBedAndNothingMore) {
  PieceDef def = Row("74620");  // a bridge
  for (const char* part : {"74620", "24994", "24997", "24294"}) {
    for (const int kind : {9, 12, -1, 1000}) {
      def.kind = PieceKind{kind};
      def.partNumber = part;
      const std::vector<DrawCall> calls = PlainCalls(def);
      ASSERT_EQ(OpsOf(calls), std::vector<DrawOp>{polygon}) << part << " kind " << kind;
      EXPECT_EQ(calls[0].points, StraightOf(def));
      EXPECT_EQ(calls[0].brush, SolidBrush(kDefaultFill));
    }
  }
}

TEST(CurveTrack, IsOneArc) {
  const PieceDef& def = Row("24130");
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(OpsOf(calls), std::vector<DrawOp>{polygon});
  EXPECT_EQ(calls[0].points, ArcOf(def, 1));
  EXPECT_EQ(calls[0].brush, SolidBrush(kDefaultFill));
  ExpectOutlined(calls);
}

TEST(Turnout, IsAStraightBedUnderADarkerBranch) {
  for (const char* part : {"24611", "24612"}) {
    const PieceDef& def = Row(part);
    const std::vector<DrawCall> calls = PlainCalls(def);
    ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon})) << part;
    EXPECT_EQ(calls[0].points, StraightOf(def));
    EXPECT_EQ(calls[1].points, ArcOf(def, 2));
    EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kDefaultFill, kDefaultBranch}));
    ExpectOutlined(calls);
  }
}

TEST(Turnout, AThreeWayOneHasItsStraightBedOnTopOfBothBranches) {
  const PieceDef& def = Row("24630");
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon, polygon}));
  EXPECT_EQ(calls[0].points, ArcOf(def, 2));
  EXPECT_EQ(calls[1].points, ArcOf(def, 3));
  EXPECT_EQ(calls[2].points, StraightOf(def));
  EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kDefaultBranch, kDefaultBranch, kDefaultFill}));
  ExpectOutlined(calls);
}

TEST(Turnout, TheBranchOfAPlacedOneIsCutAtItsLength) {
  // asin(110 / 490) = 12.972 degrees: the outer end at (496 * 110 / 490, 490 - 496 * cos 12.972) =
  // (111.35, 6.66), mirrored for the left one; uncut x would be 111.58.
  for (const PieceKind kind : {PieceKind::RightTurnout, PieceKind::LeftTurnout}) {
    const PieceDef def = makeTurnout(TrackSystem::MarklinZ, "t", "", kind, 110.0, 490.0, 13.0);
    const Points branch = PlainCalls(def).at(1).points;
    ASSERT_EQ(branch.size(), 34u);
    EXPECT_EQ(branch[16], wxPoint(1111, kind == PieceKind::RightTurnout ? 1007 : 993));
  }
}

TEST(Turnout, ARightOneIsNeverThreeWay) {
  PieceDef def = Row("24630");
  def.kind = PieceKind::RightTurnout;
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[1].points, ArcOf(def, 2));
  EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kDefaultFill, kDefaultBranch}));
}

TEST(Crossing, IsAStraightBedUnderASecondOneFromConnector2To3) {
  const std::vector<DrawCall> calls = PlainCalls(Row("24640"));
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(calls[0].points, StraightOf(Row("24640")));
  // From (8.34, -38.74) to (179.96, 38.74) at 24.3 degrees; 18.7 mm aside is (-7.695, 17.043):
  // (0.645, -21.697), (16.035, -55.783), (187.652, 21.705), (172.262, 55.791).
  EXPECT_EQ(calls[1].points, (Points{{1001, 978}, {1016, 944}, {1188, 1022}, {1172, 1056}}));
  EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kDefaultFill, {200, 200, 200}}));
  ExpectOutlined(calls);
}

TEST(Crossing, TheSecondBedTurnsWithThePiece) {
  // Turned by 90 degrees a local (lx, ly) lies at (-ly, lx).
  const std::vector<DrawCall> calls = PlainCalls(Row("24640"), {0.0, 0.0, 90.0});
  EXPECT_EQ(calls.at(1).points, (Points{{1022, 1001}, {1056, 1016}, {978, 1188}, {944, 1172}}));
}

TEST(Crossing, WithThreeConnectorsIsOnlyTheStraightBed) {
  PieceDef def = Row("24640");
  def.connectors.pop_back();
  EXPECT_EQ(OpsOf(PlainCalls(def)), std::vector<DrawOp>{polygon});
}

TEST(CurvedTurnout, IsTwoParallelArcsWithAStraightLinkBeforeTheOuterOne) {
  const PieceDef& def = Row("24772");  // its ends lie 321.5 - 257.5 = 64 mm apart
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon, polygon}));
  EXPECT_EQ(calls[0].points, ArcOf(def, 1));
  EXPECT_EQ(calls[1].points, (Points{{1000, 1019}, {1000, 981}, {1064, 981}, {1064, 1019}}));
  EXPECT_EQ(calls[2].points, ArcOf(def, 1, {64.0, 0.0, 0.0}));
  EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kDefaultFill, kDefaultBranch, kDefaultBranch}));
  ExpectOutlined(calls);
}

TEST(CurvedTurnout, TheLinkRunsAlongTheHeading) {
  // 64 mm down the screen from (10, 20).
  const std::vector<DrawCall> calls = PlainCalls(Row("24772"), {10.0, 20.0, 90.0});
  EXPECT_EQ(calls.at(1).points, (Points{{991, 1020}, {1029, 1020}, {1029, 1084}, {991, 1084}}));
  EXPECT_EQ(calls.at(2).points, ArcOf(Row("24772"), 1, {10.0, 84.0, 90.0}));
}

TEST(CurvedTurnout, TheLinksLengthHasNoSign) {
  PieceDef def = Row("24772");
  std::swap(def.connectors[1].x, def.connectors[2].x);
  EXPECT_EQ(PlainCalls(def), PlainCalls(Row("24772")));
}

TEST(CurvedTurnout, WithTwoConnectorsHasALinkOf77Point5Mm) {
  PieceDef def = Row("24772");
  def.connectors.pop_back();
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[1].points, (Points{{1000, 1019}, {1000, 981}, {1078, 981}, {1078, 1019}}));
  EXPECT_EQ(calls[2].points, ArcOf(def, 1, {77.5, 0.0, 0.0}));
}

TEST(OuterCurveTurnout, IsAnArcAStraightBedAndTheSameArcFurtherOn) {
  const PieceDef& def = Row("2269");  // K-Track, 64.6 mm long
  const std::vector<DrawCall> calls = PlainCalls(def);
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon, polygon}));
  EXPECT_EQ(calls[0].points, ArcOf(def, 1));
  EXPECT_EQ(calls[1].points, (Points{{1000, 1019}, {1000, 981}, {1065, 981}, {1065, 1019}}));
  EXPECT_EQ(calls[2].points, ArcOf(def, 1, {64.6, 0.0, 0.0}));
  const Rgba branch{200, 185, 165};
  EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{{215, 200, 175}, branch, branch}));
  ExpectOutlined(calls);
}

class DoubleSlip : public testing::Test {
 protected:
  const PieceDef& def = Row("24624");
  std::vector<DrawCall> calls = PlainCalls(def);
};

TEST_F(DoubleSlip, IsTwoStraightBedsUnderTwoSlipsWithoutEdges) {
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon, polygon, polygon, lines, lines,
                                               line, line, line, line}));
  EXPECT_EQ(calls[0].points, StraightOf(def));
  EXPECT_EQ(calls[1].points, (Points{{1001, 978}, {1016, 944}, {1188, 1022}, {1172, 1056}}));
  EXPECT_EQ(calls[0].brush, SolidBrush(kDefaultFill));
  EXPECT_EQ(calls[1].brush, SolidBrush({202, 202, 201}));  // 210 - 8, 210 - 8, 205 - 4
  EXPECT_EQ(calls[0].pen, SolidPen(kDefaultOutline, 1));
  EXPECT_EQ(calls[1].pen, SolidPen(kDefaultOutline, 1));
  const Rgba slip{220, 220, 223};  // 210 + 10, 210 + 10, 205 + 18
  for (const std::size_t i : {2u, 3u}) {
    EXPECT_EQ(calls[i].brush, SolidBrush(slip));
    EXPECT_EQ(calls[i].pen, SolidPen(slip, 0));
  }
  EXPECT_EQ(calls[2].points, ArcOf(def, 1));
  PieceDef mirrored = def;
  mirrored.angle = -24.3;
  EXPECT_EQ(calls[3].points, ArcOf(mirrored, 1, {8.34, -38.74, 24.3}));
}

TEST_F(DoubleSlip, StrokesOnlyTheOuterEdgesOfItsSlips) {
  // 24.3 degrees have 16 segments: 34 points, the first 17 on the outer edge.
  const Points arcA = calls.at(2).points;
  const Points arcB = calls.at(3).points;
  ASSERT_EQ(arcA.size(), 34u);
  ASSERT_EQ(arcB.size(), 34u);
  EXPECT_EQ(calls.at(4).points, Points(arcA.begin(), arcA.begin() + 17));
  EXPECT_EQ(calls.at(5).points, Points(arcB.begin(), arcB.begin() + 17));
  for (std::size_t i = 4; i < calls.size(); ++i)
    EXPECT_EQ(calls[i].pen, SolidPen(kDefaultOutline, 1)) << i;
}

TEST_F(DoubleSlip, FourLinesCloseTheLens) {
  ASSERT_EQ(calls.size(), 10u);
  // Slip A runs from (0, 0) to (179.996, 38.752), slip B from (8.34, -38.74) to (188.336, 0.012).
  // Straight up and down from their level ends by 18.7; by (7.695, -17.043) from the others.
  EXPECT_EQ(calls[6].points, (Points{{1000, 981}, {1188, 981}}));
  EXPECT_EQ(calls[7].points, (Points{{1000, 1019}, {1188, 1019}}));
  EXPECT_EQ(calls[8].points, (Points{{1016, 944}, {1188, 1022}}));
  EXPECT_EQ(calls[9].points, (Points{{1001, 978}, {1172, 1056}}));
}

TEST_F(DoubleSlip, WhoseFirstRouteIsBentHasNoStraightBeds) {
  PieceDef bent = def;
  bent.connectors[1].y = -1.0;
  const std::vector<DrawCall> slips = PlainCalls(bent);
  EXPECT_EQ(OpsOf(slips),
            (std::vector<DrawOp>{polygon, polygon, lines, lines, line, line, line, line}));
  bent.connectors[1].y = 0.99;
  EXPECT_EQ(PlainCalls(bent).size(), 10u);
}

TEST_F(DoubleSlip, WithoutARadiusHasOnlyStraightBeds) {
  PieceDef flat = def;
  flat.radius = 0.0;
  EXPECT_EQ(OpsOf(PlainCalls(flat)), (std::vector<DrawOp>{polygon, polygon}));
  flat.connectors.pop_back();
  EXPECT_EQ(OpsOf(PlainCalls(flat)), std::vector<DrawOp>{polygon});
}

TEST_F(DoubleSlip, WithTwoConnectorsHasOneSlipAndNoLens) {
  PieceDef half = def;
  half.connectors.resize(2);
  EXPECT_EQ(OpsOf(PlainCalls(half)), (std::vector<DrawOp>{polygon, polygon}));
}

TEST_F(DoubleSlip, WithThreeConnectorsHasBothSlipsButNoSecondStraightBed) {
  PieceDef three = def;
  three.connectors.resize(3);
  std::vector<DrawCall> expected = calls;
  expected.erase(expected.begin() + 1);
  EXPECT_EQ(PlainCalls(three), expected);
}

TEST_F(DoubleSlip, WithATinyRadiusSurvivesTheShortOutlinesOfItsSlips) {
  PieceDef tiny = def;
  tiny.radius = 0.5;  // both slips fall back to straight beds of four points
  const std::vector<DrawCall> slips = PlainCalls(tiny);
  ASSERT_EQ(slips.size(), 10u);
  EXPECT_EQ(slips[4].points, (Points{{1000, 1019}, {1000, 981}}));
}

// The turntable's view: halves of a millimetre don't sit on the edge of a truncation.
constexpr ViewTransform kQuarterView{1.0, 1000.25, 1000.25};

std::vector<DrawCall> TurntableCalls(const Piece& piece, const ViewTransform& view,
                                     bool selected = false) {
  RecordingDC dc;
  DrawTrackPiece(RenderContext{}, dc, piece, Row("74861"), view, selected, false, false);
  return dc.calls();
}

TEST(Turntable, IsADeckWithAPitABridgeAndAStubAtEveryConnector) {
  const std::vector<DrawCall> calls = TurntableCalls(PieceOf(Row("74861")), kQuarterView);
  ASSERT_EQ(calls.size(), 33u);
  ASSERT_TRUE(calls[0].isCircle());
  EXPECT_EQ(calls[0].centre(), wxPoint(1000, 1000));
  EXPECT_EQ(calls[0].circleRadius(), 189);  // 378 / 2
  EXPECT_EQ(calls[0].brush, SolidBrush({220, 215, 210}));
  EXPECT_EQ(calls[0].pen, SolidPen(kDefaultOutline, 1));
  ASSERT_TRUE(calls[1].isCircle());
  EXPECT_EQ(calls[1].centre(), wxPoint(1000, 1000));
  EXPECT_EQ(calls[1].circleRadius(), 139);
  EXPECT_EQ(calls[1].brush, SolidBrush(kDefaultFill));
  EXPECT_EQ(calls[1].pen, SolidPen(kDefaultOutline, 1));
  EXPECT_EQ(calls[2].op, line);
  EXPECT_EQ(calls[2].points, (Points{{1139, 1000}, {861, 1000}}));
  EXPECT_EQ(calls[2].pen, SolidPen({80, 60, 40}, 3));
  for (std::size_t i = 3; i < calls.size(); ++i) {
    EXPECT_TRUE(calls[i].isCircle());
    EXPECT_EQ(calls[i].circleRadius(), 3);
    EXPECT_EQ(calls[i].brush, SolidBrush({160, 140, 100}));
    EXPECT_EQ(calls[i].pen.style, wxPENSTYLE_TRANSPARENT);
  }
  EXPECT_EQ(calls[3].centre(), wxPoint(1139, 1000));
  // Connector 5 at 60 degrees: (69.5, 120.38).
  EXPECT_EQ(calls[8].centre(), wxPoint(1069, 1120));
}

TEST(Turntable, ASpokeLeadsFromTheRimToEveryJoinedConnector) {
  Piece piece = PieceOf(Row("74861"));
  piece.joints[7] = {9, 0};
  piece.joints.resize(6);  // shorter than the list of connectors
  piece.joints[0] = {0, 0};
  piece.joints[3] = {-2, 0};
  piece.joints[5] = {8, 1};
  const std::vector<DrawCall> calls = TurntableCalls(piece, kQuarterView);
  ASSERT_EQ(calls.size(), 35u);
  EXPECT_EQ(calls[3].points, (Points{{1189, 1000}, {1139, 1000}}));
  // 60 degrees: (94.5, 163.68) and (69.5, 120.38).
  EXPECT_EQ(calls[4].points, (Points{{1094, 1163}, {1069, 1120}}));
  for (const std::size_t i : {3u, 4u}) {
    EXPECT_EQ(calls[i].op, line);
    EXPECT_EQ(calls[i].pen, SolidPen({100, 80, 60}, 2));
  }
  EXPECT_TRUE(calls[5].isCircle());
}

TEST(Turntable, BridgeAndSpokesTurnWithThePiece) {
  Piece piece = PieceOf(Row("74861"), {50.0, 0.0, 90.0});
  piece.joints[0] = {4, 0};
  const std::vector<DrawCall> calls = TurntableCalls(piece, kQuarterView);
  EXPECT_EQ(calls.at(2).points, (Points{{1050, 1139}, {1050, 861}}));
  EXPECT_EQ(calls.at(3).points, (Points{{1050, 1189}, {1050, 1139}}));
}

TEST(Turntable, TheBridgeShowsTheSelection) {
  const std::vector<DrawCall> calls = TurntableCalls(PieceOf(Row("74861")), kQuarterView, true);
  EXPECT_EQ(calls.at(0).pen, SolidPen(kPickedOutline, 1));
  EXPECT_EQ(calls.at(0).brush, SolidBrush({220, 215, 210}));
  EXPECT_EQ(calls.at(1).brush, SolidBrush(kPickedFill));
  EXPECT_EQ(calls.at(2).pen, SolidPen(kPickedOutline, 3));
}

TEST(Turntable, CirclesAreTruncatedAndStubsNeverVanish) {
  // 189 * 0.9 = 170.1, 139 * 0.9 = 125.1; a stub of 2.7 is drawn as 2.
  const std::vector<DrawCall> calls = TurntableCalls(PieceOf(Row("74861")), {0.9, 0.25, 0.25});
  EXPECT_EQ(calls.at(0).circleRadius(), 170);
  EXPECT_EQ(calls.at(1).circleRadius(), 125);
  EXPECT_EQ(calls.at(3).circleRadius(), 2);
  EXPECT_EQ(TurntableCalls(PieceOf(Row("74861")), {0.1, 0.0, 0.0}).at(3).circleRadius(), 2);
  // 3 * 2.1 = 6.3
  EXPECT_EQ(TurntableCalls(PieceOf(Row("74861")), {2.1, 0.0, 0.0}).at(3).circleRadius(), 6);
}

}  // namespace
}  // namespace vantrel
