#include "canvas/gestures/scale_handles.h"

#include <wx/dc.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "canvas/gestures/gesture_end.h"
#include "canvas/operations/hit_test.h"
#include "catalog/connector_geometry.h"
#include "catalog/scenery_catalog.h"
#include "doc/find_record.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr int kHandles = 8;
constexpr double kShortestSideMm = 5.0;
constexpr int kSquareSize = 9;    // pixels
constexpr int kCircleRadius = 3;  // pixels

// Which way each handle lies from the middle of the item.
constexpr std::array<Vec2, kHandles> kSides = {Vec2{-1, -1}, {0, -1}, {1, -1}, {1, 0},
                                               {1, 1},       {0, 1},  {-1, 1}, {-1, 0}};

bool IsCorner(std::int32_t handle) {
  return handle % 2 == 0;
}

CanvasCursor CursorOver(std::int32_t handle) {
  switch (handle) {
    case 0:
    case 4:
      return CanvasCursor::sizeNwse;
    case 1:
    case 5:
      return CanvasCursor::sizeNs;
    case 2:
    case 6:
      return CanvasCursor::sizeNesw;
    case 3:
    case 7:
      return CanvasCursor::sizeWe;
    default:
      return CanvasCursor::normal;
  }
}

// The handle of the single selected item under a point, or kNone.
std::int32_t HandleAt(CanvasContext& context, DevicePoint at) {
  const SceneryItem* const item =
      FindRecord(context.layout.scenery, singleSelectedScenery(context.layout));
  return item == nullptr ? kNone : hitTestScaleHandle(*item, context.state.view, at);
}

bool IsHoverTime(const CanvasState& state, const PointerEvent& event) {
  if (event.leftDown || event.middleDown || event.rightDown) return false;
  return !isLeftGestureActive(state) && !state.buttonPan.active && !state.spacePan.active &&
         !state.paletteDrag.active && !state.sceneryDrag.active;
}

// A world point in the item's frame, from the handle that stays.
Vec2 FromFixedHandle(const SceneryResize& resize, double heading, Vec2 world) {
  return LocalToWorld({0.0, 0.0, -heading}, {world.x - resize.fixed.x, world.y - resize.fixed.y});
}

void Resize(SceneryItem& item, const SceneryDef& def, const SceneryResize& resize, Vec2 pointer) {
  const Vec2 side = kSides[static_cast<std::size_t>(resize.handle)];
  const Vec2 size = FromFixedHandle(resize, item.heading, pointer);
  item.scalex =
      side.x != 0.0 ? std::max(std::abs(size.x), kShortestSideMm) / def.width : resize.scalex;
  item.scaley =
      side.y != 0.0 ? std::max(std::abs(size.y), kShortestSideMm) / def.depth : resize.scaley;
  const Vec2 middle = LocalToWorld(
      {resize.fixed.x, resize.fixed.y, item.heading},
      {side.x * item.scalex * def.width / 2.0, side.y * item.scaley * def.depth / 2.0});
  item.x = middle.x;
  item.y = middle.y;
}

}  // namespace

bool pressScaleHandle(CanvasContext& context, const PointerEvent& event) {
  if (event.mods.alt) return false;
  const std::int32_t handle = HandleAt(context, event.at);
  if (handle == kNone) return false;
  PushUndo(context.layout);
  const SceneryItem& item =
      *FindRecord(context.layout.scenery, singleSelectedScenery(context.layout));
  const auto points = scaleHandlePoints(item, *findScenery(item.item));
  context.state.sceneryResize = {
      .active = true,
      .item = item.id,
      .handle = handle,
      .fixed = points[static_cast<std::size_t>((handle + kHandles / 2) % kHandles)],
      .scalex = item.scalex,
      .scaley = item.scaley};
  context.host.captureMouse();
  return true;
}

// Over a handle the cursor is always set: a pan from there has left another one. Elsewhere only
// when the pointer leaves a handle: others set cursors of their own.
bool hoverScaleHandle(CanvasContext& context, const PointerEvent& event) {
  if (!IsHoverTime(context.state, event)) return false;
  const CanvasCursor wanted = CursorOver(HandleAt(context, event.at));
  if (wanted != CanvasCursor::normal || context.state.handleCursor != CanvasCursor::normal)
    context.host.setCursor(wanted);
  context.state.handleCursor = wanted;
  return false;
}

bool sceneryResizeMotion(CanvasContext& context, const PointerEvent& event) {
  SceneryResize& resize = context.state.sceneryResize;
  if (!resize.active || !event.leftDown) return false;
  SceneryItem* const item = FindRecord(context.layout.scenery, resize.item);
  const SceneryDef* const def = item == nullptr ? nullptr : findScenery(item->item);
  if (def == nullptr) {
    resize.active = false;
    context.host.releaseMouse();
    return true;
  }
  if (def->width > 0.0 && def->depth > 0.0) {
    Resize(*item, *def, resize, event.world);
    context.host.markDirty();
    context.host.repaint();
  }
  return true;
}

bool endSceneryResize(CanvasContext& context, const PointerEvent&) {
  if (!context.state.sceneryResize.active) return false;
  context.state.sceneryResize.active = false;
  // The panel shows the item's size.
  context.host.selectionChanged();
  context.host.markDirty();
  context.host.repaint();
  return true;
}

void drawScaleHandles(const CanvasContext& context, wxDC& dc) {
  const SceneryItem* const item =
      FindRecord(context.layout.scenery, singleSelectedScenery(context.layout));
  const SceneryDef* const def = item == nullptr ? nullptr : findScenery(item->item);
  if (def == nullptr) return;
  dc.SetPen(wxPen(wxColour(40, 90, 200)));
  dc.SetBrush(*wxWHITE_BRUSH);
  const auto points = scaleHandlePoints(*item, *def);
  for (std::int32_t handle = 0; handle < kHandles; ++handle) {
    const DevicePoint at = context.state.view.toDevice(points[static_cast<std::size_t>(handle)]);
    if (IsCorner(handle))
      dc.DrawRectangle(at.x - kSquareSize / 2, at.y - kSquareSize / 2, kSquareSize, kSquareSize);
    else
      dc.DrawCircle(at.x, at.y, kCircleRadius);
  }
}

}  // namespace vantrel
