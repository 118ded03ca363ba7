// The shortcuts of the main window's menus, pressed in another window of the program that has no
// menus of its own.
#pragma once

class wxFrame;
class wxWindow;

namespace vantrel {

// From now on `window` and what is in it run what the menus of `frame` let one choose. Keys that
// the window's own parts take stay theirs.
void ShareMenuShortcuts(wxFrame& frame, wxWindow& window);

}  // namespace vantrel
