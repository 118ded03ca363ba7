// The maker's online store: the one place that knows its address.
#pragma once

namespace vantrel {

inline constexpr const char* kStoreAddress = "https://shop.kelmor.example";

}  // namespace vantrel
