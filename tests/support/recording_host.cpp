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
  boxes.push_back({title, text, icon});
}

bool RecordingHost::ask(const std::string& title, const std::string& text, bool) {
  boxes.push_back({title, text, BoxIcon::question});
  return answer;
}

void RecordingHost::selectionChanged() {
  ++selectionChanges;
}

void RecordingHost::markDirty() {
  ++dirtyMarks;
}

void RecordingHost::noteCanvasClick(Vec2 world) {
  canvasClicks.push_back(world);
}

}  // namespace vantrel
