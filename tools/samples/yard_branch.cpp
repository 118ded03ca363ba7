// The branch: a track of the hidden yard climbs the helix to a terminus on the third deck. The
// inner ring of the helix is its headshunt.
#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {

void LayBranch(SampleBuilder& plan, End foot) {
  plan.onLevel(kHidden);
  constexpr int kRowsNorth = 6;
  End end = plan.layMany(foot, kStraight, kRowsNorth);
  end = BendRight(plan, end);

  // The helix stands where its outer track meets this one.
  constexpr double kStub = 188.3;
  constexpr double kOuterRadius = 437.5;
  const Pose at = plan.pose(end);
  plan.onLevel(kRamps);
  const Helix helix = plan.helix({at.x + kStub, at.y - kOuterRadius}, 180.0);
  plan.close(end, {helix.bottomR2, 1});
  plan.lay({helix.bottomR1, 1}, "24977");

  // Both tracks cross to the deck on bridges and are joined by a slip.
  End north = plan.lay({helix.topR2, 1}, "74636");
  End south = plan.lay({helix.topR1, 1}, "74636");
  plan.onLevel(kBranch);
  north = plan.lay(north, kTurnoutLeft);
  const End slip = plan.lay(plan.other(north, 2), kSlip, 0, 1);
  plan.close(plan.lay(south, "24172"), plan.other(slip, 2));
  constexpr double kBuffers = 5000.0;
  FinishTrack(plan, north, kBuffers);
  FinishTrack(plan, plan.other(slip, 3), kBuffers);
  const End platform = BendRight(plan, plan.lay(slip, kStraight));
  const double y = plan.pose(platform).y - kPitch;
  FinishTrack(plan, platform, kBuffers);
  for (int i = 0; i < 4; ++i)
    plan.scenery("platform_island", {kBuffers + 300.0 + 460.0 * i, y, 0.0}, {1.0, 100.0 / 120.0});
  plan.scenery("station_small", {kBuffers - 90.0, 178.0, 270.0});
}

}  // namespace vantrel::samples::yard
