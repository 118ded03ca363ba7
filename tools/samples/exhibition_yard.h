// The large plan: a club's terminus on a deck, a hidden yard below it, and what joins the two.
//
// Tracks lie in rows, one pitch of the system apart; row 0 is the departure line, row 1 the arrival
// line, rows below 0 lie to the north. Everything is laid from connector to connector, from the
// turntable of the depot eastwards through the throat, and from the throat westwards down to the
// hidden yard.
#pragma once

#include <map>
#include <string_view>

#include "tools/samples/sample_builder.h"

namespace vantrel::samples::yard {

inline constexpr double kPitch = 77.5;  // mm from row to row
// Enough for a locomotive with its pantograph up, 105 mm, and 25 mm of deck.
inline constexpr double kDeckHeight = 130.0;

inline constexpr double kTableWidth = 8950.0;
inline constexpr double kTableDepth = 3100.0;
inline constexpr Vec2 kTurntable{1130.0, 450.0};
// The throat's first row lies four rows south of the turntable.
constexpr double RowY(int row) {
  return kTurntable.y + (4 + row) * kPitch;
}

// Levels, by id.
inline constexpr std::int32_t kRamps = 1;
inline constexpr std::int32_t kStation = 2;
inline constexpr std::int32_t kHidden = 3;
inline constexpr std::int32_t kBranch = 4;
inline constexpr std::int32_t kLandscape = 5;
inline constexpr std::int32_t kCover = 6;  // of the hidden yard, taken off

inline constexpr std::string_view kStraight = "24188";
inline constexpr std::string_view kTurnoutLeft = "24611";
inline constexpr std::string_view kTurnoutRight = "24612";
inline constexpr std::string_view kSlip = "24624";
inline constexpr std::string_view kBend = "24224";  // a turnout's branch angle

// 24.3 degrees to the left: curves bend to the right from their connector 0.
End BendLeft(SampleBuilder& plan, End from);
End BendRight(SampleBuilder& plan, End from);
// 90 degrees to the left, on curves of 30 degrees.
End QuarterLeft(SampleBuilder& plan, End from, std::string_view curve);

// Ends of track by row.
using Rows = std::map<int, End>;

// The depot, from its turntable to the turnout in the departure line.
struct Depot {
  End west;  // of the departure line
  End east;
};
Depot LayDepot(SampleBuilder& plan);

// Two ladders of turnouts cross the two lines in double slips.
struct Throat {
  End departure;  // the two lines' ends in the west
  End arrival;
  Rows tracks;    // ends towards the east
  Rows carriage;  // ends towards the west
};
Throat LayThroat(SampleBuilder& plan, const Depot& depot);

// Passenger tracks, with their platforms, and the carriage sidings beside them.
void LayPlatforms(SampleBuilder& plan, const Rows& tracks);
// A track that goes east or west as far as its bumper, `buffers` mm from the table's left edge,
// with a stopping place at both ends and an uncoupler.
void FinishTrack(SampleBuilder& plan, End end, double buffers);
void LayGoodsYard(SampleBuilder& plan, const Rows& tracks);
void LayCarriageSidings(SampleBuilder& plan, const Rows& tracks);

// From the throat around the west end, over the bridges, down along the front and around the east
// end. The two lines come out beside each other at height 0.
struct Lines {
  End outer;
  End inner;
  End works;  // leads back along the front
};
Lines LayRamps(SampleBuilder& plan, const Throat& throat);

// The sidings of a factory along the front edge of the table.
void LayWorks(SampleBuilder& plan, End lead);

// A loop: from the inner line through ten tracks and back to the outer line. Returns the end of a
// track that leaves it for the helix.
End LayHiddenYard(SampleBuilder& plan, const Lines& lines);

// Up the helix to a small terminus above the large one.
void LayBranch(SampleBuilder& plan, End foot);

void LayLandscape(SampleBuilder& plan);

}  // namespace vantrel::samples::yard
