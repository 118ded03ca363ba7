#include "app/services/program_folders.h"

#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <filesystem>
#include <system_error>

#include "app/services/utf8_path.h"

namespace vantrel {
namespace {

std::string Utf8(const wxString& text) {
  return text.utf8_string();
}

bool IsFolder(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_directory(Utf8Path(path), error);
}

}  // namespace

ProgramFolders DefaultFolders() {
  const wxStandardPaths& paths = wxStandardPaths::Get();
  ProgramFolders folders;
  folders.store = Utf8(wxFileName(paths.GetExecutablePath()).GetPath());
  folders.prefsPath = folders.store + Utf8(wxString(wxFILE_SEP_PATH)) + "prefs.cfg";
  folders.data = Utf8(paths.GetUserLocalDataDir());
  folders.downloads = Utf8(paths.GetUserDir(wxStandardPaths::Dir_Downloads));
  folders.home = Utf8(wxGetHomeDir());
  return folders;
}

std::string LogFolder(const std::string& wanted) {
  // The default permissions of a new folder are octal 777 under the user's mask.
  std::error_code error;
  std::filesystem::create_directories(Utf8Path(wanted), error);
  if (IsFolder(wanted)) return wanted;
  return Utf8(wxStandardPaths::Get().GetTempDir());
}

std::string ExchangeFolder(const ProgramFolders& folders) {
  return IsFolder(folders.downloads) ? folders.downloads : folders.home;
}

std::vector<std::string> FileNamesIn(const std::string& folder, std::string_view extension,
                                     HiddenFiles hidden) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(Utf8Path(folder), error);
  const std::filesystem::directory_iterator end;
  while (!error && entry != end) {
    const std::string name = PathUtf8(entry->path().filename());
    std::error_code unreadable;
    const bool named = name.ends_with(extension) && name.size() > extension.size();
    const bool shown = hidden == HiddenFiles::listed || !name.starts_with('.');
    if (named && shown && entry->is_regular_file(unreadable)) names.push_back(name);
    entry.increment(error);
  }
  return names;
}

}  // namespace vantrel
