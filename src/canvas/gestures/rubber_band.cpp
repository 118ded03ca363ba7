#include "canvas/gestures/rubber_band.h"

#include <wx/dc.h>

#include <algorithm>
#include <cstdlib>

#include "canvas/operations/selection.h"

namespace vantrel {

void beginRubberBand(CanvasContext& context, const PointerEvent& event) {
  context.state.rubberBand = {.active = true, .from = event.at, .to = event.at};
  context.host.captureMouse();
}

bool rubberBandMotion(CanvasContext& context, const PointerEvent& event) {
  RubberBand& band = context.state.rubberBand;
  if (!band.active || !event.leftDown) return false;
  band.to = event.at;
  context.host.repaint();
  return true;
}

bool endRubberBand(CanvasContext& context, const PointerEvent& event) {
  RubberBand& band = context.state.rubberBand;
  if (!band.active) return false;
  band.active = false;
  if (selectInBand(context.layout, context.state.view, band.from, event.at)) {
    context.state.clipboard = {};
    context.host.selectionChanged();
  }
  context.host.repaint();
  return true;
}

void cancelRubberBand(CanvasContext& context) {
  if (!context.state.rubberBand.active) return;
  context.state.rubberBand.active = false;
  context.host.repaint();
}

void drawRubberBand(const CanvasContext& context, wxDC& dc) {
  const RubberBand& band = context.state.rubberBand;
  if (!band.active) return;
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.SetPen(wxPen(wxColour(0, 120, 215), 1, wxPENSTYLE_DOT));
  dc.DrawRectangle(std::min(band.from.x, band.to.x), std::min(band.from.y, band.to.y),
                   std::abs(band.to.x - band.from.x), std::abs(band.to.y - band.from.y));
}

}  // namespace vantrel
