#include "tools/samples/exhibition_yard.h"

#include <algorithm>

namespace vantrel::samples {
namespace yard {
namespace {

Level MakeLevel(std::int32_t id, std::string_view name, double height) {
  Level level;
  level.id = id;
  level.name = name;
  level.height = height;
  level.g = 200;
  level.b = 220;
  return level;
}

void MakeLevels(Layout& layout) {
  layout.levels = {MakeLevel(kRamps, "Ramps and helix", 0.0),
                   MakeLevel(kStation, "Station", kDeckHeight),
                   MakeLevel(kHidden, "Hidden yard", 0.0),
                   MakeLevel(kBranch, "Branch", 260.0),
                   MakeLevel(kLandscape, "Landscape", 0.0),
                   MakeLevel(kCover, "Cover of the hidden yard", kDeckHeight)};
  layout.levels.back().visible = false;
  layout.activeLevel = kStation;
}

// By colours of the pieces, because a level's own would lose its red on the way through a file.
void ColourHidden(Layout& layout) {
  for (Piece& piece : layout.pieces) {
    if (piece.level != kHidden) continue;
    piece.hasColor = true;
    piece.colorR = 140;
    piece.colorG = 170;
    piece.colorB = 205;
  }
}

}  // namespace

End BendLeft(SampleBuilder& plan, End from) {
  return plan.lay(from, kBend, 1, 0);
}

End BendRight(SampleBuilder& plan, End from) {
  return plan.lay(from, kBend);
}

End QuarterLeft(SampleBuilder& plan, End from, std::string_view curve) {
  return plan.layMany(from, curve, 3, 1, 0);
}

}  // namespace yard

Layout ExhibitionYard() {
  using namespace yard;
  SampleBuilder plan;
  MakeLevels(plan.layout());
  plan.table(kRectangleBoard, {kTableWidth, kTableDepth, 0.0, 0.0});
  plan.onLevel(kStation);
  const Throat throat = LayThroat(plan, LayDepot(plan));
  LayPlatforms(plan, throat.tracks);
  LayGoodsYard(plan, throat.tracks);
  LayCarriageSidings(plan, throat.carriage);
  const Lines lines = LayRamps(plan, throat);
  LayWorks(plan, lines.works);
  LayBranch(plan, LayHiddenYard(plan, lines));
  LayLandscape(plan);
  Layout layout = plan.take();
  ColourHidden(layout);
  // What lies above is drawn above.
  std::stable_sort(layout.pieces.begin(), layout.pieces.end(),
                   [](const Piece& a, const Piece& b) { return a.z < b.z; });
  return layout;
}

}  // namespace vantrel::samples
