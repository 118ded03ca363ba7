#include "tests/render2d/contents_fixture.h"

#include <algorithm>
#include <iterator>

#include "doc/layout_ops.h"
#include "render2d/contents_drawing.h"

namespace vantrel::contents_test {

Layout PlainPlan() {
  Layout layout;
  layout.gridVisible = false;
  layout.labelsVisible = false;
  return layout;
}

Level DeckLevel(std::int32_t id, double height, bool visible) {
  Level level;
  level.id = id;
  level.height = height;
  level.visible = visible;
  return level;
}

Piece ColouredTrack(std::int32_t id, double x, double y, Rgba colour) {
  Piece piece;
  piece.id = id;
  piece.cat = "24188";
  piece.x = x;
  piece.y = y;
  piece.hasColor = true;
  piece.colorR = static_cast<std::uint8_t>(colour.r);
  piece.colorG = static_cast<std::uint8_t>(colour.g);
  piece.colorB = static_cast<std::uint8_t>(colour.b);
  piece.joints.resize(2);
  return piece;
}

std::vector<Vec2> Outline(double left, double top, double right, double bottom) {
  return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

Shape Rectangle(double left, double top, double right, double bottom) {
  Shape shape;
  shape.vertices = Outline(left, top, right, bottom);
  return shape;
}

void Join(Layout& layout, std::int32_t a, std::int32_t aConn, std::int32_t b, std::int32_t bConn) {
  FindPiece(layout, a)->joints.at(static_cast<std::size_t>(aConn)) = {b, bConn};
  FindPiece(layout, b)->joints.at(static_cast<std::size_t>(bConn)) = {a, aConn};
}

std::vector<DrawCall> Painted(const Layout& layout, const ViewTransform& view, DeviceSize size) {
  RecordingDC dc({size.width, size.height});
  RenderContext context;
  DrawLayoutContents(context, dc, layout, view, size);
  return dc.calls();
}

std::vector<DrawCall> PaintedWith(RenderContext& context, const Layout& layout,
                                  const ViewTransform& view) {
  RecordingDC dc({kSize.width, kSize.height});
  DrawLayoutContents(context, dc, layout, view, kSize);
  return dc.calls();
}

namespace {

std::vector<DrawCall> Chosen(const std::vector<DrawCall>& calls, const Matches& matches) {
  std::vector<DrawCall> chosen;
  std::copy_if(calls.begin(), calls.end(), std::back_inserter(chosen), matches);
  return chosen;
}

}  // namespace

std::vector<DrawCall> OfOp(const std::vector<DrawCall>& calls, DrawOp op) {
  return Chosen(calls, [op](const DrawCall& call) { return call.op == op; });
}

std::vector<DrawCall> Texts(const std::vector<DrawCall>& calls, const std::string& text) {
  return Chosen(calls, IsText(text));
}

std::vector<DrawCall> Filled(const std::vector<DrawCall>& calls, Rgba colour) {
  return Chosen(calls, IsFilled(colour));
}

std::size_t FirstPlace(const std::vector<DrawCall>& calls, const Matches& matches) {
  const auto found = std::find_if(calls.begin(), calls.end(), matches);
  return found == calls.end() ? kNowhere : static_cast<std::size_t>(found - calls.begin());
}

std::size_t LastPlace(const std::vector<DrawCall>& calls, const Matches& matches) {
  const auto found = std::find_if(calls.rbegin(), calls.rend(), matches);
  return found == calls.rend() ? kNowhere : static_cast<std::size_t>(calls.rend() - found) - 1;
}

Matches IsFilled(Rgba colour) {
  return [colour](const DrawCall& call) {
    return call.op == DrawOp::polygon && call.brush == SolidBrush(colour);
  };
}

Matches HasPen(Rgba colour) {
  return [colour](const DrawCall& call) { return call.pen.colour == colour; };
}

Matches IsText(std::string text) {
  return [text = std::move(text)](const DrawCall& call) {
    return call.op == DrawOp::text && call.text == text;
  };
}

}  // namespace vantrel::contents_test
