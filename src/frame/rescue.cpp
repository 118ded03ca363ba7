#include "frame/rescue.h"

#include <algorithm>
#include <string_view>

#include "app/services/app_log.h"
#include "dialogs/message_boxes.h"
#include "frame/main_frame.h"
#include "frame/store_folder.h"
#include "io/layout_file.h"

namespace vantrel {
namespace {

constexpr std::size_t kLongestName = 200;  // bytes; file systems take 255 with the rest
constexpr int kMostRescues = 1000;
constexpr const char* kNameless = "My Layout";

// A layout name may be one that the file system refused: that may be why there is unsaved work.
std::string SafeName(std::string name) {
  if (name.size() > kLongestName) {
    std::size_t end = kLongestName;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80) --end;
    name.resize(end);
  }
  std::ranges::replace_if(
      name,
      [](char c) {
        return static_cast<unsigned char>(c) < ' ' ||
               std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
      },
      '-');
  return name.empty() ? kNameless : name;
}

std::string WriteInto(const std::string& folder, const Layout& layout, const std::string& name) {
  for (int i = 1; i <= kMostRescues; ++i) {
    const std::string number = i == 1 ? "" : " " + std::to_string(i);
    const std::string rescueName = name + " (rescued" + number + ")";
    const std::string path = LayoutPath(folder, rescueName);
    if (FileExists(path)) continue;
    if (SaveLayoutFile(layout, path, rescueName).empty()) return path;
    RemoveFile(path);  // half a rescue on a full disk is none
    break;
  }
  return {};
}

std::string RescueText(const MainFrame& frame) {
  const std::string path = RescueLayout(frame.plan(), frame.shownName(), frame.folders());
  if (path.empty()) return "Your unsaved work could not be saved.";
  return "Your unsaved work was saved as:\n" + path;
}

}  // namespace

std::string ProblemLine(const std::exception_ptr& problem) {
  try {
    if (problem) std::rethrow_exception(problem);
  } catch (const MalformedFile& malformed) {
    return malformed.path + ", line " + std::to_string(malformed.line) + ": " + malformed.what();
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
  }
  return "Unknown problem";
}

std::string RescueLayout(const Layout& layout, const std::string& name,
                         const ProgramFolders& folders) noexcept {
  try {
    const std::string safe = SafeName(name);
    const std::string path = WriteInto(folders.store, layout, safe);
    return path.empty() ? WriteInto(LogFolder(folders.data), layout, safe) : path;
  } catch (...) {
    return {};
  }
}

void ReportFatalProblem(const std::exception_ptr& problem, const MainFrame* frame) {
  const std::string line = ProblemLine(problem);
  AppLog(line);
  std::string text = "Vantrel has met a problem and must close.\n\n" + line;
  if (frame && frame->holdsUnsavedWork()) text += "\n\n" + RescueText(*frame);
  ReportError(nullptr, "Vantrel", text);
}

}  // namespace vantrel
