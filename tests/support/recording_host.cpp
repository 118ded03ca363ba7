#include "tests/support/recording_host.h"

namespace vantrel {

DeviceSize RecordingHost::clientSize() const {
  return client;
}

bool RecordingHost::hasCapture() const {
  return captured;
}

void RecordingHost::captureMouse() {
  if (captured) return;
  captured = true;
  ++captures;
}

void RecordingHost::releaseMouse() {
  if (!captured) return;
  captured = false;
  ++releases;
}

void RecordingHost::takeFocus() {
  ++focusTaken;
}

void RecordingHost::setCursor(CanvasCursor cursor) {
  cursors.push_back(cursor);
}

void RecordingHost::repaint() {
  ++repaints;
}

void RecordingHost::setStatus(StatusField field, const std::string& text) {
  status_.at(field) = text;
}

std::string RecordingHost::status(StatusField field) const {
  return status_.at(field);
}

void RecordingHost::inform(const std::string& title, const std::string& text, BoxIcon icon) {
  if (captured) ++popUpsWhileCaptured;
  boxes.push_back({title, text, icon});
}

bool RecordingHost::ask(const std::string& title, const std::string& text, bool defaultYes) {
  if (captured) ++popUpsWhileCaptured;
  boxes.push_back({title, text, BoxIcon::question});
  defaults.push_back(defaultYes);
  return answer;
}

int RecordingHost::popUpMenu(std::span<const MenuEntry> entries, DevicePoint at) {
  if (captured) ++popUpsWhileCaptured;
  menus.emplace_back(entries.begin(), entries.end());
  menuAt = at;
  return choice;
}

std::optional<ShapeProperties> RecordingHost::editShape(const ShapeProperties& properties,
                                                        std::int32_t) {
  shapesShown.push_back(properties);
  return shapeChosen;
}

std::optional<SceneryScale> RecordingHost::resizeScenery(SceneryFootprint, SceneryScale scale) {
  scalesShown.push_back(scale);
  return scaleChosen;
}

void RecordingHost::startFlashTimer(int milliseconds) {
  timerMs = milliseconds;
  ++timerStarts;
}

void RecordingHost::stopFlashTimer() {
  timerMs = 0;
}

void RecordingHost::clickToolEnded(std::int32_t toolMode) {
  endedTools.push_back(toolMode);
}

void RecordingHost::selectionChanged() {
  ++selectionChanges;
}

void RecordingHost::markDirty() {
  ++dirtyMarks;
}

void RecordingHost::refreshViews() {
  ++viewRefreshes;
}

int RecordingHost::chooseAutofill(double gapMm, const std::vector<std::string>& rows) {
  offeredGap = gapMm;
  offeredFills = rows;
  return chosenFill;
}

void RecordingHost::noteCanvasClick(Vec2 world) {
  canvasClicks.push_back(world);
}

}  // namespace vantrel
