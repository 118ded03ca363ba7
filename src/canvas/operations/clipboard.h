// The canvas's own clipboard: copies of records, not the system's.
#pragma once

#include <cstdint>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

struct Clipboard {
  std::vector<Piece> pieces;
  std::vector<SceneryItem> scenery;
  Shape shape;
  bool hasShape = false;

  bool empty() const { return pieces.empty() && scenery.empty() && !hasShape; }
};

// Replaces pieces and scenery by copies of the selected ones and drops the shape. Nothing when no
// piece and no scenery item is selected.
void copySelection(const Layout& layout, Clipboard& clipboard);

// Copies one shape; pieces and scenery stay in the clipboard. Nothing for an unknown id.
void copyShape(const Layout& layout, std::int32_t id, Clipboard& clipboard);

// PushUndo, then adds the clipboard's records with new ids, their middle at `at` (mm), and selects
// the new pieces and scenery items. Joints inside the clipboard are kept, all others dropped.
// False, with nothing changed, when the clipboard is empty.
bool pasteClipboard(Layout& layout, const Clipboard& clipboard, Vec2 at);

}  // namespace vantrel
