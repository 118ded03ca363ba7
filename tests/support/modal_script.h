// Answers dialogs in a test: what the program asks is compared with a script, step by step, and a
// dialog that the script doesn't know is a failure and gets cancelled.
#pragma once

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace vantrel {

class ModalScript : public wxModalDialogHook {
 public:
  using Action = std::function<void(wxDialog&)>;

  ModalScript() { Register(); }
  ~ModalScript() override {
    for (const Step& step : steps_) ADD_FAILURE() << "never asked: " << step.title;
  }
  ModalScript(const ModalScript&) = delete;
  ModalScript& operator=(const ModalScript&) = delete;

  // The next dialog has this title; `action` may use its controls before it gets the answer.
  ModalScript& dialog(const std::string& title, int answer, Action action = {}) {
    steps_.push_back({title, {}, 0, answer, std::move(action)});
    return *this;
  }

  // The next dialog is a message box with this title, text and style.
  ModalScript& box(const std::string& title, const std::string& text, long style, int answer) {
    steps_.push_back({title, text, style, answer, {}});
    return *this;
  }

  // The next dialog is really shown, with its own event loop, in which `action` is run.
  ModalScript& shown(const std::string& title, Action action) {
    steps_.push_back({title, {}, 0, wxID_NONE, [action = std::move(action)](wxDialog& shownDialog) {
                        shownDialog.CallAfter([&shownDialog, action] { action(shownDialog); });
                      }});
    return *this;
  }

  bool finished() const { return steps_.empty(); }
  // The texts of all message boxes so far.
  const std::vector<std::string>& boxTexts() const { return boxTexts_; }
  // What stands below them, smaller; empty where nothing does.
  const std::vector<std::string>& boxReasons() const { return boxReasons_; }

 protected:
  int Enter(wxDialog* shownDialog) override {
    const auto* message = dynamic_cast<wxMessageDialogBase*>(shownDialog);
    const std::string title = shownDialog->GetTitle().utf8_string();
    const std::string text = message ? message->GetMessage().utf8_string() : std::string();
    if (message) boxTexts_.push_back(text);
    if (message) boxReasons_.push_back(message->GetExtendedMessage().utf8_string());
    if (steps_.empty()) {
      ADD_FAILURE() << "unexpected dialog: " << title << "\n" << text;
      return wxID_CANCEL;
    }
    const Step step = steps_.front();
    steps_.pop_front();
    EXPECT_EQ(title, step.title);
    if (step.style != 0) {
      EXPECT_EQ(text, step.text);
      EXPECT_EQ(message ? message->GetMessageDialogStyle() & ~wxCENTRE : 0, step.style);
    }
    if (step.action) step.action(*shownDialog);
    return step.answer;
  }

 private:
  struct Step {
    std::string title;
    std::string text;
    long style = 0;  // 0 for anything but a message box
    int answer = wxID_NONE;
    Action action;
  };

  std::deque<Step> steps_;
  std::vector<std::string> boxTexts_;
  std::vector<std::string> boxReasons_;
};

// The flavours of message box, as styles.
inline constexpr long kInformationBox = wxOK | wxICON_INFORMATION;
inline constexpr long kErrorBox = wxOK | wxICON_ERROR;
inline constexpr long kQuestionBox = wxYES_NO | wxICON_QUESTION;
inline constexpr long kCautiousBox = wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION;
inline constexpr long kWarningBox = wxYES_NO | wxNO_DEFAULT | wxICON_WARNING;
inline constexpr long kUnsavedBox = wxYES_NO | wxCANCEL | wxICON_QUESTION;

// The control of this type among a window's children and theirs: the first, or the one with this
// label.
template <typename Control>
Control* FindControl(wxWindow& parent, const wxString& label = {}) {
  for (wxWindow* child : parent.GetChildren()) {
    auto* control = dynamic_cast<Control*>(child);
    if (control && (label.empty() || control->GetLabel() == label)) return control;
    if (Control* deeper = FindControl<Control>(*child, label)) return deeper;
  }
  return nullptr;
}

// All controls of this type, in the order in which they were made.
template <typename Control>
std::vector<Control*> FindControls(wxWindow& parent) {
  std::vector<Control*> found;
  for (wxWindow* child : parent.GetChildren()) {
    if (auto* control = dynamic_cast<Control*>(child)) found.push_back(control);
    const std::vector<Control*> deeper = FindControls<Control>(*child);
    found.insert(found.end(), deeper.begin(), deeper.end());
  }
  return found;
}

}  // namespace vantrel
