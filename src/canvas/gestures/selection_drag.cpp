#include "canvas/gestures/selection_drag.h"

#include <cstdint>
#include <string_view>

#include "canvas/gestures/target_marker.h"
#include "canvas/operations/locks.h"
#include "canvas/operations/selection.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr std::int64_t kDragThreshold = 24;  // squared pixels, to be exceeded

constexpr std::string_view kGradedMoveQuestion =
    "Selection includes graded pieces. Moving will break joints and leave the chain's elevation "
    "inconsistent.\n\nMove anyway? (This warning will not appear again this session.)";

bool IsBeyondThreshold(DevicePoint from, DevicePoint to) {
  const std::int64_t dx = std::int64_t{to.x} - from.x;
  const std::int64_t dy = std::int64_t{to.y} - from.y;
  return dx * dx + dy * dy > kDragThreshold;
}

// A box takes the mouse, and the button's release with it.
bool IsMoveRefused(CanvasContext& context) {
  if (const std::optional<Notice> lock = moveLock(context.layout)) {
    context.host.releaseMouse();
    context.host.inform(lock->title, lock->text, BoxIcon::information);
    return true;
  }
  bool& confirmed = context.state.gradedMoveConfirmed;
  if (confirmed || !isGradedSelection(context.layout)) return false;
  context.host.releaseMouse();
  confirmed = context.host.ask("Move", std::string(kGradedMoveQuestion), false);
  return !confirmed;
}

// What a turntable takes along wasn't selected at the press: the poses are taken anew, so that
// every piece moves by the same way.
void StartDrag(CanvasContext& context) {
  SelectionDrag& drag = context.state.selectionDrag;
  PushUndo(context.layout);
  drag.active = true;
  selectTurntableNeighbours(context.layout);
  drag.start = takeMoveStart(context.layout);
  breakEdgeJoints(context.layout);
}

}  // namespace

void beginSelectionPending(CanvasContext& context, const PointerEvent& event) {
  context.state.selectionPending = {.active = true, .from = event.at};
  context.state.selectionDrag = {.active = false,
                                 .moved = false,
                                 .from = event.world,
                                 .start = takeMoveStart(context.layout),
                                 .snap = {}};
  context.host.captureMouse();
}

void beginSceneryMove(CanvasContext& context, const PointerEvent& event) {
  PushUndo(context.layout);
  context.state.selectionDrag = {.active = true,
                                 .moved = false,
                                 .from = event.world,
                                 .start = takeSceneryMoveStart(context.layout),
                                 .snap = {}};
  context.host.captureMouse();
}

bool selectionPendingMotion(CanvasContext& context, const PointerEvent& event) {
  SelectionPending& pending = context.state.selectionPending;
  if (!pending.active || !event.leftDown) return false;
  if (!IsBeyondThreshold(pending.from, event.at)) return false;
  pending.active = false;
  if (IsMoveRefused(context)) return true;
  StartDrag(context);
  return false;
}

bool selectionDragMotion(CanvasContext& context, const PointerEvent& event) {
  SelectionDrag& drag = context.state.selectionDrag;
  if (!drag.active || !event.leftDown) return false;
  drag.moved = true;
  moveSelection(context.layout, drag.start,
                {event.world.x - drag.from.x, event.world.y - drag.from.y});
  drag.snap = findBlockSnap(context.layout);
  context.host.repaint();
  return true;
}

bool endSelectionPending(CanvasContext& context, const PointerEvent&) {
  context.state.selectionPending.active = false;
  return false;
}

bool endSelectionDrag(CanvasContext& context, const PointerEvent&) {
  SelectionDrag& drag = context.state.selectionDrag;
  if (!drag.active) return false;
  // Pieces selected beside a clicked scenery item don't stand where its list of starts says.
  if (drag.moved) dropSelection(context.layout, drag.start, drag.snap);
  drag = {};
  context.host.selectionChanged();
  context.host.markDirty();
  context.host.repaint();
  return true;
}

void drawSelectionDrag(const CanvasContext& context, wxDC& dc) {
  const SelectionDrag& drag = context.state.selectionDrag;
  if (drag.active) drawTargetMarker(context, dc, drag.snap.snap);
}

}  // namespace vantrel
