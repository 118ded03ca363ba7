#include "view3d/scene/mesh.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "catalog/piece_builders.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr Vec3f kUp{0.0F, 0.0F, 1.0F};

std::uint32_t AddVertex(Mesh& mesh, Vec3f position, Vec3f normal, Rgb colour) {
  mesh.positions.push_back(position);
  mesh.normals.push_back(normal);
  mesh.colors.push_back(colour);
  return static_cast<std::uint32_t>(mesh.positions.size() - 1);
}

void AddIndices(Mesh& mesh, std::uint32_t a, std::uint32_t b, std::uint32_t c) {
  mesh.indices.insert(mesh.indices.end(), {a, b, c});
}

// Six faces of the block with this middle and these half axes, of which `axes` may be
// either-handed: each face is wound by its normal. The face along +axes[2] takes the top colour.
void AddBlock(Mesh& mesh, Vec3f middle, const std::array<Vec3f, 3>& axes,
              const std::array<Vec3f, 3>& normals, SolidColours colours) {
  for (std::size_t face = 0; face < 3; ++face) {
    const Vec3f u = axes[(face + 1) % 3];
    const Vec3f v = axes[(face + 2) % 3];
    for (const float side : {1.0F, -1.0F}) {
      const Vec3f centre = middle + axes[face] * side;
      const bool isTop = face == 2 && side > 0.0F;
      AddQuad(mesh, {centre - u - v, centre + u - v, centre + u + v, centre - u + v},
              normals[face] * side, isTop ? colours.top : colours.side);
    }
  }
}

Vec3f FaceNormal(const std::array<Vec3f, 3>& corners) {
  return Unit(Cross(corners[1] - corners[0], corners[2] - corners[0]), kUp);
}

// The four corners of a roof's eaves: lowest x and y of the item first, then around by x.
std::array<Vec3f, 4> Eaves(const RoofPlan& plan, float inset, float z, Footprint footprint) {
  const float left = plan.x + inset;
  const float right = plan.x + plan.sx - inset;
  const float near = plan.y + inset;
  const float far = plan.y + plan.sy - inset;
  return {
      PlaceInFootprint({left, near, z}, footprint), PlaceInFootprint({right, near, z}, footprint),
      PlaceInFootprint({right, far, z}, footprint), PlaceInFootprint({left, far, z}, footprint)};
}

}  // namespace

Vec3f PlaceInFootprint(Vec3f point, Footprint footprint) {
  return {point.x - footprint.width / 2.0F, -(point.y - footprint.depth / 2.0F), point.z};
}

void AddTriangle(Mesh& mesh, const std::array<Vec3f, 3>& corners, Vec3f normal, Rgb colour) {
  const std::uint32_t a = AddVertex(mesh, corners[0], normal, colour);
  const std::uint32_t b = AddVertex(mesh, corners[1], normal, colour);
  const std::uint32_t c = AddVertex(mesh, corners[2], normal, colour);
  const bool fronts = Dot(Cross(corners[1] - corners[0], corners[2] - corners[0]), normal) >= 0.0F;
  AddIndices(mesh, a, fronts ? b : c, fronts ? c : b);
}

void AddQuad(Mesh& mesh, const std::array<Vec3f, 4>& corners, Vec3f normal, Rgb colour) {
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (const Vec3f& corner : corners) AddVertex(mesh, corner, normal, colour);
  // The diagonals' cross product tells the turn even when two corners coincide.
  const Vec3f turn = Cross(corners[2] - corners[0], corners[3] - corners[1]);
  const bool fronts = Dot(turn, normal) >= 0.0F;
  const std::uint32_t second = fronts ? first + 1 : first + 3;
  const std::uint32_t last = fronts ? first + 3 : first + 1;
  AddIndices(mesh, first, second, first + 2);
  AddIndices(mesh, first, first + 2, last);
}

void AddBox(Mesh& mesh, Vec3f corner, Vec3f size, SolidColours colours, Footprint footprint) {
  const Vec3f half{std::abs(size.x) / 2.0F, std::abs(size.y) / 2.0F, std::abs(size.z) / 2.0F};
  const Vec3f middle = PlaceInFootprint(corner + size * 0.5F, footprint);
  AddBlock(mesh, middle, {Vec3f{half.x, 0, 0}, Vec3f{0, half.y, 0}, Vec3f{0, 0, half.z}},
           {Vec3f{1, 0, 0}, Vec3f{0, 1, 0}, kUp}, colours);
}

void AddBeam(Mesh& mesh, Vec3f a, Vec3f b, float halfThickness, Rgb colour) {
  constexpr Vec3f kAlongX{1.0F, 0.0F, 0.0F};
  const Vec3f along = Unit(b - a, kAlongX);
  const Vec3f other = std::abs(along.z) > 0.9F ? kAlongX : kUp;
  const Vec3f across = Unit(Cross(along, other), {0.0F, 1.0F, 0.0F});
  const Vec3f third = Cross(across, along);
  AddBlock(mesh, (a + b) * 0.5F, {(b - a) * 0.5F, across * halfThickness, third * halfThickness},
           {along, across, third}, {colour, colour});
}

void AddCone(Mesh& mesh, Vec3f centre, float radius, float height, Rgb colour, int sides) {
  const int count = std::max(3, sides);
  const auto around = [&](double step, float distance, float z) {
    const double angle = 2.0 * kPi * step / count;
    return Vec3f{distance * static_cast<float>(std::cos(angle)),
                 distance * static_cast<float>(std::sin(angle)), z};
  };
  const auto slanted = [&](double step) { return Unit(around(step, height, radius), kUp); };
  const auto n = static_cast<std::uint32_t>(count);
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  // An apex of its own for each side, with the normal of the side's middle.
  for (int i = 0; i < count; ++i)
    AddVertex(mesh, centre + around(i, radius, 0), slanted(i), colour);
  for (int i = 0; i < count; ++i) {
    AddVertex(mesh, centre + Vec3f{0, 0, height}, slanted(i + 0.5), colour);
  }
  for (int i = 0; i < count; ++i) {
    AddVertex(mesh, centre + around(i, radius, 0), {0, 0, -1}, colour);
  }
  const std::uint32_t base = AddVertex(mesh, centre, {0, 0, -1}, colour);
  for (std::uint32_t i = 0; i < n; ++i) {
    const std::uint32_t next = (i + 1) % n;
    AddIndices(mesh, first + i, first + next, first + n + i);
    AddIndices(mesh, base, first + 2 * n + next, first + 2 * n + i);
  }
}

void AddSphere(Mesh& mesh, Vec3f centre, float radius, Rgb colour, int rings) {
  const int bands = std::max(2, rings);
  const int sectors = 2 * bands;
  const auto add = [&](Vec3f direction) {
    return AddVertex(mesh, centre + direction * radius, direction, colour);
  };
  const std::uint32_t bottom = add({0, 0, -1});
  for (int ring = 1; ring < bands; ++ring) {
    const double latitude = kPi * ring / bands - kPi / 2.0;
    for (int sector = 0; sector < sectors; ++sector) {
      const double longitude = 2.0 * kPi * sector / sectors;
      add({static_cast<float>(std::cos(latitude) * std::cos(longitude)),
           static_cast<float>(std::cos(latitude) * std::sin(longitude)),
           static_cast<float>(std::sin(latitude))});
    }
  }
  const std::uint32_t top = add(kUp);
  const auto n = static_cast<std::uint32_t>(sectors);
  const std::uint32_t firstRing = bottom + 1;
  const std::uint32_t lastRing = top - n;
  for (std::uint32_t i = 0; i < n; ++i) {
    const std::uint32_t next = (i + 1) % n;
    AddIndices(mesh, bottom, firstRing + next, firstRing + i);
    for (std::uint32_t ring = firstRing; ring < lastRing; ring += n) {
      AddIndices(mesh, ring + i, ring + next, ring + n + next);
      AddIndices(mesh, ring + i, ring + n + next, ring + n + i);
    }
    AddIndices(mesh, lastRing + i, lastRing + next, top);
  }
}

void AddHipRoof(Mesh& mesh, const RoofPlan& plan, SolidColours colours, Footprint footprint) {
  // Of the slanted normals, whatever the slope: the light falls alike on all hip roofs.
  constexpr float kSlantedZ = 0.6F;
  constexpr float kSlantedOut = 0.8F;
  const float inset = 0.2F * std::min(plan.sx, plan.sy);
  const auto eaves = Eaves(plan, 0.0F, plan.eave, footprint);
  const auto ridge = Eaves(plan, inset, plan.eave + plan.rise, footprint);
  const std::array<Vec3f, 4> normals{Vec3f{0, kSlantedOut, kSlantedZ},
                                     {kSlantedOut, 0, kSlantedZ},
                                     {0, -kSlantedOut, kSlantedZ},
                                     {-kSlantedOut, 0, kSlantedZ}};
  for (std::size_t i = 0; i < 4; ++i) {
    const std::size_t next = (i + 1) % 4;
    AddQuad(mesh, {eaves[i], eaves[next], ridge[next], ridge[i]}, normals[i],
            i % 2 == 0 ? colours.top : colours.side);
  }
  AddQuad(mesh, ridge, kUp, colours.top);
}

void AddGableRoof(Mesh& mesh, const RoofPlan& plan, SolidColours colours, Footprint footprint) {
  const auto eaves = Eaves(plan, 0.0F, plan.eave, footprint);
  const float ridgeZ = plan.eave + plan.rise;
  const float middle = plan.y + plan.sy / 2.0F;
  const Vec3f left = PlaceInFootprint({plan.x, middle, ridgeZ}, footprint);
  const Vec3f right = PlaceInFootprint({plan.x + plan.sx, middle, ridgeZ}, footprint);
  const Vec3f slope = Unit({0, plan.rise, plan.sy / 2.0F}, kUp);
  AddQuad(mesh, {eaves[0], eaves[1], right, left}, slope, colours.top);
  AddQuad(mesh, {eaves[2], eaves[3], left, right}, {0, -slope.y, slope.z}, colours.top);
  AddTriangle(mesh, {eaves[1], eaves[2], right}, {1, 0, 0}, colours.side);
  AddTriangle(mesh, {eaves[3], eaves[0], left}, {-1, 0, 0}, colours.side);
}

void AddPyramid(Mesh& mesh, const RoofPlan& plan, Rgb colour, Footprint footprint) {
  const auto eaves = Eaves(plan, 0.0F, plan.eave, footprint);
  const Vec3f apex = PlaceInFootprint(
      {plan.x + plan.sx / 2.0F, plan.y + plan.sy / 2.0F, plan.eave + plan.rise}, footprint);
  for (std::size_t i = 0; i < 4; ++i) {
    // The item's y runs against the frame's, so that the eaves turn clockwise.
    const std::array<Vec3f, 3> face{eaves[(i + 1) % 4], eaves[i], apex};
    AddTriangle(mesh, face, FaceNormal(face), colour);
  }
}

}  // namespace vantrel
