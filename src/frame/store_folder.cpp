#include "frame/store_folder.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "app/services/program_folders.h"
#include "app/services/utf8_path.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> SortedNames(const std::string& folder, std::string_view extension) {
  std::vector<std::string> names = FileNamesIn(folder, extension);
  std::ranges::sort(names);
  return names;
}

}  // namespace

std::vector<std::string> LayoutFileNames(const std::string& folder) {
  std::vector<std::string> names = SortedNames(folder, ".vtl");
  const std::vector<std::string> older = SortedNames(folder, ".xml");
  names.insert(names.end(), older.begin(), older.end());
  return names;
}

std::vector<std::string> LayoutFiles(const std::string& folder) {
  std::vector<std::string> files = LayoutFileNames(folder);
  for (std::string& file : files) file = PathIn(folder, file);
  return files;
}

std::string BaseName(const std::string& path) {
  return PathUtf8(Utf8Path(path).stem());
}

std::vector<std::string> SortedBaseNames(std::span<const std::string> files) {
  std::vector<std::string> names;
  for (const std::string& file : files) names.push_back(BaseName(file));
  std::ranges::sort(names);
  return names;
}

std::string FileWithBaseName(std::span<const std::string> files, const std::string& name) {
  for (const std::string& file : files)
    if (BaseName(file) == name) return file;
  return {};
}

std::string PathIn(const std::string& folder, const std::string& name) {
  return folder + static_cast<char>(fs::path::preferred_separator) + name;
}

std::string LayoutPath(const std::string& store, const std::string& name) {
  return PathIn(store, name) + ".vtl";
}

bool FileExists(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(Utf8Path(path), error);
  return fs::exists(status) && !fs::is_directory(status);
}

bool FolderExists(const std::string& path) {
  std::error_code error;
  return fs::is_directory(Utf8Path(path), error);
}

bool IsSameFile(const std::string& a, const std::string& b) {
  std::error_code error;
  return a == b || fs::equivalent(Utf8Path(a), Utf8Path(b), error);
}

bool RemoveFile(const std::string& path) {
  std::error_code error;
  return fs::remove(Utf8Path(path), error);
}

bool CopyLayoutFile(const std::string& from, const std::string& to) {
  if (IsSameFile(from, to)) return FileExists(to);
  std::error_code error;
  fs::copy_file(Utf8Path(from), Utf8Path(to), fs::copy_options::overwrite_existing, error);
  return !error;
}

}  // namespace vantrel
