// The state of the canvas and the context that every gesture function gets. One record per gesture;
// whether it is active is a flag of its own, and the order in which the handlers test the flags
// (canvas/event_order.cpp) is the state machine.
#pragma once

#include <cstdint>
#include <string>

#include "canvas/gestures/canvas_host.h"
#include "canvas/operations/snap.h"
#include "doc/layout.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"

namespace vantrel {

// A piece from the palette that follows the pointer until the next left press.
struct PaletteDrag {
  bool active = false;
  std::string part;
  Vec2 at;                // free world position, mm
  double rotation = 0.0;  // degrees
  SnapResult snap;
};

struct SceneryDrag {
  bool active = false;
  std::string item;
  Vec2 at;
  double rotation = 0.0;
};

// A helix kit that follows the pointer.
struct HelixPlacement {
  bool active = false;
  std::string kit;
  Vec2 at;
};

// Middle button, or Ctrl with the left button on empty canvas.
struct ButtonPan {
  bool active = false;
  bool moved = false;  // the threshold has been passed
  DevicePoint from;
  double offsetX = 0.0;  // the view's offsets at the press
  double offsetY = 0.0;
};

// Space held with the left button.
struct SpacePan {
  bool active = false;
  DevicePoint from;
  double offsetX = 0.0;
  double offsetY = 0.0;
};

struct CanvasState {
  ViewTransform view;
  PaletteDrag paletteDrag;
  SceneryDrag sceneryDrag;
  HelixPlacement helixPlacement;
  ButtonPan buttonPan;
  SpacePan spacePan;
  RenderContext render;
};

struct CanvasContext {
  Layout& layout;
  CanvasState& state;
  CanvasHost& host;
};

}  // namespace vantrel
