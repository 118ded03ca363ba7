// One namespace for the whole program: a name means one type in it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

// The name of the type that a line begins to define outside any other, or an empty text.
std::string DefinedType(const std::string& line) {
  static const std::regex definition(
      R"(^(?:struct|class|union|enum|enum class) (\w+)(?: final)?(?: :[^;]*)? \{.*)");
  std::smatch found;
  return std::regex_match(line, found, definition) ? found[1].str() : std::string();
}

std::map<std::string, std::set<std::string>> HeadersByType() {
  std::map<std::string, std::set<std::string>> headers;
  const fs::path src = fs::path(VANTREL_SOURCE_DIR) / "src";
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(src)) {
    if (entry.path().extension() != ".h") continue;
    std::ifstream file(entry.path());
    std::string line;
    while (std::getline(file, line))
      if (const std::string type = DefinedType(line); !type.empty())
        headers[type].insert(fs::relative(entry.path(), src).generic_string());
  }
  return headers;
}

// A linker that meets two keeps the inline functions of either.
TEST(TypeNames, StandForOneTypeInAllHeaders) {
  const std::map<std::string, std::set<std::string>> headers = HeadersByType();
  ASSERT_GT(headers.size(), 100u) << "the source folder was not found";
  for (const auto& [type, places] : headers)
    EXPECT_EQ(places.size(), 1u) << type << " is defined in " << *places.begin() << " and in "
                                 << *places.rbegin();
}

TEST(TypeNames, AreFoundInEveryWayOfDefiningAType) {
  EXPECT_EQ(DefinedType("struct Mesh {"), "Mesh");
  EXPECT_EQ(DefinedType("class HelpDialog : public wxDialog {"), "HelpDialog");
  EXPECT_EQ(DefinedType("class Box final : public wxPanel {"), "Box");
  EXPECT_EQ(DefinedType("enum class Tag : std::uint8_t {"), "Tag");
  EXPECT_EQ(DefinedType("enum Units : std::int32_t { kMillimetres = 0, kInches = 2 };"), "Units");
  EXPECT_EQ(DefinedType("struct Layout;"), "") << "only named";
  EXPECT_EQ(DefinedType("  struct Row {"), "") << "inside another";
}

}  // namespace
