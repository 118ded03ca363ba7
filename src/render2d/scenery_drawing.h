// What a scenery item looks like in 2D.
#pragma once

#include "catalog/scenery_def.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// `pose` is the middle of the item's footprint and its heading.
void DrawSceneryItem(const RenderContext& context, wxDC& dc, const SceneryDef& def,
                     const Pose& pose, const ViewTransform& view, bool selected, double scalex,
                     double scaley);

// The drag preview: the item at its natural size inside a dotted footprint.
void DrawSceneryGhost(const RenderContext& context, wxDC& dc, const SceneryDef& def,
                      const Pose& pose, const ViewTransform& view);

}  // namespace vantrel
