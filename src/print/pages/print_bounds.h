// The extent of what is printed.
#pragma once

#include "doc/layout.h"
#include "print/pages/print_options.h"

namespace vantrel {

// World millimetres.
struct PrintBounds {
  double minX = 0.0;
  double minY = 0.0;
  double maxX = 1000.0;
  double maxY = 1000.0;

  // At least 1 mm each.
  double width() const;
  double height() const;

  friend bool operator==(const PrintBounds&, const PrintBounds&) = default;
};

// Covers both ends of each piece's straight line (of the active level only, unless the options want
// all), the middle of every scenery item on any level, and with the options' leave the baseboard.
// Points that are not finite count for nothing. With nothing to print the default square.
PrintBounds boundsOfPrint(const Layout& layout, const PrintOptions& options);

}  // namespace vantrel
