#include "canvas/gestures/step_rotation.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

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

template <typename Record>
void AddKind(std::vector<std::string>& kinds, const std::vector<Record>& records,
             const char* kind) {
  if (std::ranges::any_of(records, &Record::sel)) kinds.emplace_back(kind);
}

// What is selected of the things that have no direction, such as "labels, measuring tapes and
// polygons".
std::string SelectedAnnotations(const Layout& layout) {
  std::vector<std::string> kinds;
  AddKind(kinds, layout.labels, "labels");
  AddKind(kinds, layout.measurements, "measuring tapes");
  AddKind(kinds, layout.shapes, "polygons");
  std::string text;
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (i > 0) text += i + 1 == kinds.size() ? " and " : ", ";
    text += kinds[i];
  }
  return text;
}

// A pan with the middle button may be under way when a key asks: the box must have the mouse.
void TellNothingTurns(CanvasContext& context) {
  context.host.releaseMouse();
  context.host.inform(
      "Turn Selection",
      "Only " + SelectedAnnotations(context.layout) + " are selected, and they cannot be turned.",
      BoxIcon::information);
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
  if (!hasSelection(context.layout)) return;
  if (isLeftGestureActive(context.state) || HangsAtPointer(context.state)) return;
  if (!hasSelectedObject(context.layout)) {
    TellNothingTurns(context);
    return;
  }
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
