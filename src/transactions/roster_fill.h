#pragma once
// The automatic fill of Assign Unused Players: every team takes unused players
// of the database in turns until it holds a full club.
#include <array>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// A full club by position (C, LW, RW, D, G): the pro roster and the farm.
struct ClubShape {
  std::array<int, 5> pro{4, 4, 4, 7, 3};
  std::array<int, 5> farm{3, 3, 3, 4, 1};
};

struct FillResult {
  int assigned = 0;
  std::vector<int> shortTeams;  // teams the database could not bring up to the pro shape
};

// Rounds of one position each; in a round the teams pick in turn, the order
// turning back every round, each the best unused player of that position it
// still needs. So the better players go early and the clubs come out even.
// A team with nobody dressed has its best 20 dressed (4 C, 4 LW, 4 RW, 6 D, 2 G).
FillResult FillRosters(LeagueState& s, const ClubShape& shape = {});

}  // namespace kvl
