#include <gtest/gtest.h>

#include <set>

#include "catalog/track_catalog.h"
#include "tests/render2d/track_test_support.h"

namespace vantrel {
namespace {

using enum DrawOp;

constexpr Rgba kGhost{200, 225, 200};
constexpr Rgba kGhostBranch{185, 210, 190};  // 200 - 15, 225 - 15, 200 - 10
constexpr Rgba kGhostEdge{80, 150, 80};

const PieceDef& RowOf(const char* part) {
  const PieceDef* def = findPart(part);
  if (def == nullptr) throw std::runtime_error(std::string("no row ") + part);
  return *def;
}

// Without the dots.
std::vector<DrawCall> ShapeOf(std::vector<DrawCall> calls) {
  std::erase_if(calls, [](const DrawCall& call) { return call.isCircle(); });
  return calls;
}

TEST(Ghost, IsGreenForEverySystem) {
  for (const char* part : {"24188", "2200", "8500", "62188"}) {
    const std::vector<DrawCall> calls = GhostCalls(RowOf(part));
    ASSERT_EQ(OpsOf(calls), std::vector<DrawOp>{polygon}) << part;
    EXPECT_EQ(calls[0].brush, SolidBrush(kGhost));
    EXPECT_EQ(calls[0].pen, SolidPen(kGhostEdge, 1));
  }
}

TEST(Ghost, HasTheShapeOfThePlacedPieceWhereNothingElseIsTold) {
  const std::set<PieceKind> simpler{PieceKind::CurvedTurnout, PieceKind::Turntable};
  const Pose pose{30.0, -40.0, 77.0};
  int compared = 0;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (simpler.contains(def.kind) || def.isBridge) continue;
    const std::vector<DrawCall> placed = ShapeOf(PlainCalls(def, pose));
    const std::vector<DrawCall> ghost = ShapeOf(GhostCalls(def, pose));
    ASSERT_EQ(OpsOf(ghost), OpsOf(placed)) << def.partNumber;
    for (std::size_t k = 0; k < ghost.size(); ++k) {
      EXPECT_EQ(ghost[k].points, placed[k].points) << def.partNumber;
      EXPECT_EQ(ghost[k].box, placed[k].box) << def.partNumber;
    }
    ++compared;
  }
  EXPECT_GT(compared, 100);
}

TEST(Ghost, OfATurnoutHasADarkerBranch) {
  EXPECT_EQ(FillsOf(ShapeOf(GhostCalls(RowOf("24612")))),
            (std::vector<Rgba>{kGhost, kGhostBranch}));
  EXPECT_EQ(FillsOf(ShapeOf(GhostCalls(RowOf("24630")))),
            (std::vector<Rgba>{kGhostBranch, kGhostBranch, kGhost}));
}

TEST(Ghost, OfABridgeHasNoArch) {
  for (const char* part : {"74636", "74620", "74618", "74613", "8977"})
    EXPECT_EQ(OpsOf(GhostCalls(RowOf(part))), std::vector<DrawOp>{polygon}) << part;
}

TEST(Ghost, KeepsBarsMarksAndBumpers) {
  EXPECT_EQ(OpsOf(GhostCalls(RowOf("24994"))), (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(OpsOf(GhostCalls(RowOf("24997"))), (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(OpsOf(GhostCalls(RowOf("24294"))), (std::vector<DrawOp>{polygon, rectangle}));
  EXPECT_EQ(OpsOf(GhostCalls(RowOf("24977"))), (std::vector<DrawOp>{polygon, line}));
}

TEST(Ghost, OfACurvedTurnoutIsTwoArcsWithoutALink) {
  const PieceDef& def = RowOf("24772");
  const std::vector<DrawCall> calls = ShapeOf(GhostCalls(def));
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(calls[0].points, ArcBedPolygon({}, def, kPlainView, 1));
  EXPECT_EQ(calls[1].points, ArcBedPolygon({64.0, 0.0, 0.0}, def, kPlainView, 1));
  EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kGhost, kGhostBranch}));
}

TEST(Ghost, OfACurvedTurnoutMovesItsSecondArcBackWhenItsThirdEndLiesBehind) {
  PieceDef def = RowOf("24772");
  std::swap(def.connectors[1].x, def.connectors[2].x);
  const std::vector<DrawCall> calls = ShapeOf(GhostCalls(def));
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[1].points, ArcBedPolygon({-64.0, 0.0, 0.0}, def, kPlainView, 1));
}

TEST(Ghost, OfACurvedTurnoutThatHardlyDivergesIsAStraightBedAndTwoArcs) {
  PieceDef def = RowOf("24772");
  def.connectors[1].y = 5.0;
  const auto expectFallback = [&] {
    const std::vector<DrawCall> calls = ShapeOf(GhostCalls(def));
    ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{polygon, polygon, polygon}));
    EXPECT_EQ(calls[0].points, StraightBedPolygon({}, def, kPlainView));
    EXPECT_EQ(calls[1].points, ArcBedPolygon({}, def, kPlainView, 1));
    EXPECT_EQ(calls[2].points, ArcBedPolygon({}, def, kPlainView, 2));
    EXPECT_EQ(FillsOf(calls), (std::vector<Rgba>{kGhost, kGhost, kGhostBranch}));
  };
  expectFallback();
  def.connectors[1].y = -5.1;
  EXPECT_EQ(ShapeOf(GhostCalls(def)).size(), 2u);
  def.connectors.pop_back();
  expectFallback();
}

TEST(Ghost, OfADoubleSlipHasBrighterSlips) {
  const std::vector<DrawCall> calls = ShapeOf(GhostCalls(RowOf("24624")));
  ASSERT_EQ(calls.size(), 10u);
  EXPECT_EQ(calls[1].brush, SolidBrush({192, 217, 196}));
  const Rgba slip{210, 235, 218};
  EXPECT_EQ(calls[2].brush, SolidBrush(slip));
  EXPECT_EQ(calls[2].pen, SolidPen(slip, 0));
  EXPECT_EQ(calls[4].pen, SolidPen(kGhostEdge, 1));
}

TEST(Ghost, OfATurntableIsATransparentDeckAPitAndABridge) {
  const std::vector<DrawCall> calls = GhostCalls(RowOf("74861"));
  ASSERT_EQ(OpsOf(calls), (std::vector<DrawOp>{ellipse, ellipse, line}));
  EXPECT_EQ(calls[0].circleRadius(), 189);
  EXPECT_EQ(calls[0].brush, SolidBrush({220, 215, 210, 180}));
  EXPECT_EQ(calls[0].pen, SolidPen(kGhostEdge, 1));
  EXPECT_EQ(calls[1].circleRadius(), 139);
  EXPECT_EQ(calls[1].brush, SolidBrush(kGhost));
  EXPECT_EQ(calls[2].points, (Points{{1139, 1000}, {861, 1000}}));
  EXPECT_EQ(calls[2].pen, SolidPen({80, 60, 40}, 3));
}

TEST(Ghost, HasNoPartNumber) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
    for (const DrawCall& call : GhostCalls(*catalog().pieceAt(i)))
      EXPECT_NE(call.op, DrawOp::text) << catalog().pieceAt(i)->partNumber;
}

TEST(Ghost, OnlyPiecesWithMoreThanOneRouteShowTheirEndsAndAllAreFree) {
  const std::set<PieceKind> dotted{PieceKind::LeftTurnout,   PieceKind::RightTurnout,
                                   PieceKind::CurvedTurnout, PieceKind::DoubleSlip,
                                   PieceKind::Crossing,      PieceKind::OuterCurveTurnout};
  for (const char* part :
       {"24188", "24130", "24611", "24612", "24672", "24624", "24977", "24640", "2269"}) {
    const PieceDef& def = RowOf(part);
    std::size_t dots = 0;
    for (const DrawCall& call : GhostCalls(def)) {
      if (!call.isCircle()) continue;
      EXPECT_EQ(call.brush, SolidBrush(kOrange)) << part;
      ++dots;
    }
    EXPECT_EQ(dots, dotted.contains(def.kind) ? def.connectors.size() : 0u) << part;
  }
}

TEST(Ghost, HasNoDotsBelowScale0Point2) {
  EXPECT_EQ(OpsOf(GhostCalls(RowOf("24612"), {}, {0.19, 0.0, 0.0})),
            (std::vector<DrawOp>{polygon, polygon}));
  EXPECT_EQ(GhostCalls(RowOf("24612"), {}, {0.2, 0.0, 0.0}).size(), 5u);
}

}  // namespace
}  // namespace vantrel
