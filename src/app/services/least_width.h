// How narrow a control can be.
#pragma once

class wxWindow;

namespace vantrel {

// The width in pixels that the toolkit below needs for a control: with less it complains on
// standard error and draws it cut off. The best width, which is what a control likes to have, may
// be larger.
int LeastWidth(wxWindow& control);

}  // namespace vantrel
