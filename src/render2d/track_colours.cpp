#include "render2d/track_colours.h"

#include <algorithm>
#include <cmath>

#include "doc/layout_ops.h"

namespace vantrel {
namespace {

constexpr double kFlatGradeDeg = 0.001;    // below it a piece counts as level
constexpr double kRampStartMm = 0.5;       // up to this height a piece keeps its plain colours
constexpr double kRampFullHeightMm = 120;  // from here on the ramp's colour stays the same

std::uint8_t Truncated(double channel) {
  return static_cast<std::uint8_t>(channel);
}

std::uint8_t Wrapped(int channel) {
  return static_cast<std::uint8_t>(static_cast<unsigned int>(channel));
}

// A dark channel ends at 0 here; it doesn't wrap as a branch's does.
std::uint8_t DarkerOrZero(std::uint8_t channel, int by) {
  return channel - by < 1 ? std::uint8_t{0} : static_cast<std::uint8_t>(channel - by);
}

Rgb8 PlainFill(const RenderContext& context, const Piece& piece, const PieceDef& def) {
  Rgb8 fill = def.system == TrackSystem::MarklinK ? kBedFillK : kBedFill;
  if (context.layout != nullptr) {
    const Level* level = FindLevel(*context.layout, piece.level);
    if (level != nullptr && level->trackcolor) fill = {level->r, level->g, level->b};
  }
  if (piece.hasColor) fill = {piece.colorR, piece.colorG, piece.colorB};
  return fill;
}

// The ends of a helix, and flat track that leads up to them, are high without showing it: the climb
// is the helix's.
bool IsExemptFromRamp(const RenderContext& context, const Piece& piece) {
  if (!(std::abs(piece.grade) < kFlatGradeDeg)) return false;
  return piece.helix != kNone || context.helixLinked.contains(piece.id);
}

// From near grey through yellow at half the full height to brown.
Rgb8 RampFill(double z) {
  const double t = std::min(1.0, z / kRampFullHeightMm);
  if (t < 0.5) {
    const double u = 2.0 * t;
    return {Truncated(210.0 + 45.0 * u), Truncated(210.0 + 10.0 * u), Truncated(205.0 - 145.0 * u)};
  }
  const double u = 2.0 * (t - 0.5);
  return {Truncated(255.0 - 75.0 * u), Truncated(220.0 - 110.0 * u), Truncated(60.0 - 60.0 * u)};
}

std::uint8_t FadedChannel(std::uint8_t channel) {
  return Truncated(0.4 * channel + 132.0);
}

Rgb8 Faded(Rgb8 colour) {
  return {FadedChannel(colour.r), FadedChannel(colour.g), FadedChannel(colour.b)};
}

}  // namespace

BedColours placedBedColours(const RenderContext& context, const Piece& piece, const PieceDef& def,
                            bool selected, bool inTunnel) {
  if (selected) return {kSelectedFill, kSelectedOutline};
  BedColours colours{PlainFill(context, piece, def), kBedOutline};
  if (piece.z > kRampStartMm && !IsExemptFromRamp(context, piece)) {
    colours.fill = RampFill(piece.z);
    colours.outline = {DarkerOrZero(colours.fill.r, 60), DarkerOrZero(colours.fill.g, 60),
                       DarkerOrZero(colours.fill.b, 30)};
  }
  if (inTunnel) colours = {Faded(colours.fill), Faded(colours.outline)};
  return colours;
}

Rgb8 loweredBy(Rgb8 colour, int r, int g, int b) {
  return {Wrapped(colour.r - r), Wrapped(colour.g - g), Wrapped(colour.b - b)};
}

Rgb8 branchColour(Rgb8 fill) {
  return loweredBy(fill, 15, 15, 10);
}

Rgb8 slipColour(Rgb8 fill, bool ghost) {
  if (ghost) return loweredBy(fill, -10, -10, -18);
  return {Wrapped(std::min(fill.r + 10, 255)), Wrapped(std::min(fill.g + 10, 255)),
          Wrapped(std::min(fill.b + 18, 255))};
}

}  // namespace vantrel
