#include <gtest/gtest.h>

#include "tests/scene/mesh_support.h"
#include "tests/scene/track_colours.h"
#include "view3d/scene/paths.h"

namespace vantrel {
namespace {

Mesh StraightStrip() {
  Mesh mesh;
  AddTrackStrip(mesh, StraightPath(0, 0, 188.3, 0, 9));
  return mesh;
}

// Around (0, 360): a curve to the right.
Mesh CurvedStrip() {
  Mesh mesh;
  AddTrackStrip(mesh, ArcPath(0, 360, 360, -90, 30, 12));
  return mesh;
}

// The middles of the sleepers' tops: two triangles each, whose corners 0 and 2 are opposite.
std::vector<Vec3f> SleeperMiddles(const Mesh& mesh) {
  std::vector<Vec3f> middles;
  const auto triangles = TrianglesOf(PartIn(mesh, kSleeperTop));
  for (std::size_t i = 0; i < triangles.size(); i += 2)
    middles.push_back((triangles[i].corners[0] + triangles[i].corners[2]) * 0.5F);
  return middles;
}

bool IsTop(const Triangle& triangle) {
  return triangle.normals[0] == Vec3f{0, 0, 1};
}

TEST(TrackStrip, CountsItsTriangles) {
  ExpectSound(StraightStrip());
  // Ballast 9 x 3 quads and 2 ends: 58. Sleepers: 14 of 5 quads: 140. Rails: 2 x 9 x 3 quads: 108.
  EXPECT_EQ(TriangleCount(StraightStrip()), 306U);
  // 12 segments: 76, 14 sleepers again, 144.
  EXPECT_EQ(TriangleCount(CurvedStrip()), 360U);
}

TEST(TrackStrip, BedsTheTrackOnBallast) {
  const Mesh mesh = StraightStrip();
  ExpectBounds(PartIn(mesh, kBallastTop), {0, -18.7F, 2}, {188.3F, 18.7F, 2});
  ExpectBounds(PartIn(mesh, kBallastSide), {0, -18.7F, 0}, {188.3F, 18.7F, 2});
  const Mesh ballast = PartOf(
      mesh, [](const Triangle& t) { return t.colour == kBallastTop || t.colour == kBallastSide; });
  // All but its underside at z 0, which adds nothing: 188.3 x 37.4 x 2.
  EXPECT_NEAR(SignedVolume(ballast), 14084.84, 0.5);
}

TEST(TrackStrip, ClosesTheBallastAtBothEnds) {
  const Mesh ends = PartOf(StraightStrip(), [](const Triangle& t) {
    return t.colour == kBallastSide && std::abs(t.normals[0].x) > 0.5F;
  });
  EXPECT_EQ(TriangleCount(ends), 4U);
  for (const Triangle& end : TrianglesOf(ends))
    EXPECT_EQ(end.normals[0].x, end.corners[0].x < 1.0F ? -1.0F : 1.0F);
}

TEST(TrackStrip, LaysASleeperAt6Point5AndThenEvery13) {
  const auto middles = SleeperMiddles(StraightStrip());
  // The fourteenth lies at 6.5 + 13 x 13 = 175.5; one at 188.5 would be past the end.
  ASSERT_EQ(middles.size(), 14U);
  ExpectPoint(middles[0], {6.5F, 0, 4.2F});
  ExpectPoint(middles[1], {19.5F, 0, 4.2F});
  ExpectPoint(middles[2], {32.5F, 0, 4.2F});
  ExpectPoint(middles[13], {175.5F, 0, 4.2F});
}

TEST(TrackStrip, LaysNoSleeperBeforeThePathReachesTheFirst) {
  Mesh mesh;
  AddTrackStrip(mesh, StraightPath(0, 0, 6.4, 0, 2));
  EXPECT_TRUE(PartIn(mesh, kSleeperTop).empty());
  EXPECT_FALSE(PartIn(mesh, kRailTop).empty());
  Mesh longer;
  AddTrackStrip(longer, StraightPath(0, 0, 6.6, 0, 2));
  EXPECT_EQ(SleeperMiddles(longer).size(), 1U);
}

TEST(TrackStrip, CutsSleepersOf26By3Point5) {
  Mesh mesh;
  AddTrackStrip(mesh, StraightPath(0, 0, 10, 0, 2));
  ExpectBounds(PartIn(mesh, kSleeperTop), {4.75F, -13, 4.2F}, {8.25F, 13, 4.2F});
  ExpectBounds(PartIn(mesh, kSleeperSide), {4.75F, -13, 2}, {8.25F, 13, 4.2F});
  EXPECT_EQ(TriangleCount(PartIn(mesh, kSleeperSide)), 8U);
}

TEST(TrackStrip, TurnsTheSleepersWithTheCurve) {
  const auto triangles = TrianglesOf(PartIn(CurvedStrip(), kSleeperTop));
  ASSERT_EQ(triangles.size(), 28U);
  for (const Triangle& triangle : triangles) {
    for (const Vec3f& corner : triangle.corners) {
      // 13 mm to either side of the curve; the middle lies on a chord, up to 0.09 mm inside.
      const float off = Length(Vec3f{corner.x, corner.y - 360.0F, 0.0F}) - 360.0F;
      EXPECT_NEAR(std::abs(off), 13.0F, 0.1F);
    }
  }
}

TEST(TrackStrip, SetsTwoRails16Point5Apart) {
  const Mesh mesh = StraightStrip();
  for (const float side : {1.0F, -1.0F}) {
    const Mesh rail = PartOf(mesh, [&](const Triangle& t) {
      return (t.colour == kRailTop || t.colour == kRailSide) && t.corners[0].y * side > 0.0F;
    });
    EXPECT_EQ(TriangleCount(rail), 54U);
    // 8.25 from the middle, 0.6 to either side.
    const float inner = side > 0 ? 7.65F : -8.85F;
    ExpectBounds(rail, {0, inner, 4.2F}, {188.3F, inner + 1.2F, 6.7F});
    for (const Triangle& t : TrianglesOf(rail)) {
      if (IsTop(t)) {
        EXPECT_EQ(t.colour, kRailTop);
      } else {
        EXPECT_GT(t.normals[0].y * (t.corners[0].y - side * 8.25F), 0.0F);
      }
    }
  }
}

TEST(TrackStrip, BendsTheRailsWithTheCurve) {
  const auto triangles = TrianglesOf(PartIn(CurvedStrip(), kRailTop));
  // Two rails of 12 segments, two triangles each.
  ASSERT_EQ(triangles.size(), 48U);
  for (const Triangle& triangle : triangles) {
    for (const Vec3f& corner : triangle.corners) {
      const float off = Length(Vec3f{corner.x, corner.y - 360.0F, 0.0F}) - 360.0F;
      EXPECT_NEAR(std::abs(std::abs(off) - 8.25F), 0.6F, 0.01F);
    }
  }
}

TEST(TrackStrip, AddsNothingForFewerThanTwoPoints) {
  Mesh mesh;
  AddTrackStrip(mesh, {});
  AddTrackStrip(mesh, {PathPoint{}});
  EXPECT_TRUE(mesh.positions.empty());
  EXPECT_TRUE(mesh.indices.empty());
}

TEST(TrackStrip, StaysFiniteOnAPathWithoutLength) {
  Mesh mesh;
  AddTrackStrip(mesh, StraightPath(5, 5, 5, 5, 2));
  ExpectSound(mesh);
}

}  // namespace
}  // namespace vantrel
