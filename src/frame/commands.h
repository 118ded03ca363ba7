// The program's commands as data: menus and toolbar are built from this one table.
#pragma once

#include <span>

#include "doc/layout.h"

namespace vantrel {

// The numbers are the program's own and stay as they are.
enum CommandId : int {
  kCmdImport = 1900,
  kCmdExport = 1901,
  kCmd3DView = 2000,
  kCmdSaveBlock = 2001,
  kCmdUndo = 2002,
  kCmdRedo = 2003,
  kCmdDelete = 2004,
  kCmdSelectAll = 2005,
  kCmdZoomIn = 2006,
  kCmdZoomOut = 2007,
  kCmdZoomToFit = 2008,
  kCmdShowGrid = 2009,
  kCmdSnap = 2010,
  kCmdHideLabels = 2011,
  kCmdTunnel = 2012,
  kCmdMeasure = 2013,
  kCmdPolygon = 2014,
  kCmdLayoutShape = 2015,
  kCmdMillimetres = 2016,
  kCmdCentimetres = 2017,
  kCmdInches = 2018,
  kCmdLevels = 2019,
  kCmdValidate = 2020,
  kCmdLayoutProperties = 2021,
  kCmdHelp = 2022,
  kCmdOptions = 2023,
  kCmdOpen = 5000,
  kCmdClose = 5001,
  kCmdNew = 5002,
  kCmdSave = 5003,
  kCmdSaveAs = 5004,
  kCmdExit = 5006,
  kCmdPrint = 5010,
  kCmdPageSetup = 5012,
  kCmdPrintPreview = 5013
};

// Where a command stands. The menus come in this order.
enum class CommandPlace { file, edit, view, units, layout, help, toolbar };

enum class CommandKind { normal, check, radio };

struct Command {
  int id = 0;
  CommandPlace place = CommandPlace::file;
  const char* label = "";  // with the accelerator behind a tab
  CommandKind kind = CommandKind::normal;
  bool checked = false;  // at the start
  const char* tooltip = "";
  bool separatorAfter = false;
  bool startsEnabled = true;
  // What it does is built. Otherwise the command stands at its place, disabled.
  bool available = true;
};

// Every entry of menus and toolbar, in the order in which they stand.
std::span<const Command> Commands();

// The menu's own label; "" for the toolbar.
const char* PlaceLabel(CommandPlace place);

// False for a command that stands at its place but can't be chosen yet.
bool IsCommandAvailable(int id);

// Whether the document lets a command be chosen: something to undo, to redo, to delete. True for
// commands without such a rule. The tunnel tool's label follows the document too, so the frame asks
// for its plan itself.
bool DocumentAllows(int id, const Layout& layout);

}  // namespace vantrel
