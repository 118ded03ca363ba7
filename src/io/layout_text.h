// The content of a layout file as one text in memory, without the file around it.
#pragma once

#include <string>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// All lines, each ended by "\n".
std::string LayoutText(const Layout& layout, std::string_view name);

// What LoadLayoutFile does once it has the bytes of the file. Throws MalformedFile, which names
// `path`.
void ReadLayoutText(Layout& layout, std::string_view text, const std::string& path,
                    std::string& nameOut);

}  // namespace vantrel
