#pragma once
// Start Playoffs and the end of the playoffs. The playoffs run as a file set
// of their own, the league's name with "PLF" behind it, so the regular
// season's files stay as they were.
#include <optional>

#include "league/league_state.h"

namespace kvl {

// The command: refuses outside a finished regular season, on an unnamed
// league or when a conference has too few teams; asks, offers to save the
// season, then seeds, resets the statistics and writes the first round's
// schedule. False when refused or declined.
bool Playoffs(LeagueState& s);
// The same without the questions, once the checks have passed.
void BeginPlayoffs(LeagueState& s);
struct PlayoffEnd {
  std::optional<fs::path> saveAs;  // the re-rated league's new name; else asked
  bool askToRerate = true;         // the demo re-rates without the question
};

// After the final: tells the champion, turns to the off-season, offers the
// re-rate and, when it ran, saves under a new name.
void FinishPlayoffs(LeagueState& s, const PlayoffEnd& end);

}  // namespace kvl
