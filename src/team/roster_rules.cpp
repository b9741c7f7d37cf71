#include "team/roster_rules.h"

#include "league/ratings.h"

namespace kvl {

int RateBy(const Player& p, int mode) {
  switch (mode) {
    case kByOffense: return OffenseRating(p);
    case kByDefense: return DefenseRating(p);
    default: return Overall(p);
  }
}

NamedCounts CountNamed(const LeagueState& s, int side) {
  NamedCounts c;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s.player(side, i);
    if (p.empty()) continue;
    ++c.total;
    if (p.Pos < 5) ++c.byPos[p.Pos];
  }
  return c;
}

}  // namespace kvl
