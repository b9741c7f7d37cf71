#pragma once
// Players gathered from every roster for the pages that rank them, and the
// ranked table they are put in: a candidate displaces the first row it beats
// and pushes the rest down; on a tie the first met keeps its place.
#include <functional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

struct RosterEntry {
  int team = 0;
  Player p;
};

// Runs `fn` for each team in number order with its roster loaded in side 0.
void ForEachLoadedTeam(LeagueState& s, const std::function<void(int team)>& fn);
// Every named player of every team, loaded team by team into side 0.
std::vector<RosterEntry> AllPlayers(LeagueState& s);

using Beats = std::function<bool(const RosterEntry& candidate, const RosterEntry& row)>;
// The best `rows` candidates in order.
std::vector<RosterEntry> RankPlayers(const std::vector<RosterEntry>& candidates, std::size_t rows, const Beats& beats);

// The scoring order: more points; with equal points fewer games; then more goals.
bool OutScores(int points, int gp, int goals, int rowPoints, int rowGp, int rowGoals);
bool OutScores(const Player& a, const Player& row);

// The fewest games a goalie needs to be ranked: four tenths of the average
// team's games, rounded; in the playoffs the round being played.
int MinGoalieGP(const LeagueState& s);

// The position, the thirteen ratings in record order and Overall, as the
// player lists print them under "PO IT SP ... LD OV"; a goalie's 0 is a
// rating that does not apply to him and shows "NA".
std::vector<std::string> PositionAndRatings(const Player& p);

// Mark, name and team for the leaders' rows: "*" for a rookie.
std::string RookieMark(const Player& p);
// "<name> (<team>)" in at most `width` characters, not yet escaped: a name too
// long gives way to its short form, then is cut; the team stays whole.
std::string NameAndTeam(const LeagueState& s, const RosterEntry& e, std::size_t width);
// A leaders' row label: `lead` (the mark, the place), the name and the team,
// padded to `width` and escaped.
std::string LeaderLabel(const LeagueState& s, const std::string& lead, const RosterEntry& e, std::size_t width);

}  // namespace kvl
