#pragma once
// Brings a schedule of an older format to the current one when a league loads.
#include "league/league_state.h"

namespace kvl {

void ConvertSchedCheck(LeagueState& s);

}  // namespace kvl
