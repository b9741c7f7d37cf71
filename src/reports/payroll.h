#pragma once
// What a team costs: its pro and farm payrolls and its prospects' fees, read
// from the team in a side of the player buffer; and the game-cost share.
#include "league/league_state.h"

namespace kvl {

// Salaries of the pro roster (slots 1..49) who are not suspended or away.
i32 ProPayroll(const LeagueState& s, int side);
// Salaries of the minors (slots 1..49); a two-way player below TwoWayAfter
// games draws a tenth.
i32 FarmPayroll(const LeagueState& s, int side);
// The prospects' fees, in dollars (the list keeps hundreds).
i32 ProspectFees(const LeagueState& s, int side);
// The game-cost constant spread over a team's games.
double Revenue(const LeagueState& s);
// The games a team plays: 2 x league games / teams.
double SeasonGames(const LeagueState& s);

}  // namespace kvl
