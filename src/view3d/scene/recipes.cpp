#include "view3d/scene/recipes.h"

#include "view3d/scene/vec3f.h"

namespace vantrel::recipes {
namespace {

// The normal of the plane through three corners, on the side away from `inside`.
Vec3f NormalAwayFrom(Vec3f inside, Vec3f a, Vec3f b, Vec3f c) {
  const Vec3f normal = Unit(Cross(b - a, c - a), {0.0F, 0.0F, 1.0F});
  return Dot(normal, a - inside) < 0.0F ? normal * -1.0F : normal;
}

}  // namespace

void Item::box(Vec3f corner, Vec3f size, SolidColours colours) {
  AddBox(mesh_, corner, size, colours, footprint_);
}

void Item::column(Vec3f foot, float width, float height, Rgb colour) {
  box({foot.x - width / 2.0F, foot.y - width / 2.0F, foot.z}, {width, width, height}, colour);
}

void Item::row(const Row& row, Rgb colour) {
  for (int i = 0; i < row.count; ++i)
    box(row.corner + row.step * static_cast<float>(i), row.size, colour);
}

void Item::slab(float z, float height, SolidColours colours) {
  box({0.0F, 0.0F, z}, {width(), depth(), height}, colours);
}

void Item::hipRoof(const RoofPlan& plan, SolidColours colours) {
  AddHipRoof(mesh_, plan, colours, footprint_);
}

void Item::gableRoof(const RoofPlan& plan, SolidColours colours) {
  AddGableRoof(mesh_, plan, colours, footprint_);
}

void Item::crossGableRoof(const RoofPlan& plan, SolidColours colours) {
  const float left = plan.x;
  const float right = plan.x + plan.sx;
  const float near = plan.y;
  const float far = plan.y + plan.sy;
  const float top = plan.eave + plan.rise;
  const float ridge = (left + right) / 2.0F;
  const Vec3f inside{ridge, (near + far) / 2.0F, plan.eave};
  for (const float eave : {left, right})
    face({Vec3f{eave, near, plan.eave},
          {eave, far, plan.eave},
          {ridge, far, top},
          {ridge, near, top}},
         inside, colours.top);
  for (const float y : {near, far})
    triangle({Vec3f{left, y, plan.eave}, {right, y, plan.eave}, {ridge, y, top}}, inside,
             colours.side);
}

void Item::pyramid(const RoofPlan& plan, Rgb colour) {
  AddPyramid(mesh_, plan, colour, footprint_);
}

void Item::soffit(const RoofPlan& plan, Rgb colour) {
  const float right = plan.x + plan.sx;
  const float far = plan.y + plan.sy;
  face({Vec3f{plan.x, plan.y, plan.eave},
        {right, plan.y, plan.eave},
        {right, far, plan.eave},
        {plan.x, far, plan.eave}},
       {plan.x, plan.y, plan.eave + 1.0F}, colour);
}

void Item::cone(Vec3f base, float radius, float height, Rgb colour, int sides) {
  AddCone(mesh_, placed(base), radius, height, colour, sides);
}

void Item::sphere(Vec3f centre, float radius, Rgb colour, int rings) {
  AddSphere(mesh_, placed(centre), radius, colour, rings);
}

void Item::face(const std::array<Vec3f, 4>& corners, Vec3f inside, Rgb colour) {
  const std::array<Vec3f, 4> at{placed(corners[0]), placed(corners[1]), placed(corners[2]),
                                placed(corners[3])};
  AddQuad(mesh_, at, NormalAwayFrom(placed(inside), at[0], at[1], at[2]), colour);
}

void Item::triangle(const std::array<Vec3f, 3>& corners, Vec3f inside, Rgb colour) {
  const std::array<Vec3f, 3> at{placed(corners[0]), placed(corners[1]), placed(corners[2])};
  AddTriangle(mesh_, at, NormalAwayFrom(placed(inside), at[0], at[1], at[2]), colour);
}

}  // namespace vantrel::recipes
