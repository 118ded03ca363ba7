#include "render2d/contents_track.h"

#include <wx/dc.h>
#include <wx/font.h>

#include <unordered_map>

#include "catalog/track_catalog.h"
#include "render2d/contents_reach.h"
#include "render2d/contents_text.h"
#include "render2d/text_extent.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

PieceIds CoveredPieces(const Layout& layout) {
  PieceIds covered;
  for (const Tunnel& tunnel : layout.tunnels)
    covered.insert(tunnel.covers.begin(), tunnel.covers.end());
  return covered;
}

// Tells which pieces can't be seen, part number included.
class TrackView {
 public:
  explicit TrackView(ContentsPaint& paint)
      : paint_(paint),
        partNumbers_(paint.layout.labelsVisible && paint.view.scale >= kTrackDetailScale) {
    // In the font that the pieces will take, so that a part number is measured once in a paint.
    if (partNumbers_) UsePartNumberFont();
  }

  bool outOfView(const Piece& piece, const PieceDef& def) {
    const Extent& extent = extentOf(def);
    return PieceOutOfView(paint_, piece.pose(), *extent.reach, extent.number);
  }

 private:
  void UsePartNumberFont();

  struct Extent {
    const PieceReach* reach = nullptr;
    wxSize number;  // device units
  };
  const Extent& extentOf(const PieceDef& def) {
    const auto [place, isNew] = extents_.try_emplace(&def);
    if (isNew) {
      place->second.reach = &ReachOfPiece(def);
      if (partNumbers_)
        place->second.number =
            MeasureText(*paint_.context.textExtents, paint_.dc, def.partNumber).size;
    }
    return place->second;
  }

  ContentsPaint& paint_;
  const bool partNumbers_;
  std::unordered_map<const PieceDef*, Extent> extents_;
};

void TrackView::UsePartNumberFont() {
  wxFont font = paint_.dc.GetFont();
  if (!font.IsOk()) font = *wxNORMAL_FONT;
  font.SetPointSize(PartNumberPoints(paint_.view));
  font.SetWeight(wxFONTWEIGHT_BOLD);
  paint_.dc.SetFont(font);
}

void DrawJob(ContentsPaint& paint, const TrackJob& job) {
  DrawTrackPiece(paint.context, paint.dc, *job.piece, *job.def, paint.view, job.piece->sel,
                 paint.layout.labelsVisible, job.inTunnel);
}

}  // namespace

TrackPlan PrepareTrack(ContentsPaint& paint, const HelixPlan& helices) {
  const PieceIds covered = CoveredPieces(paint.layout);
  TrackView view(paint);
  TrackPlan plan;
  for (const Piece& piece : paint.layout.pieces) {
    if (paint.levelHidden(piece.level)) continue;
    const PieceDef* def = findPart(piece.cat);
    if (def == nullptr || view.outOfView(piece, *def)) continue;
    const TrackJob job{&piece, def, !covered.empty() && covered.contains(piece.id)};
    (helices.isLow(piece) ? plan.low : plan.high).push_back(job);
    if (def->role == PieceRole::spoke) plan.spokeExtensions.push_back(job);
  }
  return plan;
}

void DrawTrack(ContentsPaint& paint, const std::vector<TrackJob>& jobs) {
  for (const bool selected : {false, true})
    for (const TrackJob& job : jobs)
      if (job.piece->sel == selected) DrawJob(paint, job);
}

void DrawSpokeExtensions(ContentsPaint& paint, const TrackPlan& plan) {
  for (const TrackJob& job : plan.spokeExtensions) DrawJob(paint, job);
}

}  // namespace vantrel
