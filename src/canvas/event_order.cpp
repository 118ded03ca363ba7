#include "canvas/event_order.h"

#include <span>

#include "canvas/gestures/alt_rotation.h"
#include "canvas/gestures/annotation_dialogs.h"
#include "canvas/gestures/annotation_moves.h"
#include "canvas/gestures/cloning.h"
#include "canvas/gestures/context_menu.h"
#include "canvas/gestures/deleting.h"
#include "canvas/gestures/draft_text.h"
#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/helix_placement.h"
#include "canvas/gestures/measure_draft.h"
#include "canvas/gestures/palette_drag.h"
#include "canvas/gestures/panning.h"
#include "canvas/gestures/polygon_draft.h"
#include "canvas/gestures/rubber_band.h"
#include "canvas/gestures/scale_handles.h"
#include "canvas/gestures/scenery_drag.h"
#include "canvas/gestures/selecting.h"
#include "canvas/gestures/selection_drag.h"
#include "canvas/gestures/status_line.h"
#include "canvas/gestures/step_rotation.h"
#include "canvas/gestures/wheel_zoom.h"
#include "render2d/contents_drawing.h"
#include "render2d/rulers.h"

namespace vantrel {
namespace {

bool takeFocus(CanvasContext& context, const PointerEvent&) {
  context.host.takeFocus();
  return false;
}

void drawContents(const CanvasContext& context, wxDC& dc) {
  DrawLayoutContents(context.state.render, dc, context.layout, context.state.view,
                     context.host.clientSize());
}

void drawRulerBands(const CanvasContext& context, wxDC& dc) {
  drawRulers(dc, context.state.view, context.layout.units, context.host.clientSize());
}

using PointerStep = bool (*)(CanvasContext&, const PointerEvent&);
using KeyStep = bool (*)(CanvasContext&, const KeyEvent&);
using PaintStep = void (*)(const CanvasContext&, wxDC&);

bool endMissedGesture(CanvasContext& context, const PointerEvent& event);
bool endGestureBeforePress(CanvasContext& context, const PointerEvent& event);
bool endTheRest(CanvasContext& context, const PointerEvent& event);
bool endBandOrDrag(CanvasContext& context, const PointerEvent& event);

// In each list the first step that takes the event ends it.

// clang-format off
constexpr PointerStep kLeftPress[] = {
    takeFocus,              // takes nothing
    endGestureBeforePress,  // takes nothing
    measurePress,
    polygonPress,
    pressMeasurement,
    pressShape,
    pressScaleHandle,
    pressAltRotate,
    swallowPress,
    dropDraggedPiece,
    dropDraggedScenery,
    dropHelix,
    pressLabel,
    pressPiece,
    pressDeckOutline,
    pressScenery,
    pressEmptyCanvas,
};

constexpr PointerStep kMotion[] = {
    showPointerPosition,  // takes nothing
    endMissedGesture,     // takes nothing
    measureMotion,        // these two end the list for every motion while their tool is armed
    polygonMotion,
    shapeMoveMotion,
    measureMoveMotion,
    hoverScaleHandle,  // takes nothing
    sceneryResizeMotion,
    deckDragMotion,
    buttonPanMotion,
    spacePanMotion,
    labelDragMotion,
    selectionPendingMotion,
    altRotateMotion,
    // Without a button: what hangs at the pointer follows it.
    paletteDragMotion,
    sceneryDragMotion,
    helixPlacementMotion,
    selectionDragMotion,
    rubberBandMotion,
};

constexpr PointerStep kLeftRelease[] = {
    endShapeMove,
    endMeasureMove,
    endDeckDrag,
    endSceneryResize,
    endAltRotate,
    endTheRest,
};

// These all end with one release: a pan may run beside any of the others.
constexpr PointerStep kTheRest[] = {
    endSelectionPending,
    endLabelDrag,
    endButtonPan,
    endBandOrDrag,
};

// While a tool is armed, the second of two quick presses is a press like the first.
constexpr PointerStep kDoubleClick[] = {
    endGestureBeforePress,  // takes nothing
    measurePress,
    polygonPress,
    openAnnotationDialog,
    cloneFromPiece,
};

constexpr PointerStep kMiddlePress[] = {takeFocus, beginButtonPan};
constexpr PointerStep kMiddleRelease[] = {endButtonPan};

constexpr PointerStep kRightPress[] = {
    takeFocus,  // takes nothing
    paletteDragRightPress,
    sceneryDragRightPress,
    altRightPress,
    contextMenuPress,
};

// Turning comes before zooming, so the view stays while something hangs at the pointer.
constexpr PointerStep kWheel[] = {
    paletteDragWheel,
    sceneryDragWheel,
    selectionWheel,
    wheelZoom,
};

constexpr KeyStep kKeys[] = {
    measureKey,
    polygonKey,
    paletteDragKey,
    sceneryDragKey,
    escapeKey,
    deleteKey,
};
constexpr KeyStep kCharacters[] = {zoomByCharacter, turnByCharacter};

// Bottom to top; what gestures draw over the plan comes last, so that the plan can be kept.
constexpr PaintStep kPaintStill[] = {
    drawContents,
    drawRulerBands,
};
constexpr PaintStep kPaintMoving[] = {
    drawScaleHandles,
    showGradeRuns,
    showPrompt,
    drawRubberBand,
    drawPolygonDraft,
    drawMeasureDraft,
    drawSelectionDrag,
    drawPaletteDrag,
    drawSceneryDrag,
    drawHelixPlacement,
    drawAltRotate,
};
// clang-format on

template <typename Step, typename Event>
bool Offer(std::span<const Step> steps, CanvasContext& context, const Event& event) {
  for (const Step step : steps)
    if (step(context, event)) return true;
  return false;
}

bool Offer(std::span<const PointerStep> steps, CanvasContext& context, const PointerEvent& event) {
  return Offer<PointerStep, PointerEvent>(steps, context, event);
}

// Whatever a release ended, it gives the mouse back.
bool OfferRelease(std::span<const PointerStep> steps, CanvasContext& context,
                  const PointerEvent& event) {
  const bool taken = Offer(steps, context, event);
  context.host.releaseMouse();
  return taken;
}

bool endTheRest(CanvasContext& context, const PointerEvent& event) {
  bool ended = false;
  for (const PointerStep step : kTheRest) ended = step(context, event) || ended;
  return ended;
}

bool endBandOrDrag(CanvasContext& context, const PointerEvent& event) {
  return endRubberBand(context, event) || endSelectionDrag(context, event);
}

void EndLeftGestures(CanvasContext& context, const PointerEvent& event) {
  while (isLeftGestureActive(context.state)) onLeftRelease(context, event);
}

// A release that went elsewhere, to a box or to another window: the gesture ends with the first
// motion that comes without the button ...
bool endMissedGesture(CanvasContext& context, const PointerEvent& event) {
  if (!event.leftDown) EndLeftGestures(context, event);
  return false;
}

// ... or, when the pointer hasn't moved since, before the next press does anything.
bool endGestureBeforePress(CanvasContext& context, const PointerEvent& event) {
  cancelRubberBand(context);  // nobody let go of it here
  EndLeftGestures(context, event);
  return false;
}

}  // namespace

bool onLeftPress(CanvasContext& context, const PointerEvent& event) {
  return Offer(kLeftPress, context, event);
}

bool onMotion(CanvasContext& context, const PointerEvent& event) {
  return Offer(kMotion, context, event);
}

// The pan with Space has no button of its own: it ends beside whatever else the release ends.
bool onLeftRelease(CanvasContext& context, const PointerEvent& event) {
  const bool panned = endSpacePan(context, event);
  return OfferRelease(kLeftRelease, context, event) || panned;
}

bool onDoubleClick(CanvasContext& context, const PointerEvent& event) {
  return Offer(kDoubleClick, context, event);
}

bool onMiddlePress(CanvasContext& context, const PointerEvent& event) {
  return Offer(kMiddlePress, context, event);
}

bool onMiddleRelease(CanvasContext& context, const PointerEvent& event) {
  return OfferRelease(kMiddleRelease, context, event);
}

bool onRightPress(CanvasContext& context, const PointerEvent& event) {
  return Offer(kRightPress, context, event);
}

bool onRightRelease(CanvasContext& context, const PointerEvent& event) {
  return OfferRelease({}, context, event);
}

bool onWheel(CanvasContext& context, const PointerEvent& event) {
  return Offer(kWheel, context, event);
}

bool onKey(CanvasContext& context, const KeyEvent& event) {
  return Offer<KeyStep, KeyEvent>(kKeys, context, event);
}

bool onCharacter(CanvasContext& context, const KeyEvent& event) {
  return Offer<KeyStep, KeyEvent>(kCharacters, context, event);
}

// A band has selected nothing yet, so it goes without selecting.
void endGestures(CanvasContext& context) {
  abandonButtonPan(context);
  cancelRubberBand(context);
  EndLeftGestures(context, {});
  context.host.releaseMouse();
}

void dropDrafts(CanvasContext& context) {
  endGestures(context);
  cancelPaletteDrag(context);
  context.state.measureDraft = {};
  context.state.polygonDraft = {};
  if (isClickToolArmed(context.layout)) endClickTool(context);
}

void onCaptureLost(CanvasContext& context) {
  endGestures(context);
}

void onFlashTimer(CanvasContext& context) {
  endRotationFlash(context);
}

void paintStill(const CanvasContext& context, wxDC& dc) {
  for (const PaintStep step : kPaintStill) step(context, dc);
}

void paintMoving(const CanvasContext& context, wxDC& dc) {
  for (const PaintStep step : kPaintMoving) step(context, dc);
}

void paintCanvas(const CanvasContext& context, wxDC& dc) {
  paintStill(context, dc);
  paintMoving(context, dc);
}

}  // namespace vantrel
