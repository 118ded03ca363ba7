#include "canvas/gestures/gesture_end.h"

namespace vantrel {

bool isLeftGestureActive(const CanvasState& state) {
  return state.shapeMove.active || state.measureMove.active || state.deckDrag.active ||
         state.sceneryResize.active || state.altRotate.active || state.selectionPending.active ||
         state.labelDrag.active || state.rubberBand.active || state.selectionDrag.active ||
         state.spacePan.active;
}

bool isGestureActive(const CanvasState& state) {
  return isLeftGestureActive(state) || state.buttonPan.active;
}

bool isPlanAtRest(const CanvasState& state) {
  // A tape whose tool was put away stays on show while others move the plan or the view.
  const bool moves = state.shapeMove.active || state.measureMove.active || state.deckDrag.active ||
                     state.sceneryResize.active || state.altRotate.active ||
                     state.labelDrag.active || state.selectionDrag.active ||
                     state.spacePan.active || state.buttonPan.active;
  if (moves) return false;
  return state.rubberBand.active || state.measureDraft.active || state.polygonDraft.active ||
         state.paletteDrag.active || state.sceneryDrag.active || state.helixPlacement.active;
}

}  // namespace vantrel
