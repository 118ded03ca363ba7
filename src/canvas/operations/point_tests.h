// Small geometry that the hit tests share: a point seen from a record, and from an outline.
#pragma once

#include <span>

#include "doc/vec2.h"

namespace vantrel {

// A world point in the frame of something that stands at `pose`.
Vec2 WorldToLocal(const Pose& pose, Vec2 world);

// From the point to the nearest point of the segment, in the unit of the coordinates.
double SegmentDistance(Vec2 point, Vec2 from, Vec2 to);

// From the point to the nearest edge, the closing one included; infinite without vertices.
double OutlineDistance(Vec2 point, std::span<const Vec2> vertices);

// By the even-odd rule.
bool IsInsidePolygon(Vec2 point, std::span<const Vec2> vertices);

}  // namespace vantrel
