#pragma once
// The league pass that sets every team's roster and lines automatically.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// What a team lacks for the pass: "- only N of 20 available", "- only N of 3+ C",
// ... one text per shortage; empty when the team can be set.
std::vector<std::string> AutoAllShortages(const LeagueState& s, int side);

struct AutoAllResult {
  int teamsSet = 0;
  // Per team left as it was: its name, then its shortages.
  std::vector<std::vector<std::string>> skipped;
};

// "Configuring Rosters/Lines": for each team with enough named players, closes
// the roster's gaps, dresses it, makes its lines and saves it. Teams short of
// players are left as they are and printed with what they lack.
AutoAllResult AutoAll(LeagueState& s);

}  // namespace kvl
