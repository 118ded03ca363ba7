// Where the program finds and puts its files. All paths are UTF-8, folders without a trailing
// separator. Tests hand in a temporary set, so that nothing of the user's is touched.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct ProgramFolders {
  std::string store;      // the layouts: one file per name
  std::string prefsPath;  // the preference file
  std::string data;       // the user's local data: logs, and work rescued from a full store
  std::string downloads;  // where Import and Export begin...
  std::string home;       // ...when this has no Downloads
};

// The folders of the running program: the store and the preferences lie beside the executable.
ProgramFolders DefaultFolders();

// `wanted`, created with all its parents when it is missing, or the temporary folder when it can't
// be created.
std::string LogFolder(const std::string& wanted);

// Downloads while that exists, otherwise the home folder.
std::string ExchangeFolder(const ProgramFolders& folders);

// What becomes of files whose names begin with a dot.
enum class HiddenFiles { leftOut, listed };

// The names, in the order of the folder, of its regular files that end with `extension` behind a
// name. Empty for a folder that can't be read.
std::vector<std::string> FileNamesIn(const std::string& folder, std::string_view extension,
                                     HiddenFiles hidden = HiddenFiles::leftOut);

}  // namespace vantrel
