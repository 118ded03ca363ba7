// The start of the program, from the first log line to the shown main window.
#pragma once

#include <functional>

#include "app/services/program_folders.h"

namespace vantrel {

class MainFrame;

using MakeMainFrame = std::function<MainFrame*(const ProgramFolders&)>;

// Opens the log, builds the catalog, makes the frame and shows it, and greets the user. Returns
// null, with the reason in the log, when the frame's construction failed. `make` is for tests.
MainFrame* StartUp(const ProgramFolders& folders, const MakeMainFrame& make = {});

}  // namespace vantrel
