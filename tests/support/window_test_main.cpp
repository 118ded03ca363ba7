// The entry point of tests that need the toolkit: starts a wxApp without an event loop, runs all
// tests inside it, and shuts the toolkit down again.
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

namespace {

// A failed check of the toolkit fails the test; its own way is a dialog that nobody would answer.
void FailTest(const wxString& file, int line, const wxString&, const wxString& condition,
              const wxString& message) {
  ADD_FAILURE_AT(file.utf8_str(), line) << condition.utf8_str() << ": " << message.utf8_str();
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  wxApp::SetInstance(new wxApp);
  if (!wxEntryStart(argc, argv)) return 2;
  wxTheApp->CallOnInit();
  wxTheApp->SetExitOnFrameDelete(false);
  wxSetAssertHandler(FailTest);
  // A failed system call in a test is the test's business, not a dialog's.
  delete wxLog::SetActiveTarget(new wxLogStderr);
  const int result = RUN_ALL_TESTS();
  wxTheApp->OnExit();
  wxEntryCleanup();
  return result;
}
