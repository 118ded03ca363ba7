#include "catalog/connector_geometry.h"

#include <cmath>

#include "catalog/piece_builders.h"

namespace vantrel {
namespace {

// From here on neighbouring doubles lie 16 degrees and more apart: no angle is meant.
constexpr double kMeaninglessAngle = 72057594037927936.0;  // 2 to the power of 56

}  // namespace

double normalizeDegrees(double degrees) {
  if (!(std::abs(degrees) < kMeaninglessAngle)) return 0.0;
  // Below that limit every step of 360 that stays on its side of zero is exact, so the remainder
  // skips all of them but the last without changing the result.
  if (std::abs(degrees) > 720.0) degrees = std::fmod(degrees, 360.0) + 0.0;  // never -0
  while (degrees < 0.0) degrees += 360.0;
  while (degrees >= 360.0) degrees -= 360.0;
  return degrees;
}

Vec2 LocalToWorld(const Pose& pose, Vec2 local) {
  const double r = Radians(pose.heading);
  const double c = std::cos(r);
  const double s = std::sin(r);
  return {pose.x + local.x * c - local.y * s, pose.y + local.x * s + local.y * c};
}

WorldConnector worldConnector(const Piece& piece, const PieceDef& def, std::size_t i) {
  const Connector& connector = def.connectors[i];
  const Vec2 at = LocalToWorld(piece.pose(), {connector.x, connector.y});
  return {.x = at.x,
          .y = at.y,
          .heading = normalizeDegrees(connector.heading + piece.heading),
          .open = IsConnectorOpen(piece, i),
          .connectorIndex = static_cast<std::int32_t>(i)};
}

std::vector<WorldConnector> worldConnectors(const Piece& piece, const PieceDef& def) {
  std::vector<WorldConnector> result;
  result.reserve(def.connectors.size());
  for (std::size_t i = 0; i < def.connectors.size(); ++i)
    result.push_back(worldConnector(piece, def, i));
  return result;
}

Pose poseForConnector(const PieceDef& def, std::int32_t i, const Pose& target) {
  if (i < 0 || static_cast<std::size_t>(i) >= def.connectors.size()) return {};
  const Connector& connector = def.connectors[static_cast<std::size_t>(i)];
  const double mating = normalizeDegrees(target.heading + 180.0);
  const double heading = normalizeDegrees(mating - connector.heading);
  const Vec2 offset = LocalToWorld({0.0, 0.0, heading}, {connector.x, connector.y});
  return {target.x - offset.x, target.y - offset.y, heading};
}

bool IsConnectorOpen(const Piece& piece, std::size_t i) {
  return i >= piece.joints.size() || piece.joints[i].open();
}

}  // namespace vantrel
