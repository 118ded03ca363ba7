// The colours of the scenery and the small builders that its drawings are put together from.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "catalog/scenery_def.h"
#include "doc/vec2.h"

namespace vantrel::scenery {

inline constexpr Rgba kConcrete{180, 175, 170, 255};
inline constexpr Rgba kConcreteEdge{120, 115, 110, 255};
inline constexpr Rgba kPlatformEdgeLine{220, 200, 100, 255};
inline constexpr Rgba kPlaster{220, 200, 170, 255};
inline constexpr Rgba kRoofRed{140, 80, 60, 255};
inline constexpr Rgba kRoofBrown{100, 80, 60, 255};
inline constexpr Rgba kWindowBlue{160, 190, 220, 255};
inline constexpr Rgba kWood{100, 70, 40, 255};
inline constexpr Rgba kMetal{100, 100, 100, 255};
inline constexpr Rgba kWarningYellow{240, 220, 0, 255};
inline constexpr Rgba kPaintWhite{240, 240, 240, 255};
inline constexpr Rgba kLightLeaf{100, 160, 60, 255};
inline constexpr Rgba kLeaf{60, 130, 50, 255};
inline constexpr Rgba kDarkLeaf{40, 100, 35, 255};
inline constexpr Rgba kConifer{30, 90, 40, 255};
inline constexpr Rgba kTrunk{100, 70, 40, 255};
inline constexpr Rgba kCarRed{200, 50, 40, 255};
inline constexpr Rgba kCarGrey{160, 160, 160, 255};
inline constexpr Rgba kCarGlass{180, 210, 230, 255};
inline constexpr Rgba kRoad{150, 150, 155, 255};
inline constexpr Rgba kBlack{0, 0, 0, 255};
inline constexpr Rgba kOutline{60, 60, 60, 255};
inline constexpr Rgba kSteel{130, 130, 135, 255};
inline constexpr Rgba kTruckBlue{80, 100, 140, 255};
inline constexpr Rgba kTimber{150, 110, 60, 255};
inline constexpr Rgba kStone{170, 165, 160, 255};

inline constexpr Rgba kNoColour{0, 0, 0, 0};

// A box in the definition frame, mm.
struct Box {
  double x = 0.0;
  double y = 0.0;
  double w = 0.0;
  double h = 0.0;
};

using Art = std::vector<ScenePrimitive>;

// Strokes are in device units. A stroke of kNoColour is none, whatever its width.
ScenePrimitive FilledRect(const Box& box, Rgba fill, Rgba stroke = kNoColour, int strokeWidth = 1);
ScenePrimitive FilledEllipse(const Box& box, Rgba fill, Rgba stroke = kNoColour,
                             int strokeWidth = 1);
ScenePrimitive Polygon(std::vector<Vec2> points, Rgba fill, Rgba stroke = kNoColour,
                       int strokeWidth = 1);
ScenePrimitive OutlinedRect(const Box& box, Rgba stroke, int strokeWidth = 1);
ScenePrimitive OutlinedEllipse(const Box& box, Rgba stroke, int strokeWidth = 1);
ScenePrimitive Line(Vec2 from, Vec2 to, Rgba colour, int width = 1);
ScenePrimitive Text(Vec2 centre, double size, Rgba colour, std::string text);

void Append(Art& art, Art more);

// A gable roof as its two planes, the lit one first. The ridge runs along x, the lit plane lies
// toward -y; or along y with the lit plane toward -x.
Art GableRoofAlongX(const Box& box, Rgba lit = kRoofRed, Rgba shaded = kRoofBrown);
Art GableRoofAlongY(const Box& box, Rgba lit = kRoofRed, Rgba shaded = kRoofBrown);

// A roof of four planes that all rise at one pitch, so that the ridge runs along the longer side.
Art HipRoof(const Box& box, Rgba lit = kRoofRed, Rgba shaded = kRoofBrown);

// A roof of four planes that meet in one point.
Art PyramidRoof(const Box& box, Rgba lit = kRoofRed, Rgba shaded = kRoofBrown);

// Foliage from above: an ellipse of `lobes` round bulges inside the box.
ScenePrimitive Crown(const Box& box, int lobes, Rgba fill, Rgba stroke = kNoColour);

SceneryDef MakeItem(std::string id, std::string name, std::int32_t category, double width,
                    double depth, Art art);

}  // namespace vantrel::scenery
