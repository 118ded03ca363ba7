#include "render2d/contents_text.h"

#include <wx/dc.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "app/services/wx_text.h"
#include "doc/view_transform.h"
#include "render2d/contents_paint.h"
#include "render2d/text_extent.h"

namespace vantrel {
namespace {

constexpr double kPlateCorner = 3.0;  // pixels

const MeasuredText& Measure(ContentsPaint& paint, std::string_view text) {
  return MeasureText(*paint.context.textExtents, paint.dc, text);
}

wxPoint TopLeft(const MeasuredText& measured, wxPoint centre) {
  return {centre.x - measured.size.GetWidth() / 2, centre.y - measured.size.GetHeight() / 2};
}

}  // namespace

wxFont PlanFont(const ViewTransform& view, int pointSize, int weight) {
  return wxFont(wxFontInfo(view.fontPoints(pointSize))
                    .Family(wxFONTFAMILY_DEFAULT)
                    .Style(wxFONTSTYLE_NORMAL)
                    .Weight(weight));
}

int PlanFontSize(double wanted, int smallest, int largest) {
  return std::clamp(DeviceInt(wanted), smallest, largest);
}

void DrawCentredText(ContentsPaint& paint, std::string_view text, wxPoint centre) {
  const MeasuredText& measured = Measure(paint, text);
  paint.dc.DrawText(measured.text, TopLeft(measured, centre));
}

void DrawTextOnPlate(ContentsPaint& paint, std::string_view text, wxPoint centre, int padX,
                     int padY) {
  const MeasuredText& measured = Measure(paint, text);
  wxPoint corner = TopLeft(measured, centre);
  const int besides = paint.view.pixels(padX);
  const int above = paint.view.pixels(padY);
  if (const std::optional<DeviceSides>& sides = paint.context.platesWithin) {
    corner.x = std::min(corner.x, sides->right - besides - measured.size.GetWidth());
    corner.x = std::max(corner.x, sides->left + besides);
    corner.y = std::min(corner.y, sides->bottom - above - measured.size.GetHeight());
    corner.y = std::max(corner.y, sides->top + above);
  }
  paint.dc.DrawRoundedRectangle(
      corner.x - besides, corner.y - above, measured.size.GetWidth() + 2 * besides,
      measured.size.GetHeight() + 2 * above, kPlateCorner * paint.view.pixel);
  paint.dc.DrawText(measured.text, corner);
}

TextBounds::TextBounds(wxDC& dc, wxFont font) : dc_(dc), font_(std::move(font)) {
  // No plain character of any common face is wider than 1.5 times its W or its line's height.
  wxCoord width = 0;
  wxCoord height = 0;
  dc.GetTextExtent("W", &width, &height, nullptr, nullptr, &font_);
  perCharacter_ = 3 * std::max(width, height) / 2 + 1;
}

wxSize TextBounds::of(std::string_view text) const {
  const bool plain =
      std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
  if (!plain) {
    // The toolkit's own measure of several lines would take the device's font instead of this one.
    wxCoord width = 0;
    wxCoord height = 0;
    dc_.GetTextExtent(ToWx(text), &width, &height, nullptr, nullptr, &font_);
    const double lines = 1.0 + static_cast<double>(std::count(text.begin(), text.end(), '\n'));
    // Stacked accents may leave the measured box.
    return {width + perCharacter_, DeviceInt(lines * height) + perCharacter_};
  }
  return {DeviceInt(static_cast<double>(text.size()) * perCharacter_), perCharacter_};
}

wxSize TextBounds::ofLength(double lengthMm) const {
  // One digit before the point, up to two behind it, a space, two letters and a rounding up to the
  // next power of ten; the other digits before the point by their number.
  constexpr int kShortest = 8;
  const int more = lengthMm > 1.0 ? static_cast<int>(std::log10(lengthMm)) : 0;
  return {(kShortest + more) * perCharacter_, perCharacter_};
}

}  // namespace vantrel
