#include "canvas/operations/connector_reach.h"

#include <algorithm>
#include <cmath>

#include "catalog/track_catalog.h"

namespace vantrel {

double ConnectorReach(const PieceDef& def) {
  double reach = 0.0;
  for (const Connector& connector : def.connectors)
    reach = std::max(reach, std::abs(connector.x) + std::abs(connector.y));
  return reach;
}

double LongestConnectorReach() {
  static const double longest = [] {
    double reach = 0.0;
    for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
      reach = std::max(reach, ConnectorReach(*catalog().pieceAt(i)));
    return reach;
  }();
  return longest;
}

}  // namespace vantrel
