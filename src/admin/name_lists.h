#pragma once
// Our own lists of first names, surnames and places for the bundled database
// and coach pool. Names are drawn in pairs from one region, so a player's
// name fits his birthplace.
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "admin/random_draws.h"

namespace kvl {

struct NameRegion {
  std::span<const std::string_view> first;
  std::span<const std::string_view> last;
};

struct Birthplace {
  std::string_view code;  // three letters, as the player record keeps it
  int weight;             // share of the database, in parts of the total
  const NameRegion* names;
};

std::span<const Birthplace> Birthplaces();
// A birthplace drawn by the weights of the list.
const Birthplace& DrawBirthplace(Draws& d);
// "First Last" from the region, 22 characters at most, not yet in `used`; added to it.
std::string DrawName(Draws& d, const NameRegion& region, std::set<std::string>& used);

}  // namespace kvl
