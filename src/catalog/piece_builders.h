// The four builders that turn the measures of a regular piece into its definition.
#pragma once

#include <string>

#include "catalog/piece_def.h"

namespace vantrel {

inline constexpr double kPi = 3.141592653589793;
constexpr double Radians(double degrees) {
  return degrees * kPi / 180.0;
}
constexpr double Degrees(double radians) {
  return radians * 180.0 / kPi;
}

// `length` in mm; connectors at (0, 0) heading 180 and (length, 0) heading 0.
PieceDef makeStraight(TrackSystem system, std::string part, std::string description, double length);

// `radius` in mm, `angle` in degrees. A curve always bends toward +y; a left-hand curve is the same
// piece entered at connector 1.
PieceDef makeCurve(TrackSystem system, std::string part, std::string description, double radius,
                   double angle);

// `kind` is LeftTurnout or RightTurnout. A branch whose arc would reach past `length` is cut off
// there, so the branch's heading comes from the clipped arc and not from `angle`.
PieceDef makeTurnout(TrackSystem system, std::string part, std::string description, PieceKind kind,
                     double length, double radius, double angle);

// One connector at (0, 0) heading 180.
PieceDef makeTrackEnd(TrackSystem system, std::string part, std::string description, double length);

}  // namespace vantrel
