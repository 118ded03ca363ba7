// A static text that breaks into as many lines as its width asks for, and ends with an ellipsis
// where even those don't hold it; the tooltip then has the whole.
#pragma once

#include <wx/stattext.h>

namespace vantrel {

class WrappedLabel : public wxStaticText {
 public:
  WrappedLabel(wxWindow* parent, int maxLines);

  // Takes a new text, taken as it is, ampersands included. Call wrapTo() afterwards.
  void setText(const wxString& text) { text_ = text; }
  const wxString& text() const { return text_; }

  // Breaks the text for a width in pixels. True when other lines show than before: the parent has
  // to be laid out anew then.
  bool wrapTo(int width);

 private:
  wxString brokenText(int width) const;
  std::size_t lineEnd(const wxString& paragraph, int width) const;
  wxString shortened(wxString line, int width) const;

  wxString text_;
  int maxLines_;
};

}  // namespace vantrel
