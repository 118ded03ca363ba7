// Asks for a name or the like, with the toolkit's box for one text.
#pragma once

#include <functional>
#include <optional>
#include <string>

class wxWindow;

namespace vantrel {

// The text as typed, on one line; nothing on Cancel. A text that `accepts` doesn't take is asked
// for again, from itself on. Texts are UTF-8.
std::optional<std::string> AskText(wxWindow* parent, const std::string& prompt,
                                   const std::string& title, const std::string& value,
                                   const std::function<bool(const std::string&)>& accepts = {});

// True for a name that its file will give back, and for one that the user wants all the same.
// Without a further word, another name is meant.
bool ConfirmsLayoutName(wxWindow* parent, const std::string& name);
bool ConfirmsLevelName(wxWindow* parent, const std::string& name);

}  // namespace vantrel
