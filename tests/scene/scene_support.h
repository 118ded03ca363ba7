// Small plans for the scene build, and ways to look into a scene.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "catalog/track_catalog.h"
#include "doc/layout.h"
#include "doc/layout_ops.h"
#include "tests/scene/mesh_support.h"
#include "view3d/scene/scene.h"

namespace vantrel {

// Appends a piece with a slot for each connector and returns its id.
inline std::int32_t Lay(Layout& layout, std::string_view part, const Pose& pose, double z = 0.0,
                        std::int32_t level = 1) {
  Piece piece;
  piece.id = TakeId(layout);
  piece.cat = std::string(part);
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  piece.z = z;
  piece.level = level;
  if (const PieceDef* def = findPart(part)) piece.joints.resize(def->connectors.size());
  layout.pieces.push_back(piece);
  return piece.id;
}

inline void Join(Layout& layout, std::int32_t a, std::size_t slotA, std::int32_t b,
                 std::size_t slotB) {
  FindPiece(layout, a)->joints.at(slotA) = {b, static_cast<std::int32_t>(slotB)};
  FindPiece(layout, b)->joints.at(slotB) = {a, static_cast<std::int32_t>(slotA)};
}

inline void AddLevel(Layout& layout, std::int32_t id, double height, bool visible = true) {
  Level level;
  level.id = id;
  level.height = height;
  level.visible = visible;
  layout.levels.push_back(level);
}

inline Shape& AddShape(Layout& layout, std::vector<Vec2> vertices, double height,
                       std::int32_t level = 1) {
  Shape shape;
  shape.id = TakeId(layout);
  shape.vertices = std::move(vertices);
  shape.height = height;
  shape.level = level;
  layout.shapes.push_back(shape);
  return layout.shapes.back();
}

inline void Cover(Layout& layout, std::vector<std::int32_t> pieces) {
  Tunnel tunnel;
  tunnel.id = TakeId(layout);
  tunnel.covers = std::move(pieces);
  layout.tunnels.push_back(tunnel);
}

// The middle of `count` vertices from `first` on.
inline Vec3f MiddleOf(const Mesh& mesh, std::size_t first, std::size_t count) {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  for (std::size_t i = first; i < first + count; ++i) {
    x += mesh.positions.at(i).x;
    y += mesh.positions.at(i).y;
    z += mesh.positions.at(i).z;
  }
  const auto n = static_cast<double>(count);
  return {static_cast<float>(x / n), static_cast<float>(y / n), static_cast<float>(z / n)};
}

inline void ExpectFiniteMesh(const Mesh& mesh) {
  const auto isFinite = [](float a, float b, float c) {
    return std::isfinite(a) && std::isfinite(b) && std::isfinite(c);
  };
  ASSERT_EQ(mesh.normals.size(), mesh.positions.size());
  ASSERT_EQ(mesh.colors.size(), mesh.positions.size());
  ASSERT_EQ(mesh.indices.size() % 3, 0U);
  for (const Vec3f& point : mesh.positions) ASSERT_TRUE(isFinite(point.x, point.y, point.z));
  for (const Vec3f& normal : mesh.normals) ASSERT_TRUE(isFinite(normal.x, normal.y, normal.z));
  for (const Rgb& colour : mesh.colors) ASSERT_TRUE(isFinite(colour.r, colour.g, colour.b));
  for (const std::uint32_t index : mesh.indices) ASSERT_LT(index, mesh.positions.size());
}

// Every number of the scene is finite, and every instance has its model.
inline void ExpectFinite(const Scene& scene) {
  for (const Mesh* mesh : {&scene.sceneMesh, &scene.baseMesh, &scene.tunnelMesh})
    ExpectFiniteMesh(*mesh);
  for (const auto& [key, model] : scene.trackModels) ExpectFiniteMesh(model);
  for (const auto& [key, model] : scene.sceneryModels) ExpectFiniteMesh(model);
  for (const TrackInstance& track : scene.trackInstances) {
    ASSERT_TRUE(scene.trackModels.contains(track.key)) << track.key;
    for (const float value : {track.x, track.y, track.z, track.heading, track.grade, track.length})
      ASSERT_TRUE(std::isfinite(value));
  }
  for (const SceneryInstance& item : scene.sceneryInstances) {
    ASSERT_TRUE(scene.sceneryModels.contains(item.key)) << item.key;
    for (const float value : {item.x, item.y, item.z, item.heading, item.halfWidth, item.halfDepth,
                              item.scaleX, item.scaleY})
      ASSERT_TRUE(std::isfinite(value));
  }
  for (const WireLine& line : scene.wireLines) {
    for (const float value :
         {line.from.x, line.from.y, line.from.z, line.to.x, line.to.y, line.to.z})
      ASSERT_TRUE(std::isfinite(value));
  }
  ASSERT_TRUE(std::isfinite(scene.centreX) && std::isfinite(scene.centreY) &&
              std::isfinite(scene.distance));
}

}  // namespace vantrel
