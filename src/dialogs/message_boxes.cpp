#include "dialogs/message_boxes.h"

#include <wx/msgdlg.h>

#include "app/services/box_text.h"
#include "app/services/wx_text.h"

namespace vantrel {
namespace {

int Box(wxWindow* parent, const std::string& title, const std::string& text, long style) {
  return wxMessageBox(BoxText(ToWx(text)), ToWx(title), style, parent);
}

}  // namespace

void Inform(wxWindow* parent, const std::string& title, const std::string& text) {
  Box(parent, title, text, wxOK | wxICON_INFORMATION);
}

void Warn(wxWindow* parent, const std::string& title, const std::string& text) {
  Box(parent, title, text, wxOK | wxICON_WARNING);
}

void ReportError(wxWindow* parent, const std::string& title, const std::string& text,
                 const std::string& reason) {
  if (reason.empty()) {
    Box(parent, title, text, wxOK | wxICON_ERROR);
    return;
  }
  wxMessageDialog dialog(parent, BoxText(ToWx(text)), ToWx(title), wxOK | wxICON_ERROR | wxCENTRE);
  dialog.SetExtendedMessage(ToWx(reason));
  dialog.ShowModal();
}

bool AskQuestion(wxWindow* parent, const std::string& title, const std::string& text) {
  return Box(parent, title, text, wxYES_NO | wxICON_QUESTION) == wxYES;
}

bool AskCautiously(wxWindow* parent, const std::string& title, const std::string& text) {
  return Box(parent, title, text, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION) == wxYES;
}

bool AskWithWarning(wxWindow* parent, const std::string& title, const std::string& text) {
  return Box(parent, title, text, wxYES_NO | wxNO_DEFAULT | wxICON_WARNING) == wxYES;
}

SaveAnswer AskToSave(const std::string& title, const std::string& text) {
  switch (Box(nullptr, title, text, wxYES_NO | wxCANCEL | wxICON_QUESTION)) {
    case wxYES:
      return SaveAnswer::save;
    case wxNO:
      return SaveAnswer::discard;
    default:
      return SaveAnswer::cancel;
  }
}

}  // namespace vantrel
