// Between the document's UTF-8 texts and the toolkit's.
#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace vantrel {

// Bytes that are not UTF-8, as an old file or file name may hold, are shown one letter per byte.
inline wxString ToWx(std::string_view text) {
  const wxString wide = wxString::FromUTF8(text.data(), text.size());
  return wide.empty() ? wxString::From8BitData(text.data(), text.size()) : wide;
}

inline std::string ToUtf8(const wxString& text) {
  return text.utf8_string();
}

// Without blanks at both ends.
inline wxString Trimmed(wxString text) {
  return text.Trim(true).Trim(false);
}

}  // namespace vantrel
