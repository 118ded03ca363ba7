// What the reader says of a file that it can't take, and where.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "io/text_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::ProblemOf;

// One line with all its numbers, between the lines that make the reader look at it.
struct LineCase {
  std::string before;
  std::string line;
  std::vector<std::string> requiredInts;
  std::vector<std::string> requiredReals;
  std::vector<std::string> optionalInts;
  std::vector<std::string> optionalReals;
};
void PrintTo(const LineCase& example, std::ostream* out) {
  *out << example.line;
}

const std::vector<LineCase>& LineCases() {
  static const std::vector<LineCase> cases = {
      {"", R"(<layout name="a" version="1" units="1">)", {}, {}, {"units"}, {}},
      {"", R"(<run deg="1" anchor="1" conn="1"/>)", {"anchor", "conn"}, {"deg"}, {}, {}},
      {"<pieces>\n",
       R"(<piece id="1" cat="a" x="1" y="1" heading="1" z="1" grade="1" level="1" sel="0" color="1">)",
       {"id"},
       {"x", "y", "heading"},
       {"level", "color"},
       {"z", "grade"}},
      {"<pieces>\n",
       R"(<piece id="1" cat="a" x="1" y="1" heading="1" helix="1">)",
       {},
       {},
       {"helix"},
       {}},
      {"<pieces>\n<piece id=\"1\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\">\n",
       R"(<joint target="1" tconn="1"/>)",
       {"target", "tconn"},
       {},
       {},
       {}},
      {"", R"(<levels active="1">)", {}, {}, {"active"}, {}},
      {"<levels active=\"1\">\n",
       R"(<level id="1" name="a" visible="1" height="1" r="1" g="1" b="1"/>)",
       {"id"},
       {},
       {"r", "g", "b"},
       {"height"}},
      {"<levels active=\"1\">\n<level id=\"1\">\n", R"(<pt x="1" y="1"/>)", {}, {"x", "y"}, {}, {}},
      {"<scenery>\n",
       R"(<sceneryitem id="1" item="a" x="1" y="1" heading="1" level="1"/>)",
       {"id"},
       {"x", "y", "heading"},
       {"level"},
       {}},
      {"<scenery>\n",
       R"(<sceneryitem id="1" item="a" x="1" y="1" heading="1" scalex="1" scaley="1"/>)",
       {},
       {},
       {},
       {"scalex", "scaley"}},
      {"<baseboard>\n", R"(<vertex x="1" y="1"/>)", {}, {"x", "y"}, {}, {}},
      {"",
       R"(<lastshape id="1" w_mm="1" h_mm="1" w2_mm="1" h2_mm="1"/>)",
       {},
       {},
       {"id"},
       {"w_mm", "h_mm", "w2_mm", "h2_mm"}},
      {"", R"(<label id="1" x="1" y="1" text="a"/>)", {"id"}, {"x", "y"}, {}, {}},
      {"",
       R"(<shape id="1" r="1" g="1" b="1" a="1" outline="1" level="1" height="1" label="a">)",
       {},
       {},
       {"r", "g", "b", "a", "level"},
       {"height"}},
      {"",
       R"(<tunnel id="1" portalA="1" portalB="1" anchorA="1" anchorB="1">)",
       {"id", "portalA", "portalB"},
       {},
       {"anchorA", "anchorB"},
       {}},
      {"<tunnel id=\"1\" portalA=\"1\" portalB=\"1\">\n",
       R"(<covers piece="1" />)",
       {"piece"},
       {},
       {},
       {}},
      {"",
       R"(<helix id="1" cx="1" cy="1" heading="1" variant="a" bottomR1="1" bottomR2="1" topR1="1" topR2="1"/>)",
       {"id", "bottomR1", "bottomR2", "topR1", "topR2"},
       {"cx", "cy", "heading"},
       {},
       {}},
  };
  return cases;
}

// The line with another value for one attribute.
std::string WithValue(const std::string& line, const std::string& name, const std::string& value) {
  const std::string wanted = " " + name + "=\"";
  const std::size_t start = line.find(wanted);
  EXPECT_NE(start, std::string::npos) << line << " / " << name;
  const std::size_t from = start + wanted.size();
  return line.substr(0, from) + value + line.substr(line.find('"', from));
}

// The line without one attribute.
std::string Without(const std::string& line, const std::string& name) {
  const std::string wanted = " " + name + "=\"";
  const std::size_t start = line.find(wanted);
  EXPECT_NE(start, std::string::npos) << line << " / " << name;
  return line.substr(0, start) + line.substr(line.find('"', start + wanted.size()) + 1);
}

class EveryLine : public ::testing::TestWithParam<LineCase> {
 protected:
  // What the reader says with this line behind the lines before it, told of that line alone.
  std::string problemOf(const std::string& line) const {
    const std::string& before = GetParam().before;
    const std::string problem = ProblemOf(before + line + "\n");
    if (problem == "loads") return problem;
    const auto lineNumber = 1 + std::count(before.begin(), before.end(), '\n');
    const std::string prefix = std::to_string(lineNumber) + ": ";
    EXPECT_TRUE(problem.starts_with(prefix)) << problem << " in " << line;
    return problem.substr(prefix.size());
  }
};

TEST_P(EveryLine, LoadsAsItIs) {
  EXPECT_EQ(problemOf(GetParam().line), "loads");
}

TEST_P(EveryLine, RefusesARequiredNumberThatIsMissingOrNone) {
  const std::string& line = GetParam().line;
  for (const std::string& name : GetParam().requiredInts) {
    EXPECT_EQ(problemOf(Without(line, name)), "invalid stoi argument") << name;
    EXPECT_EQ(problemOf(WithValue(line, name, "")), "invalid stoi argument") << name;
    EXPECT_EQ(problemOf(WithValue(line, name, "abc")), "invalid stoi argument") << name;
  }
  for (const std::string& name : GetParam().requiredReals) {
    EXPECT_EQ(problemOf(Without(line, name)), "invalid stod argument") << name;
    EXPECT_EQ(problemOf(WithValue(line, name, "")), "invalid stod argument") << name;
    EXPECT_EQ(problemOf(WithValue(line, name, "abc")), "invalid stod argument") << name;
  }
}

TEST_P(EveryLine, TakesAnOptionalNumberThatIsMissingOrEmpty) {
  const std::string& line = GetParam().line;
  for (const auto& names : {GetParam().optionalInts, GetParam().optionalReals})
    for (const std::string& name : names) {
      EXPECT_EQ(problemOf(Without(line, name)), "loads") << name;
      EXPECT_EQ(problemOf(WithValue(line, name, "")), "loads") << name;
    }
}

TEST_P(EveryLine, RefusesAnOptionalNumberThatIsNone) {
  const std::string& line = GetParam().line;
  for (const std::string& name : GetParam().optionalInts)
    EXPECT_EQ(problemOf(WithValue(line, name, " ")), "invalid stoi argument") << name;
  for (const std::string& name : GetParam().optionalReals)
    EXPECT_EQ(problemOf(WithValue(line, name, "?1")), "invalid stod argument") << name;
}

TEST_P(EveryLine, RefusesANumberOutOfRange) {
  const std::string& line = GetParam().line;
  for (const auto& names : {GetParam().requiredInts, GetParam().optionalInts})
    for (const std::string& name : names)
      EXPECT_EQ(problemOf(WithValue(line, name, "99999999999")), "stoi argument out of range")
          << name;
  for (const auto& names : {GetParam().requiredReals, GetParam().optionalReals})
    for (const std::string& name : names)
      EXPECT_EQ(problemOf(WithValue(line, name, "1e309")), "stod argument out of range") << name;
}

std::string CaseName(const ::testing::TestParamInfo<LineCase>& info) {
  std::string name;
  for (const char c : info.param.line.substr(1)) {
    if (c == ' ') break;
    name += c;
  }
  return name + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(MalformedFile, EveryLine, ::testing::ValuesIn(LineCases()), CaseName);

std::string JointFile(const std::string& conn) {
  return "<pieces>\n<piece id=\"1\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\">\n<joint conn=\"" +
         conn + "\" target=\"2\" tconn=\"0\"/>\n";
}

TEST(MalformedFile, AConnectorThatNoPieceCanHaveIsOutOfRange) {
  EXPECT_EQ(ProblemOf(JointFile("63")), "loads");
  EXPECT_EQ(testing::Loaded(JointFile("63")).pieces[0].joints.size(), 64u);
  EXPECT_EQ(ProblemOf(JointFile("0")), "loads");
  EXPECT_EQ(ProblemOf(JointFile("64")), "3: stoi argument out of range");
  EXPECT_EQ(ProblemOf(JointFile("-1")), "3: stoi argument out of range");
  EXPECT_EQ(ProblemOf(JointFile("2147483647")), "3: stoi argument out of range");
  EXPECT_EQ(ProblemOf(JointFile("")), "3: invalid stoi argument");
}

TEST(MalformedFile, APieceOrItemWithoutItsCatalogKeyIsStillRead) {
  EXPECT_EQ(
      testing::Loaded("<pieces>\n<piece id=\"1\" x=\"1\" y=\"1\" heading=\"1\">\n").pieces[0].cat,
      "");
  EXPECT_EQ(testing::Loaded("<scenery>\n<sceneryitem id=\"1\" x=\"1\" y=\"1\" heading=\"1\"/>\n")
                .scenery[0]
                .item,
            "");
}

TEST(MalformedFile, ANameThatEndsLikeAnAttributeSpoilsTheUnits) {
  EXPECT_EQ(ProblemOf("<layout name=\"Plan in units=\" version=\"1\" units=\"0\">\n"),
            "1: invalid stoi argument");
}

TEST(MalformedFile, TheLineIsCountedThroughPiecesAndEitherLineEnd) {
  EXPECT_EQ(
      ProblemOf("<layout name=\"a\">\r\n\r\n  <pieces>\r\n  </pieces>\r\n<label id=\"x\"/>\r\n"),
      "5: invalid stoi argument");
}

TEST(MalformedFile, ByThenTheLayoutIsPartlyReplaced) {
  const testing::TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  testing::WriteBytes(
      path,
      "<layout name=\"Half\" units=\"1\">\n<label id=\"1\" x=\"2\" y=\"3\"/>\n<shape id=\"x\">\n");
  Layout layout = testing::RichLayout();
  std::string name;
  try {
    LoadLayoutFile(layout, path, name);
    FAIL() << "the third line is malformed";
  } catch (const MalformedFile& malformed) {
    EXPECT_STREQ(malformed.what(), "invalid stoi argument");
    EXPECT_EQ(malformed.path, path);
    EXPECT_EQ(malformed.line, 3u);
  }
  EXPECT_EQ(name, "Half");
  EXPECT_EQ(layout.units, kCentimetres);
  EXPECT_EQ(layout.labels.size(), 1u);
  EXPECT_TRUE(layout.pieces.empty());
}

void ExpectCannotOpen(const std::string& path) {
  Layout layout = testing::RichLayout();
  std::string name = "as it was";
  EXPECT_EQ(LoadLayoutFile(layout, path, name), "Cannot open file: " + path);
  EXPECT_EQ(testing::Saved(layout), testing::Saved(testing::RichLayout()));
  EXPECT_EQ(name, "as it was");
}

TEST(UnreadableFile, LeavesTheLayoutUnchangedWhenThereIsNoFile) {
  const testing::TempFolder folder;
  ExpectCannotOpen(folder.path("none.vtl"));
  ExpectCannotOpen(folder.path("no/such/folder.vtl"));
  ExpectCannotOpen("");
}

TEST(UnreadableFile, LeavesTheLayoutUnchangedWhenItIsAFolder) {
  const testing::TempFolder folder;
  std::filesystem::create_directory(folder.path("plan.vtl"));
  ExpectCannotOpen(folder.path("plan.vtl"));
}

TEST(UnreadableFile, AFileThatIsLongerThanMeasuredIsReadToItsEnd) {
  // These files are measured as empty and hold text.
  const std::string path = "/proc/version";
  if (!std::filesystem::exists(path)) GTEST_SKIP() << "no file of that kind";
  ASSERT_EQ(std::filesystem::file_size(path), 0u);
  FileBytes bytes;
  EXPECT_EQ(ReadTextFile(path, bytes), "");
  EXPECT_GT(bytes.size, 10u);
  EXPECT_EQ(bytes.text(), testing::ReadBytes(path));
}

TEST(UnreadableFile, DoesNotWaitForAPipeOrReadADeviceWithoutEnd) {
  ExpectCannotOpen("/dev/zero");
  const testing::TempFolder folder;
  const std::string pipe = folder.path("pipe.vtl");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  ExpectCannotOpen(pipe);
}

TEST(UnreadableFile, IsFoundUnderANameThatIsNotAscii) {
  const testing::TempFolder folder;
  const std::string path = folder.path("M\xC3\xA4rklin \xE2\x82\xAC.vtl");
  testing::WriteBytes(path, "<layout name=\"\xE2\x82\xAC\">\n");
  Layout layout;
  std::string name;
  EXPECT_EQ(LoadLayoutFile(layout, path, name), "");
  EXPECT_EQ(name, "\xE2\x82\xAC");
}

}  // namespace
}  // namespace vantrel
