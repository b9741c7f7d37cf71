#pragma once
// The season report: the open league's regular season played on a copy of its
// swap files, once in one run and once a game day at a time, with the figures
// of each sixth of the season beside the range a professional league plays to.
// A league drifts over a season in ways rested exhibitions never show.
#include <array>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

struct SeasonSixth {
  int games = 0;
  // Sums over both teams of every game of the sixth.
  double goals = 0, shots = 0, saves = 0, powerPlays = 0, ppGoals = 0, pim = 0, fights = 0, skatersDressed = 0;
  // The teams' starting goalies at the sixth's end.
  double starterCondition = 0;
  int starters = 0;
  // Dressed, healthy players whose condition ended the sixth below 70.
  std::vector<std::string> tired;
};

struct SeasonRun {
  std::string mode;  // "In one run", "Day by day"
  std::array<SeasonSixth, 6> sixths{};
  std::string stoppedBy;  // what ended the run before the season did
};

struct SeasonProfile {
  bool scheduleMade = false;  // the copy had no schedule and was given one
  std::vector<SeasonRun> runs;
};

// Plays what is left of the regular season twice, each on its own copy in a
// temporary folder, on `jobs` threads (the figures do not depend on it). The
// open league and its swap files do not change. Refused (KvlError) past the
// regular season.
SeasonProfile RunSeasonProfile(LeagueState& s, int jobs);
std::string SeasonProfileText(const SeasonProfile& p);

}  // namespace kvl
