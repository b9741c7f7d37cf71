#pragma once
// The waivers day that closes every game day.
#include "league/league_state.h"

namespace kvl {

// Stand-in until the waiver wire is built: there are no waiver records to
// age or award yet, so the day does nothing.
void WaiversDay(LeagueState& s);

}  // namespace kvl
