#include "canvas/operations/helix_placing.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "catalog/helix_kits.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr std::size_t kStubEnds = 2;

// `offset` in mm from the centre, at right angles to the heading; the bottom is on the minus side.
std::int32_t AddStub(Layout& layout, const HelixKit& kit, double offset, double z) {
  const Helix& helix = layout.helices.back();
  const double angle = Radians(helix.heading);
  Piece stub;
  stub.id = TakeId(layout);
  stub.cat = kit.stubPart;
  stub.x = helix.cx - offset * std::sin(angle);
  stub.y = helix.cy + offset * std::cos(angle);
  stub.heading = helix.heading;
  stub.z = z;
  stub.helix = helix.id;
  stub.joints.resize(kStubEnds);
  const std::int32_t id = stub.id;
  layout.pieces.push_back(std::move(stub));
  return id;
}

}  // namespace

std::int32_t placeHelix(Layout& layout, Vec2 centre, double heading, std::string_view kitId) {
  const HelixKit& kit = kitOrDefault(kitId);
  if (findPart(kit.stubPart) == nullptr) return kNone;
  PushUndo(layout);
  // The record comes first: an id is only taken once a record holds it.
  Helix& helix = layout.helices.emplace_back();
  helix.id = TakeId(layout);
  helix.cx = centre.x;
  helix.cy = centre.y;
  helix.heading = heading;
  helix.variant = kit.id;
  helix.bottomR1 = AddStub(layout, kit, -kit.innerRadius, 0.0);
  helix.bottomR2 = AddStub(layout, kit, -kit.outerRadius, 0.0);
  helix.topR1 = AddStub(layout, kit, kit.innerRadius, kit.height);
  helix.topR2 = AddStub(layout, kit, kit.outerRadius, kit.height);
  return helix.id;
}

}  // namespace vantrel
