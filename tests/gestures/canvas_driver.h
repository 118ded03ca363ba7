// Drives the whole editor without a window: a layout, the canvas state, a recording host, and the
// user's hands.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "canvas/event_order.h"
#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"
#include "canvas/operations/placing.h"
#include "catalog/track_catalog.h"
#include "tests/support/recording_dc.h"
#include "tests/support/recording_host.h"

namespace vantrel {

inline constexpr int kNotch = 120;  // of a wheel

class CanvasTest : public testing::Test {
 protected:
  Layout layout;
  CanvasState state;
  RecordingHost host;
  CanvasContext context{layout, state, host};
  // What the user holds down.
  PointerEvent held;

  PointerEvent at(int x, int y) const {
    PointerEvent event = held;
    event.at = {x, y};
    event.world = state.view.toWorld(event.at);
    return event;
  }

  bool move(int x, int y) { return onMotion(context, at(x, y)); }
  bool pressLeft(int x, int y) {
    held.leftDown = true;
    return onLeftPress(context, at(x, y));
  }
  bool releaseLeft(int x, int y) {
    held.leftDown = false;
    return onLeftRelease(context, at(x, y));
  }
  bool clickLeft(int x, int y) {
    const bool taken = pressLeft(x, y);
    releaseLeft(x, y);
    return taken;
  }
  bool pressMiddle(int x, int y) {
    held.middleDown = true;
    return onMiddlePress(context, at(x, y));
  }
  bool releaseMiddle(int x, int y) {
    held.middleDown = false;
    return onMiddleRelease(context, at(x, y));
  }
  bool pressRight(int x, int y) { return onRightPress(context, at(x, y)); }
  bool wheel(int x, int y, int rotation) {
    PointerEvent event = at(x, y);
    event.wheelRotation = rotation;
    return onWheel(context, event);
  }
  bool key(int code) { return onKey(context, {.code = code, .mods = held.mods}); }
  bool type(int character) { return onCharacter(context, {.code = character, .mods = held.mods}); }

  std::unique_ptr<RecordingDC> paint() {
    auto dc = std::make_unique<RecordingDC>(wxSize(host.client.width, host.client.height));
    paintCanvas(context, *dc);
    return dc;
  }

  // A view of ten pixels to the millimetre with the world's origin at the corner: pixel 249 is
  // 24.9 mm.
  void viewTenPixelsPerMm() { state.view = {.scale = 10.0, .offsetX = 0.0, .offsetY = 0.0}; }

  // Puts a piece into the layout, not joined to anything; returns its id.
  std::int32_t lay(const std::string& part, const Pose& pose, std::int32_t level = 1) {
    const PieceDef* const def = findPart(part);
    EXPECT_NE(def, nullptr) << part;
    Piece piece = NewPiece(*def, pose);
    piece.id = layout.nextId++;
    piece.level = level;
    layout.pieces.push_back(piece);
    return piece.id;
  }
};

}  // namespace vantrel
