#include "palette/piece_preview_popup.h"

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/panel.h>

#include "catalog/track_catalog.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

class PreviewPopup : public testing::Test {
 protected:
  void SetUp() override {
    frame = new wxFrame(nullptr, wxID_ANY, "popup");
    parent = new wxPanel(frame);
    popup = new PiecePreviewPopup(parent);
  }

  void TearDown() override { delete frame; }

  void activate(bool active) {
    wxActivateEvent event(wxEVT_ACTIVATE, active);
    event.SetEventObject(frame);
    frame->GetEventHandler()->ProcessEvent(event);
  }

  const PieceDef* part = findPart("24188");
  wxFrame* frame = nullptr;
  wxPanel* parent = nullptr;
  PiecePreviewPopup* popup = nullptr;
};

TEST_F(PreviewPopup, StartsHiddenAndEmptyAndIs80By55) {
  EXPECT_FALSE(popup->IsShown());
  EXPECT_EQ(popup->def(), nullptr);
  EXPECT_EQ(popup->GetSize(), wxSize(80, 55));
  EXPECT_TRUE(popup->HasFlag(wxBORDER_SIMPLE));
}

TEST_F(PreviewPopup, HidingItForgetsThePartEvenWhenItWasHidden) {
  popup->setDef(part);
  popup->Hide();
  EXPECT_EQ(popup->def(), nullptr);

  popup->setDef(part);
  popup->Show();
  EXPECT_EQ(popup->def(), part);
  popup->Show(false);
  EXPECT_EQ(popup->def(), nullptr);
  EXPECT_FALSE(popup->IsShown());
}

TEST_F(PreviewPopup, HidesAndForgetsWhenItsParentLosesTheFocus) {
  popup->setDef(part);
  popup->Show();
  wxFocusEvent event(wxEVT_KILL_FOCUS, parent->GetId());
  event.SetEventObject(parent);
  parent->GetEventHandler()->ProcessEvent(event);
  EXPECT_EQ(popup->def(), nullptr);
  EXPECT_FALSE(popup->IsShown());
}

TEST_F(PreviewPopup, HidesAndForgetsOnDeactivationAndStaysOnActivation) {
  popup->setDef(part);
  popup->Show();
  activate(true);
  EXPECT_EQ(popup->def(), part);
  EXPECT_TRUE(popup->IsShown());
  activate(false);
  EXPECT_EQ(popup->def(), nullptr);
  EXPECT_FALSE(popup->IsShown());
}

TEST_F(PreviewPopup, MayBeDestroyedBeforeItsParent) {
  popup->Destroy();
  activate(false);
  wxFocusEvent event(wxEVT_KILL_FOCUS, parent->GetId());
  EXPECT_FALSE(parent->GetEventHandler()->ProcessEvent(event));
}

TEST(PreviewPaint, WithoutAPartIsOnlyTheGround) {
  RecordingDC dc({80, 55});
  paintPreview({}, dc, nullptr);
  ASSERT_EQ(dc.calls().size(), 1u);
  EXPECT_EQ(dc.calls()[0].op, DrawOp::clear);
  EXPECT_EQ(dc.calls()[0].background, SolidBrush({255, 255, 240}));
}

TEST(PreviewPaint, ShowsAFrameThePartNumberAndThePart) {
  RecordingDC dc({80, 55});
  paintPreview({}, dc, findPart("24188"));
  ASSERT_EQ(dc.calls().size(), 4u);
  EXPECT_EQ(dc.calls()[0].op, DrawOp::clear);
  const DrawCall& edge = dc.calls()[1];
  EXPECT_EQ(edge.op, DrawOp::rectangle);
  EXPECT_EQ(edge.box, wxRect(0, 0, 80, 55));
  EXPECT_EQ(edge.brush.style, wxBRUSHSTYLE_TRANSPARENT);
  EXPECT_EQ(edge.pen, SolidPen({180, 180, 180}, 1));
  const DrawCall& number = dc.calls()[2];
  EXPECT_EQ(number.text, "24188");
  // Five characters of 7 make 35: (80 - 35) / 2 = 22.
  EXPECT_EQ(number.points[0], wxPoint(22, 2));
  EXPECT_EQ(number.font.pointSize, 7);
  EXPECT_EQ(number.font.weight, wxFONTWEIGHT_BOLD);
  EXPECT_EQ(number.textForeground, (Rgba{60, 60, 60}));
  // x: 12.8 and 12.8 + 68 * 0.8 = 67.2; y: 30.5 +- 18.7 * 0.288901 = 35.90 and 25.10.
  EXPECT_EQ(dc.calls()[3].points, (std::vector<wxPoint>{{12, 35}, {12, 25}, {67, 25}, {67, 35}}));
}

}  // namespace
}  // namespace vantrel
