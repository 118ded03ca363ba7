// From the document's UTF-8 texts to the toolkit's.
#pragma once

#include <wx/string.h>

#include <string_view>

namespace vantrel {

// Bytes that are not UTF-8, as an old file name may hold, are shown one letter per byte.
inline wxString Text(std::string_view utf8) {
  const wxString wide = wxString::FromUTF8(utf8.data(), utf8.size());
  return wide.empty() ? wxString::From8BitData(utf8.data(), utf8.size()) : wide;
}

}  // namespace vantrel
