// The hidden yard: a parallelogram of tracks that are all equally long, because its ladders are the
// same, one turned by half a circle. A train comes in on the inner line in the east, leaves through
// the ladder in the west and goes back on the outer line, or the other way round.
#include <vector>

#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {
namespace {

constexpr std::size_t kTracks = 10;
constexpr int kBlocks = 3;
constexpr int kStraightsPerBlock = 5;
constexpr int kContactsPerBlock = 4;
constexpr int kBeforeHelix = 5;  // straights

// Room for three short trains or a long one: each block begins with a contact and ends with two for
// braking and one for the stop.
End LayTrack(SampleBuilder& plan, End end) {
  for (int block = 0; block < kBlocks; ++block)
    end = plan.layMany(plan.layMany(plan.lay(end, "24994"), kStraight, kStraightsPerBlock), "24994",
                       kContactsPerBlock - 1);
  return end;
}

}  // namespace

End LayHiddenYard(SampleBuilder& plan, const Lines& lines) {
  plan.onLevel(kHidden);
  // The ladder in the east goes south-west; branches turn back to the west.
  End ladder = plan.lay(BendLeft(plan, lines.inner), "24077");
  std::vector<End> tracks;
  for (std::size_t track = 1; track < kTracks; ++track) {
    ladder = plan.lay(ladder, kTurnoutRight);
    tracks.push_back(plan.other(ladder, 2));
  }
  tracks.push_back(BendRight(plan, ladder));
  for (End& track : tracks) track = LayTrack(plan, track);

  // The ladder in the west begins with the southernmost track.
  const End foot = plan.lay(tracks.back(), kTurnoutRight, 2, 0);
  ladder = plan.other(foot, 1);
  for (std::size_t track = kTracks - 2; track > 0; --track) {
    ladder = plan.lay(ladder, kTurnoutRight, 0, 1);
    plan.close(tracks[track], plan.other(ladder, 2));
  }
  plan.close(tracks.front(), BendRight(plan, ladder));

  // Around the west end. The lengths here and in the outer line make both loops close: the yard is
  // 2464.396 mm longer than its tracks and with both lines 1020.102 mm wide.
  End end = plan.layMany(foot, "24071", 2);
  end = BendRight(plan, end);
  end = plan.layMany(end, "24130", 3);
  end = plan.lay(plan.lay(end, "24071"), "24229");
  end = plan.layMany(end, "24130", 3);
  const End helix =
      plan.lay(plan.layMany(lines.outer, kStraight, kBeforeHelix), kTurnoutLeft, 1, 0);
  End outer = plan.layMany(helix, kStraight, kBlocks * kStraightsPerBlock - kBeforeHelix - 1);
  outer = plan.layMany(outer, "24994", kContactsPerBlock * kBlocks);
  outer = plan.lay(plan.lay(plan.lay(outer, "24360"), "24172"), "24064");
  outer = plan.layMany(plan.layMany(outer, "24229", 3), "24236", 5);
  plan.close(outer, end);
  return plan.other(helix, 2);
}

}  // namespace vantrel::samples::yard
