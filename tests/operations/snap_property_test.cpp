// The snap search sorts out pieces early. These tests hold it against the search as it is told:
// every open connector of every piece, with every connector of the moving one.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "canvas/operations/snap.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// Calls `visit` with each pair within the limits, in the order that decides ties.
template <typename Visit>
void PlainLoop(const PieceDef& def, const Pose& pose, std::span<const Piece* const> others,
               Visit visit) {
  Piece moving;
  moving.x = pose.x;
  moving.y = pose.y;
  moving.heading = pose.heading;
  const std::vector<WorldConnector> own = worldConnectors(moving, def);
  for (const Piece* piece : others) {
    const PieceDef* otherDef = findPart(piece->cat);
    if (otherDef == nullptr) continue;
    for (const WorldConnector& end : worldConnectors(*piece, *otherDef)) {
      if (!end.open) continue;
      for (const WorldConnector& mine : own) {
        const double dx = end.x - mine.x;
        const double dy = end.y - mine.y;
        const double distance = std::sqrt(dx * dx + dy * dy);
        if (std::isnan(distance) || distance > 25.0) continue;
        double turn = std::fmod(std::abs(end.heading - mine.heading), 360.0);
        if (turn > 180.0) turn = 360.0 - turn;
        if (turn < 20.0) continue;
        visit(*piece, *otherDef, end, mine, distance);
      }
    }
  }
}

struct Expected {
  SnapResult snap;
  IncompatibleJoin refusal;
  int ties = 0;  // pairs as near as the best one that came too late
};

Expected Search(const PieceDef& def, const Pose& pose, std::span<const Piece* const> others) {
  Expected expected;
  double best = std::numeric_limits<double>::max();
  PlainLoop(def, pose, others,
            [&](const Piece& piece, const PieceDef& otherDef, const WorldConnector& end,
                const WorldConnector& mine, double distance) {
              const std::int32_t ours =
                  connectorSystem(def, static_cast<std::size_t>(mine.connectorIndex));
              const std::int32_t theirs =
                  connectorSystem(otherDef, static_cast<std::size_t>(end.connectorIndex));
              if (ours != theirs) {
                if (!expected.refusal.found) expected.refusal = {true, ours, theirs};
                return;
              }
              if (distance == best) ++expected.ties;
              if (!(distance < best)) return;
              best = distance;
              expected.ties = 0;
              const Pose snapped = poseForConnector(def, mine.connectorIndex, end.pose());
              expected.snap = {true,      piece.id,  end.connectorIndex, mine.connectorIndex,
                               snapped.x, snapped.y, snapped.heading,    distance};
            });
  return expected;
}

// Draws small, crowded plans with everything in them that a snap has to cope with.
class PlanDealer {
 public:
  explicit PlanDealer(unsigned seed) : random_(seed) {
    static constexpr std::array<double, 6> origins = {0.0, 0.0, 0.0, 1e6, -3e9, 1e16};
    origin_ = origins[below(origins.size())];
    side_ = 50.0 + static_cast<double>(below(500));
    onGrid_ = below(2) == 0;
  }

  Layout plan() {
    Layout layout;
    layout.levels.resize(2);
    layout.levels[1].id = 2;
    layout.levels[1].visible = below(2) == 0;
    const std::size_t pieces = below(30);
    for (std::size_t i = 0; i < pieces; ++i) {
      const std::int32_t id = LayPiece(layout, part(), pose());
      Piece& piece = PieceOf(layout, id);
      piece.level = static_cast<std::int32_t>(1 + below(3));
      closeSome(piece);
      if (below(8) == 0) spoil(piece);
      if (below(5) == 0) layout.pieces.push_back(layout.pieces[below(layout.pieces.size())]);
    }
    return layout;
  }

  std::string part() {
    static constexpr std::array<const char*, 14> usual = {
        "24188", "24064", "24130", "24611", "24922", "24922", "2200",
        "2204",  "62064", "8504",  "8502",  "74861", "24951", "no such part"};
    if (below(3) > 0) return usual[below(usual.size())];
    return catalog().pieceAt(static_cast<std::int32_t>(below(167)))->partNumber;
  }

  const PieceDef& knownPart() {
    for (;;)
      if (const PieceDef* def = findPart(part())) return *def;
  }

  Pose pose() {
    if (onGrid_) {
      const double step = 12.5;
      const auto cells = static_cast<std::size_t>(side_ / step) + 1;
      return {origin_ + step * static_cast<double>(below(cells)),
              origin_ + step * static_cast<double>(below(cells)),
              90.0 * static_cast<double>(below(4))};
    }
    std::uniform_real_distribution<double> place(0.0, side_);
    std::uniform_real_distribution<double> angle(-400.0, 760.0);
    return {origin_ + place(random_), origin_ + place(random_), angle(random_)};
  }

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }

  void closeSome(Piece& piece) {
    for (Joint& joint : piece.joints)
      if (below(3) == 0) joint = {.target = static_cast<std::int32_t>(below(5)) - 2, .tconn = 0};
    if (below(4) == 0 && !piece.joints.empty()) piece.joints.pop_back();
  }

  void spoil(Piece& piece) {
    static constexpr std::array<double, 6> bad = {std::numeric_limits<double>::quiet_NaN(),
                                                  std::numeric_limits<double>::infinity(),
                                                  -std::numeric_limits<double>::infinity(),
                                                  1e308,
                                                  -1e308,
                                                  1e17};
    double* const fields[] = {&piece.x, &piece.y, &piece.heading};
    *fields[below(3)] = bad[below(bad.size())];
  }

  std::mt19937 random_;
  double origin_ = 0.0;
  double side_ = 0.0;
  bool onGrid_ = false;
};

void ExpectSame(const SnapResult& found, const SnapResult& expected) {
  ASSERT_EQ(found.found, expected.found);
  EXPECT_EQ(found.targetPiece, expected.targetPiece);
  EXPECT_EQ(found.targetConnector, expected.targetConnector);
  EXPECT_EQ(found.ownConnector, expected.ownConnector);
  // To the last bit: the search may be quicker, never different.
  EXPECT_EQ(found.distance, expected.distance);
  EXPECT_EQ(found.x, expected.x);
  EXPECT_EQ(found.y, expected.y);
  EXPECT_EQ(found.heading, expected.heading);
}

TEST(Snap, EqualsThePlainSearchOverThousandsOfCrowdedPlans) {
  int snaps = 0;
  int ties = 0;
  int refusals = 0;
  int misses = 0;
  for (unsigned seed = 0; seed < 6000; ++seed) {
    SCOPED_TRACE(seed);
    PlanDealer dealer(seed);
    const Layout layout = dealer.plan();
    const std::vector<const Piece*> visible = VisiblePieces(layout);
    const std::vector<const Piece*> all = AllPieces(layout);
    for (int i = 0; i < 4; ++i) {
      const PieceDef& def = dealer.knownPart();
      const Pose pose = dealer.pose();
      const Expected expected = Search(def, pose, visible);
      ExpectSame(findSnap(def, pose, visible), expected.snap);
      const IncompatibleJoin refused = Search(def, pose, all).refusal;
      const IncompatibleJoin found = findIncompatibleJoin(def, pose, all);
      EXPECT_EQ(found.found, refused.found);
      EXPECT_EQ(found.ownSystem, refused.ownSystem);
      EXPECT_EQ(found.otherSystem, refused.otherSystem);
      if (HasFailure()) return;
      snaps += expected.snap.found ? 1 : 0;
      misses += expected.snap.found ? 0 : 1;
      ties += expected.snap.found && expected.ties > 0 ? 1 : 0;
      refusals += refused.found ? 1 : 0;
    }
  }
  // The plans hold what they are meant to hold.
  EXPECT_GT(snaps, 2000);
  EXPECT_GT(misses, 2000);
  EXPECT_GT(ties, 200);
  EXPECT_GT(refusals, 2000);
}

// Sets the moving piece's connector at a bearing of its own around another piece's connector, at
// distances just inside and just outside the limit: nothing within reach may be sorted out.
TEST(Snap, ReachesEveryConnectorOfEveryPartFromEveryConnectorOfAnother) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> angle(0.0, 360.0);
  int found = 0;
  for (std::int32_t row = 0; row < catalog().pieceCount(); ++row) {
    const PieceDef& target = *catalog().pieceAt(row);
    for (std::size_t i = 0; i < target.connectors.size(); ++i) {
      Layout layout;
      LayPiece(layout, target.partNumber, {1000.0, -500.0, angle(random)});
      const WorldConnector end = worldConnectors(layout.pieces[0], target)[i];
      const PieceDef& def = *catalog().pieceAt(static_cast<std::int32_t>(random() % 167));
      const auto own = static_cast<std::int32_t>(random() % def.connectors.size());
      for (double distance : {24.999, 25.001}) {
        const double bearing = angle(random) * 3.141592653589793 / 180.0;
        const Pose pose = poseForConnector(def, own,
                                           {end.x + distance * std::cos(bearing),
                                            end.y + distance * std::sin(bearing), end.heading});
        const std::vector<const Piece*> others = AllPieces(layout);
        const Expected expected = Search(def, pose, others);
        ExpectSame(findSnap(def, pose, others), expected.snap);
        EXPECT_EQ(findIncompatibleJoin(def, pose, others).found, expected.refusal.found);
        found += expected.snap.found || expected.refusal.found ? 1 : 0;
      }
    }
  }
  EXPECT_GT(found, 400);
}

}  // namespace
}  // namespace vantrel
