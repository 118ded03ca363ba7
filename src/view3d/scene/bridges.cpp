#include <algorithm>
#include <cmath>

#include "catalog/piece_builders.h"
#include "view3d/scene/structures.h"
#include "view3d/scene/track_models.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr float kBowJointMm = 0.8F;
constexpr float kBowFootMm = 4.0F;

constexpr Rgb kChord{0.55F, 0.58F, 0.62F};
constexpr Rgb kBow{0.7F, 0.72F, 0.74F};
constexpr Rgb kBracing{0.62F, 0.65F, 0.68F};
constexpr SolidColours kDeck{.side = {0.3F, 0.32F, 0.36F}, .top = {0.38F, 0.4F, 0.44F}};
constexpr SolidColours kRampSlab{.side = {0.42F, 0.44F, 0.48F}, .top = {0.5F, 0.53F, 0.55F}};

// The bow of an arch bridge at `t` from 0 to 1, in the plane at this y.
class Bow {
 public:
  Bow(float length, float y) : length_(length), y_(y) {}

  Vec3f foot(double t, float z) const {
    return {static_cast<float>((1.0 - std::cos(kPi * t)) * 0.5) * length_, y_, z};
  }
  static float height(double t) {
    return kHeightMm * static_cast<float>(std::sin(kPi * std::clamp(t, 0.0, 1.0)));
  }
  Vec3f at(double t) const { return foot(t, height(t)); }

 private:
  static constexpr float kHeightMm = 99.0F;

  float length_;
  float y_;
};

void AddArchSide(Mesh& mesh, const Bow& bow) {
  constexpr int kSegments = 14;
  constexpr int kPanels = 8;
  AddBeam(mesh, bow.foot(0.0, -8.0F), bow.foot(1.0, -8.0F), 5.0F, kChord);
  for (int i = 0; i < kSegments; ++i) {
    const Vec3f from = bow.at(i / 14.0);
    const Vec3f to = bow.at((i + 1) / 14.0);
    // Square ends leave a gap on the outside of each bend: the bars reach into one another there,
    // and into the chord at the feet.
    const Vec3f along = Unit(to - from, {1, 0, 0});
    const float before = i > 0 ? kBowJointMm : kBowFootMm;
    const float beyond = i + 1 < kSegments ? kBowJointMm : kBowFootMm;
    AddBeam(mesh, from - along * before, to + along * beyond, 4.0F, kBow);
  }
  for (int j = 1; j < kPanels; ++j) {
    const double t = j / 8.0;
    AddBeam(mesh, bow.foot(t, 2.0F), bow.foot(t, Bow::height(t) - 4.0F), 1.8F, kBracing);
  }
  for (int panel = 0; panel < kPanels; ++panel) {
    const double middle = (panel + 0.5) / 8.0;
    const Vec3f joint = bow.foot(middle, Bow::height(middle) * 0.5F);
    AddBeam(mesh, bow.foot(panel / 8.0, 4.0F), joint, 1.5F, kBracing);
    AddBeam(mesh, joint, bow.foot((panel + 1) / 8.0, 4.0F), 1.5F, kBracing);
  }
}

void AddTrussSide(Mesh& mesh, float length, float y) {
  constexpr int kPanels = 6;
  constexpr float kTopMm = 41.0F;
  AddBeam(mesh, {0, y, kTopMm}, {length, y, kTopMm}, 3.5F, kBow);
  AddBeam(mesh, {0, y, 0}, {length, y, 0}, 3.5F, kChord);
  for (const float x : {0.0F, length}) AddBeam(mesh, {x, y, 0}, {x, y, kTopMm}, 2.5F, kChord);
  for (int panel = 0; panel < kPanels; ++panel) {
    const float x0 = length * static_cast<float>(panel) / kPanels;
    const float x1 = length * static_cast<float>(panel + 1) / kPanels;
    const Vec3f middle{(x0 + x1) / 2.0F, y, 20.5F};
    for (const float x : {x0, x1}) {
      for (const float z : {3.0F, 38.0F}) AddBeam(mesh, {x, y, z}, middle, 1.8F, kBracing);
    }
  }
}

void AddGuardRail(Mesh& mesh, const Path& path, float offset) {
  constexpr int kSpans = 6;
  constexpr float kPostHalfMm = 1.5F;
  constexpr float kPostTopMm = 8.0F;
  constexpr float kRailHalfMm = 1.05F;
  // The rail ends flush with the heads of the posts.
  constexpr float kRailMm = kPostTopMm - kRailHalfMm;
  const double length = PathLength(path);
  Vec3f before;
  for (int i = 0; i <= kSpans; ++i) {
    PathPoint at = PointAlong(path, length * i / kSpans);
    at.position = at.position + at.side * offset;
    Path post{at, at};
    post[0].position = at.position - at.tangent * kPostHalfMm;
    post[1].position = at.position + at.tangent * kPostHalfMm;
    AddSweptBox(mesh, post,
                {.halfWidth = kPostHalfMm,
                 .low = 0.0F,
                 .high = kPostTopMm,
                 .colours = {kChord, kChord},
                 .hasEnds = true,
                 .hasBottom = true});
    const Vec3f head = at.position + Vec3f{0, 0, kRailMm};
    if (i > 0) AddBeam(mesh, before, head, kRailHalfMm, kBow);
    before = head;
  }
}

}  // namespace

void AddArchBridge(Mesh& mesh, float length) {
  constexpr float kSideMm = 27.0F;
  constexpr int kBraces = 8;
  AddSweptBox(mesh, StraightPath(0, 0, length, 0, 1),
              {.halfWidth = 24.0F,
               .low = -4.0F,
               .high = 0.0F,
               .colours = kDeck,
               .hasEnds = true,
               .hasBottom = true});
  for (const float y : {kSideMm, -kSideMm}) AddArchSide(mesh, Bow(length, y));
  for (int j = 0; j < kBraces; ++j) {
    const double t = j / 7.0;
    AddBeam(mesh, Bow(length, -kSideMm).at(t), Bow(length, kSideMm).at(t), 2.5F, kBracing);
  }
}

void AddTrussBridge(Mesh& mesh, float length) {
  for (const float y : {26.0F, -26.0F}) AddTrussSide(mesh, length, y);
}

void AddRamp(Mesh& mesh, const Path& path) {
  if (path.size() < 2) return;
  constexpr float kHalfWidthMm = 26.0F;
  AddSweptBox(mesh, path,
              {.halfWidth = kHalfWidthMm,
               .low = -3.0F,
               .high = 0.0F,
               .colours = kRampSlab,
               .hasEnds = true,
               .hasBottom = true});
  for (const float offset : {kHalfWidthMm, -kHalfWidthMm}) AddGuardRail(mesh, path, offset);
}

void AddBridgeStructure(Mesh& mesh, const PieceDef& def, const Path& path) {
  const auto length = static_cast<float>(def.length);
  if (def.kind == PieceKind::Curve || def.bridgeForm == BridgeForm::ramp)
    AddRamp(mesh, path);
  else if (def.bridgeForm == BridgeForm::truss)
    AddTrussBridge(mesh, length);
  else
    AddArchBridge(mesh, length);
}

}  // namespace vantrel
