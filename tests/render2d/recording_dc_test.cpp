#include "tests/support/recording_dc.h"

#include <gtest/gtest.h>
#include <wx/font.h>

namespace vantrel {
namespace {

TEST(RecordingDevice, RemembersEachCallWithThePenAndBrushInForceAtThatMoment) {
  RecordingDC dc;
  dc.SetPen(wxPen(wxColour(1, 2, 3), 4));
  dc.SetBrush(wxBrush(wxColour(5, 6, 7, 80)));
  const wxPoint corners[] = {{0, 0}, {10, 0}, {10, 5}};
  dc.DrawPolygon(3, corners, 100, 200);
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.DrawCircle(50, 60, 7);

  ASSERT_EQ(dc.calls().size(), 2u);
  const DrawCall& polygon = dc.calls()[0];
  EXPECT_EQ(polygon.op, DrawOp::polygon);
  EXPECT_EQ(polygon.points, (std::vector<wxPoint>{{100, 200}, {110, 200}, {110, 205}}));
  EXPECT_EQ(polygon.pen, SolidPen({1, 2, 3}, 4));
  EXPECT_EQ(polygon.brush, SolidBrush({5, 6, 7, 80}));
  const DrawCall& circle = dc.calls()[1];
  EXPECT_TRUE(circle.isCircle());
  EXPECT_EQ(circle.centre(), wxPoint(50, 60));
  EXPECT_EQ(circle.circleRadius(), 7);
  EXPECT_EQ(circle.pen.style, wxPENSTYLE_TRANSPARENT);
  EXPECT_EQ(polygon, dc.callsOf(DrawOp::polygon).front());
  EXPECT_FALSE(polygon == circle);
}

TEST(RecordingDevice, MeasuresTextByCharactersPointSizeAndResolution) {
  RecordingDC screen;
  wxFont font = screen.GetFont();
  font.SetPointSize(6);
  screen.SetFont(font);
  EXPECT_EQ(screen.GetTextExtent("24188"), wxSize(30, 12));
  RecordingDC page({100, 100}, 192);
  page.SetFont(font);
  EXPECT_EQ(page.GetTextExtent("24188"), wxSize(60, 24));
  EXPECT_EQ(screen.measurements(), 1);
  EXPECT_EQ(screen.fontChanges(), 1);
}

TEST(RecordingDevice, RemembersTextWithItsFontAndColours) {
  RecordingDC dc;
  wxFont font = dc.GetFont();
  font.SetPointSize(8);
  font.SetNumericWeight(700);
  dc.SetFont(font);
  dc.SetTextForeground(wxColour(50, 51, 52));
  dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
  dc.DrawText(wxString::FromUTF8("Bahnhof S\xC3\xBC"
                                 "d"),
              3, 4);
  dc.DrawRotatedText("up", 5, 6, 90.0);

  const std::vector<DrawCall> texts = dc.texts(
      "Bahnhof S\xC3\xBC"
      "d");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].points, (std::vector<wxPoint>{{3, 4}}));
  EXPECT_EQ(texts[0].font.pointSize, 8);
  EXPECT_EQ(texts[0].font.weight, 700);
  EXPECT_EQ(texts[0].textForeground, (Rgba{50, 51, 52}));
  EXPECT_EQ(texts[0].backgroundMode, wxBRUSHSTYLE_SOLID);
  EXPECT_EQ(dc.texts("up")[0].startAngle, 90.0);
  dc.forget();
  EXPECT_TRUE(dc.calls().empty());
}

}  // namespace
}  // namespace vantrel
