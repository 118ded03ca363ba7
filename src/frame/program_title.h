// The program's name as title bars show it.
#pragma once

namespace vantrel {

inline constexpr const char* kProgramTitle = "Vantrel v1.5 by Kelmor";

}  // namespace vantrel
