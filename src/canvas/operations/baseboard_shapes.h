// The outline of the table from a choice of shape and a few dimensions, or from typed vertices.
//
// Outlines are in world mm, begin in the top left corner at (0, 0), run clockwise on the screen and
// don't repeat the first vertex.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

// The values of LastShape::id, in the order in which the user is offered them.
enum BaseboardShape : std::int32_t {
  kRectangleBoard = 0,
  kLShapeBoard = 1,
  kUShapeBoard = 2,
  kTShapeBoard = 3,
  kCustomBoard = 4,
  kFreeFormBoard = 5,
  kNoBoard = 6
};
inline constexpr std::int32_t kBaseboardShapes = 7;

// The bounds of a dimension, in whole units.
inline constexpr std::int32_t kSmallestDimension = 1;
inline constexpr std::int32_t kLargestDimension = 99000;

// Width, depth, second width, second depth. A rectangle has only the first two.
using BoardDimensions = std::array<double, 4>;          // mm
using BoardWholeNumbers = std::array<std::int32_t, 4>;  // of the unit

// 2 for a rectangle, 4 for the other fixed shapes, 0 for anything else.
std::size_t boardDimensionCount(std::int32_t shape);

// The choice to start from: the last one, unless the plan has a table that isn't of it. Then it is
// the fixed shape which gives the table with whole numbers of the unit, or else its vertices.
LastShape boardToStartFrom(const std::vector<Vec2>& table, const LastShape& last, double mmPerUnit);

// What a fixed shape starts with: what was chosen last when it is the last choice, else its
// defaults; in whole units, within the bounds. All 1 for anything but a fixed shape.
BoardWholeNumbers boardStartNumbers(std::int32_t shape, const LastShape& last, double mmPerUnit);

BoardDimensions boardDimensions(const BoardWholeNumbers& numbers, double mmPerUnit);

// Empty for anything but the four fixed shapes. A cutout, notch or stem that is too large for the
// board is limited.
std::vector<Vec2> boardVertices(std::int32_t shape, const BoardDimensions& dimensions);

// One line "x,y" in the unit per vertex; of an empty outline, those of a table 2400 mm by 1200 mm.
std::string boardText(const std::vector<Vec2>& outline, double mmPerUnit);

// The outline that lines "x,y" in the unit stand for. Lines without a comma are passed over.
// Nothing when one of the numbers can't be read.
std::optional<std::vector<Vec2>> boardFromText(std::string_view text, double mmPerUnit);

// Makes the shape the last choice, with the dimensions that it has; the others stay.
void rememberBoard(LastShape& last, std::int32_t shape, const BoardDimensions& dimensions);

}  // namespace vantrel
