#include "canvas/gestures/deleting.h"

#include <wx/defs.h>

#include "canvas/gestures/lock_boxes.h"
#include "canvas/gestures/status_line.h"
#include "canvas/operations/removal.h"
#include "canvas/operations/selection.h"

namespace vantrel {
namespace {

bool Delete(CanvasContext& context, bool shapesToo) {
  Layout& layout = context.layout;
  if (!hasDeletableSelection(layout, shapesToo)) return false;
  if (commonHelixOfSelection(layout) == kNone && !checkSelectionLocks(context, "delete"))
    return true;
  if (!confirmGradedDelete(context)) return true;
  selectPairPartners(layout);
  deleteSelection(layout);
  context.host.selectionChanged();
  context.host.markDirty();
  showPieceCount(context);
  context.host.repaint();
  return true;
}

}  // namespace

void deleteFromCanvas(CanvasContext& context) {
  Delete(context, true);
}

bool deleteKey(CanvasContext& context, const KeyEvent& event) {
  if (event.code != WXK_DELETE && event.code != WXK_BACK) return false;
  return Delete(context, false);
}

}  // namespace vantrel
