// Turning the selection in steps: Ctrl with the wheel, the bracket keys, Alt with the right button.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// A step of the wheel and of the brackets, and of the brackets with Shift. World y grows downward,
// so a positive turn is clockwise.
inline constexpr double kBracketStepDegrees = 15.0;
inline constexpr double kFineBracketStepDegrees = 1.0;

// Turns what is selected as a step of the wheel with Ctrl does, by any angle. Nothing happens
// without a selection, while a gesture of the left button is under way, or while something hangs at
// the pointer: what the user looks at then is not the selection. When nothing of the selection can
// be turned, a box says so; where something can, the rest just stays, as it does with the wheel.
void turnSelection(CanvasContext& context, double degrees);

// '[' and ']', typed: a step to the left and to the right. With Shift, where that makes braces of
// them, a fine step. The characters count and not the keys: where AltGr makes them, it does. Shift
// itself doesn't count, for many keyboards need it for the bracket: the Spanish one of Latin
// America, the Dutch one, the Bulgarian one.
bool turnByCharacter(CanvasContext& context, const KeyEvent& event);

// 15 degrees a step, 5 with Shift, about the middle of the selection's box. Without a selection the
// wheel is left to zooming.
bool selectionWheel(CanvasContext& context, const PointerEvent& event);

// 30 degrees about the first thing selected, unless a lock refuses.
bool altRightPress(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
