#pragma once
// The pages written by themselves after game days when the league asks for it.
#include "league/league_state.h"

namespace kvl {

// Stand-in until the page writers are built: the box scores and the daily
// page are written by the game day itself; the league's other pages are not
// written yet.
void AutoHTMLOutput(LeagueState& s);

}  // namespace kvl
