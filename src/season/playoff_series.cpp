#include "season/playoff_series.h"

#include <algorithm>

#include "league/league_files.h"
#include "season/playoff_bracket.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr int kFinalStage = 3;

// The series of this stage between the two teams, or -1.
int SeriesOf(const LeagueState& s, int stage, int a, int b) {
  const PlayoffState& p = s.Playoff;
  for (int series = 0; series < SeriesInStage(stage); ++series) {
    const std::size_t i = PlayoffState::Index(stage, series);
    if ((p.SeriesHome[i] == a && p.SeriesAway[i] == b) || (p.SeriesHome[i] == b && p.SeriesAway[i] == a)) return series;
  }
  return -1;
}

bool StageDone(const LeagueState& s, int stage) {
  for (int series = 0; series < SeriesInStage(stage); ++series)
    if (!s.Playoff.SeriesDone[PlayoffState::Index(stage, series)]) return false;
  return true;
}

void StrikeDecidedGames(LeagueState& s, int stage) {
  RecordFile f(s.swap(swp::Schedule), ScheduleRecord::kSize);
  for (std::size_t n = 1; n <= f.count(); ++n) {
    ScheduleRecord r = f.getRecord<ScheduleRecord>(n);
    const int series = SeriesOf(s, stage, r.HomeTeam, r.AwayTeam);
    if (r.Played != 0 || series < 0 || !s.Playoff.SeriesDone[PlayoffState::Index(stage, series)]) continue;
    r.Played = -1;
    r.HomeScore = r.AwayScore = 0;
    f.putRecord(n, r);
  }
}

}  // namespace

int PlayoffStage(const LeagueState& s) { return s.league.PlayoffSize + s.Playoff.PlayoffRound - 1; }

int ShownPlayoffRound(const LeagueState& s) {
  return std::min<int>(s.Playoff.PlayoffRound, kFinalStage + 1 - s.league.PlayoffSize);
}

int SeriesInStage(int stage) { return 8 >> stage; }

void SeriesWin(LeagueState& s, int winner, int loser) {
  PlayoffState& p = s.Playoff;
  const int stage = PlayoffStage(s);
  if (stage < 0 || stage > kFinalStage) return;
  const int series = SeriesOf(s, stage, winner, loser);
  if (series < 0) return;
  const std::size_t i = PlayoffState::Index(stage, series);
  if (p.SeriesDone[i]) return;
  u8& wins = p.SeriesHome[i] == winner ? p.HomeWins[i] : p.AwayWins[i];
  if (++wins == kSeriesWins) {
    s.team(loser).PlayoffOut = 1;
    p.SeriesDone[i] = kTrue;
  }
}

PlayoffProgress EndPlayoffDay(LeagueState& s, const std::function<void()>& roundOver) {
  const int stage = PlayoffStage(s);
  if (stage < 0 || stage > kFinalStage) return PlayoffProgress::RoundGoesOn;
  StrikeDecidedGames(s, stage);
  if (!StageDone(s, stage)) return PlayoffProgress::RoundGoesOn;
  if (stage < kFinalStage && roundOver) roundOver();
  ++s.Playoff.PlayoffRound;
  if (stage == kFinalStage) return PlayoffProgress::FinalDecided;
  NextRoundMatchups(s);
  CreatePlayoffSchedule(s);
  return PlayoffProgress::NewRound;
}

int PlayoffChampion(const LeagueState& s) {
  const std::size_t i = PlayoffState::Index(kFinalStage, 0);
  const PlayoffState& p = s.Playoff;
  return p.HomeWins[i] == kSeriesWins ? p.SeriesHome[i] : p.SeriesAway[i];
}

}  // namespace kvl
