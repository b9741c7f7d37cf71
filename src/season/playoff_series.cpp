#include "season/playoff_series.h"

namespace kvl {

int PlayoffStage(const LeagueState& s) { return s.league.PlayoffSize + s.Playoff.PlayoffRound - 1; }

int SeriesInStage(int stage) { return 8 >> stage; }

void SeriesWin(LeagueState& s, int winner, int loser) {
  PlayoffState& p = s.Playoff;
  const int stage = PlayoffStage(s);
  if (stage < 0 || stage > 3) return;
  for (int series = 0; series < SeriesInStage(stage); ++series) {
    const std::size_t i = PlayoffState::Index(stage, series);
    if (p.SeriesDone[i]) continue;
    u8* wins = nullptr;
    if (p.SeriesHome[i] == winner && p.SeriesAway[i] == loser) wins = &p.HomeWins[i];
    if (p.SeriesAway[i] == winner && p.SeriesHome[i] == loser) wins = &p.AwayWins[i];
    if (!wins) continue;
    if (++*wins == kSeriesWins) {
      s.team(loser).PlayoffOut = 1;
      p.SeriesDone[i] = -1;
    }
    return;
  }
}

}  // namespace kvl
