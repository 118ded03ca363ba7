// Functions of the libraries that wxWidgets itself stands on, for what it has no call for. They are
// loaded with it, but their headers are no part of the build.
#pragma once

#include <wx/dynlib.h>

namespace vantrel {

// Null where the program runs on other libraries.
template <typename Function>
Function* FunctionBelowToolkit(const char* name) {
  return reinterpret_cast<Function*>(
      wxDynamicLibrary::RawGetSymbol(wxDynamicLibrary::GetProgramHandle(), name));
}

}  // namespace vantrel
