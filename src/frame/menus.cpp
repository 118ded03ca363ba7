#include "frame/menus.h"

#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/toolbar.h>

#include <utility>
#include <vector>

#include "frame/commands.h"
#include "frame/tools_menu.h"

namespace vantrel {
namespace {

wxItemKind ItemKind(CommandKind kind) {
  switch (kind) {
    case CommandKind::check:
      return wxITEM_CHECK;
    case CommandKind::radio:
      return wxITEM_RADIO;
    case CommandKind::normal:
      break;
  }
  return wxITEM_NORMAL;
}

using NumberedItems = std::vector<std::pair<wxMenuItem*, int>>;

void AddMenuItem(wxMenu& menu, const Command& command, NumberedItems& items) {
  wxMenuItem* item = menu.Append(wxID_ANY, command.label, wxEmptyString, ItemKind(command.kind));
  items.emplace_back(item, command.id);
  if (command.checked) item->Check(true);
  if (!command.available) item->Enable(false);
  if (command.separatorAfter) menu.AppendSeparator();
}

void FillMenu(wxMenu& menu, CommandPlace place, NumberedItems& items) {
  for (const Command& command : Commands())
    if (command.place == place) AddMenuItem(menu, command, items);
}

wxMenu* BuildMenu(CommandPlace place, NumberedItems& items) {
  auto* menu = new wxMenu;
  if (place == CommandPlace::layout) {
    auto* units = new wxMenu;
    FillMenu(*units, CommandPlace::units, items);
    menu->AppendSubMenu(units, PlaceLabel(CommandPlace::units));
    menu->AppendSeparator();
  }
  FillMenu(*menu, place, items);
  return menu;
}

constexpr const char* kToolsLabel = "&Tools";

wxMenu* BuildToolsMenu(NumberedItems& items) {
  auto* menu = new wxMenu;
  for (const ToolCommand& command : ToolCommands()) {
    items.emplace_back(menu->Append(wxID_ANY, command.label), command.id);
    if (command.separatorAfter) menu->AppendSeparator();
  }
  return menu;
}

}  // namespace

void BuildMenuBar(wxFrame& frame) {
  auto* bar = new wxMenuBar;
  NumberedItems items;
  for (const CommandPlace place :
       {CommandPlace::file, CommandPlace::edit, CommandPlace::view, CommandPlace::layout})
    bar->Append(BuildMenu(place, items), PlaceLabel(place));
  bar->Append(BuildToolsMenu(items), kToolsLabel);
  bar->Append(BuildMenu(CommandPlace::help, items), PlaceLabel(CommandPlace::help));
  frame.SetMenuBar(bar);
  // While an entry is appended, the toolkit gives some of our numbers a shortcut of its own when
  // the label has none: Ctrl+Q for Exit. Only the labels' shortcuts are wanted.
  for (const auto& [item, id] : items) item->SetId(id);
}

void FillToolBar(wxToolBar& bar) {
  for (const Command& command : Commands()) {
    if (command.place != CommandPlace::toolbar) continue;
    bar.AddTool(command.id, command.label, wxNullBitmap, command.tooltip, ItemKind(command.kind));
    if (!command.available || !command.startsEnabled) bar.EnableTool(command.id, false);
    if (command.separatorAfter) bar.AddSeparator();
  }
  bar.Realize();
}

}  // namespace vantrel
