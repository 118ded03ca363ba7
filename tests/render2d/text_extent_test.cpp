#include "render2d/text_extent.h"

#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

void SetPoints(wxDC& dc, int points, int weight = 400) {
  wxFont font = dc.GetFont();
  font.SetPointSize(points);
  font.SetNumericWeight(weight);
  dc.SetFont(font);
}

TEST(TextExtent, ATextIsMeasuredOncePerFont) {
  RecordingDC dc;
  TextExtents extents;
  SetPoints(dc, 10);
  EXPECT_EQ(MeasureText(extents, dc, "24188").size, wxSize(50, 20));
  SetPoints(dc, 6);
  EXPECT_EQ(MeasureText(extents, dc, "24188").size, wxSize(30, 12));
  SetPoints(dc, 10);
  EXPECT_EQ(MeasureText(extents, dc, "24188").size, wxSize(50, 20));
  EXPECT_EQ(dc.measurements(), 2);
}

TEST(TextExtent, TheWeightIsPartOfTheFont) {
  RecordingDC dc;
  TextExtents extents;
  SetPoints(dc, 10, 400);
  MeasureText(extents, dc, "24188");
  SetPoints(dc, 10, 700);
  MeasureText(extents, dc, "24188");
  EXPECT_EQ(dc.measurements(), 2);
}

TEST(TextExtent, AnotherDeviceIsMeasuredAnew) {
  RecordingDC screen;
  RecordingDC page({1000, 1000}, 960);  // ten times finer
  TextExtents extents;
  SetPoints(screen, 10);
  SetPoints(page, 10);
  EXPECT_EQ(MeasureText(extents, screen, "24188").size, wxSize(50, 20));
  EXPECT_EQ(MeasureText(extents, page, "24188").size, wxSize(500, 200));
  EXPECT_EQ(MeasureText(extents, screen, "24188").size, wxSize(50, 20));
}

TEST(TextExtent, DevicesThatMeasureAlikeShareTheirMeasurements) {
  TextExtents extents{.alikeDevices = true};
  RecordingDC firstPaint;
  SetPoints(firstPaint, 10);
  EXPECT_EQ(MeasureText(extents, firstPaint, "24188").size, wxSize(50, 20));
  RecordingDC secondPaint;
  SetPoints(secondPaint, 10);
  EXPECT_EQ(MeasureText(extents, secondPaint, "24188").size, wxSize(50, 20));
  EXPECT_EQ(firstPaint.measurements(), 1);
  EXPECT_EQ(secondPaint.measurements(), 0);
}

TEST(TextExtent, MeasurementsOfManyFontsAndTextsAreBounded) {
  RecordingDC dc;
  TextExtents extents{.alikeDevices = true};
  for (int points = 1; points <= 500; ++points) {
    SetPoints(dc, points);
    EXPECT_EQ(MeasureText(extents, dc, "24188").size, wxSize(5 * points, 2 * points));
  }
  EXPECT_LE(extents.fonts.size(), 32u);
  SetPoints(dc, 10);
  for (int i = 100000; i < 110000; ++i)
    EXPECT_EQ(MeasureText(extents, dc, std::to_string(i)).size, wxSize(60, 20));
  for (const TextExtents::OfFont& font : extents.fonts) EXPECT_LE(font.texts.size(), 4096u);
}

TEST(TextExtent, AnotherUserScaleIsMeasuredAnew) {
  RecordingDC dc;
  TextExtents extents;
  MeasureText(extents, dc, "24188");
  dc.SetUserScale(2.0, 2.0);
  MeasureText(extents, dc, "24188");
  EXPECT_EQ(dc.measurements(), 2);
}

TEST(TextExtent, AnswersWhatABitmapsDeviceItselfMeasures) {
  wxBitmap bitmap(50, 50);
  wxMemoryDC dc(bitmap);
  TextExtents extents;
  for (const int points : {6, 9, 40}) {
    SetPoints(dc, points, 700);
    for (const char* text : {"24188", "74861", "",
                             "Hauptbahnhof S\xC3\xBC"
                             "d"}) {
      for (int again = 0; again < 2; ++again)
        EXPECT_EQ(MeasureText(extents, dc, text).size, dc.GetTextExtent(wxString::FromUTF8(text)))
            << text << " at " << points;
    }
  }
}

TEST(TextExtent, BytesThatAreNotUtf8StayVisibleAsLatin1) {
  RecordingDC dc;
  TextExtents extents;
  SetPoints(dc, 10);
  EXPECT_EQ(MeasureText(extents, dc,
                        "S\xFC"
                        "d")
                .text,
            wxString(L"S\u00FCd"));
  EXPECT_EQ(MeasureText(extents, dc,
                        "S\xFC"
                        "d")
                .size,
            wxSize(30, 20));
}

TEST(TextExtent, AContextIsLentTheMeasurementsForOnePaintOnly) {
  RenderContext context;
  {
    const TextExtentsOfPaint paint(context);
    ASSERT_NE(context.textExtents, nullptr);
    EXPECT_TRUE(context.textExtents->fonts.empty());
  }
  EXPECT_EQ(context.textExtents, nullptr);
}

TEST(TextExtent, AContextWithMeasurementsOfItsOwnKeepsThem) {
  TextExtents own{.alikeDevices = true};
  RenderContext context;
  context.textExtents = &own;
  {
    const TextExtentsOfPaint paint(context);
    EXPECT_EQ(context.textExtents, &own);
  }
  EXPECT_EQ(context.textExtents, &own);
}

}  // namespace
}  // namespace vantrel
