#include "render2d/text_extent.h"

#include <wx/dc.h>

#include "app/services/wx_text.h"

namespace vantrel {
namespace {

// A plan that is zoomed and edited all day meets many fonts and texts. More than any one paint uses
// are forgotten and measured again.
constexpr std::size_t kMostFonts = 32;
constexpr std::size_t kMostTexts = 4096;  // per font

void BindDevice(TextExtents& extents, const wxDC& dc) {
  double scaleX = 0.0;
  double scaleY = 0.0;
  dc.GetUserScale(&scaleX, &scaleY);
  const bool sameDevice = extents.alikeDevices || extents.device == &dc;
  if (sameDevice && extents.scaleX == scaleX && extents.scaleY == scaleY) return;
  extents.fonts.clear();
  extents.lastFont = 0;
  extents.device = &dc;
  extents.scaleX = scaleX;
  extents.scaleY = scaleY;
}

TextExtents::OfFont& EntryOf(TextExtents& extents, const wxFont& font) {
  if (extents.lastFont < extents.fonts.size() &&
      extents.fonts[extents.lastFont].font.IsSameAs(font))
    return extents.fonts[extents.lastFont];
  for (std::size_t i = 0; i < extents.fonts.size(); ++i) {
    if (extents.fonts[i].font != font) continue;
    // Fonts that are made anew compare by their descriptions, which is slow; the same one doesn't.
    extents.fonts[i].font = font;
    extents.lastFont = i;
    return extents.fonts[i];
  }
  if (extents.fonts.size() >= kMostFonts) extents.fonts.clear();
  extents.lastFont = extents.fonts.size();
  extents.fonts.push_back({font, {}});
  return extents.fonts.back();
}

}  // namespace

const MeasuredText& MeasureText(TextExtents& extents, wxDC& dc, std::string_view utf8) {
  BindDevice(extents, dc);
  TextExtents::OfFont& entry = EntryOf(extents, dc.GetFont());
  if (const auto known = entry.texts.find(utf8); known != entry.texts.end()) return known->second;
  if (entry.texts.size() >= kMostTexts) entry.texts.clear();
  MeasuredText measured;
  measured.text = ToWx(utf8);
  measured.size = dc.GetTextExtent(measured.text);
  return entry.texts.emplace(std::string(utf8), std::move(measured)).first->second;
}

}  // namespace vantrel
