#pragma once
// The league's schedule file (.scx, swap copy swp.scx): 31-byte records, record
// k being game k, no header. A game day is not stored: it is the run of records
// read forward until one would use a team already playing in it.
#include <vector>

#include "league/league_state.h"

namespace kvl {

std::vector<ScheduleRecord> ReadSchedule(const fs::path& file);

// Record indexes (from 0) grouped into game days as the game driver reads them.
// A team number of 49 or more ends the reading, as it ends the driver's pass.
std::vector<std::vector<std::size_t>> GameDays(const std::vector<ScheduleRecord>& games);

// A new schedule supersedes the league's old-format .scd: its content is kept
// as .scdold and the .scd (and its swap copy) deleted.
void RetireOldSchedule(LeagueState& s);

}  // namespace kvl
