// The throat. A diagonal of turnouts and slips goes up or down exactly one row a piece: 188.3 mm at
// 24.3 degrees are 77.49 mm.
#include <algorithm>
#include <initializer_list>

#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {
namespace {

struct Ladder {
  std::string_view turnout;  // whose branch leads back into the row
  bool bendsLeft = false;    // so does a curve of the same angle, at the ladder's end
  int step = 1;              // rows per piece
  int firstRow = 0;
  int lastRow = 0;
};

// A turnout for each row that is used, a straight for each that isn't.
void Climb(SampleBuilder& plan, End end, const Ladder& ladder,
           const std::initializer_list<int> gaps, Rows& tracks) {
  for (int row = ladder.firstRow; row != ladder.lastRow; row += ladder.step) {
    const bool gap = std::find(gaps.begin(), gaps.end(), row) != gaps.end();
    end = plan.lay(end, gap ? kStraight : ladder.turnout);
    if (!gap) tracks[row] = plan.other(end, 2);
  }
  tracks[ladder.lastRow] = ladder.bendsLeft ? BendLeft(plan, end) : BendRight(plan, end);
}

}  // namespace

Throat LayThroat(SampleBuilder& plan, const Depot& depot) {
  Throat throat;
  // From the departure line across the arrival line into the tracks of the south.
  const End start = plan.layMany(depot.east, kStraight, 2);
  const End south = plan.lay(start, kTurnoutRight);
  const End lower = plan.lay(plan.other(south, 2), kSlip, 2, 1);
  Climb(plan, plan.other(lower, 3), {kTurnoutLeft, true, 1, 2, 8}, {2}, throat.tracks);
  // From the arrival line across the departure line into those of the north.
  const End north = plan.lay(lower, kTurnoutLeft);
  const End upper = plan.lay(plan.other(north, 2), kSlip, 0, 1);
  Climb(plan, upper, {kTurnoutRight, false, -1, -1, -5}, {-1, -4}, throat.tracks);
  plan.close(plan.layMany(south, "24172", 2), plan.other(upper, 2));

  throat.tracks[0] = plan.other(upper, 3);
  throat.tracks[1] = north;
  throat.departure = depot.west;
  // As far west as the other line: a straight beside each of its straights, and beside its turnout.
  End arrival = plan.lay(plan.other(lower, 0), "24172");
  arrival = plan.lay(arrival, kTurnoutLeft);
  Climb(plan, plan.other(arrival, 2), {kTurnoutRight, false, 1, 2, 6}, {}, throat.carriage);
  throat.arrival = plan.layMany(arrival, kStraight, 2);
  return throat;
}

}  // namespace vantrel::samples::yard
