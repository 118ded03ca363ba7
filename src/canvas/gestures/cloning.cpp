#include "canvas/gestures/cloning.h"

#include <optional>

#include "canvas/gestures/status_line.h"
#include "canvas/gestures/view_navigation.h"
#include "canvas/operations/extending.h"
#include "canvas/operations/hit_test.h"

namespace vantrel {

bool cloneFromPiece(CanvasContext& context, const PointerEvent& event) {
  if (event.mods.alt) return false;
  const ViewTransform& view = context.state.view;
  const std::int32_t id = hitTestPiece(context.layout, view, event.at);
  const CloneResult result = id == kNone ? CloneResult{} : clonePiece(context.layout, id);
  if (result.outcome != CloneOutcome::cloned) return result.outcome == CloneOutcome::noFreeEnd;
  context.state.swallowNextClick = true;
  context.host.selectionChanged();
  context.host.markDirty();
  showPieceCount(context);
  if (const std::optional<Vec2> end = farEnd(context.layout, result.clone))
    bringIntoView(context, *end);
  context.host.repaint();
  return true;
}

}  // namespace vantrel
