// The tally on the properties panel: what lies on the table, bridges' deck track and helix curves
// included, and what the panel recommends with it.
#pragma once

#include <string>
#include <vector>

#include "doc/layout.h"
#include "shopping/piece_counts.h"

namespace vantrel {

PieceCounts CountForTally(const Layout& layout);

// One line of the list. Texts are UTF-8 as far as the plan's part numbers are.
struct TallyRow {
  std::string text;
  std::string count;     // decimal; empty for a heading
  bool heading = false;  // bold and coloured

  friend bool operator==(const TallyRow&, const TallyRow&) = default;
};

std::vector<TallyRow> TallyRows(const PieceCounts& counts);

}  // namespace vantrel
