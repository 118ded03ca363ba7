// Saving the selection as a library block.
#include <filesystem>
#include <string>
#include <system_error>

#include "app/services/utf8_path.h"
#include "canvas/canvas_panel.h"
#include "canvas/operations/selection.h"
#include "dialogs/ask_text.h"
#include "dialogs/message_boxes.h"
#include "frame/main_frame.h"
#include "frame/store_folder.h"
#include "io/block_file.h"
#include "palette/palette_panel.h"

namespace vantrel {
namespace {

const char* const kTitle = "Save Block";

// The library lists ".vtl" alone: a saved block shows up there once its file was given that
// extension.
const char* const kSavedExtension = ".xml";

// A name with a folder in it could lead out of the library, and to a plan that it would replace.
FileProblem WriteBlock(const Layout& layout, const std::string& folder, const std::string& name) {
  const std::string path = PathIn(folder, name) + kSavedExtension;
  if (Utf8Path(name).has_parent_path())
    return {"Cannot open file: " + path, "The name of a block can't name a folder."};
  return WriteBlockFile(layout, path, name);
}

}  // namespace

void MainFrame::onSaveBlock(wxCommandEvent&) {
  canvas_->endGestures();
  if (!hasSelectedObject(layout_)) {
    Inform(nullptr, kTitle, "Select pieces first to save as library block.");
    return;
  }
  const std::string name = AskText(this, "Block name:", "Save Library Block", "").value_or("");
  if (name.empty()) return;
  const std::string folder = palette_->libraryFolder();
  // Where it can't be made, writing the file says so.
  std::error_code error;
  std::filesystem::create_directories(Utf8Path(folder), error);
  const FileProblem problem = WriteBlock(layout_, folder, name);
  if (!problem.none()) {
    ReportError(this, "Save Block Failed", problem.what, problem.why);
    return;
  }
  palette_->RefreshLibrary();
  Inform(this, kTitle, "Block saved: " + name);
}

}  // namespace vantrel
