// Fonts of the frame's dialogs.
#pragma once

#include <wx/font.h>

namespace vantrel {

inline wxFont OnePointLarger(wxFont font) {
  font.SetPointSize(font.GetPointSize() + 1);
  return font;
}

}  // namespace vantrel
