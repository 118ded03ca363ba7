#include "view3d/scene/paths.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/scene/mesh_support.h"

namespace vantrel {
namespace {

TEST(Paths, CutsAStraightOf188Point3IntoNineSegments) {
  // 9.415 steps of 20 mm.
  EXPECT_EQ(StraightSegments(188.3), 9);
  EXPECT_EQ(StraightSegments(199.9), 9);
  EXPECT_EQ(StraightSegments(200.0), 10);
}

TEST(Paths, CutsAShortStraightIntoTwoSegments) {
  EXPECT_EQ(StraightSegments(59.9), 2);
  EXPECT_EQ(StraightSegments(5.0), 2);
  EXPECT_EQ(StraightSegments(0.0), 2);
  EXPECT_EQ(StraightSegments(-1e300), 2);
}

TEST(Paths, CutsAnArcOf30DegreesIntoTwelveSegmentsEitherWay) {
  EXPECT_EQ(ArcSegments(30.0), 12);
  EXPECT_EQ(ArcSegments(-30.0), 12);
  EXPECT_EQ(ArcSegments(24.3), 9);  // 9.72 steps of 2.5 degrees
}

TEST(Paths, CutsAnArcOf7Point5DegreesIntoEightSegmentsStill) {
  EXPECT_EQ(ArcSegments(7.5), 8);
  EXPECT_EQ(ArcSegments(0.0), 8);
}

TEST(Paths, BoundsTheSegmentsOfAbsurdMeasures) {
  EXPECT_LE(StraightSegments(1e300), 10000);
  EXPECT_LE(ArcSegments(std::numeric_limits<double>::infinity()), 10000);
}

TEST(Paths, StepsEvenlyAlongAStraight) {
  const Path path = StraightPath(10, 20, 70, 100, 4);
  ASSERT_EQ(path.size(), 5U);
  ExpectPoint(path[0].position, {10, 20, 0});
  ExpectPoint(path[1].position, {25, 40, 0});
  ExpectPoint(path[4].position, {70, 100, 0});
  for (const PathPoint& point : path) {
    // 60 and 80 over a length of 100.
    ExpectPoint(point.tangent, {0.6F, 0.8F, 0});
    ExpectPoint(point.side, {-0.8F, 0.6F, 0});
  }
  EXPECT_NEAR(PathLength(path), 100.0, 1e-3);
}

TEST(Paths, GivesAStraightAtLeastOneSegment) {
  EXPECT_EQ(StraightPath(0, 0, 5, 0, -3).size(), 2U);
}

TEST(Paths, RunsAStraightWithoutLengthAlongX) {
  const Path path = StraightPath(3, 4, 3, 4 + 1e-7, 2);
  ASSERT_EQ(path.size(), 3U);
  for (const PathPoint& point : path) {
    ExpectPoint(point.tangent, {1, 0, 0});
    ExpectPoint(point.side, {0, 1, 0});
  }
}

TEST(Paths, LaysAnArcOnItsCircle) {
  // A quarter around (0, 100) from its foot: to the right, then down the canvas.
  const Path path = ArcPath(0, 100, 100, -90, 90, 9);
  ASSERT_EQ(path.size(), 10U);
  ExpectPoint(path[0].position, {0, 0, 0});
  // 30 degrees on: 100 sin 30 and 100 - 100 cos 30.
  ExpectPoint(path[3].position, {50, 13.3975F, 0});
  ExpectPoint(path[9].position, {100, 100, 0});
  for (const PathPoint& point : path)
    EXPECT_NEAR(Length(point.position - Vec3f{0, 100, 0}), 100.0F, 1e-3F);
}

TEST(Paths, TouchesTheCircleAtTheArcsEndsToo) {
  const Path path = ArcPath(0, 100, 100, -90, 90, 9);
  ExpectPoint(path[0].tangent, {1, 0, 0}, 1e-5F);
  ExpectPoint(path[0].side, {0, 1, 0}, 1e-5F);
  ExpectPoint(path[3].tangent, {0.866025F, 0.5F, 0}, 1e-5F);
  ExpectPoint(path[9].tangent, {0, 1, 0}, 1e-5F);
  ExpectPoint(path[9].side, {-1, 0, 0}, 1e-5F);
}

TEST(Paths, RunsALeftArcUpTheCanvas) {
  const Path path = ArcPath(20, -100, 100, 90, -90, 9);
  ExpectPoint(path.front().position, {20, 0, 0});
  ExpectPoint(path.front().tangent, {1, 0, 0}, 1e-5F);
  ExpectPoint(path.back().position, {120, -100, 0});
  ExpectPoint(path.back().tangent, {0, -1, 0}, 1e-5F);
}

TEST(Paths, GivesAnArcAtLeastTwoSegments) {
  EXPECT_EQ(ArcPath(0, 9, 9, 0, 5, 0).size(), 3U);
}

TEST(Paths, KeepsADirectionOnAnArcWithoutSweep) {
  const Path path = ArcPath(0, 100, 100, -90, 0, 8);
  ASSERT_EQ(path.size(), 9U);
  for (const PathPoint& point : path) {
    ExpectPoint(point.position, {0, 0, 0});
    ExpectPoint(point.tangent, {1, 0, 0});
  }
}

TEST(Paths, InterpolatesBetweenNeighbours) {
  const Path path{{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}},
                  {{10, 0, 0}, {1, 0, 0}, {0, 1, 0}},
                  {{10, 20, 0}, {0, 1, 0}, {-1, 0, 0}}};
  ExpectPoint(PointAlong(path, 4).position, {4, 0, 0});
  const PathPoint halfway = PointAlong(path, 20);
  ExpectPoint(halfway.position, {10, 10, 0});
  ExpectPoint(halfway.tangent, {0.7071F, 0.7071F, 0});
  ExpectPoint(halfway.side, {-0.7071F, 0.7071F, 0});
  ExpectPoint(PointAlong(path, -5).position, {0, 0, 0});
  ExpectPoint(PointAlong(path, 99).position, {10, 20, 0});
}

TEST(Paths, SweepsAClosedBoxAlongABend) {
  Mesh mesh;
  AddSweptBox(mesh, ArcPath(0, 100, 100, -90, 90, 9),
              {.offset = 5.0F,
               .halfWidth = 3.0F,
               .low = -2.0F,
               .high = 4.0F,
               .colours = {},
               .hasEnds = true,
               .hasBottom = true});
  ExpectClosed(mesh);
  // Nine pieces of four faces, and two ends.
  EXPECT_EQ(TriangleCount(mesh), 76U);
  // The side points to the circle's middle: from 98 to 92 mm off it.
  ExpectBounds(mesh, {0, 2, -2}, {98, 100, 4}, 0.01F);
}

TEST(Paths, SweepsNothingAlongASinglePoint) {
  Mesh mesh;
  AddSweptBox(mesh, {PathPoint{}}, {.halfWidth = 3.0F, .high = 4.0F, .colours = {}});
  AddSweptBox(mesh, {}, {.halfWidth = 3.0F, .high = 4.0F, .colours = {}});
  EXPECT_TRUE(mesh.positions.empty());
}

}  // namespace
}  // namespace vantrel
