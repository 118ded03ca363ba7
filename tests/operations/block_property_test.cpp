// The searches for a dragged block look at few pairs. These tests hold them against the loops as
// they are told: every end of the block with every end outside, one after the other.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "canvas/operations/closing_joints.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/moving.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// The search as told: one findSnap for each selected piece, the shortest kept, the first of equals.
// A joined connector of the moving piece is taken out by setting it nowhere.
BlockSnap PlainBlockSnap(const Layout& layout, int& ties) {
  BlockSnap best;
  ties = 0;
  std::vector<const Piece*> others;
  for (const Piece& piece : layout.pieces)
    if (!piece.sel && !IsLevelHidden(layout, piece.level)) others.push_back(&piece);
  for (const Piece& piece : layout.pieces) {
    const PieceDef* def = findPart(piece.cat);
    if (!layout.snapEnabled || !piece.sel || def == nullptr) continue;
    PieceDef free = *def;
    for (std::size_t i = 0; i < free.connectors.size(); ++i)
      if (i < piece.joints.size() && piece.joints[i].target != -1) free.connectors[i].x = kNaN;
    const SnapResult found = findSnap(free, piece.pose(), others);
    if (!found.found) continue;
    if (best.snap.found && found.distance == best.snap.distance) ++ties;
    if (best.snap.found && !(found.distance < best.snap.distance)) continue;
    best = {.snap = found, .piece = piece.id};
    ties = 0;
  }
  return best;
}

void PlainJoin(Layout& layout, Piece& a, std::size_t i, Piece& b, std::size_t j) {
  const Joint endA{.target = a.id, .tconn = static_cast<std::int32_t>(i)};
  const Joint endB{.target = b.id, .tconn = static_cast<std::int32_t>(j)};
  if (a.id < 0 || b.id < 0 || endA == endB) return;
  GrowJoints(a);
  GrowJoints(b);
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints)
      if (joint == endA || joint == endB) joint = Joint{};
  a.joints[i] = endB;
  b.joints[j] = endA;
}

struct Closings {
  int joins = 0;
  int replaced = 0;  // matches that a later one of the same end took the place of
};

Closings PlainClosingJoints(Layout& layout) {
  Closings count;
  for (Piece& p : layout.pieces) {
    const PieceDef* def = findPart(p.cat);
    if (!p.sel || def == nullptr) continue;
    for (std::size_t i = 0; i < def->connectors.size(); ++i) {
      if (!IsConnectorOpen(p, i)) continue;
      const WorldConnector own = worldConnector(p, *def, i);
      int matches = 0;
      for (Piece& q : layout.pieces) {
        const PieceDef* otherDef = findPart(q.cat);
        if (q.sel || otherDef == nullptr) continue;
        for (std::size_t j = 0; j < otherDef->connectors.size(); ++j) {
          if (!IsConnectorOpen(q, j)) continue;
          const WorldConnector other = worldConnector(q, *otherDef, j);
          const double square = std::pow(own.x - other.x, 2.0) + std::pow(own.y - other.y, 2.0);
          if (!(square < 16.0)) continue;
          PlainJoin(layout, p, i, q, j);
          ++matches;
        }
      }
      count.joins += matches > 0 ? 1 : 0;
      count.replaced += matches > 1 ? matches - 1 : 0;
    }
  }
  return count;
}

std::vector<std::vector<Joint>> AllJoints(const Layout& layout) {
  std::vector<std::vector<Joint>> joints;
  for (const Piece& piece : layout.pieces) joints.push_back(piece.joints);
  return joints;
}

// Draws small plans in which ends crowd about a few spots.
class BlockPlanDealer {
 public:
  explicit BlockPlanDealer(unsigned seed) : random_(seed) {
    static constexpr std::array<double, 8> origins = {0.0, 0.0, 0.0, 0.0, -32.0, 1e6, -3e9, 1e16};
    origin_ = origins[below(origins.size())];
    onLattice_ = below(2) == 0;
    step_ = below(2) == 0 ? 12.5 : 1.0;
    spots_ = 1 + below(4);
  }

  std::size_t below(std::size_t limit) { return random_() % limit; }

  // Sound: every joint is named back. With `damage` anything that a file can hold is in it.
  Layout plan(bool damage) {
    Layout layout;
    layout.levels.resize(2);
    layout.levels[1].id = 2;
    layout.levels[1].visible = below(2) == 0;
    layout.snapEnabled = below(20) > 0;
    const std::size_t pieces = 2 + below(24);
    const std::size_t selectedOf = 2 + below(3);
    for (std::size_t i = 0; i < pieces; ++i) {
      const std::string cat = part();
      Piece& piece = PieceOf(layout, LayPiece(layout, cat, pose(cat)));
      piece.level = static_cast<std::int32_t>(1 + below(3));
      piece.sel = below(selectedOf) == 0;
      if (below(6) == 0) piece.joints.clear();
    }
    joinSome(layout);
    if (damage) spoil(layout);
    return layout;
  }

 private:
  std::string part() {
    static constexpr std::array<const char*, 14> usual = {
        "24188", "24064", "24130", "24611", "24922", "74871", "2200",
        "2204",  "62064", "8504",  "8502",  "74861", "24951", "no such part"};
    if (below(3) > 0) return usual[below(usual.size())];
    return catalog().pieceAt(static_cast<std::int32_t>(below(167)))->partNumber;
  }

  // One of the part's connectors stands near a spot.
  Pose pose(const std::string& cat) {
    std::uniform_real_distribution<double> jitter(-20.0, 20.0);
    std::uniform_real_distribution<double> angle(-400.0, 760.0);
    const double spot = 300.0 * static_cast<double>(below(spots_)) - 300.0;
    Pose end{origin_ + spot, origin_ - spot, angle(random_)};
    if (onLattice_) {
      end.x += step_ * static_cast<double>(below(5));
      end.y += step_ * static_cast<double>(below(5));
      end.heading = 90.0 * static_cast<double>(below(4));
    } else {
      const double spread = below(2) == 0 ? 1.0 : 0.15;
      end.x += spread * jitter(random_);
      end.y += spread * jitter(random_);
    }
    const PieceDef* def = findPart(cat);
    if (def == nullptr) return end;
    return poseForConnector(*def, static_cast<std::int32_t>(below(def->connectors.size())), end);
  }

  void joinSome(Layout& layout) {
    for (std::size_t i = below(8); i > 0; --i) {
      const Piece& a = layout.pieces[below(layout.pieces.size())];
      const Piece& b = layout.pieces[below(layout.pieces.size())];
      joinPieces(layout, a.id, static_cast<std::int32_t>(below(3)), b.id,
                 static_cast<std::int32_t>(below(3)));
    }
  }

  void spoil(Layout& layout) {
    static constexpr std::array<double, 8> wild = {kNaN,
                                                   std::numeric_limits<double>::infinity(),
                                                   -std::numeric_limits<double>::infinity(),
                                                   1e308,
                                                   -1e308,
                                                   9.3e18,
                                                   1e17,
                                                   -5e-324};
    for (Piece& piece : layout.pieces) {
      for (Joint& joint : piece.joints)
        if (below(6) == 0)
          joint = {.target = static_cast<std::int32_t>(below(pieceIds(layout))) - 2,
                   .tconn = static_cast<std::int32_t>(below(4)) - 1};
      double* const fields[] = {&piece.x, &piece.y, &piece.heading};
      if (below(12) == 0) *fields[below(3)] = wild[below(wild.size())];
      if (below(12) == 0) piece.id = static_cast<std::int32_t>(below(pieceIds(layout))) - 1;
      if (below(12) == 0) piece.joints.resize(below(6));
    }
  }

  static std::size_t pieceIds(const Layout& layout) { return layout.pieces.size() + 3; }

  std::mt19937 random_;
  double origin_ = 0.0;
  bool onLattice_ = false;
  double step_ = 1.0;
  std::size_t spots_ = 1;
};

TEST(BlockSnap, EqualsOneSearchPerSelectedPieceOverThousandsOfPlans) {
  int snaps = 0;
  int misses = 0;
  int tied = 0;
  int farOut = 0;
  for (unsigned seed = 0; seed < 12000; ++seed) {
    SCOPED_TRACE(seed);
    BlockPlanDealer dealer(seed);
    const Layout layout = dealer.plan(dealer.below(2) == 0);
    int ties = 0;
    const BlockSnap expected = PlainBlockSnap(layout, ties);
    const BlockSnap found = findBlockSnap(layout);
    ASSERT_EQ(found.snap.found, expected.snap.found);
    ASSERT_EQ(found.piece, expected.piece);
    ASSERT_EQ(found.snap.targetPiece, expected.snap.targetPiece);
    ASSERT_EQ(found.snap.targetConnector, expected.snap.targetConnector);
    ASSERT_EQ(found.snap.ownConnector, expected.snap.ownConnector);
    // To the last bit.
    ASSERT_EQ(found.snap.distance, expected.snap.distance);
    ASSERT_EQ(found.snap.pose(), expected.snap.pose());
    snaps += expected.snap.found ? 1 : 0;
    misses += expected.snap.found ? 0 : 1;
    tied += ties > 0 ? 1 : 0;
    farOut += expected.snap.found && std::abs(expected.snap.x) > 1e15 ? 1 : 0;
  }
  // The plans hold what they are meant to hold.
  EXPECT_GT(snaps, 3000);
  EXPECT_GT(misses, 2000);
  EXPECT_GT(tied, 300);
  EXPECT_GT(farOut, 100);
}

TEST(ClosingJoints, EqualThePlainLoopsOverThousandsOfPlans) {
  Closings total;
  for (unsigned seed = 0; seed < 4000; ++seed) {
    SCOPED_TRACE(seed);
    BlockPlanDealer dealer(seed);
    const bool damage = dealer.below(2) == 0;
    Layout layout = dealer.plan(damage);
    Layout expected = layout;
    const Closings count = PlainClosingJoints(expected);
    joinClosingEnds(layout);
    ASSERT_EQ(AllJoints(layout), AllJoints(expected));
    if (!damage) {
      ASSERT_EQ(BrokenJoint(layout), "");
    }
    total.joins += count.joins;
    total.replaced += count.replaced;
  }
  EXPECT_GT(total.joins, 2000);
  EXPECT_GT(total.replaced, 1000);
}

TEST(MovingABlock, NeverCrashesAndKeepsSoundPlansSound) {
  int joins = 0;
  for (unsigned seed = 0; seed < 3000; ++seed) {
    SCOPED_TRACE(seed);
    BlockPlanDealer dealer(seed);
    const bool damage = dealer.below(3) == 0;
    Layout layout = dealer.plan(damage);
    const MoveStart start = takeMoveStart(layout);
    breakEdgeJoints(layout);
    if (!damage) {
      ASSERT_EQ(BrokenJoint(layout), "");
    }
    BlockSnap held;
    for (int motion = 0; motion < 3; ++motion) {
      const auto way = [&] { return static_cast<double>(dealer.below(40)) - 20.0; };
      moveSelection(layout, start, {way(), way()});
      held = findBlockSnap(layout);
    }
    dropSelection(layout, start, held);
    if (!damage) {
      ASSERT_EQ(BrokenJoint(layout), "");
    }
    if (!held.snap.found || damage) continue;
    const Joint joined =
        JointOf(layout, held.piece, static_cast<std::size_t>(held.snap.ownConnector));
    ASSERT_EQ(joined, (Joint{.target = held.snap.targetPiece, .tconn = held.snap.targetConnector}));
    ++joins;
  }
  EXPECT_GT(joins, 500);
}

}  // namespace
}  // namespace vantrel
