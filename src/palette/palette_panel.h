// The left panel of the main window: everything that can be put on the canvas.
#pragma once

#include <wx/panel.h>

#include <cstdint>
#include <string>
#include <vector>

#include "palette/scenery_lists.h"
#include "palette/track_icon_grid.h"
#include "workspace/workspace.h"

class wxChoice;
class wxListBox;
class wxMenu;
class wxNotebook;

namespace vantrel {

class PiecePreviewPopup;

// Ids of the panel's controls.
inline constexpr int kSystemChooserId = 3000;
inline constexpr int kLibraryListId = 3002;
inline constexpr int kSceneryListId = 3003;
inline constexpr int kSignalsListId = 3004;

// The entry of the library list's context menu.
inline constexpr int kDeleteBlockId = 6001;

class PalettePanel : public wxPanel, private TrackIconGridListener {
 public:
  // `libraryRoot` is the folder of the library folders, UTF-8.
  PalettePanel(wxWindow* parent, Workspace& workspace, std::string libraryRoot);

  // Where parts and scenery go. Until then, choosing one does nothing. The canvas must live as long
  // as the panel receives events.
  void connectCanvas(PlacementTarget& canvas) { canvas_ = &canvas; }

  // The width at which the tabs of all pages are in view, in pixels.
  int widthOfTabs() const;
  // The width at which the arrows beside the tabs and any one of them are in view, in pixels.
  int smallestWidth() const;

  // Fills every page for the chosen system and brings the "Scenery" page back if it was removed,
  // whichever system that is.
  void RefreshAll();

  // Chooses the system that a layout is made of, after the layout was loaded.
  void SelectSystemFor(const vantrel::Layout& layout);

  // Lists the saved blocks of the chosen system. A folder that doesn't exist is an empty list.
  void RefreshLibrary();

  // Where the blocks of the chosen system are. It need not exist.
  std::string libraryFolder() const;

  // The position of the chosen system in paletteSystems().
  std::int32_t systemIndex() const;

 protected:
  // Pops the menu up over the library list. Returns the id of the entry that was chosen, or
  // wxID_NONE.
  virtual int chooseFrom(wxMenu& menu);

 private:
  // A list box with a key for each of its rows, empty for a heading.
  struct KeyedList {
    wxListBox* box = nullptr;
    std::vector<std::string> keys;
  };

  void build();
  void bindList(wxListBox* box);
  void bindLibrary();

  void showSystem();
  void fillGrid();
  void fillList(KeyedList& list, const std::vector<SceneryListRow>& rows);
  void fillSignals();
  void setSceneryPageShown(bool shown);
  std::string currentListKey() const;
  void startSceneryDrag();
  std::string libraryPath(int row) const;
  void placeSelectedBlock();
  void offerToDelete(wxPoint at);
  void deleteBlock(const std::string& path);
  void hidePopup();

  void rowActivated(const std::string& key) override;
  void rowDragged(const std::string& key) override;
  void rowPressed() override;
  void rowHovered(int row) override;

  Workspace& workspace_;
  PlacementTarget* canvas_ = nullptr;
  wxChoice* chooser_ = nullptr;
  wxNotebook* notebook_ = nullptr;
  TrackIconGrid* grid_ = nullptr;
  wxListBox* library_ = nullptr;
  std::string libraryRoot_;
  std::vector<std::string> libraryPaths_;  // of the library's rows
  KeyedList scenery_;
  KeyedList signals_;
  PiecePreviewPopup* popup_ = nullptr;
  bool sceneryPageShown_ = true;
  bool doubleClicked_ = false;  // the press now held has already placed something
  int hoverRow_ = -1;           // the grid row whose tooltip is set
};

}  // namespace vantrel
