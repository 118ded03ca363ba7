// What the user changes through the properties panel. Each function takes its undo step only when
// there is something to change and returns whether it changed the plan; telling the views is the
// caller's business.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "catalog/scenery_def.h"
#include "doc/layout.h"
#include "inspection/selection_page.h"

namespace vantrel {

struct PaintColour {
  std::string_view name;
  std::optional<Rgba> colour;  // nothing: back to the colour that the piece has by itself
};

// In the order of the panel's list.
std::span<const PaintColour> paintColours();

// Paints the selected pieces with row `row` of paintColours() and deselects everything, so that the
// colour isn't hidden by the one of the selection. Nothing happens for a row that doesn't exist or
// without a selected piece.
bool ApplyColour(Layout& layout, int row);

// Sets the height of a piece to the number that the user typed in the plan's unit. A text that is
// no number changes nothing. The undo step is taken even if the number is the one that was there.
bool EnterHeight(Layout& layout, std::int32_t pieceId, std::string_view text);

// Puts what the page shows on a level: the scenery item, the polygon, the helix with the track on
// top of it, or all selected pieces that belong to no helix. Flat track takes the level's height.
// The level becomes the active one. kMixedLevels changes nothing.
bool ChooseLevel(Layout& layout, const SelectionPage& shown, std::int32_t levelId);

// Adds a label with the text, without the white space around it and on one line, at a point of the
// world. Nothing happens for a blank text.
bool AddLabel(Layout& layout, std::string_view text, Vec2 at);

}  // namespace vantrel
