// The rows of the four track systems as data. Adding a piece is adding one line to its system's
// table; a piece of irregular shape adds its connectors there too.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "catalog/piece_def.h"

namespace vantrel {

// How a row becomes a definition: by one of the four builders, from the connectors given with it,
// or from a rule of its own.
enum class RowMaker : std::uint8_t {
  straight,
  curve,
  turnout,
  trackEnd,
  listed,
  turntable,        // a ring of connectors, `angle` apart, around the origin
  centredCrossing,  // two straights of `length` that cross in their middles at `angle`
  parallelCurves    // a curve of `radius` and `angle`, and the same again `length` further on
};

struct RowConnector {
  double x = 0.0;
  double y = 0.0;
  double heading = 0.0;
};

struct TrackRow {
  std::string_view part;
  std::string_view description;
  RowMaker maker = RowMaker::straight;
  PieceKind kind = PieceKind::Straight;  // used by turnout, listed
  double length = 0.0;                   // mm
  double radius = 0.0;                   // mm
  double angle = 0.0;                    // degrees, as stored for `listed`
  BridgeForm bridge = BridgeForm::none;
  bool paired = false;
  PieceRole role = PieceRole::plain;
  TrackMark mark = TrackMark::none;
  // `listed` only: the connectors after connector 0, which always lies at (0, 0) heading 180.
  int extraConnectors = 0;
  std::array<RowConnector, 3> extra{};
  std::int32_t spareCountA = 1;
  std::int32_t spareCountB = 1;
  // Connectors that join another system than the piece's own, by connector index.
  std::array<std::int32_t, 2> connectorSystems{-1, -1};
  // A row whose shape is taken from a row built before it; only part and description are its own.
  std::string_view copyOf{};
};

std::span<const TrackRow> MarklinCRows();
std::span<const TrackRow> TrixCRows();
std::span<const TrackRow> MarklinZRows();
std::span<const TrackRow> MarklinKRows();

}  // namespace vantrel
