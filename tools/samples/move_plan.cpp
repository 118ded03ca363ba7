#include "tools/samples/move_plan.h"

namespace vantrel::samples {

void MovePlan(Layout& layout, Vec2 by) {
  const auto move = [&](auto& at) {
    at.x += by.x;
    at.y += by.y;
  };
  for (Piece& piece : layout.pieces) move(piece);
  for (SceneryItem& item : layout.scenery) move(item);
  for (Label& label : layout.labels) move(label);
  for (Helix& helix : layout.helices) {
    helix.cx += by.x;
    helix.cy += by.y;
  }
  for (Shape& shape : layout.shapes)
    for (Vec2& vertex : shape.vertices) move(vertex);
  for (Level& level : layout.levels)
    for (Vec2& vertex : level.outline) move(vertex);
  for (Vec2& vertex : layout.baseboard) move(vertex);
}

}  // namespace vantrel::samples
