#include "canvas/gestures/click_tools.h"

namespace vantrel {
namespace {

bool IsArmed(const Layout& layout) {
  return layout.toolMode == kMeasureTool || layout.toolMode == kPolygonTool ||
         layout.toolMode == kBaseboardTool;
}

}  // namespace

bool clickToolPress(CanvasContext& context, const PointerEvent&) {
  return IsArmed(context.layout);
}

bool clickToolMotion(CanvasContext& context, const PointerEvent&) {
  if (!IsArmed(context.layout)) return false;
  context.host.setCursor(CanvasCursor::cross);
  return true;
}

}  // namespace vantrel
