// The shopping cart: what of a plan must be bought, as the store's web address takes it, and what
// the user is told before the browser opens.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

struct Cart {
  std::string text;                      // "id:count" items joined by ","; empty without any
  std::vector<std::string> unavailable;  // parts that the store doesn't have, in byte order
};

// The store packs a bridge with its deck track, so that isn't added; helix rings aren't either.
// Pieces that the catalog doesn't know are left out.
Cart FillCart(const Layout& layout);

struct CartMessage {
  std::string title;
  std::string text;
  bool warning = false;  // otherwise it informs

  friend bool operator==(const CartMessage&, const CartMessage&) = default;
};

struct Checkout {
  std::vector<CartMessage> messages;  // to be shown in this order, before the browser opens
  std::string address;                // of the filled cart; empty when there is nothing to buy
};

// `storeAddress` without a trailing slash.
Checkout PrepareCheckout(const Layout& layout, std::string_view storeAddress);

}  // namespace vantrel
