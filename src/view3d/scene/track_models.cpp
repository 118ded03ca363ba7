#include "view3d/scene/track_models.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "catalog/piece_builders.h"
#include "view3d/scene/structures.h"

namespace vantrel {
namespace {

Path Straight(double x0, double y0, double x1, double y1) {
  return StraightPath(x0, y0, x1, y1, StraightSegments(std::hypot(x1 - x0, y1 - y0)));
}

Path MainRoute(const PieceDef& def) {
  return Straight(0, 0, def.length, 0);
}

bool HasConnectors(const PieceDef& def, std::size_t count) {
  return def.connectors.size() >= count;
}

// From `startX`, along x, with the part's radius and angle to the side of this connector.
Path Arc(const PieceDef& def, double startX, std::size_t connector) {
  const bool isLeft = HasConnectors(def, connector + 1) && def.connectors[connector].y < 0.0;
  const double side = isLeft ? -1.0 : 1.0;
  return ArcPath(startX, side * def.radius, def.radius, -side * 90.0, side * std::abs(def.angle),
                 ArcSegments(def.angle));
}

using Routes = std::vector<Path>;

Routes CurveRoutes(const PieceDef& def) {
  if (!(def.radius > 0.0)) return {};
  return {Arc(def, 0.0, 1)};
}

Routes TurnoutRoutes(const PieceDef& def) {
  Routes routes{MainRoute(def)};
  if (!(def.radius > 0.0)) return routes;
  if (HasConnectors(def, 3)) routes.push_back(Arc(def, 0.0, 2));
  if (HasConnectors(def, 4)) routes.push_back(Arc(def, 0.0, 3));
  return routes;
}

// The outer arc is the inner one pushed along by a straight lead; left and right mirror each other.
Routes CurvedTurnoutRoutes(const PieceDef& def) {
  const bool bends = def.radius > 0.0;
  Routes routes;
  if (bends && HasConnectors(def, 2)) routes.push_back(Arc(def, 0.0, 1));
  if (!HasConnectors(def, 3)) return routes;
  const double reach = def.radius * std::sin(std::abs(Radians(def.angle)));
  const double lead = std::max(0.0, def.connectors[2].x - reach);
  if (lead > 0.0) routes.push_back(Straight(0, 0, lead, 0));
  if (bends) routes.push_back(Arc(def, lead, 2));
  return routes;
}

Routes OuterCurveRoutes(const PieceDef& def) {
  Routes routes{MainRoute(def)};
  if (!(def.radius > 0.0)) return routes;
  if (HasConnectors(def, 2)) routes.push_back(Arc(def, 0.0, 1));
  if (HasConnectors(def, 3)) routes.push_back(Arc(def, def.length, 2));
  return routes;
}

Routes CrossingRoutes(const PieceDef& def) {
  Routes routes{MainRoute(def)};
  if (!HasConnectors(def, 4)) return routes;
  const Connector& from = def.connectors[2];
  const Connector& to = def.connectors[3];
  routes.push_back(Straight(from.x, from.y, to.x, to.y));
  return routes;
}

// The second arc is the first turned by half a circle about the piece's middle: from connector 1
// towards connector 2.
Routes DoubleSlipRoutes(const PieceDef& def) {
  Routes routes = CrossingRoutes(def);
  if (!(def.radius > 0.0)) return routes;
  const double sweep = std::abs(def.angle);
  const int segments = ArcSegments(def.angle);
  routes.push_back(ArcPath(0.0, def.radius, def.radius, -90.0, sweep, segments));
  routes.push_back(ArcPath(def.length, -def.radius, def.radius, 90.0, sweep, segments));
  return routes;
}

Routes RoutesOf(const PieceDef& def) {
  switch (def.kind) {
    case PieceKind::Curve:
      return CurveRoutes(def);
    case PieceKind::LeftTurnout:
    case PieceKind::RightTurnout:
      return TurnoutRoutes(def);
    case PieceKind::CurvedTurnout:
      return CurvedTurnoutRoutes(def);
    case PieceKind::OuterCurveTurnout:
      return OuterCurveRoutes(def);
    case PieceKind::Crossing:
      return CrossingRoutes(def);
    case PieceKind::DoubleSlip:
      return DoubleSlipRoutes(def);
    default:
      return {MainRoute(def)};
  }
}

bool IsBridge(const PieceDef& def) {
  return def.isBridge && (def.kind == PieceKind::Straight || def.kind == PieceKind::Curve);
}

}  // namespace

Model makeTrackModel(const PieceDef& def) {
  Model model;
  if (def.kind == PieceKind::TrackEnd) {
    AddEndStop(model, def);
    return model;
  }
  if (def.kind == PieceKind::Turntable) {
    AddTurntable(model, def.radius, def.length);
    return model;
  }
  const Routes routes = RoutesOf(def);
  for (const Path& route : routes) AddTrackStrip(model, route);
  if (IsBridge(def) && !routes.empty()) AddBridgeStructure(model, def, routes.front());
  return model;
}

}  // namespace vantrel
