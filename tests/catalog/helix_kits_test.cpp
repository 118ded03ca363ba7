#include "catalog/helix_kits.h"

#include <gtest/gtest.h>

#include <vector>

#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

struct ExpectedKit {
  const char* id;
  const char* name;
  double turns;
  double height;
  double inner;
  double outer;
  const char* innerCurve;
  const char* outerCurve;
};

TEST(HelixKits, AreTheTenOfTheTableInOrder) {
  const std::vector<ExpectedKit> rows = {
      {"proses_2_5_r1r2", "Proses 2.5 R1&R2 26cm/10.2\"", 2.5, 260.0, 360.0, 437.5, "24130",
       "24230"},
      {"proses_3_5_r1r2", "Proses 3.5 R1&R2 34cm/13.4\"", 3.5, 340.0, 360.0, 437.5, "24130",
       "24230"},
      {"proses_4_5_r1r2", "Proses 4.5 R1&R2 42cm/16.5\"", 4.5, 420.0, 360.0, 437.5, "24130",
       "24230"},
      {"proses_2_5_r2r3", "Proses 2.5 R2&R3 26cm/10.2\"", 2.5, 260.0, 437.5, 515.0, "24230",
       "24330"},
      {"proses_3_5_r2r3", "Proses 3.5 R2&R3 34cm/13.4\"", 3.5, 340.0, 437.5, 515.0, "24230",
       "24330"},
      {"proses_2_5_r3r4", "Proses 2.5 R3&R4 26cm/10.2\"", 2.5, 260.0, 515.0, 579.3, "24330",
       "24430"},
      {"proses_4_5_r3r4", "Proses 4.5 R3&R4 42cm/16.5\"", 4.5, 420.0, 515.0, 579.3, "24330",
       "24430"},
      {"proses_2_5_r4r5", "Proses 2.5 R4&R5 26cm/10.2\"", 2.5, 260.0, 579.3, 643.6, "24430",
       "24530"},
      {"proses_3_5_r4r5", "Proses 3.5 R4&R5 34cm/13.4\"", 3.5, 340.0, 579.3, 643.6, "24430",
       "24530"},
      {"proses_4_5_r4r5", "Proses 4.5 R4&R5 42cm/16.5\"", 4.5, 420.0, 579.3, 643.6, "24430",
       "24530"},
  };
  ASSERT_EQ(kits().size(), 10u);
  ASSERT_EQ(rows.size(), 10u);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const HelixKit& kit = kits()[i];
    EXPECT_EQ(kit.id, rows[i].id);
    EXPECT_EQ(kit.name, rows[i].name);
    EXPECT_EQ(kit.turns, rows[i].turns);
    EXPECT_EQ(kit.height, rows[i].height);
    EXPECT_EQ(kit.innerRadius, rows[i].inner);
    EXPECT_EQ(kit.outerRadius, rows[i].outer);
    EXPECT_EQ(kit.innerCurvePart, rows[i].innerCurve);
    EXPECT_EQ(kit.outerCurvePart, rows[i].outerCurve);
  }
}

TEST(HelixKits, AnUnknownKitIsNotFoundAndFallsBackOnTheDefaultOne) {
  EXPECT_EQ(findKit("proses_3_5_r3r4"), nullptr);
  EXPECT_EQ(findKit(""), nullptr);
  EXPECT_EQ(defaultKitId(), "proses_2_5_r1r2");
  EXPECT_EQ(kitOrDefault("no such kit").id, "proses_2_5_r1r2");
  EXPECT_EQ(kitOrDefault("proses_4_5_r4r5").id, "proses_4_5_r4r5");
}

TEST(HelixKits, EveryStubIsTheSameCTrackStraight) {
  ASSERT_EQ(kits().size(), 10u);
  for (const HelixKit& kit : kits()) EXPECT_EQ(kit.stubPart, "24188") << kit.id;
  EXPECT_EQ(findPart("24188")->system, TrackSystem::MarklinC);
}

}  // namespace
}  // namespace vantrel
