// Names that a file can hold but not give back. The reader searches a line for the name of an
// attribute, an equals sign and a quote: a name that ends like that hides what stands behind it.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// False for a layout's name after which its units are misread, such as one that ends in "units=".
bool IsReadableLayoutName(std::string_view name);

// False for a level's name after which something else of the level is misread, such as one that
// ends in "height=" or "r=".
bool IsReadableLevelName(const std::string& name);

}  // namespace vantrel
