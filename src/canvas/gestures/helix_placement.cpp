#include "canvas/gestures/helix_placement.h"

#include <wx/dc.h>

#include <string>

#include "canvas/gestures/drag_turning.h"
#include "canvas/gestures/status_line.h"
#include "canvas/operations/helix_placing.h"
#include "catalog/helix_kits.h"

namespace vantrel {
namespace {

constexpr int kCrossArm = 8;  // pixels each way

}  // namespace

void beginHelixPlacement(CanvasContext& context, std::string_view kit) {
  if (kit.empty()) return;
  CanvasState& state = context.state;
  // Only one thing hangs at the pointer.
  state.paletteDrag.active = false;
  state.paletteDrag.snap = {};
  state.sceneryDrag.active = false;
  state.helixPlacement = {
      .active = true, .kit = std::string(kit), .at = state.view.toWorld(kDragStartPoint)};
  context.host.takeFocus();
  context.host.captureMouse();
  context.host.repaint();
}

void placeHelixAt(CanvasContext& context, std::string_view kit, const Pose& pose) {
  if (placeHelix(context.layout, {pose.x, pose.y}, pose.heading, kit) == kNone) return;
  context.host.markDirty();
  showPieceCount(context);
  context.host.selectionChanged();
  context.host.repaint();
}

bool dropHelix(CanvasContext& context, const PointerEvent& event) {
  HelixPlacement& placement = context.state.helixPlacement;
  if (!placement.active) return false;
  context.host.releaseMouse();
  placeHelixAt(context, placement.kit, {event.world.x, event.world.y, 0.0});
  placement.active = false;
  placement.kit.clear();
  context.host.repaint();
  return true;
}

bool helixPlacementMotion(CanvasContext& context, const PointerEvent& event) {
  HelixPlacement& placement = context.state.helixPlacement;
  if (!placement.active) return false;
  releaseMouseOnceButtonIsUp(context, event);
  placement.at = event.world;
  context.host.repaint();
  return true;
}

void drawHelixPlacement(const CanvasContext& context, wxDC& dc) {
  const HelixPlacement& placement = context.state.helixPlacement;
  if (!placement.active) return;
  const HelixKit& kit = kitOrDefault(placement.kit);
  const ViewTransform& view = context.state.view;
  const DevicePoint at = view.toDevice(placement.at);
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.SetPen(wxPen(wxColour(0, 150, 200), 2, wxPENSTYLE_LONG_DASH));
  dc.DrawCircle(at.x, at.y, DeviceInt(kit.innerRadius * view.scale));
  dc.DrawCircle(at.x, at.y, DeviceInt(kit.outerRadius * view.scale));
  dc.DrawLine(at.x - kCrossArm, at.y, at.x + kCrossArm, at.y);
  dc.DrawLine(at.x, at.y - kCrossArm, at.x, at.y + kCrossArm);
}

}  // namespace vantrel
