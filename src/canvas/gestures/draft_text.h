// What the drafts of the clicking tools share: when a tool is armed, how it ends, the tag with a
// length.
#pragma once

#include <wx/colour.h>

#include <cstdint>
#include <string>

#include "canvas/gestures/canvas_context.h"

class wxDC;

namespace vantrel {

// Measuring tape, polygon or baseboard.
bool isClickToolArmed(const Layout& layout);

// toolMode 0, the tool's button up, the normal arrow.
void endClickTool(CanvasContext& context);

// "%.0f mm", "%.1f cm" or "%.2f\"": a finished tape writes its inches otherwise.
std::string draftLengthText(double lengthMm, std::int32_t units);

// A text in bold on a rounded box that is 4 pixels higher than it.
struct DraftTag {
  DevicePoint box;   // left top of the box
  DevicePoint text;  // left top of the text
  int extraWidth = 0;
  wxColour fill;
  wxColour line;
  wxColour ink;
};
// Sets the font that draft tags are written in, and measures a text in it.
DeviceSize measureDraftTag(wxDC& dc, const std::string& text);
void drawDraftTag(wxDC& dc, const std::string& text, DeviceSize textSize, const DraftTag& tag);

}  // namespace vantrel
