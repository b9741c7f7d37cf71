#pragma once
// Closing the gaps of a buffered roster.
#include "league/league_state.h"

namespace kvl {

// Moves the named players of slots 0..49 down over the empty slots, keeping
// their order; the freed slots at the end are emptied.
void Renumber(LeagueState& s, int side);

}  // namespace kvl
