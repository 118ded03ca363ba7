#include "canvas/gestures/status_line.h"

#include <string>

#include "doc/format_length.h"

namespace vantrel {
namespace {

constexpr const char* kGradeMark = "[ELEV]";

std::string PositionText(Vec2 world, std::int32_t units) {
  return FormatLength(world.x, units) + ",  " + FormatLength(world.y, units);
}

}  // namespace

bool showPointerPosition(CanvasContext& context, const PointerEvent& event) {
  context.host.setStatus(kStatusPosition, PositionText(event.world, context.layout.units));
  return false;
}

void showPieceCount(CanvasContext& context) {
  context.host.setStatus(kStatusPieces, "Pieces: " + std::to_string(context.layout.pieces.size()));
}

void showGradeRuns(const CanvasContext& context, wxDC&) {
  const std::string shown = context.host.status(kStatusMessage);
  if (context.layout.gradeRuns.empty()) {
    if (shown.starts_with(kGradeMark)) context.host.setStatus(kStatusMessage, "Ready");
    return;
  }
  std::string text = kGradeMark;
  for (const GradeRun& run : context.layout.gradeRuns)
    text += " " + FormatFixed(run.deg, 1) + " deg";
  text += "  (right-click piece to stop)";
  if (text != shown) context.host.setStatus(kStatusMessage, text);
}

}  // namespace vantrel
