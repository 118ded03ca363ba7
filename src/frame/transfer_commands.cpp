// Import and Export: layouts into the store and out of it.
#include "dialogs/ask_text.h"
#include "dialogs/message_boxes.h"
#include "frame/export_dialog.h"
#include "frame/import_dialog.h"
#include "frame/main_frame.h"
#include "frame/store_folder.h"
#include "io/layout_file.h"

namespace vantrel {
namespace {

constexpr const char* kImportFailed = "Import Failed";
constexpr const char* kExportFailed = "Export Failed";

std::string CopyFailedText(const std::string& path) {
  return "Could not copy the file to:\n" + path;
}

}  // namespace

void MainFrame::onImport(wxCommandEvent&) {
  importLayout();
  discardAgreed_ = false;
}

void MainFrame::onExport(wxCommandEvent&) {
  exportLayout();
}

void MainFrame::importLayout() {
  std::string source;
  std::string name;
  {
    ImportDialog dialog(this, ExchangeFolder(folders_));
    do {
      if (dialog.ShowModal() != wxID_OK) return;
      source = dialog.sourcePath();
      name = dialog.layoutName();
    } while (!ConfirmsLayoutName(this, name));
  }
  if (source.empty() || name.empty()) return;
  const std::string target = LayoutPath(folders_.store, name);
  if (FileExists(target) && !confirmReplace(name)) return;
  if (!copyIntoStore(source, target, name)) return;
  if (!AskQuestion(this, "Import", "Imported successfully.\n\nOpen \"" + name + "\" now?")) return;
  if (!ConfirmDiscard()) return;
  LoadIntoFrame(target);
  if (currentPath_ == target) keptLayoutNames_.insert(name);  // asked about above
}

// Copies the file and writes it back in today's form under its new name.
bool MainFrame::copyIntoStore(const std::string& source, const std::string& target,
                              const std::string& name) {
  std::string oldName;
  vantrel::Layout probe;
  const std::string problem = LoadLayoutFile(probe, source, oldName);
  if (!problem.empty()) {
    ReportError(this, kImportFailed,
                "This file does not appear to be a Vantrel layout:\n\n" + problem);
    return false;
  }
  std::string why;
  if (!CopyLayoutFile(source, target, &why)) {
    ReportError(this, kImportFailed, CopyFailedText(target), why);
    return false;
  }
  vantrel::Layout copy;
  if (!LoadLayoutFile(copy, target, oldName).empty()) return true;
  const FileProblem unwritten = WriteLayoutFile(copy, target, name);
  if (!unwritten.none()) ReportError(this, kImportFailed, unwritten.what, unwritten.why);
  return unwritten.none();
}

void MainFrame::exportLayout() {
  std::vector<std::string> files = LayoutFiles(folders_.store);
  if (files.empty()) {
    Inform(this, "Export Layout", "No layouts to export. Save a layout first.");
    return;
  }
  ExportDialog dialog(this, std::move(files), ExchangeFolder(folders_), layoutName_);
  if (dialog.ShowModal() != wxID_OK) return;
  const std::string source = dialog.sourcePath();
  const std::string folder = dialog.folder();
  if (source.empty() || dialog.fileName().empty()) return;
  if (!FolderExists(folder)) {
    ReportError(this, kExportFailed, "Destination folder does not exist:\n" + folder);
    return;
  }
  const std::string fileName = ExportFileName(dialog.fileName(), BaseName(source));
  const std::string target = PathIn(folder, fileName);
  if (FileExists(target) &&
      !AskCautiously(this, "Confirm Replace",
                     "\"" + fileName + "\" already exists in that folder.\n\nReplace it?"))
    return;
  std::string why;
  if (CopyLayoutFile(source, target, &why))
    Inform(this, "Export", "Exported to:\n" + target);
  else
    ReportError(this, kExportFailed, CopyFailedText(target), why);
}

}  // namespace vantrel
