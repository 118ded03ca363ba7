#include "view3d/track_gl_canvas.h"

#include <wx/dcclient.h>
#include <wx/debug.h>
#include <wx/log.h>
#include <wx/utils.h>

#include <cmath>

#include "view3d/scene_painter.h"

namespace vantrel {
namespace {

// A depth of 16 bits, as the toolkit asks for by itself, can't tell track from the board under it.
constexpr int kDepthBits = 24;

// After the last change of a burst. The canvas, which paints within one frame of the screen, comes
// first: a 3D frame can take a tenth of a second without a graphics card.
constexpr int kSettleMs = 60;

wxGLAttributes DisplayAttributes(int samples) {
  wxGLAttributes attributes;
  attributes.PlatformDefaults().RGBA().DoubleBuffer().Depth(kDepthBits);
  if (samples > 0) attributes.SampleBuffers(1).Samplers(samples);
  attributes.EndList();
  return attributes;
}

// Below 3.2 there are no profiles yet, so this is a context with the fixed functions.
wxGLContextAttrs ContextAttributes() {
  wxGLContextAttrs attributes;
  attributes.PlatformDefaults();
#ifndef __WXOSX__  // where asking for a profile at all means 3.2
  attributes.CoreProfile();
#endif
  attributes.OGLVersion(2, 1).EndList();
  return attributes;
}

// Where there is no OpenGL the toolkit fails checks of its own, each with a dialog. We ask just to
// hear a no.
class QuietToolkit {
 public:
  QuietToolkit() : handler_(wxSetAssertHandler(nullptr)) {}
  ~QuietToolkit() { wxSetAssertHandler(handler_); }
  QuietToolkit(const QuietToolkit&) = delete;
  QuietToolkit& operator=(const QuietToolkit&) = delete;

 private:
  wxAssertHandler_t handler_;
  wxLogNull noLog_;
};

}  // namespace

bool TrackGLCanvas::IsSupported(int samples) {
#ifdef __WXGTK__
  // The toolkit reaches OpenGL through X here, and doesn't ask whether there is any.
  if (wxGetDisplayInfo().type != wxDisplayX11) return false;
#endif
  const QuietToolkit quiet;
  return IsDisplaySupported(DisplayAttributes(samples));
}

TrackGLCanvas* TrackGLCanvas::Make(wxWindow* parent, const vantrel::Layout& layout,
                                   std::span<const int> sampleCounts) {
  for (const int samples : sampleCounts) {
    if (!IsSupported(samples)) continue;
    auto* canvas = new TrackGLCanvas(parent, layout, samples);
    if (canvas->hasContext()) return canvas;
    canvas->Destroy();
  }
  return nullptr;
}

TrackGLCanvas::TrackGLCanvas(wxWindow* parent, const vantrel::Layout& layout, int samples)
    : wxGLCanvas(parent, DisplayAttributes(samples), wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxFULL_REPAINT_ON_RESIZE | wxBORDER_NONE, "GLCanvas") {
  makeContext();
  build(layout);
  bindEvents();
}

TrackGLCanvas::~TrackGLCanvas() {
  if (HasCapture()) ReleaseMouse();
}

void TrackGLCanvas::makeContext() {
  const QuietToolkit quiet;
  const wxGLContextAttrs attributes = ContextAttributes();
  context_ = std::make_unique<wxGLContext>(this, nullptr, &attributes);
  // Old drivers can't be asked for a version, and give what they have.
  if (!context_->IsOK()) context_ = std::make_unique<wxGLContext>(this);
}

bool TrackGLCanvas::hasContext() const {
  return context_->IsOK();
}

void TrackGLCanvas::bindEvents() {
  Bind(wxEVT_PAINT, [this](wxPaintEvent&) { onPaint(); });
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    Refresh();
    event.Skip();
  });
  // The second of two quick presses comes as a double click only.
  for (const auto& press :
       {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK})
    Bind(press, &TrackGLCanvas::onPress, this);
  for (const auto& release : {wxEVT_LEFT_UP, wxEVT_RIGHT_UP})
    Bind(release, [this](wxMouseEvent&) { onRelease(); });
  Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { onRelease(); });
  Bind(wxEVT_MOTION, &TrackGLCanvas::onMotion, this);
  Bind(wxEVT_MOUSEWHEEL, &TrackGLCanvas::onWheel, this);
  settled_.SetOwner(this);
  Bind(wxEVT_TIMER, [this](wxTimerEvent&) { onSettled(); });
  Bind(wxEVT_KEY_DOWN, &TrackGLCanvas::onKey, this);
}

void TrackGLCanvas::build(const vantrel::Layout& layout) {
  scene_ = BuildScene(layout);
  frameScene(camera_, scene_);
  changed_ = nullptr;
}

void TrackGLCanvas::Rebuild(const vantrel::Layout& layout) {
  changed_ = &layout;
  settled_.StartOnce(kSettleMs);
}

void TrackGLCanvas::onSettled() {
  // A drag on the canvas that pauses goes on: it must not wait for a frame that few would look at.
  const wxWindow* busy = GetCapture();
  if (busy && busy != this)
    settled_.StartOnce(kSettleMs);
  else
    Refresh();
}

void TrackGLCanvas::onPaint() {
  const wxPaintDC dc(this);
  if (!IsShownOnScreen()) return;
  if (changed_) build(*changed_);
  if (!SetCurrent(*context_)) return;
  if (!glReady_) {
    SetUpPainting();
    glReady_ = true;
  }
  const wxSize size = GetClientSize();
  const double scale = GetContentScaleFactor();
  PaintScene(scene_, camera_,
             {static_cast<int>(std::lround(size.GetWidth() * scale)),
              static_cast<int>(std::lround(size.GetHeight() * scale))});
  SwapBuffers();
}

void TrackGLCanvas::onPress(wxMouseEvent& event) {
  lastMouse_ = event.GetPosition();
  leftDown_ = event.LeftIsDown();
  rightDown_ = event.RightIsDown();
  if (!HasCapture()) CaptureMouse();
  SetFocus();
}

void TrackGLCanvas::onMotion(wxMouseEvent& event) {
  const wxPoint way = event.GetPosition() - lastMouse_;
  lastMouse_ = event.GetPosition();
  // A release can go elsewhere, to another window or a dialog.
  leftDown_ = leftDown_ && event.LeftIsDown();
  rightDown_ = rightDown_ && event.RightIsDown();
  if (!leftDown_ && !rightDown_) {
    onRelease();
    return;
  }
  if (leftDown_) rotateByDrag(camera_, way.x, way.y);
  if (rightDown_) panByDrag(camera_, way.x, way.y);
  Refresh();
}

void TrackGLCanvas::onRelease() {
  leftDown_ = false;
  rightDown_ = false;
  if (HasCapture()) ReleaseMouse();
}

void TrackGLCanvas::onWheel(wxMouseEvent& event) {
  // A sideways wheel is not ours, but some platforms tell a wheel turned with Shift as one.
  if (event.GetWheelAxis() == wxMOUSE_WHEEL_HORIZONTAL && !event.ShiftDown()) {
    event.Skip();
    return;
  }
  zoomByWheel(camera_, event.GetWheelRotation());
  Refresh();
}

void TrackGLCanvas::onKey(wxKeyEvent& event) {
  const int code = event.GetKeyCode();
  if ((code != 'R' && code != 'r') || event.HasModifiers()) {
    event.Skip();
    return;
  }
  resetDirection(camera_);
  Refresh();
}

}  // namespace vantrel
