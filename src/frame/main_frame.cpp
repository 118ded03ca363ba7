#include "frame/main_frame.h"

#include <wx/app.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>
#include <wx/utils.h>

#include <algorithm>

#include "app/services/frame_log.h"
#include "app/services/opening_size.h"
#include "app/services/prefs.h"
#include "app/services/program_icons.h"
#include "app/services/wx_text.h"
#include "canvas/canvas_panel.h"
#include "frame/commands.h"
#include "frame/experience_dialog.h"
#include "frame/menus.h"
#include "frame/pane_widths.h"
#include "frame/program_title.h"
#include "frame/side_panes.h"
#include "frame/splash_dialog.h"
#include "frame/store_folder.h"
#include "frame/tools_menu.h"
#include "properties/properties_panel.h"
#include "view3d/view3d_frame.h"
#include "workspace/status_text.h"

namespace vantrel {
namespace {

const wxSize kFrameSize(1400, 900);
constexpr int kStatusFields = 3;
// What the fields of the status bar have room for.
constexpr const char* kWidestPieces = "Pieces: 1000000";
constexpr const char* kWidestPosition = "-100000 mm,  -100000 mm";
constexpr const char* kShortMessage = "Piece moved";
constexpr int kSmallestLines = 20;  // of text that the panes have room for
constexpr int kPageMarginMm = 15;
constexpr int kLongestWaitMs = 1000;
constexpr int kWaitStepMs = 10;

}  // namespace

MainFrame::MainFrame(const ProgramFolders& folders)
    : wxFrame(nullptr, wxID_ANY, kProgramTitle, wxDefaultPosition, kFrameSize,
              wxDEFAULT_FRAME_STYLE),
      folders_(folders) {
  StartFrameLog(folders_.data);
  SetSize(OpeningRect(kFrameSize, wxDisplay(this).GetClientArea()).GetSize());
  SetIcons(ProgramIcons());
  FrameLog("A: wxFrame base constructed");
  BuildMenuBar(*this);
  BindToolCommands(*this);
  FrameLog("B: MenuBar done");
  FillToolBar(*CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NOICONS));
  FrameLog("C: ToolBar done");
  buildPanels();
  FrameLog("D: Panels done");
  CreateStatusBar(kStatusFields);
  divideStatusBar();
  SetStatusBarPane(-1);  // no help texts over what the fields say
  setStatus(kStatusMessage, ReadyText(layout_));
  setStatus(kStatusPieces, PiecesText(0));
  setStatus(kStatusPosition, "x: 0  y: 0 mm");
  FrameLog("E: StatusBar done");
  limitSize();
  Centre(wxBOTH);
  TellOpeningSize(*this);
  FrameLog("F: MainFrame constructor complete");
  preparePrinting();
  watchFirstPaint();
  LoadPrefs(folders_.prefsPath, Prefs());
  experienceDue_ = !Prefs().asked;
  if (experienceDue_) CallAfter(&MainFrame::askExperienceIfDue);
}

MainFrame::~MainFrame() {
  // The preview and the 3D window look at the document, and the panels hold this frame as their
  // workspace: they go while it still is one.
  delete preview_.get();
  delete view3D_;
  if (root_) root_->Destroy();
}

// The first field says whole sentences: it takes all but what the numbers beside it need.
void MainFrame::divideStatusBar() {
  const wxStatusBar& bar = *GetStatusBar();
  const int gap = bar.GetTextExtent("00").x;
  const int pieces = bar.GetTextExtent(kWidestPieces).x + gap;
  // The grip in the corner is as wide as the bar is high.
  const int position = bar.GetTextExtent(kWidestPosition).x + gap + bar.GetSize().y;
  const int widths[kStatusFields] = {-1, pieces, position};
  SetStatusWidths(kStatusFields, widths);
  statusWidth_ = pieces + position + bar.GetTextExtent(kShortMessage).x + gap;
}

// In a smaller window something could be reached no more: a pane would lie beneath another or be
// narrower than a control in it, the palette show no part, the status bar no message.
void MainFrame::limitSize() {
  const wxSize least(std::max(panes_->smallestWidth(), statusWidth_),
                     kSmallestLines * GetCharHeight());
  wxSize smallest = ClientToWindowSize(least);
  smallest.DecTo(wxDisplay(this).GetClientArea().GetSize());
  SetMinSize(smallest);
}

void MainFrame::preparePrinting() {
  printData_.SetPaperId(wxPAPER_LETTER);
  printData_.SetOrientation(wxLANDSCAPE);
  pageSetupData_ = wxPageSetupDialogData(printData_);
  pageSetupData_.SetMarginTopLeft(wxPoint(kPageMarginMm, kPageMarginMm));
  pageSetupData_.SetMarginBottomRight(wxPoint(kPageMarginMm, kPageMarginMm));
}

// Where showing a window waits for the window manager, the position asked for before can get lost
// on the way: the window comes up in the corner of the screen.
void MainFrame::watchFirstPaint() {
  canvas_->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
    event.Skip();
    if (painted_) return;
    painted_ = true;
    CallAfter(&MainFrame::limitSize);  // how wide the frame around it is shows only now
    if (GetPosition() == wxPoint(0, 0)) CallAfter([this] { Centre(wxBOTH); });
  });
}

// A modal dialog that reached the screen before its frame would come to lie behind it.
void MainFrame::waitUntilPainted() {
  for (int waited = 0; !painted_ && waited < kLongestWaitMs; waited += kWaitStepMs) {
    wxTheApp->Yield();
    wxMilliSleep(kWaitStepMs);
  }
  wxTheApp->Yield();
}

void MainFrame::markDirty() {
  dirty_ = true;
  UpdateTitle();
  properties_->RefreshTally();
  rebuildView3D();
}

void MainFrame::selectionChanged() {
  properties_->RefreshSelection();
}

void MainFrame::refreshViews() {
  canvas_->Refresh();
  rebuildView3D();
}

void MainFrame::rebuildView3D() {
  if (view3D_) view3D_->Rebuild(layout_);
}

void MainFrame::noteCanvasClick(Vec2 world) {
  properties_->SetPendingLabelPosition(world.x, world.y);
}

void MainFrame::setStatus(StatusField field, const std::string& text) {
  // The panels come before the status bar and may have something to say.
  if (GetStatusBar()) SetStatusText(ToWx(text), field);
}

std::string MainFrame::status(StatusField field) const {
  return GetStatusBar() ? ToUtf8(GetStatusBar()->GetStatusText(field)) : std::string();
}

void MainFrame::placeHelix(std::string_view kitId, const Pose& pose) {
  canvas_->placeHelix(kitId, pose);
}

std::string MainFrame::shownName() const {
  return layoutName_.empty() ? BaseName(currentPath_) : layoutName_;
}

void MainFrame::UpdateTitle() {
  std::string title = kProgramTitle;
  const std::string name = shownName();
  if (!name.empty()) title += " - " + name;
  if (dirty_) title += " *";
  SetTitle(ToWx(title));
}

void MainFrame::showSplash() {
  splashShown_ = true;
  waitUntilPainted();
  SplashDialog(this).ShowModal();
  splashShown_ = false;
  if (experienceDue_) CallAfter(&MainFrame::askExperienceIfDue);
}

void MainFrame::askExperienceIfDue() {
  // The splash has an event loop of its own, in which this call may arrive.
  if (!experienceDue_ || splashShown_) return;
  experienceDue_ = false;
  AskExperience(this, folders_.prefsPath);
}

// clang-format off
wxBEGIN_EVENT_TABLE(MainFrame, wxFrame)
  EVT_MENU(kCmdNew, MainFrame::onNew)
  EVT_MENU(kCmdClose, MainFrame::onNew)
  EVT_MENU(kCmdOpen, MainFrame::onOpen)
  EVT_MENU(kCmdSave, MainFrame::onSave)
  EVT_MENU(kCmdSaveAs, MainFrame::onSaveAs)
  EVT_MENU(kCmdImport, MainFrame::onImport)
  EVT_MENU(kCmdExport, MainFrame::onExport)
  EVT_MENU(kCmdPageSetup, MainFrame::onPageSetup)
  EVT_MENU(kCmdPrintPreview, MainFrame::onPrintPreview)
  EVT_MENU(kCmdPrint, MainFrame::onPrint)
  EVT_MENU(kCmdSaveBlock, MainFrame::onSaveBlock)
  EVT_MENU(kCmdExit, MainFrame::onExit)
  EVT_MENU(kCmdUndo, MainFrame::onUndo)
  EVT_MENU(kCmdRedo, MainFrame::onRedo)
  EVT_MENU(kCmdDelete, MainFrame::onDelete)
  EVT_MENU(kCmdSelectAll, MainFrame::onSelectAll)
  EVT_MENU(kCmdZoomIn, MainFrame::onZoomIn)
  EVT_MENU(kCmdZoomOut, MainFrame::onZoomOut)
  EVT_MENU(kCmdZoomToFit, MainFrame::onZoomToFit)
  EVT_MENU(kCmdShowGrid, MainFrame::onShowGrid)
  EVT_MENU(kCmdSnap, MainFrame::onSnap)
  EVT_MENU_RANGE(kCmdMillimetres, kCmdInches, MainFrame::onUnits)
  EVT_MENU(kCmdHideLabels, MainFrame::onHideLabels)
  EVT_MENU(kCmdTunnel, MainFrame::onTunnel)
  EVT_MENU(kCmdMeasure, MainFrame::onTool)
  EVT_MENU(kCmdPolygon, MainFrame::onTool)
  EVT_MENU(kCmdLayoutShape, MainFrame::onLayoutShape)
  EVT_MENU(kCmdLevels, MainFrame::onLevels)
  EVT_MENU(kCmdValidate, MainFrame::onValidate)
  EVT_MENU(kCmdLayoutProperties, MainFrame::onLayoutProperties)
  EVT_MENU(kCmd3DView, MainFrame::on3DView)
  EVT_MENU(kCmdHelp, MainFrame::onHelp)
  EVT_MENU(kCmdOptions, MainFrame::onOptions)
  EVT_UPDATE_UI(kCmdUndo, MainFrame::onUpdateUi)
  EVT_UPDATE_UI(kCmdRedo, MainFrame::onUpdateUi)
  EVT_UPDATE_UI(kCmdDelete, MainFrame::onUpdateUi)
  EVT_UPDATE_UI(kCmdTunnel, MainFrame::onUpdateTunnel)
  EVT_CLOSE(MainFrame::onCloseWindow)
  EVT_CHAR_HOOK(MainFrame::onCharHook)
wxEND_EVENT_TABLE()
// clang-format on

}  // namespace vantrel
