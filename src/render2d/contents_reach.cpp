#include "render2d/contents_reach.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "catalog/piece_builders.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

// The marks of contact and uncoupler tracks and the bar of a track end, beyond the bed.
constexpr double kMarkReachMm = 18.0;
// The arch of a curved bridge: half its width as a part of the radius, and a little for the pen.
constexpr double kCurvedArchPart = 0.25;
// Between the ends of a curved turnout that has too few connectors to tell.
constexpr double kCurvedTurnoutShiftMm = 77.5;

double FromOrigin(const Connector& connector) {
  return std::hypot(connector.x, connector.y);
}

double Between(const Connector& a, const Connector& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

// From the start of the piece's arc to any point of its centre line: no chord is longer than its
// arc, nor than the diameter. Without a radius an arc is drawn as a straight.
double ArcReach(const PieceDef& def) {
  if (def.radius < 1.0) return std::abs(def.length);
  return std::min(Radians(std::abs(def.angle)), 2.0) * def.radius;
}

double CentreLineReach(const PieceDef& def) {
  const double length = std::abs(def.length);
  const double arc = ArcReach(def);
  const auto& ends = def.connectors;
  switch (def.kind) {
    case PieceKind::Curve:
      return arc;
    case PieceKind::LeftTurnout:
    case PieceKind::RightTurnout:
      return std::max(length, arc);
    case PieceKind::CurvedTurnout:
      return std::max(length, arc + (ends.size() < 3 ? kCurvedTurnoutShiftMm
                                                     : std::abs(ends[2].x - ends[1].x)));
    case PieceKind::OuterCurveTurnout:
      return length + arc;
    case PieceKind::Crossing:
    case PieceKind::DoubleSlip: {
      const double crossing = ends.size() < 4 ? 0.0 : Between(ends[2], ends[3]);
      const double start = ends.size() < 3 ? 0.0 : FromOrigin(ends[2]);
      return std::max(length, start + std::max(arc, crossing));
    }
    case PieceKind::Turntable:
      return std::max(length, std::abs(def.radius));
    default:
      return length;
  }
}

double ComputePieceReach(const PieceDef& def) {
  double reach = CentreLineReach(def);
  for (const Connector& end : def.connectors) reach = std::max(reach, FromOrigin(end));
  reach += bedHalfWidth(def) + kMarkReachMm;
  if (def.isBridge && def.kind == PieceKind::Curve) reach += kCurvedArchPart * std::abs(def.radius);
  return reach;
}

SceneryReach ComputeSceneryReach(const SceneryDef& def) {
  SceneryReach reach{.across = std::abs(def.width) / 2.0, .along = std::abs(def.depth) / 2.0};
  const auto takeIn = [&](double x, double y) {
    reach.across = std::max(reach.across, std::abs(x - def.width / 2.0));
    reach.along = std::max(reach.along, std::abs(y - def.depth / 2.0));
  };
  for (const ScenePrimitive& primitive : def.primitives) {
    reach.strokeWidth = std::max(reach.strokeWidth, std::abs(primitive.strokeWidth * 1.0));
    takeIn(primitive.x, primitive.y);
    if (primitive.kind == PrimitiveKind::text) {
      reach.textBytes = std::max(reach.textBytes, static_cast<double>(primitive.text.size()));
      reach.textHeight = std::max(reach.textHeight, primitive.h);
      continue;
    }
    if (primitive.kind == PrimitiveKind::line)
      takeIn(primitive.w, primitive.h);
    else
      takeIn(primitive.x + primitive.w, primitive.y + primitive.h);
    for (const Vec2& point : primitive.points) takeIn(point.x, point.y);
  }
  return reach;
}

// The value that `compute` has for `key`, computed at the first call. Drawing happens on one
// thread.
template <typename Key, typename Value, typename Compute>
const Value& Kept(std::unordered_map<const Key*, Value>& kept, const Key& key, Compute compute) {
  const auto found = kept.find(&key);
  if (found != kept.end()) return found->second;
  return kept.emplace(&key, compute(key)).first->second;
}

}  // namespace

double PieceReach(const PieceDef& def) {
  static std::unordered_map<const PieceDef*, double> kept;
  return Kept(kept, def, ComputePieceReach);
}

const SceneryReach& ReachOfScenery(const SceneryDef& def) {
  static std::unordered_map<const SceneryDef*, SceneryReach> kept;
  return Kept(kept, def, ComputeSceneryReach);
}

}  // namespace vantrel
