// Which track of a plan is drawn, and in which order. What a piece looks like is told in
// track_drawing.
#pragma once

#include "catalog/piece_def.h"
#include "render2d/contents_helix.h"
#include "render2d/contents_paint.h"

namespace vantrel {

struct TrackJob {
  const Piece* piece = nullptr;
  const PieceDef* def = nullptr;
  bool inTunnel = false;
};

// The pieces of visible levels that the catalog knows and that can be seen, in the plan's order.
struct TrackPlan {
  std::vector<TrackJob> low;  // under the helices' rings
  std::vector<TrackJob> high;
  std::vector<TrackJob> spokeExtensions;  // of turntables; they are in low or high too
};

TrackPlan PrepareTrack(ContentsPaint& paint, const HelixPlan& helices);

// The unselected pieces first, then the selected ones.
void DrawTrack(ContentsPaint& paint, const std::vector<TrackJob>& jobs);

// Once more, so that they lie on top of the turntable they are joined to.
void DrawSpokeExtensions(ContentsPaint& paint, const TrackPlan& plan);

}  // namespace vantrel
