// Which presses of the left button end a double click, for every window that asks.
#pragma once

#include <functional>

class wxMouseEvent;
class wxWindow;

namespace vantrel {

using PressHandler = std::function<void(wxMouseEvent&)>;

// Hands each left press on the window to `press`, or to `doubleClick` when it is the second of two.
// The event may be of either type with both: the toolkit counts otherwise. To be called after all
// other handlers of presses have been bound: those of other buttons are counted too, and go on.
void BindLeftPresses(wxWindow& window, PressHandler press, PressHandler doubleClick);

}  // namespace vantrel
