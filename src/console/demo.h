#pragma once
// The demo: a league made from the bundled data in the home folder, aligned,
// filled, coached and set, saved as HOME/Demo.lge, and its season played.
#include <cstdint>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr int kDemoMinTeams = 8, kDemoMaxTeams = 50;

struct DemoOptions {
  int teams = 24;
  std::uint64_t seed = 1;
  int divisions = 0;  // per conference; 0: two, three above 40 teams
};

struct DemoTeam {
  int team = 0;
  double dressedMean = 0;  // mean Overall of the dressed players
};

struct DemoSummary {
  int teams = 0;
  int players = 0;
  DemoTeam best, worst;
  std::string path;  // the league, without extension
  int gamesPlayed = 0, gameDays = 0;
  std::string playoffPath, nextPath;
  int playoffGames = 0;
  int champion = -1;
};

// Adds the teams in two conferences, two divisions each (three above 40 teams),
// in turn so that the divisions come out even.
void AlignTeams(LeagueState& s, const std::vector<std::string>& names, int divisions = 0);
// Builds and saves the demo league, then loads it back as a user would.
DemoSummary BuildDemo(LeagueState& s, const DemoOptions& o);
// BuildDemo, then the year: the season played and saved, the playoffs to a
// champion, the re-rate and the next season, each saved under its own name.
// The same options give byte-identical league files.
DemoSummary RunDemo(LeagueState& s, const DemoOptions& o);
std::string DemoSummaryText(const LeagueState& s, const DemoSummary& d);

}  // namespace kvl
