#pragma once
// Reading back what the team code wrote to the swap files.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl::test {

// The lines of the season's transaction log (swp.tr), without line breaks.
std::vector<std::string> TransactionLines(const LeagueState& s);
// StandardLeague's coach t hired by team t, for every team.
struct LeaguePlan;
void HireStandardCoaches(LeaguePlan& plan);

}  // namespace kvl::test
