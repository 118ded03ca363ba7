#include "tools/model_sheet/off_screen.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <algorithm>
#include <cstddef>

#include "view3d/gl_headers.h"

namespace vantrel {
namespace {

constexpr int kChannels = 3;

EGLDisplay OpenDisplay() {
  const EGLDisplay display =
      eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
  return eglInitialize(display, nullptr, nullptr) == EGL_TRUE ? display : EGL_NO_DISPLAY;
}

EGLConfig ChooseConfig(EGLDisplay display, int samples) {
  const EGLint wanted[] = {EGL_SURFACE_TYPE,
                           EGL_PBUFFER_BIT,
                           EGL_RENDERABLE_TYPE,
                           EGL_OPENGL_BIT,
                           EGL_RED_SIZE,
                           8,
                           EGL_DEPTH_SIZE,
                           24,
                           EGL_SAMPLE_BUFFERS,
                           samples > 0 ? 1 : 0,
                           EGL_SAMPLES,
                           samples,
                           EGL_NONE};
  EGLConfig config = nullptr;
  EGLint found = 0;
  eglChooseConfig(display, wanted, &config, 1, &found);
  return found > 0 ? config : nullptr;
}

}  // namespace

OffScreen::OffScreen(PaintSize size, int samples) : size_(size) {
  display_ = OpenDisplay();
  if (!display_) return;
  eglBindAPI(EGL_OPENGL_API);
  const EGLConfig config = ChooseConfig(display_, samples);
  if (!config) return;
  const EGLint area[] = {EGL_WIDTH, size.width, EGL_HEIGHT, size.height, EGL_NONE};
  surface_ = eglCreatePbufferSurface(display_, config, area);
  context_ = eglCreateContext(display_, config, EGL_NO_CONTEXT, nullptr);
  if (!surface_ || !context_) return;
  ready_ = eglMakeCurrent(display_, surface_, surface_, context_) == EGL_TRUE;
  if (ready_) SetUpPainting();
}

OffScreen::~OffScreen() {
  if (!display_) return;
  eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  if (context_) eglDestroyContext(display_, context_);
  if (surface_) eglDestroySurface(display_, surface_);
  eglTerminate(display_);
}

std::vector<unsigned char> OffScreen::pixels() const {
  const std::size_t row = static_cast<std::size_t>(size_.width) * kChannels;
  std::vector<unsigned char> fromBelow(row * static_cast<std::size_t>(size_.height));
  glPixelStorei(GL_PACK_ALIGNMENT, 1);
  glReadPixels(0, 0, size_.width, size_.height, GL_RGB, GL_UNSIGNED_BYTE, fromBelow.data());
  std::vector<unsigned char> picture;
  picture.reserve(fromBelow.size());
  for (auto end = fromBelow.end(); end != fromBelow.begin();) {
    const auto begin = end - static_cast<std::ptrdiff_t>(row);
    picture.insert(picture.end(), begin, end);
    end = begin;
  }
  return picture;
}

}  // namespace vantrel
