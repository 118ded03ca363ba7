// Fields that numbers are typed into: a decimal comma is a decimal point, and a field that was
// given no number says so and keeps the one it had.
#pragma once

class wxSpinCtrl;
class wxSpinCtrlDouble;
class wxString;
class wxWindow;

namespace vantrel {

// Once for each spin control, after the bindings of its owner. A text without a number that the
// focus leaves, or on which Enter is pressed, gives way to the number from before; the control
// alone would put its smallest in its place. What was typed into a field of whole numbers from a
// point or a comma on isn't put behind the digits before it: "12,5" never becomes 125.
void WatchNumberEntry(wxSpinCtrlDouble& spin);
void WatchNumberEntry(wxSpinCtrl& spin);

// A red ground, and a tooltip that says what is wrong; and back to how the field was.
void MarkRefusedEntry(wxWindow& field, const wxString& reason);
void ClearRefusedEntry(wxWindow& field);
bool IsMarkedRefused(const wxWindow& field);

}  // namespace vantrel
