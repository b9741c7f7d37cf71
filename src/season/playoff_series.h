#pragma once
// The series of the playoff round being played: a game's result moves its
// series on; four wins end it.
#include "league/league_state.h"

namespace kvl {

constexpr int kSeriesWins = 4;

// The bracket stage of the round being played.
int PlayoffStage(const LeagueState& s);
// Series of a stage: 8, 4, 2, 1.
int SeriesInStage(int stage);
// One more win for `winner` in its series with `loser`; at four wins the
// loser is out and the series done. A pair with no open series is left alone.
void SeriesWin(LeagueState& s, int winner, int loser);

}  // namespace kvl
