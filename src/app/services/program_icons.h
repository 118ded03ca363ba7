// The program's icon in all its sizes, for the corner of its windows and the desktop's lists of
// them.
#pragma once

#include <wx/iconbndl.h>

namespace vantrel {

// For every window that has no parent to take them from, or that the desktop lists by itself:
// dialogs take those of their parent.
wxIconBundle ProgramIcons();

}  // namespace vantrel
