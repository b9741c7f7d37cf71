#pragma once
// The series of the playoff round being played: a game's result moves its
// series on; four wins end it; a finished round makes the next one.
#include <functional>

#include "league/league_state.h"

namespace kvl {

constexpr int kSeriesWins = 4;

// The bracket stage of the round being played.
int PlayoffStage(const LeagueState& s);
// The round the pages show: the one being played, the final once it is
// decided, 0 before the playoffs.
int ShownPlayoffRound(const LeagueState& s);
// Series of a stage: 8, 4, 2, 1.
int SeriesInStage(int stage);
// One more win for `winner` in its series with `loser`; at four wins the
// loser is out and the series done. A pair with no open series is left alone.
void SeriesWin(LeagueState& s, int winner, int loser);

enum class PlayoffProgress { RoundGoesOn, NewRound, FinalDecided };
// After a playoff game day: the games left of decided series are marked as
// never played (both scores 0), and a finished round turns to the next one
// with its schedule; `roundOver` runs first, while the finished round's
// schedule is still there.
PlayoffProgress EndPlayoffDay(LeagueState& s, const std::function<void()>& roundOver = {});
// The winner of the final.
int PlayoffChampion(const LeagueState& s);

}  // namespace kvl
