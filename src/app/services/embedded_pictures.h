// The JPEG data that the build has put into the executable.
#pragma once

#include <span>

namespace vantrel {

struct EmbeddedPicture {
  int id = 0;
  std::span<const unsigned char> jpeg;
};

// Those of resources/ when the program was built; empty for a build without pictures. Written by
// cmake/EmbedPictures.cmake.
std::span<const EmbeddedPicture> EmbeddedPictures();

}  // namespace vantrel
