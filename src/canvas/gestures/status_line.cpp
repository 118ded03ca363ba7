#include "canvas/gestures/status_line.h"

#include <string>

#include "doc/format_length.h"
#include "workspace/status_text.h"

namespace vantrel {
namespace {

std::string PositionText(Vec2 world, std::int32_t units) {
  return FormatLength(world.x, units) + ",  " + FormatLength(world.y, units);
}

constexpr const char* kTapeStart = "Click where the tape begins. Escape puts the tool away.";
constexpr const char* kTapeEnd = "Click where the tape ends. Escape puts the tool away.";
constexpr const char* kFirstCorner =
    "Click the corners of the polygon one after the other. Escape puts the tool away.";
constexpr const char* kNextCorner =
    "Click the next corner. Backspace takes the last one back; Escape gives up.";
constexpr const char* kLastCorner =
    "Click the next corner, or the first one (or press Enter) to close. Backspace takes the last "
    "one "
    "back; Escape gives up.";
constexpr const char* kHangingPiece =
    "Click to set the piece down. The wheel, R and the right button turn it; Escape gives it up.";
constexpr const char* kHangingScenery =
    "Click to set it down. The wheel, R and the right button turn it; Escape gives it up.";
constexpr const char* kHangingHelix = "Click where the middle of the helix should lie.";

constexpr std::size_t kFewestVertices = 3;

const char* PolygonPrompt(const PolygonDraft& draft) {
  if (!draft.active) return kFirstCorner;
  return draft.vertices.size() < kFewestVertices ? kNextCorner : kLastCorner;
}

// In the order in which a left press asks them.
const char* PromptOf(const CanvasContext& context) {
  const CanvasState& state = context.state;
  switch (context.layout.toolMode) {
    case kMeasureTool:
      return state.measureDraft.active ? kTapeEnd : kTapeStart;
    case kPolygonTool:
      return PolygonPrompt(state.polygonDraft);
    case kBaseboardTool:
      return "";
    default:
      break;
  }
  if (state.paletteDrag.active) return kHangingPiece;
  if (state.sceneryDrag.active) return kHangingScenery;
  return state.helixPlacement.active ? kHangingHelix : "";
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

void showPrompt(const CanvasContext& context, wxDC&) {
  Prompt& prompt = context.state.prompt;
  const std::string text = context.layout.gradeRuns.empty() ? PromptOf(context) : "";
  if (text == prompt.text) return;
  if (!prompt.text.empty() && context.host.status(kStatusMessage) == prompt.text)
    context.host.setStatus(kStatusMessage, prompt.before);
  prompt = {.text = text, .before = context.host.status(kStatusMessage)};
  if (!text.empty()) context.host.setStatus(kStatusMessage, text);
}

}  // namespace vantrel
