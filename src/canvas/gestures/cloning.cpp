#include "canvas/gestures/cloning.h"

#include "canvas/gestures/status_line.h"
#include "canvas/operations/extending.h"
#include "canvas/operations/hit_test.h"

namespace vantrel {

bool cloneFromPiece(CanvasContext& context, const PointerEvent& event) {
  if (event.mods.alt) return false;
  const ViewTransform& view = context.state.view;
  const std::int32_t id = hitTestPiece(context.layout, view, event.at);
  const CloneOutcome outcome =
      id == kNone ? CloneOutcome::notApplicable : clonePiece(context.layout, id).outcome;
  if (outcome != CloneOutcome::cloned) return outcome == CloneOutcome::noFreeEnd;
  context.state.swallowNextClick = true;
  context.host.selectionChanged();
  context.host.markDirty();
  showPieceCount(context);
  context.host.repaint();
  return true;
}

}  // namespace vantrel
