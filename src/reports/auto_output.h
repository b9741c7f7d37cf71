#pragma once
// The pages written by themselves after game days when the league asks for it.
#include "league/league_state.h"

namespace kvl {

// Writes the groups whose stored flag is set; the playoff tree only once the
// season has reached the playoffs.
void AutoHTMLOutput(LeagueState& s);

}  // namespace kvl
