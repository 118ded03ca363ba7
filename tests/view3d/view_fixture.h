// A 3D window on the screen, and what it shows there.
#pragma once

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/utils.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "doc/layout.h"
#include "tests/support/waiting.h"
#include "tests/view3d/screen_pixels.h"
#include "view3d/track_gl_canvas.h"
#include "view3d/view3d_frame.h"

namespace vantrel {

// A closed window is deleted when nothing else is to be done.
inline void WaitForClosedWindows() {
  EXPECT_TRUE(WaitUntil([] {
    return std::ranges::none_of(wxTopLevelWindows, [](wxWindow* window) {
      return wxTheApp->IsScheduledForDestruction(window);
    });
  }));
}

// Lets events run until the condition holds; false when it never does.
inline bool PumpUntil(const std::function<bool()>& condition) {
  return WaitUntil(condition);
}

using Colour = std::tuple<int, int, int>;

// As the screen shows it, by colour.
inline std::map<Colour, int> ColoursOf(const wxWindow& window) {
  const wxRect area = window.GetScreenRect();
  const std::vector<unsigned char> pixels = ScreenPixels(area.x, area.y, area.width, area.height);
  std::map<Colour, int> colours;
  for (std::size_t i = 0; i < pixels.size(); i += 3)
    ++colours[{pixels[i], pixels[i + 1], pixels[i + 2]}];
  return colours;
}

// The clear colour (0.14, 0.16, 0.19) times 255: 35.7, 40.8, 48.45.
inline const Colour kBackground{36, 41, 48};
// (0.22, 0.24, 0.22) times 255: 56.1, 61.2, 56.1.
inline const Colour kGrid{56, 61, 56};
// 0.45 and 0.18 times 255: 114.75 and 45.9.
inline const Colour kRedAxis{115, 46, 46};
inline const Colour kGreenAxis{46, 115, 46};

// Ballast and sleepers in the light; nothing else in an empty scene is half as bright.
inline bool ShowsTrack(const TrackGLCanvas& canvas) {
  for (const auto& [colour, count] : ColoursOf(canvas))
    if (std::get<0>(colour) > 180 && std::get<1>(colour) > 180) return true;
  return false;
}

class ViewTest : public testing::Test {
 protected:
  ~ViewTest() override {
    delete view_;
    wxTheApp->ProcessPendingEvents();
  }

  // Made when it is first asked for, and waited for until it has painted.
  View3DFrame& view() {
    if (view_) return *view_;
    view_ = new View3DFrame(nullptr, plan_);
    view_->SetClientSize(240, 180);  // small, to be looked at quickly
    PumpUntil([this] { return ColoursOf(*view_->canvas()).contains(kBackground); });
    return *view_;
  }
  TrackGLCanvas& canvas() { return *view().canvas(); }
  const Camera& camera() { return canvas().camera(); }

  void addPiece(const std::string& part, double x, double y, double z = 0.0) {
    Piece piece;
    piece.id = plan_.nextId++;
    piece.cat = part;
    piece.x = x;
    piece.y = y;
    piece.z = z;
    plan_.pieces.push_back(piece);
  }

  // As if the pointer had done it, with these buttons held.
  void mouse(const wxEventTypeTag<wxMouseEvent>& type, wxPoint at, bool left, bool right) {
    wxMouseEvent event(type);
    event.SetEventObject(&canvas());
    event.SetPosition(at);
    event.SetLeftDown(left);
    event.SetRightDown(right);
    canvas().HandleWindowEvent(event);
  }
  void wheel(int rotation, wxMouseWheelAxis axis = wxMOUSE_WHEEL_VERTICAL) {
    wxMouseEvent event(wxEVT_MOUSEWHEEL);
    event.SetEventObject(&canvas());
    event.m_wheelRotation = rotation;
    event.m_wheelDelta = 120;
    event.m_wheelAxis = axis;
    canvas().HandleWindowEvent(event);
  }
  // True when the canvas took the key for itself.
  bool key(int code, int modifiers = wxMOD_NONE) {
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(&canvas());
    event.m_keyCode = code;
    event.SetControlDown((modifiers & wxMOD_CONTROL) != 0);
    event.SetShiftDown((modifiers & wxMOD_SHIFT) != 0);
    return canvas().HandleWindowEvent(event);
  }
  bool paintsWhatChanged() {
    return PumpUntil([this] { return !canvas().isStale(); });
  }

  Layout plan_;
  View3DFrame* view_ = nullptr;
};

}  // namespace vantrel
