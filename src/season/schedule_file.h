#pragma once
// The league's schedule file (.scx, swap copy swp.scx): 31-byte records, record
// k being game k, no header. A game day is not stored: it is the run of records
// read forward until one would use a team already playing in it.
#include <vector>

#include "league/league_state.h"

namespace kvl {

std::vector<ScheduleRecord> ReadSchedule(const fs::path& file);

// True when the record ends the game driver's pass: a team number of 49 or
// more that is no team of a league of `numTeams` (a 50-team league's team 49
// plays like any other).
bool EndsPass(const ScheduleRecord& r, int numTeams);

// The index (from 0) of the first unplayed record; the size when all are played.
std::size_t FirstUnplayed(const std::vector<ScheduleRecord>& games);

// Record indexes (from 0) grouped into game days as the game driver reads them,
// up to the record that ends its pass.
std::vector<std::vector<std::size_t>> GameDays(const std::vector<ScheduleRecord>& games, int numTeams);

// A new schedule supersedes the league's old-format .scd: its content is kept
// as .scdold and the .scd (and its swap copy) deleted.
void RetireOldSchedule(LeagueState& s);

}  // namespace kvl
