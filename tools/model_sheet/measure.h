// What one frame of a scene costs on the renderer at hand.
#pragma once

#include "view3d/scene_painter.h"

namespace vantrel {

// Milliseconds, the median of several frames; each is waited for until it is wholly drawn.
struct FrameCost {
  double whole = 0.0;
  double cleared = 0.0;  // of a frame that is only cleared
  double oneCall = 0.0;  // of a frame that draws the same triangles, grown together into one mesh
};

FrameCost MeasureFrame(const Scene& scene, const Camera& camera, PaintSize size);

}  // namespace vantrel
