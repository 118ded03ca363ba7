// The geometry of the 3D view: triangle meshes, and the primitives that append to them.
//
// The view's frame has x as the world's x, y as the negated world y, and z up, in millimetres.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace vantrel {

struct Vec3f {
  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;

  friend bool operator==(const Vec3f&, const Vec3f&) = default;
};

// Components in [0, 1].
struct Rgb {
  float r = 0.0F;
  float g = 0.0F;
  float b = 0.0F;

  friend bool operator==(const Rgb&, const Rgb&) = default;
};

// Parallel arrays, one entry per vertex, and three indices per triangle. Kept apart, and their
// records packed, so that they can be handed to the client-array calls as they are.
struct Mesh {
  std::vector<Vec3f> positions;
  std::vector<Vec3f> normals;
  std::vector<Rgb> colors;
  std::vector<std::uint32_t> indices;

  bool empty() const { return indices.empty(); }
};

// The mesh of one track part or scenery item, in the frame of the piece or the item.
using Model = Mesh;

// The size of an item whose parts are given from the corner of its footprint: a point (x, y) lands
// at (x - width / 2, -(y - depth / 2)).
struct Footprint {
  float width = 0.0F;
  float depth = 0.0F;
};

// The colour of the sides (or slopes) of a solid, and of its top.
struct SolidColours {
  Rgb side;
  Rgb top;
};

// Where the item coordinates `point` land in the item's own frame.
Vec3f PlaceInFootprint(Vec3f point, Footprint footprint);

// All primitives append, their indices starting at the mesh's vertex count. Front faces (counter-
// clockwise) and normals point outward.

// Corners in order around the face, either way: the triangles are wound so that they front the
// normal.
void AddQuad(Mesh& mesh, const std::array<Vec3f, 4>& corners, Vec3f normal, Rgb colour);
void AddTriangle(Mesh& mesh, const std::array<Vec3f, 3>& corners, Vec3f normal, Rgb colour);

// Six quads with flat normals; `corner` is the lowest x, y, z in item coordinates. A negative size
// reaches the other way from it.
void AddBox(Mesh& mesh, Vec3f corner, Vec3f size, SolidColours colours, Footprint footprint);

// A square bar from `a` to `b`, in the mesh's own frame. Its second axis is level, except along a
// bar within some 25 degrees of upright, where it lies across x.
void AddBeam(Mesh& mesh, Vec3f a, Vec3f b, float halfThickness, Rgb colour);

// `centre` is the middle of the base, in the mesh's own frame. At least 3 sides.
void AddCone(Mesh& mesh, Vec3f centre, float radius, float height, Rgb colour, int sides);

// n rings from pole to pole and 2n sectors, in the mesh's own frame. At least 2 rings.
void AddSphere(Mesh& mesh, Vec3f centre, float radius, Rgb colour, int rings);

// Roofs over the rectangle from (x, y) with the size (sx, sy), in item coordinates, from z `eave`
// up by `rise`. They are open below, where the walls close them.
struct RoofPlan {
  float x = 0.0F;
  float y = 0.0F;
  float sx = 0.0F;
  float sy = 0.0F;
  float eave = 0.0F;
  float rise = 0.0F;
};

// Four slopes up to a flat ridge, inset by a fifth of the shorter side from all four eaves. `side`
// colours the two slopes whose eaves run along y, `top` those along x and the ridge.
void AddHipRoof(Mesh& mesh, const RoofPlan& plan, SolidColours colours, Footprint footprint);
// The ridge runs along x at half of sy: two slopes in `top`, two end triangles in `side`.
void AddGableRoof(Mesh& mesh, const RoofPlan& plan, SolidColours colours, Footprint footprint);
// Four triangles to an apex over the middle.
void AddPyramid(Mesh& mesh, const RoofPlan& plan, Rgb colour, Footprint footprint);

}  // namespace vantrel
