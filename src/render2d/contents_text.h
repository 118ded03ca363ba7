// Text on a plan: the toolkit's strings and fonts, and boxes for skipping texts that are out of
// view without measuring them.
#pragma once

#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <string_view>

class wxDC;

namespace vantrel {

struct ContentsPaint;
struct ViewTransform;

// A font of the default family, upright, with no face name, that looks on the view's device as
// `pointSize` points do on a screen. `weight` is 400 or 700.
wxFont PlanFont(const ViewTransform& view, int pointSize, int weight);

// `wanted` truncated, within [smallest, largest]. The default upper limit only keeps the toolkit
// alive at absurd scales: a page at 1:1 and 4800 dots per inch stays below it.
inline constexpr int kLargestFontPoints = 4000;
int PlanFontSize(double wanted, int smallest, int largest = kLargestFontPoints);

// The text in the device's present font with its box's centre at `centre`, halves truncated.
void DrawCentredText(ContentsPaint& paint, std::string_view text, wxPoint centre);

// The same on a rounded plate in the device's present brush and pen, which reaches `padX` and
// `padY` pixels beyond the text's box.
void DrawTextOnPlate(ContentsPaint& paint, std::string_view text, wxPoint centre, int padX,
                     int padY);

// Upper bounds for the size of texts in one font. Only one measurement is made for all texts of
// plain ASCII characters; any other text is measured itself.
class TextBounds {
 public:
  TextBounds(wxDC& dc, wxFont font);

  wxSize of(std::string_view text) const;
  // For what FormatLength makes of a finite length, whatever the units.
  wxSize ofLength(double lengthMm) const;
  // The bound for one ASCII character; a line is never higher than this either.
  int perCharacter() const { return perCharacter_; }

 private:
  wxDC& dc_;
  wxFont font_;
  int perCharacter_ = 0;
};

}  // namespace vantrel
