#include "render2d/text_extent.h"

#include <wx/dc.h>

namespace vantrel {
namespace {

void BindDevice(TextExtents& extents, const wxDC& dc) {
  double scaleX = 0.0;
  double scaleY = 0.0;
  dc.GetUserScale(&scaleX, &scaleY);
  if (extents.device == &dc && extents.scaleX == scaleX && extents.scaleY == scaleY) return;
  extents = TextExtents{};
  extents.device = &dc;
  extents.scaleX = scaleX;
  extents.scaleY = scaleY;
}

TextExtents::OfFont& EntryOf(TextExtents& extents, const wxFont& font) {
  if (extents.lastFont < extents.fonts.size() && extents.fonts[extents.lastFont].font == font)
    return extents.fonts[extents.lastFont];
  for (std::size_t i = 0; i < extents.fonts.size(); ++i) {
    if (extents.fonts[i].font != font) continue;
    extents.lastFont = i;
    return extents.fonts[i];
  }
  extents.lastFont = extents.fonts.size();
  extents.fonts.push_back({font, {}});
  return extents.fonts.back();
}

}  // namespace

const MeasuredText& MeasureText(TextExtents& extents, wxDC& dc, std::string_view utf8) {
  BindDevice(extents, dc);
  TextExtents::OfFont& entry = EntryOf(extents, dc.GetFont());
  if (const auto known = entry.texts.find(utf8); known != entry.texts.end()) return known->second;
  MeasuredText measured;
  measured.text = wxString::FromUTF8(utf8.data(), utf8.size());
  if (measured.text.empty()) measured.text = wxString::From8BitData(utf8.data(), utf8.size());
  measured.size = dc.GetTextExtent(measured.text);
  return entry.texts.emplace(std::string(utf8), std::move(measured)).first->second;
}

}  // namespace vantrel
