// What the tests of files share: a folder that goes away, files made from literal text, a plan with
// something in every field, and a locale that writes its decimals with a comma.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <locale>
#include <sstream>
#include <string>
#include <string_view>

#include "doc/layout.h"
#include "io/layout_file.h"
#include "io/layout_text.h"

namespace vantrel::testing {

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vantrel_io_XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string path(const std::string& name) const { return (folder_ / name).string(); }

 private:
  std::filesystem::path folder_;
};

inline void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  ASSERT_TRUE(file.flush()) << path;
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

// What the writer makes of a layout.
inline std::string Saved(const Layout& layout, const std::string& name = "Demo") {
  return LayoutText(layout, name);
}

// Reads this text over `layout`; returns the name that the reader gave.
inline std::string LoadOver(Layout& layout, std::string_view text) {
  std::string name;
  ReadLayoutText(layout, text, "plan.vtl", name);
  return name;
}

inline Layout Loaded(std::string_view text) {
  Layout layout;
  LoadOver(layout, text);
  return layout;
}

// The text and line of the problem that the reader finds in this text, as "line: text", or "loads".
inline std::string ProblemOf(std::string_view text) {
  try {
    Loaded(text);
  } catch (const MalformedFile& malformed) {
    EXPECT_EQ(malformed.path, "plan.vtl");
    return std::to_string(malformed.line) + ": " + malformed.what();
  }
  return "loads";
}

// A plan that has every element, every attribute and every optional attribute.
inline Layout RichLayout() {
  Layout layout;
  layout.units = kInches;
  layout.gradeRuns = {{.deg = 2.5, .anchor = 2, .conn = 1}, {.deg = -1.25, .anchor = 1, .conn = 0}};
  Piece first{.id = 1, .cat = "24188", .x = 100, .y = 50};
  first.joints = {{}, {.target = 2, .tconn = 0}};
  Piece second{.id = 2, .cat = "24188", .x = 288, .y = -0.5, .heading = 359.987654, .sel = true};
  second.z = 30.125;
  second.grade = 2.5;
  second.rev = true;
  second.hasColor = true;
  second.colorR = 1;
  second.colorG = 2;
  second.colorB = 3;
  second.level = 7;
  second.helix = 12;
  second.free = true;
  second.joints = {{.target = 1, .tconn = 1}, {}, {.target = -5, .tconn = 4}};
  layout.pieces = {first, second};
  layout.scenery = {{.id = 3, .item = "tree_oak", .x = 1, .y = 2, .heading = 45},
                    {.id = 4,
                     .item = "portal",
                     .x = 3,
                     .y = 4,
                     .heading = 90,
                     .sel = true,
                     .scalex = 1.5,
                     .scaley = 0.75,
                     .level = 7}};
  layout.activeLevel = 7;
  layout.levels = {{.id = 1, .name = "Ground", .r = 180, .g = 200, .b = 220},
                   {.id = 7,
                    .name = "Upper",
                    .visible = false,
                    .height = 120.5,
                    .trackcolor = true,
                    .r = 200,
                    .g = 50,
                    .b = 51,
                    .outline = {{0, 0}, {500, 0}, {0, 400}}}};
  layout.baseboard = {{0, 0}, {2400, 0}, {2400, 1200}};
  layout.lastShape = {.id = 2, .w_mm = 2500, .h_mm = 1300, .w2_mm = 700, .h2_mm = 600};
  layout.labels = {{.id = 5, .text = "Depot", .x = 10, .y = 20}};
  layout.shapes = {{.id = 6,
                    .vertices = {{1, 2}, {3, 4}},
                    .r = 10,
                    .g = 20,
                    .b = 30,
                    .a = 40,
                    .outline = false,
                    .level = 7,
                    .height = 15,
                    .label = "Pond"},
                   {.id = 7, .vertices = {}, .label = ""}};
  layout.tunnels = {
      {.id = 8, .portalA = 3, .portalB = 4, .anchorA = 1, .anchorB = 2, .covers = {1, 2}}};
  layout.helices = {{.id = 12,
                     .cx = 700,
                     .cy = 800,
                     .heading = 15,
                     .variant = "proses_2_5_r1r2",
                     .bottomR1 = 20,
                     .bottomR2 = 21,
                     .topR1 = 22,
                     .topR2 = 23}};
  return layout;
}

// While it lives, both the C library and the streams write "1,5" and read "1.5" as 1.
class CommaLocale {
 public:
  CommaLocale() : streams_(std::locale()) {
    std::locale::global(std::locale(streams_, new CommaPunctuation));
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "nl_NL.UTF-8"})
      if (std::setlocale(LC_NUMERIC, name) != nullptr) return;
    UseHandmade();
  }
  ~CommaLocale() {
    std::locale::global(streams_);
    std::setlocale(LC_NUMERIC, "C");
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

  bool active() const {
    char text[16];
    std::snprintf(text, sizeof text, "%.1f", 1.5);
    return std::string_view(text) == "1,5";
  }

 private:
  struct CommaPunctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  static void Put(std::string& out, std::uint32_t word) {
    out.append(reinterpret_cast<const char*>(&word), sizeof word);
  }

  // A bare machine has no such locale installed, so make one: the compiled form of LC_NUMERIC, as
  // the C library keeps it on disk.
  void UseHandmade() {
    constexpr std::uint32_t kMagic = 0x20031115;
    const std::string point(",\0", 2);
    const std::string thousands(".\0", 2);
    const std::string grouping("\3\0\0\0", 4);
    std::string wide;
    Put(wide, ',');
    Put(wide, '.');
    const std::string codeset("UTF-8\0", 6);
    std::string file;
    Put(file, kMagic ^ LC_NUMERIC);
    Put(file, 6);
    for (const std::uint32_t offset : {32u, 34u, 36u, 40u, 44u, 48u}) Put(file, offset);
    std::filesystem::create_directories(folder_.path("comma"));
    WriteBytes(folder_.path("comma/LC_NUMERIC"),
               file + point + thousands + grouping + wide + codeset);
    setenv("LOCPATH", folder_.path("").c_str(), 1);
    std::setlocale(LC_NUMERIC, "comma");
    unsetenv("LOCPATH");
  }

  std::locale streams_;
  TempFolder folder_;
};

}  // namespace vantrel::testing
