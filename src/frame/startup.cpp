#include "frame/startup.h"

#include <exception>
#include <string>

#include "app/services/app_log.h"
#include "app/services/prefs.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "frame/main_frame.h"
#include "properties/properties_panel.h"

namespace vantrel {
namespace {

MainFrame* TryToMake(const ProgramFolders& folders, const MakeMainFrame& make) {
  try {
    return make ? make(folders) : new MainFrame(folders);
  } catch (const std::exception& error) {
    AppLog(std::string("EXCEPTION: ") + error.what());
  } catch (...) {
    AppLog("UNKNOWN EXCEPTION in MainFrame");
  }
  return nullptr;
}

}  // namespace

MainFrame* StartUp(const ProgramFolders& folders, const MakeMainFrame& make) {
  OpenAppLog(folders.data);
  AppLog("=== Vantrel starting ===");
  AppLog("Built-in catalog loaded - " + std::to_string(catalog().pieceCount()) + " pieces");
  AppLog("Creating MainFrame...");
  MainFrame* frame = TryToMake(folders, make);
  if (!frame) return nullptr;
  AppLog("MainFrame created OK");
  frame->Show(true);
  AppLog("Show OK");
  EnsureDefaultLevel(frame->layout());
  LoadPrefs(folders.prefsPath, Prefs());
  if (Prefs().playful) frame->showSplash();
  frame->properties().RefreshTally();
  return frame;
}

}  // namespace vantrel
