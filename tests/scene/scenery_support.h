// Catalog items as models, and what must hold in each of them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "catalog/scenery_catalog.h"
#include "tests/scene/mesh_support.h"
#include "view3d/scene/scenery_models.h"

namespace vantrel {

// The model of a catalog item in its own footprint; an empty one if the catalog has none.
inline Model ModelOf(std::string_view id) {
  const SceneryDef* const def = findScenery(id);
  if (def == nullptr) return {};
  return makeSceneryModel(id, {static_cast<float>(def->width), static_cast<float>(def->depth)});
}

// Bounds in item coordinates: from the corner of the footprint, y as on the canvas.
inline void ExpectItemBounds(const Mesh& mesh, Footprint footprint, Vec3f low, Vec3f high,
                             float tolerance = 1e-2F) {
  ASSERT_FALSE(mesh.empty());
  const Bounds bounds = BoundsOf(mesh);
  const float x = footprint.width / 2.0F;
  const float y = footprint.depth / 2.0F;
  ExpectPoint({bounds.low.x + x, y - bounds.high.y, bounds.low.z}, low, tolerance);
  ExpectPoint({bounds.high.x + x, y - bounds.low.y, bounds.high.z}, high, tolerance);
}

// What of the mesh lies within these item coordinates, corners of triangles included.
inline Mesh PartWithin(const Mesh& mesh, Footprint footprint, Vec3f low, Vec3f high) {
  constexpr float kSlack = 0.01F;
  return PartOf(mesh, [&](const Triangle& triangle) {
    for (const Vec3f& corner : triangle.corners) {
      const Vec3f at{corner.x + footprint.width / 2.0F, footprint.depth / 2.0F - corner.y,
                     corner.z};
      if (at.x < low.x - kSlack || at.y < low.y - kSlack || at.z < low.z - kSlack) return false;
      if (at.x > high.x + kSlack || at.y > high.y + kSlack || at.z > high.z + kSlack) return false;
    }
    return true;
  });
}

// Whether the six faces of a box with these item coordinates are all in the mesh: `sides` in one
// colour, the top in another.
inline void ExpectBox(const Mesh& mesh, Footprint footprint, Vec3f corner, Vec3f size, Rgb side,
                      Rgb top) {
  SCOPED_TRACE("box at " + std::to_string(corner.x) + ", " + std::to_string(corner.y) + ", " +
               std::to_string(corner.z));
  const Mesh part = PartWithin(mesh, footprint, corner, corner + size);
  // Of its faces the top alone lies wholly at the full height.
  const Vec3f foot{corner.x, corner.y, corner.z + size.z};
  const Mesh head = PartWithin(PartIn(part, top), footprint, foot, corner + size);
  const double plan = double(size.x) * size.y;
  EXPECT_GE(AreaOf(head), plan * 0.999);
  const double walls = 2.0 * (double(size.x) + size.y) * size.z;
  EXPECT_GE(AreaOf(PartIn(part, side)), (walls + plan) * 0.999);
}

inline void ExpectBox(const Mesh& mesh, Footprint footprint, Vec3f corner, Vec3f size, Rgb colour) {
  ExpectBox(mesh, footprint, corner, size, colour, colour);
}

}  // namespace vantrel
