#pragma once
// The pages written by themselves at the end of a run of game days when the
// league asks for it.
#include "league/league_state.h"

namespace kvl {

// Writes the groups whose stored flag is set; the playoff tree only once the
// season has reached the playoffs.
void AutoHTMLOutput(LeagueState& s);
// A finished playoff round's schedule page, when the schedule group is set:
// the next round's schedule takes the place of its games.
void AutoRoundOutput(LeagueState& s);

}  // namespace kvl
