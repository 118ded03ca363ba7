#include "view3d/scene/structures.h"

namespace vantrel {
namespace {

constexpr SolidColours kBeam{.side = {0.72F, 0.72F, 0.72F}, .top = {0.92F, 0.92F, 0.92F}};
constexpr SolidColours kRedBlock{.side = {0.62F, 0.06F, 0.06F}, .top = {0.82F, 0.08F, 0.08F}};
constexpr SolidColours kArm{.side = {0.5F, 0.5F, 0.5F}, .top = {0.12F, 0.12F, 0.12F}};
constexpr SolidColours kBlack{.side = {0.07F, 0.07F, 0.07F}, .top = {0.12F, 0.12F, 0.12F}};

}  // namespace

void AddEndStop(Mesh& mesh, const PieceDef& def) {
  AddTrackStrip(mesh, StraightPath(0, 0, def.length, 0, 2));

  // All of the stop is measured in half widths of the track. The corner of its footprint stands at
  // (0, -w) of the piece, so that the beam comes to lie at three quarters of the length.
  const float w = def.system == TrackSystem::MarklinZ ? 6.0F : 18.7F;
  const auto length = static_cast<float>(def.length);
  const Footprint footprint{length, 2.0F * w};
  const float front = 0.75F * length - 0.07F * w;
  const auto box = [&](Vec3f corner, Vec3f size, SolidColours colours) {
    AddBox(mesh, {corner.x + length / 2.0F, corner.y, corner.z}, size, colours, footprint);
  };
  box({front, -0.05F * w, 0.31F * w}, {0.14F * w, 2.1F * w, 0.38F * w}, kBeam);
  box({front - 0.2F * w, 0.75F * w, 0.3F * w}, {0.2F * w, 0.5F * w, 0.4F * w}, kRedBlock);
  for (const float side : {1.0F, -1.0F}) {
    const Vec3f arm{front - 0.55F * w, 0.92F * w + side * 0.44F * w, 0.42F * w};
    box(arm, {0.55F * w, 0.16F * w, 0.16F * w}, kArm);
    const float head = 0.28F * w;
    box({arm.x - 0.2F * w, arm.y - 0.064F * w, 0.356F * w}, {head, head, head}, kBlack);
  }
  for (const float y : {-0.05F * w, 1.94F * w})
    box({0.75F * length - 0.55F * w, y, 0.0F}, {0.45F * w, 0.11F * w, 0.44F * w}, kBlack);
}

}  // namespace vantrel
