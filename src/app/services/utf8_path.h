// Paths of the standard library from UTF-8 texts and back, whatever the platform's own encoding.
#pragma once

#include <filesystem>
#include <string>

namespace vantrel {

inline std::filesystem::path Utf8Path(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

inline std::string PathUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace vantrel
