// What lies under a point of the canvas. Each test takes the view and a point in client pixels and
// returns an id, or kNone. Records on a hidden level are never hit, nor are keys that the catalogs
// don't know.
#pragma once

#include <array>
#include <cstdint>

#include "catalog/piece_def.h"
#include "catalog/scenery_def.h"
#include "doc/layout.h"
#include "doc/view_transform.h"

namespace vantrel {

// Whether a world point lies on one piece: within half the width of the target (20 mm, Z scale
// 7 mm) of its centre line, with the allowances that each kind has.
bool hitTestPieceShape(const Piece& piece, const PieceDef& def, Vec2 world);

// The higher deck wins; on one deck the piece whose origin is nearest to the point; of equals the
// later one.
std::int32_t hitTestPiece(const Layout& layout, const ViewTransform& view, DevicePoint point);

// A helix is hit on its rings, within 25 mm of either radius. The higher deck wins, of equals the
// earlier one.
std::int32_t hitTestHelix(const Layout& layout, const ViewTransform& view, DevicePoint point);

// The piece under the point, or failing that the stub `bottomR1` of the helix under it; that piece
// may not exist.
std::int32_t hitTestPieceOrHelix(const Layout& layout, const ViewTransform& view,
                                 DevicePoint point);

std::int32_t hitTestScenery(const Layout& layout, const ViewTransform& view, DevicePoint point);

// Inside by the even-odd rule, or within 8 pixels of an edge; the later shape wins.
std::int32_t hitTestShape(const Layout& layout, const ViewTransform& view, DevicePoint point);

enum class MeasurementPart { line = 1, label = 2 };

struct MeasurementHit {
  std::int32_t id = kNone;
  MeasurementPart part = MeasurementPart::line;
};

MeasurementHit hitTestMeasurement(const Layout& layout, const ViewTransform& view,
                                  DevicePoint point);

// The first label, in order, with the point from 4 pixels left to 120 right of its screen point
// and from 4 above to 24 below.
std::int32_t hitTestLabel(const Layout& layout, const ViewTransform& view, DevicePoint point);

// The id of the highest visible Level with an outline edge within 8 pixels.
std::int32_t hitTestDeckOutline(const Layout& layout, const ViewTransform& view, DevicePoint point);

// The eight handle points of a scenery item in the world: 0, 2, 4, 6 the corners, 1, 3, 5, 7 the
// middles of the edges.
std::array<Vec2, 8> scaleHandlePoints(const SceneryItem& item, const SceneryDef& def);

// The number of the handle of this item under the point.
std::int32_t hitTestScaleHandle(const SceneryItem& item, const ViewTransform& view,
                                DevicePoint point);

// The item that has handles now: the only selected one, with no piece and no label selected, of
// the catalog's category 0.
std::int32_t singleSelectedScenery(const Layout& layout);

}  // namespace vantrel
