// The files of saved library blocks: one folder for each track system. Paths and names are UTF-8;
// nothing here shows a message or throws.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// The folder's name for an entry of the system chooser.
std::string libraryFolderName(std::string_view entry);

// The full paths of the ".vtl" files in a folder, in the order that the directory gives.
// Sub-folders and hidden files don't count. Empty for a folder that doesn't exist.
std::vector<std::string> blockFiles(const std::string& folder);

// `folder`, the separator and `name`, nothing made safe.
std::string pathIn(const std::string& folder, const std::string& name);

// The file's name without folder and extension.
std::string blockTitle(const std::string& path);

// False when nothing was removed.
bool removeBlockFile(const std::string& path);

}  // namespace vantrel
