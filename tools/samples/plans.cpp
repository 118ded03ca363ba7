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
  plan.label("Platform 1", {middle - 130.0, nearSide + 225.0});
  plan.label("Crossover", {origin.x + 110.0, origin.y - 90.0});
  plan.baseboard({-60.0, 120.0}, {1980.0, 1760.0});
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

  plan.scenery("goods_shed", {1950.0, 1010.0, 0.0});
  plan.scenery("platform", {1690.0, 1010.0, 0.0});
  plan.scenery("signal_box", {1180.0, 500.0, 0.0});
  plan.scenery("signal_color_stop", {860.0, 740.0, 0.0});
  plan.scenery("station_small", {2620.0, 560.0, 270.0});
  plan.scenery("water_tower", {1400.0, 990.0, 0.0});
  plan.label("Main line", {330.0, 720.0});
  plan.label("Branch", {330.0, 580.0});
  plan.label("Goods yard", {1880.0, 1070.0});
  plan.baseboard({240.0, 380.0}, {2760.0, 1160.0});
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
  plan.label("Goods siding", {390.0, 540.0});
  plan.baseboard({60.0, 40.0}, {890.0, 590.0});
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

  plan.shape({{origin.x + 40.0, bridges - 110.0},
              {under - 150.0, bridges - 130.0},
              {under - 160.0, bridges + 210.0},
              {origin.x + 20.0, bridges + 220.0}},
             110, 160, 215, "River");
  plan.scenery("tree_group", {origin.x + 250.0, origin.y + 300.0, 0.0});
  plan.scenery("tree_conifer", {origin.x + 760.0, origin.y + 330.0, 0.0});
  plan.scenery("viaduct_pier", {under - 120.0, bridges, 0.0});
  plan.scenery("viaduct_pier", {under + 120.0, bridges, 0.0});
  plan.label("3 degrees up", {origin.x + 1000.0, origin.y + 150.0});
  plan.label("3 degrees down", {origin.x - 420.0, origin.y + 700.0});
  plan.baseboard({160.0, 160.0}, {2160.0, 1620.0});
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
  upper.outline = {{80.0, 880.0}, {2700.0, 880.0}, {2700.0, 1560.0}, {80.0, 1560.0}};
  plan.layout().levels.push_back(upper);
  end = plan.layMany({helix.topR1, 1}, "24360", 3);
  plan.lay(end, "24977");
  end = plan.lay({helix.topR2, 1}, "24612");
  const End yard = plan.lay(plan.other(end, 2), "24224", 1, 0);
  plan.lay(plan.layMany(yard, "24360", 2), "24978");
  end = plan.layMany(plan.lay(end, "24172"), "24360", 3);
  plan.lay(end, "74861", 15, 0);

  plan.scenery("platform_island", {1450.0, 1360.0, 0.0});
  plan.scenery("station_small", {1450.0, 1480.0, 0.0});
  plan.label("Staging tracks", {1400.0, 70.0});
  plan.label("Station", {1420.0, 1400.0});
  plan.baseboard({40.0, 40.0}, {2760.0, 1600.0});
  return plan.take();
}

// A large plan: five nested ovals, one for each radius of the system, and a yard of long tracks;
// one thousand pieces exactly.
Layout ExhibitionYard() {
  SampleBuilder plan;
  constexpr std::size_t kPieces = 1000;
  constexpr int kStraights = 20;
  struct Ring {
    std::string_view curve;
    double radius;
  };
  const Ring rings[] = {
      {"24530", 643.6}, {"24430", 579.3}, {"24330", 515.0}, {"24230", 437.5}, {"24130", 360.0}};
  const double centreY = 1000.0;
  for (const Ring& ring : rings) {
    const End first = plan.start("24188", {900.0, centreY - ring.radius, 0.0});
    End end = plan.layMany(first, "24188", kStraights - 1);
    end = HalfCircle(plan, end, ring.curve);
    end = plan.layMany(end, "24188", kStraights);
    end = HalfCircle(plan, end, ring.curve);
    plan.close(end, plan.other(first, 0));
  }
  // The yard fills the board below, 64.3 mm from track to track, until the count is reached.
  double y = centreY + 643.6 + 200.0;
  while (plan.layout().pieces.size() < kPieces) {
    End end = plan.start("24978", {300.0, y, 180.0}, 0);
    while (plan.layout().pieces.size() < kPieces && plan.pose(end).x < 5200.0)
      end = plan.lay(end, plan.layout().pieces.size() % 7 == 0 ? "24229" : "24188");
    y += 64.3;
  }
  plan.baseboard({100.0, 200.0}, {5600.0, y + 140.0});
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
