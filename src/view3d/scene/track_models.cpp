#include "view3d/scene/track_models.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/routes.h"
#include "view3d/scene/structures.h"

namespace vantrel {
namespace {

Path PathOf(const Stretch& stretch) {
  const Pose& start = stretch.start;
  if (!stretch.isArc()) {
    const Pose end = stretch.at(1.0);
    return StraightPath(start.x, start.y, end.x, end.y, StraightSegments(stretch.length));
  }
  const double side = stretch.sweep < 0.0 ? -1.0 : 1.0;
  const Vec2 centre = LocalToWorld(start, {0.0, side * stretch.radius});
  return ArcPath(centre.x, centre.y, stretch.radius, start.heading - side * 90.0, stretch.sweep,
                 ArcSegments(stretch.sweep));
}

// From connector to connector, which the flat drawing's angle only nearly meets.
Path CrossingPath(const PieceDef& def) {
  const Connector& from = def.connectors[2];
  const Connector& to = def.connectors[3];
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  return StraightPath(from.x, from.y, to.x, to.y, StraightSegments(length));
}

using Routes = std::vector<Path>;

Routes CrossingRoutes(const PieceDef& def) {
  Routes routes{PathOf(StraightOf(def))};
  if (def.connectors.size() >= 4) routes.push_back(CrossingPath(def));
  return routes;
}

// The model's arcs run over the whole angle of the part, also where the flat drawing cuts a short
// turnout's branch at its length, and to the side of their connector.
void AddArc(Routes& routes, const PieceDef& def, double startX, std::size_t connector) {
  if (!(def.radius > 0.0) || connector >= def.connectors.size()) return;
  const double sweep = SideOfConnector(def, connector) * std::abs(def.angle);
  routes.push_back(PathOf(ArcOf(def, {startX, 0.0, 0.0}, sweep)));
}

Routes TurnoutRoutes(const PieceDef& def) {
  Routes routes{PathOf(StraightOf(def))};
  AddArc(routes, def, 0.0, 2);
  AddArc(routes, def, 0.0, 3);
  return routes;
}

Routes OuterCurveRoutes(const PieceDef& def) {
  Routes routes{PathOf(StraightOf(def))};
  AddArc(routes, def, 0.0, 1);
  AddArc(routes, def, def.length, 2);
  return routes;
}

// The outer arc's lead is what its connector lies beyond the arc's own reach.
Routes CurvedTurnoutRoutes(const PieceDef& def) {
  Routes routes;
  AddArc(routes, def, 0.0, 1);
  if (def.connectors.size() < 3) return routes;
  const double reach = def.radius * std::sin(std::abs(Radians(def.angle)));
  const double lead = std::max(0.0, def.connectors[2].x - reach);
  if (lead > 0.0) routes.push_back(PathOf({.start = {}, .length = lead}));
  AddArc(routes, def, lead, 2);
  return routes;
}

// The second arc is the first turned by half a circle about the piece's middle: from connector 1
// towards connector 2.
Routes DoubleSlipRoutes(const PieceDef& def) {
  Routes routes = CrossingRoutes(def);
  if (!(def.radius > 0.0)) return routes;
  const double sweep = std::abs(def.angle);
  routes.push_back(PathOf(ArcOf(def, {}, sweep)));
  routes.push_back(PathOf(ArcOf(def, {def.length, 0.0, 180.0}, sweep)));
  return routes;
}

Routes RoutesOf(const PieceDef& def) {
  switch (def.kind) {
    case PieceKind::Curve: {
      Routes routes;
      AddArc(routes, def, 0.0, 1);
      return routes;
    }
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
      return {PathOf(StraightOf(def))};
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
