// The program's manual as plain data: topics in the order in which they stand, and the list of
// shortcuts. How it looks is the help dialog's affair.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace vantrel {

// Texts are UTF-8, paragraphs are parted by an empty line. What is empty isn't shown. Below the
// heading come, in this order: the text, a line that ends in a link to the maker, the table of
// shortcuts, and the text that goes on behind.
struct HelpTopic {
  std::string heading = {};
  std::string text = {};
  std::string linkLead = {};  // what stands before the link "Kelmor"; empty for no link
  bool shortcuts = false;
  std::string textBehind = {};
};

struct HelpShortcut {
  const char* keys = "";
  const char* action = "";
};

// All topics, made at the first call.
const std::vector<HelpTopic>& HelpTopics();

std::span<const HelpShortcut> HelpShortcuts();

}  // namespace vantrel
