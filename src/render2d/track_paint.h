// What the drawing of one piece shares: where it stands, what it is and its two colours. Private to
// the track drawing.
#pragma once

#include <wx/colour.h>

#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "doc/view_transform.h"
#include "render2d/bed_polygons.h"
#include "render2d/track_colours.h"

class wxDC;

namespace vantrel {

struct TrackPaint {
  wxDC& dc;
  const PieceDef& def;
  const BedFrame frame;
  const ViewTransform& view;
  const BedColours colours;
  const Piece* piece = nullptr;  // null for a ghost
  bool selected = false;

  bool isGhost() const { return piece == nullptr; }
};

void setSolidPen(wxDC& dc, const wxColour& colour, int width);
void setSolidBrush(wxDC& dc, const wxColour& colour);

// `mm` at the view's scale, truncated, in device units.
int scaledLength(const ViewTransform& view, double mm);

// The beds of the piece's kind with their extras; neither label nor dots.
void drawTrackShape(const TrackPaint& paint);

// What stands on the bed of a straight: the arch of a bridge, the bar of a contact or uncoupler,
// the bumper bar of a track end.
void drawStraightExtras(const TrackPaint& paint);

// The same for a curve.
void drawCurveExtras(const TrackPaint& paint);

void drawTurntable(const TrackPaint& paint);

// `piece` null draws every connector as free.
void drawDots(wxDC& dc, const BedFrame& frame, const Piece* piece, const PieceDef& def,
              const ViewTransform& view);

}  // namespace vantrel
