// What a host's CI runs.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace vantrel {
namespace {

TEST(Workflow, DoesNoMoreThanCallTheTestScriptOnDebian12) {
  std::ifstream file(VANTREL_SOURCE_DIR "/.github/workflows/ci.yml");
  ASSERT_TRUE(file.is_open());
  std::vector<std::string> runs;
  bool onDebian = false;
  for (std::string line; std::getline(file, line);) {
    const std::size_t run = line.find("run: ");
    if (run != std::string::npos) runs.push_back(line.substr(run + 5));
    onDebian = onDebian || line == "    container: debian:12";
  }
  EXPECT_EQ(runs, std::vector<std::string>{"./test.sh"});
  EXPECT_TRUE(onDebian);
}

}  // namespace
}  // namespace vantrel
