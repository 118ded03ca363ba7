// The real main window with the 1,000-piece sample on the display: how long the canvas takes to
// answer each motion of a drag and its drop, without and with the 3D window open, and how many
// frames a second the 3D window shows while it is turned, buffers swapped. Run it on a display:
//   scripts/on_virtual_display.sh build/release/bin/view3d_window_bench
// An answer is counted from the moment the event was due until the canvas has painted, so what the
// 3D window keeps the program from doing is in it. The floor is the same without the 3D window.
#include <wx/app.h>
#include <wx/init.h>
#include <wx/modalhook.h>
#include <wx/utils.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "app/services/prefs.h"
#include "app/services/program_folders.h"
#include "canvas/canvas_panel.h"
#include "catalog/track_catalog.h"
#include "frame/commands.h"
#include "frame/main_frame.h"
#include "view3d/track_gl_canvas.h"
#include "view3d/view3d_frame.h"

namespace vantrel {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto kMotionEvery = std::chrono::milliseconds(16);  // what a mouse sends
constexpr int kMotions = 90;
constexpr int kDrags = 5;
constexpr int kTurns = 40;

void waitUntil(Clock::time_point due) {
  do {
    wxTheApp->Yield();
    if (Clock::now() < due) wxMilliSleep(1);
  } while (Clock::now() < due);
}

void waitFor(std::chrono::milliseconds time) {
  waitUntil(Clock::now() + time);
}

// Nobody is there to answer a question.
class SayYes : public wxModalDialogHook {
  int Enter(wxDialog*) override { return wxID_YES; }
};

class Measured {
 public:
  void add(Clock::time_point due) { times_.push_back(Milliseconds(Clock::now() - due).count()); }
  void tell(const char* what) {
    if (times_.empty()) return;
    std::sort(times_.begin(), times_.end());
    const auto at = [this](double share) {
      return times_[static_cast<std::size_t>(share * static_cast<double>(times_.size() - 1))];
    };
    std::printf("  %-28s median %7.2f  95%% %7.2f  worst %7.2f ms  (%zu)\n", what, at(0.5),
                at(0.95), at(1.0), times_.size());
  }

 private:
  std::vector<double> times_;
};

void mouse(wxWindow& window, wxEventType type, wxPoint at, bool left) {
  wxMouseEvent event(type);
  event.SetEventObject(&window);
  event.SetPosition(at);
  event.SetLeftDown(left);
  window.HandleWindowEvent(event);
}

void command(MainFrame& frame, int id) {
  wxCommandEvent event(wxEVT_MENU, id);
  event.SetEventObject(&frame);
  frame.ProcessWindowEvent(event);
}

// On the canvas, in the middle of a piece that may be dragged.
wxPoint onPiece(MainFrame& frame, std::size_t index) {
  const Piece& piece = frame.plan().pieces[index];
  const PieceDef* def = findPart(piece.cat);
  const double half = def ? def->length / 2.0 : 0.0;
  const double heading = piece.heading * 3.14159265358979323846 / 180.0;
  const DevicePoint at = frame.canvas().view().toDevice(
      {piece.x + half * std::cos(heading), piece.y + half * std::sin(heading)});
  return {at.x, at.y};
}

void measureDrags(MainFrame& frame, const char* title) {
  CanvasPanel& canvas = frame.canvas();
  Measured motions, drops, after;
  for (int drag = 0; drag < kDrags; ++drag) {
    const wxPoint start = onPiece(frame, static_cast<std::size_t>(drag) * 150 + 7);
    mouse(canvas, wxEVT_LEFT_DOWN, start, true);
    auto due = Clock::now();
    for (int i = 1; i <= kMotions; ++i) {
      due += kMotionEvery;
      waitUntil(due);
      mouse(canvas, wxEVT_MOTION, start + wxPoint(2 * i, i), true);
      canvas.Update();
      motions.add(due);
      due = std::max(due, Clock::now() - kMotionEvery);  // what came too late doesn't count twice
    }
    if (!canvas.state().selectionDrag.active) std::printf("  (drag %d moved nothing)\n", drag);
    due += kMotionEvery;
    waitUntil(due);
    mouse(canvas, wxEVT_LEFT_UP, start + wxPoint(2 * kMotions, kMotions), false);
    canvas.Update();
    drops.add(due);
    // The hand goes on to the next piece.
    for (int i = 0; i < 40; ++i) {
      due += kMotionEvery;
      waitUntil(due);
      mouse(canvas, wxEVT_MOTION, {100 + i, 100}, false);
      canvas.Update();
      after.add(due);
      due = std::max(due, Clock::now() - kMotionEvery);
    }
    command(frame, kCmdUndo);
    waitFor(std::chrono::milliseconds(600));
  }
  std::printf("%s\n", title);
  motions.tell("a motion with its paint");
  drops.tell("the drop with its paint");
  after.tell("a motion in the next 0.6 s");
}

void measureTurning(TrackGLCanvas& view) {
  Measured frames;
  view.Refresh();
  view.Update();
  const auto start = Clock::now();
  mouse(view, wxEVT_LEFT_DOWN, {200, 200}, true);
  for (int i = 1; i <= kTurns; ++i) {
    const auto due = Clock::now();
    mouse(view, wxEVT_MOTION, {200 + 6 * i, 200}, true);
    view.Update();
    frames.add(due);
  }
  const double seconds = Milliseconds(Clock::now() - start).count() / 1000.0;
  mouse(view, wxEVT_LEFT_UP, {200, 200}, false);
  const wxSize size = view.GetClientSize();
  std::printf("The 3D window turned, %d x %d: %.1f frames a second\n", size.x, size.y,
              kTurns / seconds);
  frames.tell("a frame with its swap");
}

int run() {
  SayYes yes;
  yes.Register();
  const std::string folder =
      (std::filesystem::temp_directory_path() / "vantrel_view3d_bench").string();
  std::filesystem::create_directories(folder);
  ProgramFolders folders{folder, folder + "/prefs.cfg", folder, folder, folder};
  Prefs() = {.playful = false, .asked = true};
  SavePrefs(folders.prefsPath, Prefs());
  auto* frame = new MainFrame(folders);
  frame->Show();
  frame->WarpPointer(2, 2);  // out of the way: the real pointer has no button down
  waitFor(std::chrono::milliseconds(800));
  frame->LoadIntoFrame(VANTREL_SOURCE_DIR "/samples/Exhibition Yard.vtl");
  waitFor(std::chrono::milliseconds(500));
  std::printf("%zu pieces\n", frame->plan().pieces.size());
  measureDrags(*frame, "Drags with the 3D window shut");
  command(*frame, kCmd3DView);
  waitFor(std::chrono::milliseconds(1500));
  if (frame->view3D() && frame->view3D()->canvas()) {
    measureDrags(*frame, "Drags with the 3D window open");
    measureTurning(*frame->view3D()->canvas());
  } else {
    std::printf("No OpenGL here\n");
  }
  delete frame;
  std::filesystem::remove_all(folder);
  return 0;
}

}  // namespace
}  // namespace vantrel

int main(int argc, char** argv) {
  wxApp::SetInstance(new wxApp);
  if (!wxEntryStart(argc, argv)) return 2;
  wxTheApp->CallOnInit();
  wxTheApp->SetExitOnFrameDelete(false);
  const int result = vantrel::run();
  wxTheApp->OnExit();
  wxEntryCleanup();
  return result;
}
