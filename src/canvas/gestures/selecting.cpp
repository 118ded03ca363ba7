#include "canvas/gestures/selecting.h"

#include <wx/defs.h>

#include "canvas/gestures/panning.h"
#include "canvas/gestures/rubber_band.h"
#include "canvas/gestures/selection_drag.h"
#include "canvas/operations/hit_test.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/selection.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// Shift's rule holds when Ctrl is down as well.
void SelectByClick(Layout& layout, std::int32_t id, const Modifiers& mods) {
  if (mods.shift)
    clickPieceChain(layout, id);
  else if (mods.ctrl)
    clickPieceToggle(layout, id);
  else
    clickPiece(layout, id);
}

void GrowClickedPiece(Piece& piece) {
  const PieceDef* const def = findPart(piece.cat);
  if (def != nullptr && def->connectors.size() >= 2) GrowJoints(piece);
}

}  // namespace

bool pressPiece(CanvasContext& context, const PointerEvent& event) {
  Layout& layout = context.layout;
  const std::int32_t id = hitTestPieceOrHelix(layout, context.state.view, event.at);
  Piece* const piece = id == kNone ? nullptr : FindPiece(layout, id);
  if (piece == nullptr) return false;
  SelectByClick(layout, id, event.mods);
  GrowClickedPiece(*piece);
  context.host.selectionChanged();
  beginSelectionPending(context, event);
  context.host.repaint();
  return true;
}

bool pressScenery(CanvasContext& context, const PointerEvent& event) {
  const std::int32_t id = hitTestScenery(context.layout, context.state.view, event.at);
  if (id == kNone) return false;
  clickScenery(context.layout, id, event.mods.shift);
  context.host.selectionChanged();
  beginSceneryMove(context, event);
  context.host.repaint();
  return true;
}

bool pressEmptyCanvas(CanvasContext& context, const PointerEvent& event) {
  ClearSelection(context.layout);
  context.state.clipboard = {};
  context.host.selectionChanged();
  if (event.mods.ctrl) {
    context.host.noteCanvasClick(event.world);
    beginButtonPan(context, event);
  } else {
    beginRubberBand(context, event);
  }
  context.host.repaint();
  return true;
}

bool swallowPress(CanvasContext& context, const PointerEvent&) {
  if (!context.state.swallowNextClick) return false;
  context.state.swallowNextClick = false;
  return true;
}

bool escapeKey(CanvasContext& context, const KeyEvent& event) {
  if (event.code != WXK_ESCAPE) return false;
  ClearSelection(context.layout);
  context.host.selectionChanged();
  context.host.repaint();
  return true;
}

}  // namespace vantrel
