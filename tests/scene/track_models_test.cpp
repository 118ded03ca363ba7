#include "view3d/scene/track_models.h"

#include <gtest/gtest.h>

#include <tuple>

#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "tests/scene/mesh_support.h"
#include "tests/scene/track_colours.h"

namespace vantrel {
namespace {

Model ModelOf(const char* part) {
  const PieceDef* def = findPart(part);
  EXPECT_NE(def, nullptr) << part;
  return def != nullptr ? makeTrackModel(*def) : Model{};
}

PieceDef WithConnectors(PieceKind kind, std::vector<Connector> connectors) {
  PieceDef def;
  def.kind = kind;
  def.length = 200.0;
  def.radius = 360.0;
  def.angle = 30.0;
  def.connectors = std::move(connectors);
  return def;
}

// True when a corner of a rail's top lies within a tenth of a millimetre of this point.
bool HasRailAt(const Mesh& mesh, float x, float y) {
  const Mesh tops = PartIn(mesh, kRailTop);
  return std::any_of(tops.positions.begin(), tops.positions.end(),
                     [&](Vec3f corner) { return std::hypot(corner.x - x, corner.y - y) < 0.1F; });
}

// How many runs of ballast there are: a route that starts at the end of the one before goes on with
// its run.
std::size_t RunCount(const Mesh& mesh) {
  std::size_t runs = 0;
  // Two triangles for each segment, whose first corner lies where the segment before has its
  // second.
  const auto tops = TrianglesOf(PartIn(mesh, kBallastTop));
  for (std::size_t i = 0; i < tops.size(); i += 2) {
    const bool goesOn = i > 0 && Length(tops[i].corners[0] - tops[i - 2].corners[1]) < 0.01F;
    if (!goesOn) ++runs;
  }
  return runs;
}

std::vector<std::tuple<long, long, long>> SortedCorners(const Mesh& mesh, float mirror) {
  std::vector<std::tuple<long, long, long>> corners;
  for (const Vec3f& point : mesh.positions)
    corners.emplace_back(std::lround(point.x * 50), std::lround(point.y * mirror * 50),
                         std::lround(point.z * 50));
  std::sort(corners.begin(), corners.end());
  return corners;
}

TEST(TrackModels, AreSoundForEveryPartOfTheCatalog) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    SCOPED_TRACE(def.partNumber);
    const Model model = makeTrackModel(def);
    EXPECT_FALSE(model.empty());
    EXPECT_LT(TriangleCount(model), 2000U);
    ExpectSound(model);
  }
}

TEST(TrackModels, BringARailToEachSideOfEveryConnector) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.kind == PieceKind::Turntable) continue;
    const Mesh tops = PartIn(makeTrackModel(def), kRailTop);
    for (const Connector& end : def.connectors) {
      // A rail's middle lies 8.25 to either side, its edges another 0.6; some branches are cut off
      // short of their arc, and some figures rounded, by up to half a millimetre.
      for (const float side : {8.25F, -8.25F}) {
        const auto x = static_cast<float>(end.x - side * std::sin(Radians(end.heading)));
        const auto y = static_cast<float>(end.y + side * std::cos(Radians(end.heading)));
        float nearest = 1e9F;
        for (const Vec3f& corner : tops.positions)
          nearest = std::min(nearest, std::hypot(corner.x - x, corner.y - y));
        EXPECT_LT(nearest, 1.1F) << def.partNumber << " connector " << end.connectorId;
      }
    }
  }
}

TEST(TrackModels, LayOneStripAlongAStraight) {
  const Model model = ModelOf("24188");
  ExpectBounds(model, {0, -18.7F, 0}, {188.3F, 18.7F, 6.7F});
  EXPECT_EQ(TriangleCount(model), 306U);
  // Nine segments of two triangles.
  EXPECT_EQ(TriangleCount(PartIn(model, kBallastTop)), 18U);
}

TEST(TrackModels, DrawAnUnnamedKindAsAStraight) {
  for (const int kind : {7, 9, 99}) {
    PieceDef def = *findPart("24188");
    def.kind = static_cast<PieceKind>(kind);
    EXPECT_EQ(makeTrackModel(def).positions, ModelOf("24188").positions);
  }
}

TEST(TrackModels, CutACurveOf30DegreesIntoTwelveSegments) {
  const Model model = ModelOf("24130");
  EXPECT_EQ(TriangleCount(PartIn(model, kBallastTop)), 24U);
  // To 180 and 48.23 at 30 degrees; the ballast's outer corner lies 18.7 off that at right angles:
  // 180 + 9.35. The start's inner corner lies at 18.7, the end's at 48.23 + 16.19.
  ExpectBounds(model, {0, -18.7F, 0}, {189.35F, 64.43F, 6.7F}, 0.02F);
}

TEST(TrackModels, CutACurveOf7Point5DegreesIntoEightSegments) {
  const Model model = ModelOf("24107");
  EXPECT_EQ(TriangleCount(PartIn(model, kBallastTop)), 16U);
}

TEST(TrackModels, BendACurveByTheSideOfItsConnector) {
  PieceDef left = WithConnectors(PieceKind::Curve, {{}, {180.0, -48.2, 330.0}});
  EXPECT_NEAR(BoundsOf(makeTrackModel(left)).low.y, -64.43F, 0.02F);
  // On the line counts as to the right.
  left.connectors[1].y = 0.0;
  EXPECT_NEAR(BoundsOf(makeTrackModel(left)).high.y, 64.43F, 0.02F);
}

TEST(TrackModels, HaveNothingForACurveWithoutRadius) {
  PieceDef def = *findPart("24130");
  def.radius = 0.0;
  EXPECT_TRUE(makeTrackModel(def).empty());
  def.isBridge = true;
  EXPECT_TRUE(makeTrackModel(def).empty());
}

TEST(TrackModels, BranchATurnoutToTheSideOfConnector2) {
  const Model left = ModelOf("24611");
  EXPECT_EQ(RunCount(left), 2U);
  // The straight is cut into 9 and so is the arc (9.72 steps); it has 14 sleepers as well, since
  // 437.5 mm over 24.3 degrees are 185.5 mm: twice a strip of 306.
  EXPECT_EQ(TriangleCount(left), 612U);
  EXPECT_LT(BoundsOf(left).low.y, -50.0F);
  EXPECT_NEAR(BoundsOf(left).high.y, 18.7F, 1e-3F);
  EXPECT_EQ(SortedCorners(left, -1.0F), SortedCorners(ModelOf("24612"), 1.0F));
}

TEST(TrackModels, BranchAThreeWayTurnoutToBothSides) {
  const Model model = ModelOf("24630");
  EXPECT_EQ(RunCount(model), 3U);
  EXPECT_EQ(TriangleCount(model), 918U);
  EXPECT_NEAR(BoundsOf(model).low.y, -BoundsOf(model).high.y, 1e-3F);
}

TEST(TrackModels, LeaveATurnoutWithoutRadiusOrBranchStraight) {
  PieceDef def = WithConnectors(PieceKind::LeftTurnout, {{}, {200, 0, 0}, {180, -48.2, 330}});
  EXPECT_EQ(RunCount(makeTrackModel(def)), 2U);
  def.radius = 0.0;
  EXPECT_EQ(RunCount(makeTrackModel(def)), 1U);
  def.radius = 360.0;
  def.connectors.pop_back();
  EXPECT_EQ(RunCount(makeTrackModel(def)), 1U);
}

TEST(TrackModels, PushTheOuterArcOfACurvedTurnoutAlongItsLead) {
  const Model model = ModelOf("24672");
  // The inner arc; the lead with the outer arc.
  EXPECT_EQ(RunCount(model), 2U);
  // The lead is 257.5 - 360 sin 30 = 77.5 long: three segments, where the main straight would take
  // twelve. The inner arc and the outer take twelve each.
  EXPECT_EQ(TriangleCount(PartIn(model, kBallastTop)), 54U);
  // The outer end's corner lies 9.35 beyond 257.5.
  EXPECT_NEAR(BoundsOf(model).high.x, 266.85F, 0.02F);
  // Ten degrees into the outer arc, the inner edge of the rail at the radius 367.65: 367.65 sin 10
  // beyond the lead, and at 360 - 367.65 cos 10.
  EXPECT_TRUE(HasRailAt(model, 77.5F + 63.842F, 360.0F - 362.064F));
}

TEST(TrackModels, MirrorALeftCurvedTurnoutFromTheRight) {
  EXPECT_EQ(SortedCorners(ModelOf("24671"), -1.0F), SortedCorners(ModelOf("24672"), 1.0F));
  EXPECT_EQ(SortedCorners(ModelOf("24771"), -1.0F), SortedCorners(ModelOf("24772"), 1.0F));
}

TEST(TrackModels, NeverLeadACurvedTurnoutBackwards) {
  // 100 - 180 would be -80.
  const Model model = makeTrackModel(
      WithConnectors(PieceKind::CurvedTurnout, {{}, {180, 48.2, 30}, {100, 48.2, 30}}));
  EXPECT_EQ(RunCount(model), 2U);
  EXPECT_NEAR(BoundsOf(model).low.x, 0.0F, 1e-3F);
  EXPECT_NEAR(BoundsOf(model).high.x, 189.35F, 0.02F);
}

TEST(TrackModels, NeedARadiusForBothArcsOfACurvedTurnout) {
  PieceDef def = WithConnectors(PieceKind::CurvedTurnout, {{}, {180, 48.2, 30}, {257.5, 48.2, 30}});
  def.radius = 0.0;
  const Model model = makeTrackModel(def);
  ExpectSound(model);
  // Only the lead is left, as long as connector 2 lies ahead.
  ExpectBounds(model, {0, -18.7F, 0}, {257.5F, 18.7F, 6.7F});
  def.radius = 360.0;
  def.connectors.pop_back();
  EXPECT_EQ(RunCount(makeTrackModel(def)), 1U);
}

TEST(TrackModels, BendBothEndsOfAnOuterCurveTurnout) {
  const Model model = ModelOf("8569");
  EXPECT_EQ(RunCount(model), 3U);
  // The straight of 25 mm takes 2 segments, the arcs of 30 degrees 12 each.
  EXPECT_EQ(TriangleCount(PartIn(model, kBallastTop)), 52U);
  // The farther arc starts at 25 and ends at 25 + 195 sin 30 = 122.5.
  EXPECT_NEAR(BoundsOf(model).high.x, 122.5F + 9.35F, 0.02F);
  EXPECT_EQ(SortedCorners(ModelOf("8568"), -1.0F), SortedCorners(model, 1.0F));
}

TEST(TrackModels, LeaveAnOuterCurveTurnoutWithoutRadiusStraight) {
  PieceDef def = *findPart("8569");
  def.radius = 0.0;
  EXPECT_EQ(RunCount(makeTrackModel(def)), 1U);
}

TEST(TrackModels, CrossTwoStraights) {
  const Model model = ModelOf("24640");
  EXPECT_EQ(RunCount(model), 2U);
  EXPECT_EQ(TriangleCount(model), 612U);
  PieceDef def = *findPart("24640");
  def.connectors.pop_back();
  EXPECT_EQ(RunCount(makeTrackModel(def)), 1U);
}

TEST(TrackModels, SlipBothWaysAcrossADoubleSlip) {
  const Model model = ModelOf("24624");
  EXPECT_EQ(RunCount(model), 4U);
  EXPECT_EQ(TriangleCount(model), 1224U);
  // A third of the way, 8.1 degrees, along the arc from the origin, 437.4 around (0, 437.4): the
  // rail's inner edge at 437.4 + 7.65: 445.05 sin 8.1 = 62.708 and 437.4 - 445.05 cos 8.1 = -3.210.
  EXPECT_TRUE(HasRailAt(model, 62.708F, -3.210F));
  // The other one mirrors that about the middle (94.15, 0): from connector 1 towards connector 2.
  EXPECT_TRUE(HasRailAt(model, 188.3F - 62.708F, 3.210F));
}

TEST(TrackModels, MirrorADoubleSlipAboutItsMiddle) {
  const Model model = ModelOf("24624");
  std::size_t unmatched = 0;
  const Mesh tops = PartIn(model, kRailTop);
  for (const Vec3f& corner : tops.positions)
    if (!HasRailAt(model, 188.3F - corner.x, -corner.y)) ++unmatched;
  EXPECT_EQ(unmatched, 0U);
}

TEST(TrackModels, KeepTheSameCrossSectionInEverySystem) {
  for (const char* part : {"24188", "62188", "8500", "2200"}) {
    const Bounds bounds = BoundsOf(ModelOf(part));
    EXPECT_NEAR(bounds.low.y, -18.7F, 1e-3F) << part;
    EXPECT_NEAR(bounds.high.y, 18.7F, 1e-3F) << part;
    EXPECT_NEAR(bounds.high.z, 6.7F, 1e-3F) << part;
  }
}

}  // namespace
}  // namespace vantrel
