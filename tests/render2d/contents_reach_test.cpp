#include "render2d/contents_reach.h"

#include <gtest/gtest.h>

#include "catalog/piece_builders.h"
#include "render2d/contents_paint.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

// Reaches are kept by the definition's address, as the catalog's stay: these stay too.

TEST(ContentsReach, ACurvesBoxFollowsItsArcAndAStraightsItsLength) {
  static const PieceDef curve = makeCurve(TrackSystem::MarklinC, "", "", 100.0, 90.0);
  const PieceReach& bend = ReachOfPiece(curve);
  EXPECT_NEAR(bend.middle.x, 50.0, 1e-9);
  EXPECT_NEAR(bend.middle.y, 50.0, 1e-9);
  EXPECT_NEAR(bend.halfLength, 50.0, 1e-9);
  EXPECT_NEAR(bend.halfWidth, 50.0, 1e-9);
  static const PieceDef straight = makeStraight(TrackSystem::MarklinZ, "", "", 110.0);
  const PieceReach& line = ReachOfPiece(straight);
  EXPECT_NEAR(line.middle.x, 55.0, 1e-9);
  EXPECT_NEAR(line.halfLength, 55.0, 1e-9);
  EXPECT_NEAR(line.halfWidth, 0.0, 1e-9);
  EXPECT_GE(line.clearance, 6.0);
  EXPECT_GE(bend.clearance, 18.7);
}

TEST(ContentsReach, ATurnedPieceIsJudgedByItsTurnedBox) {
  static const PieceDef straight = makeStraight(TrackSystem::MarklinC, "", "", 1000.0);
  const PieceReach& reach = ReachOfPiece(straight);
  RenderContext context;
  RecordingDC dc;
  const Layout layout;
  const ViewTransform view{1.0, 0.0, 0.0};
  const DeviceSize size{400, 300};
  const ContentsPaint paint(context, dc, layout, view, size, DrawArea::Of(size));
  // 100 units left of the window: it reaches in when it heads right, and stays outside when it
  // heads up, down or left.
  EXPECT_FALSE(PieceOutOfView(paint, {-100.0, 150.0, 0.0}, reach, {}));
  EXPECT_TRUE(PieceOutOfView(paint, {-100.0, 150.0, 90.0}, reach, {}));
  EXPECT_TRUE(PieceOutOfView(paint, {-100.0, 150.0, 180.0}, reach, {}));
  EXPECT_TRUE(PieceOutOfView(paint, {-100.0, 150.0, 270.0}, reach, {}));
  // A number 300 wide reaches 150 to both sides of the box.
  EXPECT_FALSE(PieceOutOfView(paint, {-100.0, 150.0, 90.0}, reach, {300, 20}));
}

TEST(ContentsReach, SceneryReachesAsFarAsAnyOfItsPrimitives) {
  static const SceneryDef def = [] {
    SceneryDef item;
    item.width = 100.0;
    item.depth = 40.0;
    ScenePrimitive ellipse;
    ellipse.kind = PrimitiveKind::filledEllipse;
    ellipse.x = -30.0;
    ellipse.y = 10.0;
    ellipse.w = 200.0;
    ellipse.h = 20.0;
    ScenePrimitive line;
    line.kind = PrimitiveKind::line;
    line.h = 100.0;
    line.strokeWidth = 5;
    ScenePrimitive text;
    text.kind = PrimitiveKind::text;
    text.x = 50.0;
    text.y = 20.0;
    text.h = 12.0;
    text.text = "Station";
    item.primitives = {ellipse, line, text};
    return item;
  }();
  const SceneryReach& reach = ReachOfScenery(def);
  EXPECT_EQ(reach.across, 120.0);  // the ellipse ends at 170, 120 from the middle at 50
  EXPECT_EQ(reach.along, 80.0);    // the line at 100, 80 from the middle at 20
  EXPECT_EQ(reach.strokeWidth, 5.0);
  EXPECT_EQ(reach.textBytes, 7.0);
  EXPECT_EQ(reach.textHeight, 12.0);
}

}  // namespace
}  // namespace vantrel
