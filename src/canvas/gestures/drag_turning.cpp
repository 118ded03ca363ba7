#include "canvas/gestures/drag_turning.h"

namespace vantrel {
namespace {

constexpr double kWheelStepDegrees = 30.0;
constexpr double kFineWheelStepDegrees = 15.0;

}  // namespace

double wheelTurnDegrees(const PointerEvent& event) {
  if (event.wheelRotation == 0) return 0.0;
  const double step = event.mods.shift ? kFineWheelStepDegrees : kWheelStepDegrees;
  return event.wheelRotation > 0 ? step : -step;
}

bool isTurnKey(const KeyEvent& event) {
  return (event.code == 'R' || event.code == 'r') && !event.mods.ctrl && !event.mods.alt;
}

void releaseMouseOnceButtonIsUp(CanvasContext& context, const PointerEvent& motion) {
  if (!motion.leftDown) context.host.releaseMouse();
}

}  // namespace vantrel
