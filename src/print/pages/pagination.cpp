#include "print/pages/pagination.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrel {
namespace {

constexpr double kUsablePart = 0.92;  // of the page
constexpr double kMarginPart = 0.04;
constexpr int kUsualDpi = 300;
constexpr double kMmPerInch = 25.4;
constexpr double kSpillTolerance = 1e-9;  // sheets

int SheetsFor(double extent, int usable) {
  return std::max(1, DeviceInt(std::ceil(extent / usable - kSpillTolerance)));
}

struct Tile {
  int row = 0;
  int column = 0;
};

Tile TileOf(const Pagination& pagination, int number) {
  const int across = std::max(pagination.pagesAcross, 1);
  return {(number - 1) / across, (number - 1) % across};
}

bool IsSinglePage(const Pagination& pagination) {
  return pagination.pagesAcross == 1 && pagination.pagesDown == 1;
}

}  // namespace

int Pagination::pageCount() const {
  const std::int64_t count = static_cast<std::int64_t>(pagesAcross) * pagesDown;
  return static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

Pagination paginate(const PrintBounds& bounds, const PrintOptions& options, DeviceSize page,
                    int dpi) {
  const int useW = std::max(1, DeviceInt(page.width * kUsablePart));
  const int useH = std::max(1, DeviceInt(page.height * kUsablePart));
  const double bw = bounds.width();
  const double bh = bounds.height();
  const double fitting = std::min(useH / bh, useW / bw);
  Pagination result;
  if (options.mode == kActualScale) {
    const int resolution = dpi < 1 ? kUsualDpi : dpi;
    result.scale = resolution / kMmPerInch / std::max(options.scaleN, 1);
  } else if (options.mode == kCustomPercentage) {
    result.scale = fitting * (std::max(options.percent, 1) / 100.0);
  } else {
    result.scale = fitting;
    return result;
  }
  result.pagesAcross = SheetsFor(result.scale * bw, useW);
  result.pagesDown = SheetsFor(result.scale * bh, useH);
  return result;
}

PageArea usableArea(DeviceSize page) {
  const int mx = DeviceInt(page.width * kMarginPart);
  const int my = DeviceInt(page.height * kMarginPart);
  return {mx, my, page.width - 2 * mx, page.height - 2 * my};
}

ViewTransform pageView(const Pagination& pagination, const PrintBounds& bounds, DeviceSize page,
                       int number) {
  const PageArea usable = usableArea(page);
  const double scale = pagination.scale;
  ViewTransform view{scale, 0.0, 0.0};
  if (IsSinglePage(pagination)) {
    view.offsetX =
        (usable.width - bounds.width() * scale) * 0.5 + usable.left - scale * bounds.minX;
    view.offsetY =
        (usable.height - bounds.height() * scale) * 0.5 + usable.top - scale * bounds.minY;
    return view;
  }
  const Tile tile = TileOf(pagination, number);
  // Neighbours differ by exactly the usable size: their pictures meet to the dot.
  const double before = static_cast<double>(usable.width) * tile.column;
  const double above = static_cast<double>(usable.height) * tile.row;
  view.offsetX = usable.left - (before + bounds.minX * scale);
  view.offsetY = usable.top - (above + bounds.minY * scale);
  return view;
}

PageArea drawnArea(const Pagination& pagination, DeviceSize page, int number) {
  const PageArea usable = usableArea(page);
  const Tile tile = TileOf(pagination, number);
  const int left = tile.column > 0 ? usable.left : 0;
  const int top = tile.row > 0 ? usable.top : 0;
  const int right =
      tile.column + 1 < pagination.pagesAcross ? usable.left + usable.width : page.width;
  const int bottom = tile.row + 1 < pagination.pagesDown ? usable.top + usable.height : page.height;
  return {left, top, right - left, bottom - top};
}

PageArea wholeArea(const Pagination& pagination, DeviceSize page, int number) {
  const PageArea usable = usableArea(page);
  const Tile tile = TileOf(pagination, number);
  const auto of = [](int sheets, int sheet) {
    return DeviceInt(static_cast<double>(sheets) * sheet);
  };
  return {usable.left / 2 - of(tile.column, usable.width),
          usable.top / 2 - of(tile.row, usable.height),
          page.width - 2 * (usable.left / 2) + of(pagination.pagesAcross - 1, usable.width),
          page.height - 2 * (usable.top / 2) + of(pagination.pagesDown - 1, usable.height)};
}

}  // namespace vantrel
