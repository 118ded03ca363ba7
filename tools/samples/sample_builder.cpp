#include "tools/samples/sample_builder.h"

#include <cmath>
#include <stdexcept>
#include <string>

#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "catalog/connector_geometry.h"
#include "catalog/helix_kits.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

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

End SampleBuilder::start(std::string_view part, Pose pose, std::int32_t exit) {
  return {placePiece(layout_, Def(part), {}, pose), exit};
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
  return {placePiece(layout_, def, snap, at), exit};
}

End SampleBuilder::layMany(End from, std::string_view part, int count, std::int32_t entry,
                           std::int32_t exit) {
  for (int i = 0; i < count; ++i) from = lay(from, part, entry, exit);
  return from;
}

void SampleBuilder::close(End a, End b) {
  const Pose pa = pose(a);
  const Pose pb = pose(b);
  const double gap = std::hypot(pa.x - pb.x, pa.y - pb.y);
  const double turn = std::abs(normalizeDegrees(pa.heading - pb.heading) - 180.0);
  if (gap > kJoinToleranceMm || turn > kJoinToleranceDegrees)
    throw std::runtime_error("the ends don't meet: " + std::to_string(gap) + " mm, " +
                             std::to_string(turn) + " degrees");
  joinPieces(layout_, a.piece, a.connector, b.piece, b.connector);
}

void SampleBuilder::startGrade(End end, double degrees) {
  addGradeRun(layout_, degrees, end.piece, end.connector);
}

void SampleBuilder::endGrade(End end) {
  removeGradeRun(layout_, end.piece);
}

void SampleBuilder::scenery(std::string_view item, Pose pose) {
  if (placeScenery(layout_, item, pose) == kNone)
    throw std::runtime_error("no such item: " + std::string(item));
}

void SampleBuilder::label(std::string_view text, Vec2 at) {
  Label label;
  label.id = TakeId(layout_);
  label.text = text;
  label.x = at.x;
  label.y = at.y;
  layout_.labels.push_back(label);
}

void SampleBuilder::baseboard(Vec2 topLeft, Vec2 bottomRight) {
  layout_.baseboard = {
      topLeft, {bottomRight.x, topLeft.y}, bottomRight, {topLeft.x, bottomRight.y}};
}

void SampleBuilder::shape(std::vector<Vec2> vertices, std::uint8_t r, std::uint8_t g,
                          std::uint8_t b, std::string_view name) {
  Shape shape;
  shape.id = TakeId(layout_);
  shape.vertices = std::move(vertices);
  shape.r = r;
  shape.g = g;
  shape.b = b;
  shape.label = name;
  layout_.shapes.push_back(shape);
}

const Helix& SampleBuilder::helix(Vec2 centre) {
  const HelixKit& kit = kitOrDefault(defaultKitId());
  Helix helix;
  helix.id = TakeId(layout_);
  helix.cx = centre.x;
  helix.cy = centre.y;
  helix.variant = kit.id;
  const auto stub = [&](double offset, double z) {
    Piece piece = NewPiece(Def(kit.stubPart), {centre.x, centre.y + offset, 0.0});
    piece.id = TakeId(layout_);
    piece.z = z;
    piece.helix = helix.id;
    layout_.pieces.push_back(piece);
    return piece.id;
  };
  helix.bottomR1 = stub(-kit.innerRadius, 0.0);
  helix.bottomR2 = stub(-kit.outerRadius, 0.0);
  helix.topR1 = stub(kit.innerRadius, kit.height);
  helix.topR2 = stub(kit.outerRadius, kit.height);
  layout_.helices.push_back(helix);
  return layout_.helices.back();
}

Layout SampleBuilder::take() {
  ClearSelection(layout_);
  layout_.undoHistory.clear();
  layout_.redoHistory.clear();
  EnsureDefaultLevel(layout_);
  // A level's red comes back from a file as its track colour flag; written like that at once, a
  // sample that is opened and saved stays the same.
  for (Level& level : layout_.levels) level.r = level.trackcolor ? 1 : 0;
  return std::move(layout_);
}

Layout SampleBuilder::takeSelected() {
  Layout block = take();
  for (Piece& piece : block.pieces) piece.sel = true;
  for (SceneryItem& item : block.scenery) item.sel = true;
  return block;
}

}  // namespace vantrel::samples
