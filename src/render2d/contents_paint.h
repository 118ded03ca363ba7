// What the steps of one paint of a layout share, and the tests that let them skip what is out of
// view. Private to the contents drawing and its tests.
#pragma once

#include <wx/gdicmn.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_set>
#include <vector>

#include "doc/layout.h"
#include "doc/layout_ops.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// The part of the device plane that can be seen. Every test errs toward "visible", and a coordinate
// that is not a number misses nothing, because such a point is drawn at 0.
struct DrawArea {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;

  // (0, 0) to `size`.
  static DrawArea Of(DeviceSize size);
  // Skips nothing: for comparing a paint with what it would be without skipping.
  static DrawArea Everything();

  bool missesBox(double boxLeft, double boxTop, double boxRight, double boxBottom) const {
    return boxRight < left || boxLeft > right || boxBottom < top || boxTop > bottom;
  }
  bool missesCircle(double x, double y, double radius) const {
    return missesBox(x - radius, y - radius, x + radius, y + radius);
  }
  bool containsCircle(double x, double y, double radius) const {
    return x - radius >= left && x + radius <= right && y - radius >= top && y + radius <= bottom;
  }
  // A box of `boxSize` around `centre`, with `pad` more on each side.
  bool missesCentredBox(wxPoint centre, wxSize boxSize, int pad) const {
    const double x = boxSize.GetWidth() / 2.0 + pad + 1.0;
    const double y = boxSize.GetHeight() / 2.0 + pad + 1.0;
    return missesBox(centre.x - x, centre.y - y, centre.x + x, centre.y + y);
  }
  // True when no pixel of a polygon or polyline with a pen up to `penWidth` wide can be seen.
  bool missesPoints(std::span<const wxPoint> points, int penWidth) const;
};

struct ContentsPaint {
  ContentsPaint(RenderContext& contextIn, wxDC& dcIn, const Layout& layoutIn,
                const ViewTransform& viewIn, DeviceSize sizeIn, const DrawArea& areaIn);

  RenderContext& context;
  wxDC& dc;
  const Layout& layout;
  const ViewTransform& view;
  const DeviceSize size;
  const DrawArea area;
  const std::unordered_set<std::int32_t> hiddenLevels;

  bool levelHidden(std::int32_t level) const {
    return !hiddenLevels.empty() && hiddenLevels.contains(level);
  }
  // The first piece with this id, or null. The index behind it is built at the first call, since
  // most plans have neither helices nor grades.
  const Piece* piece(std::int32_t id);

  // The device point of a world point before it is truncated.
  Vec2 onDevice(Vec2 world) const {
    return {view.scale * world.x + view.offsetX, view.scale * world.y + view.offsetY};
  }
  // True when nothing within `reach` mm and `extra` device units of a world point can be seen.
  bool outOfView(Vec2 world, double reach, double extra) const {
    const Vec2 at = onDevice(world);
    return area.missesCircle(at.x, at.y, std::abs(view.scale) * reach + extra);
  }

 private:
  std::optional<PieceIndex> index_;
};

// DrawLayoutContents with the visible area chosen by the caller.
void PaintContents(RenderContext& context, wxDC& dc, const Layout& layout,
                   const ViewTransform& view, DeviceSize size, const DrawArea& area);

inline wxPoint ToPoint(DevicePoint point) {
  return {point.x, point.y};
}
std::vector<wxPoint> DevicePolygon(std::span<const Vec2> vertices, const ViewTransform& view);
void DrawClosedPolygon(wxDC& dc, const std::vector<wxPoint>& points);

// What decks and shapes are sorted by, lowest first. A height that is not a number counts as 0,
// since it would put the sorting out of order.
double StackingHeight(double height);

// The plain mean of the vertices; (0, 0) for none.
Vec2 MeanVertex(std::span<const Vec2> vertices);

// One side of a closed polygon.
struct Edge {
  Vec2 middle;
  double length = 0.0;  // mm
  // Unit normals toward the polygon's mean vertex and away from it. Both are the edge's direction
  // turned a quarter clockwise on the device if the mean lies on the edge's line, as it does at the
  // inner corner of an even L.
  Vec2 inward;
  Vec2 outward;
};
// The edge from vertex i to the next one; nothing for one shorter than `minLength` mm or with an
// end that is no finite point.
std::optional<Edge> PolygonEdge(std::span<const Vec2> vertices, std::size_t i, Vec2 mean,
                                double minLength);

}  // namespace vantrel
