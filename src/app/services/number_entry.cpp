#include "app/services/number_entry.h"

#include <wx/clntdata.h>
#include <wx/colour.h>
#include <wx/spinctrl.h>
#include <wx/tooltip.h>

#include <algorithm>

#include "app/services/toolkit_below.h"

namespace vantrel {
namespace {

// Light enough for black digits on it.
const wxColour kRefusedGround(255, 190, 190);
constexpr const char* kNoNumber = "No number was typed here. The one from before stays.";
constexpr const char* kNoWholeNumber =
    "Only a whole number can stand here. The one from before stays.";

// What is known of a control beside what it shows. The control owns it.
struct Entry : wxClientData {
  double kept = 0.0;      // its number when it got the focus, or was last set by its arrows
  wxString refusedText;   // what stands there while it is marked
  bool refused = false;   // what was typed is no number that it takes
  bool fraction = false;  // a point was typed where none can stand: what follows belongs behind it
  bool wholeOnly = false;
};

Entry& EntryOf(wxSpinCtrlBase& spin) {
  return *static_cast<Entry*>(spin.GetClientObject());
}

bool HasDigit(const wxString& text) {
  return std::any_of(text.begin(), text.end(), [](wxUniChar c) { return c >= '0' && c <= '9'; });
}

bool IsDecimalSeparator(const wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  return event.GetUnicodeKey() == ',' || event.GetUnicodeKey() == '.' ||
         key == WXK_NUMPAD_SEPARATOR || key == WXK_NUMPAD_DECIMAL;
}

bool IsDigit(const wxKeyEvent& event) {
  const wxChar character = event.GetUnicodeKey();
  const int key = event.GetKeyCode();
  return (character >= '0' && character <= '9') || (key >= WXK_NUMPAD0 && key <= WXK_NUMPAD9);
}

// Whoever presses one of these goes on with what stands there; any other key but a digit and the
// point begins anew.
bool GoesOn(const wxKeyEvent& event) {
  switch (event.GetKeyCode()) {
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
    case WXK_TAB:
    case WXK_SHIFT:
    case WXK_CONTROL:
    case WXK_ALT:
      return true;
    default:
      return IsDigit(event) || IsDecimalSeparator(event);
  }
}

bool IsEnter(const wxKeyEvent& event) {
  return event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
}

// As if a point were typed: the spin control has no way to type into it but the keyboard, but its
// widget is an editable of the library below. False where the platform has no such widget.
bool TypePoint(wxSpinCtrlBase& spin) {
  auto* const removeSelected = FunctionBelowToolkit<void(void*)>("gtk_editable_delete_selection");
  auto* const position = FunctionBelowToolkit<int(void*)>("gtk_editable_get_position");
  auto* const insert =
      FunctionBelowToolkit<void(void*, const char*, int, int*)>("gtk_editable_insert_text");
  auto* const setPosition = FunctionBelowToolkit<void(void*, int)>("gtk_editable_set_position");
  void* const widget = spin.GetHandle();
  if (!removeSelected || !position || !insert || !setPosition || !widget) return false;
  removeSelected(widget);
  int at = position(widget);
  insert(widget, ".", 1, &at);
  setPosition(widget, at);
  return true;
}

// Notes what the user sees before the control puts a number of its own in its place.
void NoteText(wxSpinCtrlBase& spin) {
  Entry& entry = EntryOf(spin);
  entry.refused = entry.fraction || !HasDigit(spin.GetTextValue());
}

template <typename Spin>
void Keep(Spin& spin) {
  spin.SetValue(static_cast<decltype(spin.GetValue())>(EntryOf(spin).kept));
}

// Says so, and shows the number that stays.
template <typename Spin>
void Refuse(Spin& spin) {
  Entry& entry = EntryOf(spin);
  Keep(spin);
  MarkRefusedEntry(spin, entry.fraction ? kNoWholeNumber : kNoNumber);
  entry.refused = entry.fraction = false;
  entry.refusedText = spin.GetTextValue();
}

template <typename Spin>
void OnCharacter(Spin& spin, wxKeyEvent& event) {
  Entry& entry = EntryOf(spin);
  if (IsDecimalSeparator(event) && entry.wholeOnly) {
    entry.refused = entry.fraction = true;
    entry.refusedText = spin.GetTextValue();
    MarkRefusedEntry(spin, kNoWholeNumber);
    return;
  }
  if (entry.fraction && IsDigit(event)) return;
  if (IsDecimalSeparator(event) && TypePoint(spin)) return;
  event.Skip();
}

template <typename Spin>
void OnKeyDown(Spin& spin, wxKeyEvent& event) {
  event.Skip();
  if (!GoesOn(event)) {
    EntryOf(spin).fraction = false;
    ClearRefusedEntry(spin);
  }
  NoteText(spin);
  if (IsEnter(event) && EntryOf(spin).refused) Refuse(spin);
}

template <typename Spin>
void OnKeyUp(Spin& spin, wxKeyEvent& event) {
  event.Skip();
  NoteText(spin);
  const Entry& entry = EntryOf(spin);
  if (!entry.refused && spin.GetTextValue() != entry.refusedText) ClearRefusedEntry(spin);
}

template <typename Spin>
void OnFocus(Spin& spin, wxFocusEvent& event) {
  event.Skip();
  Entry& entry = EntryOf(spin);
  entry.kept = spin.GetValue();
  entry.refused = entry.fraction = false;
  ClearRefusedEntry(spin);
}

template <typename Spin, typename ValueEvent>
void Watch(Spin& spin, const wxEventTypeTag<ValueEvent>& valueChanged, bool wholeOnly) {
  auto* const entry = new Entry;
  entry->kept = spin.GetValue();
  entry->wholeOnly = wholeOnly;
  spin.SetClientObject(entry);
  spin.Bind(wxEVT_CHAR, [&spin](wxKeyEvent& event) { OnCharacter(spin, event); });
  spin.Bind(wxEVT_KEY_DOWN, [&spin](wxKeyEvent& event) { OnKeyDown(spin, event); });
  spin.Bind(wxEVT_KEY_UP, [&spin](wxKeyEvent& event) { OnKeyUp(spin, event); });
  spin.Bind(wxEVT_SET_FOCUS, [&spin](wxFocusEvent& event) { OnFocus(spin, event); });
  // A press beside the text is one on the arrows, and they go on from the number that stays.
  const auto giveUp = [&spin](wxEvent& event) {
    event.Skip();
    if (EntryOf(spin).refused) Refuse(spin);
  };
  spin.Bind(wxEVT_LEFT_DOWN, giveUp);
  spin.Bind(wxEVT_KILL_FOCUS, giveUp);
  // The control puts its own number there before it tells that the focus is gone.
  spin.Bind(valueChanged, [&spin](ValueEvent& event) {
    if (EntryOf(spin).refused) {
      Refuse(spin);
      return;
    }
    // That the number came back is no news.
    if (IsMarkedRefused(spin) && spin.GetValue() == EntryOf(spin).kept) return;
    EntryOf(spin).kept = spin.GetValue();
    event.Skip();
  });
}

}  // namespace

void WatchNumberEntry(wxSpinCtrlDouble& spin) {
  Watch(spin, wxEVT_SPINCTRLDOUBLE, false);
}

void WatchNumberEntry(wxSpinCtrl& spin) {
  Watch(spin, wxEVT_SPINCTRL, true);
}

void MarkRefusedEntry(wxWindow& field, const wxString& reason) {
  field.SetBackgroundColour(kRefusedGround);
  field.SetToolTip(reason);
  field.Refresh();
}

void ClearRefusedEntry(wxWindow& field) {
  if (!IsMarkedRefused(field)) return;
  field.SetBackgroundColour(wxNullColour);
  field.UnsetToolTip();
  field.Refresh();
}

bool IsMarkedRefused(const wxWindow& field) {
  return field.UseBgCol() && field.GetBackgroundColour() == kRefusedGround;
}

}  // namespace vantrel
