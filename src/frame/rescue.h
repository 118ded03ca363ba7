// What happens when an exception leaves an event handler: the program ends, but not before unsaved
// work was written and the user was told.
#pragma once

#include <exception>
#include <string>

#include "app/services/program_folders.h"
#include "doc/layout.h"

namespace vantrel {

class MainFrame;

// One line that says what went wrong: file, line number and problem of a malformed file, the text
// of any other exception.
std::string ProblemLine(const std::exception_ptr& problem);

// Writes the layout as "<name> (rescued).vtl" into the store, or into the data folder when the
// store can't be written; never over an older rescue. Returns the path, or an empty text when
// neither could be written. Does not throw.
std::string RescueLayout(const Layout& layout, const std::string& name,
                         const ProgramFolders& folders) noexcept;

// Logs the problem, rescues the frame's unsaved work and shows the one message box. `frame` may be
// null. The caller ends the program.
void ReportFatalProblem(const std::exception_ptr& problem, const MainFrame* frame);

}  // namespace vantrel
