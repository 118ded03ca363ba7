// The central editing surface: a window that hands its events to the ordered lists of
// event_order.h, and offers the gestures what they need of a window.
#pragma once

#include <wx/panel.h>
#include <wx/timer.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"
#include "canvas/kept_picture.h"
#include "render2d/text_extent.h"
#include "workspace/workspace.h"

namespace vantrel {

class CanvasPanel : public wxPanel, public PlacementTarget, private CanvasHost {
 public:
  // `workspace` must live as long as the panel: it holds the document.
  CanvasPanel(wxWindow* parent, Workspace& workspace);
  ~CanvasPanel() override;
  CanvasPanel(const CanvasPanel&) = delete;
  CanvasPanel& operator=(const CanvasPanel&) = delete;

  // Zoom about a point in client pixels, or about the middle of the client area; the scale stays
  // within 0.3 and 20 pixels per mm.
  void zoomAt(wxPoint point, double factor);
  void zoomCentred(double factor);
  void resetView();
  void resetViewUnitScale();
  void showGrid(bool visible);

  // As a step of the wheel with Ctrl, by any angle. Ends what is under way.
  void turnSelection(double degrees);

  // As the release would end it.
  void endGestures() override;
  // For another plan: ends gestures, what hangs at the pointer, drafts and the armed tool.
  void dropDrafts();
  // Ends whatever hangs at the pointer, without a trace in the document.
  void cancelPaletteDrag();
  // The cross of the tools that click points, or the normal arrow.
  void setToolCursor(bool cross);

  // Places a helix kit at a world pose, without a preview.
  void placeHelix(std::string_view kitId, const Pose& pose);

  void beginPieceDrag(std::string_view part) override;
  void beginSceneryDrag(std::string_view item) override;
  void beginHelixDrag(std::string_view kitId) override;
  void placeByDoubleClick(std::string_view part) override;
  void zoomToFit(bool trackOnly) override;

  const CanvasState& state() const { return state_; }
  const ViewTransform& view() const { return state_.view; }

 private:
  using PointerList = bool (*)(CanvasContext&, const PointerEvent&);

  std::function<void(wxMouseEvent&)> pointerHandler(PointerList list);
  void bindPointer(const wxEventTypeTag<wxMouseEvent>& type, PointerList list);
  void bindEvents();
  void onPaint(wxPaintEvent& event);
  void onWheelEvent(wxMouseEvent& event);
  void onKeyDown(wxKeyEvent& event);
  void onKeyUp(wxKeyEvent& event);
  void onChar(wxKeyEvent& event);
  PointerEvent pointerEvent(const wxMouseEvent& event) const;
  CanvasContext context();

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
  int chooseAutofill(double gapMm, const std::vector<std::string>& rows) override;
  int popUpMenu(std::span<const MenuEntry> entries, DevicePoint at) override;
  std::optional<ShapeProperties> editShape(const ShapeProperties& properties,
                                           std::int32_t units) override;
  std::optional<SceneryScale> resizeScenery(SceneryFootprint size, SceneryScale scale) override;
  void startFlashTimer(int milliseconds) override;
  void stopFlashTimer() override;
  void clickToolEnded(std::int32_t toolMode) override;
  void selectionChanged() override;
  void markDirty() override;
  void refreshViews() override;
  void noteCanvasClick(Vec2 world) override;

  Workspace& workspace_;
  // A window's paints all measure alike, so what one of them measured serves the next.
  TextExtents textExtents_{.alikeDevices = true};
  CanvasState state_;
  wxTimer flashTimer_;
  KeptPicture keptPicture_;
  // Space as told by key events: the state of a key can't be asked for on every display.
  bool spaceHeld_ = false;
};

}  // namespace vantrel
