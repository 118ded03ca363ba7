#include "palette/palette_sections.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <string>

#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

struct ExpectedSection {
  std::size_t index;
  const char* title;
  const char* parts;  // with a blank between
};

constexpr ExpectedSection kExpected[] = {
    {0, "Straights", "24064 24071 24077 24094 24172 24188 24229 24236 24360"},
    {0, "Curves",
     "24130 24115 24107 24230 24294 24224 24215 24207 24206 24330 24315 24430 24530 24912"},
    {0, "Switches", "24611 24612 24671 24672 24630"},
    {0, "Crossings", "24640 24649 24740"},
    {0, "Double Slip Switches", "24624 24720"},
    {0, "Slim Switches", "24711 24712 24771 24772"},
    {0, "Circuit Tracks", "24994 24294"},
    {0, "Other", "24997 24977 24978 74861 74871"},
    {0, "Adapter Tracks", "24922 24951"},
    {0, "Bridges", "74636 74620 74623 74613 74618"},
    {1, "Straights", "2200 2201 2202 2203 2204 2205 2206 2207 2208 2209 2293"},
    {1, "Special Track", "2290 2291 2292 2295 2297 2299"},
    {1, "Curves R1 (360mm)", "2210 2229"},
    {1, "Curves R2 (424.6mm)", "2221 2223 2224 2239"},
    {1, "Curves R3 (515mm)", "2231 2232 2233 2234 2235"},
    {1, "Curves R4 (573.6mm)", "2241 2251"},
    {1, "Curves R5 (636mm)", "2274"},
    {1, "Crossings", "2257 2258 2259"},
    {1, "Turnouts", "2262 2263 2265 2266 2268 2269 2270 22715 22716"},
    {1, "Double Slip Switches", "2260 2275"},
    {1, "Bumpers", "7389 7391"},
    {1, "Bridges", "7263 7262 7569 7267"},
    {2, "Straights", "62064 62071 62077 62094 62172 62188 62229 62236 62360"},
    {2, "Curves R1 (360mm)", "62107 62115 62130"},
    {2, "Curves R2 (437.5mm)", "62206 62207 62215 62224 62230"},
    {2, "Curves R3 (515mm)", "62315 62330"},
    {2, "Curves R9 (1114.6mm)", "62912"},
    {2, "Switches", "62611 62612 62671 62672 62630"},
    {2, "Double Slip Switches", "62624"},
    {2, "Other", "62977 62997"},
    {2, "Bridges", "62636 62620 62623 62613"},
    {3, "Straights", "8500 8501 8502 8503 8504 8505 8506 8507"},
    {3, "Curves R1 (145mm)", "8510 8511"},
    {3, "Curves R2 (195mm)", "8520 8521 8529"},
    {3, "Curves R3 (220mm)", "8530 8531 8539"},
    {3, "Turnout Branch Curve", "8591"},
    {3, "Turnouts", "8562 8563 8565 8566"},
    {3, "Curved Turnouts", "8568 8569"},
    {3, "Crossings", "8559 8560"},
    {3, "Other", "8587 8588 8590 8598 8991"},
    {3, "Bridges", "8975 89759 8976 8977"},
};

std::string Joined(std::span<const std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) {
    if (!text.empty()) text += ' ';
    text += part;
  }
  return text;
}

Layout LayoutOf(std::initializer_list<const char*> parts) {
  Layout layout;
  for (const char* part : parts) {
    Piece piece;
    piece.id = layout.nextId++;
    piece.cat = part;
    layout.pieces.push_back(piece);
  }
  return layout;
}

TEST(PaletteSections, ListEverySystemsPartsInOrder) {
  std::size_t next = 0;
  for (std::size_t index = 0; index < paletteSystems().size(); ++index) {
    for (const PaletteSection& section : paletteSystems()[index].sections) {
      ASSERT_LT(next, std::size(kExpected)) << section.title;
      EXPECT_EQ(index, kExpected[next].index) << section.title;
      EXPECT_EQ(section.title, kExpected[next].title);
      EXPECT_EQ(Joined(section.parts()), kExpected[next].parts) << section.title;
      ++next;
    }
  }
  EXPECT_EQ(next, std::size(kExpected));
}

TEST(PaletteSections, HoldEachCatalogRowOnceAndOnlyTheCircuitCurveTwice) {
  std::map<std::string, int> uses;
  for (const PaletteSystem& system : paletteSystems()) {
    for (const PaletteSection& section : system.sections) {
      for (const std::string_view part : section.parts()) {
        const PieceDef* def = findPart(part);
        ASSERT_NE(def, nullptr) << part;
        EXPECT_EQ(def->system, system.system) << part;
        ++uses[def->partNumber];
      }
    }
  }
  ASSERT_EQ(catalog().pieceCount(), 167);
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const std::string& part = catalog().pieceAt(i)->partNumber;
    EXPECT_EQ(uses[part], part == "24294" ? 2 : 1) << part;
  }
}

TEST(PaletteSystems, NameTheirEntriesTracksAndLibraryFolders) {
  const std::span<const PaletteSystem> systems = paletteSystems();
  ASSERT_EQ(systems.size(), 4u);
  EXPECT_EQ(systems[0].entry, "Marklin C-Track");
  EXPECT_EQ(systems[1].entry, "Marklin K-Track");
  EXPECT_EQ(systems[2].entry, "TRIX C-Track");
  EXPECT_EQ(systems[3].entry, "Marklin Z-Track");
  EXPECT_EQ(systems[0].libraryFolder, "Marklin_C-Track");
  EXPECT_EQ(systems[1].libraryFolder, "Marklin_K-Track");
  EXPECT_EQ(systems[2].libraryFolder, "TRIX_C-Track");
  EXPECT_EQ(systems[3].libraryFolder, "Marklin_Z-Track");
  EXPECT_EQ(static_cast<int>(systems[0].system), 0);
  EXPECT_EQ(static_cast<int>(systems[1].system), 1);
  EXPECT_EQ(static_cast<int>(systems[2].system), 3);
  EXPECT_EQ(static_cast<int>(systems[3].system), 2);
}

TEST(PaletteIndexFor, ShowsTheSystemOfALayoutOfOneSystem) {
  EXPECT_EQ(paletteIndexFor(LayoutOf({"24188"})), 0);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"2200"})), 1);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"62188"})), 2);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"8500"})), 3);
}

TEST(PaletteIndexFor, PrefersCThenKThenTrixThenZInAMixedLayout) {
  EXPECT_EQ(paletteIndexFor(LayoutOf({"8500", "62188", "2200", "24188"})), 0);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"8500", "62188", "2200"})), 1);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"8500", "62188"})), 2);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"8500", "8500"})), 3);
}

TEST(PaletteIndexFor, PassesOverUnknownPartsAndStartsAtCForAnEmptyLayout) {
  EXPECT_EQ(paletteIndexFor(LayoutOf({})), 0);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"no such part"})), 0);
  EXPECT_EQ(paletteIndexFor(LayoutOf({"no such part", "", "8500"})), 3);
}

}  // namespace
}  // namespace vantrel
