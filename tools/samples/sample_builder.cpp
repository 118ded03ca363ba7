#include "tools/samples/sample_builder.h"

#include <cmath>
#include <stdexcept>
#include <string>

#include "canvas/operations/elevation.h"
#include "canvas/operations/helix_placing.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "canvas/operations/tunnels.h"
#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "tools/samples/move_plan.h"

namespace vantrel::samples {
namespace {

constexpr double kJoinToleranceMm = 0.05;
constexpr double kJoinToleranceDegrees = 0.05;

const PieceDef& Def(std::string_view part) {
  const PieceDef* def = findPart(part);
  if (def == nullptr) throw std::runtime_error("no such part: " + std::string(part));
  return *def;
}

}  // namespace

const Piece& SampleBuilder::piece(std::int32_t id) const {
  const Piece* found = FindPiece(layout_, id);
  if (found == nullptr) throw std::runtime_error("no such piece");
  return *found;
}

Pose SampleBuilder::pose(End end) const {
  const Piece& owner = piece(end.piece);
  return worldConnector(owner, Def(owner.cat), static_cast<std::size_t>(end.connector)).pose();
}

// What has come since then goes to the level in force.
void SampleBuilder::settle(std::int32_t firstNewPiece) {
  if (level_ == kNone) return;
  for (Piece& piece : layout_.pieces)
    if (piece.id >= firstNewPiece) piece.level = level_;
}

End SampleBuilder::start(std::string_view part, Pose pose, std::int32_t exit) {
  const std::int32_t id = placePiece(layout_, Def(part), {}, pose);
  settle(id);
  if (const Level* const level = FindLevel(layout_, level_)) {
    for (Piece& piece : layout_.pieces)
      if (piece.id >= id) piece.z = level->height;
  }
  return {id, exit};
}

End SampleBuilder::lay(End from, std::string_view part, std::int32_t entry, std::int32_t exit) {
  const PieceDef& def = Def(part);
  const Pose at = poseForConnector(def, entry, pose(from));
  SnapResult snap;
  snap.found = true;
  snap.targetPiece = from.piece;
  snap.targetConnector = from.connector;
  snap.ownConnector = entry;
  snap.x = at.x;
  snap.y = at.y;
  snap.heading = at.heading;
  const std::int32_t id = placePiece(layout_, def, snap, at);
  settle(id);
  return {id, exit};
}

End SampleBuilder::layMany(End from, std::string_view part, int count, std::int32_t entry,
                           std::int32_t exit) {
  for (int i = 0; i < count; ++i) from = lay(from, part, entry, exit);
  return from;
}

End SampleBuilder::layLength(End from, double length) {
  constexpr double kLong = 188.3;
  constexpr double kShort = 171.7;
  constexpr double kHalf = 94.2;
  int longs = 0;
  int shorts = 0;
  int halves = 0;
  double best = length;
  for (int half = 0; half <= 1; ++half) {
    for (int few = 0; few * kShort + half * kHalf <= length && few <= 9; ++few) {
      const int many = static_cast<int>((length - few * kShort - half * kHalf) / kLong);
      const double rest = length - many * kLong - few * kShort - half * kHalf;
      if (rest >= best) continue;
      best = rest;
      longs = many;
      shorts = few;
      halves = half;
    }
  }
  from = layMany(from, "24188", longs);
  from = layMany(from, "24172", shorts);
  return layMany(from, "24994", halves);
}

End SampleBuilder::joined(End end) const {
  const Joint& joint = piece(end.piece).joints.at(static_cast<std::size_t>(end.connector));
  return {joint.target, joint.tconn};
}

void SampleBuilder::close(End a, End b) {
  const Pose pa = pose(a);
  const Pose pb = pose(b);
  const double gap = std::hypot(pa.x - pb.x, pa.y - pb.y);
  const double turn = std::abs(normalizeDegrees(pa.heading - pb.heading) - 180.0);
  if (gap > kJoinToleranceMm || turn > kJoinToleranceDegrees)
    throw std::runtime_error("the ends don't meet: " + std::to_string(gap) + " mm, " +
                             std::to_string(turn) + " degrees");
  const auto height = [&](End end) {
    const Piece& owner = piece(end.piece);
    return exitElevation(owner, Def(owner.cat), end.connector);
  };
  if (std::abs(height(a) - height(b)) > kJoinToleranceMm)
    throw std::runtime_error("the ends meet at two heights: " + std::to_string(height(a)) + ", " +
                             std::to_string(height(b)));
  joinPieces(layout_, a.piece, a.connector, b.piece, b.connector);
}

void SampleBuilder::startGrade(End end, double degrees) {
  addGradeRun(layout_, degrees, end.piece, end.connector);
}

void SampleBuilder::endGrade(End end) {
  removeGradeRun(layout_, end.piece);
}

End SampleBuilder::layRamp(End from, std::string_view part, int count, double height) {
  const Piece& foot = piece(from.piece);
  const double climb = height - exitElevation(foot, Def(foot.cat), from.connector);
  startGrade(from, Degrees(std::asin(climb / (count * pieceRise(Def(part))))));
  from = layMany(from, part, count);
  endGrade(from);
  return from;
}

void SampleBuilder::scenery(std::string_view item, Pose pose, Vec2 scale) {
  if (placeScenery(layout_, item, pose) == kNone)
    throw std::runtime_error("no such item: " + std::string(item));
  SceneryItem& placed = layout_.scenery.back();
  placed.scalex = scale.x;
  placed.scaley = scale.y;
  if (level_ != kNone) placed.level = level_;
}

void SampleBuilder::label(std::string_view text, Vec2 at) {
  Label label;
  label.id = TakeId(layout_);
  label.text = text;
  label.x = at.x;
  label.y = at.y;
  layout_.labels.push_back(label);
}

void SampleBuilder::table(BaseboardShape shape, BoardDimensions dimensions, Vec2 corner) {
  layout_.baseboard = boardVertices(shape, dimensions);
  rememberBoard(layout_.lastShape, shape, dimensions);
  corner_ = corner;
}

void SampleBuilder::tunnel(const std::vector<End>& pieces) {
  ClearSelection(layout_);
  for (const End& end : pieces) FindPiece(layout_, end.piece)->sel = true;
  if (!toggleTunnel(layout_)) throw std::runtime_error("no chain for a tunnel");
}

Shape& SampleBuilder::shape(std::vector<Vec2> vertices, std::uint8_t r, std::uint8_t g,
                            std::uint8_t b, std::string_view name) {
  Shape shape;
  shape.id = TakeId(layout_);
  shape.vertices = std::move(vertices);
  shape.r = r;
  shape.g = g;
  shape.b = b;
  shape.label = name;
  if (level_ != kNone) shape.level = level_;
  layout_.shapes.push_back(shape);
  return layout_.shapes.back();
}

const Helix& SampleBuilder::helix(Vec2 centre, double heading) {
  const std::int32_t id = placeHelix(layout_, centre, heading, {});
  settle(id);
  return layout_.helices.back();
}

Layout SampleBuilder::take() {
  ClearSelection(layout_);
  layout_.undoHistory.clear();
  layout_.redoHistory.clear();
  EnsureDefaultLevel(layout_);
  const std::vector<Vec2> table = std::move(layout_.baseboard);
  layout_.baseboard.clear();
  MovePlan(layout_, {-corner_.x, -corner_.y});
  layout_.baseboard = table;
  // A level's red comes back from a file as its track colour flag; written like that at once, a
  // sample that is opened and saved stays the same.
  for (Level& level : layout_.levels) level.r = level.trackcolor ? 1 : 0;
  // The same for heights: a file knows ten-thousandths, and a descent to zero ends a hair below it.
  constexpr double kFileSteps = 1e4;
  for (Piece& piece : layout_.pieces) piece.z = std::round(piece.z * kFileSteps) / kFileSteps + 0.0;
  return std::move(layout_);
}

Layout SampleBuilder::takeSelected() {
  Layout block = take();
  for (Piece& piece : block.pieces) piece.sel = true;
  for (SceneryItem& item : block.scenery) item.sel = true;
  return block;
}

}  // namespace vantrel::samples
