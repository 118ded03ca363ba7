#include "canvas/operations/baseboard_shapes.h"

#include <algorithm>
#include <cmath>

#include "doc/format_length.h"
#include "doc/trimmed.h"
#include "doc/typed_number.h"

namespace vantrel {
namespace {

constexpr BoardDimensions kDefaults[] = {{2400.0, 1200.0, 0.0, 0.0},
                                         {2400.0, 2400.0, 1200.0, 1200.0},
                                         {3600.0, 2400.0, 1200.0, 1200.0},
                                         {3600.0, 1200.0, 1200.0, 1200.0}};
constexpr double kDefaultWidthMm = 2400.0;
constexpr double kDefaultDepthMm = 1200.0;
constexpr double kLeastRestMm = 1.0;  // of the board beside a cutout
constexpr int kTextDigits = 2;

BoardDimensions LastDimensions(const LastShape& last) {
  return {last.w_mm, last.h_mm, last.w2_mm, last.h2_mm};
}

std::int32_t WholeNumber(double value) {
  if (std::isnan(value)) return kSmallestDimension;
  return static_cast<std::int32_t>(
      std::clamp(std::round(value), double{kSmallestDimension}, double{kLargestDimension}));
}

std::vector<Vec2> Rectangle(const BoardDimensions& board) {
  const auto [w, h, w2, h2] = board;
  return {{0.0, 0.0}, {w, 0.0}, {w, h}, {0.0, h}};
}

std::vector<Vec2> LShape(const BoardDimensions& board) {
  const auto [w1, h1, w2, h2] = board;
  const double w = std::min(w2, w1 - kLeastRestMm);
  const double h = std::min(h2, h1 - kLeastRestMm);
  return {{0.0, 0.0}, {w1, 0.0}, {w1, h1 - h}, {w1 - w, h1 - h}, {w1 - w, h1}, {0.0, h1}};
}

std::vector<Vec2> UShape(const BoardDimensions& board) {
  const auto [w1, h1, w2, h2] = board;
  const double w = std::min(w2, w1 - 2.0 * kLeastRestMm);
  const double h = std::min(h2, h1 - kLeastRestMm);
  const double a = (w1 - w) / 2.0;
  const double b = (w1 + w) / 2.0;
  return {{0.0, 0.0}, {w1, 0.0}, {w1, h1}, {b, h1}, {b, h1 - h}, {a, h1 - h}, {a, h1}, {0.0, h1}};
}

std::vector<Vec2> TShape(const BoardDimensions& board) {
  const auto [w1, h1, w2, h2] = board;
  const double w = std::min(w2, w1);
  const double h = std::max(h2, kLeastRestMm);
  const double a = (w1 - w) / 2.0;
  const double b = (w1 + w) / 2.0;
  return {{0.0, 0.0}, {w1, 0.0}, {w1, h1}, {b, h1}, {b, h1 + h}, {a, h1 + h}, {a, h1}, {0.0, h1}};
}

void AppendLine(std::string& text, const std::string& x, const std::string& y) {
  text += x + "," + y + "\n";
}

std::string DefaultText(double mmPerUnit) {
  const std::string width = FormatFixed(kDefaultWidthMm / mmPerUnit, 0);
  const std::string depth = FormatFixed(kDefaultDepthMm / mmPerUnit, 0);
  std::string text;
  AppendLine(text, "0", "0");
  AppendLine(text, width, "0");
  AppendLine(text, width, depth);
  AppendLine(text, "0", depth);
  return text;
}

// Cuts the next line off the front of the text.
std::string_view NextLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

// Here the comma stands between the two numbers and is no decimal point: a second one is a mistake.
std::optional<double> TypedMm(std::string_view text, double mmPerUnit) {
  if (text.find(',') != std::string_view::npos) return std::nullopt;
  const std::optional<double> value = TypedNumber(text);
  if (!value || !std::isfinite(*value * mmPerUnit)) return std::nullopt;
  return *value * mmPerUnit;
}

// As well as a file keeps a vertex.
bool IsSameOutline(const std::vector<Vec2>& a, const std::vector<Vec2>& b) {
  constexpr double kSameMm = 0.01;
  return std::ranges::equal(a, b, [](Vec2 p, Vec2 q) {
    return std::abs(p.x - q.x) <= kSameMm && std::abs(p.y - q.y) <= kSameMm;
  });
}

// With which this shape might have given the table, from the places where its vertices then lie.
// The table must have as many.
BoardDimensions DimensionsOf(std::int32_t shape, const std::vector<Vec2>& table) {
  switch (shape) {
    case kRectangleBoard:
      return {table[2].x, table[2].y, 0.0, 0.0};
    case kLShapeBoard:
      return {table[1].x, table[5].y, table[2].x - table[3].x, table[4].y - table[3].y};
    case kUShapeBoard:
      return {table[1].x, table[2].y, table[3].x - table[6].x, table[3].y - table[4].y};
    default:
      return {table[1].x, table[2].y, table[3].x - table[6].x, table[4].y - table[3].y};
  }
}

std::size_t VertexCount(std::int32_t shape) {
  constexpr std::size_t kCounts[] = {4, 6, 8, 8};
  return kCounts[shape];
}

constexpr std::size_t kLeastTable = 3;  // vertices; fewer are no table to be seen

bool FitsTable(const std::vector<Vec2>& table, const LastShape& last) {
  if (boardDimensionCount(last.id) == 0)
    return last.id == kCustomBoard || last.id == kFreeFormBoard;
  return IsSameOutline(table, boardVertices(last.id, LastDimensions(last)));
}

}  // namespace

std::size_t boardDimensionCount(std::int32_t shape) {
  if (shape == kRectangleBoard) return 2;
  return shape > kRectangleBoard && shape <= kTShapeBoard ? 4 : 0;
}

LastShape boardToStartFrom(const std::vector<Vec2>& table, const LastShape& last,
                           double mmPerUnit) {
  if (table.size() < kLeastTable || FitsTable(table, last)) return last;
  LastShape start = last;
  for (std::int32_t shape = kRectangleBoard; shape <= kTShapeBoard; ++shape) {
    if (table.size() != VertexCount(shape)) continue;
    BoardWholeNumbers numbers{};
    std::ranges::transform(DimensionsOf(shape, table), numbers.begin(),
                           [=](double mm) { return WholeNumber(mm / mmPerUnit); });
    const BoardDimensions dimensions = boardDimensions(numbers, mmPerUnit);
    if (!IsSameOutline(table, boardVertices(shape, dimensions))) continue;
    rememberBoard(start, shape, dimensions);
    return start;
  }
  start.id = kCustomBoard;
  return start;
}

BoardWholeNumbers boardStartNumbers(std::int32_t shape, const LastShape& last, double mmPerUnit) {
  BoardWholeNumbers numbers;
  numbers.fill(kSmallestDimension);
  const BoardDimensions stored = LastDimensions(last);
  for (std::size_t i = 0; i < boardDimensionCount(shape); ++i) {
    const bool known = shape == last.id && !std::isnan(stored[i]);
    const double mm = known ? stored[i] : kDefaults[shape][i];
    numbers[i] = WholeNumber(mm / mmPerUnit);
  }
  return numbers;
}

BoardDimensions boardDimensions(const BoardWholeNumbers& numbers, double mmPerUnit) {
  BoardDimensions mm;
  std::ranges::transform(numbers, mm.begin(), [=](std::int32_t n) { return n * mmPerUnit; });
  return mm;
}

std::vector<Vec2> boardVertices(std::int32_t shape, const BoardDimensions& dimensions) {
  switch (shape) {
    case kRectangleBoard:
      return Rectangle(dimensions);
    case kLShapeBoard:
      return LShape(dimensions);
    case kUShapeBoard:
      return UShape(dimensions);
    case kTShapeBoard:
      return TShape(dimensions);
    default:
      return {};
  }
}

std::string boardText(const std::vector<Vec2>& outline, double mmPerUnit) {
  if (outline.empty()) return DefaultText(mmPerUnit);
  std::string text;
  for (const Vec2& vertex : outline)
    AppendLine(text, FormatFixed(vertex.x / mmPerUnit, kTextDigits),
               FormatFixed(vertex.y / mmPerUnit, kTextDigits));
  return text;
}

std::optional<std::vector<Vec2>> boardFromText(std::string_view text, double mmPerUnit) {
  std::vector<Vec2> outline;
  while (!text.empty()) {
    const std::string_view line = NextLine(text);
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) continue;
    const std::optional<double> x = TypedMm(line.substr(0, comma), mmPerUnit);
    const std::optional<double> y = TypedMm(line.substr(comma + 1), mmPerUnit);
    if (!x || !y) return std::nullopt;
    outline.push_back({*x, *y});
  }
  return outline;
}

void rememberBoard(LastShape& last, std::int32_t shape, const BoardDimensions& dimensions) {
  last.id = shape;
  const std::size_t count = boardDimensionCount(shape);
  double* const fields[] = {&last.w_mm, &last.h_mm, &last.w2_mm, &last.h2_mm};
  for (std::size_t i = 0; i < count; ++i) *fields[i] = dimensions[i];
}

}  // namespace vantrel
