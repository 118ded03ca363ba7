// What the 2D drawing of a layout carries from call to call.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_set>

#include "doc/layout.h"

namespace vantrel {

struct TextExtents;

// Device units.
struct DeviceSides {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

struct RenderContext {
  const Layout* layout = nullptr;  // null for a piece drawn outside a layout
  // Ids of helix stubs and of what is joined to them without a grade of its own: these keep their
  // plain colours although they are high. Filled anew by each DrawLayoutContents.
  std::unordered_set<std::int32_t> helixLinked;
  // Texts measured so far: the owner's, kept from paint to paint, or lent by TextExtentsOfPaint for
  // one paint and null outside it.
  TextExtents* textExtents = nullptr;
  // Between which sides plates with lengths stand whole, if there are any: paper can't be scrolled,
  // and a length without its first digit is another length.
  std::optional<DeviceSides> platesWithin;
};

}  // namespace vantrel
