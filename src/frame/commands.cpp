#include "frame/commands.h"

#include <algorithm>

namespace vantrel {
namespace {

using enum CommandPlace;
using enum CommandKind;

// clang-format off
constexpr Command kCommands[] = {
    {.id = kCmdNew, .place = file, .label = "&New Layout\tCtrl+N"},
    {.id = kCmdOpen, .place = file, .label = "&Open Layout...\tCtrl+O", .separatorAfter = true},
    {.id = kCmdSave, .place = file, .label = "&Save\tCtrl+S"},
    {.id = kCmdSaveAs, .place = file, .label = "Save &As...\tCtrl+Shift+S", .separatorAfter = true},
    {.id = kCmdImport, .place = file, .label = "&Import Layout..."},
    {.id = kCmdExport, .place = file, .label = "&Export Layout...", .separatorAfter = true},
    {.id = kCmdClose, .place = file, .label = "&Close Layout\tCtrl+W", .separatorAfter = true},
    {.id = kCmdPageSetup, .place = file, .label = "Page Set&up..."},
    {.id = kCmdPrintPreview, .place = file, .label = "Print Pre&view..."},
    {.id = kCmdPrint, .place = file, .label = "&Print...\tCtrl+P", .separatorAfter = true},
    {.id = kCmdSaveBlock, .place = file, .label = "Save as &Library Block...",
     .separatorAfter = true},
    {.id = kCmdExit, .place = file, .label = "E&xit"},

    {.id = kCmdUndo, .place = edit, .label = "&Undo\tCtrl+Z"},
    {.id = kCmdRedo, .place = edit, .label = "&Redo\tCtrl+Y", .separatorAfter = true},
    {.id = kCmdDelete, .place = edit, .label = "&Delete\tDel"},
    {.id = kCmdSelectAll, .place = edit, .label = "Select &All\tCtrl+A"},

    {.id = kCmdZoomIn, .place = view, .label = "Zoom &In\t+"},
    {.id = kCmdZoomOut, .place = view, .label = "Zoom &Out\t-"},
    {.id = kCmdZoomToFit, .place = view, .label = "Zoom to &Fit\tCtrl+0", .separatorAfter = true},
    {.id = kCmdShowGrid, .place = view, .label = "Show &Grid\tCtrl+G", .kind = check,
     .checked = true},
    {.id = kCmdSnap, .place = view, .label = "&Snap\tCtrl+Shift+G", .kind = check, .checked = true},

    {.id = kCmdMillimetres, .place = units, .label = "Millimetres (mm)", .kind = radio,
     .checked = true},
    {.id = kCmdCentimetres, .place = units, .label = "Centimetres (cm)", .kind = radio},
    {.id = kCmdInches, .place = units, .label = "Inches (in)", .kind = radio},

    {.id = kCmdLayoutShape, .place = layout, .label = "Layout &Shape..."},

    {.id = kCmdHelp, .place = help, .label = "&Help\tF1", .separatorAfter = true},
    {.id = kCmdOptions, .place = help, .label = "&Options..."},

    {.id = kCmdUndo, .place = toolbar, .label = "Undo"},
    {.id = kCmdRedo, .place = toolbar, .label = "Redo", .separatorAfter = true},
    {.id = kCmdLevels, .place = toolbar, .label = "Levels",
     .tooltip = "Manage layout levels (decks): height, color, and shape", .separatorAfter = true},
    {.id = kCmd3DView, .place = toolbar, .label = "3D View", .separatorAfter = true},
    {.id = kCmdZoomToFit, .place = toolbar, .label = "Fit", .separatorAfter = true},
    {.id = kCmdHideLabels, .place = toolbar, .label = "Hide Labels", .kind = check,
     .tooltip = "Toggle track labels and join dots", .separatorAfter = true},
    {.id = kCmdTunnel, .place = toolbar, .label = "Tunnel",
     .tooltip =
         "Place tunnel portals on the selected chain (or remove if already in a tunnel)",
     .startsEnabled = false},
    {.id = kCmdMeasure, .place = toolbar, .label = "Measure", .kind = check,
     .tooltip =
         "Measuring tape: click two points on the canvas to lay down a length annotation"},
    {.id = kCmdPolygon, .place = toolbar, .label = "Polygon", .kind = check,
     .tooltip = "Draw a free-form polygon (access hatch, river, mountain, etc.)",
     .separatorAfter = true},
};
// clang-format on

bool AnythingSelected(const Layout& plan) {
  return std::ranges::any_of(plan.pieces, &Piece::sel) ||
         std::ranges::any_of(plan.scenery, &SceneryItem::sel);
}

}  // namespace

std::span<const Command> Commands() {
  return kCommands;
}

const char* PlaceLabel(CommandPlace place) {
  switch (place) {
    case file:
      return "&File";
    case edit:
      return "&Edit";
    case view:
      return "&View";
    case units:
      return "Units of Measure";
    case layout:
      return "&Layout";
    case help:
      return "&Help";
    case toolbar:
      break;
  }
  return "";
}

bool IsCommandAvailable(int id) {
  return std::ranges::none_of(kCommands,
                              [id](const Command& c) { return c.id == id && !c.available; });
}

bool DocumentAllows(int id, const Layout& plan) {
  switch (id) {
    case kCmdUndo:
      return !plan.undoHistory.empty();
    case kCmdRedo:
      return !plan.redoHistory.empty();
    case kCmdDelete:
      return AnythingSelected(plan);
    default:
      return true;
  }
}

}  // namespace vantrel
