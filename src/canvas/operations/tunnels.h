// Laying a tunnel over the selected chain of track, and taking it away again.
#pragma once

#include <cstdint>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

// What the tunnel command would do with the selection.
struct TunnelPlan {
  bool valid = false;             // it may run
  bool removing = false;          // the selection is an existing tunnel
  std::int32_t tunnelId = kNone;  // that tunnel
  std::int32_t anchorA = kNone;   // ids of the two end pieces, in their order in the plan
  std::int32_t anchorB = kNone;
  std::int32_t connA = kNone;  // their connectors that lead out of the selection
  std::int32_t connB = kNone;
  std::vector<std::int32_t> covers{};  // ids of all selected pieces, ascending

  friend bool operator==(const TunnelPlan&, const TunnelPlan&) = default;
};

// Changes nothing, and is quick enough to be asked at every idle moment.
TunnelPlan planTunnel(const Layout& layout);

// Takes a snapshot, then places two portals and the tunnel's record, or removes them. With an end
// piece whose part is unknown nothing follows the snapshot. False, with nothing done, when the plan
// isn't valid.
bool toggleTunnel(Layout& layout);

}  // namespace vantrel
