// The plans that are installed beside the program, as somebody would build them: joints exact in
// all three dimensions, slopes that a train climbs, no track through another one or through a
// house, and everything on the table that the dialog would make.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "canvas/operations/baseboard_shapes.h"
#include "canvas/operations/elevation.h"
#include "canvas/operations/placing.h"
#include "canvas/operations/point_tests.h"
#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/routes.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "io/layout_file.h"
#include "tests/samples/sample_files.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

Layout Sample(const fs::path& file) {
  Layout layout;
  std::string name;
  EXPECT_EQ(LoadLayoutFile(layout, file.string(), name), "");
  return layout;
}

// A point of a track's middle line, at most 10 mm from the next one of its piece.
struct TrackPoint {
  std::size_t piece = 0;  // its place in the plan
  Vec2 at;
  double z = 0.0;
  double halfBed = 0.0;
};

constexpr double kPointEveryMm = 10.0;

std::vector<TrackPoint> TrackPoints(const Layout& layout) {
  std::vector<TrackPoint> points;
  for (std::size_t place = 0; place < layout.pieces.size(); ++place) {
    const Piece& piece = layout.pieces[place];
    const PieceDef& def = *findPart(piece.cat);
    // All tracks run together into a turntable.
    if (def.kind == PieceKind::Turntable || def.role == PieceRole::spoke) continue;
    const double near = exitElevation(piece, def, 0);
    const double far = exitElevation(piece, def, 1);
    const double halfBed = def.system == TrackSystem::MarklinZ ? 6.0 : 18.7;
    const double c = std::cos(Radians(piece.heading));
    const double s = std::sin(Radians(piece.heading));
    for (std::size_t i = 0; i < WayCount(def); ++i) {
      const Way way = WayOf(def, i);
      const int steps = static_cast<int>(std::ceil(way.length() / kPointEveryMm));
      for (int step = 0; step <= steps; ++step) {
        const double share = static_cast<double>(step) / steps;
        const Pose local = way.at(way.length() * share);
        points.push_back(
            {place,
             {piece.x + local.x * c - local.y * s, piece.y + local.x * s + local.y * c},
             near + (far - near) * share,
             halfBed});
      }
    }
  }
  return points;
}

// Joined to each other, or both to the same turnout: its branches part only behind its ends.
bool Neighbours(const Piece& a, const Piece& b) {
  const auto leadsTo = [](const Piece& from, std::int32_t id) {
    return std::any_of(from.joints.begin(), from.joints.end(),
                       [id](const Joint& joint) { return joint.target == id; });
  };
  return leadsTo(a, b.id) || std::any_of(a.joints.begin(), a.joints.end(), [&](const Joint& joint) {
           return !joint.open() && leadsTo(b, joint.target);
         });
}

// Calls `see` with each two points of pieces that aren't neighbours and whose beds meet in the
// plan.
template <typename See>
void ForMeetingBeds(const Layout& layout, const std::vector<TrackPoint>& points, See see) {
  constexpr double kCell = 40.0;
  std::map<std::pair<int, int>, std::vector<std::size_t>> cells;
  const auto cellOf = [](Vec2 at) {
    return std::pair(static_cast<int>(std::floor(at.x / kCell)),
                     static_cast<int>(std::floor(at.y / kCell)));
  };
  for (std::size_t i = 0; i < points.size(); ++i) {
    const auto [column, row] = cellOf(points[i].at);
    for (int x = column - 1; x <= column + 1; ++x) {
      for (int y = row - 1; y <= row + 1; ++y) {
        const auto cell = cells.find({x, y});
        if (cell == cells.end()) continue;
        for (const std::size_t other : cell->second) {
          const TrackPoint& a = points[i];
          const TrackPoint& b = points[other];
          if (a.piece == b.piece) continue;
          // Beds that lie side by side are exactly two half widths apart.
          if (std::hypot(a.at.x - b.at.x, a.at.y - b.at.y) > a.halfBed + b.halfBed - 0.3) continue;
          if (!Neighbours(layout.pieces[a.piece], layout.pieces[b.piece])) see(a, b);
        }
      }
    }
    cells[{column, row}].push_back(i);
  }
}

class SampleGround : public testing::TestWithParam<fs::path> {
 protected:
  void SetUp() override { layout_ = Sample(GetParam()); }

  std::string Name(std::size_t place) const {
    const Piece& piece = layout_.pieces[place];
    return std::to_string(piece.id) + " (" + piece.cat + ")";
  }

  Layout layout_;
};

TEST_P(SampleGround, TracksMeetAtOneHeightAndToAHundredthOfADegreeAtEachJoint) {
  const PieceIndex index = IndexPieces(layout_);
  for (const Piece& piece : layout_.pieces) {
    const PieceDef& def = *findPart(piece.cat);
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot) {
      const Joint& joint = piece.joints[slot];
      if (joint.open()) continue;
      const Piece& far = layout_.pieces[index.at(joint.target)];
      const PieceDef& farDef = *findPart(far.cat);
      const WorldConnector a = worldConnector(piece, def, slot);
      const WorldConnector b = worldConnector(far, farDef, static_cast<std::size_t>(joint.tconn));
      EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y), 0.03) << piece.id << " to " << far.id;
      EXPECT_LE(std::abs(normalizeDegrees(a.heading - b.heading) - 180.0), 0.01)
          << piece.id << " to " << far.id;
      EXPECT_NEAR(exitElevation(piece, def, static_cast<std::int32_t>(slot)),
                  exitElevation(far, farDef, joint.tconn), 0.01)
          << piece.id << " to " << far.id;
    }
  }
}

TEST_P(SampleGround, NoTwoBedsOverlapOnOneHeightAndTracksThatCrossLeaveRoomForATrain) {
  // A carriage of 1:87 is 50 mm high over the rails, which stand 6.7 mm over the underside of the
  // bed; a bridge hangs 8 mm below that.
  constexpr double kLeastRoom = 65.0;
  std::map<std::pair<std::size_t, std::size_t>, double> rooms;
  ForMeetingBeds(layout_, TrackPoints(layout_), [&](const TrackPoint& a, const TrackPoint& b) {
    const double room = std::abs(a.z - b.z);
    const auto [entry, added] = rooms.try_emplace(std::minmax(a.piece, b.piece), room);
    if (!added) entry->second = std::min(entry->second, room);
  });
  for (const auto& [pieces, room] : rooms)
    EXPECT_GE(room, kLeastRoom) << Name(pieces.first) << " and " << Name(pieces.second);
}

TEST_P(SampleGround, NoTrackIsSteeperThanAThreeDegreeRamp) {
  for (const Piece& piece : layout_.pieces) EXPECT_LE(std::abs(piece.grade), 3.0) << piece.id;
}

// What has a track in it, under it or through it.
bool TakesTrack(const std::string& item) {
  static const std::vector<std::string> items = {
      "72886",           "shed_1road",           "shed_2road",          "crossing_1track",
      "crossing_2track", "tunnel_portal_single", "bridge_arch_scenery", "bridge_truss_scenery",
      "bridge_truss",    "viaduct_pier"};
  return std::find(items.begin(), items.end(), item) != items.end();
}

TEST_P(SampleGround, NoTrackRunsThroughScenery) {
  constexpr double kTallestHouse = 60.0;  // mm above its level in which a track is in the way
  const std::vector<TrackPoint> points = TrackPoints(layout_);
  for (const SceneryItem& item : layout_.scenery) {
    if (TakesTrack(item.item)) continue;
    const SceneryDef& def = *findScenery(item.item);
    const double ground = FindLevel(layout_, item.level)->height;
    const double c = std::cos(Radians(item.heading));
    const double s = std::sin(Radians(item.heading));
    for (const TrackPoint& point : points) {
      if (point.z < ground - 20.0 || point.z > ground + kTallestHouse) continue;
      const double dx = point.at.x - item.x;
      const double dy = point.at.y - item.y;
      const double beyondX = std::abs(dx * c + dy * s) - def.width * item.scalex / 2.0;
      const double beyondY = std::abs(dy * c - dx * s) - def.depth * item.scaley / 2.0;
      if (std::max(beyondX, beyondY) >= point.halfBed) continue;
      ADD_FAILURE() << item.item << " at " << item.x << ", " << item.y << " stands on piece "
                    << Name(point.piece);
      break;
    }
  }
}

TEST_P(SampleGround, EverythingStandsOnTheTable) {
  ASSERT_GE(layout_.baseboard.size(), 4u);
  for (const TrackPoint& point : TrackPoints(layout_))
    ASSERT_TRUE(IsInsidePolygon(point.at, layout_.baseboard)) << Name(point.piece);
  for (const SceneryItem& item : layout_.scenery)
    EXPECT_TRUE(IsInsidePolygon({item.x, item.y}, layout_.baseboard)) << item.item;
  for (const Label& label : layout_.labels)
    EXPECT_TRUE(IsInsidePolygon({label.x, label.y}, layout_.baseboard)) << label.text;
}

TEST_P(SampleGround, TheLastChoiceOfTheTableDialogIsTheTableThatThePlanHas) {
  const LastShape& last = layout_.lastShape;
  EXPECT_EQ(layout_.baseboard,
            boardVertices(last.id, {last.w_mm, last.h_mm, last.w2_mm, last.h2_mm}));
}

TEST_P(SampleGround, LabelsSayWhatThereIsToSee) {
  EXPECT_GE(layout_.labels.size(), 3u);
  std::set<std::string> texts;
  for (const Label& label : layout_.labels) {
    EXPECT_TRUE(std::ranges::any_of(label.text, [](unsigned char c) { return c > ' '; }))
        << "nothing to read at " << label.x << ", " << label.y;
    EXPECT_TRUE(texts.insert(label.text).second) << label.text << " stands there twice";
    EXPECT_TRUE(IsInsidePolygon({label.x, label.y}, layout_.baseboard)) << label.text;
  }
}

std::string TestNameOf(const testing::TestParamInfo<fs::path>& sample) {
  std::string name = sample.param.stem().string();
  std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, SampleGround, testing::ValuesIn(SampleFiles()), TestNameOf);

}  // namespace
}  // namespace vantrel
