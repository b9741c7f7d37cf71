#pragma once
// The calibration report: many exhibition games played in memory, and the
// means per team and game of what the sliders move.
#include <optional>
#include <string>
#include <utility>

#include "league/league_state.h"

namespace kvl {

struct ProfileOptions {
  int games = 1000;
  std::optional<std::pair<int, int>> pair;  // away, home; else every pairing in turn
  std::optional<int> shotsLevel, goalsLevel, penaltiesLevel, injuriesLevel;
  // Threads to play on. Game i has its own seed, drawn from the run's, so the
  // figures do not depend on how many threads play them.
  int jobs = 1;
};

struct ProfileTotals {
  std::array<u8, 5> sliders{};  // as set for the run
  int games = 0;
  int overtimeGames = 0;
  // Sums over both teams of every game.
  double goals = 0, shots = 0, powerPlays = 0, ppGoals = 0, pim = 0, fights = 0, injuries = 0, hits = 0, saves = 0;
};

// Plays the games; the league's sliders are set for the run only and nothing
// of the league changes. Each thread plays on its own copy of the league.
ProfileTotals RunProfile(LeagueState& s, const ProfileOptions& options);
// The report: the sliders, then each mean per team and game; with every
// slider at its default, beside the range a professional league plays to.
std::string ProfileText(const ProfileTotals& totals);

}  // namespace kvl
