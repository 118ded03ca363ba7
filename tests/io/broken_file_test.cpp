// Files that were cut off, overwritten, tampered with or never were plans: each loads or is refused
// with one of the four problems, and none holds the program up.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::Loaded;
using testing::ProblemOf;

constexpr std::size_t kHuge = 100'000'000;  // bytes

// How many texts loaded and how many were refused.
struct Verdicts {
  int loaded = 0;
  int refused = 0;
};

void Judge(const std::string& text, Verdicts& verdicts) {
  static const std::set<std::string> problems = {"invalid stoi argument", "invalid stod argument",
                                                 "stoi argument out of range",
                                                 "stod argument out of range"};
  const std::string problem = ProblemOf(text);
  if (problem == "loads") {
    ++verdicts.loaded;
    return;
  }
  ++verdicts.refused;
  const std::size_t colon = problem.find(": ");
  ASSERT_NE(colon, std::string::npos) << problem;
  EXPECT_TRUE(problems.contains(problem.substr(colon + 2))) << problem;
  const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
  EXPECT_LE(std::stol(problem), lines);
  EXPECT_GE(std::stol(problem), 1);
}

std::string RichFile() {
  return testing::Saved(testing::RichLayout(), "Rich");
}

TEST(BrokenFile, CutOffAtAnyByteItLoadsOrIsRefused) {
  const std::string file = RichFile();
  Verdicts verdicts;
  for (std::size_t size = 0; size < file.size(); ++size) Judge(file.substr(0, size), verdicts);
  EXPECT_GT(verdicts.loaded, 1000);
  EXPECT_GT(verdicts.refused, 300);
}

TEST(BrokenFile, WithBytesFlippedItLoadsOrIsRefused) {
  const std::string file = RichFile();
  std::mt19937 random(4711);
  std::uniform_int_distribution<std::size_t> place(0, file.size() - 1);
  std::uniform_int_distribution<int> byte(0, 255);
  std::uniform_int_distribution<int> count(1, 12);
  Verdicts verdicts;
  for (int i = 0; i < 3000; ++i) {
    std::string broken = file;
    for (int n = count(random); n > 0; --n) broken[place(random)] = static_cast<char>(byte(random));
    Judge(broken, verdicts);
  }
  EXPECT_GT(verdicts.loaded, 300);
  EXPECT_GT(verdicts.refused, 300);
}

TEST(BrokenFile, WithItsLinesMovedAboutItLoadsOrIsRefused) {
  std::vector<std::string> lines;
  std::istringstream file(RichFile());
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  std::mt19937 random(99);
  Verdicts verdicts;
  for (int i = 0; i < 1000; ++i) {
    std::shuffle(lines.begin(), lines.end(), random);
    std::string broken;
    for (const std::string& line : lines) {
      if (random() % 8 == 0) continue;
      broken += line;
      if (random() % 4 != 0) broken += '\n';
    }
    Judge(broken, verdicts);
  }
  EXPECT_GT(verdicts.loaded + verdicts.refused, 999);
  EXPECT_GT(verdicts.loaded, 100);
}

TEST(BrokenFile, WithAnyValueReplacedItLoadsOrIsRefused) {
  const std::string file = RichFile();
  const std::vector<std::string> values = {"1e308",
                                           "-1e308",
                                           "nan",
                                           "inf",
                                           "-inf",
                                           "99999999999",
                                           "-99999999999",
                                           "2147483647",
                                           "-2147483648",
                                           "",
                                           "abc",
                                           "1e-320",
                                           "0x7fffffff",
                                           "63",
                                           "64",
                                           "-1",
                                           std::string("1\0", 2)};
  Verdicts verdicts;
  int attributes = 0;
  for (std::size_t at = file.find("=\""); at != std::string::npos; at = file.find("=\"", at + 2)) {
    const std::size_t start = at + 2;
    const std::size_t end = file.find('"', start);
    ++attributes;
    for (const std::string& value : values)
      Judge(file.substr(0, start) + value + file.substr(end), verdicts);
  }
  EXPECT_GT(attributes, 100);
  EXPECT_GT(verdicts.loaded, attributes);
  EXPECT_GT(verdicts.refused, attributes);
}

TEST(BrokenFile, WithEveryRealHugeItLoadsAndIsWrittenAgain) {
  for (const std::string value : {"1e308", "-1e308", "inf", "nan"}) {
    std::string file = RichFile();
    int replaced = 0;
    for (std::size_t at = file.find("=\""); at != std::string::npos;
         at = file.find("=\"", at + 2)) {
      const std::size_t start = at + 2;
      const std::size_t size = file.find('"', start) - start;
      if (size < 6 || file[start + size - 5] != '.') continue;  // not "0.0000" or longer
      file.replace(start, size, value);
      ++replaced;
    }
    EXPECT_GT(replaced, 50);
    const Layout layout = Loaded(file);
    EXPECT_EQ(layout.pieces.size(), 2u);
    const std::string once = testing::Saved(layout);
    EXPECT_EQ(testing::Saved(Loaded(once)), once) << value;
  }
}

TEST(BrokenFile, BinaryNoiseIsAnEmptyPlan) {
  std::mt19937_64 random(5);
  std::string noise;
  while (noise.size() < 1'000'000) {
    const std::uint64_t word = random();
    noise.append(reinterpret_cast<const char*>(&word), sizeof word);
  }
  const Layout layout = Loaded(noise);
  EXPECT_TRUE(layout.pieces.empty() && layout.labels.empty() && layout.shapes.empty());
  EXPECT_EQ(layout.levels.size(), 1u);
}

TEST(BrokenFile, NulBytesAreBytesLikeAnyOther) {
  using namespace std::string_literals;
  const std::string file =
      "\0\0<label id=\"4\0\" x=\"1\" y=\"2\" text=\"a\0b\"/>\0\n<label id=\"5\" x=\"1\" y=\"2\"/>\n"s;
  const Layout layout = Loaded(file);
  ASSERT_EQ(layout.labels.size(), 2u);
  EXPECT_EQ(layout.labels[0].id, 4);
  EXPECT_EQ(layout.labels[0].text, std::string("a\0b", 3));
}

TEST(BrokenFile, AHugeFileOfOneLineIsReadLikeAnyOther) {
  const testing::TempFolder folder;
  const std::string path = folder.path("huge.vtl");
  const std::string head = "<label id=\"4\" x=\"1\" y=\"2\" text=\"";
  std::string file(kHuge, 'x');
  file.replace(0, head.size(), head);
  file.replace(file.size() - 3, 3, "\"/>");
  testing::WriteBytes(path, file);
  Layout layout;
  std::string name;
  EXPECT_EQ(LoadLayoutFile(layout, path, name), "");
  ASSERT_EQ(layout.labels.size(), 1u);
  EXPECT_EQ(layout.labels[0].text.size(), kHuge - head.size() - 3);
}

TEST(BrokenFile, AHugeLineThatMatchesEveryTestIsWalkedInOneGo) {
  const std::string head =
      "<layout ><levels ><level id=\"1\"><lastshape><label x=\"2\" y=\"3\"><shape ><tunnel "
      "portalA=\"4\" "
      "portalB=\"5\"><helix cx=\"6\" cy=\"7\" heading=\"8\" bottomR1=\"1\" bottomR2=\"1\" "
      "topR1=\"1\" topR2=\"1\">";
  // A tag at every place, an attribute at every place, neither, and nothing but line ends.
  const std::vector<std::string> units = {"<",  "<s", "=\"", "q=\"", "a", std::string(1, '\0'),
                                          "\n", "<\n"};
  for (const std::string& unit : units) {
    std::string file = head;
    while (file.size() < kHuge / 20) file += unit;
    const Layout layout = Loaded(file);
    EXPECT_EQ(layout.levels.size(), 1u) << unit;
    EXPECT_EQ(layout.labels.size(), 1u) << unit;
    EXPECT_EQ(layout.shapes.size(), 1u) << unit;
    EXPECT_EQ(layout.tunnels.size(), 1u) << unit;
    EXPECT_EQ(layout.helices.size(), 1u) << unit;
    EXPECT_EQ(layout.lastShape.h2_mm, 1200.0) << unit;
  }
}

TEST(BrokenFile, AHugeLineAmongThePiecesIsWalkedInOneGo) {
  std::string file = "<pieces>\n<piece id=\"1\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\"";
  while (file.size() < kHuge / 20) file += "=\"";
  const Layout layout = Loaded(file);
  ASSERT_EQ(layout.pieces.size(), 1u);
}

TEST(BrokenFile, ManyShortPiecesListsDoNotSlowEachOtherDown) {
  std::string file;
  const std::string unit =
      "<pieces>\n<piece id=\"1\" x=\"1\" y=\"1\" heading=\"1\"\n<piece id=\"1\" x=\"1\" y=\"1\" "
      "heading=\"1\"\n</pieces>\n";
  for (int i = 0; i < 50'000; ++i) file += unit;
  EXPECT_EQ(Loaded(file).pieces.size(), 100'000u);
}

TEST(BrokenFile, AnEmptyFileIsAnEmptyPlan) {
  const Layout layout = Loaded("");
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.nextId, 1);
}

TEST(BrokenFile, TwiceTheSameIdIsKeptTwice) {
  const Layout layout = Loaded(
      "<pieces>\n<piece id=\"3\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\">\n"
      "<piece id=\"3\" cat=\"b\" x=\"2\" y=\"2\" heading=\"2\">\n</pieces>\n<label id=\"3\" "
      "x=\"1\" y=\"1\"/>\n");
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(layout.pieces[1].cat, "b");
  EXPECT_EQ(layout.labels.size(), 1u);
  EXPECT_EQ(layout.nextId, 4);
}

TEST(BrokenFile, JointsToNowhereAndInCirclesAreKeptAsTheyStand) {
  const std::string piece =
      "\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\">\n<joint conn=\"0\" target=\"";
  const Layout layout =
      Loaded("<pieces>\n<piece id=\"1" + piece + "2\" tconn=\"0\"/>\n<piece id=\"2" + piece +
             "1\" tconn=\"7\"/>\n<piece id=\"3" + piece + "3\" tconn=\"-9\"/>\n<piece id=\"4" +
             piece + "999\" tconn=\"0\"/>\n<piece id=\"5" + piece + "-2\" tconn=\"0\"/>\n");
  std::vector<Joint> joints;
  for (const Piece& read : layout.pieces)
    joints.insert(joints.end(), read.joints.begin(), read.joints.end());
  EXPECT_EQ(joints, (std::vector<Joint>{{2, 0}, {1, 7}, {3, -9}, {999, 0}, {-2, 0}}));
}

TEST(BrokenFile, LevelsThatAreNotThereAreKeptByTheirNumber) {
  const Layout layout = Loaded(
      "<levels active=\"88\">\n<level id=\"1\"/>\n</levels>\n<shape id=\"1\" level=\"-3\">\n");
  EXPECT_EQ(layout.activeLevel, 88);
  EXPECT_EQ(layout.shapes[0].level, -3);
}

}  // namespace
}  // namespace vantrel
