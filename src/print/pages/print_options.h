// What the user has chosen for printing. The main frame keeps it while the program runs; no file
// stores it.
#pragma once

#include <cstdint>

namespace vantrel {

// The values of PrintOptions::mode. Any other value counts as kFitToPage.
enum PrintMode : std::int32_t { kFitToPage = 0, kActualScale = 1, kCustomPercentage = 2 };

struct PrintOptions {
  std::int32_t mode = kFitToPage;
  std::int32_t scaleN = 10;    // the N of 1 : N
  std::int32_t percent = 100;  // of the size that fits the page
  std::int32_t allLevels = 0;  // 0 prints the active level only
  std::int32_t grayscale = 0;  // 0 prints in colour
  bool includeGrid = false;
  bool includeBaseboard = true;

  friend bool operator==(const PrintOptions&, const PrintOptions&) = default;
};

}  // namespace vantrel
