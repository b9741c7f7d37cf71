#pragma once
// Clears the season's figures of every team and player.
#include "league/league_state.h"

namespace kvl {

// Zeroes team, farm and player season figures. Outside a finished season or
// exhibition play it also heals every player; outside the playoffs it clears
// PlayoffOut. The season's career lines (swp.cm) are dropped.
void ResetLeague(LeagueState& s);

}  // namespace kvl
