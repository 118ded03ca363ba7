#include "view3d/scene/far_track.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/scene/scene_support.h"
#include "tests/scene/track_colours.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

TEST(FarTrack, ShowsSleepersWholeFromFivePixelsApartAndNoneAtTwoAndAHalf) {
  EXPECT_EQ(FarShade(5.0), 0);
  EXPECT_EQ(FarShade(80.0), 0);
  EXPECT_EQ(FarShade(std::numeric_limits<double>::infinity()), 0);
  // In the middle of 2.5 and 5, and a quarter of the way down.
  EXPECT_EQ(FarShade(3.75), 4);
  EXPECT_EQ(FarShade(4.375), 2);
  EXPECT_EQ(FarShade(2.5), 8);
  EXPECT_EQ(FarShade(0.0), 8);
}

TEST(FarTrack, SleepersAndBallastTakeOneColourInTheEnd) {
  const Model model = makeTrackModel(*findPart("24188"));
  const FarTrack far = MakeFarTrack(model);
  const std::vector<Rgb>& last = far.colours.back();
  ASSERT_EQ(last.size(), model.colors.size());
  // Sleepers of 26 by 3.5 mm every 13 mm on ballast 37.4 mm wide: 91 of 486.2 square mm, 0.1872. Of
  // red that is 0.76 - 0.1872 (0.76 - 0.38) = 0.6889, of green 0.74 - 0.1872 (0.74 - 0.27) =
  // 0.6520, of blue 0.7 - 0.1872 (0.7 - 0.16) = 0.5989; 0.85 of it for what the sleepers' sides had
  // darkened.
  for (std::size_t i = 0; i < last.size(); ++i) {
    const Rgb colour = model.colors[i];
    if (colour != kSleeperTop && colour != kSleeperSide && colour != kBallastTop) {
      EXPECT_EQ(last[i], colour);
      continue;
    }
    EXPECT_NEAR(last[i].r, 0.5856F, 1e-3F);
    EXPECT_NEAR(last[i].g, 0.5542F, 1e-3F);
    EXPECT_NEAR(last[i].b, 0.5091F, 1e-3F);
    // The band has 0.8 of it.
    EXPECT_NEAR(far.bandColours[i].r, 0.5511F, 1e-3F);
  }
}

TEST(FarTrack, SleepersFadeShadeByShade) {
  Model model = makeTrackModel(*findPart("24188"));
  const auto sleeper =
      static_cast<std::size_t>(std::ranges::find(model.colors, kSleeperTop) - model.colors.begin());
  const auto ballast =
      static_cast<std::size_t>(std::ranges::find(model.colors, kBallastTop) - model.colors.begin());
  const FarTrack far = MakeFarTrack(model);
  // An eighth and four eighths of the way to 0.5856.
  EXPECT_NEAR(far.colours[0][sleeper].r, 0.4057F, 1e-3F);
  EXPECT_NEAR(far.colours[3][sleeper].r, 0.4828F, 1e-3F);
  EXPECT_NEAR(far.colours[0][ballast].r, 0.7382F, 1e-3F);
  EXPECT_NEAR(far.colours[3][ballast].r, 0.6728F, 1e-3F);
}

TEST(FarTrack, IsAPlainBandBelowOneAndThreeQuartersOfAPixel) {
  EXPECT_TRUE(IsPlainBand(1.7));
  EXPECT_FALSE(IsPlainBand(1.75));
  const Model model = makeTrackModel(*findPart("24188"));
  const FarTrack far = MakeFarTrack(model);
  // 9 segments: the ballast's top, of two triangles; before that also its two sides and three quads
  // of each rail, and the ballast's two ends.
  EXPECT_EQ(far.band.size(), 9U * 2U * 3U);
  EXPECT_EQ(far.withoutSleepers.size(), (9U * 9U + 2U) * 2U * 3U);
  for (const std::uint32_t index : far.band) {
    ASSERT_LT(index, model.positions.size());
    EXPECT_EQ(model.colors[index], kBallastTop);
  }
  for (const std::uint32_t index : far.withoutSleepers)
    EXPECT_TRUE(model.colors[index] != kSleeperTop && model.colors[index] != kSleeperSide);
}

TEST(FarTrack, WhatStandsAroundTheTrackStays) {
  const Model model = makeTrackModel(*findPart("74636"));
  const FarTrack far = MakeFarTrack(model);
  std::size_t structure = 0;
  std::size_t left = 0;
  const auto isBridge = [&](std::uint32_t index) {
    const Rgb colour = model.colors[index];
    for (const Rgb& track :
         {kBallastTop, kBallastSide, kRailTop, kRailSide, kSleeperTop, kSleeperSide})
      if (colour == track) return false;
    return true;
  };
  for (const std::uint32_t index : model.indices) structure += isBridge(index) ? 1 : 0;
  for (const std::uint32_t index : far.band) left += isBridge(index) ? 1 : 0;
  EXPECT_GT(structure, 1000U);
  EXPECT_EQ(left, structure);
}

TEST(FarTrack, EveryPartOfASceneHasOne) {
  Layout layout;
  Lay(layout, "24188", {0, 0, 0});
  Lay(layout, "24130", {400, 0, 0});
  Lay(layout, "24188", {800, 0, 0});
  const Scene scene = BuildScene(layout);
  ASSERT_EQ(scene.farTracks.size(), 2U);
  for (const auto& [part, model] : scene.trackModels)
    EXPECT_EQ(scene.farTracks.at(part).colours[0].size(), model.colors.size()) << part;
}

}  // namespace
}  // namespace vantrel
