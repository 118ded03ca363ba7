// What a plan is drawn through onto paper: a device context that passes every drawing call on to
// another one, with its colours or with greys in their place, so that a grey page needs no picture
// of the page. The toolkit's printer loses the place of a text that has a ground of its own and
// writes it into the corner of the page; here the ground is drawn first.
#pragma once

#include <wx/dc.h>

namespace vantrel {

enum class PaperColours { asTheyAre, grey };

// Coordinates, scale and clipping are the target's own, which must outlive this object. Knows the
// calls that a plan is drawn with; pictures are passed on as they are.
class PaperDC : public wxDC {
 public:
  PaperDC(wxDC& target, PaperColours colours);
};

// The colour's lightness as a grey of the same opacity.
wxColour greyOf(const wxColour& colour);

}  // namespace vantrel
