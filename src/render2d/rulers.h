// The two rulers along the top and left edge of the canvas.
#pragma once

#include <cstdint>
#include <string>

#include "doc/view_transform.h"

class wxDC;

namespace vantrel {

inline constexpr int kRulerWidth = 20;  // device units

// The tick step in the units' own measure: the first step of the units' table that is at least 60
// device units long, else the table's last.
double rulerStep(std::int32_t units, double scale);

// The label of a tick whose value is `value` in the units' own measure.
std::string rulerLabel(std::int32_t units, double value);

// Paints over what is there.
void drawRulers(wxDC& dc, const ViewTransform& view, std::int32_t units, DeviceSize client);

}  // namespace vantrel
