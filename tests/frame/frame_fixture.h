// A main frame in folders of its own, with the experience question already answered for business.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/debug.h>
#include <wx/dirdlg.h>
#include <wx/listbox.h>
#include <wx/log.h>
#include <wx/toolbar.h>
#include <wx/utils.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "app/services/prefs.h"
#include "canvas/canvas_panel.h"
#include "frame/commands.h"
#include "frame/main_frame.h"
#include "tests/support/modal_script.h"
#include "tests/support/temp_folder.h"
#include "tests/support/waiting.h"

namespace vantrel {

inline void FailOnAssert(const wxString& file, int line, const wxString&, const wxString& condition,
                         const wxString& message) {
  ADD_FAILURE() << "toolkit assertion at " << file << ":" << line << ": " << condition << " "
                << message;
}

class FrameTest : public testing::Test {
 protected:
  FrameTest() {
    previousHandler_ = wxSetAssertHandler(FailOnAssert);
    wxSetEnv("GSETTINGS_BACKEND", "memory");  // the user's own desktop settings stay as they are
    wxLog::SetLogLevel(wxLOG_Warning);        // the splash registers the image handlers each time
    folders_.store = temp_.at("store");
    folders_.prefsPath = temp_.at("store/prefs.cfg");
    folders_.data = temp_.at("data");
    folders_.downloads = temp_.at("downloads");
    folders_.home = temp_.at("home");
    for (const std::string& folder : {folders_.store, folders_.downloads, folders_.home})
      std::filesystem::create_directory(folder);
    Prefs() = {};
    WriteFileText(folders_.prefsPath, "playful=0\nasked=1\n");
  }

  ~FrameTest() override {
    delete frame_;
    wxTheApp->ProcessPendingEvents();
    Prefs() = {};
    wxSetAssertHandler(previousHandler_);
  }

  // Made when it is first asked for.
  MainFrame& frame() {
    if (!frame_) frame_ = new MainFrame(folders_);
    return *frame_;
  }
  Layout& plan() { return frame().layout(); }

  // As if the menu entry or tool had been chosen.
  void command(int id, bool checked = false) {
    wxCommandEvent event(wxEVT_MENU, id);
    event.SetEventObject(&frame());
    event.SetInt(checked ? 1 : 0);
    frame().ProcessWindowEvent(event);
  }

  // Shows the frame and waits until it is on the screen, which is up to the window manager: before
  // that a window can't take the mouse.
  void showFrame() {
    frame().Show();
    WaitForPaint(frame().canvas());
    WaitUntilSettled(frame().canvas());
  }

  // Waits until the status bar is painted without the canvas, twice: by itself the canvas is not
  // painted any more.
  void waitForRest() {
    WaitUntilSettled(frame().canvas());
    PaintCount paints(frame().canvas());
    EXPECT_TRUE(WaitUntil([&] {
      WaitForPaint(*frame().GetStatusBar());
      paints.reset();
      WaitForPaint(*frame().GetStatusBar());
      return paints.count() == 0;
    })) << "the canvas is painted again and again";
  }

  // A left press on the canvas and a motion with the button down; no release. The frame must be on
  // the screen.
  void dragOnCanvas(wxPoint from, wxPoint to) {
    mouseOnCanvas(wxEVT_LEFT_DOWN, from, true);
    mouseOnCanvas(wxEVT_MOTION, to, true);
  }
  void mouseOnCanvas(wxEventType type, wxPoint at, bool left) {
    CanvasPanel& canvas = frame().canvas();
    wxMouseEvent event(type);
    event.SetEventObject(&canvas);
    event.SetPosition(at);
    event.SetLeftDown(left);
    canvas.HandleWindowEvent(event);
  }

  bool isToolDown(int id) { return frame().GetToolBar()->GetToolState(id); }
  // As a click on the tool of the measuring tape or of the polygon.
  void armTool(int id) {
    frame().GetToolBar()->ToggleTool(id, true);
    command(id, true);
  }
  // Nothing hangs at the pointer, no draft is on show, no tool is armed.
  void expectNothingUnderWay() {
    const CanvasState& state = frame().canvas().state();
    EXPECT_FALSE(state.paletteDrag.active || state.sceneryDrag.active);
    EXPECT_FALSE(state.helixPlacement.active);
    EXPECT_FALSE(state.measureDraft.active || state.polygonDraft.active);
    EXPECT_EQ(plan().toolMode, kNoTool);
    EXPECT_FALSE(isToolDown(2013) || isToolDown(2014));
    EXPECT_FALSE(frame().canvas().HasCapture());
  }

  Piece& addPiece(const std::string& part = "24188") {
    Piece piece;
    piece.id = plan().nextId++;
    piece.cat = part;
    plan().pieces.push_back(piece);
    return plan().pieces.back();
  }

  std::string inStore(const std::string& fileName) const { return folders_.store + "/" + fileName; }
  std::string title() { return frame().GetTitle().utf8_string(); }
  std::string statusText(StatusField field) { return frame().status(field); }

  // Makes the store a folder that nobody, root included, can write into: its path runs through a
  // regular file.
  void makeStoreUnwritable() {
    WriteFileText(temp_.at("a file"), "");
    folders_.store = temp_.at("a file/store");
    folders_.prefsPath = folders_.store + "/prefs.cfg";
  }

  TempFolder temp_;
  ProgramFolders folders_;
  MainFrame* frame_ = nullptr;

 private:
  wxAssertHandler_t previousHandler_ = nullptr;
};

// Selects a row as a click does.
inline void ClickRow(wxListBox& list, int row) {
  list.SetSelection(row);
  wxCommandEvent event(wxEVT_LISTBOX, list.GetId());
  event.SetEventObject(&list);
  event.SetInt(row);
  list.ProcessWindowEvent(event);
}

inline void DoubleClickRow(wxListBox& list, int row) {
  ClickRow(list, row);
  wxCommandEvent event(wxEVT_LISTBOX_DCLICK, list.GetId());
  event.SetEventObject(&list);
  event.SetInt(row);
  list.ProcessWindowEvent(event);
}

inline void ClickRow(wxDialog& dialog, int row) {
  wxListBox* list = FindControl<wxListBox>(dialog);
  ASSERT_NE(list, nullptr);
  ClickRow(*list, row);
}

// What the folder dialog would give if it were accepted now, asked of the platform: the toolkit's
// GetPath() knows it only afterwards.
inline std::string FolderShownIn(const wxDirDialog& chooser) {
  using GetFileName = char* (*)(void*);
  const auto getFileName =
      reinterpret_cast<GetFileName>(dlsym(RTLD_DEFAULT, "gtk_file_chooser_get_filename"));
  if (getFileName == nullptr) return {};
  const std::unique_ptr<char, decltype(&std::free)> name(getFileName(chooser.GetHandle()),
                                                         &std::free);
  return name ? name.get() : "";
}

// Chooses a folder in the platform's own folder dialog, which has to be on the screen for that.
inline ModalScript::Action ChooseFolder(const std::string& question, const std::string& folder) {
  return [=](wxDialog& dialog) {
    auto* chooser = dynamic_cast<wxDirDialog*>(&dialog);
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(chooser->GetMessage(), wxString(question));
    chooser->SetPath(folder);
    EXPECT_TRUE(WaitUntil([&] { return FolderShownIn(*chooser) == folder; }));
    chooser->GTKOnAccept();
  };
}

// The text of a small layout file with one straight.
inline std::string LayoutText(const std::string& name, const std::string& part = "24188") {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<layout name=\"" + name +
         "\" version=\"1\" units=\"0\">\n  <pieces>\n    <piece id=\"1\" cat=\"" + part +
         "\" x=\"100.0000\" y=\"50.0000\" heading=\"0.0000\" z=\"0.0000\" grade=\"0.0000\" "
         "level=\"1\" sel=\"0\">\n    </piece>\n  </pieces>\n</layout>\n";
}

}  // namespace vantrel
