#include "frame/character_keys.h"

#include <wx/event.h>
#include <wx/spinctrl.h>
#include <wx/textentry.h>
#include <wx/toplevel.h>

#include "frame/commands.h"
#include "frame/tools_menu.h"

namespace vantrel {
namespace {

// The key code is that of the key alone: '=' where Shift makes a plus of it.
int CharacterOf(const wxKeyEvent& event) {
  switch (event.GetKeyCode()) {
    case WXK_NUMPAD_ADD:
      return '+';
    case WXK_NUMPAD_SUBTRACT:
      return '-';
    default:
      break;
  }
#ifdef __WXGTK__
  return static_cast<int>(event.GetRawKeyCode());  // for these, X names characters by their code
#else
  return event.GetUnicodeKey();
#endif
}

bool TakesCharacters(const wxWindow* focus) {
  return dynamic_cast<const wxTextEntryBase*>(focus) != nullptr ||
         dynamic_cast<const wxSpinCtrlBase*>(focus) != nullptr;
}

// Windows of their own pass the keys that they have no use for to this one.
bool OfAnotherWindow(const wxKeyEvent& event, const wxWindow& canvas) {
  auto* source = dynamic_cast<wxWindow*>(event.GetEventObject());
  return source &&
         wxGetTopLevelParent(source) != wxGetTopLevelParent(const_cast<wxWindow*>(&canvas));
}

}  // namespace

int CharacterCommandFor(const wxKeyEvent& event, const wxWindow* focus, const wxWindow& canvas) {
  if (event.ControlDown() || event.AltDown() || event.MetaDown()) return wxID_NONE;
  if (focus == &canvas || TakesCharacters(focus) || OfAnotherWindow(event, canvas))
    return wxID_NONE;
  switch (CharacterOf(event)) {
    case '+':
      return kCmdZoomIn;
    case '-':
      return kCmdZoomOut;
    case '[':
      return kCmdTurnLeft;
    case ']':
      return kCmdTurnRight;
    case '{':
      return kCmdTurnLeftFine;
    case '}':
      return kCmdTurnRightFine;
    default:
      return wxID_NONE;
  }
}

}  // namespace vantrel
