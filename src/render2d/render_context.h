// What the 2D drawing of a layout carries from call to call.
#pragma once

#include <cstdint>
#include <unordered_set>

#include "doc/layout.h"

namespace vantrel {

struct TextExtents;

struct RenderContext {
  const Layout* layout = nullptr;  // null for a piece drawn outside a layout
  // Ids of helix stubs and of what is joined to them without a grade of its own: these keep their
  // plain colours although they are high. Filled anew by each DrawLayoutContents.
  std::unordered_set<std::int32_t> helixLinked;
  // Texts measured so far: the owner's, kept from paint to paint, or lent by TextExtentsOfPaint for
  // one paint and null outside it.
  TextExtents* textExtents = nullptr;
};

}  // namespace vantrel
