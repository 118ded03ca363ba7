#include "properties/wrapped_label.h"

#include <gtest/gtest.h>
#include <wx/frame.h>

#include <vector>

namespace vantrel {
namespace {

class WrappedLabelTest : public testing::Test {
 protected:
  WrappedLabelTest() : frame(new wxFrame(nullptr, wxID_ANY, "label")) {}
  ~WrappedLabelTest() override { delete frame; }

  int widthOf(const wxString& text) const { return frame->GetTextExtent(text).x; }
  WrappedLabel& make(const wxString& text, int lines = 10) {
    auto* label = new WrappedLabel(frame, lines);
    label->setText(text);
    return *label;
  }

  wxFrame* frame;
};

TEST_F(WrappedLabelTest, BreaksAtTheLastBlankThatFits) {
  WrappedLabel& label = make("one two three");
  EXPECT_TRUE(label.wrapTo(widthOf("one two three")));
  EXPECT_EQ(label.GetLabelText(), "one two three");
  EXPECT_TRUE(label.wrapTo(widthOf("one two three") - 1));
  EXPECT_EQ(label.GetLabelText(), "one two\nthree");
  EXPECT_TRUE(label.wrapTo(widthOf("three")));
  EXPECT_EQ(label.GetLabelText(), "one\ntwo\nthree");
}

TEST_F(WrappedLabelTest, SaysWhetherOtherLinesShow) {
  WrappedLabel& label = make("one two");
  EXPECT_TRUE(label.wrapTo(1000));
  EXPECT_FALSE(label.wrapTo(1000));
  EXPECT_FALSE(label.wrapTo(900));
  label.setText("three");
  EXPECT_TRUE(label.wrapTo(900));
}

TEST_F(WrappedLabelTest, BreaksAWordThatIsLongerThanALine) {
  WrappedLabel& label = make("MMMMMMMM end");
  label.wrapTo(widthOf("MMMMM"));
  EXPECT_EQ(label.GetLabelText(), "MMMMM\nMMM\nend");
}

TEST_F(WrappedLabelTest, ShortensWhatItsLinesDontHoldAndTellsTheWholeInItsTip) {
  WrappedLabel& label = make("alpha beta gamma delta", 2);
  label.wrapTo(widthOf("gamma d") + 2);
  EXPECT_TRUE(label.GetLabelText().StartsWith("alpha\n") ||
              label.GetLabelText().StartsWith("alpha beta\n"));
  EXPECT_TRUE(label.GetLabelText().EndsWith(wxString(wxUniChar(0x2026))));
  EXPECT_EQ(label.GetLabelText().Freq('\n'), 1);
  EXPECT_EQ(label.GetToolTipText(), "alpha beta gamma delta");
  label.wrapTo(2000);
  EXPECT_EQ(label.GetLabelText(), "alpha beta gamma delta");
  EXPECT_EQ(label.GetToolTipText(), "");
}

TEST_F(WrappedLabelTest, NoLineIsWiderThanAsked) {
  WrappedLabel& label = make("24188 + 24172 + 24229 + 24188 + 24172 + WWWWWWWWWWWWWWWWWWWWWWW", 3);
  for (int width = 40; width < 300; width += 7) {
    label.wrapTo(width);
    wxString rest = label.GetLabelText();
    EXPECT_LE(rest.Freq('\n'), 2);
    while (!rest.empty()) {
      EXPECT_LE(widthOf(rest.BeforeFirst('\n', &rest)), width);
    }
  }
}

TEST_F(WrappedLabelTest, KeepsTheLineBreaksOfItsText) {
  WrappedLabel& label = make("Set height.\nMax grade: 6 deg.");
  label.wrapTo(1000);
  EXPECT_EQ(label.GetLabelText(), "Set height.\nMax grade: 6 deg.");
  label.wrapTo(widthOf("Max grade:"));
  EXPECT_EQ(label.GetLabelText(), "Set height.\nMax grade:\n6 deg.");
}

TEST_F(WrappedLabelTest, CopesWithNoWidthAndNoText) {
  WrappedLabel& label = make("ab");
  label.wrapTo(0);
  EXPECT_EQ(label.GetLabelText(), "a\nb");
  label.wrapTo(-5);
  EXPECT_EQ(label.GetLabelText(), "a\nb");
  label.setText("");
  label.wrapTo(0);
  EXPECT_EQ(label.GetLabelText(), "");
}

TEST_F(WrappedLabelTest, TakesAmpersandsForLetters) {
  WrappedLabel& label = make("R1&R2 && more");
  label.wrapTo(1000);
  EXPECT_EQ(label.GetLabelText(), "R1&R2 && more");
}

TEST_F(WrappedLabelTest, ATextOfAMillionLettersIsShortenedAtOnce) {
  WrappedLabel& label = make(wxString('m', 1000000), 4);
  label.wrapTo(250);
  EXPECT_LT(label.GetLabelText().length(), 500u);
  EXPECT_EQ(label.GetToolTipText().length(), 1001u);
}

}  // namespace
}  // namespace vantrel
