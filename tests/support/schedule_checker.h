#pragma once
// A made schedule file against the allotment it was made from. (The record's
// byte layout is the record listing golden's.)
#include <filesystem>
#include <string>
#include <vector>

#include "league/records.h"
#include "season/schedule_matrices.h"

namespace kvl::test {

// Every difference between the file and what was allotted (Matchups and
// HomeMatchups as the allotment left them) and the header's LeagueGames;
// empty when they agree. `withDays`: the records carry their game days.
std::vector<std::string> CheckMadeSchedule(const std::filesystem::path& scx, int n, const League& header,
                                           const ScheduleMatrices& allotted, bool withDays = false);

}  // namespace kvl::test
