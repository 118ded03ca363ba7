#include "canvas/gestures/lock_boxes.h"

#include <string>

#include "canvas/operations/locks.h"

// A box takes the mouse: a gesture that is under way when a key asks must not hold it.

namespace vantrel {

bool checkSelectionLocks(CanvasContext& context, std::string_view verb) {
  const std::optional<Notice> lock = selectionLock(context.layout, verb);
  if (!lock) return true;
  context.host.releaseMouse();
  context.host.inform(lock->title, lock->text, BoxIcon::information);
  return false;
}

bool confirmGradedDelete(CanvasContext& context) {
  if (!isGradedSelection(context.layout)) return true;
  context.host.releaseMouse();
  return context.host.ask(std::string(kGradedDeleteTitle), std::string(kGradedDeleteQuestion),
                          true);
}

}  // namespace vantrel
