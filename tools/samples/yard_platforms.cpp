#include <cmath>

#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {
namespace {

constexpr double kBuffers = 7620.0;

}  // namespace

void FinishTrack(SampleBuilder& plan, End end, double buffers) {
  constexpr double kBumper = 48.3;
  constexpr double kStops = 5 * 94.2;
  const double length = std::abs(buffers - plan.pose(end).x) - kBumper - kStops;
  constexpr double kFirstBlock = 4 * 188.3;
  end = plan.layMany(plan.lay(end, "24994"), kStraight, 4);
  end = plan.layLength(plan.lay(end, "24994"), length - kFirstBlock);
  end = plan.lay(plan.lay(plan.lay(end, "24997"), "24994"), "24994");
  plan.lay(end, "24978");
}

void LayPlatforms(SampleBuilder& plan, const Rows& tracks) {
  for (const int row : {-5, -3, -2, 0, 1, 3}) FinishTrack(plan, tracks.at(row), kBuffers);
  const auto island = [&](int row, int pieces) {
    constexpr double kLength = 460.0;
    constexpr double kWidth = 120.0;
    constexpr double kBetweenTracks = 100.0;  // so that the edge is 27.5 mm from the track's middle
    for (int i = 0; i < pieces; ++i)
      plan.scenery("platform_island", {kBuffers - 90.0 - (i + 0.5) * kLength, RowY(row), 0.0},
                   {1.0, kBetweenTracks / kWidth});
  };
  island(-4, 5);
  island(-1, 6);
  island(2, 7);
  // Where the passengers change from one to the other, and the station behind it.
  for (int i = 0; i < 3; ++i)
    plan.scenery("platform", {kBuffers + 45.0, RowY(-5) + 115.0 + 230.0 * i, 90.0});
  plan.scenery("station_large", {kBuffers + 175.0, RowY(-1), 90.0});
  // Beside the track that they stop, half a row from it; on the way in, one is clear.
  const auto signal = [&](std::string_view item, double x, double row) {
    plan.scenery(item, {x, RowY(0) + row * kPitch, 270.0});
  };
  for (const double row : {-4.5, -2.5, 0.5, 3.5}) signal("signal_color_stop", 5060.0, row);
  signal("signal_color_clear", 3440.0, 1.5);
  signal("signal_semaphore_stop", 3200.0, -0.5);
}

void LayGoodsYard(SampleBuilder& plan, const Rows& tracks) {
  for (const int row : {4, 5, 6, 7, 8}) FinishTrack(plan, tracks.at(row), kBuffers - 800.0);
  const double south = RowY(8) + 50.0;
  for (const double x : {5200.0, 5420.0, 5640.0})
    plan.scenery("goods_shed", {x, south, 0.0}, {1.0, 0.55});
  plan.scenery("warehouse", {7060.0, 1130.0, 0.0});
  for (const double x : {5850.0, 5960.0, 6070.0}) plan.scenery("truck", {x, south, 0.0});
}

void LayCarriageSidings(SampleBuilder& plan, const Rows& tracks) {
  for (const auto& [row, end] : tracks) FinishTrack(plan, end, 900.0 + 60.0 * row);
}

}  // namespace vantrel::samples::yard
