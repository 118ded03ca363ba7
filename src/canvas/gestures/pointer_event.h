// Mouse and key events as plain records, so that gestures run without a window.
#pragma once

#include "doc/view_transform.h"

namespace vantrel {

struct Modifiers {
  bool ctrl = false;
  bool shift = false;
  bool alt = false;

  bool none() const { return !ctrl && !shift && !alt; }
};

struct PointerEvent {
  DevicePoint at;  // client pixels
  Vec2 world;      // the same point in mm, under the view at the time of the event
  Modifiers mods;
  bool leftDown = false;  // buttons held
  bool middleDown = false;
  bool rightDown = false;
  bool spaceDown = false;
  int wheelRotation = 0;
};

struct KeyEvent {
  int code = 0;  // a character, or a code of the toolkit's key table
  Modifiers mods;
};

}  // namespace vantrel
