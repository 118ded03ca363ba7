#include "properties/wrapped_label.h"

#include <wx/dcclient.h>

namespace vantrel {
namespace {

// No line holds more letters, whatever the panel's width: what lies behind needn't be measured.
constexpr std::size_t kLongestLine = 400;

// A longer tooltip would fill the screen.
constexpr std::size_t kLongestTip = 1000;

const wxUniChar kEllipsis(0x2026);

}  // namespace

WrappedLabel::WrappedLabel(wxWindow* parent, int maxLines)
    : wxStaticText(parent, wxID_ANY, wxString()), maxLines_(maxLines) {}

bool WrappedLabel::wrapTo(int width) {
  const wxString broken = brokenText(width);
  if (broken == GetLabelText()) return false;
  SetLabelText(broken);
  if (!broken.EndsWith(kEllipsis))
    UnsetToolTip();
  else if (text_.length() <= kLongestTip)
    SetToolTip(text_);
  else
    SetToolTip(text_.Left(kLongestTip) + kEllipsis);
  return true;
}

wxString WrappedLabel::brokenText(int width) const {
  wxString broken;
  wxString rest = text_;
  for (int line = 1; !rest.empty(); ++line) {
    const wxString paragraph = rest.BeforeFirst('\n');
    const std::size_t end = lineEnd(paragraph, width);
    const bool paragraphEnds = end == paragraph.length();
    if (line == maxLines_ && end < rest.length())
      return broken + shortened(paragraph.Left(kLongestLine), width);
    broken += paragraph.Left(end).Trim();
    // The line break of the text goes with its line, and so do the blanks at one that is made here.
    rest = paragraphEnds ? rest.Mid(end + 1) : rest.Mid(end).Trim(false);
    if (!rest.empty()) broken += '\n';
  }
  return broken;
}

// Where the first line of a paragraph ends: behind the last blank that fits or, in a word that is
// longer than the line, behind the last letter that fits. At least one letter is taken.
std::size_t WrappedLabel::lineEnd(const wxString& paragraph, int width) const {
  const wxString ahead = paragraph.Left(kLongestLine);
  wxArrayInt ends;
  wxClientDC dc(const_cast<WrappedLabel*>(this));
  dc.SetFont(GetFont());
  dc.GetPartialTextExtents(ahead, ends);
  std::size_t fitting = 0;
  while (fitting < ends.size() && ends[fitting] <= width) ++fitting;
  if (fitting == paragraph.length()) return fitting;
  const std::size_t blank = ahead.rfind(' ', fitting);
  if (blank != wxString::npos && blank > 0) return blank + 1;
  return fitting > 0 ? fitting : 1;
}

wxString WrappedLabel::shortened(wxString line, int width) const {
  while (!line.empty() && GetTextExtent(line + kEllipsis).x > width) line.RemoveLast();
  return line.Trim() + kEllipsis;
}

}  // namespace vantrel
