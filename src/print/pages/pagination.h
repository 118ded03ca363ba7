// How a print is laid over sheets: the scale, the number of sheets, and what each one shows. Plain
// arithmetic in device pixels, with no window and no printer.
#pragma once

#include <cstdint>

#include "doc/view_transform.h"
#include "print/pages/print_bounds.h"
#include "print/pages/print_options.h"

namespace vantrel {

struct Pagination {
  double scale = 1.0;  // device units per mm
  int pagesAcross = 1;
  int pagesDown = 1;

  // Of all sheets; the largest int when there are more.
  int pageCount() const;

  friend bool operator==(const Pagination&, const Pagination&) = default;
};

// `page` is the page's size in device pixels, `dpi` the printer's horizontal resolution: below 1 it
// counts as 300, as a scale or a percentage below 1 counts as 1. A sheet that would be filled by
// less than a billionth isn't begun, so that what fits exactly doesn't spill.
Pagination paginate(const PrintBounds& bounds, const PrintOptions& options, DeviceSize page,
                    int dpi);

// A rectangle of a page, in device pixels.
struct PageArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const PageArea&, const PageArea&) = default;
};

// The page without its margins.
PageArea usableArea(DeviceSize page);

// The view under which the layout is drawn for page `number`, from 1. A single page has its content
// centred; of several each shows what the one before it left.
ViewTransform pageView(const Pagination& pagination, const PrintBounds& bounds, DeviceSize page,
                       int number);

// Where page `number` may be drawn on: up to the seams with its neighbours, and up to the paper's
// edge where there is none, because beds and labels reach beyond the bounds.
PageArea drawnArea(const Pagination& pagination, DeviceSize page, int number);

// All sheets together but half of their outer margins, seen from page `number`: what must be whole on
// paper stands in it, and the same on both sides of a seam.
PageArea wholeArea(const Pagination& pagination, DeviceSize page, int number);

}  // namespace vantrel
