// What the screen shows, as red, green and blue bytes. The toolkit's own way keeps a copy of the
// screen, and doesn't hear of what OpenGL has drawn since.
#pragma once

#include <vector>

namespace vantrel {

// Empty when the rectangle isn't wholly on the screen.
std::vector<unsigned char> ScreenPixels(int x, int y, int width, int height);

}  // namespace vantrel
