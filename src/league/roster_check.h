#pragma once
// The league-wide check of rosters and coach links, run after every load and
// before game days.
#include <array>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// Each team's lines of the report: its name, then each shortage, or "- Roster
// OK!", every line ending in CR LF.
struct RosterReport {
  std::vector<std::string> lines;
  std::vector<std::string> failing;  // the lines of the teams that cannot play
  bool allValid = true;
};

// "- only N of 20 players available", "- only N of the 3 required Centres
// available", ... one text per shortage of these counts (total, then C LW RW D G).
std::vector<std::string> RosterShortages(int total, const std::array<int, 5>& byPos);
// Counts the fit players of team `t` (loaded into side 0) and composes its lines.
std::string RosterLine(LeagueState& s, int t, bool& ok);
RosterReport CheckRosters(LeagueState& s);
// Runs the roster check with its messages and InvalidRosters.txt, then the coach
// check. True when every roster can play. Before games the message names the
// teams that cannot play and what they lack.
bool RosterCheck(LeagueState& s, bool beforeGames = false);
// Repairs broken links between teams and the coach file, telling each repair.
void CoachCheck(LeagueState& s);

}  // namespace kvl
