#include "app/vantrel_app.h"

#include <wx/utils.h>

#include <cstdlib>
#include <exception>

#include "app/services/app_log.h"
#include "app/services/locale.h"
#include "app/services/program_folders.h"
#include "frame/rescue.h"
#include "frame/startup.h"

namespace vantrel {
namespace {

constexpr int kFailureExitCode = 1;

}  // namespace

VantrelApp::VantrelApp() {
  SetAppName("vantrel");
#ifdef __WXGTK__
  // The toolkit reaches OpenGL through X only; a Wayland desktop offers that too.
  if (!wxGetEnv("GDK_BACKEND", nullptr)) wxSetEnv("GDK_BACKEND", "x11,wayland");
#endif
}

// The inherited OnInit only reads the command line, and there is none to read.
bool VantrelApp::OnInit() {
  SettleLocale();
  frame_ = StartUp(DefaultFolders());
  return frame_ != nullptr;
}

int VantrelApp::OnRun() {
  try {
    return wxApp::OnRun();
  } catch (...) {
    // Deferred calls run outside of the toolkit's own guard. Past this point OnExit comes first,
    // and the log would be closed.
    endAfterProblem();
    return kFailureExitCode;
  }
}

int VantrelApp::OnExit() {
  AppLog("OnExit");
  CloseAppLog();
  return 0;
}

// Called inside the handler of an exception that an event handler let pass.
bool VantrelApp::OnExceptionInMainLoop() {
  endAfterProblem();
  return true;
}

// Called for an exception outside of the event loop.
void VantrelApp::OnUnhandledException() {
  endAfterProblem();
}

// Returns only when another problem is being reported already: the message box has an event loop,
// in which the same handler may fail again.
void VantrelApp::endAfterProblem() {
  if (ending_) return;
  ending_ = true;
  ReportFatalProblem(std::current_exception(), frame_.get());
  OnExit();
  // Not by way of the event loops: an exception may have torn one of the toolkit's nested loops
  // down half-way, and the outer one would then wait for ever.
  std::_Exit(kFailureExitCode);
}

}  // namespace vantrel

wxIMPLEMENT_APP(vantrel::VantrelApp);
