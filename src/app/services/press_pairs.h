// Counts presses of the mouse into double clicks: of a run of quick presses the second, the fourth
// and so on end one. Toolkits count otherwise: after a double click the next press may be the third
// of a triple click, which leaves the fourth alone.
#pragma once

#include <cstdint>
#include <optional>

namespace vantrel {

struct MousePress {
  int button = 0;            // any number, one for each button
  std::uint32_t timeMs = 0;  // of the event, on a clock that may wrap round; 0 when it isn't known
  int x = 0;                 // pixels of the window
  int y = 0;
  bool saidDouble = false;  // the toolkit takes it for the end of a double click
};

// How near two presses must be: less than `withinMs` apart, and at most so many pixels each way. A
// negative one isn't known.
struct PressReach {
  int withinMs = -1;
  int dx = -1;
  int dy = -1;
};

class PressPairs {
 public:
  // Told every press on a window in turn, whether it ends a double click. A press that isn't near
  // the one before is what the toolkit says.
  bool endsPair(const MousePress& press, const PressReach& reach);

 private:
  std::optional<MousePress> last_;
  bool lastEndedPair_ = false;
};

}  // namespace vantrel
