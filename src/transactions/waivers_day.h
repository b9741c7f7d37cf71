#pragma once
// The waivers day that closes every game day.
#include "league/league_state.h"

namespace kvl {

// Waiver records 7 days old are removed, their holders moved to the bottom
// of the priority list.
void WaiversDay(LeagueState& s);

}  // namespace kvl
