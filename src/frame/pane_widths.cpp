#include "frame/pane_widths.h"

#include <algorithm>

namespace vantrel {

PaneWidths FitPanes(int room, PaneWidths wanted, PaneWidths smallest, int canvas) {
  const int missing = wanted.palette + wanted.properties + canvas - room;
  const int fromPalette = std::max(0, wanted.palette - smallest.palette);
  const int fromProperties = std::max(0, wanted.properties - smallest.properties);
  const int spare = fromPalette + fromProperties;
  if (missing <= 0 || spare == 0) return wanted;
  const int given = std::min(missing, spare);
  const int palettes = given * fromPalette / spare;
  return {wanted.palette - palettes, wanted.properties - (given - palettes)};
}

wxRect OpeningRect(wxSize usual, wxRect freeArea) {
  const wxSize size(std::min(usual.x, freeArea.width), std::min(usual.y, freeArea.height));
  const wxSize beside = freeArea.GetSize() - size;
  return {freeArea.GetPosition() + beside / 2, size};
}

}  // namespace vantrel
