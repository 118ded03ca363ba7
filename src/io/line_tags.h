// Which of the format's literal tag texts occur anywhere in a line.
#pragma once

#include <cstdint>
#include <string_view>

namespace vantrel {

enum class Tag : std::uint8_t {
  kLayout,        // "<layout "
  kLayoutEnd,     // "</layout>"
  kBlock,         // "<block "
  kBlockEnd,      // "</block>"
  kRun,           // "<run "
  kPieces,        // "<pieces>"
  kPiecesEnd,     // "</pieces>"
  kPiece,         // "<piece "
  kJoint,         // "<joint "
  kLevels,        // "<levels "
  kLevelsEnd,     // "</levels>"
  kLevel,         // "<level "
  kPt,            // "<pt "
  kScenery,       // "<scenery>"
  kSceneryEnd,    // "</scenery>"
  kSceneryItem,   // "<sceneryitem "
  kBaseboard,     // "<baseboard>"
  kBaseboardEnd,  // "</baseboard>"
  kVertex,        // "<vertex "
  kLastShape,     // "<lastshape", so any longer tag with that start as well
  kLabel,         // "<label "
  kShape,         // "<shape "
  kShapeEnd,      // "</shape", so "</shapes>" as well
  kV,             // "<v "
  kTunnel,        // "<tunnel "
  kCovers,        // "<covers "
  kHelix,         // "<helix "
};

// A set of tags.
class TagSet {
 public:
  void add(Tag tag) { bits_ |= bit(tag); }
  bool has(Tag tag) const { return (bits_ & bit(tag)) != 0; }
  bool empty() const { return bits_ == 0; }

 private:
  static std::uint32_t bit(Tag tag) { return std::uint32_t{1} << static_cast<unsigned>(tag); }
  std::uint32_t bits_ = 0;
};

// One walk over the line, however many tags there are to look for.
TagSet TagsIn(std::string_view line);

}  // namespace vantrel
