#pragma once
// The first stage of schedule making: how many times each pair of teams meets
// and how many of those games each hosts. No random numbers: the same alignment
// and parameters always give the same matrices.
#include <functional>

#include "league/league_state.h"
#include "season/schedule_allot_log.h"
#include "season/schedule_matrices.h"
#include "season/schedule_params.h"

namespace kvl {

// Flips 0 and 1; also gives the other conference's index.
u8 Toggle(int x);
// Half the games per team, a half going to the even neighbour (81 -> 40, 83 -> 42).
int HalfGamesPerTeam(int gpTeam);

// A team's name as the log shows it, at its width of 10; blanks for a number
// that is no team.
std::string LogName(const LeagueState& s, int t);

// Fills `m` afresh. False when a team has no conference or the top-up finds no
// partner; the log then ends where the allotment stopped. `advance` is told how
// far each team moves the progress bar.
bool AllotGames(const LeagueState& s, const ScheduleParams& p, ScheduleMatrices& m, AllotGameLog& log,
                const std::function<void(long)>& advance = {});

}  // namespace kvl
