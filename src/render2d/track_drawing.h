// What a track piece looks like in 2D, on any device context: a flat ribbon of track bed.
#pragma once

#include <wx/colour.h>
#include <wx/gdicmn.h>

#include <vector>

#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// Half the width of the drawn bed in mm: narrow for Z, the same for every other system.
inline constexpr double kBedHalfWidthZ = 6.0;
inline constexpr double kBedHalfWidth = 18.7;
double bedHalfWidth(const PieceDef& def);

// Draws a placed piece with all its states. `selected`, `showLabels` and `inTunnel` are arguments,
// not read from the piece, because icons and helix rings have none of their own.
void DrawTrackPiece(const RenderContext& context, wxDC& dc, const Piece& piece, const PieceDef& def,
                    const ViewTransform& view, bool selected, bool showLabels, bool inTunnel);

// Draws a definition at `pose` while it is dragged from the palette: fixed green colours, no label,
// simpler shapes for two kinds.
void DrawTrackGhost(wxDC& dc, const PieceDef& def, const Pose& pose, const ViewTransform& view);

// From which scale on pieces show their part numbers and dots: dots of the device per mm. A fine
// page has many dots for a piece that is small, so below a fifth of a pixel for a mm, where a
// screen shows neither, numbers and dots shrink with their piece.
inline constexpr double kTrackDetailScale = 0.2;

// The size of part numbers in the device's points.
int PartNumberPoints(const ViewTransform& view);

// A dot at each connector, green when joined, orange when free. Nothing below scale 0.2.
void DrawJoinDots(wxDC& dc, const Piece& piece, const PieceDef& def, const ViewTransform& view);

// The bed of a straight of def.length: four device points.
std::vector<wxPoint> StraightBedPolygon(const Pose& pose, const PieceDef& def,
                                        const ViewTransform& view);

// The bed of an arc: the outer edge from start to end, then the inner edge back, n + 1 points each.
// `route` is 1 for a plain arc, 2 for a turnout's branch, 3 for the other branch of a three-way
// turnout. With a radius below 1 mm it is the straight bed.
std::vector<wxPoint> ArcBedPolygon(const Pose& pose, const PieceDef& def, const ViewTransform& view,
                                   int route);

// One closed polygon; nothing for fewer than 3 points. The pen's width is in device units.
void FillBedPolygon(wxDC& dc, const std::vector<wxPoint>& points, const wxColour& fill,
                    const wxColour& outline, int penWidth);

// A bar across the track: a rectangle 2 * halfLength along `heading` and 2 * halfWidth across it,
// centred `offset` mm ahead of `position`. Its pen is `penWidth` pixels wide, at least 1.
void DrawTrackMarker(wxDC& dc, const ViewTransform& view, Vec2 position, double heading,
                     double offset, double halfLength, double halfWidth, int penWidth);

}  // namespace vantrel
