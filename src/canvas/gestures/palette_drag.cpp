#include "canvas/gestures/palette_drag.h"

#include <wx/dc.h>
#include <wx/defs.h>

#include <cstdint>
#include <optional>
#include <string>

#include "canvas/gestures/drag_turning.h"
#include "canvas/gestures/status_line.h"
#include "canvas/gestures/target_marker.h"
#include "canvas/gestures/view_navigation.h"
#include "canvas/operations/extending.h"
#include "canvas/operations/placing.h"
#include "canvas/operations/selection.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

constexpr double kTurnStepDegrees = 30.0;

Pose FreePose(const PaletteDrag& drag) {
  return {drag.at.x, drag.at.y, drag.rotation};
}

void SearchSnap(CanvasContext& context) {
  PaletteDrag& drag = context.state.paletteDrag;
  const PieceDef* const def = findPart(drag.part);
  if (def == nullptr) return;
  drag.snap = {};
  if (!context.layout.snapEnabled) return;
  const std::vector<const Piece*> others = VisiblePieces(context.layout);
  drag.snap = findSnap(*def, FreePose(drag), others);
}

void Turn(PaletteDrag& drag, double degrees) {
  drag.rotation = normalizeDegrees(drag.rotation + degrees);
}

// Tells the user when another track system's end lies where the piece would have to join.
bool RefusesToJoin(CanvasContext& context, const PieceDef& def) {
  const PaletteDrag& drag = context.state.paletteDrag;
  if (drag.snap.found || !context.layout.snapEnabled) return false;
  // Ends on hidden levels count as well: a join that can't be seen can't be made right.
  const std::vector<const Piece*> others = AllPieces(context.layout);
  const IncompatibleJoin refused = findIncompatibleJoin(def, FreePose(drag), others);
  if (!refused.found) return false;
  const std::string own(JoinRefusalSystemName(refused.ownSystem));
  const std::string other(JoinRefusalSystemName(refused.otherSystem));
  context.host.inform("Incompatible Track Systems",
                      own + " cannot connect to " + other +
                          ".\n\nThese track systems are not compatible.\n"
                          "Use adapter track 24922 to connect C-Track to K-Track.",
                      BoxIcon::exclamation);
  return true;
}

// Z scale track needs the closer view from its first piece on.
void ShowFirstZPiece(CanvasContext& context, const PieceDef& def) {
  if (def.system == TrackSystem::MarklinZ && context.layout.pieces.size() == 1)
    resetViewUnitScale(context);
}

void Place(CanvasContext& context, const PieceDef& def) {
  PaletteDrag& drag = context.state.paletteDrag;
  const std::int32_t id = placePiece(context.layout, def, drag.snap, FreePose(drag));
  ShowFirstZPiece(context, def);
  drag.active = false;
  drag.snap = {};
  context.host.markDirty();
  // The count is shown before the second piece of a pair comes, and stays until the next update.
  showPieceCount(context);
  addPairPartner(context.layout, id);
  SelectOnly(context.layout, id);
  context.host.selectionChanged();
  context.host.repaint();
}

}  // namespace

void beginPieceDrag(CanvasContext& context, std::string_view part) {
  if (part.empty() || findPart(part) == nullptr) return;
  CanvasState& state = context.state;
  // Only one thing hangs at the pointer.
  state.sceneryDrag.active = false;
  state.helixPlacement = {};
  state.paletteDrag = {.active = true,
                       .part = std::string(part),
                       .at = state.view.toWorld(kDragStartPoint),
                       .rotation = 0.0,
                       .snap = {}};
  context.host.takeFocus();
  context.host.captureMouse();
  context.host.repaint();
}

void cancelPaletteDrag(CanvasContext& context) {
  context.host.releaseMouse();
  context.state.paletteDrag.active = false;
  context.state.paletteDrag.snap = {};
  context.state.sceneryDrag.active = false;
  context.state.helixPlacement.active = false;
  context.state.helixPlacement.kit.clear();
  context.host.repaint();
}

void placeByDoubleClick(CanvasContext& context, std::string_view part) {
  if (!hasSelectedPiece(context.layout)) {
    beginPieceDrag(context, part);
    return;
  }
  const std::int32_t id = autoConnectPart(context.layout, part);
  if (id == kNone) return;
  context.host.selectionChanged();
  context.host.markDirty();
  showPieceCount(context);
  if (const std::optional<Vec2> end = farEnd(context.layout, id)) bringIntoView(context, *end);
  context.host.repaint();
}

bool dropDraggedPiece(CanvasContext& context, const PointerEvent&) {
  const PaletteDrag& drag = context.state.paletteDrag;
  if (!drag.active) return false;
  context.host.releaseMouse();
  const PieceDef* const def = findPart(drag.part);
  if (def == nullptr || RefusesToJoin(context, *def)) {
    cancelPaletteDrag(context);
    return true;
  }
  Place(context, *def);
  return true;
}

bool paletteDragMotion(CanvasContext& context, const PointerEvent& event) {
  PaletteDrag& drag = context.state.paletteDrag;
  if (!drag.active) return false;
  releaseMouseOnceButtonIsUp(context, event);
  drag.at = event.world;
  SearchSnap(context);
  context.host.repaint();
  return true;
}

bool paletteDragWheel(CanvasContext& context, const PointerEvent& event) {
  PaletteDrag& drag = context.state.paletteDrag;
  if (!drag.active) return false;
  const double turn = wheelTurnDegrees(event);
  if (turn == 0.0) return true;
  Turn(drag, turn);
  SearchSnap(context);
  context.host.repaint();
  return true;
}

bool paletteDragRightPress(CanvasContext& context, const PointerEvent&) {
  PaletteDrag& drag = context.state.paletteDrag;
  if (!drag.active) return false;
  Turn(drag, kTurnStepDegrees);
  SearchSnap(context);
  context.host.repaint();
  return true;
}

bool paletteDragKey(CanvasContext& context, const KeyEvent& event) {
  PaletteDrag& drag = context.state.paletteDrag;
  if (!drag.active) return false;
  if (event.code == WXK_ESCAPE) {
    cancelPaletteDrag(context);
    return true;
  }
  if (!isTurnKey(event)) return false;
  // No new search: the preview keeps what it snapped to until the pointer moves.
  Turn(drag, kTurnStepDegrees);
  context.host.repaint();
  return true;
}

void drawPaletteDrag(const CanvasContext& context, wxDC& dc) {
  const PaletteDrag& drag = context.state.paletteDrag;
  if (!drag.active) return;
  drawTargetMarker(context, dc, drag.snap);
  const PieceDef* const def = findPart(drag.part);
  if (def == nullptr) return;
  const Pose pose = drag.snap.found ? drag.snap.pose() : FreePose(drag);
  DrawTrackGhost(dc, *def, pose, context.state.view);
}

}  // namespace vantrel
