#include "inspection/selection_edits.h"

#include <algorithm>
#include <array>
#include <string>

#include "canvas/operations/selection.h"
#include "doc/layout_ops.h"
#include "doc/trimmed.h"
#include "doc/undo.h"
#include "inspection/shown_unit.h"

namespace vantrel {
namespace {

constexpr std::array<PaintColour, 9> kPaintColours = {{{"Default", std::nullopt},
                                                       {"Red", Rgba{220, 60, 60}},
                                                       {"Orange", Rgba{230, 140, 40}},
                                                       {"Yellow", Rgba{220, 200, 50}},
                                                       {"Green", Rgba{60, 170, 60}},
                                                       {"Blue", Rgba{60, 100, 200}},
                                                       {"Purple", Rgba{140, 60, 180}},
                                                       {"Pink", Rgba{210, 90, 150}},
                                                       {"White", Rgba{240, 240, 240}}}};

void Paint(Piece& piece, const std::optional<Rgba>& colour) {
  const Rgba values = colour.value_or(Rgba{});
  piece.hasColor = colour.has_value();
  piece.colorR = values.r;
  piece.colorG = values.g;
  piece.colorB = values.b;
}

}  // namespace

std::span<const PaintColour> paintColours() {
  return kPaintColours;
}

bool ApplyColour(Layout& layout, int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= kPaintColours.size()) return false;
  if (!hasSelectedPiece(layout)) return false;
  PushUndo(layout);
  const PaintColour& chosen = kPaintColours[static_cast<std::size_t>(row)];
  for (Piece* piece : selectedPieces(layout)) Paint(*piece, chosen.colour);
  ClearSelection(layout);
  return true;
}

bool EnterHeight(Layout& layout, std::int32_t pieceId, std::string_view text) {
  const std::optional<double> height = HeightFromText(text, UnitOf(layout));
  if (!height || pieceId == kNone || FindPiece(layout, pieceId) == nullptr) return false;
  PushUndo(layout);
  FindPiece(layout, pieceId)->z = *height;
  return true;
}

bool AddLabel(Layout& layout, std::string_view text, Vec2 at) {
  text = Trimmed(text);
  if (text.empty()) return false;
  PushUndo(layout);
  Label label;
  label.id = TakeId(layout);
  label.text = OneLine(text);
  label.x = at.x;
  label.y = at.y;
  layout.labels.push_back(std::move(label));
  return true;
}

}  // namespace vantrel
