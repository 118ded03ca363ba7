// Zooming and fitting the view of the canvas.
#pragma once

#include "canvas/gestures/canvas_context.h"

namespace vantrel {

// Pixels per mm that the wheel and the zoom commands reach.
inline constexpr double kMinZoomScale = 0.3;
inline constexpr double kMaxZoomScale = 20.0;
// A large layout may be fitted at a smaller scale than the wheel reaches; the next wheel step then
// leads back to kMinZoomScale.
inline constexpr double kMinFitScale = 0.05;

inline constexpr double kZoomInCommand = 1.25;
inline constexpr double kZoomOutCommand = 0.8;

// Multiplies the scale within the limits and keeps the world point under `point` where it is.
void zoomAt(CanvasContext& context, DevicePoint point, double factor);
// The same about the middle of the client area.
void zoomCentred(CanvasContext& context, double factor);

// Fits pieces, scenery, shapes and helices, and without `trackOnly` decks and baseboard too, into
// the client area. resetView when there is nothing to fit. The result is finite whatever numbers
// the layout holds.
void zoomToFit(CanvasContext& context, bool trackOnly);

// Moves the view just so far, in whole pixels, that the point can be seen beside the rulers and a
// little off the edges; not at all when it can be seen already. The scale stays.
void bringIntoView(CanvasContext& context, Vec2 world);

void resetView(CanvasContext& context);
void resetViewUnitScale(CanvasContext& context);

void showGrid(CanvasContext& context, bool visible);

}  // namespace vantrel
