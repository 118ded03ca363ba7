// '+', '-' and the brackets as shortcuts of the menu. The toolkit offers a key without Ctrl or Alt
// to the window that has the focus first, and those that draw themselves, like the palette's icon
// grid, take every character; those of the numeric pad never get to the menu at all.
#pragma once

class wxKeyEvent;
class wxWindow;

namespace vantrel {

// The zoom or turning command that a key typed into the main window stands for, or wxID_NONE: for
// any other key, in a text field, which keeps its characters, and on the canvas, which sees to its
// own.
int CharacterCommandFor(const wxKeyEvent& event, const wxWindow* focus, const wxWindow& canvas);

}  // namespace vantrel
