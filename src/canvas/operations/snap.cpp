#include "canvas/operations/snap.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "canvas/operations/connector_reach.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// One end of the moving piece.
struct OwnEnd {
  WorldConnector at;
  std::int32_t system = 0;
};

// A pair of connectors within the snap limits.
struct NearPair {
  const Piece& piece;  // the one that stays
  const WorldConnector& connector;
  std::int32_t connectorSystem;
  const OwnEnd& own;
  double distance;
};

std::vector<OwnEnd> OwnEnds(const PieceDef& def, const Pose& pose) {
  Piece moving;
  moving.x = pose.x;
  moving.y = pose.y;
  moving.heading = pose.heading;
  std::vector<OwnEnd> ends;
  ends.reserve(def.connectors.size());
  for (std::size_t i = 0; i < def.connectors.size(); ++i)
    ends.push_back({.at = worldConnector(moving, def, i), .system = connectorSystem(def, i)});
  return ends;
}

// Sorts out pieces by their origins alone, before any look-up or trigonometry. It never sorts out a
// piece with a connector in reach: a comparison with not-a-number keeps the piece.
class Neighbourhood {
 public:
  Neighbourhood(const PieceDef& def, const Pose& pose)
      : pose_(pose), ownReach_(ConnectorReach(def) + kSnapDistanceMm) {}

  bool tooFar(const Piece& piece, double reach) const {
    const double size =
        std::abs(pose_.x) + std::abs(pose_.y) + std::abs(piece.x) + std::abs(piece.y);
    const double limit = ownReach_ + reach + ReachSlack(size);
    return std::abs(piece.x - pose_.x) > limit || std::abs(piece.y - pose_.y) > limit;
  }

 private:
  Pose pose_;
  double ownReach_;
};

// In degrees, from 0 to 180.
double HeadingDifference(double a, double b) {
  const double difference = std::fmod(std::abs(a - b), 360.0);
  return difference > 180.0 ? 360.0 - difference : difference;
}

// Shows `visit` every pair within the limits, in the order that decides ties, until it returns
// false.
template <typename Visit>
void ForEachNearPair(const PieceDef& def, const Pose& pose, std::span<const Piece* const> others,
                     Visit visit) {
  const std::vector<OwnEnd> ends = OwnEnds(def, pose);
  const Neighbourhood neighbourhood(def, pose);
  const double longestReach = LongestConnectorReach();
  for (const Piece* const piece : others) {
    if (neighbourhood.tooFar(*piece, longestReach)) continue;
    const PieceDef* const otherDef = findPart(piece->cat);
    if (otherDef == nullptr || neighbourhood.tooFar(*piece, ConnectorReach(*otherDef))) continue;
    for (std::size_t i = 0; i < otherDef->connectors.size(); ++i) {
      if (!IsConnectorOpen(*piece, i)) continue;
      const WorldConnector connector = worldConnector(*piece, *otherDef, i);
      const std::int32_t system = connectorSystem(*otherDef, i);
      for (const OwnEnd& own : ends) {
        const double dx = connector.x - own.at.x;
        const double dy = connector.y - own.at.y;
        const double distance = std::sqrt(dx * dx + dy * dy);
        if (!WithinSnapLimits(own.at, connector, distance)) continue;
        if (!visit(NearPair{*piece, connector, system, own, distance})) return;
      }
    }
  }
}

}  // namespace

bool WithinSnapLimits(const WorldConnector& a, const WorldConnector& b, double distance) {
  // Not-a-number fails too.
  return distance <= kSnapDistanceMm &&
         HeadingDifference(a.heading, b.heading) >= kSnapHeadingDegrees;
}

std::vector<const Piece*> VisiblePieces(const Layout& layout) {
  const std::unordered_set<std::int32_t> hidden = HiddenLevels(layout);
  std::vector<const Piece*> result;
  result.reserve(layout.pieces.size());
  for (const Piece& piece : layout.pieces)
    if (hidden.empty() || !hidden.contains(piece.level)) result.push_back(&piece);
  return result;
}

std::vector<const Piece*> AllPieces(const Layout& layout) {
  std::vector<const Piece*> result;
  result.reserve(layout.pieces.size());
  for (const Piece& piece : layout.pieces) result.push_back(&piece);
  return result;
}

SnapResult findSnap(const PieceDef& def, const Pose& pose, std::span<const Piece* const> others) {
  SnapResult result;
  double best = std::numeric_limits<double>::max();
  Pose target;
  ForEachNearPair(def, pose, others, [&](const NearPair& pair) {
    if (pair.own.system != pair.connectorSystem || !(pair.distance < best)) return true;
    best = pair.distance;
    target = pair.connector.pose();
    result.found = true;
    result.targetPiece = pair.piece.id;
    result.targetConnector = pair.connector.connectorIndex;
    result.ownConnector = pair.own.at.connectorIndex;
    result.distance = pair.distance;
    return true;
  });
  if (!result.found) return result;
  const Pose snapped = poseForConnector(def, result.ownConnector, target);
  result.x = snapped.x;
  result.y = snapped.y;
  result.heading = snapped.heading;
  return result;
}

IncompatibleJoin findIncompatibleJoin(const PieceDef& def, const Pose& pose,
                                      std::span<const Piece* const> others) {
  IncompatibleJoin result;
  ForEachNearPair(def, pose, others, [&](const NearPair& pair) {
    if (pair.own.system == pair.connectorSystem) return true;
    result = {.found = true, .ownSystem = pair.own.system, .otherSystem = pair.connectorSystem};
    return false;
  });
  return result;
}

}  // namespace vantrel
