#include "canvas/operations/locks.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

namespace vantrel {
namespace {

constexpr double kSlopeDegrees = 0.001;

// What the tunnels hold on to.
struct TunnelHold {
  std::unordered_set<std::int32_t> track;
  std::unordered_set<std::int32_t> portals;
};

TunnelHold CollectTunnelHold(const Layout& layout) {
  TunnelHold hold;
  for (const Tunnel& tunnel : layout.tunnels) {
    hold.track.insert(tunnel.covers.begin(), tunnel.covers.end());
    hold.portals.insert({tunnel.portalA, tunnel.portalB});
  }
  // A tunnel without a portal holds nothing there.
  hold.track.erase(kNone);
  hold.portals.erase(kNone);
  return hold;
}

// A selected stub doesn't count: its helix has a lock of its own.
bool TunnelHoldsSelection(const Layout& layout) {
  const TunnelHold hold = CollectTunnelHold(layout);
  return std::ranges::any_of(layout.pieces,
                             [&](const Piece& piece) {
                               return piece.sel && piece.helix == kNone &&
                                      hold.track.contains(piece.id);
                             }) ||
         std::ranges::any_of(layout.scenery, [&](const SceneryItem& item) {
           return item.sel && hold.portals.contains(item.id);
         });
}

bool IsHelixPartlySelected(const Layout& layout) {
  std::unordered_map<std::int32_t, int> stubs;
  for (const Piece& piece : layout.pieces)
    if (piece.sel && piece.helix != kNone) ++stubs[piece.helix];
  return std::ranges::any_of(stubs, [](const auto& entry) { return entry.second != 4; });
}

Notice TunnelNotice(std::string_view verb) {
  return {"Tunnel is locked",
          "Selection includes tunnel track or portals. Remove the tunnel first, then " +
              std::string(verb) + "."};
}

}  // namespace

std::optional<Notice> selectionLock(const Layout& layout, std::string_view verb) {
  const bool hasStub = std::ranges::any_of(
      layout.pieces, [](const Piece& piece) { return piece.sel && piece.helix != kNone; });
  // The ending goes on whatever the verb: "deleteed" is what the box has always said.
  if (hasStub)
    return Notice{"Helix track is locked",
                  "Selection includes track that is part of a helix. Helix track cannot be " +
                      std::string(verb) + "ed individually."};
  if (TunnelHoldsSelection(layout)) return TunnelNotice(verb);
  return std::nullopt;
}

std::optional<Notice> moveLock(const Layout& layout) {
  if (IsHelixPartlySelected(layout))
    return Notice{"Helix partially selected",
                  "Selection contains part of a helix. Either select the whole helix (click any of "
                  "its stubs) or exclude it from the selection before moving."};
  if (TunnelHoldsSelection(layout)) return TunnelNotice("move");
  return std::nullopt;
}

bool isGradedSelection(const Layout& layout) {
  return std::ranges::any_of(layout.pieces, [](const Piece& piece) {
    return piece.sel && std::abs(piece.grade) > kSlopeDegrees;
  });
}

}  // namespace vantrel
