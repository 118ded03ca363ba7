// The picture of what doesn't change while a gesture draws over it: kept in a bitmap for as long as
// plan, view and size stay what they were.
#pragma once

#include <wx/bitmap.h>

#include <optional>
#include <vector>

#include "canvas/gestures/canvas_context.h"
#include "doc/layout.h"

class wxDC;

namespace vantrel {

class KeptPicture {
 public:
  // Draws what paintStill draws, pixel for pixel; from the bitmap when it still shows the same.
  // `density` is the device's pixels per client pixel.
  void draw(const CanvasContext& context, wxDC& dc, double density);

  // Gives the bitmap's memory back.
  void forget();

  // How often the picture has been made anew: for tests.
  int timesMade() const { return timesMade_; }

 private:
  // Everything that the still part of a paint depends on. Compared whole with what is to be drawn:
  // there is no counter of changes that someone could forget to raise.
  struct Shown {
    UndoSnapshot records;
    std::vector<Level> levels;
    std::vector<Vec2> baseboard;
    bool baseboardVisible = true;
    bool gridVisible = true;
    bool labelsVisible = true;
    std::int32_t units = 0;
    double gridSize = 0.0;
    ViewTransform view;
    DeviceSize size;
    double density = 1.0;
  };
  static Shown ShownBy(const CanvasContext& context, double density);
  static bool Shows(const Shown& shown, const CanvasContext& context, double density);

  wxBitmap bitmap_;
  std::optional<Shown> shown_;
  int timesMade_ = 0;
};

}  // namespace vantrel
