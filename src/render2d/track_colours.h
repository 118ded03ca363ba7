// The colours of track in 2D: the program-wide constants, and how a placed piece's fill and outline
// follow from its state.
#pragma once

#include <wx/colour.h>

#include <cstdint>

#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "render2d/render_context.h"

namespace vantrel {

// Channels from 0 to 255, as a level and a piece have them.
struct Rgb8 {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;

  friend bool operator==(const Rgb8&, const Rgb8&) = default;
};

inline constexpr int kOpaque = 255;

inline wxColour ToColour(Rgb8 colour, int alpha = kOpaque) {
  return {colour.r, colour.g, colour.b, static_cast<unsigned char>(alpha)};
}

inline constexpr Rgb8 kBedFill{210, 210, 205};
inline constexpr Rgb8 kBedFillK{215, 200, 175};
inline constexpr Rgb8 kSelectedFill{180, 200, 230};
inline constexpr Rgb8 kBedOutline{120, 120, 115};
inline constexpr Rgb8 kSelectedOutline{40, 100,
                                       200};  // and a selected label, a selected bridge line
inline constexpr Rgb8 kGhostFill{200, 225, 200};
inline constexpr Rgb8 kGhostOutline{80, 150, 80};
inline constexpr Rgb8 kJoinedDot{60, 180, 60};
inline constexpr Rgb8 kFreeDot{255, 140, 0};
inline constexpr Rgb8 kMarkerPen{60, 60, 160};
inline constexpr Rgb8 kMarkerBrush{100, 120, 220};
inline constexpr Rgb8 kBumperBar{40, 40, 40};
inline constexpr Rgb8 kBridgeArch{80, 100, 130};
inline constexpr int kStraightArchAlpha = 180;
inline constexpr int kCurvedArchAlpha = 200;
inline constexpr Rgb8 kTurntableDeck{220, 215, 210};
inline constexpr int kGhostDeckAlpha = 180;
inline constexpr Rgb8 kTurntableBridge{80, 60, 40};
inline constexpr Rgb8 kTurntableSpoke{100, 80, 60};
inline constexpr Rgb8 kTurntableStub{160, 140, 100};
inline constexpr Rgb8 kLabelText{50, 50, 50};

struct BedColours {
  Rgb8 fill;
  Rgb8 outline;
};

// The colours of a placed piece. A selection beats the level's colour, the piece's own colour beats
// the level's, height above the table beats both, and a tunnel fades what is not selected.
BedColours placedBedColours(const RenderContext& context, const Piece& piece, const PieceDef& def,
                            bool selected, bool inTunnel);

// Each channel lowered by the given amount. A channel below it wraps around as an unsigned byte.
Rgb8 loweredBy(Rgb8 colour, int r, int g, int b);

// The second ribbon of a turnout.
Rgb8 branchColour(Rgb8 fill);

// The slips of a double slip: the fill, brighter and bluer. The ghost doesn't stop at 255.
Rgb8 slipColour(Rgb8 fill, bool ghost);

}  // namespace vantrel
