// The application object: it starts the program and ends it, in good order too when something went
// wrong beyond repair.
#pragma once

#include <wx/app.h>
#include <wx/weakref.h>

#include "frame/main_frame.h"

namespace vantrel {

class VantrelApp : public wxApp {
 public:
  VantrelApp();

  bool OnInit() override;
  int OnRun() override;
  int OnExit() override;
  bool OnExceptionInMainLoop() override;
  void OnUnhandledException() override;

 private:
  void endAfterProblem();

  wxWeakRef<MainFrame> frame_;
  bool ending_ = false;  // a problem is being reported
};

}  // namespace vantrel
