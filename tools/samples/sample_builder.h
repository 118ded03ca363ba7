// Lays a sample plan the way a user would: piece joined to piece by the program's own operations.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "canvas/operations/baseboard_shapes.h"
#include "doc/layout.h"

namespace vantrel::samples {

// An end of track that the next piece continues from.
struct End {
  std::int32_t piece = kNone;
  std::int32_t connector = 0;
};

class SampleBuilder {
 public:
  Layout& layout() { return layout_; }
  const Piece& piece(std::int32_t id) const;

  // From now on everything is put on this level, whatever it is joined to. A line that starts there
  // starts at the level's height.
  void onLevel(std::int32_t level) { level_ = level; }

  // Places the first piece of a line free, and returns its connector `exit`.
  End start(std::string_view part, Pose pose, std::int32_t exit = 1);
  // Joins connector `entry` of a new piece to `from`, and returns its connector `exit`.
  End lay(End from, std::string_view part, std::int32_t entry = 0, std::int32_t exit = 1);
  // The same `count` times.
  End layMany(End from, std::string_view part, int count, std::int32_t entry = 0,
              std::int32_t exit = 1);
  // Straights that come as close as they can to `length` mm.
  End layLength(End from, double length);
  // The connector of the other piece that is joined to this one.
  End joined(End end) const;
  // Another connector of the same piece.
  End other(End end, std::int32_t connector) const { return {end.piece, connector}; }
  // Where an end lies and which way it points.
  Pose pose(End end) const;

  // Joins two ends that meet. Throws std::runtime_error when they are more than 0.05 mm or 0.05
  // degrees apart: a sample must not pretend.
  void close(End a, End b);

  // Pieces joined to this end from now on climb (descend) at `degrees`.
  void startGrade(End end, double degrees);
  // Ends the run that has reached this end.
  void endGrade(End end);
  // Straights of one kind that lead from this end to a height in mm, at one grade.
  End layRamp(End from, std::string_view part, int count, double height);

  // `scale` stretches the item along and across.
  void scenery(std::string_view item, Pose pose, Vec2 scale = {1.0, 1.0});
  void label(std::string_view text, Vec2 at);
  // The table as the dialog makes it, and that choice as the last one made there. The dialog's
  // tables begin at the world's origin: the finished plan is moved so that `corner` lies there.
  void table(BaseboardShape shape, BoardDimensions dimensions, Vec2 corner = {0.0, 0.0});
  // Lays a tunnel over these pieces, one chain.
  void tunnel(const std::vector<End>& pieces);
  Shape& shape(std::vector<Vec2> vertices, std::uint8_t r, std::uint8_t g, std::uint8_t b,
               std::string_view name);
  // A helix of the default kit with its four stubs. Returns the record.
  const Helix& helix(Vec2 centre, double heading = 0.0);

  // The finished plan: nothing selected, no history.
  Layout take();
  // The same as a block: everything selected.
  Layout takeSelected();

 private:
  void settle(std::int32_t firstNewPiece);

  Layout layout_;
  std::int32_t level_ = kNone;
  Vec2 corner_{0.0, 0.0};
};

// The plans, in the order of their files.
struct Sample {
  std::string_view name;  // also the file's name
  Layout (*make)();
};
const std::vector<Sample>& AllSamples();

// A block of the library: what the plan holds is saved as a whole. `folder` is that of the track
// system in the library.
struct SampleBlock {
  std::string_view folder;
  std::string_view name;  // also the file's name
  Layout (*make)();
};
const std::vector<SampleBlock>& AllBlocks();

Layout DoubleOval();
Layout KTerminus();
Layout ZTableTop();
Layout TrixViaduct();
Layout TwoDecks();
Layout ExhibitionYard();

}  // namespace vantrel::samples
