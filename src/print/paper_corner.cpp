#include "print/paper_corner.h"

#include <wx/dcprint.h>

#include <cmath>

#include "app/services/toolkit_below.h"

namespace vantrel {
namespace {

// A page that lies beside its paper by more than this part of it is none that margins explain.
constexpr double kMostPart = 0.25;

// How far before the device's origin the extent of `length` dots should begin.
double Shift(double factor, double offset, double length) {
  const double expected = factor > 0.0 ? 0.0 : -factor * length;
  const double shift = (expected - offset) / factor;
  return std::abs(shift) <= kMostPart * length ? shift : 0.0;
}

using GetMatrix = void(void* context, PageTransform* matrix);
GetMatrix* MatrixGetter() {
  return FunctionBelowToolkit<GetMatrix>("cairo_get_matrix");
}

}  // namespace

DevicePoint paperCorner(const PageTransform& transform, DeviceSize page) {
  const PageTransform& t = transform;
  double x = 0.0;
  double y = 0.0;
  if (t.xx != 0.0 && t.yy != 0.0 && t.xy == 0.0 && t.yx == 0.0) {
    x = Shift(t.xx, t.x0, page.width);
    y = Shift(t.yy, t.y0, page.height);
  } else if (t.xy != 0.0 && t.yx != 0.0 && t.xx == 0.0 && t.yy == 0.0) {
    x = Shift(t.yx, t.y0, page.width);
    y = Shift(t.xy, t.x0, page.height);
  }
  return {DeviceInt(std::round(x)), DeviceInt(std::round(y))};
}

DevicePoint paperCorner(wxDC& dc, DeviceSize page) {
  if (dynamic_cast<wxPrinterDC*>(&dc) == nullptr) return {};
  GetMatrix* const getMatrix = MatrixGetter();
  void* const context = dc.GetHandle();
  if (getMatrix == nullptr || context == nullptr) return {};
  PageTransform transform;
  getMatrix(context, &transform);
  return paperCorner(transform, page);
}

}  // namespace vantrel
