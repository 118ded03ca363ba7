#include "io/readable_names.h"

#include <optional>

#include "io/layout_file.h"
#include "io/layout_text.h"

namespace vantrel {
namespace {

// The layout as it comes back from its file; nothing when the file can't be read.
std::optional<Layout> WrittenAndRead(const Layout& layout, std::string_view name) {
  Layout read;
  std::string readName;
  try {
    ReadLayoutText(read, LayoutText(layout, name), "", readName);
  } catch (const MalformedFile&) {
    return std::nullopt;
  }
  return read;
}

// With a value in each field that no fallback has. The red is what the reader makes of a colour
// that applies to track.
Level UnusualLevel(const std::string& name) {
  return {.id = 3,
          .name = name,
          .visible = false,
          .height = 57.5,
          .trackcolor = true,
          .r = 1,
          .g = 20,
          .b = 30,
          .outline = {}};
}

}  // namespace

bool IsReadableLayoutName(std::string_view name) {
  Layout layout;
  layout.units = kInches;
  const std::optional<Layout> read = WrittenAndRead(layout, name);
  return read && read->units == kInches;
}

bool IsReadableLevelName(const std::string& name) {
  Layout layout;
  layout.levels = {UnusualLevel(name)};
  std::optional<Layout> read = WrittenAndRead(layout, "Plan");
  if (!read || read->levels.size() != 1) return false;
  // Of the name itself a file gives back what it can: an ampersand comes back as its entity.
  read->levels[0].name = name;
  return read->levels == layout.levels;
}

}  // namespace vantrel
