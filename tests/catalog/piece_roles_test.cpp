#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

std::set<std::string> PartsWhere(const auto& has) {
  std::set<std::string> parts;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i)
    if (has(*catalog().pieceAt(i))) parts.insert(catalog().pieceAt(i)->partNumber);
  return parts;
}

// The words of the descriptions, and the four parts that go by their number, are what Autofill has
// always left out.
TEST(PieceRoles, LeaveOutOfGapsWhatItsDescriptionCallsSpecial) {
  const std::set<std::string> special = {"74871", "24922", "24951", "2291"};
  const auto isSpecial = [&](const PieceDef& def) {
    const auto names = [&](std::string_view word) {
      return def.description.find(word) != std::string::npos;
    };
    return special.contains(def.partNumber) || names("Circuit") || names("Uncoupler") ||
           names("Feeder") || names("Isolat") || names("Contact") || names("Adapter");
  };
  const auto mayFill = [&](const PieceDef& def) {
    return def.kind == PieceKind::Straight && def.length > 0.0 && !def.isBridge && !isSpecial(def);
  };
  EXPECT_EQ(PartsWhere([](const PieceDef& def) { return def.fillsGaps(); }), PartsWhere(mayFill));
}

TEST(PieceRoles, NameTheTurntableAndItsSpoke) {
  using Parts = std::set<std::string>;
  const auto withRole = [](PieceRole role) {
    return PartsWhere([role](const PieceDef& def) { return def.role == role; });
  };
  EXPECT_EQ(withRole(PieceRole::turntable), Parts{"74861"});
  EXPECT_EQ(withRole(PieceRole::spoke), Parts{"74871"});
  EXPECT_EQ(withRole(PieceRole::adapter), (Parts{"24922", "24951", "2291"}));
  EXPECT_EQ(findPart(TrackSystem::MarklinC, PieceRole::spoke), findPart("74871"));
  EXPECT_EQ(findPart(TrackSystem::MarklinK, PieceRole::spoke), nullptr);
}

TEST(PieceRoles, TellTheFormOfABridge) {
  using Parts = std::set<std::string>;
  const auto withForm = [](BridgeForm form) {
    return PartsWhere([form](const PieceDef& def) { return def.bridgeForm == form; });
  };
  EXPECT_EQ(withForm(BridgeForm::arch), (Parts{"74636", "7263", "62636", "8975"}));
  EXPECT_EQ(withForm(BridgeForm::truss), (Parts{"74620", "7262", "62620", "89759"}));
  EXPECT_EQ(withForm(BridgeForm::ramp),
            (Parts{"74623", "74613", "74618", "7569", "7267", "62623", "62613", "8976", "8977"}));
}

TEST(PieceRoles, MarkThreePartsInTheDrawing) {
  EXPECT_EQ(findPart("24994")->mark, TrackMark::circuitBar);
  EXPECT_EQ(findPart("24997")->mark, TrackMark::uncouplerBar);
  EXPECT_EQ(findPart("24294")->mark, TrackMark::contactPlate);
  EXPECT_EQ(PartsWhere([](const PieceDef& def) { return def.mark != TrackMark::none; }).size(), 3U);
}

TEST(SceneryRoles, NameThePitTheRoundhouseAndThePortal) {
  EXPECT_EQ(findScenery(SceneryRole::turntablePit), findScenery("74861"));
  EXPECT_EQ(findScenery(SceneryRole::roundhouse), findScenery("72886"));
  EXPECT_EQ(findScenery(SceneryRole::tunnelPortal), findScenery("tunnel_portal_single"));
  EXPECT_EQ(
      std::ranges::count_if(sceneryCatalog(),
                            [](const SceneryDef& def) { return def.role != SceneryRole::plain; }),
      3);
}

}  // namespace
}  // namespace vantrel
