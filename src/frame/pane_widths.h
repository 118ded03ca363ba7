// How the main window shares its width between the palette, the plan and the properties, and its
// own size with the screen. Plain arithmetic in pixels.
#pragma once

#include <wx/gdicmn.h>

namespace vantrel {

struct PaneWidths {
  int palette = 0;
  int properties = 0;

  friend bool operator==(const PaneWidths&, const PaneWidths&) = default;
};

// The side panes have the widths that are wanted, unless less than `canvas` of the `room` would be
// left for the plan: they give way to it together, each by its share of what it has above its
// smallest width.
PaneWidths FitPanes(int room, PaneWidths wanted, PaneWidths smallest, int canvas);

// Where a window of its usual size comes up: in the middle of the screen's free area, and on a
// screen too small for it as large as that allows, its title bar in view.
wxRect OpeningRect(wxSize usual, wxRect freeArea);

}  // namespace vantrel
