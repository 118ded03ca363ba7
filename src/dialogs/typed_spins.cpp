#include "dialogs/typed_spins.h"

#include <wx/dialog.h>
#include <wx/spinctrl.h>

#include <cmath>
#include <optional>

#include "app/services/number_entry.h"
#include "app/services/wx_text.h"
#include "doc/typed_number.h"

namespace vantrel {

TypedSpins::TypedSpins(wxDialog& dialog) {
  dialog.Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    event.Skip();
    const int key = event.GetKeyCode();
    if (key == WXK_RETURN || key == WXK_NUMPAD_ENTER) noteAll();
  });
}

void TypedSpins::watch(wxSpinCtrl& spin, double smallest, double largest) {
  WatchNumberEntry(spin);
  watchText(spin, smallest, largest, true);
}

void TypedSpins::watch(wxSpinCtrlDouble& spin, double smallest, double largest) {
  WatchNumberEntry(spin);
  watchText(spin, smallest, largest, false);
}

void TypedSpins::watchText(wxSpinCtrlBase& spin, double smallest, double largest, bool wholeOnly) {
  watched_.push_back({&spin, smallest, largest, wholeOnly});
  // Not when the focus leaves: the control's own number is there before that is told.
  spin.Bind(wxEVT_KEY_UP, [this, &spin](wxKeyEvent& event) {
    event.Skip();
    if (Watched* watched = find(&spin)) watched->refused = !isTaken(*watched);
  });
  spin.Bind(wxEVT_SET_FOCUS, [this, &spin](wxFocusEvent& event) {
    event.Skip();
    if (Watched* watched = find(&spin)) watched->refused = false;
  });
}

void TypedSpins::clear() {
  watched_.clear();
}

wxSpinCtrlBase* TypedSpins::takeRefused() {
  noteAll();
  wxSpinCtrlBase* first = nullptr;
  for (Watched& watched : watched_) {
    if (watched.refused && first == nullptr) first = watched.spin;
    watched.refused = false;
    ClearRefusedEntry(*watched.spin);
  }
  return first;
}

bool TypedSpins::isTaken(const Watched& watched) {
  if (IsMarkedRefused(*watched.spin)) return false;
  const std::optional<double> number = TypedNumber(ToUtf8(watched.spin->GetTextValue()));
  if (!number || *number < watched.smallest || *number > watched.largest) return false;
  return !watched.wholeOnly || std::floor(*number) == *number;
}

TypedSpins::Watched* TypedSpins::find(wxSpinCtrlBase* spin) {
  for (Watched& watched : watched_)
    if (watched.spin == spin) return &watched;
  return nullptr;
}

void TypedSpins::noteAll() {
  for (Watched& watched : watched_)
    if (!isTaken(watched)) watched.refused = true;
}

}  // namespace vantrel
