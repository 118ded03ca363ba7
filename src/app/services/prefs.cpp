#include "app/services/prefs.h"

#include <filesystem>
#include <fstream>
#include <string_view>

#include "app/services/utf8_path.h"

namespace vantrel {
namespace {

constexpr std::string_view kPlayfulKey = "playful=";
constexpr std::string_view kAskedKey = "asked=";

// Only the one character behind the key counts.
void TakeFlag(std::string_view line, std::string_view key, bool& flag) {
  if (!line.starts_with(key)) return;
  flag = line.substr(key.size(), 1) == "1";
}

}  // namespace

AppPrefs& Prefs() {
  static AppPrefs prefs;
  return prefs;
}

void LoadPrefs(const std::string& path, AppPrefs& flags) {
  std::ifstream file(Utf8Path(path));
  std::string line;
  while (std::getline(file, line)) {
    TakeFlag(line, kPlayfulKey, flags.playful);
    TakeFlag(line, kAskedKey, flags.asked);
  }
}

void SavePrefs(const std::string& path, const AppPrefs& flags) {
  std::ofstream file(Utf8Path(path), std::ios::trunc);
  file << kPlayfulKey << (flags.playful ? '1' : '0') << '\n';
  file << kAskedKey << (flags.asked ? '1' : '0') << '\n';
}

}  // namespace vantrel
