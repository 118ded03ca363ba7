// Drags pieces from the palette over a canvas without a window.
#pragma once

#include <cstdint>
#include <vector>

#include "canvas/gestures/palette_drag.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {

// A 24188 is a straight of 188.3 mm. Most tests lay one at the origin and drag in a view of ten
// pixels to the millimetre: its far end shows at pixel (1883, 0).
class PaletteDragTest : public CanvasTest {
 protected:
  PaletteDragTest() { viewTenPixelsPerMm(); }

  const PaletteDrag& drag() const { return state.paletteDrag; }
  void hide(std::int32_t levelId) {
    Level level;
    level.id = levelId;
    level.visible = false;
    layout.levels.push_back(level);
  }
  std::vector<std::int32_t> selected() const {
    std::vector<std::int32_t> ids;
    for (const Piece& piece : layout.pieces)
      if (piece.sel) ids.push_back(piece.id);
    return ids;
  }
};

}  // namespace vantrel
