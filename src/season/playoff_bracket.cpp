#include "season/playoff_bracket.h"

#include <fmt/format.h>

#include <array>
#include <vector>

#include "league/league_files.h"
#include "season/playoff_series.h"
#include "season/points.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr std::size_t kSeedPlaces = 49;
constexpr int kSeriesGames = 7;
constexpr std::array<bool, kSeriesGames> kHostHome{true, true, false, false, true, false, true};

std::size_t At(int i) { return static_cast<std::size_t>(i); }

int Seeded(const LeagueState& s) { return std::min(s.numTeams(), static_cast<int>(kSeedPlaces)); }

bool Alive(const LeagueState& s, int team) { return s.team(team).PlayoffOut == 0; }

// The division leaders of each conference take their places first.
void MarkDivisionLeaders(LeagueState& s) {
  PlayoffState& p = s.Playoff;
  for (int c = 0; c < 2; ++c) {
    std::array<bool, 4> seen{};
    int leaders = 0;
    for (int i = 0; i < Seeded(s) && leaders < s.league.Conf[At(c)].NumDivs; ++i) {
      const Team& t = s.team(p.Seeds[At(i)]);
      if (t.Conf != c || t.Div >= seen.size() || seen[t.Div]) continue;
      seen[t.Div] = true;
      p.DivLeader[At(i)] = kTrue;
      ++leaders;
    }
  }
}

void TakeQualifiers(LeagueState& s) {
  PlayoffState& p = s.Playoff;
  const int quota = ConferenceQuota(s.league);
  std::array<int, 2> held{};
  for (int i = 0; i < Seeded(s); ++i)
    if (p.DivLeader[At(i)]) ++held[s.team(p.Seeds[At(i)]).Conf & 1];
  for (int i = 0; i < Seeded(s); ++i) {
    if (p.DivLeader[At(i)]) continue;
    Team& t = s.team(p.Seeds[At(i)]);
    if (held[t.Conf & 1] < quota)
      ++held[t.Conf & 1];
    else
      t.PlayoffOut = 1;
  }
}

// Non-qualifiers first, worst first, then the qualifiers, worst first.
void SetWaiverOrder(LeagueState& s) {
  u8 next = 0;
  for (int out : {1, 0})
    for (int i = Seeded(s) - 1; i >= 0; --i) {
      Team& t = s.team(s.Playoff.Seeds[At(i)]);
      if ((t.PlayoffOut != 0) == (out == 1)) t.Priority = next++;
    }
}

// A conference's alive teams in seed order, division leaders first when they
// are seeded apart.
std::vector<int> ConferenceList(const LeagueState& s, int conf) {
  const PlayoffState& p = s.Playoff;
  std::vector<int> list;
  std::array<bool, kMaxTeams> taken{};
  auto take = [&](bool leadersOnly) {
    for (int i = 0; i < Seeded(s); ++i) {
      const int team = p.Seeds[At(i)];
      if (taken[At(team)] || !Alive(s, team) || s.team(team).Conf != conf) continue;
      if (leadersOnly && !p.DivLeader[At(i)]) continue;
      taken[At(team)] = true;
      list.push_back(team);
    }
  };
  if (s.league.SeedDivLeaders) take(true);
  take(false);
  return list;
}

void SetSeries(PlayoffState& p, int stage, int series, int home, int away) {
  p.SeriesHome[PlayoffState::Index(stage, series)] = static_cast<u8>(home);
  p.SeriesAway[PlayoffState::Index(stage, series)] = static_cast<u8>(away);
}

}  // namespace

int ConferenceQuota(const League& league) { return 8 >> league.PlayoffSize; }

std::string QuotaShortfall(const LeagueState& s) {
  const int quota = ConferenceQuota(s.league);
  for (int c = 0; c < 2; ++c) {
    int teams = 0;
    for (int t = 0; t < s.numTeams(); ++t) teams += s.team(t).Conf == c;
    if (teams < quota)
      return fmt::format(
          "The playoffs take {} teams from each conference, but {} has only {}. Choose a smaller "
          "playoff size in the league options.",
          quota, s.league.Conf[At(c)].Name.str(), teams);
  }
  return "";
}

void MakePlayoffSeeds(LeagueState& s) {
  PlayoffState& p = s.Playoff;
  const std::vector<int> ranked = SeedOrder(s);
  for (int i = 0; i < Seeded(s); ++i) p.Seeds[At(i)] = static_cast<u8>(ranked[At(i)]);
  // A fiftieth team has no seed place, and so no place in the playoffs.
  for (std::size_t i = kSeedPlaces; i < ranked.size(); ++i) s.team(ranked[i]).PlayoffOut = 1;
  if (s.league.SeedDivLeaders) MarkDivisionLeaders(s);
  s.league.PlayoffTeams = static_cast<u8>(2 * ConferenceQuota(s.league));
  TakeQualifiers(s);
  NextRoundMatchups(s);
  SetWaiverOrder(s);
}

void NextRoundMatchups(LeagueState& s) {
  PlayoffState& p = s.Playoff;
  const int stage = PlayoffStage(s);
  const std::array<std::vector<int>, 2> lists{ConferenceList(s, 0), ConferenceList(s, 1)};
  if (stage == 3) {
    if (lists[0].empty() || lists[1].empty()) return;
    for (int i = 0; i < Seeded(s); ++i) {
      const int team = p.Seeds[At(i)];
      if (team != lists[0][0] && team != lists[1][0]) continue;
      const int other = team == lists[0][0] ? lists[1][0] : lists[0][0];
      SetSeries(p, 3, 0, team, other);
      return;
    }
    return;
  }
  const int last = (8 >> stage) - 1;
  int series = 0;
  for (const std::vector<int>& list : lists)
    for (int k = 0; k <= last / 2; ++k) {
      if (At(last - k) >= list.size()) continue;
      SetSeries(p, stage, series++, list[At(k)], list[At(last - k)]);
    }
}

void CreatePlayoffSchedule(LeagueState& s) {
  const PlayoffState& p = s.Playoff;
  const int stage = PlayoffStage(s);
  RemoveIfExists(s.swap(swp::Schedule));
  RecordFile f(s.swap(swp::Schedule), ScheduleRecord::kSize);
  int number = 0;
  for (int game = 0; game < kSeriesGames; ++game)
    for (int series = 0; series < SeriesInStage(stage); ++series) {
      const std::size_t i = PlayoffState::Index(stage, series);
      ScheduleRecord r;
      r.HomeTeam = kHostHome[At(game)] ? p.SeriesHome[i] : p.SeriesAway[i];
      r.AwayTeam = kHostHome[At(game)] ? p.SeriesAway[i] : p.SeriesHome[i];
      r.GameNumber = static_cast<i16>(++number);
      r.GameDay = static_cast<i16>(number / 4);
      f.putRecord(At(number), r);
    }
  s.league.GamesPlayed = 0;
  s.league.ScheduleMade = kTrue;
}

}  // namespace kvl
