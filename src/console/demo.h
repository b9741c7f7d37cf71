#pragma once
// The demo: a league made from the bundled data in the home folder, aligned,
// filled, coached and set, saved as HOME/Demo.lge.
#include <cstdint>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr int kDemoMinTeams = 8, kDemoMaxTeams = 50;

struct DemoOptions {
  int teams = 24;
  std::uint64_t seed = 1;
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
};

// Adds the teams in two conferences, two divisions each (three above 40 teams),
// in turn so that the divisions come out even.
void AlignTeams(LeagueState& s, const std::vector<std::string>& names);
// Builds and saves the demo league, then loads it back as a user would. The
// same options give byte-identical league files.
DemoSummary RunDemo(LeagueState& s, const DemoOptions& o);
std::string DemoSummaryText(const LeagueState& s, const DemoSummary& d);

}  // namespace kvl
