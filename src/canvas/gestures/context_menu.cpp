#include "canvas/gestures/context_menu.h"

#include <array>
#include <cstdint>
#include <vector>

#include "canvas/gestures/autofill_gap.h"
#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/status_line.h"
#include "canvas/operations/hit_test.h"
#include "canvas/operations/selection.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

const MenuEntry kCopyEntry{.id = kMenuCopy, .label = "Copy"};

void ShapeMenu(CanvasContext& context, std::int32_t id, DevicePoint at) {
  for (Shape& shape : context.layout.shapes) shape.sel = shape.id == id;
  context.host.selectionChanged();
  context.host.repaint();
  if (context.host.popUpMenu(std::array{kCopyEntry}, at) == kMenuCopy)
    copyShape(context.layout, id, context.state.clipboard);
}

void SelectForMenu(CanvasContext& context, const Piece& piece) {
  if (piece.sel) return;
  ClearSelection(context.layout);
  FindPiece(context.layout, piece.id)->sel = true;
  expandHelixSelection(context.layout);
}

void PieceMenu(CanvasContext& context, const Piece& piece, DevicePoint at) {
  SelectForMenu(context, piece);
  context.host.selectionChanged();
  context.host.repaint();
  std::vector<MenuEntry> entries;
  if (selectedPieces(context.layout).size() == 2)
    entries.push_back({.id = kMenuAutofill, .label = "Autofill Gap..."});
  entries.push_back(kCopyEntry);
  switch (context.host.popUpMenu(entries, at)) {
    case kMenuAutofill:
      autofillGap(context);
      break;
    case kMenuCopy:
      copySelection(context.layout, context.state.clipboard);
      break;
    default:
      break;
  }
}

void PasteMenu(CanvasContext& context, const PointerEvent& event) {
  const MenuEntry paste{.id = kMenuPaste, .label = "Paste"};
  if (context.host.popUpMenu(std::array{paste}, event.at) != kMenuPaste) return;
  if (!pasteClipboard(context.layout, context.state.clipboard, event.world)) return;
  context.host.selectionChanged();
  context.host.markDirty();
  showPieceCount(context);
  context.host.repaint();
}

void PressOnNothing(CanvasContext& context, const PointerEvent& event) {
  if (!context.state.clipboard.empty()) {
    PasteMenu(context, event);
    return;
  }
  if (event.mods.shift) return;
  ClearSelection(context.layout);
  context.host.selectionChanged();
  context.host.repaint();
}

}  // namespace

bool contextMenuPress(CanvasContext& context, const PointerEvent& event) {
  // A menu would take the mouse from a gesture that holds it.
  if (isGestureActive(context.state)) return true;
  // A helix that hangs at the pointer may hold it still.
  context.host.releaseMouse();
  const ViewTransform& view = context.state.view;
  const std::int32_t id = hitTestPieceOrHelix(context.layout, view, event.at);
  const std::int32_t shape = hitTestShape(context.layout, view, event.at);
  const Piece* const piece = id == kNone ? nullptr : FindPiece(context.layout, id);
  if (shape != kNone)
    ShapeMenu(context, shape, event.at);
  else if (piece != nullptr)
    PieceMenu(context, *piece, event.at);
  else
    PressOnNothing(context, event);
  return true;
}

}  // namespace vantrel
