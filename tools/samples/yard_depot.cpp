#include <cmath>

#include "catalog/piece_builders.h"
#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {
namespace {

// Connectors of the turntable: 12 degrees from one to the next, number 0 to the east.
constexpr std::int32_t kLead = 0;
constexpr std::int32_t kStalls[] = {14, 15, 16};
constexpr std::int32_t kYardTracks[] = {18, 19, 20, 21};
constexpr double kHouseFromCentre = 349.6 + 343.0 / 2.0;  // mm to the middle of the roundhouse

End SpokeEnd(const SampleBuilder& plan, End table, std::int32_t connector) {
  return plan.other(plan.joined(plan.other(table, connector)), 1);
}

}  // namespace

Depot LayDepot(SampleBuilder& plan) {
  const End table = plan.start("74861", {kTurntable.x, kTurntable.y, 0.0}, kLead);

  // Into the roundhouse: its gates stand where the first straight ends.
  for (const std::int32_t stall : kStalls)
    plan.lay(plan.lay(plan.lay(SpokeEnd(plan, table, stall), "24172"), kStraight), "24977");
  plan.scenery("72886", {kTurntable.x - kHouseFromCentre, kTurntable.y, 90.0});
  // In the open.
  for (const std::int32_t track : kYardTracks)
    plan.lay(plan.lay(plan.lay(plan.other(table, track), "74871"), kStraight), "24977");
  for (const std::int32_t track : {1, 29})
    plan.lay(plan.layMany(SpokeEnd(plan, table, track), kStraight, 3), "24977");

  // The lead, past water and coal, to the departure line three rows further south.
  End end = plan.layMany(SpokeEnd(plan, table, kLead), kStraight, 3);
  end = plan.lay(end, kTurnoutLeft);
  End coal = BendRight(plan, plan.other(end, 2));
  plan.lay(plan.lay(plan.layMany(coal, kStraight, 6), "24997"), "24977");
  end = BendRight(plan, end);
  end = plan.layMany(end, kStraight, 3);
  end = plan.lay(end, kTurnoutRight, 2, 0);
  return {plan.other(end, 1), end};
}

}  // namespace vantrel::samples::yard
