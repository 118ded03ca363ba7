// Where on its page the toolkit's printer begins to draw.
#pragma once

#include <wx/dc.h>

#include "doc/view_transform.h"

namespace vantrel {

// The device point of a printer's page, of so many dots and `dpi` dots an inch, at which the
// paper's upper left corner lies. The toolkit takes an upright page's margins back also where a
// page lies across, and its origin is then beside the corner by the difference of two margins. The
// origin where the device is no printer or doesn't tell.
DevicePoint paperCorner(wxDC& dc, DeviceSize page);

// The same from the transformation of the page's dots into the printer's units: a coordinate that
// grows must begin at nothing, one that falls must end there.
struct PageTransform {
  double xx = 1.0, yx = 0.0, xy = 0.0, yy = 1.0;  // X = xx * x + xy * y + x0
  double x0 = 0.0, y0 = 0.0;
};
DevicePoint paperCorner(const PageTransform& transform, DeviceSize page);

}  // namespace vantrel
