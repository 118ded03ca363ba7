#include "canvas/gestures/panning.h"

#include <cstdlib>

#include "canvas/gestures/rubber_band.h"

namespace vantrel {
namespace {

constexpr int kPanThreshold = 4;  // pixels

bool IsNear(DevicePoint a, DevicePoint b) {
  return std::abs(a.x - b.x) < kPanThreshold && std::abs(a.y - b.y) < kPanThreshold;
}

template <typename Pan>
void RecordStart(Pan& pan, const ViewTransform& view, DevicePoint at) {
  pan = {};
  pan.active = true;
  pan.from = at;
  pan.offsetX = view.offsetX;
  pan.offsetY = view.offsetY;
}

template <typename Pan>
void MoveView(CanvasContext& context, const Pan& pan, DevicePoint at) {
  context.state.view.offsetX = pan.offsetX + (at.x - pan.from.x);
  context.state.view.offsetY = pan.offsetY + (at.y - pan.from.y);
  context.host.repaint();
}

void StopButtonPan(CanvasContext& context) {
  context.state.buttonPan.active = false;
  context.host.setCursor(CanvasCursor::normal);
  context.host.releaseMouse();
}

void StopSpacePan(CanvasContext& context) {
  context.state.spacePan.active = false;
  context.host.setCursor(CanvasCursor::normal);
}

}  // namespace

bool beginButtonPan(CanvasContext& context, const PointerEvent& event) {
  RecordStart(context.state.buttonPan, context.state.view, event.at);
  context.host.setCursor(CanvasCursor::hand);
  context.host.captureMouse();
  return true;
}

bool buttonPanMotion(CanvasContext& context, const PointerEvent& event) {
  ButtonPan& pan = context.state.buttonPan;
  if (!pan.active) return false;
  // Another button's release may have given the mouse away, and the pan's own gone unseen.
  if (!event.middleDown && !event.leftDown) {
    StopButtonPan(context);
    return false;
  }
  if (!pan.moved && IsNear(event.at, pan.from)) return true;
  pan.moved = true;
  MoveView(context, pan, event.at);
  return true;
}

bool spacePanMotion(CanvasContext& context, const PointerEvent& event) {
  SpacePan& pan = context.state.spacePan;
  if (pan.active && !event.leftDown) {
    StopSpacePan(context);
    return false;
  }
  if (pan.active) {
    MoveView(context, pan, event.at);
    return true;
  }
  if (!event.spaceDown || !event.leftDown) return false;
  if (context.state.paletteDrag.active || context.state.selectionDrag.active) return false;
  cancelRubberBand(context);
  RecordStart(pan, context.state.view, event.at);
  context.host.setCursor(CanvasCursor::hand);
  return true;
}

bool endSpacePan(CanvasContext& context, const PointerEvent&) {
  if (!context.state.spacePan.active) return false;
  StopSpacePan(context);
  return true;
}

bool endButtonPan(CanvasContext& context, const PointerEvent&) {
  if (!context.state.buttonPan.active) return false;
  StopButtonPan(context);
  return true;
}

void abandonButtonPan(CanvasContext& context) {
  if (context.state.buttonPan.active) StopButtonPan(context);
}

}  // namespace vantrel
