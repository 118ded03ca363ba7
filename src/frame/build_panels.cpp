#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/splitter.h>

#include <algorithm>
#include <memory>

#include "app/services/frame_log.h"
#include "canvas/canvas_panel.h"
#include "frame/main_frame.h"
#include "frame/side_panes.h"
#include "frame/store_folder.h"
#include "palette/palette_panel.h"
#include "properties/properties_panel.h"

namespace vantrel {
namespace {

// Pixels. Where a pane's own contents need more, it gets more.
constexpr int kPaletteMinWidth = 150;
constexpr int kPaletteSash = 235;
constexpr int kPropertiesSash = 280;  // from the right
constexpr int kOuterMinPane = 150;
constexpr int kInnerMinPane = 200;

// Beside the program, as the store is.
const char* const kLibraryFolder = "library";

// How much of the new room the left pane takes when the window grows: the canvas gets all of it.
constexpr double kLeftStays = 0.0;
constexpr double kLeftGrows = 1.0;

wxSplitterWindow* MakeSplitter(wxWindow* parent, wxSize size, double gravity) {
  auto* splitter = new wxSplitterWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                        wxSP_LIVE_UPDATE | wxSP_NOBORDER);
  splitter->SetSize(size);
  splitter->SetSashGravity(gravity);
  return splitter;
}

}  // namespace

void MainFrame::buildPanels() {
  FrameLog("BuildPanels: start");
  root_ = new wxPanel(this);
  FrameLog("BuildPanels: root panel created");
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  wxSplitterWindow* outer = MakeSplitter(root_, GetClientSize(), kLeftStays);
  palette_ = new PalettePanel(outer, *this, PathIn(folders_.store, kLibraryFolder));
  const int paletteMin = std::max(kPaletteMinWidth, palette_->smallestWidth());
  palette_->SetMinSize(wxSize(paletteMin, -1));
  const int paletteSash = std::max({kPaletteSash, palette_->widthOfTabs(), paletteMin});
  FrameLog("BuildPanels: palette created");
  wxSplitterWindow* inner = MakeSplitter(
      outer, outer->GetSize() - wxSize(paletteSash + outer->GetSashSize(), 0), kLeftGrows);
  FrameLog("BuildPanels: splitter created");
  canvas_ = new CanvasPanel(inner, *this);
  palette_->connectCanvas(*canvas_);
  FrameLog("BuildPanels: canvas created");
  wxWindow* right = buildProperties(inner);
  FrameLog("BuildPanels: properties created");
  const int propertiesSash =
      std::max(kPropertiesSash,
               inner->GetSashSize() + std::max(properties_->usualWidth(), right->GetMinWidth()));
  inner->SplitVertically(canvas_, right, -propertiesSash);
  inner->SetMinimumPaneSize(kInnerMinPane);
  FrameLog("BuildPanels: split done");
  outer->SplitVertically(palette_, inner, paletteSash);
  outer->SetMinimumPaneSize(kOuterMinPane);
  panes_ = std::make_unique<SidePanes>(
      *outer, *inner,
      PaneWidths{.palette = paletteSash, .properties = propertiesSash - inner->GetSashSize()});
  FrameLog("BuildPanels: adding to sizer");
  sizer->Add(outer, 1, wxEXPAND);
  FrameLog("BuildPanels: outerSplit added");
  root_->SetSizer(sizer);
  FrameLog("BuildPanels: sizer set");
  root_->Layout();
  FrameLog("BuildPanels: layout done");
  palette_->RefreshAll();
  UpdateTitle();
  FrameLog("BuildPanels: palette populated");
}

// The way to the store stands below what scrolls: in a low window it is there, too.
wxWindow* MainFrame::buildProperties(wxWindow* parent) {
  auto* pane = new wxPanel(parent);
  auto* foot = new wxPanel(pane);
  properties_ = new PropertiesPanel(pane, *this, foot);
  foot->MoveAfterInTabOrder(properties_);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(properties_, 1, wxEXPAND);
  column->Add(foot, 0, wxEXPAND);
  pane->SetSizer(column);
  pane->SetMinSize(
      wxSize(std::max({kInnerMinPane, properties_->smallestWidth(), foot->GetBestSize().x}), -1));
  return pane;
}

}  // namespace vantrel
