#include "canvas/gestures/draft_text.h"
#include "app/services/wx_text.h"

#include <wx/dc.h>
#include <wx/font.h>

#include "doc/format_length.h"

namespace vantrel {
namespace {

constexpr int kTagFontSize = 10;
constexpr int kTagExtraHeight = 4;  // pixels
constexpr double kTagCorner = 3.0;

}  // namespace

bool isClickToolArmed(const Layout& layout) {
  return layout.toolMode == kMeasureTool || layout.toolMode == kPolygonTool ||
         layout.toolMode == kBaseboardTool;
}

void endClickTool(CanvasContext& context) {
  const std::int32_t mode = context.layout.toolMode;
  context.layout.toolMode = kNoTool;
  context.host.clickToolEnded(mode);
  context.host.setCursor(CanvasCursor::normal);
}

std::string draftLengthText(double lengthMm, std::int32_t units) {
  if (units == kCentimetres) return FormatFixed(lengthMm / 10.0, 1) + " cm";
  if (units == kInches) return FormatFixed(lengthMm / 25.4, 2) + "\"";
  return FormatFixed(lengthMm, 0) + " mm";
}

DeviceSize measureDraftTag(wxDC& dc, const std::string& text) {
  dc.SetFont(wxFont(wxFontInfo(kTagFontSize).Bold()));
  const wxSize size = dc.GetTextExtent(ToWx(text));
  return {size.GetWidth(), size.GetHeight()};
}

void drawDraftTag(wxDC& dc, const std::string& text, DeviceSize textSize, const DraftTag& tag) {
  dc.SetBrush(wxBrush(tag.fill));
  dc.SetPen(wxPen(tag.line));
  dc.DrawRoundedRectangle(tag.box.x, tag.box.y, textSize.width + tag.extraWidth,
                          textSize.height + kTagExtraHeight, kTagCorner);
  dc.SetTextForeground(tag.ink);
  dc.DrawText(ToWx(text), tag.text.x, tag.text.y);
}

}  // namespace vantrel
