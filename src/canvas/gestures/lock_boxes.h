// Telling the user what is locked, and asking before graded track is deleted.
#pragma once

#include <string_view>

#include "canvas/gestures/canvas_context.h"

namespace vantrel {

inline constexpr std::string_view kGradedDeleteTitle = "Delete";
inline constexpr std::string_view kGradedDeleteQuestion =
    "Selection includes graded pieces. Delete?";

// True when the selection may be acted on; otherwise the user has been told why not. `verb` is
// "delete" or "rotate".
bool checkSelectionLocks(CanvasContext& context, std::string_view verb);

// True when no graded piece is selected or the user says Yes.
bool confirmGradedDelete(CanvasContext& context);

}  // namespace vantrel
