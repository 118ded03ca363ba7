#include "canvas/kept_picture.h"

#include <wx/dcmemory.h>

#include "canvas/event_order.h"
#include "doc/undo.h"

namespace vantrel {

KeptPicture::Shown KeptPicture::ShownBy(const CanvasContext& context, double density) {
  const Layout& plan = context.layout;
  return {.records = TakeSnapshot(plan),
          .levels = plan.levels,
          .baseboard = plan.baseboard,
          .baseboardVisible = plan.baseboardVisible,
          .gridVisible = plan.gridVisible,
          .labelsVisible = plan.labelsVisible,
          .units = plan.units,
          .gridSize = plan.gridSize,
          .view = context.state.view,
          .size = context.host.clientSize(),
          .density = density};
}

bool KeptPicture::Shows(const Shown& shown, const CanvasContext& context, double density) {
  const Layout& plan = context.layout;
  return shown.density == density && shown.size == context.host.clientSize() &&
         shown.view == context.state.view && shown.units == plan.units &&
         shown.gridVisible == plan.gridVisible && shown.gridSize == plan.gridSize &&
         shown.labelsVisible == plan.labelsVisible &&
         shown.baseboardVisible == plan.baseboardVisible && shown.baseboard == plan.baseboard &&
         shown.levels == plan.levels && shown.records.pieces == plan.pieces &&
         shown.records.scenery == plan.scenery && shown.records.labels == plan.labels &&
         shown.records.measurements == plan.measurements && shown.records.shapes == plan.shapes &&
         shown.records.tunnels == plan.tunnels && shown.records.helices == plan.helices &&
         shown.records.gradeRuns == plan.gradeRuns &&
         shown.records.currentGrade == plan.currentGrade;
}

void KeptPicture::draw(const CanvasContext& context, wxDC& dc, double density) {
  const DeviceSize size = context.host.clientSize();
  if (size.width < 1 || size.height < 1) return;
  if (!shown_ || !Shows(*shown_, context, density)) {
    bitmap_.CreateScaled(size.width, size.height, wxBITMAP_SCREEN_DEPTH, density);
    wxMemoryDC memory(bitmap_);
    paintStill(context, memory);
    shown_ = ShownBy(context, density);
    ++timesMade_;
  }
  dc.DrawBitmap(bitmap_, 0, 0);
}

void KeptPicture::forget() {
  bitmap_ = wxNullBitmap;
  shown_.reset();
}

}  // namespace vantrel
