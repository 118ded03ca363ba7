// What must hold in every mesh, and ways to look into one.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "view3d/scene/mesh.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {

struct Bounds {
  Vec3f low{1e9F, 1e9F, 1e9F};
  Vec3f high{-1e9F, -1e9F, -1e9F};

  void takeIn(Vec3f point) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
  }
};

inline Bounds BoundsOf(const Mesh& mesh) {
  Bounds bounds;
  for (const Vec3f& point : mesh.positions) bounds.takeIn(point);
  return bounds;
}

inline void ExpectPoint(Vec3f point, Vec3f expected, float tolerance = 1e-3F) {
  EXPECT_NEAR(point.x, expected.x, tolerance);
  EXPECT_NEAR(point.y, expected.y, tolerance);
  EXPECT_NEAR(point.z, expected.z, tolerance);
}

inline void ExpectBounds(const Mesh& mesh, Vec3f low, Vec3f high, float tolerance = 1e-3F) {
  const Bounds bounds = BoundsOf(mesh);
  ExpectPoint(bounds.low, low, tolerance);
  ExpectPoint(bounds.high, high, tolerance);
}

struct Triangle {
  std::array<Vec3f, 3> corners;
  std::array<Vec3f, 3> normals;
  Rgb colour;

  Vec3f turn() const { return Cross(corners[1] - corners[0], corners[2] - corners[0]); }
  float area() const { return Length(turn()) / 2.0F; }
};

inline std::vector<Triangle> TrianglesOf(const Mesh& mesh) {
  std::vector<Triangle> triangles;
  for (std::size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
    Triangle triangle;
    for (std::size_t corner = 0; corner < 3; ++corner) {
      triangle.corners[corner] = mesh.positions.at(mesh.indices[i + corner]);
      triangle.normals[corner] = mesh.normals.at(mesh.indices[i + corner]);
    }
    triangle.colour = mesh.colors.at(mesh.indices[i]);
    triangles.push_back(triangle);
  }
  return triangles;
}

// The triangles of one colour, as a mesh of its own.
inline Mesh PartOf(const Mesh& mesh, const std::function<bool(const Triangle&)>& belongs) {
  Mesh part;
  for (const Triangle& triangle : TrianglesOf(mesh)) {
    if (!belongs(triangle)) continue;
    for (std::size_t corner = 0; corner < 3; ++corner) {
      part.indices.push_back(static_cast<std::uint32_t>(part.positions.size()));
      part.positions.push_back(triangle.corners[corner]);
      part.normals.push_back(triangle.normals[corner]);
      part.colors.push_back(triangle.colour);
    }
  }
  return part;
}

inline Mesh PartIn(const Mesh& mesh, Rgb colour) {
  return PartOf(mesh, [&](const Triangle& triangle) { return triangle.colour == colour; });
}

inline std::size_t TriangleCount(const Mesh& mesh) {
  return mesh.indices.size() / 3;
}

// The arrays go together, every number is finite, normals have length 1, and each triangle's front
// agrees with its normals.
inline void ExpectSound(const Mesh& mesh) {
  ASSERT_EQ(mesh.normals.size(), mesh.positions.size());
  ASSERT_EQ(mesh.colors.size(), mesh.positions.size());
  ASSERT_EQ(mesh.indices.size() % 3, 0U);
  for (const std::uint32_t index : mesh.indices) ASSERT_LT(index, mesh.positions.size());
  for (const Vec3f& point : mesh.positions)
    ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z));
  for (const Vec3f& normal : mesh.normals) ASSERT_NEAR(Length(normal), 1.0F, 1e-4F);
  for (const Rgb& colour : mesh.colors) {
    for (const float part : {colour.r, colour.g, colour.b}) ASSERT_TRUE(part >= 0 && part <= 1);
  }
  for (const Triangle& triangle : TrianglesOf(mesh)) {
    if (triangle.area() < 1e-4F) continue;
    for (const Vec3f& normal : triangle.normals)
      ASSERT_GT(Dot(triangle.turn(), normal), 0.0F)
          << "at " << triangle.corners[0].x << ", " << triangle.corners[0].y << ", "
          << triangle.corners[0].z;
  }
}

// Positive when the triangles of a closed surface front outward.
inline double SignedVolume(const Mesh& mesh) {
  double volume = 0.0;
  for (const Triangle& triangle : TrianglesOf(mesh))
    volume += Dot(triangle.corners[0], Cross(triangle.corners[1], triangle.corners[2])) / 6.0;
  return volume;
}

// How many edges run one way more often than the other; 0 for closed surfaces. Corners within a
// hundredth of a millimetre are one.
inline std::size_t OpenEdges(const Mesh& mesh) {
  using Corner = std::array<long, 3>;
  const auto corner = [](Vec3f point) {
    return Corner{std::lround(point.x * 100), std::lround(point.y * 100),
                  std::lround(point.z * 100)};
  };
  std::map<std::pair<Corner, Corner>, int> balance;
  for (const Triangle& triangle : TrianglesOf(mesh)) {
    for (std::size_t i = 0; i < 3; ++i) {
      const Corner from = corner(triangle.corners[i]);
      const Corner to = corner(triangle.corners[(i + 1) % 3]);
      if (from < to) ++balance[{from, to}];
      if (to < from) --balance[{to, from}];
    }
  }
  return static_cast<std::size_t>(
      std::count_if(balance.begin(), balance.end(), [](const auto& e) { return e.second != 0; }));
}

inline void ExpectClosed(const Mesh& mesh) {
  ExpectSound(mesh);
  EXPECT_EQ(OpenEdges(mesh), 0U);
  EXPECT_GT(SignedVolume(mesh), 0.0);
}

inline double AreaOf(const Mesh& mesh) {
  double area = 0.0;
  for (const Triangle& triangle : TrianglesOf(mesh)) area += triangle.area();
  return area;
}

}  // namespace vantrel
