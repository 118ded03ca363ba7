// Print with the printer's own dialog on the screen, up to where a printer would come in.
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <wx/print.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/timer.h>
#include <wx/weakref.h>

#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

template <typename Function>
Function* Native(const char* name) {
  auto* const function = reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
  EXPECT_NE(function, nullptr) << name;
  return function;
}

struct NativeList {
  void* data;
  NativeList* next;
  NativeList* previous;
};

// The printer's dialog, once it is on the screen. No window of the toolkit stands for it.
void* ShownPrintDialog() {
  NativeList* const windows = Native<NativeList*()>("gtk_window_list_toplevels")();
  void* shown = nullptr;
  for (const NativeList* item = windows; item != nullptr; item = item->next) {
    const char* type = Native<const char*(void*)>("g_type_name_from_instance")(item->data);
    if (std::strcmp(type, "GtkPrintUnixDialog") == 0 &&
        Native<int(void*)>("gtk_widget_get_mapped")(item->data) != 0)
      shown = item->data;
  }
  Native<void(NativeList*)>("g_list_free")(windows);
  return shown;
}

constexpr int kPreviewButton = -10;
constexpr int kCancelButton = -6;

void Press(void* dialog, int button) {
  void* const widget =
      Native<void*(void*, int)>("gtk_dialog_get_widget_for_response")(dialog, button);
  ASSERT_NE(widget, nullptr);
  Native<void(void*)>("gtk_button_clicked")(widget);
}

void ChooseUprightA5(void* dialog) {
  void* const page = Native<void*()>("gtk_page_setup_new")();
  void* const paper = Native<void*(const char*)>("gtk_paper_size_new")("iso_a5");
  Native<void(void*, void*)>("gtk_page_setup_set_paper_size_and_default_margins")(page, paper);
  Native<void(void*, int)>("gtk_page_setup_set_orientation")(page, 0);
  Native<void(void*, void*)>("gtk_print_unix_dialog_set_page_setup")(dialog, page);
  Native<void(void*)>("gtk_paper_size_free")(paper);
  Native<void(void*)>("g_object_unref")(page);
}

// Does something in the printer's dialog as soon as it is seen.
class Visitor : public wxTimer {
 public:
  explicit Visitor(std::function<void(void*)> action) : action_(std::move(action)) { Start(20); }
  void Notify() override {
    void* const dialog = ShownPrintDialog();
    if (dialog == nullptr) return;
    Stop();
    action_(dialog);
  }

 private:
  std::function<void(void*)> action_;
};

class PrintDialog : public FrameTest {
 protected:
  // The next dialog is the printer's.
  void visitPrinter(ModalScript& script, std::function<void(void*)> action) {
    script.dialog("Print", wxID_NONE, [this, action = std::move(action)](wxDialog&) {
      visitor_ = std::make_unique<Visitor>(action);
    });
  }

  static std::vector<wxPreviewFrame*> previews() {
    std::vector<wxPreviewFrame*> found;
    for (wxWindow* window : wxTopLevelWindows) {
      auto* const preview = dynamic_cast<wxPreviewFrame*>(window);
      if (preview != nullptr && !wxTheApp->IsScheduledForDestruction(preview))
        found.push_back(preview);
    }
    return found;
  }
  static void handleAll() {
    wxTheApp->Yield();
    wxTheApp->ProcessIdle();
  }
  static const wxPrintData& dataOf(wxPreviewFrame& window) {
    return window.GetControlBar()->GetPrintPreview()->GetPrintDialogData().GetPrintData();
  }
  // The pages are laid out when the first is painted.
  static int sheetsIn(wxPreviewFrame& window) {
    constexpr int kPasses = 2000;
    const wxPrintPreviewBase& preview = *window.GetControlBar()->GetPrintPreview();
    for (int pass = 0; pass < kPasses && preview.GetMaxPage() == 1; ++pass) {
      handleAll();
      wxMilliSleep(5);
    }
    return preview.GetMaxPage();
  }

  std::unique_ptr<Visitor> visitor_;
};

TEST_F(PrintDialog, ItsPreviewButtonShowsTheProgramsOwnPreview) {
  showFrame();
  plan().levels.push_back({});
  plan().levels.back().id = 7;
  const std::vector<Level> levels = plan().levels;
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  visitPrinter(script, [](void* dialog) { Press(dialog, kPreviewButton); });
  command(5010);
  ASSERT_EQ(previews().size(), 1u);
  wxPreviewFrame& preview = *previews()[0];
  EXPECT_EQ(preview.GetTitle(), "Print Preview -- Vantrel");
  EXPECT_TRUE(preview.IsShown());
  EXPECT_TRUE(preview.IsEnabled());
  EXPECT_FALSE(frame().IsEnabled());
  EXPECT_EQ(plan().levels, levels);
  preview.Close();
  handleAll();
  EXPECT_TRUE(frame().IsEnabled());
}

// Chooses 1:1.
void ChooseFullSize(wxDialog& dialog) {
  FindControl<wxRadioBox>(dialog)->SetSelection(1);
  FindControl<wxSpinCtrl>(dialog)->SetValue(1);
  wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
  dialog.ProcessWindowEvent(ok);
}

// Chooses one and a half times the fitting size.
void ChooseHalfAsMuchAgain(wxDialog& dialog) {
  FindControl<wxRadioBox>(dialog)->SetSelection(2);
  FindControls<wxSpinCtrl>(dialog).at(1)->SetValue(150);
  wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
  dialog.ProcessWindowEvent(ok);
}

TEST_F(PrintDialog, ItsPreviewShowsThePaperChosenThereWithTheOptionsOfThisPrint) {
  showFrame();
  // An upright A5 sheet shows 136 by 193 mm. One metre fits across, and is then 109 mm high; half
  // as much again takes two sheets across and one down. A letter across would take two by two.
  plan().baseboard = {{0, 0}, {1000, 0}, {1000, 800}, {0, 800}};
  ModalScript script;
  script.shown("Print Options", ChooseHalfAsMuchAgain);
  visitPrinter(script, [](void* dialog) {
    ChooseUprightA5(dialog);
    Press(dialog, kPreviewButton);
  });
  command(5010);
  ASSERT_EQ(previews().size(), 1u);
  EXPECT_EQ(dataOf(*previews()[0]).GetPaperId(), wxPAPER_A5);
  EXPECT_EQ(dataOf(*previews()[0]).GetOrientation(), wxPORTRAIT);
  EXPECT_EQ(sheetsIn(*previews()[0]), 2);
  // Nothing is printed yet.
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
  EXPECT_EQ(frame().printData().GetOrientation(), wxLANDSCAPE);
}

TEST_F(PrintDialog, ItsPreviewTakesThePlaceOfThePreviewThatItWasOpenedFrom) {
  showFrame();
  command(5013);
  ASSERT_EQ(previews().size(), 1u);
  const wxWeakRef<wxPreviewFrame> first(previews()[0]);
  EXPECT_EQ(dataOf(*first).GetPaperId(), wxPAPER_LETTER);
  ModalScript script;
  visitPrinter(script, [](void* dialog) {
    ChooseUprightA5(dialog);
    Press(dialog, kPreviewButton);
  });
  first->GetControlBar()->OnPrint();
  handleAll();
  EXPECT_EQ(first.get(), nullptr);
  ASSERT_EQ(previews().size(), 1u);
  EXPECT_EQ(dataOf(*previews()[0]).GetPaperId(), wxPAPER_A5);
  EXPECT_TRUE(previews()[0]->IsShown());
  EXPECT_TRUE(previews()[0]->IsEnabled());
  EXPECT_FALSE(frame().IsEnabled());
  EXPECT_EQ(frame().printData().GetPaperId(), wxPAPER_LETTER);
  previews()[0]->Close();
  handleAll();
  EXPECT_TRUE(frame().IsEnabled());
}

TEST_F(PrintDialog, ItsPreviewAsksAboutTheSheetsOfItsOwnPaper) {
  showFrame();
  // At 1:1 a letter across shows 257 by 199 mm: 6,000 by 700 mm are 24 by 4 sheets, 96, which need
  // no question. An upright A5 sheet shows 136 by 193 mm: 45 by 4.
  plan().baseboard = {{0, 0}, {6000, 0}, {6000, 700}, {0, 700}};
  ModalScript script;
  script.shown("Print Options", ChooseFullSize);
  visitPrinter(script, [](void* dialog) {
    ChooseUprightA5(dialog);
    Press(dialog, kPreviewButton);
  });
  command(5010);
  ASSERT_EQ(previews().size(), 1u);
  script.box("Print", "At this scale the layout takes about 180 sheets of paper.\n\nPrint it?",
             kCautiousBox, wxID_NO);
  previews()[0]->GetControlBar()->OnPrint();
}

TEST_F(PrintDialog, ACancelThereOpensNoPreview) {
  showFrame();
  ModalScript script;
  script.dialog("Print Options", wxID_OK);
  visitPrinter(script, [](void* dialog) { Press(dialog, kCancelButton); });
  command(5010);
  EXPECT_TRUE(previews().empty());
  EXPECT_TRUE(frame().IsEnabled());
}

}  // namespace
}  // namespace vantrel
