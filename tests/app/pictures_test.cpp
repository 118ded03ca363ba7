#include "app/services/pictures.h"

#include <gtest/gtest.h>
#include <wx/imagjpeg.h>
#include <wx/mstream.h>

#include <vector>

namespace vantrel {
namespace {

// A picture of one colour as JPEG data.
std::vector<unsigned char> JpegOf(int width, int height) {
  if (!wxImage::FindHandler(wxBITMAP_TYPE_JPEG)) wxImage::AddHandler(new wxJPEGHandler);
  wxImage image(width, height);
  image.SetRGB(wxRect(0, 0, width, height), 200, 40, 40);
  wxMemoryOutputStream stream;
  EXPECT_TRUE(image.SaveFile(stream, wxBITMAP_TYPE_JPEG));
  std::vector<unsigned char> data(stream.GetSize());
  stream.CopyTo(data.data(), data.size());
  return data;
}

#if VANTREL_HAS_PICTURES
TEST(Pictures, TheSplashFillsItsPanelWithoutBeingStretched) {
  EXPECT_EQ(LoadPicture(101).GetSize(), wxSize(900, 600));
}

TEST(Pictures, TheHelpsSidePictureHasTheSizeItIsShownAt) {
  EXPECT_EQ(LoadPicture(103).GetSize(), wxSize(368, 660));
}

TEST(Pictures, TheInsetIsUprightAndSuitsBothPlacesThatShowIt) {
  // It is shown at 120 by 160, 0.750 wide for its height, and at 450 by 510, 0.882. Halfway, at
  // 0.8136, it is stretched by 8.5 % in either.
  const wxSize size = LoadPicture(102).GetSize();
  ASSERT_GE(size.y, 510);
  EXPECT_NEAR(static_cast<double>(size.x) / size.y, 0.8136, 0.005);
}

TEST(Pictures, EachIsSmallEnoughToLoadAtEveryStart) {
  ASSERT_EQ(EmbeddedPictures().size(), 3u);
  for (const EmbeddedPicture& picture : EmbeddedPictures())
    EXPECT_LT(picture.data.size(), 200u * 1024u) << picture.id;
}
#else
TEST(Pictures, ABuildWithoutThemCarriesNone) {
  EXPECT_TRUE(EmbeddedPictures().empty());
  for (const int id : {101, 102, 103}) EXPECT_FALSE(LoadPicture(id).IsOk()) << id;
}
#endif

TEST(Pictures, WithoutAnyEachIsInvalid) {
  for (const int id : {101, 102, 103}) EXPECT_FALSE(LoadPicture(id, {}).IsOk()) << id;
}

TEST(Pictures, AnUnknownIdGivesAnInvalidImage) {
  for (const int id : {-1, 0, 100, 104}) EXPECT_FALSE(LoadPicture(id).IsOk()) << id;
}

TEST(Pictures, WhatIsNoJpegAtAllGivesAnInvalidImage) {
  const std::vector<unsigned char> text = {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'};
  const EmbeddedPicture pictures[] = {{101, text}, {102, {}}};
  EXPECT_FALSE(LoadPicture(101, pictures).IsOk());
  EXPECT_FALSE(LoadPicture(102, pictures).IsOk());
}

TEST(Pictures, AreFoundByTheirIdAndDecoded) {
  const std::vector<unsigned char> small = JpegOf(12, 16);
  const std::vector<unsigned char> large = JpegOf(30, 20);
  const EmbeddedPicture pictures[] = {{101, large}, {102, small}};
  const wxImage inset = LoadPicture(102, pictures);
  ASSERT_TRUE(inset.IsOk());
  EXPECT_EQ(inset.GetSize(), wxSize(12, 16));
  EXPECT_EQ(LoadPicture(101, pictures).GetSize(), wxSize(30, 20));
}

TEST(Pictures, AMissingOrBrokenOneGivesAnInvalidImage) {
  std::vector<unsigned char> broken = JpegOf(12, 16);
  broken.resize(20);
  const EmbeddedPicture pictures[] = {{101, broken}};
  EXPECT_FALSE(LoadPicture(101, pictures).IsOk());
  EXPECT_FALSE(LoadPicture(103, pictures).IsOk());
}

}  // namespace
}  // namespace vantrel
