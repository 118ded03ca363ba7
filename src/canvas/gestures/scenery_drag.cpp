#include "canvas/gestures/scenery_drag.h"

#include <wx/defs.h>

#include <string>

#include "canvas/gestures/drag_turning.h"
#include "canvas/gestures/status_line.h"
#include "canvas/operations/placing.h"
#include "catalog/connector_geometry.h"
#include "catalog/scenery_catalog.h"
#include "render2d/scenery_drawing.h"

namespace vantrel {
namespace {

constexpr double kTurnStepDegrees = 15.0;

void Turn(CanvasContext& context, double degrees) {
  SceneryDrag& drag = context.state.sceneryDrag;
  drag.rotation = normalizeDegrees(drag.rotation + degrees);
  context.host.repaint();
}

void End(CanvasContext& context) {
  context.state.sceneryDrag.active = false;
  context.host.releaseMouse();
  context.host.repaint();
}

}  // namespace

void beginSceneryDrag(CanvasContext& context, std::string_view item) {
  if (findScenery(item) == nullptr) return;
  CanvasState& state = context.state;
  state.paletteDrag.active = false;
  state.paletteDrag.snap = {};
  state.helixPlacement = {};
  state.sceneryDrag = {.active = true,
                       .item = std::string(item),
                       .at = state.view.toWorld(kDragStartPoint),
                       .rotation = 0.0};
  // Esc and R are for the drag now, not for the list that it came from.
  context.host.takeFocus();
  context.host.captureMouse();
  context.host.repaint();
}

bool dropDraggedScenery(CanvasContext& context, const PointerEvent&) {
  const SceneryDrag& drag = context.state.sceneryDrag;
  if (!drag.active) return false;
  const Pose pose{drag.at.x, drag.at.y, drag.rotation};
  const std::int32_t id = placeScenery(context.layout, drag.item, pose);
  End(context);
  if (id == kNone) return true;
  context.host.markDirty();
  showPieceCount(context);
  context.host.selectionChanged();
  return true;
}

bool sceneryDragMotion(CanvasContext& context, const PointerEvent& event) {
  SceneryDrag& drag = context.state.sceneryDrag;
  if (!drag.active) return false;
  releaseMouseOnceButtonIsUp(context, event);
  drag.at = event.world;
  context.host.repaint();
  return true;
}

bool sceneryDragWheel(CanvasContext& context, const PointerEvent& event) {
  if (!context.state.sceneryDrag.active) return false;
  const double turn = wheelTurnDegrees(event);
  if (turn != 0.0) Turn(context, turn);
  return true;
}

bool sceneryDragRightPress(CanvasContext& context, const PointerEvent&) {
  if (!context.state.sceneryDrag.active) return false;
  Turn(context, kTurnStepDegrees);
  return true;
}

bool sceneryDragKey(CanvasContext& context, const KeyEvent& event) {
  if (!context.state.sceneryDrag.active) return false;
  if (event.code == WXK_ESCAPE) {
    End(context);
    return true;
  }
  if (!isTurnKey(event)) return false;
  Turn(context, kTurnStepDegrees);
  return true;
}

void drawSceneryDrag(const CanvasContext& context, wxDC& dc) {
  const SceneryDrag& drag = context.state.sceneryDrag;
  if (!drag.active) return;
  const SceneryDef* const def = findScenery(drag.item);
  if (def == nullptr) return;
  DrawSceneryGhost(context.state.render, dc, *def, {drag.at.x, drag.at.y, drag.rotation},
                   context.state.view);
}

}  // namespace vantrel
