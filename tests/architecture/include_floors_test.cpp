// The house rule: a file includes only files on lower floors, or of its own folder. The floors are
// drawn in docs/architecture.md.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Include {
  std::string from;  // path below src/
  std::string to;
};

const std::map<std::string, int>& Floors() {
  static const std::map<std::string, int> floors = {{"doc", 1},
                                                    {"catalog", 2},
                                                    {"io", 2},
                                                    {"canvas/operations", 3},
                                                    {"shopping", 3},
                                                    {"view3d/scene", 3},
                                                    {"print/pages", 3},
                                                    {"render2d", 3},
                                                    {"app/services", 2},
                                                    {"inspection", 4},
                                                    {"workspace", 4},
                                                    {"canvas/gestures", 5},
                                                    {"canvas", 6},
                                                    {"palette", 6},
                                                    {"properties", 6},
                                                    {"dialogs", 6},
                                                    {"print", 6},
                                                    {"view3d", 6},
                                                    {"frame", 7},
                                                    {"app", 8}};
  return floors;
}

std::string FolderOf(const std::string& path) {
  return fs::path(path).parent_path().generic_string();
}

// What is wrong with one include, or an empty text. Folders on one floor don't know each other.
std::string Complaint(const Include& include) {
  const std::string from = FolderOf(include.from);
  const std::string to = FolderOf(include.to);
  if (!Floors().contains(from)) return include.from + " lies in a folder without a floor";
  if (!Floors().contains(to))
    return include.from + " includes " + include.to + ", which has no floor";
  if (from == to || Floors().at(to) < Floors().at(from)) return {};
  return include.from + " looks up or sideways at " + include.to;
}

bool LooksLikeProjectFile(const std::string& name) {
  return name.find('/') != std::string::npos && !name.starts_with("wx/") &&
         !name.starts_with("GL/") && !name.starts_with("OpenGL/") && !name.starts_with("sys/");
}

// The file that an include line names, or an empty text for any other line.
std::string IncludedFile(const std::string& line) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == std::string::npos || line[hash] != '#') return {};
  const std::size_t word = line.find_first_not_of(" \t", hash + 1);
  if (word == std::string::npos || line.compare(word, 7, "include") != 0) return {};
  const std::size_t open = line.find_first_of("\"<", word);
  if (open == std::string::npos) return {};
  const std::size_t close = line.find_first_of("\">", open + 1);
  return close == std::string::npos ? std::string() : line.substr(open + 1, close - open - 1);
}

std::vector<Include> ReadIncludes() {
  std::vector<Include> includes;
  const fs::path src = fs::path(VANTREL_SOURCE_DIR) / "src";
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(src)) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ifstream file(entry.path());
    std::string line;
    while (std::getline(file, line)) {
      const std::string included = IncludedFile(line);
      if (!included.empty())
        includes.push_back({fs::relative(entry.path(), src).generic_string(), included});
    }
  }
  return includes;
}

TEST(Floors, EveryIncludePointsDown) {
  const std::vector<Include> includes = ReadIncludes();
  ASSERT_GT(includes.size(), 50u) << "the source folder was not found";
  for (const Include& include : includes) {
    if (!LooksLikeProjectFile(include.to)) continue;
    EXPECT_EQ(Complaint(include), "");
  }
}

TEST(Floors, TheLowFloorsNeverSeeTheToolkit) {
  const std::set<std::string> windowless = {
      "doc", "catalog", "io", "canvas/operations", "inspection", "print/pages", "shopping", "view3d/scene"};
  for (const Include& include : ReadIncludes()) {
    if (!windowless.contains(FolderOf(include.from))) continue;
    EXPECT_FALSE(include.to.starts_with("wx/")) << include.from << " includes " << include.to;
  }
}

TEST(Floors, NoTwoFilesIncludeEachOther) {
  std::map<std::string, std::set<std::string>> graph;
  for (const Include& include : ReadIncludes()) graph[include.from].insert(include.to);
  std::set<std::string> done;
  std::vector<std::string> path;
  std::function<void(const std::string&)> visit = [&](const std::string& file) {
    ASSERT_EQ(std::count(path.begin(), path.end(), file), 0) << "a circle through " << file;
    if (done.contains(file) || !graph.contains(file)) return;
    path.push_back(file);
    for (const std::string& next : graph.at(file)) visit(next);
    path.pop_back();
    done.insert(file);
  };
  for (const auto& [file, targets] : graph) visit(file);
}

TEST(Floors, AnIncludeLineIsReadInEveryWayOfWritingIt) {
  EXPECT_EQ(IncludedFile("#include \"doc/layout.h\""), "doc/layout.h");
  EXPECT_EQ(IncludedFile("  #  include <wx/dc.h>  // why"), "wx/dc.h");
  EXPECT_EQ(IncludedFile("// #include \"doc/layout.h\""), "");
  EXPECT_EQ(IncludedFile("#define X \"doc/layout.h\""), "");
}

TEST(Floors, TheRuleTellsAnUpwardIncludeFromADownwardOne) {
  EXPECT_NE(Complaint({"doc/layout.h", "catalog/piece_def.h"}), "");
  EXPECT_NE(Complaint({"palette/palette_panel.h", "canvas/canvas_panel.h"}), "");
  EXPECT_NE(Complaint({"canvas/gestures/pan.cpp", "canvas/canvas_panel.h"}), "");
  EXPECT_NE(Complaint({"somewhere/new.h", "doc/layout.h"}), "");
  EXPECT_EQ(Complaint({"frame/main_frame.h", "canvas/canvas_panel.h"}), "");
  EXPECT_EQ(Complaint({"doc/undo.cpp", "doc/layout_ops.h"}), "");
}

}  // namespace
