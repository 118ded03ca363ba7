#include "canvas/gestures/wheel_zoom.h"

#include <wx/defs.h>

#include "canvas/gestures/view_navigation.h"

namespace vantrel {
namespace {

constexpr double kWheelIn = 1.15;
constexpr double kWheelOut = 0.8695652173913044;  // 1 / 1.15

}  // namespace

bool wheelZoom(CanvasContext& context, const PointerEvent& event) {
  if (event.wheelRotation == 0) return false;
  zoomAt(context, event.at, event.wheelRotation >= 1 ? kWheelIn : kWheelOut);
  return true;
}

bool zoomByCharacter(CanvasContext& context, const KeyEvent& event) {
  if (event.mods.ctrl || event.mods.alt) return false;
  if (event.code == '+' || event.code == WXK_NUMPAD_ADD) {
    zoomCentred(context, kZoomInCommand);
    return true;
  }
  if (event.code == '-' || event.code == WXK_NUMPAD_SUBTRACT) {
    zoomCentred(context, kZoomOutCommand);
    return true;
  }
  return false;
}

}  // namespace vantrel
