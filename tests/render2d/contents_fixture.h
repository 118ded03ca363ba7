// What the tests of the contents drawing share: plans without a grid, records at a glance, and
// recorded paints.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "doc/layout.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"
#include "tests/support/recording_dc.h"

namespace vantrel::contents_test {

inline constexpr ViewTransform kOneToOne{1.0, 0.0, 0.0};
inline constexpr DeviceSize kSize{1160, 800};
inline constexpr Rgba kSelectedFill{180, 200, 230};
inline constexpr Rgba kBoardFill{245, 235, 210};

// Nothing in it, grid off, no part numbers or dots.
Layout PlainPlan();

Level DeckLevel(std::int32_t id, double height, bool visible = true);
// A straight C-Track of 188.3 mm with both slots open and a colour of its own, by which its bed is
// told apart in a recording.
Piece ColouredTrack(std::int32_t id, double x, double y, Rgba colour);
Shape Rectangle(double left, double top, double right, double bottom);
std::vector<Vec2> Outline(double left, double top, double right, double bottom);
// Stores the join on both pieces.
void Join(Layout& layout, std::int32_t a, std::int32_t aConn, std::int32_t b, std::int32_t bConn);

std::vector<DrawCall> Painted(const Layout& layout, const ViewTransform& view = kOneToOne,
                              DeviceSize size = kSize);
// The same with a context of the caller's.
std::vector<DrawCall> PaintedWith(RenderContext& context, const Layout& layout,
                                  const ViewTransform& view = kOneToOne);

std::vector<DrawCall> OfOp(const std::vector<DrawCall>& calls, DrawOp op);
std::vector<DrawCall> Texts(const std::vector<DrawCall>& calls, const std::string& text);
// The polygons with a solid brush of this colour.
std::vector<DrawCall> Filled(const std::vector<DrawCall>& calls, Rgba colour);

inline constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);
using Matches = std::function<bool(const DrawCall&)>;
std::size_t FirstPlace(const std::vector<DrawCall>& calls, const Matches& matches);
std::size_t LastPlace(const std::vector<DrawCall>& calls, const Matches& matches);
Matches IsFilled(Rgba colour);
Matches HasPen(Rgba colour);
Matches IsText(std::string text);

}  // namespace vantrel::contents_test
