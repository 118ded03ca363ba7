// The plans that are installed beside the program.
#pragma once

#include <algorithm>
#include <filesystem>
#include <vector>

namespace vantrel {

// In the order of their names.
inline std::vector<std::filesystem::path> SampleFiles() {
  namespace fs = std::filesystem;
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(fs::path(VANTREL_SOURCE_DIR) / "samples"))
    if (entry.path().extension() == ".vtl") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace vantrel
