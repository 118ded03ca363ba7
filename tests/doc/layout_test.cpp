#include "doc/layout.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(Layout, StartsEmptyWithTheFirstIdAndTheDefaultSettings) {
  const Layout layout;
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_TRUE(layout.labels.empty());
  EXPECT_TRUE(layout.measurements.empty());
  EXPECT_TRUE(layout.shapes.empty());
  EXPECT_TRUE(layout.tunnels.empty());
  EXPECT_TRUE(layout.helices.empty());
  EXPECT_TRUE(layout.levels.empty());
  EXPECT_TRUE(layout.baseboard.empty());
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_TRUE(layout.redoHistory.empty());
  EXPECT_EQ(layout.nextId, 1);
  EXPECT_EQ(layout.activeLevel, 1);
  EXPECT_EQ(layout.toolMode, 0);
  EXPECT_TRUE(layout.baseboardVisible);
  EXPECT_TRUE(layout.snapEnabled);
  EXPECT_TRUE(layout.gridVisible);
  EXPECT_TRUE(layout.labelsVisible);
  EXPECT_EQ(layout.units, 0);
  EXPECT_EQ(layout.gridSize, 32.0);
}

TEST(Layout, RemembersAsTheLastBoardTheUsualTable) {
  const LastShape last;
  EXPECT_EQ(last.id, 0);
  EXPECT_EQ(last.w_mm, 2400.0);
  EXPECT_EQ(last.h_mm, 1200.0);
  EXPECT_EQ(last.w2_mm, 1200.0);
  EXPECT_EQ(last.h2_mm, 1200.0);
}

TEST(Layout, HasNoGradeInForceAtFirst) {
  const Layout layout;
  EXPECT_FALSE(layout.currentGrade.active);
  EXPECT_EQ(layout.currentGrade.deg, 0.0);
  EXPECT_EQ(layout.currentGrade.anchor, -1);
  EXPECT_EQ(layout.currentGrade.conn, 1);
}

TEST(Piece, IsFlatUncolouredAndOnTheFirstLevelWhenNew) {
  const Piece piece;
  EXPECT_EQ(piece.id, -1);
  EXPECT_TRUE(piece.cat.empty());
  EXPECT_EQ(piece.pose(), (Pose{0.0, 0.0, 0.0}));
  EXPECT_FALSE(piece.sel);
  EXPECT_EQ(piece.z, 0.0);
  EXPECT_EQ(piece.grade, 0.0);
  EXPECT_FALSE(piece.rev);
  EXPECT_FALSE(piece.hasColor);
  EXPECT_EQ(piece.colorR + piece.colorG + piece.colorB, 0);
  EXPECT_EQ(piece.level, 1);
  EXPECT_EQ(piece.helix, -1);
  EXPECT_FALSE(piece.free);
  EXPECT_TRUE(piece.joints.empty());
}

TEST(Piece, WithOnlySlot2InUseHasSlots0And1PresentAndOpen) {
  Piece piece;
  piece.joints.resize(3);
  piece.joints[2] = {.target = 7, .tconn = 0};
  ASSERT_EQ(piece.joints.size(), 3u);
  EXPECT_EQ(piece.joints[0].target, -1);
  EXPECT_EQ(piece.joints[0].tconn, -1);
  EXPECT_EQ(piece.joints[1].target, -1);
  EXPECT_EQ(piece.joints[1].tconn, -1);
  EXPECT_TRUE(piece.joints[0].open());
  EXPECT_FALSE(piece.joints[2].open());
}

TEST(Joint, IsOpenForTheTargetMinusOneOnly) {
  EXPECT_TRUE((Joint{.target = -1, .tconn = 4}.open()));
  EXPECT_FALSE((Joint{.target = 0, .tconn = 0}.open()));
  EXPECT_FALSE((Joint{.target = -2, .tconn = -1}.open()));
}

TEST(Shape, IsAHalfOpaqueGreenOutlineWhenNew) {
  const Shape shape;
  EXPECT_EQ(shape.id, -1);
  EXPECT_EQ(shape.r, 120);
  EXPECT_EQ(shape.g, 170);
  EXPECT_EQ(shape.b, 110);
  EXPECT_EQ(shape.a, 140);
  EXPECT_TRUE(shape.outline);
  EXPECT_EQ(shape.level, 1);
  EXPECT_EQ(shape.height, 0.0);
}

TEST(Level, IsAVisibleGreyDeckOnTheGroundWhenNew) {
  const Level level;
  EXPECT_EQ(level.id, 1);
  EXPECT_EQ(level.name, "Level 1");
  EXPECT_TRUE(level.visible);
  EXPECT_EQ(level.height, 0.0);
  EXPECT_FALSE(level.trackcolor);
  EXPECT_EQ(level.r, 180);
  EXPECT_EQ(level.g, 180);
  EXPECT_EQ(level.b, 180);
}

TEST(Records, OfSceneryHelixAndTunnelStartUnreferenced) {
  const SceneryItem item;
  EXPECT_EQ(item.id, -1);
  EXPECT_EQ(item.scalex, 1.0);
  EXPECT_EQ(item.scaley, 1.0);
  EXPECT_EQ(item.level, 1);
  const Helix helix;
  EXPECT_EQ(helix.variant, "proses_2_5_r1r2");
  EXPECT_EQ(helix.bottomR1, -1);
  EXPECT_EQ(helix.bottomR2, -1);
  EXPECT_EQ(helix.topR1, -1);
  EXPECT_EQ(helix.topR2, -1);
  const Tunnel tunnel;
  EXPECT_EQ(tunnel.portalA, -1);
  EXPECT_EQ(tunnel.portalB, -1);
  EXPECT_EQ(tunnel.anchorA, -1);
  EXPECT_EQ(tunnel.anchorB, -1);
}

}  // namespace
}  // namespace vantrel
