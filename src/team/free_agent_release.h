#pragma once
// Players released by a team join the free agents of the player database.
#include "league/league_state.h"

namespace kvl {

// Writes a copy of `p` (Release cleared, free) over the database record with
// his name, or behind the last record when none has it.
void ReleaseToFreeAgents(LeagueState& s, const Player& p);

}  // namespace kvl
