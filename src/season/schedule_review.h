#pragma once
// Review Schedule: the schedule shown in the game days the game driver will
// make of it, with the scores of the games played.
#include <optional>

#include "league/league_state.h"

namespace kvl {

// Prints every game day, or only day `day` (from 1). False, after telling,
// when there is no such day.
bool RevSched(LeagueState& s, std::optional<int> day = std::nullopt);

}  // namespace kvl
