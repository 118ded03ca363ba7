// The window with the 3D view of the open layout: to look at, not to edit.
#pragma once

#include <wx/frame.h>

#include "doc/layout.h"

namespace vantrel {

class TrackGLCanvas;

class View3DFrame : public wxFrame {
 public:
  // Shows itself. `layout` must live as long as the frame.
  View3DFrame(wxWindow* parent, const vantrel::Layout& layout);

  // The layout changed; it is looked at again before the next paint.
  void Rebuild(const vantrel::Layout& layout);

  // Null where the display offers no OpenGL; the status bar says so then.
  TrackGLCanvas* canvas() { return canvas_; }

 private:
  TrackGLCanvas* canvas_ = nullptr;
};

}  // namespace vantrel
