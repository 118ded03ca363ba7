// What the online store sells: from a part number to the store's own id of the product.
#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>

namespace vantrel {

class StoreProductTable {
 public:
  StoreProductTable();

  // 14 decimal digits, or an empty text for a part that the store doesn't have.
  std::string_view productId(std::string_view part) const;
  std::size_t rowCount() const { return productByPart_.size(); }

 private:
  std::unordered_map<std::string_view, std::string_view> productByPart_;
};

// The one table, built on first use and kept to the end of the program.
const StoreProductTable& storeProducts();

// Short for a part that has a row in storeProducts().
bool IsSold(std::string_view part);

}  // namespace vantrel
