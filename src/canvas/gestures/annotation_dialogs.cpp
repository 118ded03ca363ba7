#include "canvas/gestures/annotation_dialogs.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "canvas/operations/hit_test.h"
#include "canvas/operations/shape_properties.h"
#include "catalog/scenery_catalog.h"
#include "doc/find_record.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr double kSmallestScale = 0.1;

void ShowChange(CanvasContext& context) {
  // The panel shows the sizes.
  context.host.selectionChanged();
  context.host.markDirty();
  context.host.repaint();
}

// The dialog has an event loop of its own: the record is looked for anew after it.
void EditShape(CanvasContext& context, std::int32_t id) {
  const Shape& shown = *FindRecord(context.layout.shapes, id);
  const std::optional<ShapeProperties> chosen =
      context.host.editShape(ShapePropertiesOf(shown), context.layout.units);
  Shape* const shape = FindRecord(context.layout.shapes, id);
  if (!chosen || shape == nullptr) return;
  PushUndo(context.layout);
  SetShapeProperties(*shape, *chosen);
  ShowChange(context);
}

void ResizeItem(CanvasContext& context, std::int32_t id) {
  const SceneryItem& shown = *FindRecord(context.layout.scenery, id);
  const SceneryDef* const def = findScenery(shown.item);
  if (def == nullptr) return;
  const std::optional<SceneryScale> chosen = context.host.resizeScenery(
      {.width = def->width, .depth = def->depth}, {.x = shown.scalex, .y = shown.scaley});
  SceneryItem* const item = FindRecord(context.layout.scenery, id);
  if (!chosen || item == nullptr) return;
  PushUndo(context.layout);
  item->scalex = std::max(chosen->x, kSmallestScale);
  item->scaley = std::max(chosen->y, kSmallestScale);
  ShowChange(context);
}

}  // namespace

bool openAnnotationDialog(CanvasContext& context, const PointerEvent& event) {
  if (event.mods.alt) return false;
  const ViewTransform& view = context.state.view;
  const std::int32_t shape = hitTestShape(context.layout, view, event.at);
  if (shape != kNone) {
    EditShape(context, shape);
    return true;
  }
  const std::int32_t item = hitTestScenery(context.layout, view, event.at);
  if (item == kNone) return false;
  ResizeItem(context, item);
  return true;
}

}  // namespace vantrel
