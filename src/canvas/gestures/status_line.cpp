#include "canvas/gestures/status_line.h"

#include <string>

#include "doc/format_length.h"
#include "workspace/status_text.h"

namespace vantrel {
namespace {

std::string PositionText(Vec2 world, std::int32_t units) {
  return FormatLength(world.x, units) + ",  " + FormatLength(world.y, units);
}

}  // namespace

bool showPointerPosition(CanvasContext& context, const PointerEvent& event) {
  context.host.setStatus(kStatusPosition, PositionText(event.world, context.layout.units));
  return false;
}

void showPieceCount(CanvasContext& context) {
  context.host.setStatus(kStatusPieces, PiecesText(context.layout.pieces.size()));
}

// Leaves another text in place where there is nothing to say of grades.
void showGradeRuns(const CanvasContext& context, wxDC&) {
  const std::string shown = context.host.status(kStatusMessage);
  if (context.layout.gradeRuns.empty() && !shown.starts_with(kGradeMark)) return;
  const std::string text = ReadyText(context.layout);
  if (text != shown) context.host.setStatus(kStatusMessage, text);
}

}  // namespace vantrel
