#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "tools/samples/sample_builder.h"

namespace vantrel::samples {
namespace {

// Six 30 degree curves: half a circle to the right.
End HalfCircle(SampleBuilder& plan, End from, std::string_view curve) {
  return plan.layMany(from, curve, 6);
}

}  // namespace

// Two concentric ovals, R2 outside and R1 inside, 77.5 mm apart, with a crossover between them on
// the far side and a station siding on the near side.
Layout DoubleOval() {
  SampleBuilder plan;
  const Pose origin{500.0, 300.0, 0.0};

  // Outer oval, clockwise. The right-hand turnout's branch leads to the inner oval.
  const End first = plan.start("24612", origin);
  End end = plan.lay(first, "24172");
  end = plan.layMany(end, "24188", 3);
  end = HalfCircle(plan, end, "24230");
  const End siding = plan.lay(end, "24611");
  end = plan.lay(siding, "24172");
  end = plan.layMany(end, "24188", 3);
  end = HalfCircle(plan, end, "24230");
  plan.close(end, plan.other(first, 0));

  // Inner oval, from the second turnout of the crossover: its branch meets the first one's.
  const End crossover = plan.lay(plan.other(first, 2), "24612", 2, 0);
  end = plan.layMany(crossover, "24188", 3);
  end = HalfCircle(plan, end, "24130");
  end = plan.layMany(end, "24188", 3);
  end = plan.lay(end, "24188");
  end = plan.lay(end, "24172");
  end = HalfCircle(plan, end, "24130");
  end = plan.lay(end, "24172");
  plan.close(end, plan.other(crossover, 1));

  // The siding runs beside the near side and ends at a bumper with a light.
  end = plan.lay(plan.other(siding, 2), "24224");
  end = plan.layMany(end, "24188", 2);
  end = plan.lay(end, "24994");
  plan.lay(end, "24978");

  const double nearSide = origin.y + 2 * 437.5;
  const double middle = origin.x + 462.45;
  plan.scenery("platform_island", {middle - 60.0, nearSide + 160.0, 0.0});
  plan.scenery("station_large", {middle - 60.0, nearSide + 330.0, 0.0});
  plan.scenery("signal_color_clear", {origin.x + 880.0, nearSide + 45.0, 0.0});
  plan.scenery("signal_semaphore_stop", {origin.x + 30.0, origin.y - 45.0, 0.0});
  plan.scenery("tree_group", {middle - 250.0, origin.y + 330.0, 0.0});
  plan.scenery("tree_lg_dec", {middle + 150.0, origin.y + 420.0, 0.0});
  plan.scenery("tree_conifer", {middle + 230.0, origin.y + 360.0, 0.0});
  plan.scenery("bush", {middle + 60.0, origin.y + 500.0, 0.0});
  // A road crosses both ovals and ends in the village.
  const double road = origin.x + 800.0;
  plan.scenery("crossing_2track", {road, origin.y + 38.75, 0.0});
  plan.scenery("road_straight", {road, origin.y - 96.0, 90.0}, {0.57, 1.0});
  for (const double y : {212.75, 400.75}) plan.scenery("road_straight", {road, origin.y + y, 90.0});
  plan.scenery("parking_lot", {road - 170.0, origin.y + 330.0, 0.0});
  plan.scenery("ped_zone", {road - 170.0, origin.y + 440.0, 0.0}, {2.0, 1.2});
  plan.scenery("goods_shed", {road + 140.0, origin.y + 420.0, 90.0});
  plan.scenery("car", {road - 12.0, origin.y + 300.0, 90.0});
  plan.scenery("truck", {road + 12.0, origin.y + 200.0, 270.0});
  plan.scenery("signal_box", {origin.x + 1010.0, nearSide + 90.0, 0.0});
  for (const double x : {-430.0, 700.0, 860.0})
    plan.scenery("tree_group", {middle + x, nearSide + 350.0, 0.0});
  for (const double x : {-380.0, -300.0, 420.0, 500.0, 600.0})
    plan.scenery("tree_conifer", {middle + x, nearSide + 300.0 + x / 10.0, 0.0});
  for (const Vec2 at : {Vec2{-300.0, 180.0}, {-120.0, 640.0}, {80.0, 660.0}, {420.0, 620.0}})
    plan.scenery("tree_lg_dec", {middle + at.x, origin.y + at.y, 0.0});
  plan.label("Platform 1", {middle - 130.0, nearSide + 225.0});
  plan.label("Crossover", {origin.x + 110.0, origin.y - 90.0});
  plan.label("Outer oval, R2", {middle - 480.0, nearSide - 60.0});
  plan.label("Inner oval, R1", {middle - 90.0, nearSide - 180.0});
  plan.label("Siding", {origin.x - 60.0, nearSide + 105.0});
  plan.table(kRectangleBoard, {2040.0, 1640.0, 0.0, 0.0}, {-60.0, 120.0});
  return plan.take();
}

// A terminus: two lines cross over in a double slip and fan out into six platform and yard tracks.
Layout KTerminus() {
  SampleBuilder plan;
  const End slip = plan.start("2260", {900.0, 700.0, 0.0});

  // The two lines come in from the left, 64.6 mm apart.
  End end = plan.layMany(plan.other(slip, 0), "2200", 3);
  plan.lay(end, "7389");
  end = plan.lay(plan.other(slip, 2), "2232", 1, 0);
  end = plan.layMany(end, "2200", 2);
  plan.lay(end, "7389");

  // A yard ladder: each turnout's branch, bent back by a 22.5 degree curve, is the next track.
  const auto finish = [&](End from, int straights) {
    plan.lay(plan.layMany(from, "2200", straights), "7391");
  };
  // Above the through line, by left turnouts; the curve back is entered at its far end.
  const End up1 = plan.lay(slip, "2262");
  const End up2 = plan.lay(plan.lay(plan.other(up1, 2), "2232"), "2265");
  const End up3 = plan.lay(plan.other(up2, 2), "2232");
  finish(plan.layMany(up1, "2206", 2), 5);
  finish(plan.lay(up2, "2206"), 4);
  finish(up3, 4);
  // Below it, by right turnouts.
  const End down1 = plan.lay(plan.lay(plan.other(slip, 3), "2232", 1, 0), "2263");
  const End down2 = plan.lay(plan.lay(plan.other(down1, 2), "2232", 1, 0), "2266");
  const End down3 = plan.lay(plan.other(down2, 2), "2232", 1, 0);
  finish(plan.lay(down1, "2206"), 5);
  finish(down2, 5);
  finish(down3, 4);

  // Platforms beside the northernmost track, goods beside the southernmost.
  const double north = plan.pose(up3).y;
  const double south = plan.pose(down3).y;
  for (int i = 0; i < 4; ++i) plan.scenery("platform", {1600.0 + 230.0 * i, north - 57.0, 0.0});
  plan.scenery("station_small", {2620.0, 560.0, 270.0});
  plan.scenery("signal_box", {1180.0, 480.0, 0.0});
  plan.scenery("goods_shed", {2050.0, south + 72.0, 0.0});
  plan.scenery("platform", {1820.0, south + 57.0, 180.0});
  plan.scenery("water_tower", {1480.0, 960.0, 0.0});
  for (int i = 0; i < 6; ++i) plan.scenery("road_straight", {1450.0 + 188.0 * i, 1075.0, 0.0});
  plan.scenery("parking_lot", {2620.0, 1070.0, 0.0});
  plan.scenery("truck", {1980.0, 1063.0, 180.0});
  plan.scenery("car", {1560.0, 1088.0, 0.0});
  plan.scenery("car", {2300.0, 1088.0, 0.0});
  plan.scenery("signal_color_stop", {860.0, 740.0, 0.0});
  plan.scenery("signal_color_clear", {860.0, 595.0, 0.0});
  for (const Vec2 at : {Vec2{360.0, 470.0},
                        {620.0, 450.0},
                        {430.0, 1040.0},
                        {760.0, 1080.0},
                        {1050.0, 980.0},
                        {1230.0, 1090.0}})
    plan.scenery("tree_group", {at.x, at.y, 0.0});
  for (const Vec2 at : {Vec2{480.0, 520.0},
                        {820.0, 470.0},
                        {980.0, 440.0},
                        {560.0, 940.0},
                        {920.0, 900.0},
                        {1380.0, 1090.0}})
    plan.scenery("tree_conifer", {at.x, at.y, 0.0});
  plan.label("Main line", {330.0, 725.0});
  plan.label("Branch", {330.0, 570.0});
  plan.label("Double slip", {880.0, 650.0});
  plan.label("Platforms", {1760.0, 440.0});
  plan.label("Goods yard", {1540.0, 985.0});
  plan.table(kRectangleBoard, {2520.0, 780.0, 0.0, 0.0}, {240.0, 380.0});
  return plan.take();
}

// Two ovals and a goods siding on a board of 900 by 550 mm.
Layout ZTableTop() {
  SampleBuilder plan;
  // Outer oval, R2, clockwise, with a turnout to a siding outside on the near side.
  const End first = plan.start("8500", {310.0, 90.0, 0.0});
  End end = plan.layMany(first, "8500", 2);
  end = plan.layMany(end, "8520", 4);
  const End turnout = plan.lay(end, "8562");
  end = plan.layMany(turnout, "8500", 2);
  end = plan.layMany(end, "8520", 4);
  plan.close(end, plan.other(first, 0));
  end = plan.lay(plan.other(turnout, 2), "8591");
  end = plan.lay(end, "8500");
  end = plan.lay(end, "8501");
  plan.lay(end, "8991");

  // Inner oval, R1, 50 mm inside.
  const End inner = plan.start("8505", {310.0, 140.0, 0.0});
  end = plan.lay(inner, "8500");
  end = plan.layMany(end, "8510", 4);
  end = plan.lay(end, "8505");
  end = plan.lay(end, "8500");
  end = plan.layMany(end, "8510", 4);
  plan.close(end, plan.other(inner, 0));

  plan.shape({{360.0, 240.0}, {430.0, 220.0}, {500.0, 250.0}, {470.0, 310.0}, {390.0, 320.0}}, 120,
             160, 210, "Lake");
  plan.scenery("tree_sm_dec", {330.0, 300.0, 0.0});
  plan.scenery("tree_sm_dec", {545.0, 235.0, 0.0});
  plan.scenery("bush", {560.0, 330.0, 0.0});
  plan.scenery("signal_z_color_clear", {640.0, 462.0, 0.0});
  plan.scenery("signal_z_semaphore_stop", {300.0, 72.0, 0.0});
  plan.scenery("platform", {400.0, 529.0, 180.0}, {0.6, 0.45});
  for (const Vec2 at : {Vec2{250.0, 250.0}, {700.0, 330.0}, {100.0, 80.0}, {840.0, 530.0}})
    plan.scenery("tree_conifer", {at.x, at.y, 0.0}, {0.6, 0.6});
  for (const Vec2 at : {Vec2{280.0, 330.0}, {660.0, 240.0}, {690.0, 280.0}, {110.0, 520.0}})
    plan.scenery("bush", {at.x, at.y, 0.0});
  plan.label("Goods siding", {380.0, 555.0});
  plan.label("Outer oval, 195 mm", {440.0, 62.0});
  plan.label("Inner oval, 145 mm", {440.0, 155.0});
  plan.table(kRectangleBoard, {830.0, 550.0, 0.0, 0.0}, {60.0, 40.0});
  return plan.take();
}

// A ring that climbs over curved ramps to a line of bridges and comes down again, with a branch
// that runs under the bridges.
Layout TrixViaduct() {
  SampleBuilder plan;
  constexpr double kClimbDegrees = 3.0;
  const Pose origin{700.0, 300.0, 0.0};

  // The branch under the bridges runs down the page at height 0 from end to end. It is laid first,
  // so that the bridges are drawn over it.
  const double under = origin.x + 360.0 + 94.15;
  const double bridges = origin.y + 2 * 437.5;
  End branch = plan.start("62188", {under, bridges - 450.0, 90.0});
  plan.lay(plan.other(branch, 0), "62977");
  branch = plan.lay(branch, "62612");
  plan.lay(plan.layMany(branch, "62188", 2), "62977");
  End end = plan.lay(plan.other(branch, 2), "62224", 1, 0);
  plan.lay(plan.lay(end, "62188"), "62977");

  const End first = plan.start("62360", origin);
  end = plan.lay(first, "62360");
  end = plan.lay(end, "62188");
  plan.startGrade(end, kClimbDegrees);
  end = HalfCircle(plan, end, "62623");
  // Bridges lie flat: the first one ends the climb.
  end = plan.lay(end, "62636");
  end = plan.lay(end, "62620");
  end = plan.lay(end, "62636");
  plan.startGrade(end, -kClimbDegrees);
  end = HalfCircle(plan, end, "62623");
  plan.endGrade(end);
  plan.close(end, plan.other(first, 0));

  // The far side runs through a hill.
  plan.tunnel({first, plan.joined(first)});

  plan.shape({{origin.x + 40.0, bridges - 130.0},
              {under - 170.0, bridges - 140.0},
              {under - 140.0, bridges + 200.0},
              {under - 190.0, bridges + 440.0},
              {origin.x - 20.0, bridges + 440.0},
              {origin.x - 10.0, bridges + 120.0}},
             110, 160, 215, "River");
  for (const Vec2 at : {Vec2{40.0, 130.0}, {250.0, 300.0}, {560.0, 140.0}, {-120.0, 420.0}})
    plan.scenery("tree_group", {origin.x + at.x, origin.y + at.y, 0.0});
  for (const Vec2 at : {Vec2{150.0, 110.0},
                        {320.0, 130.0},
                        {430.0, 150.0},
                        {760.0, 330.0},
                        {690.0, 200.0},
                        {-60.0, 300.0},
                        {-200.0, 520.0},
                        {880.0, 420.0}})
    plan.scenery("tree_conifer", {origin.x + at.x, origin.y + at.y, 0.0});
  plan.scenery("tree_lg_dec", {origin.x + 700.0, origin.y + 560.0, 0.0});
  plan.scenery("tree_lg_dec", {origin.x + 80.0, origin.y + 520.0, 0.0});
  plan.scenery("goods_shed", {under + 75.0, origin.y + 560.0, 90.0});
  plan.scenery("signal_color_stop", {under - 40.0, origin.y + 600.0, 90.0});
  plan.scenery("viaduct_pier", {under - 120.0, bridges, 0.0});
  plan.scenery("viaduct_pier", {under + 120.0, bridges, 0.0});
  plan.label("Tunnel", {origin.x + 310.0, origin.y - 90.0});
  plan.label("Branch", {under + 40.0, origin.y + 420.0});
  plan.label("3 degrees up", {origin.x + 1000.0, origin.y + 150.0});
  plan.label("3 degrees down", {origin.x - 420.0, origin.y + 700.0});
  plan.table(kRectangleBoard, {2000.0, 1460.0, 0.0, 0.0}, {160.0, 160.0});
  return plan.take();
}

// A hidden staging yard below, a station with a turntable above, and a helix between them.
Layout TwoDecks() {
  SampleBuilder plan;
  EnsureDefaultLevel(plan.layout());
  plan.layout().levels[0].name = "Staging";
  const Helix helix = plan.helix({600.0, 700.0});

  // Lower deck: the two tracks of the helix fan out into four staging tracks.
  End end = plan.lay({helix.bottomR2, 1}, "24611");
  const End outerBranch = plan.lay(plan.other(end, 2), "24224");
  plan.lay(plan.layMany(plan.lay(end, "24172"), "24360", 3), "24977");
  plan.lay(plan.layMany(outerBranch, "24360", 3), "24977");
  end = plan.lay({helix.bottomR1, 1}, "24612");
  const End innerBranch = plan.lay(plan.other(end, 2), "24224", 1, 0);
  plan.lay(plan.layMany(plan.lay(end, "24172"), "24360", 3), "24977");
  plan.lay(plan.layMany(innerBranch, "24360", 3), "24977");
  for (Piece& piece : plan.layout().pieces) piece.level = piece.z > 0.5 ? 2 : 1;

  // Upper deck, as high as the helix climbs.
  Level upper;
  upper.id = 2;
  upper.name = "Station";
  upper.height = 260.0;
  upper.r = 200;
  upper.g = 215;
  upper.b = 190;
  upper.outline = {{80.0, 880.0}, {3130.0, 880.0}, {3130.0, 1560.0}, {80.0, 1560.0}};
  plan.layout().levels.push_back(upper);
  end = plan.layMany({helix.topR1, 1}, "24360", 3);
  plan.lay(end, "24977");
  end = plan.lay({helix.topR2, 1}, "24612");
  const End yard = plan.lay(plan.other(end, 2), "24224", 1, 0);
  plan.lay(plan.layMany(yard, "24360", 2), "24978");
  end = plan.layMany(plan.lay(end, "24172"), "24360", 3);
  const End table = plan.lay(end, "74861", 15, 0);

  // Three stalls opposite the lead; their gates are where the first straight ends.
  for (const std::int32_t stall : {29, 0, 1}) {
    const End spoke = plan.other(plan.joined(plan.other(table, stall)), 1);
    plan.lay(plan.lay(plan.lay(spoke, "24172"), "24188"), "24977");
  }
  constexpr double kHouseFromCentre = 349.6 + 343.0 / 2.0;
  const Piece& turntable = plan.piece(table.piece);
  plan.scenery("72886", {turntable.x + kHouseFromCentre, turntable.y, 270.0});
  plan.scenery("coaling_tower", {2080.0, 1000.0, 0.0});
  plan.scenery("water_tower", {2080.0, 1230.0, 0.0});

  for (const double x : {1300.0, 1760.0}) plan.scenery("platform_island", {x, 1302.0, 0.0});
  plan.scenery("station_small", {1450.0, 1450.0, 180.0});
  plan.scenery("signal_color_clear", {1180.0, 1022.0, 0.0});
  plan.scenery("parking_lot", {1820.0, 1450.0, 0.0});
  for (const Vec2 at : {Vec2{2150.0, 1440.0}, {2450.0, 1480.0}, {2800.0, 1450.0}, {1100.0, 1480.0}})
    plan.scenery("tree_group", {at.x, at.y, 0.0});
  for (const Vec2 at : {Vec2{2300.0, 1500.0}, {2640.0, 1420.0}, {3020.0, 1500.0}, {2960.0, 940.0}})
    plan.scenery("tree_conifer", {at.x, at.y, 0.0});
  plan.label("Staging tracks", {1400.0, 70.0});
  plan.label("Station", {1400.0, 1230.0});
  plan.label("Helix, 260 mm up", {430.0, 690.0});
  plan.label("Loco depot", {2280.0, 1350.0});

  // What the upper deck stands on, as far as the helix leaves room.
  Level frame;
  frame.id = 3;
  frame.name = "Frame of the upper deck";
  frame.g = 220;
  frame.b = 180;
  plan.layout().levels.push_back(frame);
  plan.onLevel(frame.id);
  Shape& deck = plan.shape({{1060.0, 900.0}, {3130.0, 900.0}, {3130.0, 1560.0}, {1060.0, 1560.0}},
                           165, 160, 120, "");
  deck.height = upper.height;
  deck.outline = false;
  plan.table(kRectangleBoard, {3140.0, 1560.0, 0.0, 0.0}, {40.0, 40.0});
  return plan.take();
}

const std::vector<Sample>& AllSamples() {
  static const std::vector<Sample> samples = {
      {"C-Track Double Oval", DoubleOval}, {"Exhibition Yard", ExhibitionYard},
      {"K-Track Terminus", KTerminus},     {"TRIX Viaduct", TrixViaduct},
      {"Two Decks with Helix", TwoDecks},  {"Z-Track Table Top", ZTableTop}};
  return samples;
}

}  // namespace vantrel::samples
