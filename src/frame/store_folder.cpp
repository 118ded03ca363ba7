#include "frame/store_folder.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "app/services/program_folders.h"
#include "app/services/utf8_path.h"
#include "io/file_problem.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".vtl";
constexpr std::string_view kOlderExtension = ".xml";

bool IsLower(char c) {
  return c >= 'a' && c <= 'z';
}

bool IsUpper(char c) {
  return c >= 'A' && c <= 'Z';
}

// Two to four letters of one case. "Nr. 491", "v1.5" and "Bhf.Nord" are names to their ends.
bool LooksLikeExtension(std::string_view letters) {
  if (letters.size() < 2 || letters.size() > 4) return false;
  return std::ranges::all_of(letters, IsLower) || std::ranges::all_of(letters, IsUpper);
}

std::vector<std::string> SortedNames(const std::string& folder, std::string_view extension) {
  std::vector<std::string> names = FileNamesIn(folder, extension, HiddenFiles::listed);
  std::ranges::sort(names);
  return names;
}

}  // namespace

std::vector<std::string> LayoutFileNames(const std::string& folder) {
  std::vector<std::string> names = SortedNames(folder, kExtension);
  const std::vector<std::string> older = SortedNames(folder, kOlderExtension);
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
  return PathIn(store, name).append(kExtension);
}

std::string ExportFileName(const std::string& typed, const std::string& offered) {
  std::string name = typed;
  const std::size_t dot = name.rfind('.');
  const bool cut = typed != offered && dot != std::string::npos && dot > 0 &&
                   LooksLikeExtension(std::string_view(typed).substr(dot + 1));
  if (cut) name.resize(dot);
  return name.append(kExtension);
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

bool CopyLayoutFile(const std::string& from, const std::string& to, std::string* why) {
  if (IsSameFile(from, to)) return FileExists(to);
  std::string problem = WhyNoPlainFile(to);
  if (problem.empty()) {
    std::error_code error;
    fs::copy_file(Utf8Path(from), Utf8Path(to), fs::copy_options::overwrite_existing, error);
    problem = WhyNotWritten(error);
  }
  if (why != nullptr) *why = problem;
  return problem.empty();
}

}  // namespace vantrel
