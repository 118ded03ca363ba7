#include "view3d/scene/projection.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

namespace vantrel {
namespace {

struct ScreenPoint {
  double x = 0.0;
  double y = 0.0;
};

std::optional<ScreenPoint> OnScreen(const Projection& projection, Vec3f point) {
  const Matrix& m = projection.matrix;
  const auto row = [&](std::size_t i) {
    return double{m[i]} * point.x + double{m[i + 4]} * point.y + double{m[i + 8]} * point.z +
           double{m[i + 12]};
  };
  const double w = row(3);
  if (!(w > 0.0)) return std::nullopt;
  return ScreenPoint{row(0) / w * projection.width / 2.0, row(1) / w * projection.height / 2.0};
}

}  // namespace

Matrix Product(const Matrix& second, const Matrix& first) {
  Matrix product{};
  for (std::size_t column = 0; column < 4; ++column)
    for (std::size_t row = 0; row < 4; ++row)
      for (std::size_t i = 0; i < 4; ++i)
        product[column * 4 + row] += second[i * 4 + row] * first[column * 4 + i];
  return product;
}

double PixelsBetween(const Projection& projection, Vec3f a, Vec3f b) {
  const std::optional<ScreenPoint> from = OnScreen(projection, a);
  const std::optional<ScreenPoint> to = OnScreen(projection, b);
  if (!from || !to) return std::numeric_limits<double>::infinity();
  return std::hypot(to->x - from->x, to->y - from->y);
}

}  // namespace vantrel
