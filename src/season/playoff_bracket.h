#pragma once
// The playoff bracket: seeds from the final standings, the pairs of a round,
// and the round's schedule of best-of-seven series.
#include <string>

#include "league/league_state.h"

namespace kvl {

// Qualifiers a conference sends: 8, 4 or 2 by PlayoffSize.
int ConferenceQuota(const League& league);
// Empty when every conference has enough teams for its quota; else a message
// naming the conference that has too few.
std::string QuotaShortfall(const LeagueState& s);
// Seeds, division leaders, qualifiers, PlayoffTeams, the first round's pairs
// and the waiver order (non-qualifiers first, worst first).
void MakePlayoffSeeds(LeagueState& s);
// The pairs of the stage now to be played, from the teams still alive.
void NextRoundMatchups(LeagueState& s);
// The stage's schedule, every series' seven games written in advance; games 1,
// 2, 5 and 7 at the better team's arena.
void CreatePlayoffSchedule(LeagueState& s);

}  // namespace kvl
