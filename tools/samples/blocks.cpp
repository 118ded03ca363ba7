#include "tools/samples/sample_builder.h"

namespace vantrel::samples {
namespace {

// A second track beside the line between two turnouts, with a signal at each end. The line comes
// out on the other track, so that both are exactly as long: each runs straight through one turnout
// and over the other's branch.
Layout PassingLoop() {
  SampleBuilder plan;
  constexpr int kStraights = 4;
  const End west = plan.start("24611", {100.0, 200.0, 0.0});
  End end = plan.lay(plan.other(west, 2), "24224");
  end = plan.layMany(end, "24188", kStraights);
  const End east = plan.lay(end, "24611", 1, 0);
  end = plan.layMany(west, "24188", kStraights);
  end = plan.lay(end, "24224", 1, 0);
  plan.close(end, plan.other(east, 2));
  plan.scenery("signal_color_clear", {1030.0, 245.0, 0.0});
  plan.scenery("signal_color_stop", {480.0, 77.0, 180.0});
  return plan.takeSelected();
}

// Four tracks from a ladder of turnouts, each with a bumper at its end; all end side by side.
Layout YardThroat() {
  SampleBuilder plan;
  constexpr int kTracks = 4;
  constexpr int kStraights = 3;
  End turnout = plan.start("24611", {100.0, 400.0, 0.0});
  for (int track = 1; track < kTracks; ++track) {
    End end = plan.lay(turnout, "24172");
    // Past the turnouts of the tracks that branch off later.
    for (int later = track + 1; later < kTracks; ++later)
      end = plan.lay(plan.lay(end, "24188"), "24172");
    plan.lay(plan.layMany(end, "24188", kStraights), "24977");
    end = plan.lay(plan.other(turnout, 2), "24224");
    if (track + 1 < kTracks)
      turnout = plan.lay(end, "24611");
    else
      plan.lay(plan.layMany(end, "24188", kStraights), "24977");
  }
  return plan.takeSelected();
}

// Two lines cross over in a double slip and open into four station tracks.
Layout StationThroat() {
  SampleBuilder plan;
  const End slip = plan.start("2260", {700.0, 400.0, 0.0});
  plan.layMany(plan.other(slip, 0), "2200", 2);
  plan.lay(plan.lay(plan.other(slip, 2), "2232", 1, 0), "2200");
  const auto finish = [&](End from) { plan.layMany(from, "2200", 2); };
  const End up = plan.lay(slip, "2262");
  finish(plan.layMany(up, "2206", 2));
  finish(plan.lay(plan.other(up, 2), "2232"));
  const End down = plan.lay(plan.lay(plan.other(slip, 3), "2232", 1, 0), "2263");
  finish(plan.lay(down, "2206"));
  finish(plan.lay(plan.other(down, 2), "2232", 1, 0));
  plan.scenery("signal_box", {980.0, 250.0, 0.0});
  return plan.takeSelected();
}

// From one line of a double track to the other.
Layout Crossover() {
  SampleBuilder plan;
  const End first = plan.start("62612", {300.0, 200.0, 0.0});
  plan.lay(plan.lay(first, "62172"), "62188");
  plan.lay(plan.other(first, 0), "62188");
  const End second = plan.lay(plan.other(first, 2), "62612", 2, 0);
  plan.lay(second, "62188");
  plan.lay(plan.lay(plan.other(second, 1), "62172"), "62188");
  return plan.takeSelected();
}

// A closed oval of R2 with a siding outside, for a table of 90 by 50 cm.
Layout OvalWithSiding() {
  SampleBuilder plan;
  const End first = plan.start("8500", {310.0, 90.0, 0.0});
  End end = plan.layMany(first, "8500", 2);
  end = plan.layMany(end, "8520", 4);
  const End turnout = plan.lay(end, "8562");
  end = plan.layMany(turnout, "8500", 2);
  end = plan.layMany(end, "8520", 4);
  plan.close(end, plan.other(first, 0));
  end = plan.lay(plan.other(turnout, 2), "8591");
  end = plan.lay(end, "8500");
  end = plan.lay(end, "8501");
  plan.lay(end, "8991");
  return plan.takeSelected();
}

}  // namespace

const std::vector<SampleBlock>& AllBlocks() {
  static const std::vector<SampleBlock> blocks = {
      {"Marklin_C-Track", "Passing Loop", PassingLoop},
      {"Marklin_C-Track", "Yard Throat", YardThroat},
      {"Marklin_K-Track", "Station Throat", StationThroat},
      {"Marklin_Z-Track", "Oval with Siding", OvalWithSiding},
      {"TRIX_C-Track", "Crossover", Crossover}};
  return blocks;
}

}  // namespace vantrel::samples
