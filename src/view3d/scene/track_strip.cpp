#include "view3d/scene/track_strip.h"

#include <cstddef>

#include "view3d/scene/paths.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr float kBallastTopMm = 2.0F;
constexpr float kSleeperTopMm = 4.2F;
constexpr double kFirstSleeperMm = 6.5;
constexpr float kGaugeMm = 16.5F;
constexpr float kRailHalfWidthMm = 0.6F;
constexpr float kRailTopMm = 6.7F;

void AddSleeper(Mesh& mesh, const PathPoint& at) {
  // A stretch of path as long as the sleeper is wide.
  Path across{at, at};
  across[0].position = at.position - at.tangent * kSleeperHalfWidthMm;
  across[1].position = at.position + at.tangent * kSleeperHalfWidthMm;
  AddSweptBox(mesh, across,
              {.halfWidth = kSleeperHalfLengthMm,
               .low = kBallastTopMm,
               .high = kSleeperTopMm,
               .colours = kSleeperColours,
               .hasEnds = true});
}

// One walk along the path for all of them: a sleeper asks for no search of its own.
void AddSleepers(Mesh& mesh, const Path& path) {
  double start = 0.0;
  double next = kFirstSleeperMm;
  for (std::size_t i = 0; i + 1 < path.size(); ++i) {
    const Path segment{path[i], path[i + 1]};
    const double end = start + PathLength(segment);
    for (; next < end; next += kSleeperStepMm) AddSleeper(mesh, PointAlong(segment, next - start));
    start = end;
  }
}

}  // namespace

void AddTrackStrip(Mesh& mesh, const Path& path) {
  if (path.size() < 2) return;
  AddSweptBox(mesh, path,
              {.halfWidth = kBallastHalfWidthMm,
               .low = 0.0F,
               .high = kBallastTopMm,
               .colours = kBallastColours,
               .hasEnds = true});
  AddSleepers(mesh, path);
  for (const float side : {1.0F, -1.0F})
    AddSweptBox(mesh, path,
                {.offset = side * kGaugeMm * 0.5F,
                 .halfWidth = kRailHalfWidthMm,
                 .low = kSleeperTopMm,
                 .high = kRailTopMm,
                 .colours = kRailColours});
}

}  // namespace vantrel
