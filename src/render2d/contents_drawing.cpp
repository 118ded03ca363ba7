#include "render2d/contents_drawing.h"

#include <wx/dc.h>

#include "render2d/contents_annotations.h"
#include "render2d/contents_grades.h"
#include "render2d/contents_ground.h"
#include "render2d/contents_helix.h"
#include "render2d/contents_paint.h"
#include "render2d/contents_scenery.h"
#include "render2d/contents_shapes.h"
#include "render2d/contents_track.h"
#include "render2d/text_extent.h"

namespace vantrel {

void PaintContents(RenderContext& context, wxDC& dc, const Layout& layout,
                   const ViewTransform& view, DeviceSize size, const DrawArea& area) {
  context.layout = &layout;
  const TextExtentsOfPaint extents(context);
  ContentsPaint paint(context, dc, layout, view, size, area);

  // What comes later covers what came before: this order is what the plan looks like.
  DrawBackground(paint);
  DrawBaseboardFill(paint);
  DrawDecks(paint);
  DrawGrid(paint);
  DrawBaseboardOutline(paint);
  DrawShapes(paint);

  const SceneryPlan scenery = PrepareScenery(paint);
  DrawScenery(paint, scenery.ordinary);

  const HelixPlan helices = PrepareHelices(paint);
  const TrackPlan track = PrepareTrack(paint, helices);
  DrawTrack(paint, track.low);  // the lower ends of the helices pass under the rings
  DrawHelices(paint, helices);
  DrawTrack(paint, track.high);
  DrawSpokeExtensions(paint, track);

  DrawScenery(paint, scenery.portals);  // portals stand over the track they cover
  DrawGradeArrows(paint);
  DrawLabels(paint);
  DrawMeasurements(paint);
}

void DrawLayoutContents(RenderContext& context, wxDC& dc, const Layout& layout,
                        const ViewTransform& view, DeviceSize size) {
  PaintContents(context, dc, layout, view, size, DrawArea::Of(size));
}

}  // namespace vantrel
