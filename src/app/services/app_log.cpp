#include "app/services/app_log.h"

#include <wx/datetime.h>
#include <wx/file.h>
#include <wx/filename.h>
#include <wx/log.h>

#include <memory>

#include "app/services/program_folders.h"

namespace vantrel {
namespace {

constexpr int kPermissions = 438;  // read and write for everybody, under the user's mask

std::unique_ptr<wxFile>& Handle() {
  static std::unique_ptr<wxFile> handle;
  return handle;
}

}  // namespace

void OpenAppLog(const std::string& folder) {
  const wxLogNull quiet;  // a log that can't be opened is no reason for a message
  Handle() = std::make_unique<wxFile>();
  const wxFileName path(wxString::FromUTF8(LogFolder(folder)), "vantrel.log");
  Handle()->Open(path.GetFullPath(), wxFile::write, kPermissions);
}

void AppLog(std::string_view text) {
  if (!Handle() || !Handle()->IsOpened()) return;
  const wxLogNull quiet;
  const std::string line =
      wxDateTime::UNow().Format("%H:%M:%S.%l ").utf8_string() + std::string(text) + "\n";
  Handle()->Write(line.data(), line.size());
  Handle()->Flush();
}

void CloseAppLog() {
  Handle().reset();
}

}  // namespace vantrel
