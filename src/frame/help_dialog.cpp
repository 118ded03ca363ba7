#include "frame/help_dialog.h"

#include <wx/button.h>
#include <wx/hyperlink.h>
#include <wx/scrolwin.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textwrapper.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "app/services/pictures.h"
#include "app/services/prefs.h"
#include "app/services/store_address.h"
#include "app/services/wx_text.h"
#include "frame/help_topics.h"

namespace vantrel {
namespace {

const wxSize kDialogSize(925, 700);
const wxSize kPictureSize(368, 660);
constexpr int kWrapWidth = 490;  // pixels, with and without a picture
constexpr int kBorder = 8;
constexpr int kPageBorder = 4;
constexpr int kScrollRate = 12;
constexpr int kLineSteps = 3;  // of the scroll rate, for an arrow key
constexpr int kLinkGap = 4;
constexpr int kColumnGap = 16;
constexpr int kRowGap = 3;
constexpr int kLeastHeight = 240;

// The scroll position that a key leads to, or nothing for a key that doesn't scroll.
std::optional<int> ScrollTarget(int key, int position, int pageSteps, int end) {
  switch (key) {
    case WXK_UP:
    case WXK_NUMPAD_UP:
      return position - kLineSteps;
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
      return position + kLineSteps;
    case WXK_PAGEUP:
    case WXK_NUMPAD_PAGEUP:
      return position - pageSteps;
    case WXK_PAGEDOWN:
    case WXK_NUMPAD_PAGEDOWN:
      return position + pageSteps;
    case WXK_HOME:
    case WXK_NUMPAD_HOME:
      return 0;
    case WXK_END:
    case WXK_NUMPAD_END:
      return end;
    default:
      return {};
  }
}

// A static text that wraps itself is measured twice, and a long one takes its time.
class LineBreaks : public wxTextWrapper {
 public:
  static wxString In(wxWindow& window, const wxString& text, int width) {
    LineBreaks breaks;
    breaks.Wrap(&window, text, width);
    return breaks.wrapped_;
  }

 private:
  void OnOutputLine(const wxString& line) override { wrapped_ += line; }
  void OnNewLine() override { wrapped_ += '\n'; }

  wxString wrapped_;
};

}  // namespace

HelpDialog::HelpDialog(wxWindow* parent)
    : HelpDialog(parent, Prefs().playful ? LoadPicture(kHelpPicture) : wxImage()) {}

HelpDialog::HelpDialog(wxWindow* parent, const wxImage& sidePicture, LinkOpener openLink)
    : wxDialog(parent, wxID_ANY, "Vantrel v1.5 Help", wxDefaultPosition, kDialogSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      openLink_(std::move(openLink)) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  wxSizer* const text = buildText();
  wxSize least = text->CalcMin();
  if (Prefs().playful && sidePicture.IsOk()) {
    const wxBitmap picture(sidePicture.Scale(kPictureSize.x, kPictureSize.y, wxIMAGE_QUALITY_HIGH));
    row->Add(new wxStaticBitmap(this, wxID_ANY, picture), 0, wxALL, kBorder);
    least.x += kPictureSize.x + 2 * kBorder;
  }
  row->Add(text, 1, wxEXPAND);
  SetSizer(row);
  SetMinClientSize(least);
  Bind(wxEVT_CHAR_HOOK, &HelpDialog::onKey, this);
  Centre(wxBOTH);
}

wxSizer* HelpDialog::buildText() {
  page_ = new wxScrolledWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxVSCROLL);
  page_->SetScrollRate(0, kScrollRate);
  wxSizer* const topics = buildTopics();
  page_->SetSizer(topics);
  page_->FitInside();
  // The scroll bar takes its room from the text.
  page_->SetMinSize(wxSize(
      topics->CalcMin().x + wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, page_), kLeastHeight));
  auto* close = new wxButton(this, wxID_OK, "Close");
  close->SetDefault();
  close->SetFocus();
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(page_, 1, wxEXPAND | wxALL, kPageBorder);
  column->Add(close, 0, wxALIGN_RIGHT | wxALL, kBorder);
  return column;
}

wxSizer* HelpDialog::buildTopics() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  for (const HelpTopic& topic : HelpTopics()) addTopic(*column, topic);
  return column;
}

void HelpDialog::addTopic(wxSizer& column, const HelpTopic& topic) {
  wxStaticText* const heading = newText(topic.heading);
  heading->SetFont(heading->GetFont().Bold().Larger());
  column.Add(heading, 0, wxTOP, kBorder);
  if (!topic.text.empty()) addBody(column, topic.text);
  if (!topic.linkLead.empty()) column.Add(buildLink(topic.linkLead), 0, wxLEFT | wxRIGHT, kBorder);
  if (topic.shortcuts) column.Add(buildShortcuts(), 0, wxLEFT | wxRIGHT | wxBOTTOM, kBorder);
  if (!topic.textBehind.empty()) addBody(column, topic.textBehind);
}

void HelpDialog::addBody(wxSizer& column, const std::string& text) {
  auto* body = new wxStaticText(page_, wxID_ANY, LineBreaks::In(*page_, ToWx(text), kWrapWidth));
  column.Add(body, 0, wxLEFT | wxRIGHT | wxBOTTOM, kBorder);
}

wxSizer* HelpDialog::buildLink(const std::string& lead) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(newText(lead), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kLinkGap);
  auto* link = new wxHyperlinkCtrl(page_, wxID_ANY, "Kelmor", kStoreAddress);
  FollowLink(*link, openLink_);
  row->Add(link, 0, wxALIGN_CENTRE_VERTICAL);
  return row;
}

wxSizer* HelpDialog::buildShortcuts() {
  auto* grid = new wxFlexGridSizer(2, kRowGap, kColumnGap);
  std::vector<wxStaticText*> actions;
  int keysWidth = 0;
  for (const HelpShortcut& shortcut : HelpShortcuts()) {
    wxStaticText* const keys = newText(shortcut.keys);
    keysWidth = std::max(keysWidth, keys->GetBestSize().x);
    actions.push_back(newText(shortcut.action));
    grid->Add(keys);
    grid->Add(actions.back());
  }
  for (wxStaticText* action : actions) action->Wrap(kWrapWidth - keysWidth - kColumnGap);
  return grid;
}

wxStaticText* HelpDialog::newText(const std::string& text) {
  return new wxStaticText(page_, wxID_ANY, ToWx(text));
}

// The page has nothing to hold the focus, so that it would get no keys of its own.
void HelpDialog::onKey(wxKeyEvent& event) {
  const int position = page_->GetViewStart().y;
  const int shown = page_->GetClientSize().y / kScrollRate;
  const int end = page_->GetVirtualSize().y / kScrollRate;
  const std::optional<int> target =
      event.HasAnyModifiers()
          ? std::nullopt
          : ScrollTarget(event.GetKeyCode(), position, std::max(shown - kLineSteps, 1), end);
  if (!target) {
    event.Skip();
    return;
  }
  page_->Scroll(-1, std::clamp(*target, 0, end));
}

}  // namespace vantrel
