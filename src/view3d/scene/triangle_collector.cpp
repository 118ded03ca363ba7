#include "view3d/scene/triangle_collector.h"

namespace vantrel {

void TriangleCollector::begin(CornerRun run) {
  run_ = run;
  count_ = 0;
}

void TriangleCollector::take(std::uint32_t vertex) {
  ++count_;
  if (count_ == 1) {
    first_ = vertex;
    return;
  }
  if (count_ == 2) {
    second_ = vertex;
    return;
  }
  // Every other triangle of a strip turns the other way.
  const bool turns = run_ == CornerRun::strip && count_ % 2 == 0;
  if (turns)
    indices_.insert(indices_.end(), {second_, first_, vertex});
  else
    indices_.insert(indices_.end(), {first_, second_, vertex});
  if (run_ == CornerRun::triangles) {
    count_ = 0;
    return;
  }
  if (run_ == CornerRun::strip) first_ = second_;
  second_ = vertex;
}

}  // namespace vantrel
