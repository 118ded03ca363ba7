// The size in which a window comes up.
#pragma once

class wxTopLevelWindow;

namespace vantrel {

// Tells the toolkit below the size of a window that hasn't been shown yet. While it waits for the
// window manager, GTK would otherwise give the window and all in it a first size of next to
// nothing, which makes toolbars complain on standard error.
void TellOpeningSize(wxTopLevelWindow& window);

}  // namespace vantrel
