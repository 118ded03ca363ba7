#include "dialogs/ask_text.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/textdlg.h>

#include "tests/dialogs/dialog_fixture.h"

namespace vantrel {
namespace {

class AskTextBox : public DialogTest {
 protected:
  std::optional<std::string> ask(const std::function<bool(const std::string&)>& accepts = {}) {
    return AskText(parent_, "Block name:", "Save Library Block", "Yard", accepts);
  }
};

ModalScript::Action Type(const wxString& text) {
  return [text](wxDialog& dialog) { FindControl<wxTextCtrl>(dialog)->SetValue(text); };
}

TEST_F(AskTextBox, OffersAValueAndGivesWhatWasTyped) {
  ModalScript script;
  script.dialog("Save Library Block", wxID_OK, [](wxDialog& dialog) {
    EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "Yard");
    dynamic_cast<wxTextEntryDialog&>(dialog).SetValue("  North ");
  });
  EXPECT_EQ(ask(), "  North ");
}

TEST_F(AskTextBox, GivesNothingOnCancel) {
  ModalScript script;
  script.dialog("Save Library Block", wxID_CANCEL, Type("North"));
  EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(AskTextBox, AsksAgainFromATextThatIsNotAccepted) {
  ModalScript script;
  script.dialog("Save Library Block", wxID_OK,
                [](wxDialog& dialog) { dynamic_cast<wxTextEntryDialog&>(dialog).SetValue("bad"); });
  script.dialog("Save Library Block", wxID_OK, [](wxDialog& dialog) {
    EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "bad");
    dynamic_cast<wxTextEntryDialog&>(dialog).SetValue("good");
  });
  EXPECT_EQ(ask([](const std::string& text) { return text == "good"; }), "good");
  EXPECT_TRUE(script.finished());
}

TEST_F(AskTextBox, ShowsAPastedTextOnOneLineWithTheCursorBehindIt) {
  if (!wxTheClipboard->Open()) GTEST_SKIP() << "no clipboard";
  wxTheClipboard->SetData(new wxTextDataObject("North\nyard"));
  wxTheClipboard->Close();
  ModalScript script;
  script.shown("Save Library Block", [](wxDialog& dialog) {
    wxTextCtrl& field = *FindControl<wxTextCtrl>(dialog);
    field.SetInsertionPoint(0);
    field.SetSelection(0, 0);
    field.Paste();
    for (int i = 0; i < 1000 && field.GetValue() == "Yard"; ++i) {
      wxTheApp->Yield();
      wxMilliSleep(5);
    }
    EXPECT_EQ(field.GetValue(), "North yardYard");
    EXPECT_EQ(field.GetInsertionPoint(), 10);
    dialog.EndModal(wxID_OK);
  });
  ask();
}

}  // namespace
}  // namespace vantrel
