#pragma once
// The console's "Auto Load Lines": every team's lines file from the folder of
// LinesDirectory.txt, named after the team, loaded without the password
// check. A refused file is reported, its team kept as it was, and the next
// team loaded all the same.
#include <filesystem>
#include <string>

#include "league/league_state.h"

namespace kvl {

// The file LoadAutoLines looks for: the folder, the trimmed team name, ".lns".
std::filesystem::path AutoLinesFile(const LeagueState& s, int team);
// Where the last report is kept, beside the league's files.
std::filesystem::path LinesLoadingReportFile(const LeagueState& s);

// Loads every team's file, tells the report under "Lines Loading Report",
// keeps it in LinesLoadingReportFile and returns it.
std::string LoadAutoLines(LeagueState& s);

}  // namespace kvl
