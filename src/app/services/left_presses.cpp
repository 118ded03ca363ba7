#include "app/services/left_presses.h"

#include <wx/event.h>
#include <wx/settings.h>
#include <wx/window.h>

#include <cstdint>
#include <memory>
#include <utility>

#include "app/services/press_pairs.h"

namespace vantrel {
namespace {

// The toolkit tells the size of the area around the first press that the second must fall into.
int HalfOf(int size) {
  return size < 0 ? size : size / 2;
}

// The user may change it in the desktop's settings at any time.
PressReach ReachOn(const wxWindow& window) {
  return {.withinMs = wxSystemSettings::GetMetric(wxSYS_DCLICK_MSEC, &window),
          .dx = HalfOf(wxSystemSettings::GetMetric(wxSYS_DCLICK_X, &window)),
          .dy = HalfOf(wxSystemSettings::GetMetric(wxSYS_DCLICK_Y, &window))};
}

MousePress PressOf(const wxMouseEvent& event) {
  return {.button = event.GetButton(),
          .timeMs = static_cast<std::uint32_t>(event.GetTimestamp()),
          .x = event.GetX(),
          .y = event.GetY(),
          .saidDouble = event.ButtonDClick()};
}

}  // namespace

void BindLeftPresses(wxWindow& window, PressHandler press, PressHandler doubleClick) {
  const auto pairs = std::make_shared<PressPairs>();
  for (const auto& left : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK})
    window.Bind(left, [&window, pairs, press, doubleClick](wxMouseEvent& event) {
      const bool second = pairs->endsPair(PressOf(event), ReachOn(window));
      (second ? doubleClick : press)(event);
    });
  for (const auto& other :
       {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK,
        wxEVT_AUX1_DOWN, wxEVT_AUX1_DCLICK, wxEVT_AUX2_DOWN, wxEVT_AUX2_DCLICK})
    window.Bind(other, [&window, pairs](wxMouseEvent& event) {
      pairs->endsPair(PressOf(event), ReachOn(window));
      event.Skip();
    });
}

}  // namespace vantrel
