#include "canvas/gestures/annotation_moves.h"

#include <cstddef>
#include <vector>

#include "canvas/operations/hit_test.h"
#include "doc/find_record.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

// What a press on a record of this kind does before its gesture starts.
template <typename Record>
void SelectOnlyRecord(CanvasContext& context, Record& record) {
  ClearSelection(context.layout);
  record.sel = true;
  PushUndo(context.layout);
  context.host.selectionChanged();
  context.host.captureMouse();
  context.host.repaint();
}

// The start moved by as much as the pointer; nothing when points have come or gone since.
void MovePoints(std::vector<Vec2>& points, const std::vector<Vec2>& start, Vec2 from, Vec2 to) {
  if (points.size() != start.size()) return;
  for (std::size_t i = 0; i < points.size(); ++i)
    points[i] = {start[i].x + (to.x - from.x), start[i].y + (to.y - from.y)};
}

void ShowMove(CanvasContext& context) {
  context.host.markDirty();
  context.host.repaint();
}

template <typename Gesture>
bool End(Gesture& gesture) {
  const bool wasActive = gesture.active;
  gesture = {};
  return wasActive;
}

}  // namespace

bool pressMeasurement(CanvasContext& context, const PointerEvent& event) {
  if (!event.mods.none()) return false;
  const MeasurementHit hit = hitTestMeasurement(context.layout, context.state.view, event.at);
  Measurement* const tape = FindRecord(context.layout.measurements, hit.id);
  if (hit.id == kNone || tape == nullptr) return false;
  SelectOnlyRecord(context, *tape);
  context.state.measureMove = {
      .active = true, .part = hit.part, .from = event.world, .start = *tape};
  return true;
}

bool pressShape(CanvasContext& context, const PointerEvent& event) {
  if (!event.mods.none()) return false;
  const std::int32_t id = hitTestShape(context.layout, context.state.view, event.at);
  Shape* const shape = FindRecord(context.layout.shapes, id);
  if (id == kNone || shape == nullptr) return false;
  SelectOnlyRecord(context, *shape);
  context.state.shapeMove = {
      .active = true, .shape = id, .from = event.world, .start = shape->vertices};
  return true;
}

bool pressDeckOutline(CanvasContext& context, const PointerEvent& event) {
  if (!event.mods.shift || event.mods.ctrl) return false;
  const std::int32_t id = hitTestDeckOutline(context.layout, context.state.view, event.at);
  const Level* const level = FindRecord(context.layout.levels, id);
  if (level == nullptr) return false;
  PushUndo(context.layout);
  context.state.deckDrag = {
      .active = true, .level = id, .from = event.world, .start = level->outline};
  context.host.captureMouse();
  return true;
}

bool pressLabel(CanvasContext& context, const PointerEvent& event) {
  const std::int32_t id = hitTestLabel(context.layout, context.state.view, event.at);
  bool changed = false;
  for (Label& label : context.layout.labels) {
    const bool hit = id != kNone && label.id == id;
    changed = changed || label.sel != hit;
    label.sel = hit;
  }
  if (changed) context.host.repaint();
  const Label* const label = FindRecord(context.layout.labels, id);
  if (id == kNone || label == nullptr) return false;
  context.state.labelDrag = {
      .active = true, .label = id, .grip = {event.world.x - label->x, event.world.y - label->y}};
  context.host.captureMouse();
  context.host.takeFocus();
  return true;
}

bool measureMoveMotion(CanvasContext& context, const PointerEvent& event) {
  const MeasureMove& move = context.state.measureMove;
  if (!move.active || !event.leftDown) return false;
  Measurement* const tape = FindRecord(context.layout.measurements, move.start.id);
  if (tape == nullptr) return true;
  const Vec2 by{event.world.x - move.from.x, event.world.y - move.from.y};
  tape->startX = move.start.startX + by.x;
  tape->startY = move.start.startY + by.y;
  tape->endX = move.start.endX + by.x;
  tape->endY = move.start.endY + by.y;
  ShowMove(context);
  return true;
}

bool shapeMoveMotion(CanvasContext& context, const PointerEvent& event) {
  const ShapeMove& move = context.state.shapeMove;
  if (!move.active || !event.leftDown) return false;
  Shape* const shape = FindRecord(context.layout.shapes, move.shape);
  if (shape == nullptr) return true;
  MovePoints(shape->vertices, move.start, move.from, event.world);
  ShowMove(context);
  return true;
}

bool deckDragMotion(CanvasContext& context, const PointerEvent& event) {
  const DeckDrag& drag = context.state.deckDrag;
  if (!drag.active || !event.leftDown) return false;
  Level* const level = FindRecord(context.layout.levels, drag.level);
  if (level == nullptr) return true;
  MovePoints(level->outline, drag.start, drag.from, event.world);
  ShowMove(context);
  return true;
}

bool labelDragMotion(CanvasContext& context, const PointerEvent& event) {
  const LabelDrag& drag = context.state.labelDrag;
  if (!drag.active || !event.leftDown) return false;
  Label* const label = FindRecord(context.layout.labels, drag.label);
  if (label == nullptr) return true;
  label->x = event.world.x - drag.grip.x;
  label->y = event.world.y - drag.grip.y;
  context.host.repaint();
  return true;
}

bool endMeasureMove(CanvasContext& context, const PointerEvent&) {
  return End(context.state.measureMove);
}

bool endShapeMove(CanvasContext& context, const PointerEvent&) {
  return End(context.state.shapeMove);
}

bool endDeckDrag(CanvasContext& context, const PointerEvent&) {
  return End(context.state.deckDrag);
}

bool endLabelDrag(CanvasContext& context, const PointerEvent&) {
  if (!End(context.state.labelDrag)) return false;
  context.host.markDirty();
  return true;
}

}  // namespace vantrel
