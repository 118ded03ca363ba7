// Apart from the tests: the headers of X redefine half of the language.
#include "tests/view3d/screen_pixels.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace vantrel {

std::vector<unsigned char> ScreenPixels(int x, int y, int width, int height) {
  std::vector<unsigned char> pixels;
  Display* display = XOpenDisplay(nullptr);
  if (!display) return pixels;
  const int screen = DefaultScreen(display);
  const bool inside = x >= 0 && y >= 0 && width > 0 && height > 0 &&
                      x + width <= DisplayWidth(display, screen) &&
                      y + height <= DisplayHeight(display, screen);
  XImage* image =
      inside ? XGetImage(display, RootWindow(display, screen), x, y, static_cast<unsigned>(width),
                         static_cast<unsigned>(height), AllPlanes, ZPixmap)
             : nullptr;
  if (image) {
    for (int row = 0; row < height; ++row)
      for (int column = 0; column < width; ++column) {
        const unsigned long pixel = XGetPixel(image, column, row);
        for (const int shift : {16, 8, 0})
          pixels.push_back(static_cast<unsigned char>(pixel >> shift & 0xFF));
      }
    XDestroyImage(image);
  }
  XCloseDisplay(display);
  return pixels;
}

}  // namespace vantrel
