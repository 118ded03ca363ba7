#include "catalog/piece_builders.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantrel {
namespace {

PieceDef NewDef(TrackSystem system, std::string part, std::string description, PieceKind kind,
                double length) {
  PieceDef def;
  def.partNumber = std::move(part);
  def.description = std::move(description);
  def.system = system;
  def.kind = kind;
  def.length = length;
  return def;
}

void AddConnector(PieceDef& def, double x, double y, double heading) {
  Connector connector;
  connector.x = x;
  connector.y = y;
  connector.heading = heading;
  connector.connectorId = static_cast<std::int32_t>(def.connectors.size());
  def.connectors.push_back(connector);
}

}  // namespace

PieceDef makeStraight(TrackSystem system, std::string part, std::string description,
                      double length) {
  PieceDef def =
      NewDef(system, std::move(part), std::move(description), PieceKind::Straight, length);
  AddConnector(def, 0.0, 0.0, 180.0);
  AddConnector(def, length, 0.0, 0.0);
  return def;
}

PieceDef makeCurve(TrackSystem system, std::string part, std::string description, double radius,
                   double angle) {
  const double a = Radians(angle);
  PieceDef def =
      NewDef(system, std::move(part), std::move(description), PieceKind::Curve, a * radius);
  def.radius = radius;
  def.angle = angle;
  AddConnector(def, 0.0, 0.0, 180.0);
  AddConnector(def, radius * std::sin(a), radius * (1.0 - std::cos(a)), angle);
  return def;
}

PieceDef makeTurnout(TrackSystem system, std::string part, std::string description, PieceKind kind,
                     double length, double radius, double angle) {
  const double dx = std::min(length, radius * std::sin(Radians(angle)));
  const double b = std::asin(std::min(1.0, dx / radius));
  const double dy = radius * (1.0 - std::cos(b));
  const bool right = kind == PieceKind::RightTurnout;
  PieceDef def = NewDef(system, std::move(part), std::move(description), kind, length);
  def.radius = radius;
  def.angle = right ? angle : -angle;
  def.spareCountA = 2;
  def.spareCountB = 1;
  AddConnector(def, 0.0, 0.0, 180.0);
  AddConnector(def, length, 0.0, 0.0);
  if (right)
    AddConnector(def, dx, dy, Degrees(b));
  else
    AddConnector(def, dx, -dy, 360.0 - Degrees(b));
  return def;
}

PieceDef makeTrackEnd(TrackSystem system, std::string part, std::string description,
                      double length) {
  PieceDef def =
      NewDef(system, std::move(part), std::move(description), PieceKind::TrackEnd, length);
  AddConnector(def, 0.0, 0.0, 180.0);
  return def;
}

}  // namespace vantrel
