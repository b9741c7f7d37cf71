#pragma once
// A team's points in the standings by the league's point system, and the
// order of the standings that seeds the playoffs.
#include <vector>

#include "league/league_state.h"

namespace kvl {

enum PointSystem : u8 { kClassic = 0, kModern = 1, kAmerican = 2, kSwedish = 3 };

// Points as one byte. While the playoffs run every system counts as Classic.
u8 TeamPoints(const League& league, const Team& t);
// True when `a` ranks above `b`: more points, then more wins, then a better
// goal difference.
bool Beats(const League& league, const Team& a, const Team& b);
// The teams best first; equals keep team order.
std::vector<int> RankTeams(const LeagueState& s);

}  // namespace kvl
