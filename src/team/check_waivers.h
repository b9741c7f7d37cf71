#pragma once
// The waiver gate a player passes on his way down to the minors.
#include "league/league_state.h"

namespace kvl {

constexpr int kEditorActor = 99;  // the roster editor or the lines import

// True when the player of Player(side, index) may simply go to the minors.
// It may instead keep him on the pro roster or put him on waivers; until the
// waiver wire exists every player goes down freely.
bool CheckWaivers(LeagueState& s, int side, int index, int actor);

}  // namespace kvl
