#include "canvas/gestures/autofill_gap.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "canvas/gestures/status_line.h"
#include "canvas/operations/autofill.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

void Refuse(CanvasContext& context, const AutofillPlan& plan) {
  context.host.inform(plan.notice->title, plan.notice->text, BoxIcon::information);
  if (!plan.deselects) return;
  ClearSelection(context.layout);
  context.host.selectionChanged();
  context.host.repaint();
}

// The place of the chosen solution; beyond them all when the user cancels.
std::size_t Choose(CanvasContext& context, const AutofillPlan& plan) {
  std::vector<std::string> rows;
  for (const FillSolution& fill : plan.solutions) rows.push_back(autofillRowText(fill));
  const int row = context.host.chooseAutofill(plan.gap, rows);
  return row < 0 ? rows.size() : static_cast<std::size_t>(row);
}

}  // namespace

void autofillGap(CanvasContext& context) {
  const std::optional<AutofillPlan> plan = planAutofill(context.layout);
  if (!plan) return;
  if (plan->notice) {
    Refuse(context, *plan);
    return;
  }
  if (!placeAutofill(context.layout, *plan, Choose(context, *plan))) return;
  context.host.markDirty();
  showPieceCount(context);
  context.host.refreshViews();
}

}  // namespace vantrel
