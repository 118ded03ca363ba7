// The pictures that a build carries inside the executable, as JPEG data. A build may carry none:
// every user copes with an invalid image.
#pragma once

#include <wx/image.h>

#include <span>

#include "app/services/embedded_pictures.h"

namespace vantrel {

inline constexpr int kSplashPicture = 101;
inline constexpr int kInsetPicture = 102;
inline constexpr int kHelpPicture = 103;

// The picture with this id, or an invalid image when it is missing or can't be decoded.
wxImage LoadPicture(int id, std::span<const EmbeddedPicture> pictures = EmbeddedPictures());

}  // namespace vantrel
