#include "io/line_tags.h"

#include <array>
#include <cstddef>

namespace vantrel {
namespace {

struct TagText {
  std::string_view text;
  Tag tag;
};

// Grouped by the character behind the "<", which selects the group to compare with.
constexpr std::array kTagTexts = {
    TagText{"</layout>", Tag::kLayoutEnd},
    TagText{"</block>", Tag::kBlockEnd},
    TagText{"</pieces>", Tag::kPiecesEnd},
    TagText{"</levels>", Tag::kLevelsEnd},
    TagText{"</scenery>", Tag::kSceneryEnd},
    TagText{"</baseboard>", Tag::kBaseboardEnd},
    TagText{"</shape", Tag::kShapeEnd},
    TagText{"<baseboard>", Tag::kBaseboard},
    TagText{"<block ", Tag::kBlock},
    TagText{"<covers ", Tag::kCovers},
    TagText{"<helix ", Tag::kHelix},
    TagText{"<joint ", Tag::kJoint},
    TagText{"<label ", Tag::kLabel},
    TagText{"<lastshape", Tag::kLastShape},
    TagText{"<layout ", Tag::kLayout},
    TagText{"<level ", Tag::kLevel},
    TagText{"<levels ", Tag::kLevels},
    TagText{"<piece ", Tag::kPiece},
    TagText{"<pieces>", Tag::kPieces},
    TagText{"<pt ", Tag::kPt},
    TagText{"<run ", Tag::kRun},
    TagText{"<scenery>", Tag::kScenery},
    TagText{"<sceneryitem ", Tag::kSceneryItem},
    TagText{"<shape ", Tag::kShape},
    TagText{"<tunnel ", Tag::kTunnel},
    TagText{"<v ", Tag::kV},
    TagText{"<vertex ", Tag::kVertex},
};

struct Group {
  std::uint8_t first = 0;
  std::uint8_t count = 0;
};

constexpr std::array<Group, 256> MakeGroups() {
  std::array<Group, 256> groups{};
  for (std::size_t i = 0; i < kTagTexts.size(); ++i) {
    Group& group = groups[static_cast<unsigned char>(kTagTexts[i].text[1])];
    if (group.count == 0) group.first = static_cast<std::uint8_t>(i);
    ++group.count;
  }
  return groups;
}

constexpr std::array<Group, 256> kGroups = MakeGroups();

}  // namespace

TagSet TagsIn(std::string_view line) {
  TagSet tags;
  std::size_t at = line.find('<');
  while (at != std::string_view::npos && at + 1 < line.size()) {
    const std::string_view rest = line.substr(at);
    const Group group = kGroups[static_cast<unsigned char>(rest[1])];
    for (std::size_t i = group.first; i < std::size_t{group.first} + group.count; ++i)
      if (rest.starts_with(kTagTexts[i].text)) tags.add(kTagTexts[i].tag);
    at = line[at + 1] == '<' ? at + 1 : line.find('<', at + 2);
  }
  return tags;
}

}  // namespace vantrel
