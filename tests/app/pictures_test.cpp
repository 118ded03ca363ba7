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

TEST(Pictures, ThisBuildCarriesNone) {
  for (const int id : {101, 102, 103}) EXPECT_FALSE(LoadPicture(id).IsOk()) << id;
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
