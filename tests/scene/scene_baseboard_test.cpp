#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/scene/scene_support.h"
#include "view3d/scene/triangle_collector.h"

namespace vantrel {
namespace {

Mesh BoardOf(std::vector<Vec2> outline) {
  Layout layout;
  layout.baseboard = std::move(outline);
  return BuildScene(layout).baseMesh;
}

bool Covers(const Mesh& mesh, float x, float y) {
  for (const Triangle& triangle : TrianglesOf(mesh)) {
    bool holds = true;
    for (std::size_t i = 0; i < 3; ++i) {
      const Vec3f edge = triangle.corners[(i + 1) % 3] - triangle.corners[i];
      const Vec3f there = Vec3f{x, y, -0.5F} - triangle.corners[i];
      holds = holds && Cross(edge, there).z > 0.0F;
    }
    if (holds) return true;
  }
  return false;
}

TEST(SceneBaseboard, LiesJustBelowTheTrackInItsColour) {
  const Mesh mesh = BoardOf({{0, 0}, {2400, 0}, {2400, 1200}, {0, 1200}});
  ExpectSound(mesh);
  ExpectBounds(mesh, {0, -1200, -0.5F}, {2400, 0, -0.5F});
  EXPECT_EQ(TriangleCount(mesh), 2U);
  for (const Vec3f& normal : mesh.normals) EXPECT_EQ(normal, (Vec3f{0, 0, 1}));
  for (const Rgb& colour : mesh.colors) EXPECT_EQ(colour, (Rgb{0.36F, 0.5F, 0.3F}));
}

TEST(SceneBaseboard, OfAnLShapeCoversTheLAndNoMore) {
  std::vector<Vec2> outline{{0, 0}, {2400, 0}, {2400, 600}, {1200, 600}, {1200, 1200}, {0, 1200}};
  for (int winding = 0; winding < 2; ++winding) {
    const Mesh mesh = BoardOf(outline);
    ExpectSound(mesh);
    // 2400 x 600 + 1200 x 600.
    EXPECT_NEAR(AreaOf(mesh), 2'160'000.0, 10.0);
    EXPECT_FALSE(Covers(mesh, 1800, -900));
    EXPECT_TRUE(Covers(mesh, 600, -901));
    std::reverse(outline.begin(), outline.end());
  }
}

TEST(SceneBaseboard, OfAUShapeCoversTheUAndNoMore) {
  const Mesh mesh = BoardOf({{0, 0},
                             {3000, 0},
                             {3000, 2000},
                             {2000, 2000},
                             {2000, 1000},
                             {1000, 1000},
                             {1000, 2000},
                             {0, 2000}});
  ExpectSound(mesh);
  // 3000 x 2000 less 1000 x 1000.
  EXPECT_NEAR(AreaOf(mesh), 5'000'000.0, 10.0);
  EXPECT_FALSE(Covers(mesh, 1501, -1502));
  EXPECT_TRUE(Covers(mesh, 501, -1502));
  EXPECT_TRUE(Covers(mesh, 2501, -1502));
  EXPECT_TRUE(Covers(mesh, 1503, -501));
}

TEST(SceneBaseboard, ThatCrossesItselfGetsAVertexAtTheCrossing) {
  const Mesh mesh = BoardOf({{0, 0}, {100, 100}, {100, 0}, {0, 100}});
  ExpectSound(mesh);
  // Two triangles with a base of 100 and a height of 50.
  EXPECT_NEAR(AreaOf(mesh), 5000.0, 0.1);
  EXPECT_NE(std::ranges::find(mesh.positions, Vec3f{50, -50, -0.5F}), mesh.positions.end());
}

TEST(SceneBaseboard, OfAStarInOneStrokeLeavesTheMiddleOut) {
  const Mesh mesh = BoardOf({{0, -100}, {59, 81}, {-95, -31}, {95, -31}, {-59, 81}});
  ExpectSound(mesh);
  EXPECT_FALSE(Covers(mesh, 1, 2));
  EXPECT_TRUE(Covers(mesh, 1, 80));
}

TEST(SceneBaseboard, ThatIsHiddenOrMissingIsNotDrawn) {
  Layout layout;
  layout.baseboard = {{0, 0}, {100, 0}, {100, 100}};
  layout.baseboardVisible = false;
  EXPECT_TRUE(BuildScene(layout).baseMesh.positions.empty());
  EXPECT_TRUE(BoardOf({{0, 0}, {100, 0}}).positions.empty());
  EXPECT_TRUE(BoardOf({}).positions.empty());
}

TEST(SceneBaseboard, StandsRepeatedVertices) {
  const Mesh mesh =
      BoardOf({{0, 0}, {0, 0}, {100, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 100}, {0, 0}});
  ExpectSound(mesh);
  EXPECT_NEAR(AreaOf(mesh), 10'000.0, 0.1);
  EXPECT_TRUE(BoardOf({{5, 5}, {5, 5}, {5, 5}, {5, 5}}).indices.empty());
  EXPECT_EQ(AreaOf(BoardOf({{0, 0}, {100, 0}, {50, 0}, {20, 0}})), 0.0);
}

TEST(SceneBaseboard, LosesTheVerticesWithoutAPlace) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Mesh mesh = BoardOf({{0, 0}, {nan, 5}, {100, 0}, {1e300, 0}, {100, 100}, {0, 100}});
  ExpectSound(mesh);
  EXPECT_NEAR(AreaOf(mesh), 10'000.0, 0.1);
  EXPECT_TRUE(BoardOf({{0, 0}, {nan, 5}, {100, 0}, {1, -1e300}}).positions.empty());
}

TEST(SceneBaseboard, OfThousandsOfVerticesIsCoveredWhole) {
  std::vector<Vec2> circle;
  for (int i = 0; i < 20'000; ++i) {
    const double angle = i * 2.0 * 3.141592653589793 / 20'000;
    circle.push_back({1000 * std::cos(angle), 1000 * std::sin(angle)});
  }
  const Mesh mesh = BoardOf(circle);
  // 1000 x 1000 x pi.
  EXPECT_NEAR(AreaOf(mesh), 3'141'592.6, 50.0);
  EXPECT_EQ(TriangleCount(mesh), 19'998U);
}

TEST(SceneBaseboard, OfTwentyFiveThousandVerticesIsNoScribble) {
  // More vertices than crossings are allowed: where two edges follow each other they touch, and
  // that is no crossing, nor does an edge cross itself.
  std::vector<Vec2> circle;
  for (int i = 0; i < 25'000; ++i) {
    const double angle = i * 2.0 * 3.141592653589793 / 25'000;
    circle.push_back({1000 * std::cos(angle), 1000 * std::sin(angle)});
  }
  EXPECT_EQ(TriangleCount(BoardOf(circle)), 24'998U);
}

TEST(SceneBaseboard, ThatIsACombOfHundredsOfTeethIsDrawn) {
  // 300 teeth, 1000 mm long and 4 mm wide, every 10 mm along a back 100 mm wide. The ends of all
  // teeth lie in one line, 300 x 299 / 2 = 44,850 pairs of edges, and so do the gaps: none of them
  // meets another.
  for (const double down : {1.0, -1.0}) {
    std::vector<Vec2> comb{{-100, 0}};
    for (int i = 0; i < 300; ++i) {
      const double y = down * 10.0 * i;
      for (const Vec2 corner :
           {Vec2{0, y}, Vec2{1000, y}, Vec2{1000, y + down * 4.0}, Vec2{0, y + down * 4.0}})
        comb.push_back(corner);
    }
    comb.push_back({-100, down * 2994.0});
    const Mesh mesh = BoardOf(comb);
    ExpectSound(mesh);
    // 300 x 1000 x 4 and 100 x 2994.
    EXPECT_NEAR(AreaOf(mesh), 1'499'400.0, 10.0) << down;
    std::ranges::reverse(comb);
    EXPECT_NEAR(AreaOf(BoardOf(comb)), 1'499'400.0, 10.0) << down;
  }
}

TEST(SceneBaseboard, ThatIsAScribbleOfThousandsOfStrokesIsLeftOut) {
  // Each stroke across crosses thousands of others: the tessellator would work for minutes.
  std::vector<Vec2> scribble;
  for (int i = 0; i < 5001; ++i) {
    const double angle = i * 2500 * 2.0 * 3.141592653589793 / 5001;
    scribble.push_back({1000 * std::cos(angle), 1000 * std::sin(angle)});
  }
  EXPECT_TRUE(BoardOf(scribble).positions.empty());
  // So it is with teeth that don't cross, when all of them stand side by side.
  std::vector<Vec2> comb;
  for (int i = 0; i < 20'001; ++i) comb.push_back({i % 2 == 0 ? 0.0 : 1000.0, i * 0.1});
  comb.push_back({2000, 2000});
  comb.push_back({2000, 0});
  EXPECT_TRUE(BoardOf(comb).positions.empty());
}

TEST(SceneBaseboard, OfATangleThatAHandMayDrawIsDrawn) {
  // Every stroke of a star of 101 points crosses 98 others: 101 x 98 / 2 = 4949 crossings.
  std::vector<Vec2> star;
  for (int i = 0; i < 101; ++i) {
    const double angle = i * 50 * 2.0 * 3.141592653589793 / 101;
    star.push_back({1000 * std::cos(angle), 1000 * std::sin(angle)});
  }
  const Mesh mesh = BoardOf(star);
  EXPECT_EQ(mesh.positions.size(), 101U + 4949U);
  EXPECT_GT(AreaOf(mesh), 1e5);
}

std::vector<std::uint32_t> Collected(CornerRun run, std::uint32_t corners) {
  TriangleCollector collector;
  collector.begin(run);
  for (std::uint32_t i = 0; i < corners; ++i) collector.take(i);
  return collector.indices();
}

using Indices = std::vector<std::uint32_t>;

TEST(TriangleCollector, TakesTrianglesOneByOne) {
  EXPECT_EQ(Collected(CornerRun::triangles, 6), (Indices{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(Collected(CornerRun::triangles, 5), (Indices{0, 1, 2}));
}

TEST(TriangleCollector, TakesAFanAroundItsFirstCorner) {
  EXPECT_EQ(Collected(CornerRun::fan, 5), (Indices{0, 1, 2, 0, 2, 3, 0, 3, 4}));
}

TEST(TriangleCollector, TakesAStripWithEveryOtherTriangleTurned) {
  EXPECT_EQ(Collected(CornerRun::strip, 5), (Indices{0, 1, 2, 2, 1, 3, 2, 3, 4}));
}

TEST(TriangleCollector, StartsAnewWithEachRun) {
  TriangleCollector collector;
  collector.begin(CornerRun::fan);
  for (const std::uint32_t corner : {7U, 8U}) collector.take(corner);
  collector.begin(CornerRun::strip);
  for (const std::uint32_t corner : {1U, 2U, 3U}) collector.take(corner);
  EXPECT_EQ(collector.indices(), (Indices{1, 2, 3}));
}

}  // namespace
}  // namespace vantrel
