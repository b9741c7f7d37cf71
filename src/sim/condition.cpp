#include "sim/condition.h"

#include "sim/injuries.h"

namespace kvl {

void RestDraw(LeagueState& s, Player& p, double scaledEnd) {
  if (s.rnd(19) < 2 * scaledEnd && p.Condition < 100) ++p.Condition;
}

void TireDraw(LeagueState& s, Player& p, double scaledEnd) {
  if (s.rnd(20) > 2 * scaledEnd && p.Condition > 0) --p.Condition;
}

void RestDay(LeagueState& s, int team, int side) {
  for (int slot = 1; slot < kRosterSlots; ++slot) {
    Player& p = s.player(side, slot);
    if (p.empty()) continue;
    if (p.injury() != 0) {
      RecoverDay(s, team, side, slot);
    } else {
      const int r = s.rnd(100);
      if (p.Condition < 100 && r < p.rating(kEnd)) ++p.Condition;
    }
  }
}

}  // namespace kvl
