// The record with an id, in any of the document's lists.
#pragma once

#include <cstdint>
#include <vector>

#include "doc/records.h"

namespace vantrel {

// The first record with this id, or null; kNone names no record. A linear walk. The pointer dies
// with the next change of the vector.
template <typename Record>
Record* FindRecord(std::vector<Record>& records, std::int32_t id) {
  if (id == kNone) return nullptr;
  for (Record& record : records)
    if (record.id == id) return &record;
  return nullptr;
}

}  // namespace vantrel
