// The editor's state machine: the order in which an event is offered to the gestures. The lists
// themselves are the page event_order.cpp.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// Each offers the event to its list; true when a gesture took it.
bool onLeftPress(CanvasContext& context, const PointerEvent& event);
// The second of two quick presses.
bool onDoubleClick(CanvasContext& context, const PointerEvent& event);
bool onMotion(CanvasContext& context, const PointerEvent& event);
bool onLeftRelease(CanvasContext& context, const PointerEvent& event);
bool onMiddlePress(CanvasContext& context, const PointerEvent& event);
bool onMiddleRelease(CanvasContext& context, const PointerEvent& event);
bool onRightPress(CanvasContext& context, const PointerEvent& event);
bool onRightRelease(CanvasContext& context, const PointerEvent& event);
bool onWheel(CanvasContext& context, const PointerEvent& event);
bool onKey(CanvasContext& context, const KeyEvent& event);
// A typed character; the event's code is the character.
bool onCharacter(CanvasContext& context, const KeyEvent& event);

// Ends what is under way between a press and its release as a release would, and gives the mouse
// back. What hangs at the pointer goes on following it, and what was moved stays where it is.
void endGestures(CanvasContext& context);

// Another plan comes: endGestures, and nothing hangs at the pointer any more, no draft stays on
// show, and no tool that clicks points is armed.
void dropDrafts(CanvasContext& context);

// The mouse was taken away by another window or a dialog: endGestures.
void onCaptureLost(CanvasContext& context);

// The time that startFlashTimer asked for has passed.
void onFlashTimer(CanvasContext& context);

// One whole frame of the canvas, bottom to top: the plan and its rulers, then what gestures draw
// over them.
void paintStill(const CanvasContext& context, wxDC& dc);
void paintMoving(const CanvasContext& context, wxDC& dc);
void paintCanvas(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
