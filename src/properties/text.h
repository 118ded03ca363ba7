// From the document's UTF-8 texts to the toolkit's.
#pragma once

#include <wx/string.h>

#include <string_view>

namespace vantrel {

// Bytes that are not UTF-8, as a file may hold, are shown one letter per byte.
inline wxString ShownText(std::string_view text) {
  const wxString wide = wxString::FromUTF8(text.data(), text.size());
  return wide.empty() ? wxString::From8BitData(text.data(), text.size()) : wide;
}

}  // namespace vantrel
