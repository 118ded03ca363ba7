// What a part is for stands in its row of the catalog. A part number tested anywhere else would be
// forgotten when a part of the same kind is added.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace vantrel {
namespace {

namespace fs = std::filesystem;

// The rows themselves, the order of the palette, and what the store sells, packs and puts together.
bool MayNameParts(const fs::path& source) {
  const std::string path = source.generic_string();
  return path.find("/src/catalog/") != std::string::npos ||
         path.find("/src/shopping/") != std::string::npos ||
         source.filename() == "palette_sections.cpp";
}

// "24188", quoted: four or five digits that begin as part numbers do.
std::vector<std::string> PartLiterals(const std::string& line) {
  static const std::regex literal("\"([2678][0-9]{3,4})\"");
  std::vector<std::string> found;
  for (std::sregex_iterator match(line.begin(), line.end(), literal), end; match != end; ++match)
    found.push_back((*match)[1]);
  return found;
}

TEST(PartLiterals, AreFoundInALine) {
  EXPECT_EQ(PartLiterals("  if (piece.cat == \"74871\") return \"2200\";"),
            (std::vector<std::string>{"74871", "2200"}));
  EXPECT_TRUE(PartLiterals("  24188 mm, \"188\", \"12345\"").empty());
}

TEST(PartLiterals, StandInTheCatalogThePalettesOrderAndTheStoresTablesOnly) {
  for (const fs::directory_entry& entry :
       fs::recursive_directory_iterator(fs::path(VANTREL_SOURCE_DIR) / "src")) {
    if (!entry.is_regular_file() || MayNameParts(entry.path())) continue;
    std::ifstream file(entry.path());
    int number = 0;
    for (std::string line; std::getline(file, line);) {
      ++number;
      for (const std::string& part : PartLiterals(line))
        ADD_FAILURE() << entry.path() << ":" << number << " names part " << part;
    }
  }
}

}  // namespace
}  // namespace vantrel
