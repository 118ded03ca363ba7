// Print and Print Preview, with printers that do as the test wants.
#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/gtk/print.h>
#include <wx/log.h>
#include <wx/module.h>
#include <wx/print.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>

#include "print/layout_printout.h"
#include "tests/frame/frame_fixture.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

// How the printer behaves, and what it was asked.
struct PrinterScript {
  wxPrinterError outcome = wxPRINTER_NO_ERROR;
  std::function<void(wxPrintout&)> run;
  bool previewOk = true;
  int prints = 0;
  bool prompted = false;
  wxString title;
  wxPaperSize givenPaper = wxPAPER_NONE;
};

class FakePrinter : public wxPrinterBase {
 public:
  FakePrinter(wxPrintDialogData* data, PrinterScript& script)
      : wxPrinterBase(data), script_(script) {}
  bool Setup(wxWindow*) override { return true; }
  wxDC* PrintDialog(wxWindow*) override { return nullptr; }
  bool Print(wxWindow*, wxPrintout* printout, bool prompt) override {
    ++script_.prints;
    script_.prompted = prompt;
    script_.title = printout->GetTitle();
    script_.givenPaper = m_printDialogData.GetPrintData().GetPaperId();
    if (script_.run) script_.run(*printout);
    m_printDialogData.GetPrintData().SetPaperId(wxPAPER_A4);
    sm_lastError = script_.outcome;
    return script_.outcome == wxPRINTER_NO_ERROR;
  }

 private:
  PrinterScript& script_;
};

class FakeFactory : public wxNativePrintFactory {
 public:
  explicit FakeFactory(PrinterScript& script) : script_(script) {}
  wxPrinterBase* CreatePrinter(wxPrintDialogData* data) override {
    return new FakePrinter(data, script_);
  }
  wxPrintPreviewBase* CreatePrintPreview(wxPrintout* shown, wxPrintout* printed,
                                         wxPrintDialogData* data) override {
    wxPrintPreviewBase* preview = wxNativePrintFactory::CreatePrintPreview(shown, printed, data);
    if (!script_.previewOk) preview->SetOk(false);
    return preview;
  }

 private:
  PrinterScript& script_;
};

constexpr const char* kProblem =
    "There was a problem printing. Check that a printer is installed and connected.";

class Printing : public FrameTest {
 protected:
  Printing() { wxPrintFactory::SetPrintFactory(new FakeFactory(printer_)); }
  // As the toolkit itself begins on this platform: its factory can't be made otherwise.
  ~Printing() override {
    wxPrintFactory::SetPrintFactory(nullptr);
    const std::unique_ptr<wxObject> module(wxCreateDynamicObject("wxGtkPrintModule"));
    if (auto* start = wxDynamicCast(module.get(), wxModule)) start->Init();
    wxPrintDialogData data;
    const std::unique_ptr<wxPrinterBase> real(wxPrintFactory::GetFactory()->CreatePrinter(&data));
    EXPECT_NE(dynamic_cast<wxGtkPrinter*>(real.get()), nullptr);
  }

  // The preview's own print button.
  void printFromPreview() {
    auto* window = dynamic_cast<wxPreviewFrame*>(previewWindow());
    ASSERT_NE(window, nullptr);
    window->GetControlBar()->OnPrint();
  }
  // Opens the preview and waits until its sheet is seen.
  void openPaintedPreview() {
    command(5013);
    ASSERT_NE(previewWindow(), nullptr);
    const auto painted = std::make_shared<bool>(false);
    for (wxWindow* child : previewWindow()->GetChildren()) {
      if (dynamic_cast<wxPreviewCanvas*>(child) == nullptr) continue;
      child->Bind(wxEVT_PAINT, [painted](wxPaintEvent& event) {
        *painted = true;
        event.Skip();
      });
    }
    EXPECT_TRUE(waitUntil([painted] { return *painted; }));
    wxTheApp->Yield();
  }
  // Handles what is waiting until the condition holds; gives up in the end.
  static bool waitUntil(const std::function<bool()>& condition) {
    constexpr int kPasses = 2000;
    for (int i = 0; i < kPasses; ++i) {
      if (condition()) return true;
      wxTheApp->Yield();
      wxTheApp->ProcessIdle();
      wxMilliSleep(5);
    }
    return condition();
  }
  wxWindow* previewWindow() { return wxWindow::FindWindowByLabel("Print Preview -- Vantrel"); }
  static bool holdsKeyboard(wxWindow* window) {
    auto* const top = dynamic_cast<wxTopLevelWindow*>(window);
    wxWindow* const focused = wxWindow::FindFocus();
    return top != nullptr && top->IsActive() && focused != nullptr &&
           wxGetTopLevelParent(focused) == top;
  }
  void addHiddenLevel() {
    Level level;
    level.id = 7;
    level.visible = false;
    plan().levels.push_back(level);
  }

  PrinterScript printer_;
};

TEST_F(Printing, ShowsThePrintDialogWithTheStoredDataAndTakesThePrintersOnSuccess) {
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  command(5010);
  EXPECT_EQ(printer_.prints, 1);
  EXPECT_TRUE(printer_.prompted);
  EXPECT_EQ(printer_.title, "Vantrel Layout");
  EXPECT_EQ(printer_.givenPaper, wxPAPER_LETTER);
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_A4);
  EXPECT_FALSE(frame().dirty());
}

TEST_F(Printing, CancelledOptionsPrintNothing) {
  ModalScript script;
  script.dialog("Print Options", wxID_CANCEL);
  command(5010);
  EXPECT_EQ(printer_.prints, 0);
  EXPECT_EQ(frame().printOptions(), PrintOptions{});
}

TEST_F(Printing, AProblemOfThePrinterIsToldAndItsDataAreNotTaken) {
  printer_.outcome = wxPRINTER_ERROR;
  ModalScript script;
  script.dialog("Print Options", wxID_OK).box("Print", kProblem, kErrorBox, wxID_OK);
  command(5010);
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
}

// Counts what the toolkit would show in boxes of its own.
class CountingLog : public wxLog {
 public:
  int records = 0;

 protected:
  void DoLogRecord(wxLogLevel, const wxString&, const wxLogRecordInfo&) override { ++records; }
};

TEST_F(Printing, AProblemOfThePrinterIsNotToldByTheToolkitToo) {
  CountingLog log;
  wxLog* const before = wxLog::SetActiveTarget(&log);
  printer_.outcome = wxPRINTER_ERROR;
  printer_.run = [](wxPrintout&) { wxLogError("Error while printing: no paper"); };
  ModalScript script;
  script.dialog("Print Options", wxID_OK).box("Print", kProblem, kErrorBox, wxID_OK);
  command(5010);
  EXPECT_EQ(log.records, 0);
  wxLogError("afterwards errors are told again");
  EXPECT_EQ(log.records, 1);
  wxLog::SetActiveTarget(before);
}

TEST_F(Printing, ACancelInThePrintDialogNeedsNoWords) {
  printer_.outcome = wxPRINTER_CANCELLED;
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  command(5010);
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
}

TEST_F(Printing, ThatBreaksOffLeavesTheLevelsAsTheyWere) {
  addHiddenLevel();
  const std::vector<Level> before = plan().levels;
  printer_.outcome = wxPRINTER_CANCELLED;
  printer_.run = [this, &before](wxPrintout& printout) {
    printout.SetPageSizePixels(3300, 2550);
    printout.OnPreparePrinting();
    EXPECT_NE(plan().levels, before);
  };
  plan().activeLevel = 7;
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  command(5010);
  EXPECT_EQ(plan().levels, before);
}

TEST_F(Printing, NobodyCanEditOrCloseThePlanMeanwhile) {
  showFrame();
  printer_.run = [this](wxPrintout&) { EXPECT_FALSE(frame().IsEnabled()); };
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  command(5010);
  EXPECT_EQ(printer_.prints, 1);
  EXPECT_TRUE(frame().IsEnabled());
}

// Chooses 1:1 in the dialog.
void ChooseFullSize(wxDialog& dialog) {
  wxRadioBox* scaling = FindControl<wxRadioBox>(dialog);
  scaling->SetSelection(1);
  FindControl<wxSpinCtrl>(dialog)->SetValue(1);
  wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
  dialog.ProcessWindowEvent(ok);
}

TEST_F(Printing, ManySheetsAreAskedAbout) {
  // At 1:1 a letter page in landscape shows 257 by 199 mm: 10 m by 4 m are 39 by 21 sheets, 819.
  plan().baseboard = {{0, 0}, {10000, 0}, {10000, 4000}, {0, 4000}};
  ModalScript script;
  script.shown("Print Options", ChooseFullSize)
      .box("Print", "At this scale the layout takes about 819 sheets of paper.\n\nPrint it?",
           kCautiousBox, wxID_NO);
  command(5010);
  EXPECT_EQ(printer_.prints, 0);
}

TEST_F(Printing, AHundredSheetsNeedNoQuestionAndOneMoreDoes) {
  // At 1:1 a sheet shows 257.05 mm across: 25,700 mm are 99.98 sheets, 25,900 mm 100.76.
  printer_.outcome = wxPRINTER_CANCELLED;  // so that the paper stays the same
  plan().baseboard = {{0, 0}, {25700, 0}, {25700, 150}, {0, 150}};
  ModalScript script;
  script.shown("Print Options", ChooseFullSize);
  command(5010);
  EXPECT_EQ(printer_.prints, 1);
  plan().baseboard = {{0, 0}, {25900, 0}, {25900, 150}, {0, 150}};
  script.dialog("Print Options", wxID_OK)
      .box("Print", "At this scale the layout takes about 101 sheets of paper.\n\nPrint it?",
           kCautiousBox, wxID_NO);
  command(5010);
  EXPECT_EQ(printer_.prints, 1);
}

TEST_F(Printing, UsesTheOptionsThatTheDialogHasJustGot) {
  plan().baseboard = {{0, 0}, {10000, 0}, {10000, 4000}, {0, 4000}};
  int pages = 0;
  printer_.run = [&pages](wxPrintout& printout) {
    printout.SetPageSizePixels(3300, 2550);
    printout.OnPreparePrinting();
    int low = 0, from = 0, to = 0;
    printout.GetPageInfo(&low, &pages, &from, &to);
  };
  ModalScript script;
  script.shown("Print Options", ChooseFullSize)
      .box("Print", "At this scale the layout takes about 819 sheets of paper.\n\nPrint it?",
           kCautiousBox, wxID_YES);
  command(5010);
  EXPECT_EQ(pages, 819);
  EXPECT_EQ(frame().printOptions().mode, kActualScale);
  EXPECT_EQ(frame().printOptions().scaleN, 1);
}

wxProgressDialog* ProgressWindow() {
  for (wxWindow* window : wxTopLevelWindows)
    if (auto* progress = dynamic_cast<wxProgressDialog*>(window)) return progress;
  return nullptr;
}

TEST_F(Printing, OfManySheetsTellsWhichOneItIsAtAndEndsWhenTheUserCancels) {
  showFrame();
  // At 1:1 a letter sheet shows 257.05 by 198.6 mm: 24 sheets, 6 by 4.
  plan().baseboard = {{0, 0}, {1500, 0}, {1500, 780}, {0, 780}};
  printer_.outcome = wxPRINTER_CANCELLED;
  RecordingDC dc({3300, 2550}, 300);
  int printed = 0;
  printer_.run = [&](wxPrintout& printout) {
    printout.SetPageSizePixels(3300, 2550);
    printout.SetPPIPrinter(300, 300);
    printout.SetDC(&dc);
    printout.OnPreparePrinting();
    for (int page = 1; printout.HasPage(page); ++page) {
      printed += printout.OnPrintPage(page) ? 1 : 0;
      wxProgressDialog* progress = ProgressWindow();
      if (page < 3) {
        ASSERT_NE(progress, nullptr);
        EXPECT_EQ(progress->GetMessage(), "Sheet " + std::to_string(page) + " of 24");
      }
      if (page != 2) continue;
      wxWindow* cancel = progress->FindWindow(wxID_CANCEL);
      ASSERT_NE(cancel, nullptr);
      wxCommandEvent press(wxEVT_BUTTON, wxID_CANCEL);
      press.SetEventObject(cancel);
      cancel->HandleWindowEvent(press);
    }
  };
  ModalScript script;
  script.shown("Print Options", ChooseFullSize);
  command(5010);
  EXPECT_EQ(printed, 2);
  EXPECT_EQ(ProgressWindow(), nullptr);
  EXPECT_TRUE(frame().IsEnabled());
}

TEST_F(Printing, OfFewSheetsNeedsNoProgress) {
  RecordingDC dc({3300, 2550}, 300);
  printer_.run = [&](wxPrintout& printout) {
    printout.SetPageSizePixels(3300, 2550);
    printout.SetDC(&dc);
    printout.OnPreparePrinting();
    EXPECT_TRUE(printout.OnPrintPage(1));
    EXPECT_EQ(ProgressWindow(), nullptr);
  };
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  command(5010);
  EXPECT_EQ(printer_.prints, 1);
}

// The view at scale 1 has its origin at pixel (60, 60).
TEST_F(Printing, AndItsPreviewEndADragFirst) {
  for (const int id : {5010, 5013}) {
    plan().pieces.clear();
    addPiece();
    showFrame();
    frame().canvas().resetViewUnitScale();
    dragOnCanvas({160, 60}, {160, 260});
    ASSERT_TRUE(frame().canvas().HasCapture());
    ModalScript script;
    if (id == 5010)
      script.dialog("Print Options", wxID_CANCEL,
                    [this](wxDialog&) { EXPECT_FALSE(frame().canvas().HasCapture()); });
    command(id);
    EXPECT_FALSE(frame().canvas().HasCapture()) << id;
    mouseOnCanvas(wxEVT_MOTION, {160, 360}, true);
    EXPECT_EQ(plan().pieces[0].y, 200.0) << id;
    mouseOnCanvas(wxEVT_LEFT_UP, {160, 360}, false);
  }
}

TEST_F(Printing, AnAbsurdNumberOfSheetsIsRefused) {
  plan().baseboard = {{0, 0}, {1e9, 0}, {1e9, 1e9}};
  ModalScript script;
  script.shown("Print Options", ChooseFullSize)
      .box("Print",
           "At this scale the layout takes more than 10,000 sheets of paper.\n\nChoose a smaller "
           "scale, or look for something that lies far away from the rest.",
           wxOK | wxICON_WARNING, wxID_OK);
  command(5010);
  EXPECT_EQ(printer_.prints, 0);
}

TEST_F(Printing, APreviewThatIsNotValidIsTold) {
  printer_.previewOk = false;
  ModalScript script;
  script.box("Print Preview", "Could not create print preview. Is a printer driver installed?",
             kErrorBox, wxID_OK);
  command(5013);
  EXPECT_EQ(previewWindow(), nullptr);
}

TEST_F(Printing, APreviewOpensWithoutADialogAndKeepsTheFrameFromEditing) {
  showFrame();
  command(5013);
  wxWindow* window = previewWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->GetSize(), wxSize(900, 700));
  const wxRect around = frame().GetScreenRect();
  EXPECT_NEAR(window->GetPosition().x + 450, around.x + around.width / 2, 2);
  EXPECT_NEAR(window->GetPosition().y + 350, around.y + around.height / 2, 2);
  EXPECT_FALSE(frame().IsEnabled());
  window->Close();
  wxTheApp->Yield();
  wxTheApp->ProcessIdle();
  EXPECT_TRUE(frame().IsEnabled());
  EXPECT_FALSE(frame().dirty());
}

TEST_F(Printing, APreviewBearsTheProgramsIcon) {
  command(5013);
  auto* window = dynamic_cast<wxTopLevelWindow*>(previewWindow());
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->GetIcons().GetIconCount(), 6u);
  window->Close();
  wxTheApp->Yield();
  wxTheApp->ProcessIdle();
}

TEST_F(Printing, APreviewStandsInTheMiddleWithTheKeyboardEachTimeItOpens) {
  showFrame();
  for (int time = 1; time <= 3; ++time) {
    SCOPED_TRACE(time);
    command(5013);
    auto* window = dynamic_cast<wxPreviewFrame*>(previewWindow());
    ASSERT_NE(window, nullptr);
    const wxRect around = frame().GetScreenRect();
    const wxPoint middle(around.x + around.width / 2, around.y + around.height / 2);
    const auto inTheMiddle = [&] {
      const wxRect place = window->GetScreenRect();
      return std::abs(place.x + place.width / 2 - middle.x) <= 2 &&
             std::abs(place.y + place.height / 2 - middle.y) <= 2;
    };
    EXPECT_TRUE(waitUntil([&] { return window->IsActive() && inTheMiddle(); }));
    EXPECT_TRUE(waitUntil([&] {
      wxWindow* focused = wxWindow::FindFocus();
      return focused != nullptr && wxGetTopLevelParent(focused) == window;
    }));
    window->Close();
    EXPECT_TRUE(waitUntil([&] { return previewWindow() == nullptr && frame().IsEnabled(); }));
  }
}

// A control of the preview's row of buttons.
template <typename Control>
Control* InPreview(wxPreviewFrame& window) {
  for (wxWindow* child : window.GetControlBar()->GetChildren())
    if (auto* control = dynamic_cast<Control*>(child)) return control;
  return nullptr;
}

TEST_F(Printing, EscapeClosesAPreviewWhicheverControlHasTheFocus) {
  showFrame();
  const auto escapeFrom = [this](auto choose) {
    command(5013);
    auto* window = dynamic_cast<wxPreviewFrame*>(previewWindow());
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(waitUntil([&] { return window->IsActive(); }));
    wxWindow* control = choose(*window);
    ASSERT_NE(control, nullptr);
    wxKeyEvent escape(wxEVT_CHAR_HOOK);
    escape.m_keyCode = WXK_ESCAPE;
    escape.SetEventObject(control);
    control->HandleWindowEvent(escape);
    EXPECT_TRUE(waitUntil([&] { return previewWindow() == nullptr && frame().IsEnabled(); }));
  };
  escapeFrom([](wxPreviewFrame& window) -> wxWindow* { return &window; });
  escapeFrom([](wxPreviewFrame& window) { return InPreview<wxChoice>(window); });
  escapeFrom([](wxPreviewFrame& window) { return InPreview<wxTextCtrl>(window); });
  escapeFrom([](wxPreviewFrame& window) { return InPreview<wxButton>(window); });
}

TEST_F(Printing, FromAPreviewTakesThePrintersDataOnSuccess) {
  showFrame();
  int pages = 0;
  printer_.run = [&pages](wxPrintout& printout) {
    wxWindow* window = wxWindow::FindWindowByLabel("Print Preview -- Vantrel");
    EXPECT_FALSE(window->IsEnabled());
    printout.SetPageSizePixels(3300, 2550);
    printout.OnPreparePrinting();
    int low = 0, from = 0, to = 0;
    printout.GetPageInfo(&low, &pages, &from, &to);
  };
  command(5013);
  printFromPreview();
  EXPECT_EQ(printer_.prints, 1);
  EXPECT_TRUE(printer_.prompted);
  EXPECT_EQ(printer_.title, "Vantrel Layout");
  EXPECT_EQ(printer_.givenPaper, wxPAPER_LETTER);
  EXPECT_EQ(pages, 1);
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_A4);
  EXPECT_TRUE(previewWindow()->IsEnabled());
  // Once more it begins with what was chosen.
  printFromPreview();
  EXPECT_EQ(printer_.givenPaper, wxPAPER_A4);
}

TEST_F(Printing, OfManySheetsFromAPreviewGivesItTheKeyboardBack) {
  showFrame();
  // At 1:1 a letter sheet shows 257.05 by 198.6 mm: 24 sheets, 6 by 4.
  plan().baseboard = {{0, 0}, {1500, 0}, {1500, 780}, {0, 780}};
  printer_.outcome = wxPRINTER_CANCELLED;
  ModalScript script;
  script.shown("Print Options", ChooseFullSize);
  command(5010);
  openPaintedPreview();
  EXPECT_TRUE(waitUntil([this] { return holdsKeyboard(previewWindow()); }));
  RecordingDC dc({3300, 2550}, 300);
  printer_.run = [&](wxPrintout& printout) {
    printout.SetPageSizePixels(3300, 2550);
    printout.SetPPIPrinter(300, 300);
    printout.SetDC(&dc);
    printout.OnPreparePrinting();
    EXPECT_TRUE(printout.OnPrintPage(1));
    EXPECT_TRUE(waitUntil([] { return holdsKeyboard(ProgressWindow()); }));
  };
  printFromPreview();
  EXPECT_EQ(ProgressWindow(), nullptr);
  EXPECT_TRUE(waitUntil([this] { return holdsKeyboard(previewWindow()); }));
}

TEST_F(Printing, LeavesTheKeyboardWithTheCanvas) {
  showFrame();
  frame().canvas().SetFocus();
  EXPECT_TRUE(waitUntil([this] { return frame().canvas().HasFocus(); }));
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  command(5010);
  EXPECT_TRUE(waitUntil([this] { return frame().canvas().HasFocus(); }));
}

TEST_F(Printing, FromAPreviewTellsAProblemOfThePrinter) {
  showFrame();
  printer_.outcome = wxPRINTER_ERROR;
  command(5013);
  ModalScript script;
  script.box("Print", kProblem, kErrorBox, wxID_OK);
  printFromPreview();
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
}

TEST_F(Printing, FromAPreviewManySheetsAreAskedAboutToo) {
  showFrame();
  plan().baseboard = {{0, 0}, {10000, 0}, {10000, 4000}, {0, 4000}};
  const std::string question =
      "At this scale the layout takes about 819 sheets of paper.\n\nPrint it?";
  ModalScript script;
  script.shown("Print Options", ChooseFullSize).box("Print", question, kCautiousBox, wxID_NO);
  command(5010);
  command(5013);  // is shown without a question
  script.box("Print", question, kCautiousBox, wxID_NO);
  printFromPreview();
  EXPECT_EQ(printer_.prints, 0);
  script.box("Print", question, kCautiousBox, wxID_YES);
  printFromPreview();
  EXPECT_EQ(printer_.prints, 1);
}

TEST_F(Printing, APreviewOfAnAbsurdNumberOfSheetsOpensAndShowsTheFirst) {
  showFrame();
  plan().baseboard = {{0, 0}, {1e300, 0}, {1e300, 1e300}};
  ModalScript script;
  script.shown("Print Options", ChooseFullSize)
      .box("Print",
           "At this scale the layout takes more than 10,000 sheets of paper.\n\nChoose a smaller "
           "scale, or look for something that lies far away from the rest.",
           wxOK | wxICON_WARNING, wxID_OK);
  command(5010);
  openPaintedPreview();  // which draws one sheet: a walk over all would never end
  auto* window = dynamic_cast<wxPreviewFrame*>(previewWindow());
  ASSERT_NE(window, nullptr);
  wxPrintPreviewBase* preview = window->GetControlBar()->GetPrintPreview();
  EXPECT_EQ(preview->GetCurrentPage(), 1);
  EXPECT_EQ(preview->GetMaxPage(), std::numeric_limits<int>::max());
}

TEST_F(Printing, TheFrameMayEndBeneathAnOpenPreview) {
  addHiddenLevel();
  showFrame();
  openPaintedPreview();
  EXPECT_FALSE(plan().levels.back().visible);
  delete frame_;
  frame_ = nullptr;
  EXPECT_EQ(previewWindow(), nullptr);
}

}  // namespace
}  // namespace vantrel
