#include "canvas/gestures/step_rotation.h"

#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/lock_boxes.h"
#include "canvas/operations/rotating.h"
#include "canvas/operations/selection.h"

namespace vantrel {
namespace {

constexpr double kFineWheelStepDegrees = 5.0;

void ShowChange(CanvasContext& context) {
  context.host.markDirty();
  context.host.repaint();
}

bool HangsAtPointer(const CanvasState& state) {
  return state.paletteDrag.active || state.sceneryDrag.active || state.helixPlacement.active;
}

// By how much a character turns; 0 for all others.
double TurnOf(int character) {
  switch (character) {
    case '[':
      return -kBracketStepDegrees;
    case ']':
      return kBracketStepDegrees;
    case '{':
      return -kFineBracketStepDegrees;
    case '}':
      return kFineBracketStepDegrees;
    default:
      return 0.0;
  }
}

// Some platforms tell AltGr as Ctrl and Alt together: that makes a character, one of them a chord.
bool IsChord(const Modifiers& mods) {
  return mods.ctrl != mods.alt;
}

}  // namespace

void turnSelection(CanvasContext& context, double degrees) {
  if (!hasSelectedObject(context.layout)) return;
  if (isLeftGestureActive(context.state) || HangsAtPointer(context.state)) return;
  turnSelectionByWheel(context.layout, degrees);
  ShowChange(context);
}

bool turnByCharacter(CanvasContext& context, const KeyEvent& event) {
  const double degrees = TurnOf(event.code);
  if (degrees == 0.0 || IsChord(event.mods)) return false;
  turnSelection(context, degrees);
  return true;
}

bool selectionWheel(CanvasContext& context, const PointerEvent& event) {
  if (!event.mods.ctrl || !hasSelectedObject(context.layout)) return false;
  const double step = event.mods.shift ? kFineWheelStepDegrees : kBracketStepDegrees;
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
