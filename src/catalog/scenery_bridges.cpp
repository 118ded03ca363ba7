// Bridges, and the masonry that a line needs: pier, tunnel portal, retaining wall.
//
// A girder seen from straight above is a bare strip, so each is drawn laid over on its outer side,
// clear of the track bed that later covers the middle.
#include <cmath>
#include <utility>

#include "catalog/piece_builders.h"
#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

// Sleepers and two rails along x, centred on `y`.
Art TrackAlongX(double left, double right, double y) {
  constexpr double kSleeperPitch = 10.0;
  constexpr double kSleeperHalf = 14.0;
  constexpr double kGaugeHalf = 8.25;
  Art art;
  for (double x = left + 3.0; x + 4.0 <= right; x += kSleeperPitch)
    art.push_back(FilledRect({x, y - kSleeperHalf, 4, 2 * kSleeperHalf}, kWood));
  for (const double rail : {y - kGaugeHalf, y + kGaugeHalf})
    art.push_back(Line({left, rail}, {right, rail}, kOutline, 2));
  return art;
}

// A girder of triangles between two chords, the panels laid out evenly along x.
Art TrussGirder(double length, double inner, double outer, int panels, Rgba colour) {
  Art art;
  const double panel = length / panels;
  for (int i = 0; i < panels; ++i) {
    const Vec2 foot{i * panel, inner};
    const Vec2 head{(i + 0.5) * panel, outer};
    art.push_back(Line(foot, head, colour, 2));
    art.push_back(Line(head, {foot.x + panel, inner}, colour, 2));
  }
  return art;
}

SceneryDef TrussBridgeScenery() {
  constexpr double kLength = 188.0;
  Art art = {FilledRect({0, 12, kLength, 40}, kCarGrey, kOutline)};
  Append(art, TrackAlongX(0, kLength, 32));
  Append(art, TrussGirder(kLength, 11, 2, 6, kOutline));
  Append(art, TrussGirder(kLength, 53, 62, 6, kOutline));
  const double halfPanel = kLength / 12;
  for (const double y : {0.0, 61.0})
    art.push_back(FilledRect({halfPanel, y, kLength - 2 * halfPanel, 3}, kSteel, kOutline));
  for (const double y : {10.0, 51.0})
    art.push_back(FilledRect({0, y, kLength, 3}, kSteel, kOutline));
  return MakeItem("bridge_truss_scenery", "Truss bridge (scenery)", kBridges, kLength, 64,
                  std::move(art));
}

// One bow of the arch bridge with its hangers; `foot` is the y of its springing, `crown` of its
// top.
Art Bow(double length, double foot, double crown) {
  constexpr int kHangers = 16;
  constexpr int kSegments = 24;
  constexpr double kRib = 3.0;  // mm, how thick the bow is drawn
  const auto rise = [=](double part) { return foot + (crown - foot) * std::sin(kPi * part); };
  Art art;
  for (int i = 1; i < kHangers; ++i) {
    const double part = double(i) / kHangers;
    art.push_back(Line({part * length, foot}, {part * length, rise(part)}, kOutline));
  }
  const double inward = crown < foot ? kRib : -kRib;
  std::vector<Vec2> rib;
  for (int i = 0; i <= kSegments; ++i)
    rib.push_back({length * i / kSegments, rise(double(i) / kSegments)});
  for (int i = kSegments; i >= 0; --i)
    rib.push_back({length * i / kSegments, rise(double(i) / kSegments) + inward});
  art.push_back(Polygon(std::move(rib), kSteel, kOutline));
  return art;
}

SceneryDef ArchBridgeScenery() {
  constexpr double kLength = 360.0;
  Art art = {FilledRect({0, 14, kLength, 36}, kCarGrey, kOutline)};
  Append(art, TrackAlongX(0, kLength, 32));
  Append(art, Bow(kLength, 13, 0));
  Append(art, Bow(kLength, 51, 64));
  for (const double y : {12.0, 49.0})
    art.push_back(FilledRect({0, y, kLength, 3}, kSteel, kOutline));
  return MakeItem("bridge_arch_scenery", "Arch bridge (scenery)", kBridges, kLength, 64,
                  std::move(art));
}

// A through bridge from above: two heavy box girders, crossed bracing between them, a walkway with
// a railing on each side.
SceneryDef TrussBridge() {
  constexpr double kLength = 188.0;
  constexpr int kPanels = 4;
  const double panel = (kLength - 8) / kPanels;
  Art art;
  for (const double y : {0.0, 68.0}) {
    art.push_back(FilledRect({0, y, kLength, 12}, kTimber, kWood));
    for (int x = 8; x < kLength; x += 8)
      art.push_back(Line({double(x), y}, {double(x), y + 12}, kWood));
  }
  art.push_back(FilledRect({0, 20, kLength, 40}, kCarGrey, kOutline));
  Append(art, TrackAlongX(0, kLength, 40));
  for (int i = 0; i < kPanels; ++i) {
    const double left = 4 + i * panel;
    art.push_back(Line({left, 18}, {left + panel, 62}, kTruckBlue, 2));
    art.push_back(Line({left, 62}, {left + panel, 18}, kTruckBlue, 2));
  }
  for (int i = 0; i <= kPanels; ++i)
    art.push_back(FilledRect({2 + i * panel, 16, 4, 48}, kTruckBlue, kOutline));
  for (const double y : {12.0, 60.0})
    art.push_back(FilledRect({0, y, kLength, 8}, kTruckBlue, kOutline));
  return MakeItem("bridge_truss", "Steel truss bridge (1 track)", kSpecial, kLength, 80,
                  std::move(art));
}

SceneryDef ViaductPier() {
  Art art = {FilledRect({0, 0, 40, 60}, kConcreteEdge, kOutline),
             FilledRect({4, 8, 32, 44}, kStone, kOutline),
             FilledRect({6, 10, 28, 40}, kConcrete, kOutline),
             FilledRect({11, 14, 18, 8}, kMetal, kOutline),
             FilledRect({11, 38, 18, 8}, kMetal, kOutline)};
  return MakeItem("viaduct_pier", "Viaduct pier (concrete)", kSpecial, 40, 60, std::move(art));
}

// The front of the portal laid over toward +x, the side where the line comes out of the hill.
SceneryDef TunnelPortalSingle() {
  constexpr double kMiddle = 40.0;
  constexpr double kFoot = 40.0;       // x of the ground in front of the wall
  constexpr double kSpringing = 28.0;  // x where the arch stands on its side walls
  constexpr double kInner = 22.0;      // radii of the arch ring, across the line
  constexpr double kOuter = 30.0;
  constexpr double kFlatten = 0.5;  // the wall is foreshortened, and the arch with it
  constexpr double kWallTop = 12.0;
  constexpr double kCourse = 7.0;
  constexpr int kCourses = 4;
  constexpr int kBlocks = 11;
  Art art = {FilledRect({0, 0, 14, 80}, kLeaf, kDarkLeaf),
             FilledRect({kWallTop, 0, kFoot - kWallTop, 80}, kStone, kOutline)};
  for (int i = 0; i < 6; ++i) art.push_back(Crown({0, 1 + i * 13.0, 8, 12}, 5, kDarkLeaf));
  for (int course = 0; course < kCourses; ++course) {
    const double x = kWallTop + course * kCourse;
    art.push_back(Line({x, 0}, {x, 80}, kConcreteEdge));
    for (double y = course % 2 == 0 ? 8 : 16; y < 80; y += 16)
      art.push_back(Line({x, y}, {x + kCourse, y}, kConcreteEdge));
  }
  art.push_back(FilledRect({8, 0, 5, 80}, kConcrete, kOutline));
  const auto onRing = [=](double radius, int step) {
    const double turn = kPi / 2.0 + kPi * step / kBlocks;
    return Vec2{kSpringing + kFlatten * radius * std::cos(turn), kMiddle + radius * std::sin(turn)};
  };
  std::vector<Vec2> mouth = {{kFoot, kMiddle + kInner}};
  for (int i = 0; i <= kBlocks; ++i) mouth.push_back(onRing(kInner, i));
  mouth.push_back({kFoot, kMiddle - kInner});
  art.push_back(Polygon(std::move(mouth), kBlack));
  for (int i = 0; i < kBlocks; ++i)
    art.push_back(Polygon(
        {onRing(kInner, i), onRing(kOuter, i), onRing(kOuter, i + 1), onRing(kInner, i + 1)},
        i == kBlocks / 2 ? kPlaster : kConcrete, kOutline));
  for (const double y : {kMiddle - kOuter, kMiddle + kInner})
    art.push_back(
        FilledRect({kSpringing, y, kFoot - kSpringing, kOuter - kInner}, kConcrete, kOutline));
  SceneryDef def =
      MakeItem("tunnel_portal_single", "Tunnel portal (1 track)", kTunnels, 40, 80, std::move(art));
  def.role = SceneryRole::tunnelPortal;
  return def;
}

SceneryDef RetainingWall() {
  constexpr double kLength = 188.0;
  Art art = {FilledRect({0, 0, kLength, 30}, kStone, kOutline)};
  for (int course = 0; course < 3; ++course) {
    const double y = 8 + course * 7.0;
    art.push_back(Line({0, y}, {kLength, y}, kConcreteEdge));
    for (double x = course % 2 == 0 ? 12 : 6; x < kLength; x += 12)
      art.push_back(Line({x, y}, {x, y + 7}, kConcreteEdge));
  }
  for (int i = 0; i < 5; ++i)
    art.push_back(FilledRect({2 + i * 44.5, 6, 6, 24}, kConcrete, kOutline));
  art.push_back(FilledRect({0, 0, kLength, 8}, kConcrete, kOutline));
  return MakeItem("retaining_wall", "Retaining wall 188mm", kSpecial, kLength, 30, std::move(art));
}

}  // namespace

void AddDecorativeBridges(std::vector<SceneryDef>& rows) {
  rows.push_back(TrussBridgeScenery());
  rows.push_back(ArchBridgeScenery());
}

void AddStructures(std::vector<SceneryDef>& rows) {
  rows.push_back(TrussBridge());
  rows.push_back(ViaductPier());
  rows.push_back(TunnelPortalSingle());
  rows.push_back(RetainingWall());
}

}  // namespace vantrel::scenery
