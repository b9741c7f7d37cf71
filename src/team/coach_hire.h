#pragma once
// Hiring and firing a team's head coach, with their lines in the season's log.
#include <cstddef>

#include "league/league_state.h"

namespace kvl {

// Fires the team's present coach, if any, then links coach record `rec` to the
// team: the Team record takes his name, salary and record number, and his
// Team field the team's number + 1. Both moves go to the season's log. The
// caller makes sure the coach is free; sets Dirty.
void HireCoach(LeagueState& s, int team, std::size_t rec);
// Frees the team's coach and clears the team's copy of him; false when the
// team has none.
bool FireCoach(LeagueState& s, int team);

}  // namespace kvl
