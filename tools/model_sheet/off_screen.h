// An OpenGL context that draws into memory: no window, no display server.
#pragma once

#include <vector>

#include "view3d/scene_painter.h"

namespace vantrel {

class OffScreen {
 public:
  // `samples` per pixel smooth the edges; 0 for none. Ready to paint scenes, or ok() is false.
  OffScreen(PaintSize size, int samples);
  ~OffScreen();
  OffScreen(const OffScreen&) = delete;
  OffScreen& operator=(const OffScreen&) = delete;

  bool ok() const { return ready_; }
  PaintSize size() const { return size_; }

  // What has been painted, rows from the top, red, green and blue bytes.
  std::vector<unsigned char> pixels() const;

 private:
  PaintSize size_;
  void* display_ = nullptr;
  void* surface_ = nullptr;
  void* context_ = nullptr;
  bool ready_ = false;
};

}  // namespace vantrel
