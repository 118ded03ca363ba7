#include "catalog/track_catalog.h"

#include <cmath>
#include <utility>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/track_rows.h"

namespace vantrel {
namespace {

constexpr int kTurntableConnectors = 30;

void AddConnector(PieceDef& def, double x, double y, double heading) {
  def.connectors.push_back({.x = x,
                            .y = y,
                            .heading = heading,
                            .connectable = true,
                            .connectorId = static_cast<std::int32_t>(def.connectors.size())});
}

PieceDef ListedDef(TrackSystem system, const TrackRow& row) {
  PieceDef def =
      makeTrackEnd(system, std::string(row.part), std::string(row.description), row.length);
  def.kind = row.kind;
  def.radius = row.radius;
  def.angle = row.angle;
  for (int i = 0; i < row.extraConnectors; ++i) {
    const RowConnector& extra = row.extra[static_cast<std::size_t>(i)];
    AddConnector(def, extra.x, extra.y, extra.heading);
  }
  return def;
}

// The only piece whose connectors don't start at its origin: its origin is the table's centre.
PieceDef TurntableDef(TrackSystem system, const TrackRow& row) {
  PieceDef def = ListedDef(system, row);
  def.kind = PieceKind::Turntable;
  def.connectors.clear();
  for (int i = 0; i < kTurntableConnectors; ++i) {
    const double heading = row.angle * i;
    AddConnector(def, row.radius * std::cos(Radians(heading)),
                 row.radius * std::sin(Radians(heading)), heading);
  }
  return def;
}

PieceDef CentredCrossingDef(TrackSystem system, const TrackRow& row) {
  PieceDef def = ListedDef(system, row);
  const double half = row.length / 2.0;
  const double along = half * std::cos(Radians(row.angle));
  const double across = half * std::sin(Radians(row.angle));
  AddConnector(def, row.length, 0.0, 0.0);
  AddConnector(def, half - along, -across, 180.0 + row.angle);
  AddConnector(def, half + along, across, row.angle);
  return def;
}

PieceDef ParallelCurvesDef(TrackSystem system, const TrackRow& row) {
  PieceDef def = ListedDef(system, row);
  const double sweep = Radians(std::abs(row.angle));
  const double along = row.radius * std::sin(sweep);
  const double across = row.radius - row.radius * std::cos(sweep);
  const double side = row.angle < 0.0 ? -1.0 : 1.0;
  const double heading = normalizeDegrees(row.angle);
  AddConnector(def, along, side * across, heading);
  AddConnector(def, along + row.length, side * across, heading);
  return def;
}

PieceDef BuildRow(TrackSystem system, const TrackRow& row) {
  std::string part(row.part);
  std::string description(row.description);
  switch (row.maker) {
    case RowMaker::straight:
      return makeStraight(system, std::move(part), std::move(description), row.length);
    case RowMaker::curve:
      return makeCurve(system, std::move(part), std::move(description), row.radius, row.angle);
    case RowMaker::turnout:
      return makeTurnout(system, std::move(part), std::move(description), row.kind, row.length,
                         row.radius, row.angle);
    case RowMaker::trackEnd:
      return makeTrackEnd(system, std::move(part), std::move(description), row.length);
    case RowMaker::turntable:
      return TurntableDef(system, row);
    case RowMaker::centredCrossing:
      return CentredCrossingDef(system, row);
    case RowMaker::parallelCurves:
      return ParallelCurvesDef(system, row);
    case RowMaker::listed:
      break;
  }
  return ListedDef(system, row);
}

PieceDef FinishedRow(TrackSystem system, const TrackRow& row) {
  PieceDef def = BuildRow(system, row);
  def.isBridge = row.bridge != BridgeForm::none;
  def.isPaired = row.paired;
  def.isRamp = row.bridge == BridgeForm::ramp;
  def.bridgeForm = row.bridge;
  def.role = row.role;
  def.mark = row.mark;
  if (row.maker != RowMaker::turnout) {  // that builder has counts of its own
    def.spareCountA = row.spareCountA;
    def.spareCountB = row.spareCountB;
  }
  if (row.connectorSystems[0] >= 0)
    def.connectorSystems.assign(row.connectorSystems.begin(), row.connectorSystems.end());
  return def;
}

}  // namespace

TrackCatalog::TrackCatalog() {
  const std::pair<TrackSystem, std::span<const TrackRow>> tables[] = {
      {TrackSystem::MarklinC, MarklinCRows()},
      {TrackSystem::TrixC, TrixCRows()},
      {TrackSystem::MarklinZ, MarklinZRows()},
      {TrackSystem::MarklinK, MarklinKRows()}};
  for (const auto& [system, rows] : tables) {
    for (const TrackRow& row : rows) {
      if (row.copyOf.empty()) {
        add(FinishedRow(system, row));
        continue;
      }
      const PieceDef* original = findPart(row.copyOf);
      PieceDef copy = original != nullptr ? *original : PieceDef{};
      copy.partNumber = row.part;
      copy.description = row.description;
      copy.system = system;
      add(std::move(copy));
    }
  }
}

void TrackCatalog::add(PieceDef def) {
  indexByPart_[def.partNumber] = rows_.size();
  rows_.push_back(std::move(def));
}

const PieceDef* TrackCatalog::findPart(std::string_view part) const {
  const auto found = indexByPart_.find(part);
  return found == indexByPart_.end() ? nullptr : &rows_[found->second];
}

const PieceDef* TrackCatalog::pieceAt(std::int32_t index) const {
  if (index < 0 || index >= pieceCount()) return nullptr;
  return &rows_[static_cast<std::size_t>(index)];
}

const TrackCatalog& catalog() {
  static const TrackCatalog instance;
  return instance;
}

const PieceDef* findPart(std::string_view part) {
  return catalog().findPart(part);
}

const PieceDef* findPart(TrackSystem system, PieceRole role) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.system == system && def.role == role) return &def;
  }
  return nullptr;
}

std::int32_t connectorSystem(const PieceDef& def, std::size_t i) {
  return i < def.connectorSystems.size() ? def.connectorSystems[i]
                                         : static_cast<std::int32_t>(def.system);
}

std::string_view SystemName(std::int32_t system) {
  switch (static_cast<TrackSystem>(system)) {
    case TrackSystem::MarklinC:
      return "Marklin C-Track";
    case TrackSystem::MarklinK:
      return "Marklin K-Track";
    case TrackSystem::MarklinZ:
      return "Marklin Z-Track";
    case TrackSystem::TrixC:
      return "TRIX C-Track";
  }
  return "Unknown";
}

std::string_view JoinRefusalSystemName(std::int32_t system) {
  if (static_cast<TrackSystem>(system) == TrackSystem::MarklinZ) return "Unknown";
  return SystemName(system);
}

}  // namespace vantrel
