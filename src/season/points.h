#pragma once
// A team's points in the standings by the league's point system, and the
// order of the standings that seeds the playoffs.
#include <vector>

#include "league/league_state.h"

namespace kvl {

enum PointSystem : u8 { kClassic = 0, kModern = 1, kAmerican = 2, kSwedish = 3 };

// The point system in force: the playoffs count by the classic one.
int PointSystemInForce(const League& league);
int TeamPoints(const League& league, const Team& t);
// The teams best first for the playoff seeds: more points, then more wins,
// then a better goal difference; equals keep team order.
std::vector<int> SeedOrder(const LeagueState& s);

}  // namespace kvl
