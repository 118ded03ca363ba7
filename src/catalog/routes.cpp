#include "catalog/routes.h"

#include <algorithm>
#include <cmath>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"

namespace vantrel {
namespace {

constexpr std::size_t kThreeWayConnectors = 4;
// The track spacing of the C family, for a curved turnout without the connectors to tell.
constexpr double kUsualLeadMm = 77.5;

bool IsTurnout(const PieceDef& def) {
  return def.kind == PieceKind::LeftTurnout || def.kind == PieceKind::RightTurnout;
}

bool HasSecondStraight(const PieceDef& def) {
  return def.kind == PieceKind::Crossing || def.kind == PieceKind::DoubleSlip;
}

double CutAtLength(double sweep, double length, double radius) {
  const double limit = Degrees(std::asin(std::min(1.0, length / radius)));
  return sweep > 0.0 ? std::min(limit, sweep) : std::max(-limit, sweep);
}

// The number of a connector, -1 when there is none.
std::int32_t Number(const PieceDef& def, std::size_t connector) {
  return connector < def.connectors.size() ? static_cast<std::int32_t>(connector) : -1;
}

Way OneStretch(const PieceDef& def, std::size_t from, std::size_t to, const Stretch& stretch) {
  return {Number(def, from), Number(def, to), {stretch}, 1};
}

// A straight lead and the definition's arc after it.
Way LedArc(const PieceDef& def, double lead) {
  return {Number(def, 0),
          Number(def, 2),
          {Stretch{.length = lead}, ArcOf(def, {lead, 0.0, 0.0}, def.angle)},
          2};
}

// Where the track that crosses the piece's own begins. Its heading is the row's angle, which the
// connectors' headings repeat.
Pose CrossingStart(const PieceDef& def) {
  if (def.connectors.size() < 3) return {0.0, 0.0, def.angle};
  return {def.connectors[2].x, def.connectors[2].y, def.angle};
}

Way CrossingWay(const PieceDef& def) {
  Stretch stretch{.start = CrossingStart(def)};
  if (def.connectors.size() >= 4)
    stretch.length = std::hypot(def.connectors[3].x - def.connectors[2].x,
                                def.connectors[3].y - def.connectors[2].y);
  return OneStretch(def, 2, 3, stretch);
}

Way SlipWay(const PieceDef& def, std::size_t i) {
  if (i == 2) return OneStretch(def, 0, 3, ArcOf(def, {}, def.angle));
  return OneStretch(def, 2, 1, ArcOf(def, CrossingStart(def), -def.angle));
}

Way BridgeWay(const PieceDef& def, std::size_t i) {
  const std::size_t across = i + def.connectors.size() / 2;
  Stretch stretch{.length = 2.0 * def.radius};
  if (i < def.connectors.size()) {
    const Connector& from = def.connectors[i];
    stretch.start = {from.x, from.y, normalizeDegrees(from.heading + 180.0)};
  }
  return OneStretch(def, i, across, stretch);
}

}  // namespace

Pose Stretch::at(double part) const {
  if (!isArc()) {
    const Vec2 point = LocalToWorld(start, {length * part, 0.0});
    return {point.x, point.y, normalizeDegrees(start.heading)};
  }
  const double side = sweep < 0.0 ? -1.0 : 1.0;
  const double t = Radians(sweep * part - side * 90.0);
  const Vec2 point =
      LocalToWorld(start, {std::cos(t) * radius, std::sin(t) * radius + side * radius});
  return {point.x, point.y, normalizeDegrees(start.heading + sweep * part)};
}

double Way::length() const {
  double sum = 0.0;
  for (const Stretch& stretch : stretches()) sum += stretch.length;
  return sum;
}

Pose Way::at(double distance) const {
  const bool inFirst = partCount < 2 || distance < parts[0].length;
  const Stretch& stretch = inFirst ? parts[0] : parts[1];
  const double along = inFirst ? distance : distance - parts[0].length;
  return stretch.at(stretch.length > 0.0 ? along / stretch.length : 0.0);
}

std::size_t WayCount(const PieceDef& def) {
  switch (def.kind) {
    case PieceKind::LeftTurnout:  // also every three-way
      return def.connectors.size() >= kThreeWayConnectors ? 3 : 2;
    case PieceKind::RightTurnout:
    case PieceKind::CurvedTurnout:
    case PieceKind::OuterCurveTurnout:
    case PieceKind::Crossing:
      return 2;
    case PieceKind::DoubleSlip:
      return def.radius > 0.0 ? 4 : 2;
    case PieceKind::Turntable:
      return def.connectors.size() / 2;
    default:
      return 1;
  }
}

Way WayOf(const PieceDef& def, std::size_t i) {
  if (def.kind == PieceKind::Turntable) return BridgeWay(def, i);
  if (HasSecondStraight(def) && i == 1) return CrossingWay(def);
  if (def.kind == PieceKind::DoubleSlip && i >= 2) return SlipWay(def, i);
  if (def.kind == PieceKind::CurvedTurnout && i == 1) return LedArc(def, OuterCurveLead(def));
  if (def.kind == PieceKind::OuterCurveTurnout && i == 1) return LedArc(def, def.length);
  if (IsTurnout(def) && i > 0) {
    const int route = static_cast<int>(i) + 1;
    return OneStretch(def, 0, i + 1, ArcOf(def, {}, RouteSweep(def, route)));
  }
  const bool bends = def.kind == PieceKind::Curve || def.kind == PieceKind::CurvedTurnout ||
                     def.kind == PieceKind::OuterCurveTurnout;
  return OneStretch(def, 0, 1, bends ? ArcOf(def, {}, def.angle) : StraightOf(def));
}

Stretch StraightOf(const PieceDef& def) {
  return {.length = def.length};
}

Stretch ArcOf(const PieceDef& def, const Pose& start, double sweep) {
  if (!(def.radius >= kSmallestArcRadiusMm)) return {.start = start, .length = def.length};
  return {.start = start,
          .length = Radians(std::abs(sweep)) * def.radius,
          .radius = def.radius,
          .sweep = sweep};
}

double RouteSweep(const PieceDef& def, int route) {
  double sweep = def.angle;
  if (route == 3 && def.connectors.size() >= kThreeWayConnectors) sweep = -std::abs(sweep);
  if (route != 2) return sweep;
  if (def.kind == PieceKind::RightTurnout) sweep = std::abs(sweep);
  if (IsTurnout(def) && def.radius > kSmallestArcRadiusMm && def.length > 0.0)
    sweep = CutAtLength(sweep, def.length, def.radius);
  return sweep;
}

double BendSide(const PieceDef& def) {
  return def.angle >= 0.0 ? 1.0 : -1.0;
}

double SideOfConnector(const PieceDef& def, std::size_t i) {
  return i < def.connectors.size() && def.connectors[i].y < 0.0 ? -1.0 : 1.0;
}

double OuterCurveLead(const PieceDef& def) {
  const std::vector<Connector>& ends = def.connectors;
  return ends.size() < 3 ? kUsualLeadMm : std::abs(ends[2].x - ends[1].x);
}

}  // namespace vantrel
