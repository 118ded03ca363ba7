#include "view3d/scene/mesh.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/scene/mesh_support.h"

namespace vantrel {
namespace {

constexpr Rgb kPureRed{1, 0, 0};
constexpr Rgb kBlue{0, 0, 1};

TEST(Mesh, IsLaidOutForTheClientArrays) {
  EXPECT_EQ(sizeof(Vec3f), 3 * sizeof(float));
  EXPECT_EQ(sizeof(Rgb), 3 * sizeof(float));
}

TEST(Mesh, TakesAQuadAsFourVerticesAndTwoTriangles) {
  Mesh mesh;
  AddQuad(mesh, {Vec3f{0, 0, 5}, {2, 0, 5}, {2, 3, 5}, {0, 3, 5}}, {0, 0, 1}, kPureRed);
  EXPECT_EQ(mesh.positions.size(), 4U);
  EXPECT_EQ(mesh.normals, std::vector<Vec3f>(4, {0, 0, 1}));
  EXPECT_EQ(mesh.colors, std::vector<Rgb>(4, kPureRed));
  EXPECT_EQ(mesh.indices, (std::vector<std::uint32_t>{0, 1, 2, 0, 2, 3}));
}

TEST(Mesh, WindsAQuadGivenClockwiseSoThatItFrontsItsNormal) {
  Mesh mesh;
  AddQuad(mesh, {Vec3f{0, 3, 5}, {2, 3, 5}, {2, 0, 5}, {0, 0, 5}}, {0, 0, 1}, kPureRed);
  ExpectSound(mesh);
  const auto triangles = TrianglesOf(mesh);
  EXPECT_FLOAT_EQ(triangles[0].area() + triangles[1].area(), 6.0F);
}

TEST(Mesh, WindsATriangleGivenClockwiseSoThatItFrontsItsNormal) {
  Mesh mesh;
  AddTriangle(mesh, {Vec3f{0, 0, 0}, {0, 1, 0}, {1, 0, 0}}, {0, 0, 1}, kPureRed);
  ExpectSound(mesh);
  EXPECT_EQ(TriangleCount(mesh), 1U);
}

TEST(Mesh, PutsABoxAtTheCornerOfItsFootprint) {
  Mesh mesh;
  AddBox(mesh, {0, 0, 0}, {10, 20, 30}, {kPureRed, kBlue}, {100, 60});
  // The corner lands at (-50, 30), and y runs down from there.
  ExpectBounds(mesh, {-50, 10, 0}, {-40, 30, 30});
}

TEST(Mesh, MakesABoxOfSixFlatQuadsWithItsTopInTheTopColour) {
  Mesh mesh;
  AddBox(mesh, {5, 6, 7}, {10, 20, 30}, {kPureRed, kBlue}, {100, 60});
  EXPECT_EQ(mesh.positions.size(), 24U);
  EXPECT_EQ(TriangleCount(mesh), 12U);
  ExpectClosed(mesh);
  EXPECT_NEAR(SignedVolume(mesh), 6000.0, 0.1);
  for (std::size_t i = 0; i < mesh.normals.size(); ++i)
    EXPECT_EQ(mesh.colors[i] == kBlue, (mesh.normals[i] == Vec3f{0, 0, 1}));
  ExpectBounds(PartIn(mesh, kBlue), {-45, 4, 37}, {-35, 24, 37});
}

TEST(Mesh, KeepsABoxOfNegativeSizeRightSideOut) {
  Mesh mesh;
  AddBox(mesh, {10, 10, 10}, {-4, 6, 8}, {kPureRed, kBlue}, {0, 0});
  ExpectClosed(mesh);
  ExpectBounds(mesh, {6, -16, 10}, {10, -10, 18});
}

TEST(Mesh, KeepsTheTrianglesOfTwoPrimitivesApart) {
  Mesh mesh;
  AddBox(mesh, {0, 0, 0}, {10, 10, 10}, {kPureRed, kPureRed}, {10, 10});
  const auto alone = mesh.indices;
  AddQuad(mesh, {Vec3f{0, 0, 50}, {2, 0, 50}, {2, 3, 50}, {0, 3, 50}}, {0, 0, 1}, kBlue);
  ASSERT_EQ(mesh.indices.size(), alone.size() + 6);
  EXPECT_TRUE(std::equal(alone.begin(), alone.end(), mesh.indices.begin()));
  EXPECT_EQ(mesh.indices[alone.size()], 24U);
  EXPECT_EQ(TriangleCount(PartIn(mesh, kBlue)), 2U);
  ExpectBounds(PartIn(mesh, kBlue), {0, 0, 50}, {2, 3, 50});
}

TEST(Mesh, AppendsEachPrimitiveBehindTheVerticesThatStandThere) {
  const auto shifted = [](const auto& add) {
    Mesh alone;
    add(alone);
    Mesh second;
    AddBox(second, {0, 0, 0}, {1, 1, 1}, {kPureRed, kPureRed}, {1, 1});
    const std::size_t before = second.indices.size();
    add(second);
    ASSERT_EQ(second.indices.size(), before + alone.indices.size());
    for (std::size_t i = 0; i < alone.indices.size(); ++i)
      ASSERT_EQ(second.indices[before + i], alone.indices[i] + 24);
  };
  shifted([](Mesh& m) { AddBeam(m, {0, 0, 0}, {5, 5, 5}, 1, kPureRed); });
  shifted([](Mesh& m) { AddCone(m, {0, 0, 0}, 3, 4, kPureRed, 8); });
  shifted([](Mesh& m) { AddSphere(m, {0, 0, 0}, 3, kPureRed, 4); });
  shifted([](Mesh& m) { AddHipRoof(m, {0, 0, 50, 20, 5, 5}, {kPureRed, kBlue}, {50, 20}); });
  shifted([](Mesh& m) { AddGableRoof(m, {0, 0, 50, 20, 5, 5}, {kPureRed, kBlue}, {50, 20}); });
  shifted([](Mesh& m) { AddPyramid(m, {0, 0, 50, 20, 5, 5}, kPureRed, {50, 20}); });
}

TEST(Mesh, LaysABeamAlongItsSegmentWithItsSidesLevelAndUpright) {
  Mesh mesh;
  AddBeam(mesh, {10, 5, 8}, {30, 5, 8}, 2, kPureRed);
  EXPECT_EQ(TriangleCount(mesh), 12U);
  ExpectClosed(mesh);
  ExpectBounds(mesh, {10, 3, 6}, {30, 7, 10});
}

TEST(Mesh, TurnsABeamsSecondAxisFromLevelWhereItStandsUpright) {
  Mesh mesh;
  AddBeam(mesh, {10, 5, 0}, {10, 5, 40}, 2, kPureRed);
  ExpectClosed(mesh);
  ExpectBounds(mesh, {8, 3, 0}, {12, 7, 40});
}

bool HasNormal(const Mesh& mesh, bool (*is)(Vec3f)) {
  return std::any_of(mesh.normals.begin(), mesh.normals.end(), is);
}

TEST(Mesh, KeepsABeamsSecondAxisLevelUpToASteepnessOfNineTenths) {
  const auto isLevel = [](Vec3f normal) { return std::abs(normal.z) < 1e-4F; };
  const auto isAcrossX = [](Vec3f normal) { return std::abs(normal.x) < 1e-4F; };
  // 8, 8 and 22 over a length of 24.74: z 0.889.
  Mesh below;
  AddBeam(below, {0, 0, 0}, {8, 8, 22}, 2, kPureRed);
  ExpectClosed(below);
  EXPECT_TRUE(HasNormal(below, isLevel));
  EXPECT_FALSE(HasNormal(below, isAcrossX));

  // 7.5, 7.5 and 22 over 24.42: z 0.9008, upward or downward.
  for (const float z : {22.0F, -22.0F}) {
    Mesh above;
    AddBeam(above, {0, 0, 0}, {7.5F, 7.5F, z}, 2, kPureRed);
    ExpectClosed(above);
    EXPECT_FALSE(HasNormal(above, isLevel));
    EXPECT_TRUE(HasNormal(above, isAcrossX));
  }
}

TEST(Mesh, HoldsTheThicknessOfABeamInAnyDirection) {
  for (const Vec3f end : {Vec3f{3, 4, 12}, {-3, 4, -12}, {1, -8, 4}, {-6, -2, 3}, {0, 0, -13}}) {
    Mesh mesh;
    AddBeam(mesh, {1, 2, 3}, Vec3f{1, 2, 3} + end, 0.5F, kPureRed);
    ExpectClosed(mesh);
    // A bar of section 1 by 1.
    EXPECT_NEAR(SignedVolume(mesh), Length(end), 1e-2);
  }
}

TEST(Mesh, GivesABeamWithoutLengthADefaultDirection) {
  Mesh mesh;
  AddBeam(mesh, {1, 2, 3}, {1, 2, 3}, 2, kPureRed);
  ExpectSound(mesh);
  ExpectBounds(mesh, {1, 0, 1}, {1, 4, 5});
}

TEST(Mesh, RunsTheSidesOfAConeUpToAnApexOverAClosedBase) {
  Mesh mesh;
  AddCone(mesh, {5, 6, 7}, 10, 20, kPureRed, 8);
  ExpectClosed(mesh);
  EXPECT_EQ(TriangleCount(mesh), 16U);
  ExpectBounds(mesh, {-5, -4, 7}, {15, 16, 27});
  // The first side vertex lies along x; the normal of a slope of 20 over 10 is (2, 0, 1) over the
  // square root of 5.
  ExpectPoint(mesh.positions[0], {15, 6, 7});
  ExpectPoint(mesh.normals[0], {0.8944F, 0, 0.4472F});
}

TEST(Mesh, GivesAConeAtLeastThreeSides) {
  Mesh mesh;
  AddCone(mesh, {0, 0, 0}, 10, 20, kPureRed, -4);
  ExpectClosed(mesh);
  EXPECT_EQ(TriangleCount(mesh), 6U);
}

TEST(Mesh, MakesASphereOfRingsAndTwiceAsManySectors) {
  Mesh mesh;
  AddSphere(mesh, {1, 2, 3}, 10, kPureRed, 6);
  ExpectClosed(mesh);
  // 12 sectors: 12 triangles at each pole, 24 in each of the four bands between.
  EXPECT_EQ(TriangleCount(mesh), 120U);
  ExpectBounds(mesh, {-9, -8, -7}, {11, 12, 13});
  for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
    EXPECT_NEAR(Length(mesh.positions[i] - Vec3f{1, 2, 3}), 10.0F, 1e-3F);
    ExpectPoint(mesh.positions[i], Vec3f{1, 2, 3} + mesh.normals[i] * 10.0F);
  }
}

TEST(Mesh, GivesASphereAtLeastTwoRings) {
  Mesh mesh;
  AddSphere(mesh, {0, 0, 0}, 10, kPureRed, 0);
  ExpectClosed(mesh);
  EXPECT_EQ(TriangleCount(mesh), 8U);
}

TEST(Mesh, InsetsTheRidgeOfAHipRoofByAFifthOfTheShorterSide) {
  Mesh mesh;
  AddHipRoof(mesh, {10, 20, 100, 50, 30, 15}, {kPureRed, kBlue}, {200, 100});
  ExpectSound(mesh);
  EXPECT_EQ(TriangleCount(mesh), 10U);
  // From x 10 - 100 = -90 to 10; y from -(20 - 50) = 30 down to -20.
  ExpectBounds(mesh, {-90, -20, 30}, {10, 30, 45});
  // A fifth of 50 is 10.
  ExpectBounds(PartOf(mesh, [](const Triangle& t) { return t.normals[0].z > 0.9F; }),
               {-80, -10, 45}, {0, 20, 45});
  // Only the eaves are open.
  EXPECT_EQ(OpenEdges(mesh), 4U);
}

TEST(Mesh, SlantsTheNormalsOfAHipRoofAlikeAtAnyRise) {
  for (const float rise : {1.0F, 80.0F}) {
    Mesh mesh;
    AddHipRoof(mesh, {0, 0, 100, 50, 30, rise}, {kPureRed, kBlue}, {100, 50});
    for (const Vec3f& normal : mesh.normals) EXPECT_TRUE(normal.z == 1.0F || normal.z == 0.6F);
    // The hips at the two ends are in the side colour.
    for (const Triangle& triangle : TrianglesOf(PartIn(mesh, kPureRed)))
      EXPECT_NEAR(std::abs(triangle.normals[0].x), 0.8F, 1e-6F);
    EXPECT_EQ(TriangleCount(PartIn(mesh, kPureRed)), 4U);
  }
}

TEST(Mesh, RunsTheRidgeOfAGableRoofAlongXAtHalfItsDepth) {
  Mesh mesh;
  AddGableRoof(mesh, {10, 20, 100, 60, 30, 40}, {kPureRed, kBlue}, {200, 100});
  ExpectSound(mesh);
  EXPECT_EQ(TriangleCount(mesh), 6U);
  ExpectBounds(mesh, {-90, -30, 30}, {10, 30, 70});
  // The middle of the depth, 20 + 30 = 50, is the footprint's own middle.
  const Mesh ridge = PartIn(mesh, kBlue);
  EXPECT_EQ(TriangleCount(ridge), 4U);
  for (const Vec3f& point : ridge.positions) {
    if (point.z > 69.0F) {
      EXPECT_NEAR(point.y, 0.0F, 1e-4F);
    }
  }
  // 40 up over 30 across: the normal leans 4 out and 3 up, over 5.
  for (const Vec3f& normal : ridge.normals) EXPECT_NEAR(normal.z, 0.6F, 1e-6F);
  const Mesh ends = PartIn(mesh, kPureRed);
  EXPECT_EQ(TriangleCount(ends), 2U);
  for (const Vec3f& normal : ends.normals) EXPECT_EQ(std::abs(normal.x), 1.0F);
  EXPECT_EQ(OpenEdges(mesh), 4U);
}

TEST(Mesh, RaisesAPyramidOverTheMiddleOfItsRectangle) {
  Mesh mesh;
  AddPyramid(mesh, {10, 20, 60, 40, 30, 50}, kPureRed, {200, 100});
  ExpectSound(mesh);
  EXPECT_EQ(TriangleCount(mesh), 4U);
  ExpectBounds(mesh, {-90, -10, 30}, {-30, 30, 80});
  for (const Triangle& triangle : TrianglesOf(mesh))
    ExpectPoint(triangle.corners[2], {-60, 10, 80});
  EXPECT_EQ(OpenEdges(mesh), 4U);
}

}  // namespace
}  // namespace vantrel
