// Closing the straight gap between two selected pieces with a row of straights from the catalog.
// Nothing here talks to the user: the gesture shows what a plan says.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "canvas/operations/fill_search.h"
#include "canvas/operations/locks.h"
#include "doc/layout.h"

namespace vantrel {

// What can be done about the gap: either `notice` says why nothing can, or there is at least one
// solution.
struct AutofillPlan {
  std::optional<Notice> notice;
  bool deselects = false;  // the notice ends with nothing selected
  double gap = 0.0;        // mm
  Vec2 endA;               // mm, the two ends of the gap, of the earlier and the later piece
  Vec2 endB;
  std::vector<FillSolution> solutions;  // ranked, at most 12
};

// Looks at the two selected pieces. Nothing when there aren't exactly two or a part is unknown.
std::optional<AutofillPlan> planAutofill(const Layout& layout);

// "24188 + 24094  (282.5 mm)".
std::string autofillRowText(const FillSolution& fill);

// Takes a snapshot and lays a solution of the plan from the earlier selected piece on, flat and on
// that piece's level, joined at every end. The other piece stays where it is, up to the search's
// tolerance away. False, with only the snapshot taken, when the ends aren't where the plan found
// them, and with nothing done at all for a solution that doesn't exist.
bool placeAutofill(Layout& layout, const AutofillPlan& plan, std::size_t solution);

}  // namespace vantrel
