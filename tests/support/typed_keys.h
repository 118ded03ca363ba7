// Characters typed into a control, as the toolkit tells them.
#pragma once

#include <wx/event.h>
#include <wx/spinctrl.h>

#include "app/services/number_entry.h"

namespace vantrel {

inline void TypeCharacter(wxWindow& control, char character) {
  for (const auto& type : {wxEVT_KEY_DOWN, wxEVT_CHAR}) {
    wxKeyEvent event(type);
    event.SetEventObject(&control);
    event.m_keyCode = character;
    event.m_uniChar = character;
    control.HandleWindowEvent(event);
  }
}

// Whether a comma typed over all that stands there becomes a point.
inline bool TakesDecimalComma(wxSpinCtrlDouble& spin) {
  spin.SetSelection(-1, -1);
  TypeCharacter(spin, ',');
  return spin.GetTextValue() == ".";
}

// Whether a comma or a point is told to be none of a whole number.
inline bool RefusesFractions(wxSpinCtrl& spin) {
  const wxString before = spin.GetTextValue();
  for (const char separator : {',', '.'}) {
    ClearRefusedEntry(spin);
    TypeCharacter(spin, separator);
    if (!IsMarkedRefused(spin) || spin.GetTextValue() != before) return false;
  }
  return true;
}

}  // namespace vantrel
