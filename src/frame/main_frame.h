// The main window: owner of the document and its title, home of the three panels, and the place
// where every command of the menus and the toolbar arrives.
#pragma once

#include <wx/cmndata.h>
#include <wx/frame.h>
#include <wx/weakref.h>

#include <memory>
#include <set>
#include <string>

#include "app/services/program_folders.h"
#include "doc/layout.h"
#include "print/pages/print_options.h"
#include "workspace/workspace.h"

namespace vantrel {

class CanvasPanel;
class PalettePanel;
class PropertiesPanel;
class SidePanes;
class View3DFrame;

class MainFrame : public wxFrame, public Workspace {
 public:
  explicit MainFrame(const ProgramFolders& folders);
  ~MainFrame() override;
  MainFrame(const MainFrame&) = delete;
  MainFrame& operator=(const MainFrame&) = delete;

  // What panels ask for and report.
  vantrel::Layout& layout() override { return layout_; }
  const vantrel::Layout& plan() const { return layout_; }
  void markDirty() override;
  void selectionChanged() override;
  void refreshViews() override;
  void noteCanvasClick(Vec2 world) override;
  void setStatus(StatusField field, const std::string& text) override;
  std::string status(StatusField field) const override;
  void clickToolEnded(std::int32_t toolMode) override;
  void placeHelix(std::string_view kitId, const Pose& pose) override;

  PalettePanel& palette() { return *palette_; }
  CanvasPanel& canvas() { return *canvas_; }
  PropertiesPanel& properties() { return *properties_; }
  // The open 3D window, null when there is none.
  View3DFrame* view3D() { return view3D_; }

  const ProgramFolders& folders() const { return folders_; }
  const std::string& currentPath() const { return currentPath_; }
  const std::string& layoutName() const { return layoutName_; }
  bool dirty() const { return dirty_; }
  const wxPrintData& printData() const { return printData_; }
  const wxPageSetupDialogData& pageSetupData() const { return pageSetupData_; }
  const PrintOptions& printOptions() const { return printOptions_; }

  // The layout's name as the title shows it: layoutName or the file's name, or an empty text.
  std::string shownName() const;
  void UpdateTitle();

  // Writes the layout, asking for a name when it has no file or when told to. True when written.
  bool SaveLayout(bool askName);
  // The one way to load a file into the frame. Reports a file that can't be opened; lets the
  // exception of a malformed one pass.
  void LoadIntoFrame(const std::string& path);
  // Asks what to do with unsaved changes; false when the user would rather stay.
  bool ConfirmDiscard();
  // There are changes on which the user has not been asked, or wanted kept: what must be rescued
  // when the program has to end.
  bool holdsUnsavedWork() const { return dirty_ && !discardAgreed_; }

  // The greeting, modal. A question that comes due meanwhile waits until it is gone.
  void showSplash();

 private:
  void buildPanels();
  wxWindow* buildProperties(wxWindow* parent);
  void limitSize();
  void divideStatusBar();
  void preparePrinting();
  void watchFirstPaint();
  void waitUntilPainted();

  void newLayout();
  void openLayout();
  void importLayout();
  void exportLayout();
  bool writeLayout();
  bool askLayoutName();
  bool keepsLayoutName(const std::string& name);
  bool keepsLevelName(const std::string& name);
  bool settleLevelNames();
  void forgetKeptNames();
  bool confirmReplace(const std::string& name);
  bool copyIntoStore(const std::string& source, const std::string& target, const std::string& name);
  void forgetFile(const std::string& path);
  void showLoadedLayout();
  void askExperienceIfDue();
  void switchTool(int id, bool on);
  void armBaseboardTool();
  void showHistoryState();
  void rebuildView3D();
  bool agreesToSheets(wxWindow* parent, const wxPrintData& data);
  void notePrinted(wxWindow* parent, bool done, const wxPrintData& data);
  void showPreview(const wxPrintData& data);

  void onNew(wxCommandEvent& event);
  void onOpen(wxCommandEvent& event);
  void onSave(wxCommandEvent& event);
  void onSaveAs(wxCommandEvent& event);
  void onImport(wxCommandEvent& event);
  void onExport(wxCommandEvent& event);
  void onPageSetup(wxCommandEvent& event);
  void onPrintPreview(wxCommandEvent& event);
  void onPrint(wxCommandEvent& event);
  void onSaveBlock(wxCommandEvent& event);
  void onExit(wxCommandEvent& event);
  void onUndo(wxCommandEvent& event);
  void onRedo(wxCommandEvent& event);
  void onDelete(wxCommandEvent& event);
  void onSelectAll(wxCommandEvent& event);
  void onZoomIn(wxCommandEvent& event);
  void onZoomOut(wxCommandEvent& event);
  void onZoomToFit(wxCommandEvent& event);
  void onShowGrid(wxCommandEvent& event);
  void onSnap(wxCommandEvent& event);
  void onUnits(wxCommandEvent& event);
  void onHideLabels(wxCommandEvent& event);
  void onTunnel(wxCommandEvent& event);
  void onTool(wxCommandEvent& event);
  void onLayoutShape(wxCommandEvent& event);
  void onLevels(wxCommandEvent& event);
  void onValidate(wxCommandEvent& event);
  void onLayoutProperties(wxCommandEvent& event);
  void on3DView(wxCommandEvent& event);
  void onHelp(wxCommandEvent& event);
  void onOptions(wxCommandEvent& event);
  void onUpdateUi(wxUpdateUIEvent& event);
  void onUpdateTunnel(wxUpdateUIEvent& event);
  void onCloseWindow(wxCloseEvent& event);
  void onCharHook(wxKeyEvent& event);

  ProgramFolders folders_;
  vantrel::Layout layout_;  // the name alone is a function of every window
  wxWindow* root_ = nullptr;
  std::unique_ptr<SidePanes> panes_;
  PalettePanel* palette_ = nullptr;
  CanvasPanel* canvas_ = nullptr;
  PropertiesPanel* properties_ = nullptr;
  View3DFrame* view3D_ = nullptr;
  std::string currentPath_;  // empty for a layout never saved
  std::string layoutName_;   // as the file holds it: a loaded name may carry entities
  // Names that need no question any more, as long as the plan is open: files give them back, or the
  // user wants them all the same.
  std::set<std::string> keptLayoutNames_;
  std::set<std::string> keptLevelNames_;
  bool dirty_ = false;
  bool discardAgreed_ = false;  // in a flow in which the user said to drop the changes
  int statusWidth_ = 0;         // at which the first field of the status bar still says something
  bool painted_ = false;        // the window has come up on the screen
  bool splashShown_ = false;
  bool experienceDue_ = false;
  wxPrintData printData_;
  wxPageSetupDialogData pageSetupData_;
  PrintOptions printOptions_;
  wxWeakRef<wxFrame> preview_;  // the open print preview

  wxDECLARE_EVENT_TABLE();
};

}  // namespace vantrel
