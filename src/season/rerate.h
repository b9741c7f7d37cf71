#pragma once
// Re-rating between seasons: young players grow, veterans fade, each rating by
// a draw whose size depends on the player's age.
#include "league/league_state.h"

namespace kvl {

// The header's spare byte LgByteB holds this once the off-season's re-rate is
// done, so a second one is asked about; the new season clears it.
constexpr u8 kReratedMark = 'R';

// The growth class of a player of this age (draws from `rnd`).
int GrowthClass(Rnd& rnd, int age);
// Re-rates one player: ratings Int..Sco (a goalie's Int..Pcc), Exp and Ldr,
// then the clamps. A KvlError names him when Exp or Ldr leave their byte.
void RerateOne(Rnd& rnd, Player& p);
// Asks, then re-rates every team; a team is saved only when all its players
// are done. False when the commissioner said no.
bool ReRate(LeagueState& s);
// The same without the question.
void RerateLeague(LeagueState& s);

}  // namespace kvl
