#pragma once
// Start New Season: statistics cleared, everyone a year older, contracts run
// down, the waiver order from the last standings, and a new file name.
#include <optional>

#include "league/league_state.h"

namespace kvl {

// Everyone a year older; contracts and prospects' contracts run down by one
// (a contract of 0 stays 0).
void AgeLeague(LeagueState& s);
// The rollover without its questions and save: priority, state flags, the
// reset and the ageing; the league is left unnamed.
void RollOverSeason(LeagueState& s);
// The command: asks, offers to save the old season, rolls over, then saves
// under a new name (`saveAs`, else asked), warning when that is cancelled.
// False when the commissioner declined.
bool NewSeason(LeagueState& s, const std::optional<fs::path>& saveAs = std::nullopt);

}  // namespace kvl
