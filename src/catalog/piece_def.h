// The catalog's record of one track piece. Definitions are read-only once the catalog is built; a
// placed piece stores only their part number.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

// The numbers are the systems' own; the palette lists them in another order.
enum class TrackSystem : std::int32_t { MarklinC = 0, MarklinK = 1, MarklinZ = 2, TrixC = 3 };

// 7 and 9 have no name and no row; drawing treats 7 like Straight.
enum class PieceKind : std::int32_t {
  Straight = 0,     // also adapters, bridges, straight ramps, uncouplers, flex track
  Curve = 1,        // also curved ramps
  LeftTurnout = 2,  // also every three-way turnout
  RightTurnout = 3,
  CurvedTurnout = 4,  // C family: two ends on one heading
  DoubleSlip = 5,
  TrackEnd = 6,
  Crossing = 8,
  Turntable = 10,
  OuterCurveTurnout = 11  // curved turnout of the K and Z families
};

// What a piece is for beside carrying trains. All but `plain` are no filling for a gap.
enum class PieceRole : std::uint8_t {
  plain,
  circuit,  // switches something when a train passes
  contact,
  uncoupler,
  feeder,
  isolating,
  adapter,  // joins another system
  turntable,
  spoke  // the way from a turntable's rim into its surroundings
};

enum class BridgeForm : std::uint8_t { none, arch, truss, ramp };

// What is drawn on the bed to tell it from a plain one.
enum class TrackMark : std::uint8_t { none, circuitBar, uncouplerBar, contactPlate };

// One connection point, in the piece's local frame: +x along the piece, +y to its right.
struct Connector {
  double x = 0.0;        // mm
  double y = 0.0;        // mm
  double heading = 0.0;  // degrees, outward
  bool connectable = true;
  std::int32_t connectorId = 0;  // its place in the list
};

struct PieceDef {
  std::string partNumber;   // the key
  std::string description;  // palette tooltip and tally row
  TrackSystem system = TrackSystem::MarklinC;
  PieceKind kind = PieceKind::Straight;
  double length = 0.0;  // mm: straight length, arc length of a curve, straight route of a turnout
  double radius = 0.0;  // mm, 0 for none; a turntable's connector circle
  double angle = 0.0;   // degrees; negative for a left turnout; a turntable's step
  std::vector<Connector> connectors;
  std::int32_t spareCountA = 1;
  std::int32_t spareCountB = 1;
  bool spareFlag = false;
  bool isBridge = false;  // a bridge or a ramp
  bool isPaired = false;  // laid two at a time
  bool isRamp = false;    // a ramp: isBridge too, but a grade runs over it
  // Per-connector override of `system`, by connector index; usually empty.
  std::vector<std::int32_t> connectorSystems;
  PieceRole role = PieceRole::plain;
  BridgeForm bridgeForm = BridgeForm::none;  // `isBridge` and `isRamp` say the same in short
  TrackMark mark = TrackMark::none;

  // A plain straight, of which rows of track may be put together.
  bool fillsGaps() const {
    return kind == PieceKind::Straight && length > 0.0 && !isBridge && role == PieceRole::plain;
  }
};

}  // namespace vantrel
