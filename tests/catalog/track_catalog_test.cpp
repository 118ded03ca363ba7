#include "catalog/track_catalog.h"

#include <gtest/gtest.h>

#include <string>

namespace vantrel {
namespace {

TEST(TrackCatalog, HasNoRowOutsideItsIndices) {
  EXPECT_EQ(catalog().pieceCount(), 167);
  EXPECT_EQ(catalog().pieceAt(-1), nullptr);
  EXPECT_EQ(catalog().pieceAt(167), nullptr);
  ASSERT_NE(catalog().pieceAt(0), nullptr);
  EXPECT_EQ(catalog().pieceAt(0)->partNumber, "24188");
  ASSERT_NE(catalog().pieceAt(166), nullptr);
  EXPECT_EQ(catalog().pieceAt(166)->partNumber, "7267");
}

TEST(TrackCatalog, FindsNothingForAnEmptyOrUnknownPart) {
  EXPECT_EQ(findPart(""), nullptr);
  EXPECT_EQ(findPart("24188 "), nullptr);
  EXPECT_EQ(findPart("2418"), nullptr);
  EXPECT_EQ(findPart(std::string_view("24188\0", 6)), nullptr);
}

TEST(TrackCatalog, FindsEveryRowByItsPartNumber) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef* row = catalog().pieceAt(i);
    EXPECT_EQ(findPart(row->partNumber), row) << row->partNumber;
  }
}

TEST(TrackCatalog, IsBuiltOnceAndStaysWhereItIs) {
  const PieceDef* first = findPart("24188");
  EXPECT_EQ(&catalog(), &catalog());
  EXPECT_EQ(findPart("24188"), first);
  EXPECT_EQ(first, catalog().pieceAt(0)) << "the row itself and not a copy";
  EXPECT_EQ(findPart("7267"), catalog().pieceAt(166));
}

TEST(TrackCatalog, NumbersConnectorsFromZeroAndMakesAllConnectable) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    ASSERT_FALSE(def.connectors.empty()) << def.partNumber;
    for (std::size_t c = 0; c < def.connectors.size(); ++c) {
      EXPECT_EQ(def.connectors[c].connectorId, static_cast<std::int32_t>(c)) << def.partNumber;
      EXPECT_TRUE(def.connectors[c].connectable) << def.partNumber;
    }
  }
}

TEST(TrackCatalog, StartsEveryPieceButTheTurntableAtItsOrigin) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.partNumber == "74861") continue;
    EXPECT_EQ(def.connectors[0].x, 0.0) << def.partNumber;
    EXPECT_EQ(def.connectors[0].y, 0.0) << def.partNumber;
    EXPECT_EQ(def.connectors[0].heading, 180.0) << def.partNumber;
  }
  const PieceDef* turntable = findPart("74861");
  ASSERT_NE(turntable, nullptr);
  EXPECT_EQ(turntable->connectors[0].x, 139.0);
  EXPECT_EQ(turntable->connectors[0].heading, 0.0);
}

TEST(ConnectorSystem, DiffersFromThePiecesOwnForTheAdapterOnly) {
  const PieceDef& adapter = *findPart("24922");
  EXPECT_EQ(adapter.system, TrackSystem::MarklinC);
  EXPECT_EQ(connectorSystem(adapter, 0), 0);
  EXPECT_EQ(connectorSystem(adapter, 1), 1);
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (&def == &adapter) continue;
    EXPECT_TRUE(def.connectorSystems.empty()) << def.partNumber;
    EXPECT_EQ(connectorSystem(def, 0), static_cast<std::int32_t>(def.system)) << def.partNumber;
  }
}

TEST(ConnectorSystem, IsThePiecesOwnBeyondTheOverrides) {
  PieceDef def;
  def.system = TrackSystem::TrixC;
  def.connectorSystems = {2};
  EXPECT_EQ(connectorSystem(def, 0), 2);
  EXPECT_EQ(connectorSystem(def, 1), 3);
}

TEST(SystemName, KnowsAllFourSystems) {
  EXPECT_EQ(SystemName(0), "Marklin C-Track");
  EXPECT_EQ(SystemName(1), "Marklin K-Track");
  EXPECT_EQ(SystemName(2), "Marklin Z-Track");
  EXPECT_EQ(SystemName(3), "TRIX C-Track");
  EXPECT_EQ(SystemName(4), "Unknown");
  EXPECT_EQ(SystemName(-1), "Unknown");
}

TEST(SystemName, OfARefusedJoinDoesNotKnowZTrack) {
  EXPECT_EQ(JoinRefusalSystemName(0), "Marklin C-Track");
  EXPECT_EQ(JoinRefusalSystemName(1), "Marklin K-Track");
  EXPECT_EQ(JoinRefusalSystemName(2), "Unknown");
  EXPECT_EQ(JoinRefusalSystemName(3), "TRIX C-Track");
  EXPECT_EQ(JoinRefusalSystemName(9), "Unknown");
}

}  // namespace
}  // namespace vantrel
