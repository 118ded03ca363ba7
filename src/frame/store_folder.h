// The store: layouts are named files in one folder. Paths and names are UTF-8; nothing here shows a
// message or throws.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace vantrel {

// The names with extension of the layout files in a folder: ".vtl" in ascending order, then the
// older ".xml". Empty for a folder that doesn't exist. Sub-folders don't count; a name that begins
// with a dot is a name like any other.
std::vector<std::string> LayoutFileNames(const std::string& folder);

// The same as full paths.
std::vector<std::string> LayoutFiles(const std::string& folder);

// The file's name without folder and extension.
std::string BaseName(const std::string& path);

// The base names of files in plain ascending order; a name that two files share stands twice.
std::vector<std::string> SortedBaseNames(std::span<const std::string> files);

// The first file with this base name, letter by letter, or an empty text.
std::string FileWithBaseName(std::span<const std::string> files, const std::string& name);

// `folder`, the separator and `name`, nothing made safe.
std::string PathIn(const std::string& folder, const std::string& name);
// The file that a layout of this name has in the store.
std::string LayoutPath(const std::string& store, const std::string& name);

// The name of the file that an exported layout gets. The extension that the user typed is dropped:
// ".vtl", ".xml" and what else can't be part of a name. The layout's own name, taken as it was
// offered, keeps its dots.
std::string ExportFileName(const std::string& typed, const std::string& offered);

bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);
// True also for two spellings of one existing file.
bool IsSameFile(const std::string& a, const std::string& b);

// False when nothing was removed.
bool RemoveFile(const std::string& path);

// Overwrites `to`. Copying a file onto itself leaves it as it is and is a success. `why` gets the
// reason for a failure, where one is known.
bool CopyLayoutFile(const std::string& from, const std::string& to, std::string* why = nullptr);

}  // namespace vantrel
