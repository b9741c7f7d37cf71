#pragma once
// Our own fictional clubs for the demo league: city, abbreviation, the farm
// club's nickname, arena, seats and ticket price.
#include <span>
#include <string_view>

namespace kvl {

struct DemoClub {
  std::string_view city;      // the team's name, 10 characters at most
  std::string_view abbrev;
  std::string_view farmName;  // 15 characters at most
  std::string_view arena;     // 30 characters at most
  int seats;
  int ticket;
};

std::span<const DemoClub> DemoClubs();

}  // namespace kvl
