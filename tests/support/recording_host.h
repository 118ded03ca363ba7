// A canvas host without a window: remembers what the gestures asked of it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "canvas/gestures/canvas_host.h"

namespace vantrel {

struct RecordedBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::information;
};

class RecordingHost : public CanvasHost {
 public:
  DeviceSize client{1160, 800};
  bool captured = false;
  int captures = 0;
  int releases = 0;
  int focusTaken = 0;
  int repaints = 0;
  int selectionChanges = 0;
  int dirtyMarks = 0;
  std::vector<CanvasCursor> cursors;  // all that were set, in order
  std::vector<RecordedBox> boxes;
  int popUpsWhileCaptured = 0;                // boxes and menus that came up with the mouse held
  bool answer = false;                        // what `ask` returns
  std::vector<bool> defaults;                 // the default answers of the questions, in order
  std::vector<std::vector<MenuEntry>> menus;  // all that popped up, in order
  DevicePoint menuAt;
  int choice = 0;                        // what `popUpMenu` returns
  std::vector<std::int32_t> endedTools;  // the modes of the tools that ended, in order
  // What the dialogs were shown, and what they return.
  std::vector<ShapeProperties> shapesShown;
  std::optional<ShapeProperties> shapeChosen;
  std::vector<SceneryScale> scalesShown;
  std::optional<SceneryScale> scaleChosen;
  int timerMs = 0;  // of the flash timer when it runs, else 0
  int timerStarts = 0;
  std::vector<Vec2> canvasClicks;
  int viewRefreshes = 0;
  std::vector<std::string> offeredFills;  // the rows last offered
  double offeredGap = 0.0;
  int chosenFill = kNone;  // what `chooseAutofill` returns

  CanvasCursor cursor() const { return cursors.empty() ? CanvasCursor::normal : cursors.back(); }

  DeviceSize clientSize() const override;
  bool hasCapture() const override;
  void captureMouse() override;
  void releaseMouse() override;
  void takeFocus() override;
  void setCursor(CanvasCursor cursor) override;
  void repaint() override;
  void setStatus(StatusField field, const std::string& text) override;
  std::string status(StatusField field) const override;
  void inform(const std::string& title, const std::string& text, BoxIcon icon) override;
  bool ask(const std::string& title, const std::string& text, bool defaultYes) override;
  int popUpMenu(std::span<const MenuEntry> entries, DevicePoint at) override;
  std::optional<ShapeProperties> editShape(const ShapeProperties& properties,
                                           std::int32_t units) override;
  std::optional<SceneryScale> resizeScenery(SceneryFootprint size, SceneryScale scale) override;
  void startFlashTimer(int milliseconds) override;
  void stopFlashTimer() override;
  int chooseAutofill(double gapMm, const std::vector<std::string>& rows) override;
  void clickToolEnded(std::int32_t toolMode) override;
  void selectionChanged() override;
  void markDirty() override;
  void refreshViews() override;
  void noteCanvasClick(Vec2 world) override;

 private:
  std::array<std::string, 3> status_;
};

}  // namespace vantrel
