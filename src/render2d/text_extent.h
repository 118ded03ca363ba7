// Remembers how big texts are while one paint lasts: measuring a text costs half as much as drawing
// it, and a plan shows the same few part numbers over and over.
#pragma once

#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// A text ready to be drawn, and its size in the logical units of the device it was measured on.
struct MeasuredText {
  wxString text;
  wxSize size;
};

// Measurements made on one device, by font and text. The same font is of another size on a screen,
// on a page and in a vector file, and device contexts come and go at the same addresses; therefore
// a TextExtents doesn't outlive the paint it was made for, unless its owner knows better: a window
// always paints on the same kind of device.
struct TextExtents {
  // Set by an owner all of whose devices measure alike: the measurements then serve them all.
  bool alikeDevices = false;
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>{}(text);
    }
  };
  struct OfFont {
    wxFont font;
    std::unordered_map<std::string, MeasuredText, TextHash, std::equal_to<>> texts;
  };

  const wxDC* device = nullptr;  // the one measured on
  double scaleX = 0.0;           // its user scale at that time
  double scaleY = 0.0;
  std::vector<OfFont> fonts{};
  std::size_t lastFont = 0;  // where the latest text was found
};

// `utf8` in the font that `dc` has now, measured unless `extents` knows it already. Measurements of
// another device, or of the same at another user scale, are dropped first, and those of fonts and
// texts beyond a bound. What is returned lives until the next call. Bytes that aren't UTF-8 count
// as Latin-1, so that a damaged text stays visible.
const MeasuredText& MeasureText(TextExtents& extents, wxDC& dc, std::string_view utf8);

// Lends a context that has none a TextExtents for as long as this object lives: one paint.
class TextExtentsOfPaint {
 public:
  explicit TextExtentsOfPaint(RenderContext& context)
      : context_(context), before_(context.textExtents) {
    if (before_ == nullptr) context_.textExtents = &extents_;
  }
  ~TextExtentsOfPaint() { context_.textExtents = before_; }
  TextExtentsOfPaint(const TextExtentsOfPaint&) = delete;
  TextExtentsOfPaint& operator=(const TextExtentsOfPaint&) = delete;

 private:
  RenderContext& context_;
  TextExtents* before_;
  TextExtents extents_;
};

}  // namespace vantrel
