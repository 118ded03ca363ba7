// What may not be edited piecemeal: track of helices and tunnels; and the graded track that is
// worth a question. Nothing here changes the layout or talks to the user.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// What a message box says.
struct Notice {
  std::string title;
  std::string text;
};

// Why the selection may not be acted on, or nothing when it may. `verb` is "delete" or "rotate".
std::optional<Notice> selectionLock(const Layout& layout, std::string_view verb);

// Why the selection may not be moved, or nothing: a helix that isn't selected with exactly four of
// its pieces, track (but for helix stubs) or a portal of a tunnel.
std::optional<Notice> moveLock(const Layout& layout);

// Whether a selected piece has a slope, above 0.001 degrees either way.
bool isGradedSelection(const Layout& layout);

}  // namespace vantrel
