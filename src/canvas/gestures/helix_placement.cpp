#include "canvas/gestures/helix_placement.h"

#include <wx/dc.h>

#include "catalog/helix_kits.h"

namespace vantrel {
namespace {

constexpr int kCrossArm = 8;  // pixels each way

}  // namespace

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
