#include "canvas/gestures/lock_boxes.h"

#include <string>

#include "canvas/operations/locks.h"

namespace vantrel {

bool checkSelectionLocks(CanvasContext& context, std::string_view verb) {
  const std::optional<Notice> lock = selectionLock(context.layout, verb);
  if (lock) context.host.inform(lock->title, lock->text, BoxIcon::information);
  return !lock;
}

bool confirmGradedDelete(CanvasContext& context) {
  if (!isGradedSelection(context.layout)) return true;
  return context.host.ask(std::string(kGradedDeleteTitle), std::string(kGradedDeleteQuestion),
                          true);
}

}  // namespace vantrel
