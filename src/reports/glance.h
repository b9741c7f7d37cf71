#pragma once
// The league at a glance, for a terminal: the standings grouped as the
// standings page groups them, players found by name wherever they are, and the
// free agents chosen and sorted. The front end only formats these rows.
#include <optional>
#include <string>
#include <vector>

#include "reports/player_lists.h"
#include "reports/standings_rank.h"
#include "transactions/free_agents.h"

namespace kvl {

enum class StandingsScope { Division, Conference, League };

struct StandingsGroup {
  std::string title;  // "Aurora Conference", "Summit Division", "League"
  std::vector<StandingRow> rows;
};

// The teams ranked as the standings page ranks them, one group per division,
// per conference or for the whole league.
std::vector<StandingsGroup> GroupStandings(const LeagueState& s, StandingsScope scope);

struct FoundPlayer {
  std::string name;
  int team = -1;   // -1: in the database, on no team
  int slot = -1;   // roster slot, prospect number, or database record from 1
  int pos = 0, age = 0, overall = -1;  // overall -1: a prospect has no ratings
  std::string status;  // "dressed", "scratched", "minors", "injured", "prospect", "free agent"
};

// Letters folded for matching names: lower case, and the accented letters of
// Windows-1252 as their plain letter ("É" and "é" as "e").
std::string FoldName(const std::string& cp1252);
// Every player of the league's rosters, its prospects and its database's free
// agents whose name holds `text` (Windows-1252), without regard to case or
// accents; teams are loaded in turn into side 0.
std::vector<FoundPlayer> FindPlayers(LeagueState& s, const std::string& text);

enum class LeaderCategory { Points, Goals, Assists, PlusMinus, Penalties, Gaa, Save };
// The first `top` players of a category: skaters with a figure above 0 (any
// figure for plus-minus), the scoring order breaking ties in points; goalies
// with enough games (as the leaders page asks) by goals against per 60
// minutes, lowest first, or by save percentage, highest first.
std::vector<RosterEntry> Leaders(LeagueState& s, LeaderCategory category, std::size_t top);
// Goals against per 60 minutes and saves per shot of a goalie; 0 without minutes or shots.
double GoalsAgainstAverage(const Player& goalie);
double SavePercentage(const Player& goalie);

enum class FreeAgentOrder { Overall, Age, Salary };
// The free agents of position `pos` (all when none), best Overall, youngest or
// dearest first (a tie keeps the database's order), the first `top` of them.
std::vector<FreeAgentEntry> ChooseFreeAgents(std::vector<FreeAgentEntry> list, std::optional<int> pos,
                                             FreeAgentOrder order, std::size_t top);

}  // namespace kvl
