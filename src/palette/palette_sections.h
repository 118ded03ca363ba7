// What the palette offers for each track system: the chooser's entries and their sections of parts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "catalog/piece_def.h"
#include "doc/layout.h"

namespace vantrel {

inline constexpr std::size_t kMaxSectionParts = 14;

struct PaletteSection {
  std::string_view title;
  std::array<std::string_view, kMaxSectionParts> slots{};  // the unused ones at the end are empty

  // The part numbers, without the unused slots.
  std::span<const std::string_view> parts() const;
};

// One entry of the system chooser. An entry's index is not the value of its TrackSystem.
struct PaletteSystem {
  std::string_view entry;  // the chooser's text
  TrackSystem system = TrackSystem::MarklinC;
  std::string_view libraryFolder;  // the folder of its saved blocks
  std::span<const PaletteSection> sections;
};

inline constexpr std::int32_t kPaletteIndexC = 0;
inline constexpr std::int32_t kPaletteIndexK = 1;
inline constexpr std::int32_t kPaletteIndexTrix = 2;
inline constexpr std::int32_t kPaletteIndexZ = 3;

// The section of kPaletteIndexC that the helix kits follow.
inline constexpr std::string_view kHelixFollowsSection = "Bridges";

// All entries, in the chooser's order.
std::span<const PaletteSystem> paletteSystems();

// The entry that shows a layout's track: the first system, in the chooser's order, of which a piece
// occurs; 0 when there is none. Pieces whose part the catalog doesn't know don't count.
std::int32_t paletteIndexFor(const Layout& layout);

}  // namespace vantrel
