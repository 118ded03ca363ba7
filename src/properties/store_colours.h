// The colour of the buttons that lead to the store.
#pragma once

#include <wx/colour.h>

namespace vantrel {

inline wxColour StoreGreen() {
  return {20, 110, 20};
}

}  // namespace vantrel
