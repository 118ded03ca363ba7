// A trace of the main window's construction. It opens and closes its file for every line, so that
// the trace is complete up to the very step at which a start dies.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// The next line begins mainframe.log anew in `folder` (or the temporary folder).
void StartFrameLog(const std::string& folder);

// Appends the text and a carriage return and line feed. A failure is ignored.
void FrameLog(std::string_view text);

}  // namespace vantrel
