#include "view3d/scene/far_track.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "view3d/scene/track_strip.h"

namespace vantrel {
namespace {

// Pixels from sleeper to sleeper. Below the one nothing of them is left; from the other on they
// can be told apart with four samples a pixel.
constexpr double kNonePixels = 2.5;
constexpr double kAllPixels = 5.0;
// Below this the ballast is less than 5 pixels wide, and a rail a sixth of one.
constexpr double kBandPixels = 1.75;

// Of the ballast that sleepers cover.
constexpr float kSleeperShare = kSleeperHalfLengthMm / kBallastHalfWidthMm * 2.0F *
                                kSleeperHalfWidthMm / static_cast<float>(kSleeperStepMm);

// How bright the ballast has to be for the shadows of what is left out: measured at the first pitch
// beside a picture of 64 samples a pixel.
constexpr float kWithoutSleepers = 0.85F;
constexpr float kWithoutSides = 0.8F;

Rgb Mixed(Rgb a, Rgb b, float share) {
  return {a.r + (b.r - a.r) * share, a.g + (b.g - a.g) * share, a.b + (b.b - a.b) * share};
}

bool IsSleeper(Rgb colour) {
  return colour == kSleeperColours.top || colour == kSleeperColours.side;
}

// Rails are 1.2 mm wide and the sides of rails and ballast 2.5 and 2 mm high: turned away from the
// light, sides would be a sprinkle of dark pixels.
bool IsRailOrSide(Rgb colour) {
  return colour == kRailColours.top || colour == kRailColours.side ||
         colour == kBallastColours.side;
}

// Of ballast and sleepers together.
Rgb Mingled(float brightness) {
  const Rgb both = Mixed(kBallastColours.top, kSleeperColours.top, kSleeperShare);
  return {both.r * brightness, both.g * brightness, both.b * brightness};
}

std::vector<Rgb> Recoloured(const Model& model, Rgb mingled, float share) {
  std::vector<Rgb> colours = model.colors;
  for (Rgb& colour : colours)
    if (IsSleeper(colour) || colour == kBallastColours.top) colour = Mixed(colour, mingled, share);
  return colours;
}

void AppendTriangle(std::vector<std::uint32_t>& indices, const Model& model, std::size_t first) {
  for (std::size_t corner = 0; corner < 3; ++corner)
    indices.push_back(model.indices[first + corner]);
}

}  // namespace

int FarShade(double sleeperStepPixels) {
  const double share = (kAllPixels - sleeperStepPixels) / (kAllPixels - kNonePixels);
  return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * kFarShades));
}

bool IsPlainBand(double sleeperStepPixels) {
  return sleeperStepPixels < kBandPixels;
}

FarTrack MakeFarTrack(const Model& model) {
  FarTrack far;
  for (std::size_t shade = 1; shade <= kFarShades; ++shade)
    far.colours[shade - 1] =
        Recoloured(model, Mingled(kWithoutSleepers), static_cast<float>(shade) / kFarShades);
  far.bandColours = Recoloured(model, Mingled(kWithoutSides), 1.0F);
  for (std::size_t i = 0; i + 2 < model.indices.size(); i += 3) {
    const Rgb colour = model.colors[model.indices[i]];
    if (IsSleeper(colour)) continue;
    AppendTriangle(far.withoutSleepers, model, i);
    if (!IsRailOrSide(colour)) AppendTriangle(far.band, model, i);
  }
  return far;
}

}  // namespace vantrel
