#pragma once
// Whose turn it is in the entry draft: the place in the order names the team
// the pick was made for, and the team whose draft-pick record holds that pick
// of this year and round makes it. A pick nobody holds is passed.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

struct DraftTurn {
  int round = 0, pick = 0;  // DraftRound, DraftPick: from 0
  int overall = 0;          // from 1: NumTeams x round + pick + 1
  int origTeam = 0;         // the team at this place of the order
  int holder = -1;          // the team that picks; -1 when nobody holds the pick
};

DraftTurn TurnAt(LeagueState& s, int round, int pick);
// The turn at DraftRound and DraftPick.
inline DraftTurn CurrentTurn(LeagueState& s) { return TurnAt(s, s.league.DraftRound, s.league.DraftPick); }

// Every turn of `round`, in the order's places.
std::vector<DraftTurn> RoundOrder(LeagueState& s, int round);
// One line a turn: "  3. Valeport (held by Norwood)"; a pick nobody holds is "passed".
std::vector<std::string> RoundOrderLines(LeagueState& s, int round);

// Moves every team's picks on by one year: this year's go, the others come a
// year nearer and a new year of picks of rounds 0 to 8 is added; with
// `turnYear` not 0 the league's year turns too. Records are then sorted, so
// the lists see no gap where this year's picks stood.
void UpdatePicks(LeagueState& s, int turnYear);

}  // namespace kvl
