#include <gtest/gtest.h>

#include <limits>

#include "tests/scene/mesh_support.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr Rgb kPierCap{0.68F, 0.65F, 0.62F};
constexpr Rgb kLightWood{0.55F, 0.42F, 0.3F};
constexpr Rgb kBeamWood{0.45F, 0.34F, 0.24F};

TEST(Pier, IsAStadiumOf36By22) {
  Mesh mesh;
  AddPier(mesh, 0, 0, 0, 90, 0);
  ExpectSound(mesh);
  ExpectBounds(mesh, {-18, -11, 0}, {18, 11, 90});
  // 18 side quads, and a cap of 18 corners in 16 triangles.
  EXPECT_EQ(TriangleCount(mesh), 52U);
  EXPECT_EQ(TriangleCount(PartIn(mesh, kPierCap)), 16U);
  // Between the lobes 14 x 22 = 308; the lobes together a 16-gon of radius 11: 8 x 121 x sin 22.5
  // degrees = 370.44. The open foot at z 0 adds nothing.
  EXPECT_NEAR(SignedVolume(mesh), 678.44 * 90, 10.0);
  // Open at the foot only.
  EXPECT_EQ(OpenEdges(mesh), 18U);
}

TEST(Pier, FacesOutwardAllAround) {
  Mesh mesh;
  AddPier(mesh, 0, 0, 0, 90, 0);
  for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
    if (mesh.normals[i].z > 0.5F) continue;
    EXPECT_GT(Dot(mesh.positions[i], mesh.normals[i]), 0.0F);
    EXPECT_EQ(mesh.normals[i].z, 0.0F);
  }
}

TEST(Pier, TurnsByItsAngleAndMovesToItsPlace) {
  Mesh mesh;
  AddPier(mesh, 100, -50, 20, 60, 90);
  ExpectSound(mesh);
  ExpectBounds(mesh, {89, -68, 20}, {111, -32, 60});
  Mesh slanted;
  AddPier(slanted, 0, 0, 0, 60, 30);
  // The lobe's middle (7, 0) turns to (6.062, 3.5).
  const Bounds bounds = BoundsOf(slanted);
  EXPECT_NEAR(bounds.high.x, 17.06F, 0.15F);
  EXPECT_NEAR(bounds.high.y, 14.5F, 0.15F);
}

TEST(Pier, IsCappedInItsOwnColourAndSidedInTwoStoneTones) {
  Mesh mesh;
  AddPier(mesh, 0, 0, 10, 90, 0);
  ExpectBounds(PartIn(mesh, kPierCap), {-18, -11, 90}, {18, 11, 90});
  for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
    if (mesh.normals[i].z > 0.5F) continue;
    const bool atFoot = mesh.positions[i].z < 11.0F;
    EXPECT_EQ(mesh.colors[i], atFoot ? (Rgb{0.5F, 0.46F, 0.42F}) : (Rgb{0.62F, 0.58F, 0.54F}));
  }
}

TEST(Pier, IsNotMadeBelowAHeightOf2) {
  Mesh mesh;
  AddPier(mesh, 0, 0, 10, 11.9F, 0);
  AddPier(mesh, 0, 0, 10, 10, 0);
  AddPier(mesh, 0, 0, 10, -50, 0);
  EXPECT_TRUE(mesh.positions.empty());
  AddPier(mesh, 0, 0, 10, 12, 0);
  EXPECT_EQ(TriangleCount(mesh), 52U);
}

TEST(Post, IsSquareWithSidesInTwoAlternatingColours) {
  Mesh mesh;
  AddPost(mesh, 0, 0, 0, 90, 0);
  ExpectSound(mesh);
  ExpectBounds(mesh, {-3.5F, -3.5F, 0}, {3.5F, 3.5F, 90});
  // Four sides and a head.
  EXPECT_EQ(TriangleCount(mesh), 10U);
  EXPECT_NEAR(SignedVolume(mesh), 49.0 * 90, 1.0);
  EXPECT_EQ(OpenEdges(mesh), 4U);
  for (const Triangle& triangle : TrianglesOf(mesh)) {
    if (triangle.normals[0].z > 0.5F) continue;
    const bool acrossX = std::abs(triangle.normals[0].x) > 0.5F;
    EXPECT_EQ(triangle.colour, acrossX ? kLightWood : kBeamWood);
  }
}

TEST(Post, TurnsByItsAngleAndMovesToItsPlace) {
  Mesh mesh;
  AddPost(mesh, 10, 20, 30, 40, 45);
  ExpectSound(mesh);
  // Its diagonal of 7 x 1.41421 = 9.8995 lies along x and y.
  ExpectBounds(mesh, {10 - 4.9497F, 20 - 4.9497F, 30}, {10 + 4.9497F, 20 + 4.9497F, 40});
}

TEST(Post, IsNotMadeBelowAHeightOf2) {
  Mesh mesh;
  AddPost(mesh, 0, 0, 0, 1.9F, 0);
  AddPost(mesh, 0, 0, 0, -1, 0);
  EXPECT_TRUE(mesh.positions.empty());
  AddPost(mesh, 0, 0, 0, 2, 0);
  EXPECT_EQ(TriangleCount(mesh), 10U);
}

TEST(Supports, AreNotMadeOfNumbersThatMeanNoPlace) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float inf = std::numeric_limits<float>::infinity();
  Mesh mesh;
  for (const auto add : {AddPier, AddPost}) {
    for (const float bad : {nan, inf, -inf}) {
      add(mesh, bad, 0, 0, 90, 0);
      add(mesh, 0, bad, 0, 90, 0);
      add(mesh, 0, 0, bad, 90, 0);
      add(mesh, 0, 0, 0, bad, 0);
      add(mesh, 0, 0, 0, 90, bad);
    }
  }
  EXPECT_TRUE(mesh.positions.empty());
}

}  // namespace
}  // namespace vantrel
