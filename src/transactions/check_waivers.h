#pragma once
// The waiver gate a player passes on his way down to the minors.
#include "league/league_state.h"

namespace kvl {

constexpr int kEditorActor = 99;  // the roster editor or the lines import

// True when the player of Player(side, index) may simply go to the minors. A
// veteran (GP at least MinGP, older than AgeExempt, waivers on, not in the
// playoffs) is instead asked about: on no he stays on the pro roster as a
// scratch; on yes he goes to the minors with a waiver record open to every
// team. `actor` is kEditorActor or the team moving him.
bool CheckWaivers(LeagueState& s, int side, int index, int actor);

}  // namespace kvl
