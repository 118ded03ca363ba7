// The application log: one file per run, a time stamp before each line.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// Starts vantrel.log anew in `folder` (or the temporary folder). A failure is not reported: AppLog
// then writes nothing.
void OpenAppLog(const std::string& folder);

// Appends the local time, the text (UTF-8) and a line feed, and flushes. Nothing without an open
// log.
void AppLog(std::string_view text);

void CloseAppLog();

}  // namespace vantrel
