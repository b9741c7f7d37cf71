#pragma once
// An exhibition: one game between two teams of the open league, its box score
// written, and nothing of the league changed.
#include <filesystem>

#include "league/league_state.h"

namespace kvl {

struct ExhibitionResult {
  int awayGoals = 0, homeGoals = 0;
  int overtimes = 0;
  std::filesystem::path page;
};

ExhibitionResult PlayExhibition(LeagueState& s, int away, int home);

}  // namespace kvl
