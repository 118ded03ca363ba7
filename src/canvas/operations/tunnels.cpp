#include "canvas/operations/tunnels.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <unordered_map>

#include "canvas/operations/selection.h"
#include "catalog/connector_geometry.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

// The selected pieces with a way from id to place among them, the first of equal ids. Only these
// are indexed: a plan is far larger than what is selected of it.
struct Chain {
  explicit Chain(const Layout& layout) : pieces(selectedPieces(layout)) {
    places.reserve(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) places.emplace(pieces[i]->id, i);
  }

  bool holds(std::int32_t id) const { return places.contains(id); }
  bool leadsInside(const Joint& joint) const { return !joint.open() && holds(joint.target); }

  std::vector<const Piece*> pieces;
  std::unordered_map<std::int32_t, std::size_t> places;
};

bool IsConnected(const Chain& chain) {
  std::vector<bool> reached(chain.pieces.size(), false);
  std::vector<std::size_t> queue = {0};
  reached[0] = true;
  for (std::size_t next = 0; next < queue.size(); ++next) {
    for (const Joint& joint : chain.pieces[queue[next]]->joints) {
      if (joint.open()) continue;
      const auto found = chain.places.find(joint.target);
      if (found == chain.places.end() || reached[found->second]) continue;
      reached[found->second] = true;
      queue.push_back(found->second);
    }
  }
  return queue.size() == chain.pieces.size();
}

bool Covers(const Tunnel& tunnel, const Chain& chain) {
  return tunnel.covers.size() == chain.pieces.size() &&
         std::ranges::all_of(tunnel.covers, [&](std::int32_t id) { return chain.holds(id); });
}

bool Touches(const Tunnel& tunnel, const Chain& chain) {
  return std::ranges::any_of(tunnel.covers, [&](std::int32_t id) { return chain.holds(id); });
}

std::vector<const Piece*> EndsOf(const Chain& chain) {
  std::vector<const Piece*> ends;
  for (const Piece* const piece : chain.pieces) {
    const auto inside = std::ranges::count_if(
        piece->joints, [&](const Joint& joint) { return chain.leadsInside(joint); });
    if (inside <= 1) ends.push_back(piece);
  }
  return ends;
}

// The first connector that doesn't lead to another piece of the chain; it needn't be open. kNone
// when there is none.
std::int32_t WayOut(const Piece& piece, const Chain& chain) {
  const auto out = std::ranges::find_if_not(
      piece.joints, [&](const Joint& joint) { return chain.leadsInside(joint); });
  if (out == piece.joints.end()) return kNone;
  return static_cast<std::int32_t>(out - piece.joints.begin());
}

std::vector<std::int32_t> SortedIds(const Chain& chain) {
  std::vector<std::int32_t> ids;
  ids.reserve(chain.pieces.size());
  for (const Piece* const piece : chain.pieces) ids.push_back(piece->id);
  std::ranges::sort(ids);
  return ids;
}

TunnelPlan PlanFor(const Layout& layout, const Chain& chain) {
  if (chain.pieces.size() < 2 || !IsConnected(chain)) return {};
  TunnelPlan plan;
  for (const Tunnel& tunnel : layout.tunnels) {
    if (!Covers(tunnel, chain)) continue;
    plan.valid = plan.removing = true;
    plan.tunnelId = tunnel.id;
    return plan;
  }
  for (const Tunnel& tunnel : layout.tunnels)
    if (Touches(tunnel, chain)) return {};

  const std::vector<const Piece*> ends = EndsOf(chain);
  if (ends.size() != 2) return {};
  plan.anchorA = ends[0]->id;
  plan.anchorB = ends[1]->id;
  plan.connA = WayOut(*ends[0], chain);
  plan.connB = WayOut(*ends[1], chain);
  if (plan.connA == kNone || plan.connB == kNone) return {};
  plan.covers = SortedIds(chain);
  plan.valid = true;
  return plan;
}

// Where a portal stands: nowhere when the piece or its part is unknown, or the part lacks the
// connector.
std::optional<Pose> PortalPose(const Layout& layout, std::int32_t anchor, std::int32_t conn) {
  const Piece* const piece = FindPiece(layout, anchor);
  const PieceDef* const def = piece != nullptr ? findPart(piece->cat) : nullptr;
  const auto slot = static_cast<std::size_t>(conn);
  if (def == nullptr || slot >= def->connectors.size()) return std::nullopt;
  return worldConnector(*piece, *def, slot).pose();
}

std::int32_t AddPortal(Layout& layout, const Pose& pose) {
  SceneryItem portal;
  portal.id = TakeId(layout);
  portal.item = findScenery(SceneryRole::tunnelPortal)->id;
  portal.x = pose.x;
  portal.y = pose.y;
  portal.heading = pose.heading;
  layout.scenery.push_back(portal);
  return portal.id;
}

void AddTunnel(Layout& layout, const TunnelPlan& plan) {
  const std::optional<Pose> poseA = PortalPose(layout, plan.anchorA, plan.connA);
  const std::optional<Pose> poseB = PortalPose(layout, plan.anchorB, plan.connB);
  if (!poseA || !poseB) return;
  Tunnel tunnel;
  tunnel.portalA = AddPortal(layout, *poseA);
  tunnel.portalB = AddPortal(layout, *poseB);
  tunnel.id = TakeId(layout);
  tunnel.anchorA = plan.anchorA;
  tunnel.anchorB = plan.anchorB;
  tunnel.covers = plan.covers;
  layout.tunnels.push_back(std::move(tunnel));
}

void RemoveTunnel(Layout& layout, const Chain& chain) {
  const auto tunnel = std::ranges::find_if(
      layout.tunnels, [&](const Tunnel& candidate) { return Covers(candidate, chain); });
  if (tunnel == layout.tunnels.end()) return;
  std::erase_if(layout.scenery, [&](const SceneryItem& item) {
    return item.id != kNone && (item.id == tunnel->portalA || item.id == tunnel->portalB);
  });
  layout.tunnels.erase(tunnel);
}

}  // namespace

TunnelPlan planTunnel(const Layout& layout) {
  return PlanFor(layout, Chain(layout));
}

bool toggleTunnel(Layout& layout) {
  const Chain chain(layout);
  const TunnelPlan plan = PlanFor(layout, chain);
  if (!plan.valid) return false;
  PushUndo(layout);
  if (plan.removing)
    RemoveTunnel(layout, chain);
  else
    AddTunnel(layout, plan);
  return true;
}

}  // namespace vantrel
