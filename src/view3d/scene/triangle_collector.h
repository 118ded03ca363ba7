// Turns the runs of corners that a tessellator reports into indexed triangles.
#pragma once

#include <cstdint>
#include <vector>

namespace vantrel {

enum class CornerRun : std::uint8_t { triangles, fan, strip };

class TriangleCollector {
 public:
  void begin(CornerRun run);
  // The next corner of the run that begin() opened, as the number of its vertex.
  void take(std::uint32_t vertex);

  // Three per triangle, all turning the same way as the runs do.
  const std::vector<std::uint32_t>& indices() const { return indices_; }

 private:
  CornerRun run_ = CornerRun::triangles;
  std::uint32_t count_ = 0;  // corners of this run so far
  std::uint32_t first_ = 0;  // the two corners that the next one makes a triangle with
  std::uint32_t second_ = 0;
  std::vector<std::uint32_t> indices_;
};

}  // namespace vantrel
