#include "canvas/gestures/target_marker.h"

#include <wx/dc.h>

#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

constexpr int kMarkerRadius = 8;  // pixels

}  // namespace

void drawTargetMarker(const CanvasContext& context, wxDC& dc, const SnapResult& snap) {
  if (!snap.found || snap.targetConnector < 0) return;
  const Piece* const target = FindPiece(context.layout, snap.targetPiece);
  if (target == nullptr) return;
  const PieceDef* const def = findPart(target->cat);
  const auto connector = static_cast<std::size_t>(snap.targetConnector);
  if (def == nullptr || connector >= def->connectors.size()) return;
  const WorldConnector at = worldConnector(*target, *def, connector);
  const DevicePoint centre = context.state.view.toDevice({at.x, at.y});
  dc.SetBrush(wxBrush(wxColour(255, 220, 0)));
  dc.SetPen(wxPen(wxColour(180, 120, 0), 2));
  dc.DrawCircle(centre.x, centre.y, kMarkerRadius);
}

}  // namespace vantrel
