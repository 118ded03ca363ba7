// The red in which the panel warns.
#pragma once

#include <wx/colour.h>

namespace vantrel {

inline const wxColour kWarningColour(200, 40, 40);

}  // namespace vantrel
