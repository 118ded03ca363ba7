#include "frame/tools_menu.h"

#include "canvas/canvas_panel.h"
#include "canvas/gestures/step_rotation.h"
#include "canvas/operations/selection.h"
#include "frame/main_frame.h"

namespace vantrel {
namespace {

void TurnLeft(MainFrame& frame) {
  frame.canvas().turnSelection(-kBracketStepDegrees);
}

void TurnRight(MainFrame& frame) {
  frame.canvas().turnSelection(kBracketStepDegrees);
}

void TurnLeftFine(MainFrame& frame) {
  frame.canvas().turnSelection(-kFineBracketStepDegrees);
}

void TurnRightFine(MainFrame& frame) {
  frame.canvas().turnSelection(kFineBracketStepDegrees);
}

// clang-format off
constexpr ToolCommand kToolCommands[] = {
    {.id = kCmdTurnLeft, .label = "Turn &Left by 15 deg\t[", .run = TurnLeft,
     .allowed = hasSelection},
    {.id = kCmdTurnRight, .label = "Turn &Right by 15 deg\t]", .run = TurnRight,
     .allowed = hasSelection},
    {.id = kCmdTurnLeftFine, .label = "Turn Left by &1 deg\t{", .run = TurnLeftFine,
     .allowed = hasSelection},
    {.id = kCmdTurnRightFine, .label = "Turn Right by 1 &deg\t}", .run = TurnRightFine,
     .allowed = hasSelection},
};
// clang-format on

}  // namespace

std::span<const ToolCommand> ToolCommands() {
  return kToolCommands;
}

void BindToolCommands(MainFrame& frame) {
  for (const ToolCommand& command : kToolCommands) {
    frame.Bind(
        wxEVT_MENU, [&frame, &command](wxCommandEvent&) { command.run(frame); }, command.id);
    if (command.allowed)
      frame.Bind(
          wxEVT_UPDATE_UI,
          [&frame, &command](wxUpdateUIEvent& event) {
            event.Enable(command.allowed(frame.plan()));
          },
          command.id);
  }
}

}  // namespace vantrel
