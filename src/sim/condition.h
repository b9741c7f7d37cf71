#pragma once
// A player's condition between games: the draws that rest or tire him, and a
// team's day off.
#include "league/league_state.h"

namespace kvl {

// A day without play: a fit player may gain a point, up to 100.
void RestDraw(LeagueState& s, Player& p, double scaledEnd);
// A heavy game may cost a point.
void TireDraw(LeagueState& s, Player& p, double scaledEnd);
// One day off for the team loaded in `side`: the injured heal a day, the fit
// may gain a point by their End. Slot 0 is never reached, as always.
void RestDay(LeagueState& s, int team, int side);

}  // namespace kvl
