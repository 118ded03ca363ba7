// The state of the canvas and the context that every gesture function gets. One record per gesture;
// whether it is active is a flag of its own, and the order in which the handlers test the flags
// (canvas/event_order.cpp) is the state machine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "canvas/gestures/canvas_host.h"
#include "canvas/operations/clipboard.h"
#include "canvas/operations/hit_test.h"
#include "canvas/operations/moving.h"
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

// A press on a piece that may become a drag.
struct SelectionPending {
  bool active = false;
  DevicePoint from;
};

// The selection follows the pointer with the left button down.
struct SelectionDrag {
  bool active = false;
  bool moved = false;
  Vec2 from;        // world point of the press
  MoveStart start;  // taken at the press
  BlockSnap snap;   // what the drop would join
};

struct RubberBand {
  bool active = false;
  DevicePoint from;
  DevicePoint to;
};

// The selection turns about a pivot with Alt and the left button.
struct AltRotate {
  bool active = false;
  Vec2 pivot;                  // mm
  double startAngle = 0.0;     // degrees, of the press about the pivot on the screen
  std::vector<Pose> start;     // pieces, then scenery
  double shownAngle = 0.0;     // degrees
  bool flash = false;          // shown in green, for a moment
  std::int32_t helix = kNone;  // the helix that turns as a whole
  double helixHeading = 0.0;   // its heading at the start, degrees
};

// The tape between the first click and the second.
struct MeasureDraft {
  bool active = false;
  Vec2 start;  // mm
  Vec2 end;
};

// The polygon whose vertices are being clicked.
struct PolygonDraft {
  bool active = false;
  std::vector<Vec2> vertices;  // mm
  Vec2 pointer;                // mm
  bool closeHover = false;     // a click would close it
};

struct LabelDrag {
  bool active = false;
  std::int32_t label = kNone;
  Vec2 grip;  // mm, from the label to the press
};

struct MeasureMove {
  bool active = false;
  MeasurementPart part = MeasurementPart::line;  // what was pressed; both move alike
  Vec2 from;                                     // world point of the press
  Measurement start;                             // the record as it was
};

struct ShapeMove {
  bool active = false;
  std::int32_t shape = kNone;
  Vec2 from;
  std::vector<Vec2> start;  // its vertices
};

struct DeckDrag {
  bool active = false;
  std::int32_t level = kNone;
  Vec2 from;
  std::vector<Vec2> start;  // its outline
};

// A scenery item is resized by one of its handles; the opposite one stays where it is.
struct SceneryResize {
  bool active = false;
  std::int32_t item = kNone;
  std::int32_t handle = 0;
  Vec2 fixed;  // mm
  double scalex = 1.0;
  double scaley = 1.0;
};

// What the status bar says of the tool or of what hangs at the pointer.
struct Prompt {
  std::string text;    // empty while there is none
  std::string before;  // what stood in its place
};

struct CanvasState {
  ViewTransform view;
  PaletteDrag paletteDrag;
  SceneryDrag sceneryDrag;
  HelixPlacement helixPlacement;
  ButtonPan buttonPan;
  SpacePan spacePan;
  SelectionPending selectionPending;
  SelectionDrag selectionDrag;
  RubberBand rubberBand;
  AltRotate altRotate;
  MeasureDraft measureDraft;
  PolygonDraft polygonDraft;
  LabelDrag labelDrag;
  MeasureMove measureMove;
  ShapeMove shapeMove;
  DeckDrag deckDrag;
  SceneryResize sceneryResize;
  Clipboard clipboard;  // outlives the layout it was copied from
  // The press that ends a double click was the clone's: the next one does nothing.
  bool swallowNextClick = false;
  // The user has agreed to move graded track; asked once in a run of the program.
  bool gradedMoveConfirmed = false;
  Prompt prompt;
  CanvasCursor handleCursor = CanvasCursor::normal;  // what the last hover showed
  RenderContext render;
};

struct CanvasContext {
  Layout& layout;
  CanvasState& state;
  CanvasHost& host;
};

}  // namespace vantrel
