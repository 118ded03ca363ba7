// A device context that passes every drawing call on to another one with its colours turned to
// grey: a page in shades of grey that needs no picture of the page.
#pragma once

#include <wx/dc.h>

namespace vantrel {

// Coordinates, scale and clipping are the target's own, which must outlive this object. Knows the
// calls that a plan is drawn with; pictures are passed on as they are.
class GreyDC : public wxDC {
 public:
  explicit GreyDC(wxDC& target);
};

// The colour's lightness as a grey of the same opacity.
wxColour greyOf(const wxColour& colour);

}  // namespace vantrel
