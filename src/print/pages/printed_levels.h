// Which levels a print shows: the plan's own flags, changed while it is printed and put back.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "doc/layout.h"
#include "print/pages/print_options.h"

namespace vantrel {

// Pairs of level id and `visible`, in the plan's order.
using LevelStates = std::vector<std::pair<std::int32_t, bool>>;

LevelStates levelStates(const Layout& layout);

// Makes every level visible, or the active one alone.
void showPrintedLevels(Layout& layout, const PrintOptions& options);

// Puts each state back into its level, found by id: levels may have gone or moved meanwhile. Of
// levels with one id each gets its own state back while they stand where they stood.
void putLevelStatesBack(Layout& layout, const LevelStates& states);

// Grid and baseboard switched off as the options want, for as long as this object lives.
class PrintedGround {
 public:
  PrintedGround(Layout& layout, const PrintOptions& options);
  ~PrintedGround();
  PrintedGround(const PrintedGround&) = delete;
  PrintedGround& operator=(const PrintedGround&) = delete;

 private:
  Layout& layout_;
  const bool gridVisible_;
  const bool baseboardVisible_;
};

}  // namespace vantrel
