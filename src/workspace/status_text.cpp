#include "workspace/status_text.h"

#include "doc/format_length.h"

namespace vantrel {

std::string ReadyText(const Layout& layout) {
  if (layout.gradeRuns.empty()) return "Ready";
  std::string text(kGradeMark);
  for (const GradeRun& run : layout.gradeRuns) text += " " + FormatFixed(run.deg, 1) + " deg";
  return text + "  (right-click piece to stop)";
}

std::string PiecesText(std::size_t count) {
  return "Pieces: " + std::to_string(count);
}

}  // namespace vantrel
