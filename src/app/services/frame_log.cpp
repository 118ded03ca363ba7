#include "app/services/frame_log.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "app/services/program_folders.h"
#include "app/services/utf8_path.h"

namespace vantrel {
namespace {

struct Trace {
  std::string folder;
  std::filesystem::path path;  // empty until the first line
};

Trace& TheTrace() {
  static Trace trace;
  return trace;
}

}  // namespace

void StartFrameLog(const std::string& folder) {
  TheTrace() = Trace{folder, {}};
}

void FrameLog(std::string_view text) {
  Trace& trace = TheTrace();
  if (trace.path.empty()) {
    trace.path = Utf8Path(LogFolder(trace.folder)) / "mainframe.log";
    std::error_code error;
    std::filesystem::remove(trace.path, error);
  }
  std::ofstream file(trace.path, std::ios::binary | std::ios::app);
  file << text << "\r\n";
}

}  // namespace vantrel
