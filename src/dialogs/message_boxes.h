// The flavours of message box that the program uses. Titles and texts are UTF-8.
#pragma once

#include <string>

class wxWindow;

namespace vantrel {

// `parent` may be null.
void Inform(wxWindow* parent, const std::string& title, const std::string& text);
void Warn(wxWindow* parent, const std::string& title, const std::string& text);
// `reason`, unless it is empty, stands below the text, smaller.
void ReportError(wxWindow* parent, const std::string& title, const std::string& text,
                 const std::string& reason = {});

// Yes and No; true for Yes.
bool AskQuestion(wxWindow* parent, const std::string& title, const std::string& text);
// The same with No as the default.
bool AskCautiously(wxWindow* parent, const std::string& title, const std::string& text);
// The same with No as the default and a warning sign.
bool AskWithWarning(wxWindow* parent, const std::string& title, const std::string& text);

enum class SaveAnswer { save, discard, cancel };
// Yes, No and Cancel.
SaveAnswer AskToSave(const std::string& title, const std::string& text);

}  // namespace vantrel
