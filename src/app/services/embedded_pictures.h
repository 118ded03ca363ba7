// The JPEG and PNG data that the build has put into the executable.
#pragma once

#include <span>

namespace vantrel {

struct EmbeddedPicture {
  int id = 0;
  std::span<const unsigned char> data;
};

// Those of resources/ when the program was built; empty for a build without pictures. Written by
// cmake/EmbedPictures.cmake.
std::span<const EmbeddedPicture> EmbeddedPictures();

// The program's icon, as PNG data; the ids are the sides in pixels. Written by the same.
std::span<const EmbeddedPicture> EmbeddedIcons();

}  // namespace vantrel
