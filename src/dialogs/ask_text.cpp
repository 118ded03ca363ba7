#include "dialogs/ask_text.h"

#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include "app/services/one_line_field.h"
#include "app/services/wx_text.h"
#include "dialogs/message_boxes.h"
#include "io/readable_names.h"

namespace vantrel {
namespace {

bool ConfirmsName(wxWindow* parent, const std::string& title, const std::string& what) {
  return AskCautiously(parent, title,
                       what +
                           " could not be opened again: the end of the name would be read as a "
                           "setting.\n\nUse this name all the same?");
}

}  // namespace

std::optional<std::string> AskText(wxWindow* parent, const std::string& prompt,
                                   const std::string& title, const std::string& value,
                                   const std::function<bool(const std::string&)>& accepts) {
  wxTextEntryDialog dialog(parent, ToWx(prompt), ToWx(title), ToWx(value));
  for (wxWindow* child : dialog.GetChildren())
    if (auto* field = dynamic_cast<wxTextCtrl*>(child)) KeepOnOneLine(*field);
  while (dialog.ShowModal() == wxID_OK) {
    std::string text = ToUtf8(WithoutLineBreaks(dialog.GetValue()));
    if (!accepts || accepts(text)) return text;
  }
  return std::nullopt;
}

bool ConfirmsLayoutName(wxWindow* parent, const std::string& name) {
  return IsReadableLayoutName(name) ||
         ConfirmsName(parent, "Layout Name", "A layout named \"" + name + "\"");
}

bool ConfirmsLevelName(wxWindow* parent, const std::string& name) {
  return IsReadableLevelName(name) ||
         ConfirmsName(parent, "Level Name", "A layout with a level named \"" + name + "\"");
}

}  // namespace vantrel
