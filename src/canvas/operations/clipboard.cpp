#include "canvas/operations/clipboard.h"

#include <cmath>
#include <cstddef>
#include <unordered_map>
#include <utility>

#include "canvas/operations/selection.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

using NewIds = std::unordered_map<std::int32_t, std::int32_t>;

bool IsFinite(Vec2 at) {
  return std::isfinite(at.x) && std::isfinite(at.y);
}

// The mean of all positions and, with a shape, of its vertices. What a damaged plan put nowhere at
// all has no say in it: it would take everything else along.
Vec2 Middle(const Clipboard& clipboard) {
  Vec2 sum;
  std::size_t count = 0;
  const auto add = [&sum, &count](double x, double y) {
    if (!IsFinite({x, y})) return;
    sum.x += x;
    sum.y += y;
    ++count;
  };
  for (const Piece& piece : clipboard.pieces) add(piece.x, piece.y);
  for (const SceneryItem& item : clipboard.scenery) add(item.x, item.y);
  if (clipboard.hasShape)
    for (const Vec2 vertex : clipboard.shape.vertices) add(vertex.x, vertex.y);
  if (count == 0) return {};
  return {sum.x / static_cast<double>(count), sum.y / static_cast<double>(count)};
}

// From where the records stood to `at`; nothing when no number can say it.
Vec2 WayTo(Vec2 at, const Clipboard& clipboard) {
  const Vec2 middle = Middle(clipboard);
  const Vec2 by{at.x - middle.x, at.y - middle.y};
  return IsFinite(by) ? by : Vec2{};
}

// Joints inside the clipboard follow their pieces; all others are dropped.
void RenameJoints(Piece& piece, const NewIds& newIds) {
  for (Joint& joint : piece.joints) {
    const auto found = newIds.find(joint.target);
    if (joint.target == kNone || found == newIds.end())
      joint = {};
    else
      joint.target = found->second;
  }
}

void PastePieces(Layout& layout, const Clipboard& clipboard, Vec2 by) {
  const std::size_t first = layout.pieces.size();
  const std::vector<std::int32_t> ids = TakeIds(layout, clipboard.pieces.size());
  auto id = ids.begin();
  NewIds newIds;
  for (const Piece& original : clipboard.pieces) {
    Piece piece = original;
    piece.id = *id++;
    newIds.try_emplace(original.id, piece.id);
    piece.x += by.x;
    piece.y += by.y;
    piece.sel = true;
    layout.pieces.push_back(std::move(piece));
  }
  for (std::size_t i = first; i < layout.pieces.size(); ++i) RenameJoints(layout.pieces[i], newIds);
}

void PasteScenery(Layout& layout, const Clipboard& clipboard, Vec2 by) {
  const std::vector<std::int32_t> ids = TakeIds(layout, clipboard.scenery.size());
  auto id = ids.begin();
  for (const SceneryItem& original : clipboard.scenery) {
    SceneryItem item = original;
    item.id = *id++;
    item.x += by.x;
    item.y += by.y;
    item.sel = true;
    layout.scenery.push_back(std::move(item));
  }
}

void PasteShape(Layout& layout, const Clipboard& clipboard, Vec2 by) {
  Shape shape = clipboard.shape;
  shape.id = TakeId(layout);
  shape.sel = false;
  for (Vec2& vertex : shape.vertices) vertex = {vertex.x + by.x, vertex.y + by.y};
  layout.shapes.push_back(std::move(shape));
}

}  // namespace

void copySelection(const Layout& layout, Clipboard& clipboard) {
  if (!hasSelectedObject(layout)) return;
  clipboard = {};
  for (const Piece& piece : layout.pieces)
    if (piece.sel) clipboard.pieces.push_back(piece);
  for (const SceneryItem& item : layout.scenery)
    if (item.sel) clipboard.scenery.push_back(item);
}

void copyShape(const Layout& layout, std::int32_t id, Clipboard& clipboard) {
  for (const Shape& shape : layout.shapes) {
    if (shape.id != id) continue;
    clipboard.shape = shape;
    clipboard.hasShape = true;
    return;
  }
}

bool pasteClipboard(Layout& layout, const Clipboard& clipboard, Vec2 at) {
  if (clipboard.empty()) return false;
  PushUndo(layout);
  const Vec2 by = WayTo(at, clipboard);
  ClearSelection(layout);
  PastePieces(layout, clipboard, by);
  PasteScenery(layout, clipboard, by);
  if (clipboard.hasShape) PasteShape(layout, clipboard, by);
  return true;
}

}  // namespace vantrel
