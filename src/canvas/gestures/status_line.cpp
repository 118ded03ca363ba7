#include "canvas/gestures/status_line.h"

#include <string>

#include "doc/format_length.h"
#include "workspace/status_text.h"

namespace vantrel {
namespace {

std::string PositionText(Vec2 world, std::int32_t units) {
  return FormatLength(world.x, units) + ",  " + FormatLength(world.y, units);
}

// In a small window there is room for some sixty letters.
constexpr const char* kTapeStart = "Click where the tape begins; Escape puts the tool away.";
constexpr const char* kTapeEnd = "Click where the tape ends; Escape puts the tool away.";
constexpr const char* kFirstCorner = "Click the polygon's corners; Escape puts the tool away.";
constexpr const char* kNextCorner = "Click the next corner; Backspace takes one back, Escape all.";
constexpr const char* kLastCorner =
    "Next corner, or the first (or Enter) to close; Escape gives up.";
constexpr const char* kHanging = "Click sets it down, the wheel or R turns it, Escape gives it up.";
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
  if (state.paletteDrag.active || state.sceneryDrag.active) return kHanging;
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
