// The colours of track in 2D: the program-wide constants, and how a placed piece's fill and outline
// follow from its state.
#pragma once

#include <wx/colour.h>

#include <cstdint>

#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "render2d/render_context.h"

namespace vantrel {

struct Rgb {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;

  friend bool operator==(const Rgb&, const Rgb&) = default;
};

inline constexpr int kOpaque = 255;

inline wxColour ToColour(Rgb colour, int alpha = kOpaque) {
  return {colour.r, colour.g, colour.b, static_cast<unsigned char>(alpha)};
}

inline constexpr Rgb kBedFill{210, 210, 205};
inline constexpr Rgb kBedFillK{215, 200, 175};
inline constexpr Rgb kSelectedFill{180, 200, 230};
inline constexpr Rgb kBedOutline{120, 120, 115};
inline constexpr Rgb kSelectedOutline{40, 100,
                                      200};  // and a selected label, a selected bridge line
inline constexpr Rgb kGhostFill{200, 225, 200};
inline constexpr Rgb kGhostOutline{80, 150, 80};
inline constexpr Rgb kJoinedDot{60, 180, 60};
inline constexpr Rgb kFreeDot{255, 140, 0};
inline constexpr Rgb kMarkerPen{60, 60, 160};
inline constexpr Rgb kMarkerBrush{100, 120, 220};
inline constexpr Rgb kBumperBar{40, 40, 40};
inline constexpr Rgb kBridgeArch{80, 100, 130};
inline constexpr int kStraightArchAlpha = 180;
inline constexpr int kCurvedArchAlpha = 200;
inline constexpr Rgb kTurntableDeck{220, 215, 210};
inline constexpr int kGhostDeckAlpha = 180;
inline constexpr Rgb kTurntableBridge{80, 60, 40};
inline constexpr Rgb kTurntableSpoke{100, 80, 60};
inline constexpr Rgb kTurntableStub{160, 140, 100};
inline constexpr Rgb kLabelText{50, 50, 50};

struct BedColours {
  Rgb fill;
  Rgb outline;
};

// The colours of a placed piece. A selection beats the level's colour, the piece's own colour beats
// the level's, height above the table beats both, and a tunnel fades what is not selected.
BedColours placedBedColours(const RenderContext& context, const Piece& piece, const PieceDef& def,
                            bool selected, bool inTunnel);

// Each channel lowered by the given amount. A channel below it wraps around as an unsigned byte.
Rgb loweredBy(Rgb colour, int r, int g, int b);

// The second ribbon of a turnout.
Rgb branchColour(Rgb fill);

// The slips of a double slip: the fill, brighter and bluer. The ghost doesn't stop at 255.
Rgb slipColour(Rgb fill, bool ghost);

}  // namespace vantrel
