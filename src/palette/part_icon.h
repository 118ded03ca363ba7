// The small pictures of track parts: the palette's icons and the drawing inside the preview popup.
#pragma once

#include <wx/bitmap.h>

#include "catalog/piece_def.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// The view that places a part in an icon of kIconSize. All short parts get one common scale, which
// keeps their relative sizes visible; only wide, branching and very large parts shrink further.
ViewTransform iconView(const PieceDef& def);

// The view that places a part in the preview popup.
ViewTransform previewView(const PieceDef& def);

// Draws a part outside any layout: at the world origin, heading 0, nothing joined or highlighted.
void drawLoosePart(const RenderContext& context, wxDC& dc, const PieceDef& def,
                   const ViewTransform& view);

// The icon of a part, kIconSize square on white. Null gives the plain white square.
wxBitmap renderPartIcon(const RenderContext& context, const PieceDef* def);

}  // namespace vantrel
