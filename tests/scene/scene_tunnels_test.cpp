#include <gtest/gtest.h>

#include <cmath>

#include "tests/scene/scene_support.h"

namespace vantrel {
namespace {

constexpr std::size_t kArch = 15;

// `count` straights of 188.3 in a row from (0, 0), joined and, by their ids, covered.
Layout Row(int count, double z = 0.0) {
  Layout layout;
  std::vector<std::int32_t> ids;
  for (int i = 0; i < count; ++i) {
    ids.push_back(Lay(layout, "24188", {188.3 * i, 0, 0}, z));
    if (i > 0) Join(layout, ids[ids.size() - 2], 1, ids.back(), 0);
  }
  Cover(layout, ids);
  return layout;
}

// The path points: where the two feet of each ring meet in the middle.
std::vector<Vec3f> PathOf(const Mesh& mesh) {
  EXPECT_EQ(mesh.positions.size() % kArch, 0U);
  std::vector<Vec3f> path;
  for (std::size_t i = 0; i + kArch <= mesh.positions.size(); i += kArch)
    path.push_back((mesh.positions[i] + mesh.positions[i + kArch - 1]) * 0.5F);
  return path;
}

void ExpectPath(const Layout& layout, const std::vector<Vec3f>& expected) {
  const std::vector<Vec3f> path = PathOf(BuildScene(layout).tunnelMesh);
  ASSERT_EQ(path.size(), expected.size());
  for (std::size_t i = 0; i < path.size(); ++i) {
    SCOPED_TRACE(i);
    ExpectPoint(path[i], expected[i], 2e-2F);
  }
}

TEST(SceneTunnel, RunsFromTheOpenEndOverEachPieceToTheOtherOpenEnd) {
  ExpectPath(Row(3, 10),
             {{0, 0, 10}, {0, 0, 10}, {188.3F, 0, 10}, {376.6F, 0, 10}, {564.9F, 0, 10}});
}

TEST(SceneTunnel, HasARingOfFifteenForEachPathPointAndQuadsBetween) {
  const Mesh mesh = BuildScene(Row(3)).tunnelMesh;
  ExpectSound(mesh);
  EXPECT_EQ(mesh.positions.size(), 5 * kArch);
  // 4 gaps of 14 quads; the ends stay open.
  EXPECT_EQ(TriangleCount(mesh), 4U * 14 * 2);
  // The arch of 14 chords is 237.5 long: half an ellipse of 60 by 90 measures 237.99.
  EXPECT_NEAR(AreaOf(mesh), 237.5 * 564.9, 500.0);
}

TEST(SceneTunnel, HasAnArchOf60ToEachSideAnd90High) {
  Layout layout = Row(2, 10);
  const Mesh mesh = BuildScene(layout).tunnelMesh;
  ExpectBounds(mesh, {0, -60, 10}, {376.6F, 60, 100}, 1e-2F);
  EXPECT_NEAR(std::abs(mesh.positions[0].y), 60.0F, 1e-3F);
  ExpectPoint(mesh.positions[7], {0, 0, 100});
  // Point 3 at 3 x 180 / 14 = 38.571 degrees: cos 0.78183, sin 0.62349.
  EXPECT_NEAR(std::abs(mesh.positions[3].y), 46.910F, 1e-2F);
  EXPECT_NEAR(mesh.positions[3].z, 66.114F, 1e-2F);
}

TEST(SceneTunnel, DarkensAndGreensTowardsItsTop) {
  const Mesh mesh = BuildScene(Row(2)).tunnelMesh;
  const auto expectColour = [&](std::size_t i, Rgb expected) {
    EXPECT_NEAR(mesh.colors[i].r, expected.r, 1e-4F);
    EXPECT_NEAR(mesh.colors[i].g, expected.g, 1e-4F);
    EXPECT_NEAR(mesh.colors[i].b, expected.b, 1e-4F);
  };
  expectColour(0, {0.55F, 0.46F, 0.36F});
  expectColour(7, {0.4F, 0.55F, 0.32F});
  expectColour(14, {0.55F, 0.46F, 0.36F});
  // With sin 0.62349: 0.55 - 0.09352, 0.46 + 0.05611, 0.36 - 0.02494.
  expectColour(3, {0.45648F, 0.51611F, 0.33506F});
}

TEST(SceneTunnel, HasNormalsThatPointAwayFromThePath) {
  const Mesh mesh = BuildScene(Row(2)).tunnelMesh;
  ExpectSound(mesh);
  ExpectPoint(mesh.normals[7], {0, 0, 1});
  EXPECT_NEAR(std::abs(mesh.normals[0].y), 1.0F, 1e-4F);
  for (std::size_t i = 0; i < kArch; ++i) EXPECT_GT(Dot(mesh.normals[i], mesh.positions[i]), 55.0F);
}

TEST(SceneTunnel, TurnsWithThePieces) {
  Layout layout;
  const std::int32_t a = Lay(layout, "24188", {100, 200, 90}, 5);
  const std::int32_t b = Lay(layout, "24188", {100, 388.3, 90}, 5);
  Join(layout, a, 1, b, 0);
  Cover(layout, {a, b});
  const Mesh mesh = BuildScene(layout).tunnelMesh;
  ExpectSound(mesh);
  ExpectBounds(mesh, {40, -576.6F, 5}, {160, -200, 95}, 1e-2F);
}

TEST(SceneTunnel, StartsAtTheFirstCoveredPieceWithFewerThanTwoCoveredNeighbours) {
  Layout layout = Row(3);
  layout.tunnels[0].covers = {layout.pieces[1].id, layout.pieces[2].id, layout.pieces[0].id};
  ExpectPath(layout, {{564.9F, 0, 0}, {376.6F, 0, 0}, {188.3F, 0, 0}, {0, 0, 0}, {0, 0, 0}});
}

TEST(SceneTunnel, EndsWhereTheCoveringEnds) {
  // The two in the middle of four: what they are joined to isn't covered.
  Layout layout = Row(4);
  layout.tunnels[0].covers = {layout.pieces[1].id, layout.pieces[2].id};
  ExpectPath(layout, {{188.3F, 0, 0}, {188.3F, 0, 0}, {376.6F, 0, 0}, {564.9F, 0, 0}});
}

TEST(SceneTunnel, IsNotCrossedOverWherePiecesLieHeadToHead) {
  // The middle one runs backward: its own place is its far end.
  Layout layout = Row(3);
  layout.pieces[1].x = 376.6;
  layout.pieces[1].heading = 180;
  Join(layout, layout.pieces[0].id, 1, layout.pieces[1].id, 1);
  Join(layout, layout.pieces[1].id, 0, layout.pieces[2].id, 0);
  const Mesh mesh = BuildScene(layout).tunnelMesh;
  ExpectSound(mesh);
  for (std::size_t i = kArch; i < mesh.positions.size(); ++i)
    EXPECT_NEAR(mesh.positions[i].y, mesh.positions[i % kArch].y, 1e-3F);
  EXPECT_NEAR(AreaOf(mesh), 237.5 * 564.9, 500.0);
}

TEST(SceneTunnel, OverARingRunsFromItsFirstPieceToItsLast) {
  // Twelve curves of 30 degrees around (0, 360).
  Layout layout;
  std::vector<std::int32_t> ids;
  for (int i = 0; i < 12; ++i) {
    const double angle = i * 3.141592653589793 / 6;
    ids.push_back(
        Lay(layout, "24130", {360 * std::sin(angle), 360 - 360 * std::cos(angle), i * 30.0}));
  }
  for (std::size_t i = 0; i < 12; ++i) Join(layout, ids[i], 1, ids[(i + 1) % 12], 0);
  std::rotate(ids.begin(), ids.begin() + 3, ids.end());
  Cover(layout, ids);
  const Mesh mesh = BuildScene(layout).tunnelMesh;
  ExpectSound(mesh);
  const std::vector<Vec3f> path = PathOf(mesh);
  ASSERT_EQ(path.size(), 14U);
  // It starts at the fourth, (360, 360), and goes by that one's first joint: to the third.
  ExpectPoint(path[0], {360, -360, 0}, 1e-2F);
  ExpectPoint(path[1], {360, -360, 0}, 1e-2F);
  ExpectPoint(path[2], {311.769F, -180, 0}, 1e-2F);
  // The last is the fifth, at (311.769, 540).
  ExpectPoint(path[12], {311.769F, -540, 0}, 1e-2F);
  ExpectPoint(path[13], {311.769F, -540, 0}, 1e-2F);
}

TEST(SceneTunnel, FollowsOneWayThroughABranch) {
  Layout layout = Row(3);
  const std::int32_t aside = Lay(layout, "24188", {188.3, 300, 0});
  layout.pieces[1].joints.push_back({aside, 0});
  layout.tunnels[0].covers.push_back(aside);
  EXPECT_EQ(PathOf(BuildScene(layout).tunnelMesh).size(), 5U);
}

TEST(SceneTunnel, OverASinglePieceHasBothItsEndsAtTheFirstOpenConnector) {
  ExpectPath(Row(1), {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}});
}

TEST(SceneTunnel, OverAnUnknownPartEndsAtThePiecesOwnPlace) {
  Layout layout = Row(2);
  layout.pieces[1].cat = "no such part";
  ExpectPath(layout, {{0, 0, 0}, {0, 0, 0}, {188.3F, 0, 0}, {188.3F, 0, 0}});
}

TEST(SceneTunnel, TakesAMissingSlotForAnOpenConnector) {
  Layout layout = Row(2);
  layout.pieces[1].joints.resize(1);
  ExpectPath(layout, {{0, 0, 0}, {0, 0, 0}, {188.3F, 0, 0}, {376.6F, 0, 0}});
}

TEST(SceneTunnel, OverPiecesThatDoNotExistIsLeftOut) {
  Layout layout;
  Cover(layout, {});
  Cover(layout, {4711, -1, 0});
  EXPECT_TRUE(BuildScene(layout).tunnelMesh.positions.empty());
}

TEST(SceneTunnel, TakesAPieceNamedTwiceOnce) {
  Layout layout = Row(2);
  const std::vector<std::int32_t> ids = layout.tunnels[0].covers;
  layout.tunnels[0].covers = {ids[0], ids[0], ids[1], 4711, ids[1]};
  EXPECT_EQ(PathOf(BuildScene(layout).tunnelMesh).size(), 4U);
}

TEST(SceneTunnel, StandsJointsThatLeadToThePieceItself) {
  Layout layout = Row(2);
  layout.pieces[0].joints[0] = {layout.pieces[0].id, 0};
  layout.pieces[1].joints[1] = {layout.pieces[1].id, -3};
  EXPECT_EQ(PathOf(BuildScene(layout).tunnelMesh).size(), 4U);
}

TEST(SceneTunnel, StaysInSightWhenTheLevelOfItsTrackIsHidden) {
  Layout layout = Row(2);
  AddLevel(layout, 1, 0.0, false);
  EXPECT_EQ(PathOf(BuildScene(layout).tunnelMesh).size(), 4U);
}

TEST(SceneTunnel, StandsBesideOtherTunnels) {
  Layout layout = Row(4);
  const std::vector<std::int32_t> ids = layout.tunnels[0].covers;
  layout.tunnels[0].covers = {ids[0], ids[1]};
  Cover(layout, {ids[2], ids[3]});
  const Mesh mesh = BuildScene(layout).tunnelMesh;
  ExpectSound(mesh);
  EXPECT_EQ(mesh.positions.size(), 8 * kArch);
  // Nothing joins the one's last ring to the other's first.
  EXPECT_EQ(TriangleCount(mesh), 6U * 14 * 2);
}

}  // namespace
}  // namespace vantrel
