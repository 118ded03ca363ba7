// The two settings that are kept between runs.
#pragma once

#include <string>

namespace vantrel {

struct AppPrefs {
  bool playful = true;  // pictures in the splash, the help and the Buy Track panel
  bool asked = false;   // the experience question has been answered
};

// The flags of this run.
AppPrefs& Prefs();

// Reads the file into `flags`. A flag without a line, or a missing file, changes nothing.
void LoadPrefs(const std::string& path, AppPrefs& flags);

// Rewrites the file. When it can't be written the flags stay in memory only.
void SavePrefs(const std::string& path, const AppPrefs& flags);

}  // namespace vantrel
