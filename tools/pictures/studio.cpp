#include "tools/pictures/studio.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "tools/model_sheet/off_screen.h"
#include "tools/pictures/plates.h"
#include "view3d/gl_headers.h"

namespace vantrel {
namespace {

constexpr float kFarAway = 70000.0F;
constexpr float kMeadowHeightMm = -1.2F;

// OpenGL wants the columns one after the other.
void LoadView(const Axes& axes, Vec3f eye) {
  const std::array<float, 16> matrix{
      axes.right.x,          axes.up.x,          axes.back.x,          0.0F,
      axes.right.y,          axes.up.y,          axes.back.y,          0.0F,
      axes.right.z,          axes.up.z,          axes.back.z,          0.0F,
      -Dot(axes.right, eye), -Dot(axes.up, eye), -Dot(axes.back, eye), 1.0F};
  glMatrixMode(GL_MODELVIEW);
  glLoadMatrixf(matrix.data());
}

void LookThroughLens(const Shot& shot, PaintSize size) {
  const float upper = kNearMm * std::tan(shot.viewDegrees * std::numbers::pi_v<float> / 360.0F);
  const float side = upper * static_cast<float>(size.width) / static_cast<float>(size.height);
  glViewport(0, 0, size.width, size.height);
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glFrustum(-side, side, -upper, upper, kNearMm, kFarMm);
  LoadView(LookingAlong(shot.eye - shot.target), shot.eye);
}

void LookFromSun(const Shot& shot) {
  const float reach = shot.shadowReach;
  glViewport(0, 0, kShadowPixels, kShadowPixels);
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glOrtho(-reach, reach, -reach, reach, -reach, reach);
  LoadView(LookingAlong(shot.toSun), shot.target);
}

// One lamp at infinity, and light from everywhere.
void Light(Vec3f from, float lamp, float shine, float everywhere) {
  const std::array<float, 4> around{everywhere, everywhere, everywhere, 1.0F};
  const std::array<float, 4> none{0.0F, 0.0F, 0.0F, 1.0F};
  const std::array<float, 4> diffuse{lamp, lamp, lamp, 1.0F};
  const std::array<float, 4> specular{shine, shine, shine, 1.0F};
  const std::array<float, 4> position{from.x, from.y, from.z, 0.0F};
  glLightModelfv(GL_LIGHT_MODEL_AMBIENT, around.data());
  glLightfv(GL_LIGHT0, GL_AMBIENT, none.data());
  glLightfv(GL_LIGHT0, GL_DIFFUSE, diffuse.data());
  glLightfv(GL_LIGHT0, GL_SPECULAR, specular.data());
  glLightfv(GL_LIGHT0, GL_POSITION, position.data());
  glDisable(GL_LIGHT1);
}

void Paint(const Scene& scene) {
  glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  PaintContents(scene);
  glFinish();
}

std::vector<unsigned char> Colours(PaintSize size) {
  std::vector<unsigned char> pixels(static_cast<std::size_t>(size.width) * size.height * 3);
  glPixelStorei(GL_PACK_ALIGNMENT, 1);
  glReadPixels(0, 0, size.width, size.height, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
  return pixels;
}

std::vector<float> Depths(PaintSize size) {
  std::vector<float> depths(static_cast<std::size_t>(size.width) * size.height);
  glReadPixels(0, 0, size.width, size.height, GL_DEPTH_COMPONENT, GL_FLOAT, depths.data());
  return depths;
}

}  // namespace

Axes LookingAlong(Vec3f back) {
  Axes axes;
  axes.back = Unit(back, {0.0F, 0.0F, 1.0F});
  axes.right = Unit(Cross({0.0F, 0.0F, 1.0F}, axes.back), {1.0F, 0.0F, 0.0F});
  axes.up = Cross(axes.back, axes.right);
  return axes;
}

Plates Expose(const Scene& scene, const Shot& shot) {
  Plates plates;
  plates.size = {shot.size.width * kDetail, shot.size.height * kDetail};
  const OffScreen screen(
      {std::max(plates.size.width, kShadowPixels), std::max(plates.size.height, kShadowPixels)}, 0);
  if (!screen.ok()) return plates;
  LookThroughLens(shot, plates.size);
  Light(shot.toSun, 0.0F, 0.0F, 1.0F);
  Paint(scene);
  plates.colour = Colours(plates.size);
  plates.depth = Depths(plates.size);
  Light(shot.toSun, 1.0F, 0.1F, 0.0F);
  Paint(scene);
  plates.sun = Colours(plates.size);
  Light({0.0F, 0.0F, 1.0F}, 0.4F, 0.0F, 0.6F);
  Paint(scene);
  plates.sky = Colours(plates.size);
  LookFromSun(shot);
  Paint(scene);
  plates.fromSun = Depths({kShadowPixels, kShadowPixels});
  plates.ok = true;
  return plates;
}

wxImage Photograph(const Scene& scene, const Shot& shot) {
  Scene outdoors = scene;
  AddQuad(
      outdoors.baseMesh,
      {Vec3f{-kFarAway, -kFarAway, kMeadowHeightMm}, Vec3f{kFarAway, -kFarAway, kMeadowHeightMm},
       Vec3f{kFarAway, kFarAway, kMeadowHeightMm}, Vec3f{-kFarAway, kFarAway, kMeadowHeightMm}},
      {0.0F, 0.0F, 1.0F}, kMeadow);
  const Plates plates = Expose(outdoors, shot);
  return plates.ok ? Develop(plates, shot) : wxImage();
}

}  // namespace vantrel
