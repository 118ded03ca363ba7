// Lays a sample plan the way a user would: piece joined to piece by the program's own operations.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

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

  // Places the first piece of a line free, and returns its connector `exit`.
  End start(std::string_view part, Pose pose, std::int32_t exit = 1);
  // Joins connector `entry` of a new piece to `from`, and returns its connector `exit`.
  End lay(End from, std::string_view part, std::int32_t entry = 0, std::int32_t exit = 1);
  // The same `count` times.
  End layMany(End from, std::string_view part, int count, std::int32_t entry = 0,
              std::int32_t exit = 1);
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

  void scenery(std::string_view item, Pose pose);
  void label(std::string_view text, Vec2 at);
  void baseboard(Vec2 topLeft, Vec2 bottomRight);
  void shape(std::vector<Vec2> vertices, std::uint8_t r, std::uint8_t g, std::uint8_t b,
             std::string_view name);
  // A helix of the default kit with its four stubs. Returns the record.
  const Helix& helix(Vec2 centre);

  // The finished plan: nothing selected, no history.
  Layout take();
  // The same as a block: everything selected.
  Layout takeSelected();

 private:
  Layout layout_;
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
