#include "frame/shared_shortcuts.h"

#include <wx/accel.h>
#include <wx/frame.h>
#include <wx/menu.h>

#include <functional>
#include <memory>

namespace vantrel {
namespace {

using IsMeant = std::function<bool(const wxAcceleratorEntry&)>;

wxMenuItem* ItemIn(const wxMenu& menu, const IsMeant& isMeant) {
  for (wxMenuItem* item : menu.GetMenuItems()) {
    if (item->IsSubMenu()) {
      if (wxMenuItem* found = ItemIn(*item->GetSubMenu(), isMeant)) return found;
      continue;
    }
    const std::unique_ptr<wxAcceleratorEntry> shortcut(item->GetAccel());
    if (shortcut && isMeant(*shortcut)) return item;
  }
  return nullptr;
}

// True when the menus know the key, even if its command can't be chosen just now.
bool RunFrom(wxFrame& frame, const IsMeant& isMeant) {
  const wxMenuBar* bar = frame.GetMenuBar();
  for (std::size_t i = 0; bar && i < bar->GetMenuCount(); ++i) {
    wxMenuItem* item = ItemIn(*bar->GetMenu(i), isMeant);
    if (!item) continue;
    // Entries are enabled at idle moments, and this key may come right after another.
    item->GetMenu()->UpdateUI();
    frame.ProcessCommand(item->GetId());
    return true;
  }
  return false;
}

bool IsCharacter(const wxAcceleratorEntry& shortcut) {
  return (shortcut.GetFlags() & (wxACCEL_CTRL | wxACCEL_ALT)) == 0 &&
         shortcut.GetKeyCode() > WXK_SPACE && shortcut.GetKeyCode() < WXK_DELETE;
}

// The flags of shortcuts and the modifiers of keys have the same numbers.
static_assert(int{wxACCEL_CTRL} == int{wxMOD_CONTROL} && int{wxACCEL_SHIFT} == int{wxMOD_SHIFT} &&
              int{wxACCEL_ALT} == int{wxMOD_ALT});

// Ctrl+S, Del, F1: by the key.
bool RunKey(wxFrame& frame, const wxKeyEvent& event) {
  return RunFrom(frame, [&event](const wxAcceleratorEntry& shortcut) {
    return !IsCharacter(shortcut) && shortcut.GetKeyCode() == event.GetKeyCode() &&
           shortcut.GetFlags() == event.GetModifiers();
  });
}

// '+' and its like: by what is typed, since keyboards have them in other places.
bool RunCharacter(wxFrame& frame, const wxKeyEvent& event) {
  if (event.ControlDown() || event.AltDown()) return false;
  const auto typed = static_cast<int>(event.GetUnicodeKey());
  return RunFrom(frame, [typed](const wxAcceleratorEntry& shortcut) {
    return IsCharacter(shortcut) && shortcut.GetKeyCode() == typed;
  });
}

}  // namespace

void ShareMenuShortcuts(wxFrame& frame, wxWindow& window) {
  window.Bind(wxEVT_CHAR_HOOK, [&frame](wxKeyEvent& event) {
    if (!RunKey(frame, event)) event.Skip();
  });
  for (wxWindow* part : window.GetChildren())
    part->Bind(wxEVT_CHAR, [&frame](wxKeyEvent& event) {
      if (!RunCharacter(frame, event)) event.Skip();
    });
}

}  // namespace vantrel
