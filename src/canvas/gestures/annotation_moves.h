// Moving what isn't track by the left button: measurements, shapes, deck outlines, labels.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// Without a modifier key: a measurement, or a shape, becomes the only selection and follows the
// pointer; the press takes the undo step.
bool pressMeasurement(CanvasContext& context, const PointerEvent& event);
bool pressShape(CanvasContext& context, const PointerEvent& event);

// Shift without Ctrl: a deck's outline follows the pointer.
bool pressDeckOutline(CanvasContext& context, const PointerEvent& event);

// A label is selected beside whatever track and scenery is, and follows the pointer without an undo
// step. A press elsewhere deselects all labels and goes on.
bool pressLabel(CanvasContext& context, const PointerEvent& event);

bool measureMoveMotion(CanvasContext& context, const PointerEvent& event);
bool shapeMoveMotion(CanvasContext& context, const PointerEvent& event);
bool deckDragMotion(CanvasContext& context, const PointerEvent& event);
bool labelDragMotion(CanvasContext& context, const PointerEvent& event);

bool endMeasureMove(CanvasContext& context, const PointerEvent& event);
bool endShapeMove(CanvasContext& context, const PointerEvent& event);
bool endDeckDrag(CanvasContext& context, const PointerEvent& event);
bool endLabelDrag(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
