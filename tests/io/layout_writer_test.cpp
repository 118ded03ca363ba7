#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <string>

#include "io/layout_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::RichLayout;
using testing::Saved;

// Two straights, joined, on the default level.
Layout DemoLayout() {
  Layout layout;
  layout.levels = {{.id = 1, .name = "Level 1", .r = 180, .g = 200, .b = 220}};
  layout.pieces = {{.id = 1, .cat = "24188", .x = 100, .y = 50},
                   {.id = 2, .cat = "24188", .x = 288, .y = 50}};
  layout.pieces[0].joints = {{}, {.target = 2, .tconn = 0}};
  layout.pieces[1].joints = {{.target = 1, .tconn = 1}, {}};
  return layout;
}

constexpr const char* kDemoFile =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<layout name="Demo" version="1" units="0">
  <pieces>
    <piece id="1" cat="24188" x="100.0000" y="50.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="1" target="2" tconn="0"/>
    </piece>
    <piece id="2" cat="24188" x="288.0000" y="50.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="1" tconn="1"/>
    </piece>
  </pieces>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <lastshape id="0" w_mm="2400.0000" h_mm="1200.0000" w2_mm="1200.0000" h2_mm="1200.0000"/>
</layout>
)";

constexpr const char* kRichFile =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<layout name="Rich" version="1" units="2">
  <grade_runs>
    <run deg="2.5000" anchor="2" conn="1"/>
    <run deg="-1.2500" anchor="1" conn="0"/>
  </grade_runs>
  <pieces>
    <piece id="1" cat="24188" x="100.0000" y="50.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="1" target="2" tconn="0"/>
    </piece>
    <piece id="2" cat="24188" x="288.0000" y="-0.5000" heading="359.9877" z="30.1250" grade="2.5000" rev="1" free="1" level="7" helix="12" sel="1" color="66051">
      <joint conn="0" target="1" tconn="1"/>
      <joint conn="2" target="-5" tconn="4"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="3" item="tree_oak" x="1.0000" y="2.0000" heading="45.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="4" item="portal" x="3.0000" y="4.0000" heading="90.0000" scalex="1.5000" scaley="0.7500" level="7" sel="1"/>
  </scenery>
  <levels active="7">
    <level id="1" name="Ground" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
    <level id="7" name="Upper" visible="0" height="120.5000" trackcolor="1" r="200" g="50" b="51">
      <pt x="0.0000" y="0.0000"/>
      <pt x="500.0000" y="0.0000"/>
      <pt x="0.0000" y="400.0000"/>
    </level>
  </levels>
  <baseboard>
    <vertex x="0.0000" y="0.0000"/>
    <vertex x="2400.0000" y="0.0000"/>
    <vertex x="2400.0000" y="1200.0000"/>
  </baseboard>
  <lastshape id="2" w_mm="2500.0000" h_mm="1300.0000" w2_mm="700.0000" h2_mm="600.0000"/>
  <labels>
    <label id="5" x="10.0000" y="20.0000" text="Depot"/>
  </labels>
  <shapes>
    <shape id="6" r="10" g="20" b="30" a="40" outline="0" level="7" height="15.0000" label="Pond">
      <v x="1.0000" y="2.0000"/>
      <v x="3.0000" y="4.0000"/>
    </shape>
    <shape id="7" r="120" g="170" b="110" a="140" outline="1" level="1" height="0.0000" label="">
    </shape>
  </shapes>
  <tunnels>
    <tunnel id="8" portalA="3" portalB="4" anchorA="1" anchorB="2">
      <covers piece="1"/>
      <covers piece="2"/>
    </tunnel>
  </tunnels>
  <helices>
    <helix id="12" cx="700.0000" cy="800.0000" heading="15.0000" variant="proses_2_5_r1r2" bottomR1="20" bottomR2="21" topR1="22" topR2="23"/>
  </helices>
</layout>
)";

bool Holds(const std::string& file, const std::string& text) {
  return file.find(text) != std::string::npos;
}

TEST(LayoutWriter, WritesTheSmallPlanByteForByte) {
  EXPECT_EQ(Saved(DemoLayout()), kDemoFile);
}

TEST(LayoutWriter, WritesEveryElementAndAttributeInOrder) {
  // 1 * 65536 + 2 * 256 + 3 = 66051 is the colour of the second piece.
  EXPECT_EQ(Saved(RichLayout(), "Rich"), kRichFile);
}

TEST(LayoutWriter, LeavesOutEmptyListsButNotPiecesAndLastShape) {
  EXPECT_EQ(Saved(Layout{}, ""),
            R"(<?xml version="1.0" encoding="UTF-8"?>
<layout name="" version="1" units="0">
  <pieces>
  </pieces>
  <lastshape id="0" w_mm="2400.0000" h_mm="1200.0000" w2_mm="1200.0000" h2_mm="1200.0000"/>
</layout>
)");
}

TEST(LayoutWriter, WritesRevFreeHelixAndColourOnlyWhenSet) {
  Layout layout = DemoLayout();
  layout.pieces[0].colorR = 9;  // without hasColor
  const std::string plain = Saved(layout);
  for (const char* attribute : {" rev=", " free=", " helix=", " color="})
    EXPECT_FALSE(Holds(plain, attribute)) << attribute;
  layout.pieces[0].helix = 0;
  layout.pieces[0].hasColor = true;
  layout.pieces[0].colorR = 255;
  layout.pieces[0].colorG = 255;
  layout.pieces[0].colorB = 255;
  const std::string dressed = Saved(layout);
  EXPECT_TRUE(Holds(dressed, R"( level="1" helix="0" sel="0" color="16777215">)"));
}

TEST(LayoutWriter, WritesAnOutlineOnlyFromThreePointsOn) {
  Layout layout = DemoLayout();
  layout.levels[0].outline = {{1, 2}, {3, 4}};
  EXPECT_EQ(Saved(layout), kDemoFile);
  layout.levels[0].outline.push_back({5, 6});
  EXPECT_TRUE(Holds(Saved(layout),
                    "b=\"220\">\n      <pt x=\"1.0000\" y=\"2.0000\"/>\n"
                    "      <pt x=\"3.0000\" y=\"4.0000\"/>\n"
                    "      <pt x=\"5.0000\" y=\"6.0000\"/>\n    </level>\n"));
}

TEST(LayoutWriter, EscapesTextsWhereverTheyStand) {
  Layout layout = DemoLayout();
  layout.pieces[0].cat = "A&B";
  layout.levels[0].name = "<up>";
  layout.labels = {{.id = 3, .text = "6\" & it's"}};
  const std::string file = Saved(layout, "M\xC3\xA4rz & \"Co\"");
  EXPECT_TRUE(Holds(file, "<layout name=\"M\xC3\xA4rz &amp; &quot;Co&quot;\" version"));
  EXPECT_TRUE(Holds(file, R"(cat="A&amp;B")"));
  EXPECT_TRUE(Holds(file, R"(name="&lt;up&gt;")"));
  EXPECT_TRUE(Holds(file, R"(text="6&quot; &amp; it's")"));
}

TEST(LayoutWriter, StoresNoViewSettingsAndNoMeasurements) {
  Layout layout = DemoLayout();
  layout.measurements = {{.id = 9, .startX = 1, .endX = 2}};
  layout.nextId = 77;
  layout.snapEnabled = false;
  layout.gridVisible = false;
  layout.labelsVisible = false;
  layout.baseboardVisible = false;
  layout.currentGrade = {.active = true, .deg = 3};
  layout.toolMode = kPolygonTool;
  layout.gridSize = 5;
  layout.undoHistory.emplace_back();
  EXPECT_EQ(Saved(layout), kDemoFile);
}

TEST(LayoutWriter, WritesTheSameBytesUnderACommaLocale) {
  const testing::CommaLocale locale;
  ASSERT_TRUE(locale.active()) << "this machine takes no locale with a decimal comma";
  EXPECT_EQ(Saved(RichLayout(), "Rich"), kRichFile);
}

TEST(LayoutWriter, WhatIsSavedIsLoadedAgain) {
  const testing::TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  EXPECT_EQ(SaveLayoutFile(RichLayout(), path, "Rich"), "");
  EXPECT_EQ(testing::ReadBytes(path), kRichFile);
  Layout layout;
  std::string name;
  EXPECT_EQ(LoadLayoutFile(layout, path, name), "");
  EXPECT_EQ(name, "Rich");
  EXPECT_EQ(layout.scenery, RichLayout().scenery);
  EXPECT_EQ(layout.helices, RichLayout().helices);
}

TEST(LayoutWriter, ReplacesALongerFileWhereItStands) {
  const testing::TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  testing::WriteBytes(path, std::string(5000, 'x'));
  std::filesystem::create_symlink(path, folder.path("link.vtl"));
  EXPECT_EQ(SaveLayoutFile(DemoLayout(), folder.path("link.vtl"), "Demo"), "");
  EXPECT_EQ(testing::ReadBytes(path), kDemoFile);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link.vtl")));
}

TEST(LayoutWriter, SavesUnderANameThatIsNotAscii) {
  const testing::TempFolder folder;
  const std::string path = folder.path("M\xC3\xA4rklin \xE2\x82\xAC.vtl");
  EXPECT_EQ(SaveLayoutFile(DemoLayout(), path, "Demo"), "");
  EXPECT_EQ(testing::ReadBytes(path), kDemoFile);
}

TEST(LayoutWriter, SaysThatItCannotOpenAFileInAFolderThatIsNotThere) {
  const testing::TempFolder folder;
  const std::string path = folder.path("no/such/plan.vtl");
  EXPECT_EQ(SaveLayoutFile(DemoLayout(), path, "Demo"), "Cannot open file: " + path);
}

TEST(LayoutWriter, SaysThatItCannotOpenAFolder) {
  const testing::TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  std::filesystem::create_directory(path);
  EXPECT_EQ(SaveLayoutFile(DemoLayout(), path, "Demo"), "Cannot open file: " + path);
}

TEST(LayoutWriter, SaysThatItCannotWriteToAFullDisk) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no disk that is always full";
  EXPECT_EQ(SaveLayoutFile(DemoLayout(), "/dev/full", "Demo"), "Cannot write file: /dev/full");
  const testing::TempFolder folder;
  const std::string path = folder.path("full.vtl");
  std::filesystem::create_symlink("/dev/full", path);
  EXPECT_EQ(SaveLayoutFile(DemoLayout(), path, "Demo"), "Cannot write file: " + path);
}

TEST(LayoutWriter, SaysThatItCannotWriteWhenTheDiskFillsPartWay) {
  Layout layout = DemoLayout();
  layout.labels.assign(5000, {.id = 3, .text = "a label like many others"});
  const testing::TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  rlimit narrow = before;
  narrow.rlim_cur = 10'000;
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &narrow), 0);
  const std::string result = SaveLayoutFile(layout, path, "Demo");
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(result, "Cannot write file: " + path);
  EXPECT_EQ(std::filesystem::file_size(path), 10'000u) << "nothing was written before the failure";
}

}  // namespace
}  // namespace vantrel
