#include "io/readable_names.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(ReadableNames, ALayoutsNameMayNotEndLikeTheUnitsBehindIt) {
  EXPECT_FALSE(IsReadableLayoutName("units="));
  EXPECT_FALSE(IsReadableLayoutName("North yard, units="));
  EXPECT_FALSE(IsReadableLayoutName("subunits="));
  for (const char* name : {"units", "units= ", "units=1", "Units=", "units=\"",
                           "version=", "r=", "North & South <yard>", "Yard", ""})
    EXPECT_TRUE(IsReadableLayoutName(name)) << name;
}

TEST(ReadableNames, ALevelsNameMayNotEndLikeAnythingBehindIt) {
  for (const char* name : {"visible=", "height=", "Deck height=", "trackcolor=", "r=", "Keller=",
                           "color=", "g=", "Ring=", "b=", "x b="})
    EXPECT_FALSE(IsReadableLevelName(name)) << name;
  for (const char* name : {"height", "height=1", "b= ", "Height=", "id=", "name=", "a=", "units=",
                           "Upper & lower <deck>", "b=\"", ""})
    EXPECT_TRUE(IsReadableLevelName(name)) << name;
}

}  // namespace
}  // namespace vantrel
