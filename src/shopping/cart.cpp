#include "shopping/cart.h"

#include <cstdint>
#include <utility>

#include "catalog/track_catalog.h"
#include "shopping/piece_counts.h"
#include "shopping/store_products.h"

namespace vantrel {
namespace {

void AddItem(Cart& cart, std::string_view productId, std::int32_t count) {
  if (!cart.text.empty()) cart.text += ",";
  cart.text.append(productId).append(":").append(std::to_string(count));
}

void AddAccessory(Cart& cart, std::string_view part, std::int32_t count) {
  if (count >= 1 && IsSold(part)) AddItem(cart, storeProducts().productId(part), count);
}

std::string UnavailableText(const std::vector<std::string>& parts) {
  std::string text = "The following pieces are not available in the store and will be skipped:\n";
  for (const std::string& part : parts) text += "  " + part + "\n";
  return text;
}

}  // namespace

Cart FillCart(const Layout& layout) {
  PieceCounts counts = CountPieces(layout);
  std::erase_if(counts, [](const auto& entry) { return findPart(entry.first) == nullptr; });
  AddSoldScenery(counts, layout);
  PackSpokes(counts);
  Cart cart;
  for (const auto& [part, count] : counts) {
    const std::string_view productId = storeProducts().productId(part);
    if (productId.empty())
      cart.unavailable.push_back(part);
    else
      AddItem(cart, productId, count);
  }
  const Accessories wanted = AccessoriesFor(counts);
  AddAccessory(cart, "74492", wanted.motorsC);  // the tally's name for it is 74491
  AddAccessory(cart, "75491", wanted.motorsK);
  AddAccessory(cart, "74462", wanted.decoders);
  AddAccessory(cart, "74467", wanted.bigDecoders);
  return cart;
}

Checkout PrepareCheckout(const Layout& layout, std::string_view storeAddress) {
  const Cart cart = FillCart(layout);
  Checkout checkout;
  if (cart.text.empty()) {
    checkout.messages.push_back(
        {.title = "Buy Track", .text = "No purchasable track pieces found in your layout."});
    return checkout;
  }
  if (!cart.unavailable.empty())
    checkout.messages.push_back({.title = "Some pieces not available",
                                 .text = UnavailableText(cart.unavailable),
                                 .warning = true});
  checkout.address.append(storeAddress).append("/cart/").append(cart.text);
  return checkout;
}

}  // namespace vantrel
