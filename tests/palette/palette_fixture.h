// A frame with the palette in it, and stand-ins for the canvas and the document's owner that note
// what the palette asks of them.
#pragma once

#include <gtest/gtest.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/notebook.h>

#include <string>
#include <string_view>
#include <vector>

#include "palette/palette_panel.h"
#include "tests/support/temp_folder.h"
#include "workspace/workspace.h"

namespace vantrel {

// A mouse event at client pixels of a window, handled as if it came from the toolkit.
inline bool SendMouse(wxWindow& window, wxEventType type, wxPoint at, bool leftDown = false,
                      long timeMs = 0) {
  wxMouseEvent event(type);
  event.SetTimestamp(timeMs);
  event.SetEventObject(&window);
  event.SetPosition(at);
  event.SetLeftDown(leftDown);
  return window.GetEventHandler()->ProcessEvent(event);
}

class RecordingCanvas : public PlacementTarget {
 public:
  void beginPieceDrag(std::string_view part) override { note("piece drag ", part); }
  void beginSceneryDrag(std::string_view item) override { note("scenery drag ", item); }
  void beginHelixDrag(std::string_view kitId) override { note("helix drag ", kitId); }
  void placeByDoubleClick(std::string_view part) override { note("double click ", part); }
  void endGestures() override { note("end gestures", ""); }
  void zoomToFit(bool trackOnly) override { note("fit ", trackOnly ? "track" : "everything"); }

  std::vector<std::string> calls;

 private:
  void note(std::string_view what, std::string_view key) {
    calls.push_back(std::string(what) + std::string(key));
  }
};

class RecordingWorkspace : public Workspace {
 public:
  Layout& layout() override { return document; }
  void markDirty() override { changes.emplace_back("dirty"); }
  void selectionChanged() override { changes.emplace_back("selection"); }
  void refreshViews() override { changes.emplace_back("views"); }
  void noteCanvasClick(Vec2) override {}
  void setStatus(StatusField field, const std::string& text) override {
    if (field == kStatusPieces) piecesText = text;
  }
  std::string status(StatusField) const override { return {}; }
  void clickToolEnded(std::int32_t) override {}
  void placeHelix(std::string_view kitId, const Pose& pose) override {
    kits.emplace_back(kitId);
    poses.push_back(pose);
  }

  Layout document;
  std::vector<std::string> changes;  // what the palette said, in order
  std::string piecesText;
  std::vector<std::string> kits;
  std::vector<Pose> poses;
};

// The palette with its menu answered: a menu that pops up waits for the user.
class ScriptedPalette : public PalettePanel {
 public:
  using PalettePanel::PalettePanel;

  int choice = wxID_NONE;
  std::vector<std::string> menus;  // the entries of each menu, "id label"

 protected:
  int chooseFrom(wxMenu& menu) override {
    std::string entries;
    for (const wxMenuItem* item : menu.GetMenuItems())
      entries += std::to_string(item->GetId()) + " " + item->GetItemLabel().utf8_string();
    menus.push_back(entries);
    return choice;
  }
};

// Each fixture starts as the program does: the palette made, filled and joined to a canvas.
class PaletteTest : public testing::Test {
 protected:
  void SetUp() override {
    frame = new wxFrame(nullptr, wxID_ANY, "palette", wxPoint(0, 0), wxSize(235, 800));
    panel = new ScriptedPalette(frame, workspace, temp.at("library"));
    panel->SetSize(0, 0, 235, 800);
    panel->Layout();
    panel->RefreshAll();
    panel->connectCanvas(canvas);
    chooser = dynamic_cast<wxChoice*>(wxWindow::FindWindowById(3000, panel));
    for (wxWindow* child : panel->GetChildren())
      if (auto* book = dynamic_cast<wxNotebook*>(child)) notebook = book;
    ASSERT_NE(chooser, nullptr);
    ASSERT_NE(notebook, nullptr);
    grid = dynamic_cast<TrackIconGrid*>(notebook->GetPage(0));
    library = list(3002);
    scenery = list(3003);
    signals = list(3004);
    ASSERT_NE(grid, nullptr);
    ASSERT_NE(library, nullptr);
    ASSERT_NE(scenery, nullptr);
    ASSERT_NE(signals, nullptr);
  }

  void TearDown() override { delete frame; }

  wxListBox* list(int id) const {
    return dynamic_cast<wxListBox*>(wxWindow::FindWindowById(id, panel));
  }

  // As the user does it: the selection changes and the event says so.
  void choose(int index) {
    chooser->SetSelection(index);
    wxCommandEvent event(wxEVT_CHOICE, 3000);
    event.SetEventObject(chooser);
    event.SetInt(index);
    chooser->GetEventHandler()->ProcessEvent(event);
  }

  void openPage(const wxString& title) {
    for (std::size_t i = 0; i < notebook->GetPageCount(); ++i)
      if (notebook->GetPageText(i) == title) notebook->SetSelection(i);
  }

  std::vector<std::string> pageTitles() const {
    std::vector<std::string> titles;
    for (std::size_t i = 0; i < notebook->GetPageCount(); ++i)
      titles.push_back(notebook->GetPageText(i).utf8_string());
    return titles;
  }

  static std::vector<std::string> texts(const wxListBox* box) {
    std::vector<std::string> rows;
    for (unsigned i = 0; i < box->GetCount(); ++i) rows.push_back(box->GetString(i).utf8_string());
    return rows;
  }

  static void doubleClick(wxListBox* box) {
    wxCommandEvent event(wxEVT_LISTBOX_DCLICK, box->GetId());
    event.SetEventObject(box);
    event.SetInt(box->GetSelection());
    box->GetEventHandler()->ProcessEvent(event);
  }

  // A point on a grid row, for a grid that isn't scrolled; it may lie below the visible part.
  wxPoint pointOnRow(int row) const {
    const GridRow& gridRow = grid->rows()[static_cast<std::size_t>(row)];
    const int top = grid->gridLayout().rowTop[static_cast<std::size_t>(row)];
    return {gridRow.isIcon() ? grid->gridLayout().cellLeft(gridRow) + 40 : 40, top + 11};
  }

  int rowOfKey(const std::string& key) const {
    for (std::size_t i = 0; i < grid->rows().size(); ++i)
      if (grid->rows()[i].key == key) return static_cast<int>(i);
    return -1;
  }

  TempFolder temp;
  RecordingWorkspace workspace;
  RecordingCanvas canvas;
  wxFrame* frame = nullptr;
  ScriptedPalette* panel = nullptr;
  wxChoice* chooser = nullptr;
  wxNotebook* notebook = nullptr;
  TrackIconGrid* grid = nullptr;
  wxListBox* library = nullptr;
  wxListBox* scenery = nullptr;
  wxListBox* signals = nullptr;
};

}  // namespace vantrel
