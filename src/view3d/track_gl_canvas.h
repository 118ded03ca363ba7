// The window that shows a layout's scene and turns mouse and keys into camera moves.
#pragma once

#include <wx/glcanvas.h>
#include <wx/timer.h>

#include <array>
#include <memory>
#include <span>

#include "doc/layout.h"
#include "view3d/scene/camera.h"
#include "view3d/scene/scene.h"

namespace vantrel {

class TrackGLCanvas : public wxGLCanvas {
 public:
  // Samples a pixel that smooth edges, as wished: the first that the driver has is taken.
  static constexpr std::array<int, 2> kSampleCounts{4, 0};

  // False where the display has no OpenGL with so many samples to offer: no canvas of that kind may
  // be made then.
  static bool IsSupported(int samples = 0);

  // The first canvas with a context, null where the display has none to offer.
  static TrackGLCanvas* Make(wxWindow* parent, const vantrel::Layout& layout,
                             std::span<const int> sampleCounts = kSampleCounts);

  // The scene is built at once, from the layout as it is now.
  TrackGLCanvas(wxWindow* parent, const vantrel::Layout& layout, int samples = 0);
  ~TrackGLCanvas() override;
  TrackGLCanvas(const TrackGLCanvas&) = delete;
  TrackGLCanvas& operator=(const TrackGLCanvas&) = delete;

  // A context came with the canvas. Without one it stays blank.
  bool hasContext() const;

  // The layout changed. The scene is built anew and painted once a burst of changes is over and no
  // other window holds the mouse, or before an earlier paint. The layout must live until then.
  void Rebuild(const vantrel::Layout& layout);

  const Scene& scene() const { return scene_; }
  const Camera& camera() const { return camera_; }
  // A change came after the scene was built.
  bool isStale() const { return changed_ != nullptr; }

 private:
  void makeContext();
  void bindEvents();
  void build(const vantrel::Layout& layout);
  void onSettled();
  void onPaint();
  void onPress(wxMouseEvent& event);
  void onMotion(wxMouseEvent& event);
  void onRelease();
  void onWheel(wxMouseEvent& event);
  void onKey(wxKeyEvent& event);

  std::unique_ptr<wxGLContext> context_;
  bool glReady_ = false;
  Scene scene_;
  Camera camera_;
  wxTimer settled_;                           // no change has come for a while
  const vantrel::Layout* changed_ = nullptr;  // what the next paint builds from
  wxPoint lastMouse_;
  bool leftDown_ = false;
  bool rightDown_ = false;
};

}  // namespace vantrel
