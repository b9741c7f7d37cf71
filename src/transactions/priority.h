#pragma once
// The waiver priority list (.pri): record r holds the team at place r.
#include "league/league_state.h"

namespace kvl {

// Rewrites the list in team order and sets each team's Priority to its number.
void MakePriority(LeagueState& s);
// Rewrites the list in the order of the teams' Priority: the place a team's
// Priority names holds that team.
void MakeNewPriority(LeagueState& s);

}  // namespace kvl
