#include "canvas/canvas_panel.h"
#include "app/services/wx_text.h"

#include <wx/accel.h>
#include <wx/cursor.h>
#include <wx/dcbuffer.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <iterator>

#include "app/services/left_presses.h"
#include "canvas/autofill_dialog.h"
#include "canvas/event_order.h"
#include "canvas/gestures/deleting.h"
#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/helix_placement.h"
#include "canvas/gestures/palette_drag.h"
#include "canvas/gestures/polygon_draft.h"
#include "canvas/gestures/scenery_drag.h"
#include "canvas/gestures/step_rotation.h"
#include "canvas/gestures/view_navigation.h"
#include "canvas/resize_scenery_dialog.h"
#include "canvas/shape_properties_dialog.h"

namespace vantrel {
namespace {

// The command behind Delete and Backspace while the canvas has the focus.
constexpr int kCanvasDelete = 5038;

wxCursor CursorFor(CanvasCursor cursor) {
  switch (cursor) {
    case CanvasCursor::normal:
      return wxNullCursor;
    case CanvasCursor::cross:
      return wxCursor(wxCURSOR_CROSS);
    case CanvasCursor::hand:
      return wxCursor(wxCURSOR_HAND);
    case CanvasCursor::sizeNwse:
      return wxCursor(wxCURSOR_SIZENWSE);
    case CanvasCursor::sizeNs:
      return wxCursor(wxCURSOR_SIZENS);
    case CanvasCursor::sizeNesw:
      return wxCursor(wxCURSOR_SIZENESW);
    case CanvasCursor::sizeWe:
      return wxCursor(wxCURSOR_SIZEWE);
  }
  return wxNullCursor;
}

long IconStyle(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::information:
      return wxICON_INFORMATION;
    case BoxIcon::exclamation:
      return wxICON_EXCLAMATION;
    case BoxIcon::warning:
      return wxICON_WARNING;
    case BoxIcon::question:
      return wxICON_QUESTION;
    case BoxIcon::error:
      return wxICON_ERROR;
  }
  return 0;
}

Modifiers ModifiersOf(const wxKeyboardState& state) {
  return {.ctrl = state.ControlDown(), .shift = state.ShiftDown(), .alt = state.AltDown()};
}

KeyEvent KeyEventOf(const wxKeyEvent& event, int code) {
  return {.code = code, .mods = ModifiersOf(event)};
}

}  // namespace

CanvasPanel::CanvasPanel(wxWindow* parent, Workspace& workspace) : workspace_(workspace) {
  state_.render.textExtents = &textExtents_;
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
         wxFULL_REPAINT_ON_RESIZE | wxWANTS_CHARS);
  flashTimer_.SetOwner(this);
  const wxAcceleratorEntry keys[] = {{wxACCEL_NORMAL, WXK_DELETE, kCanvasDelete},
                                     {wxACCEL_NORMAL, WXK_BACK, kCanvasDelete}};
  SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(std::size(keys)), keys));
  bindEvents();
}

CanvasPanel::~CanvasPanel() {
  if (HasCapture()) ReleaseMouse();
}

std::function<void(wxMouseEvent&)> CanvasPanel::pointerHandler(PointerList list) {
  return [this, list](wxMouseEvent& event) {
    CanvasContext canvas = context();
    if (!list(canvas, pointerEvent(event))) event.Skip();
  };
}

void CanvasPanel::bindPointer(const wxEventTypeTag<wxMouseEvent>& type, PointerList list) {
  Bind(type, pointerHandler(list));
}

void CanvasPanel::bindEvents() {
  bindPointer(wxEVT_LEFT_UP, onLeftRelease);
  bindPointer(wxEVT_MOTION, onMotion);
  // A pointer that jumps into the window raises no motion before the next one.
  bindPointer(wxEVT_ENTER_WINDOW, onMotion);
  bindPointer(wxEVT_MIDDLE_DOWN, onMiddlePress);
  bindPointer(wxEVT_MIDDLE_UP, onMiddleRelease);
  bindPointer(wxEVT_RIGHT_DOWN, onRightPress);
  bindPointer(wxEVT_RIGHT_UP, onRightRelease);
  // The second of two quick presses comes as a double click only. For these two buttons it is a
  // press like any other: each one turns the dragged piece by a step.
  bindPointer(wxEVT_MIDDLE_DCLICK, onMiddlePress);
  bindPointer(wxEVT_RIGHT_DCLICK, onRightPress);
  BindLeftPresses(*this, pointerHandler(onLeftPress), pointerHandler(onDoubleClick));
  Bind(wxEVT_MOUSEWHEEL, &CanvasPanel::onWheelEvent, this);
  Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) {
    CanvasContext canvas = context();
    onCaptureLost(canvas);
  });
  Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
    CanvasContext canvas = context();
    onFlashTimer(canvas);
  });
  Bind(
      wxEVT_MENU,
      [this](wxCommandEvent&) {
        CanvasContext canvas = context();
        // Where the table takes the keys before the window, Backspace must still reach the draft.
        if (!polygonKey(canvas, {.code = WXK_BACK, .mods = {}})) deleteFromCanvas(canvas);
      },
      kCanvasDelete);
  Bind(wxEVT_KEY_DOWN, &CanvasPanel::onKeyDown, this);
  Bind(wxEVT_KEY_UP, &CanvasPanel::onKeyUp, this);
  Bind(wxEVT_CHAR, &CanvasPanel::onChar, this);
  Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
    spaceHeld_ = false;
    event.Skip();
  });
  Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
    textExtents_ = {.alikeDevices = true};
    event.Skip();
  });
  Bind(wxEVT_PAINT, &CanvasPanel::onPaint, this);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    Refresh();
    event.Skip();
  });
}

void CanvasPanel::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  const CanvasContext canvas = context();
  // A gesture that draws over the plan repaints with every motion: the plan is drawn once for it.
  if (isPlanAtRest(state_)) {
    keptPicture_.draw(canvas, dc, GetContentScaleFactor());
  } else {
    keptPicture_.forget();
    paintStill(canvas, dc);
  }
  paintMoving(canvas, dc);
}

void CanvasPanel::onWheelEvent(wxMouseEvent& event) {
  // A sideways wheel is not ours, but some platforms tell a wheel turned with Shift as one.
  const bool sideways = event.GetWheelAxis() == wxMOUSE_WHEEL_HORIZONTAL && !event.ShiftDown();
  CanvasContext canvas = context();
  if (sideways || !onWheel(canvas, pointerEvent(event))) event.Skip();
}

void CanvasPanel::onKeyDown(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_SPACE) spaceHeld_ = true;
  CanvasContext canvas = context();
  if (!onKey(canvas, KeyEventOf(event, event.GetKeyCode()))) event.Skip();
}

void CanvasPanel::onKeyUp(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_SPACE) spaceHeld_ = false;
  event.Skip();
}

void CanvasPanel::onChar(wxKeyEvent& event) {
  const int code = event.GetUnicodeKey() != WXK_NONE ? static_cast<int>(event.GetUnicodeKey())
                                                     : event.GetKeyCode();
  CanvasContext canvas = context();
  if (!onCharacter(canvas, KeyEventOf(event, code))) event.Skip();
}

PointerEvent CanvasPanel::pointerEvent(const wxMouseEvent& event) const {
  const DevicePoint at{event.GetX(), event.GetY()};
  return {.at = at,
          .world = state_.view.toWorld(at),
          .mods = ModifiersOf(event),
          .leftDown = event.LeftIsDown(),
          .middleDown = event.MiddleIsDown(),
          .rightDown = event.RightIsDown(),
          .spaceDown = spaceHeld_ || wxGetKeyState(WXK_SPACE),
          .wheelRotation = event.GetWheelRotation()};
}

CanvasContext CanvasPanel::context() {
  return {.layout = workspace_.layout(), .state = state_, .host = *this};
}

void CanvasPanel::zoomAt(wxPoint point, double factor) {
  CanvasContext canvas = context();
  vantrel::zoomAt(canvas, {point.x, point.y}, factor);
}

void CanvasPanel::zoomCentred(double factor) {
  CanvasContext canvas = context();
  vantrel::zoomCentred(canvas, factor);
}

void CanvasPanel::zoomToFit(bool trackOnly) {
  CanvasContext canvas = context();
  vantrel::zoomToFit(canvas, trackOnly);
}

void CanvasPanel::resetView() {
  CanvasContext canvas = context();
  vantrel::resetView(canvas);
}

void CanvasPanel::resetViewUnitScale() {
  CanvasContext canvas = context();
  vantrel::resetViewUnitScale(canvas);
}

void CanvasPanel::showGrid(bool visible) {
  CanvasContext canvas = context();
  vantrel::showGrid(canvas, visible);
}

void CanvasPanel::turnSelection(double degrees) {
  CanvasContext canvas = context();
  vantrel::endGestures(canvas);
  vantrel::turnSelection(canvas, degrees);
}

void CanvasPanel::endGestures() {
  CanvasContext canvas = context();
  vantrel::endGestures(canvas);
}

void CanvasPanel::dropDrafts() {
  CanvasContext canvas = context();
  vantrel::dropDrafts(canvas);
}

void CanvasPanel::cancelPaletteDrag() {
  CanvasContext canvas = context();
  vantrel::cancelPaletteDrag(canvas);
}

void CanvasPanel::setToolCursor(bool cross) {
  setCursor(cross ? CanvasCursor::cross : CanvasCursor::normal);
}

void CanvasPanel::beginPieceDrag(std::string_view part) {
  CanvasContext canvas = context();
  vantrel::beginPieceDrag(canvas, part);
}

void CanvasPanel::beginSceneryDrag(std::string_view item) {
  CanvasContext canvas = context();
  vantrel::beginSceneryDrag(canvas, item);
}

void CanvasPanel::beginHelixDrag(std::string_view kitId) {
  CanvasContext canvas = context();
  beginHelixPlacement(canvas, kitId);
}

void CanvasPanel::placeHelix(std::string_view kitId, const Pose& pose) {
  CanvasContext canvas = context();
  placeHelixAt(canvas, kitId, pose);
}

void CanvasPanel::placeByDoubleClick(std::string_view part) {
  CanvasContext canvas = context();
  vantrel::placeByDoubleClick(canvas, part);
}

DeviceSize CanvasPanel::clientSize() const {
  const wxSize size = GetClientSize();
  return {size.GetWidth(), size.GetHeight()};
}

bool CanvasPanel::hasCapture() const {
  return HasCapture();
}

void CanvasPanel::captureMouse() {
  if (!HasCapture()) CaptureMouse();
}

void CanvasPanel::releaseMouse() {
  if (HasCapture()) ReleaseMouse();
}

void CanvasPanel::takeFocus() {
  SetFocusIgnoringChildren();
}

void CanvasPanel::setCursor(CanvasCursor cursor) {
  SetCursor(CursorFor(cursor));
}

void CanvasPanel::repaint() {
  Refresh();
}

void CanvasPanel::setStatus(StatusField field, const std::string& text) {
  workspace_.setStatus(field, text);
}

std::string CanvasPanel::status(StatusField field) const {
  return workspace_.status(field);
}

void CanvasPanel::inform(const std::string& title, const std::string& text, BoxIcon icon) {
  wxMessageBox(ToWx(text), ToWx(title), wxOK | IconStyle(icon), wxGetTopLevelParent(this));
}

bool CanvasPanel::ask(const std::string& title, const std::string& text, bool defaultYes) {
  const long style = wxYES_NO | wxICON_QUESTION | (defaultYes ? wxYES_DEFAULT : wxNO_DEFAULT);
  return wxMessageBox(ToWx(text), ToWx(title), style, wxGetTopLevelParent(this)) == wxYES;
}

int CanvasPanel::chooseAutofill(double gapMm, const std::vector<std::string>& rows) {
  AutofillDialog dialog(this, gapMm, rows);
  return dialog.ShowModal() == wxID_OK ? dialog.row() : kNone;
}

int CanvasPanel::popUpMenu(std::span<const MenuEntry> entries, DevicePoint at) {
  wxMenu menu;
  int taken = 0;
  // Appended with these numbers, the toolkit would show shortcuts of its own that don't exist here.
  for (const MenuEntry& entry : entries) {
    menu.Append(wxID_ANY, ToWx(entry.label))->SetId(entry.id);
  }
  menu.Bind(wxEVT_MENU, [&taken](wxCommandEvent& event) { taken = event.GetId(); });
  PopupMenu(&menu, at.x, at.y);
  return taken;
}

std::optional<ShapeProperties> CanvasPanel::editShape(const ShapeProperties& properties,
                                                      std::int32_t units) {
  ShapePropertiesDialog dialog(wxGetTopLevelParent(this), properties, units);
  if (dialog.ShowModal() != wxID_OK) return std::nullopt;
  return dialog.properties();
}

std::optional<SceneryScale> CanvasPanel::resizeScenery(SceneryFootprint size, SceneryScale scale) {
  ResizeSceneryDialog dialog(wxGetTopLevelParent(this), size, scale);
  if (dialog.ShowModal() == wxID_CANCEL) return std::nullopt;
  return dialog.scale();
}

void CanvasPanel::startFlashTimer(int milliseconds) {
  flashTimer_.StartOnce(milliseconds);
}

void CanvasPanel::stopFlashTimer() {
  flashTimer_.Stop();
}

void CanvasPanel::clickToolEnded(std::int32_t toolMode) {
  workspace_.clickToolEnded(toolMode);
}

void CanvasPanel::selectionChanged() {
  workspace_.selectionChanged();
}

void CanvasPanel::markDirty() {
  workspace_.markDirty();
}

void CanvasPanel::refreshViews() {
  workspace_.refreshViews();
}

void CanvasPanel::noteCanvasClick(Vec2 world) {
  workspace_.noteCanvasClick(world);
}

}  // namespace vantrel
