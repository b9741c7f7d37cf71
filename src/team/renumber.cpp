#include "team/renumber.h"

namespace kvl {

void Renumber(LeagueState& s, int side) {
  int to = 0;
  for (int from = 0; from < kRosterSlots; ++from) {
    if (s.player(side, from).empty()) continue;
    if (to != from) s.player(side, to) = s.player(side, from);
    ++to;
  }
  for (; to < kRosterSlots; ++to) s.player(side, to) = Player{};
}

}  // namespace kvl
