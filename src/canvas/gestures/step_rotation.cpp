#include "canvas/gestures/step_rotation.h"

#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/lock_boxes.h"
#include "canvas/operations/rotating.h"
#include "canvas/operations/selection.h"

namespace vantrel {
namespace {

constexpr double kWheelStepDegrees = 15.0;
constexpr double kFineWheelStepDegrees = 5.0;

void ShowChange(CanvasContext& context) {
  context.host.markDirty();
  context.host.repaint();
}

}  // namespace

bool selectionWheel(CanvasContext& context, const PointerEvent& event) {
  if (!event.mods.ctrl || !hasSelectedObject(context.layout)) return false;
  const double step = event.mods.shift ? kFineWheelStepDegrees : kWheelStepDegrees;
  turnSelectionByWheel(context.layout, event.wheelRotation < 0 ? -step : step);
  ShowChange(context);
  return true;
}

bool altRightPress(CanvasContext& context, const PointerEvent& event) {
  if (!event.mods.alt || !hasSelectedObject(context.layout)) return false;
  if (isLeftGestureActive(context.state)) return true;
  if (commonHelixOfSelection(context.layout) == kNone && !checkSelectionLocks(context, "rotate"))
    return true;
  rotateSelectionStep(context.layout);
  ShowChange(context);
  return true;
}

}  // namespace vantrel
