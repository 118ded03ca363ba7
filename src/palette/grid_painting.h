// How the rows of the palette's icon grid look.
#pragma once

#include <span>

#include "palette/grid_layout.h"

class wxDC;

namespace vantrel {

struct GridPaintState {
  int selectedRow = -1;
  int hoverRow = -1;
  int bandTop = 0;     // first visible y of the scrolled area
  int bandBottom = 0;  // last visible y
};

// Fills the background and paints the rows that reach into the visible band. The origin of `dc` is
// that of the scrolled area.
void paintGrid(wxDC& dc, const GridLayout& layout, std::span<const GridRow> rows,
               const GridPaintState& state);

}  // namespace vantrel
