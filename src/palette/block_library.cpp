#include "palette/block_library.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "app/services/program_folders.h"
#include "app/services/utf8_path.h"
#include "palette/palette_sections.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBlockExtension = ".vtl";

}  // namespace

std::string libraryFolderName(std::string_view entry) {
  if (entry == "Minitrix") return "Minitrix-Track";
  for (const PaletteSystem& system : paletteSystems())
    if (system.entry == entry) return std::string(system.libraryFolder);
  std::string name(entry);
  std::ranges::replace(name, ' ', '_');
  return name;
}

std::vector<std::string> blockFiles(const std::string& folder) {
  std::vector<std::string> files;
  for (const std::string& name : FileNamesIn(folder, kBlockExtension))
    files.push_back(pathIn(folder, name));
  return files;
}

std::string pathIn(const std::string& folder, const std::string& name) {
  return folder + static_cast<char>(fs::path::preferred_separator) + name;
}

std::string blockTitle(const std::string& path) {
  return PathUtf8(Utf8Path(path).stem());
}

bool removeBlockFile(const std::string& path) {
  std::error_code error;
  return fs::remove(Utf8Path(path), error);
}

}  // namespace vantrel
