#include "palette/palette_sections.h"

#include <algorithm>

#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

constexpr PaletteSection kMarklinCSections[] = {
    {"Straights",
     {"24064", "24071", "24077", "24094", "24172", "24188", "24229", "24236", "24360"}},
    {"Curves",
     {"24130", "24115", "24107", "24230", "24294", "24224", "24215", "24207", "24206", "24330",
      "24315", "24430", "24530", "24912"}},
    {"Switches", {"24611", "24612", "24671", "24672", "24630"}},
    {"Crossings", {"24640", "24649", "24740"}},
    {"Double Slip Switches", {"24624", "24720"}},
    {"Slim Switches", {"24711", "24712", "24771", "24772"}},
    {"Circuit Tracks", {"24994", "24294"}},
    {"Other", {"24997", "24977", "24978", "74861", "74871"}},
    {"Adapter Tracks", {"24922", "24951"}},
    {kHelixFollowsSection, {"74636", "74620", "74623", "74613", "74618"}},
};

constexpr PaletteSection kMarklinKSections[] = {
    {"Straights",
     {"2200", "2201", "2202", "2203", "2204", "2205", "2206", "2207", "2208", "2209", "2293"}},
    {"Special Track", {"2290", "2291", "2292", "2295", "2297", "2299"}},
    {"Curves R1 (360mm)", {"2210", "2229"}},
    {"Curves R2 (424.6mm)", {"2221", "2223", "2224", "2239"}},
    {"Curves R3 (515mm)", {"2231", "2232", "2233", "2234", "2235"}},
    {"Curves R4 (573.6mm)", {"2241", "2251"}},
    {"Curves R5 (636mm)", {"2274"}},
    {"Crossings", {"2257", "2258", "2259"}},
    {"Turnouts", {"2262", "2263", "2265", "2266", "2268", "2269", "2270", "22715", "22716"}},
    {"Double Slip Switches", {"2260", "2275"}},
    {"Bumpers", {"7389", "7391"}},
    {"Bridges", {"7263", "7262", "7569", "7267"}},
};

constexpr PaletteSection kTrixCSections[] = {
    {"Straights",
     {"62064", "62071", "62077", "62094", "62172", "62188", "62229", "62236", "62360"}},
    {"Curves R1 (360mm)", {"62107", "62115", "62130"}},
    {"Curves R2 (437.5mm)", {"62206", "62207", "62215", "62224", "62230"}},
    {"Curves R3 (515mm)", {"62315", "62330"}},
    {"Curves R9 (1114.6mm)", {"62912"}},
    {"Switches", {"62611", "62612", "62671", "62672", "62630"}},
    {"Double Slip Switches", {"62624"}},
    {"Other", {"62977", "62997"}},
    {"Bridges", {"62636", "62620", "62623", "62613"}},
};

constexpr PaletteSection kMarklinZSections[] = {
    {"Straights", {"8500", "8501", "8502", "8503", "8504", "8505", "8506", "8507"}},
    {"Curves R1 (145mm)", {"8510", "8511"}},
    {"Curves R2 (195mm)", {"8520", "8521", "8529"}},
    {"Curves R3 (220mm)", {"8530", "8531", "8539"}},
    {"Turnout Branch Curve", {"8591"}},
    {"Turnouts", {"8562", "8563", "8565", "8566"}},
    {"Curved Turnouts", {"8568", "8569"}},
    {"Crossings", {"8559", "8560"}},
    {"Other", {"8587", "8588", "8590", "8598", "8991"}},
    {"Bridges", {"8975", "89759", "8976", "8977"}},
};

constexpr PaletteSystem kSystems[] = {
    {"Marklin C-Track", TrackSystem::MarklinC, "Marklin_C-Track", kMarklinCSections},
    {"Marklin K-Track", TrackSystem::MarklinK, "Marklin_K-Track", kMarklinKSections},
    {"TRIX C-Track", TrackSystem::TrixC, "TRIX_C-Track", kTrixCSections},
    {"Marklin Z-Track", TrackSystem::MarklinZ, "Marklin_Z-Track", kMarklinZSections},
};

}  // namespace

std::span<const std::string_view> PaletteSection::parts() const {
  const auto end = std::find(slots.begin(), slots.end(), std::string_view{});
  return {slots.begin(), end};
}

std::span<const PaletteSystem> paletteSystems() {
  return kSystems;
}

std::int32_t paletteIndexFor(const Layout& layout) {
  std::array<bool, std::size(kSystems)> occurs{};
  for (const Piece& piece : layout.pieces) {
    const PieceDef* def = findPart(piece.cat);
    if (def == nullptr) continue;
    for (std::size_t i = 0; i < occurs.size(); ++i)
      occurs[i] = occurs[i] || kSystems[i].system == def->system;
  }
  const auto first = std::find(occurs.begin(), occurs.end(), true);
  return first == occurs.end() ? 0 : static_cast<std::int32_t>(first - occurs.begin());
}

}  // namespace vantrel
