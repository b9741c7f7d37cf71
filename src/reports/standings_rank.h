#pragma once
// How teams are ranked for the standings: the points of the point system, the
// one sorted list of the league, the seeding of division leaders, the walk of
// the played games for the splits and head-to-head points, and the clinch marks.
#include <array>
#include <string>
#include <vector>

#include "league/league_state.h"
#include "season/points.h"

namespace kvl {

struct StandingRow {
  int team = 0;
  int Points = 0, GP = 0, GF = 0, Diff = 0, Wins = 0, MaxPoints = 0;
};

// A team's splits from the walk of the played games.
struct TeamSplits {
  int HomeW = 0, HomeL = 0, HomeT = 0;
  int ConfW = 0, ConfL = 0, ConfT = 0;
  int L10W = 0, L10L = 0, L10T = 0;
  int seen = 0;
};

struct GameWalk {
  std::array<TeamSplits, kMaxTeams> splits{};
  // HeadToHead[a][b]: the points a has taken from b.
  std::array<std::array<int, kMaxTeams + 1>, kMaxTeams + 1> HeadToHead{};
};

// The games a team plays in the season, as a 16-bit whole number.
int SeasonGamesWhole(const LeagueState& s);

// Puts `r` at the first place whose row it beats (a row with no games gives
// way to anyone); a full tie goes behind.
void InsertRanked(std::vector<StandingRow>& rows, const StandingRow& r);
// Every team ranked, with the division leaders seeded first when the league
// seeds them.
std::vector<StandingRow> RankTeams(const LeagueState& s);
// Played games walked from the newest back.
GameWalk WalkGames(const LeagueState& s, const std::vector<ScheduleRecord>& games);

// Playoff berths per conference: 8, 4 or 2.
int Berths(const League& lg);
// The marks of one conference's rows, in their order: "x", "y", "z" or " ".
std::vector<std::string> ClinchMarks(const LeagueState& s, const std::vector<StandingRow>& confRows,
                                     const GameWalk& walk);

}  // namespace kvl
