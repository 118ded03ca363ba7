// Long random sessions of placing and joining, and what must hold after every step.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class Session {
 public:
  explicit Session(unsigned seed) : random_(seed) {}

  Layout layout;

  // A drop near an open end, mostly, as the mouse would make it.
  void drop() {
    const PieceDef& def = anyPart();
    const Pose pose = dropPose(def);
    const std::vector<const Piece*> others = VisiblePieces(layout);
    const SnapResult snap = findSnap(def, pose, others);
    const std::int32_t id = placePiece(layout, def, snap, pose);
    addPairPartner(layout, id);
    ClearSelection(layout);
    PieceOf(layout, id).sel = true;
    snaps += snap.found ? 1 : 0;
  }

  void doubleClickInPalette() {
    autoConnects += autoConnectPart(layout, anyPart().partNumber) != kNone ? 1 : 0;
  }

  // Any connector to any other, over whatever joins they have.
  void joinAnything() {
    if (layout.pieces.empty()) return;
    PushUndo(layout);
    const Piece& a = layout.pieces[below(layout.pieces.size())];
    const Piece& b = layout.pieces[below(layout.pieces.size())];
    joinPieces(layout, a.id, static_cast<std::int32_t>(below(a.joints.size() + 1)), b.id,
               static_cast<std::int32_t>(below(b.joints.size() + 1)));
  }

  std::size_t below(std::size_t limit) { return random_() % limit; }

  int snaps = 0;
  int autoConnects = 0;

 private:
  const PieceDef& anyPart() {
    static constexpr const char* usual[] = {"24188", "24130", "24611", "24672",
                                            "24640", "74618", "24922", "2200"};
    if (below(4) > 0) return *findPart(usual[below(8)]);
    return *catalog().pieceAt(static_cast<std::int32_t>(below(167)));
  }

  Pose dropPose(const PieceDef& def) {
    std::uniform_real_distribution<double> place(-2000.0, 2000.0);
    std::uniform_real_distribution<double> nudge(-15.0, 15.0);
    const double heading = 15.0 * static_cast<double>(below(24));
    if (layout.pieces.empty() || below(5) == 0) return {place(random_), place(random_), heading};
    const Piece& piece = layout.pieces[below(layout.pieces.size())];
    const PieceDef& pieceDef = *findPart(piece.cat);
    const WorldConnector end = worldConnectors(piece, pieceDef)[below(pieceDef.connectors.size())];
    const auto own = static_cast<std::int32_t>(below(def.connectors.size()));
    return poseForConnector(def, own,
                            {end.x + nudge(random_), end.y + nudge(random_), end.heading});
  }

  std::mt19937 random_;
};

TEST(RandomSession, Of500PlacementsAndJoinsLeavesEveryJointNamedBack) {
  for (unsigned seed = 0; seed < 6; ++seed) {
    Session session(seed);
    for (int step = 0; step < 500; ++step) {
      switch (session.below(8)) {
        case 0:
        case 1:
          session.joinAnything();
          break;
        case 2:
          session.doubleClickInPalette();
          break;
        case 3:
          if (session.below(3) == 0)
            Undo(session.layout);
          else if (session.below(2) == 0)
            Redo(session.layout);
          break;
        default:
          session.drop();
          break;
      }
      ASSERT_EQ(BrokenJoint(session.layout), "") << "seed " << seed << ", step " << step;
    }
    std::set<std::int32_t> ids;
    for (const Piece& piece : session.layout.pieces) ids.insert(piece.id);
    EXPECT_EQ(ids.size(), session.layout.pieces.size()) << "ids are unique";
    EXPECT_GT(session.snaps, 30);
    EXPECT_GT(session.autoConnects, 5);
  }
}

TEST(RandomSession, LaysJoinedConnectorsOnEachOtherFaceToFace) {
  Session session(42);
  for (int step = 0; step < 500; ++step) {
    if (session.below(4) == 0)
      session.doubleClickInPalette();
    else
      session.drop();
  }
  int joins = 0;
  for (const Piece& piece : session.layout.pieces) {
    const std::vector<WorldConnector> ends = worldConnectors(piece, *findPart(piece.cat));
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot) {
      if (piece.joints[slot].open()) continue;
      const Piece& far = PieceOf(session.layout, piece.joints[slot].target);
      const WorldConnector mate = worldConnectors(
          far, *findPart(far.cat))[static_cast<std::size_t>(piece.joints[slot].tconn)];
      EXPECT_NEAR(ends[slot].x, mate.x, 1e-6);
      EXPECT_NEAR(ends[slot].y, mate.y, 1e-6);
      EXPECT_NEAR(std::abs(ends[slot].heading - mate.heading), 180.0, 1e-6);
      ++joins;
    }
  }
  EXPECT_GT(joins, 400);
}

TEST(RandomSession, CanBeUndoneAndRedoneStepByStep) {
  Session session(7);
  Layout& layout = session.layout;
  struct Moment {
    std::size_t steps;  // length of the undo history
    std::vector<Piece> pieces;
  };
  std::vector<Moment> moments = {{0, {}}};
  // At most two steps for each action, so that none falls off the end of the history.
  for (std::size_t action = 0; action < kUndoLimit / 2; ++action) {
    if (session.below(3) == 0)
      session.doubleClickInPalette();
    else
      session.drop();
    moments.push_back({layout.undoHistory.size(), layout.pieces});
  }
  ASSERT_GT(moments.back().pieces.size(), 15u);
  for (std::size_t i = moments.size() - 1; i-- > 0;) {
    while (layout.undoHistory.size() > moments[i].steps) Undo(layout);
    ASSERT_EQ(layout.pieces, moments[i].pieces) << "back to moment " << i;
  }
  for (const Moment& moment : moments) {
    while (layout.undoHistory.size() < moment.steps) Redo(layout);
    ASSERT_EQ(layout.pieces, moment.pieces) << "forward to " << moment.steps << " steps";
  }
}

}  // namespace
}  // namespace vantrel
