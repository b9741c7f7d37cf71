#pragma once
// The waiver priority list (.pri): record r holds the team at place r.
#include "league/league_state.h"

namespace kvl {

// Rewrites the list in team order and sets each team's Priority to its number.
void MakePriority(LeagueState& s);
// Rewrites the list in the order of the teams' Priority: the place a team's
// Priority names holds that team.
void MakeNewPriority(LeagueState& s);
// Moves `team` to the last place; the others below it move up. A list with
// more than one zero entry is damaged and made again in team order first.
// Each team's Priority follows its place.
void UpdatePriority(LeagueState& s, int team);

}  // namespace kvl
