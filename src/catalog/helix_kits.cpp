#include "catalog/helix_kits.h"

namespace vantrel {
namespace {

constexpr HelixKit kKits[] = {
    {"proses_2_5_r1r2", "Proses 2.5 R1&R2 26cm/10.2\"", 2.5, 260.0, 360.0, 437.5, "24188", "24130",
     "24230"},
    {"proses_3_5_r1r2", "Proses 3.5 R1&R2 34cm/13.4\"", 3.5, 340.0, 360.0, 437.5, "24188", "24130",
     "24230"},
    {"proses_4_5_r1r2", "Proses 4.5 R1&R2 42cm/16.5\"", 4.5, 420.0, 360.0, 437.5, "24188", "24130",
     "24230"},
    {"proses_2_5_r2r3", "Proses 2.5 R2&R3 26cm/10.2\"", 2.5, 260.0, 437.5, 515.0, "24188", "24230",
     "24330"},
    {"proses_3_5_r2r3", "Proses 3.5 R2&R3 34cm/13.4\"", 3.5, 340.0, 437.5, 515.0, "24188", "24230",
     "24330"},
    {"proses_2_5_r3r4", "Proses 2.5 R3&R4 26cm/10.2\"", 2.5, 260.0, 515.0, 579.3, "24188", "24330",
     "24430"},
    {"proses_4_5_r3r4", "Proses 4.5 R3&R4 42cm/16.5\"", 4.5, 420.0, 515.0, 579.3, "24188", "24330",
     "24430"},
    {"proses_2_5_r4r5", "Proses 2.5 R4&R5 26cm/10.2\"", 2.5, 260.0, 579.3, 643.6, "24188", "24430",
     "24530"},
    {"proses_3_5_r4r5", "Proses 3.5 R4&R5 34cm/13.4\"", 3.5, 340.0, 579.3, 643.6, "24188", "24430",
     "24530"},
    {"proses_4_5_r4r5", "Proses 4.5 R4&R5 42cm/16.5\"", 4.5, 420.0, 579.3, 643.6, "24188", "24430",
     "24530"},
};

}  // namespace

std::span<const HelixKit> kits() {
  return kKits;
}

const HelixKit* findKit(std::string_view id) {
  for (const HelixKit& kit : kKits)
    if (kit.id == id) return &kit;
  return nullptr;
}

std::string_view defaultKitId() {
  return kKits[0].id;
}

const HelixKit& kitOrDefault(std::string_view id) {
  const HelixKit* kit = findKit(id);
  return kit != nullptr ? *kit : kKits[0];
}

}  // namespace vantrel
