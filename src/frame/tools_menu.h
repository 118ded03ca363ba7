// The commands of the menu "Tools": all that works on the plan as a whole or on what is selected
// and isn't editing by hand. Each is one row of the table in tools_menu.cpp, and nothing of it
// stands anywhere else.
#pragma once

#include <span>

#include "doc/layout.h"

namespace vantrel {

class MainFrame;

enum ToolCommandId : int {
  kCmdTurnLeft = 2101,
  kCmdTurnRight = 2102,
  kCmdTurnLeftFine = 2103,
  kCmdTurnRightFine = 2104,
};

struct ToolCommand {
  int id = 0;
  const char* label = "";  // with the shortcut behind a tab
  void (*run)(MainFrame& frame) = nullptr;
  // Whether the plan lets it be chosen; null for always.
  bool (*allowed)(const Layout& plan) = nullptr;
  bool separatorAfter = false;
};

// Every entry of the menu, in the order in which they stand.
std::span<const ToolCommand> ToolCommands();

// Makes the frame run the commands, and enable them as far as its plan lets them.
void BindToolCommands(MainFrame& frame);

}  // namespace vantrel
