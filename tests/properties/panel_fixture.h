// The panel in a frame as wide as the main window gives it, and a stand-in for the document's owner
// that notes what the panel says.
#pragma once

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "properties/properties_panel.h"
#include "properties/wrapped_label.h"
#include "tests/inspection/inspection_support.h"
#include "tests/support/modal_script.h"
#include "tests/support/waiting.h"

namespace vantrel {

// Of the 280 pixels that the main window keeps free, the sash takes 5.
inline constexpr int kPanelWidth = 275;
inline constexpr int kPanelHeight = 780;

class RecordingWorkspace : public Workspace {
 public:
  Layout& layout() override { return document; }
  void markDirty() override { calls.emplace_back("dirty"); }
  void selectionChanged() override { calls.emplace_back("selection"); }
  void refreshViews() override { calls.emplace_back("views"); }
  void noteCanvasClick(Vec2) override {}
  void setStatus(StatusField field, const std::string& text) override {
    calls.push_back("status " + std::to_string(field) + " " + text);
  }
  std::string status(StatusField) const override { return {}; }
  void clickToolEnded(std::int32_t) override {}
  void placeHelix(std::string_view, const Pose&) override {}

  Layout document = PlanWithThreeLevels();
  std::vector<std::string> calls;
};

class PanelTest : public testing::Test {
 protected:
  void SetUp() override {
    frame = new wxFrame(nullptr, wxID_ANY, "properties", wxPoint(0, 0), wxSize(300, 900));
    panel = new PropertiesPanel(frame, workspace);
    resize(kPanelWidth);
  }
  void TearDown() override { delete frame; }

  void resize(int width, int height = kPanelHeight) {
    frame->SetClientSize(width, height);
    panel->SetSize(0, 0, width, height);
    settle();
  }

  // Shows the frame, as focus needs it.
  void show() {
    frame->Show();
    frame->Raise();
    EXPECT_TRUE(WaitUntil([this] { return frame->IsActive(); }));
    settle();
  }

  // A hidden window has nothing to wait for from outside.
  void settle() {
    wxTheApp->Yield();
    if (frame->IsShown()) WaitUntilSettled(*panel);
  }

  Layout& plan() { return workspace.document; }
  Piece& piece(std::int32_t id) { return PieceOf(plan(), id); }
  std::int32_t selectPiece(std::string_view part = "24188") {
    const std::int32_t id = LaySelected(plan(), part);
    panel->RefreshSelection();
    return id;
  }

  template <typename Control>
  Control& control(int id) const {
    auto* found = dynamic_cast<Control*>(wxWindow::FindWindowById(id, panel));
    EXPECT_NE(found, nullptr) << "no control " << id;
    return *found;
  }
  wxTextCtrl& labelField() const { return control<wxTextCtrl>(4107); }
  wxTextCtrl& heightField() const { return control<wxTextCtrl>(4100); }
  wxChoice& levelChoice() const { return control<wxChoice>(4101); }
  wxChoice& colourChoice() const { return control<wxChoice>(4109); }
  wxButton& button(int id) const { return control<wxButton>(id); }
  wxSpinCtrlDouble& spin() const { return *FindControl<wxSpinCtrlDouble>(*panel); }
  wxRadioButton& up() const { return *FindControl<wxRadioButton>(*panel, "UP"); }
  wxRadioButton& down() const { return *FindControl<wxRadioButton>(*panel, "DOWN"); }
  wxStaticText& text(const char* name) const {
    auto* found = dynamic_cast<wxStaticText*>(wxWindow::FindWindowByName(name, panel));
    EXPECT_NE(found, nullptr) << "no text " << name;
    return *found;
  }
  WrappedLabel& wrapped(const char* name) const { return dynamic_cast<WrappedLabel&>(text(name)); }

  // As the toolkit reports what the user did.
  void press(int id) {
    wxCommandEvent event(wxEVT_BUTTON, id);
    send(event, button(id));
  }
  void enter(wxTextCtrl& field, const wxString& value) {
    field.ChangeValue(value);
    wxCommandEvent event(wxEVT_TEXT_ENTER, field.GetId());
    send(event, field);
  }
  void choose(wxChoice& choice, int row) {
    choice.SetSelection(row);
    wxCommandEvent event(wxEVT_CHOICE, choice.GetId());
    event.SetInt(row);
    send(event, choice);
  }

  std::vector<std::string> takeCalls() { return std::exchange(workspace.calls, {}); }

  RecordingWorkspace workspace;
  wxFrame* frame = nullptr;
  PropertiesPanel* panel = nullptr;

 private:
  static void send(wxCommandEvent& event, wxWindow& from) {
    event.SetEventObject(&from);
    from.GetEventHandler()->ProcessEvent(event);
  }
};

}  // namespace vantrel
