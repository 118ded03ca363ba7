// Paints a whole layout: baseboard, decks, grid, shapes, scenery, track, helices, grade arrows,
// labels and measurements, in their fixed order. Screen and printer share it.
#pragma once

#include "doc/layout.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// `size` is the width and height of the target in device units: the grid fills it, and what lies
// wholly outside it is skipped.
void DrawLayoutContents(RenderContext& context, wxDC& dc, const Layout& layout,
                        const ViewTransform& view, DeviceSize size);

}  // namespace vantrel
