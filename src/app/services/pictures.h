// The pictures that a build carries inside the executable, as JPEG data. This build carries none;
// every user copes with an invalid image.
#pragma once

#include <wx/image.h>

#include <span>

namespace vantrel {

inline constexpr int kSplashPicture = 101;
inline constexpr int kInsetPicture = 102;
inline constexpr int kHelpPicture = 103;

struct EmbeddedPicture {
  int id = 0;
  std::span<const unsigned char> jpeg;
};

// The picture with this id, or an invalid image when it is missing or can't be decoded.
wxImage LoadPicture(int id);
wxImage LoadPicture(int id, std::span<const EmbeddedPicture> pictures);

}  // namespace vantrel
