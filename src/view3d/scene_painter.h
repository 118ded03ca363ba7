// Paints a scene with OpenGL's fixed functions, into whatever context is current.
#pragma once

#include "view3d/scene/camera.h"
#include "view3d/scene/scene.h"

namespace vantrel {

// In device pixels.
struct PaintSize {
  int width = 0;
  int height = 0;
};

// Lights, material and depth test: once in the life of a context. False when the context doesn't
// know fixed functions.
bool SetUpPainting();

// One whole frame from clearing on; the caller swaps the buffers. Without a width or a height the
// projection stays as it is.
void PaintScene(const Scene& scene, const Camera& camera, PaintSize size);

// Only what is in the scene, through whatever matrices and over whatever picture there are.
void PaintContents(const Scene& scene);

}  // namespace vantrel
