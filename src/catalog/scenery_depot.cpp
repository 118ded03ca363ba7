// The engine depot: turntable pit, roundhouse, water and coal.
#include <cmath>
#include <utility>

#include "catalog/piece_builders.h"
#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

constexpr double kGaugeHalf = 8.25;   // mm
constexpr double kStallAngle = 12.0;  // degrees between two tracks of the turntable

SceneryDef TurntablePit() {
  constexpr double kMiddle = 139.0;
  constexpr int kStubs = 30;
  Art art = {FilledEllipse({0, 0, 278, 278}, kStone, kOutline),
             FilledEllipse({13, 13, 252, 252}, kConcrete, kOutline),
             OutlinedEllipse({24, 24, 230, 230}, kMetal, 2)};
  for (int i = 0; i < kStubs; ++i) {
    const double c = std::cos(Radians(i * kStallAngle));
    const double s = std::sin(Radians(i * kStallAngle));
    const auto at = [=](double along, double across) {
      return Vec2{kMiddle + along * c - across * s, kMiddle + along * s + across * c};
    };
    art.push_back(Polygon({at(131, -11), at(136, -11), at(136, 11), at(131, 11)}, kWood));
    for (const double rail : {-kGaugeHalf, kGaugeHalf})
      art.push_back(Line(at(127, rail), at(138, rail), kOutline, 2));
  }
  art.push_back(FilledRect({14, 123, 250, 32}, kTimber, kOutline));
  for (int x = 20; x < 264; x += 6) art.push_back(Line({double(x), 123}, {double(x), 155}, kWood));
  for (const double y : {kMiddle - kGaugeHalf, kMiddle + kGaugeHalf})
    art.push_back(Line({14, y}, {264, y}, kOutline, 2));
  for (const double y : {120.0, 155.0})
    art.push_back(FilledRect({14, y, 250, 3}, kSteel, kOutline));
  art.push_back(FilledRect({204, 98, 36, 23}, kRoofRed, kOutline));
  art.push_back(FilledRect({208, 102, 28, 15}, kRoofBrown, kOutline));
  art.push_back(FilledEllipse({kMiddle - 6, kMiddle - 6, 12, 12}, kTruckBlue, kOutline));
  SceneryDef def =
      MakeItem("74861", "Turntable 74861 (pit 278mm)", kSpecial, 278, 278, std::move(art));
  def.role = SceneryRole::turntablePit;
  return def;
}

// A stall of the roundhouse around the centre of its turntable, which lies beyond the front.
struct Stall {
  static constexpr double kCentreX = 193.0;
  static constexpr double kCentreY = -349.6;

  double angle = 0.0;  // degrees

  // `along` mm from the centre, `across` mm to the side of the stall's own track.
  Vec2 at(double along, double across) const {
    const double c = std::cos(Radians(angle));
    const double s = std::sin(Radians(angle));
    return {kCentreX + along * s + across * c, kCentreY + along * c - across * s};
  }
  ScenePrimitive patch(double from, double to, double left, double right, Rgba fill,
                       Rgba stroke) const {
    return Polygon({at(from, left), at(to, left), at(to, right), at(from, right)}, fill, stroke);
  }
};

SceneryDef Roundhouse() {
  constexpr double kFront = 380.0;
  constexpr double kRear = 692.0;
  constexpr double kEndWall = 50.0;  // the outer stalls end in a wall along their track
  const double seam = std::tan(Radians(kStallAngle / 2.0));
  Art art;
  for (const int side : {1, 0, -1}) {
    const Stall stall{side * kStallAngle};
    const double frontLeft = side == -1 ? kEndWall : kFront * seam;
    const double frontRight = side == 1 ? kEndWall : kFront * seam;
    const double rearLeft = side == -1 ? kEndWall : kRear * seam;
    const double rearRight = side == 1 ? kEndWall : kRear * seam;
    art.push_back(stall.patch(369, 386, -20, -14, kTimber, kOutline));
    art.push_back(stall.patch(369, 386, 14, 20, kTimber, kOutline));
    art.push_back(Polygon({stall.at(kFront, -frontLeft), stall.at(kRear, -rearLeft),
                           stall.at(kRear, 0), stall.at(kFront, 0)},
                          kRoofRed, kOutline));
    art.push_back(Polygon({stall.at(kFront, 0), stall.at(kRear, 0), stall.at(kRear, rearRight),
                           stall.at(kFront, frontRight)},
                          kRoofBrown, kOutline));
    for (int window = 0; window < 4; ++window) {
      const double from = 410 + window * 46.0;
      art.push_back(stall.patch(from, from + 28, -26, -14, kWindowBlue, kOutline));
      art.push_back(stall.patch(from, from + 28, 14, 26, kWindowBlue, kOutline));
    }
    art.push_back(stall.patch(604, 648, -14, 14, kConcrete, kOutline));
    art.push_back(stall.patch(612, 640, -7, 7, kOutline, kOutline));
  }
  SceneryDef def =
      MakeItem("72886", "Roundhouse 72886 (3-stall)", kOther, 386, 343, std::move(art));
  def.role = SceneryRole::roundhouse;
  return def;
}

SceneryDef WaterTower() {
  Art art = {FilledRect({21, 0, 8, 50}, kWood, kOutline),
             FilledRect({0, 21, 50, 8}, kWood, kOutline),
             FilledEllipse({3, 3, 44, 44}, kTruckBlue, kOutline),
             FilledEllipse({8, 8, 34, 34}, kWindowBlue, kOutline),
             FilledRect({8, 21, 34, 8}, kTimber, kOutline),
             FilledRect({32, 22, 9, 6}, kMetal, kOutline)};
  return MakeItem("water_tower", "Water tower", kSpecial, 50, 50, std::move(art));
}

SceneryDef CoalingTower() {
  Art art = {FilledRect({30, 0, 20, 80}, kTimber, kOutline),
             FilledRect({5, 12, 70, 56}, kConcrete, kOutline),
             FilledRect({12, 19, 56, 42}, kSteel, kOutline),
             Polygon({{17, 40},
                      {20, 29},
                      {29, 25},
                      {38, 27},
                      {47, 24},
                      {57, 27},
                      {63, 36},
                      {60, 48},
                      {52, 55},
                      {41, 53},
                      {30, 56},
                      {20, 51}},
                     kBlack, kOutline)};
  return MakeItem("coaling_tower", "Coaling tower", kSpecial, 80, 80, std::move(art));
}

}  // namespace

void AddEngineDepot(std::vector<SceneryDef>& rows) {
  rows.push_back(TurntablePit());
  rows.push_back(Roundhouse());
  rows.push_back(WaterTower());
  rows.push_back(CoalingTower());
}

}  // namespace vantrel::scenery
