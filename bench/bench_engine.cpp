// Games per second of the play engine alone: a league of 24 teams built in
// memory, rosters copied from a cache, no files read or written per game.
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <memory>

#include "console/startup.h"
#include "sim/game.h"
#include "sim/roster_cache.h"
#include "ui/scripted_ui.h"
#include "util/clock.h"

namespace kvl {
namespace {

constexpr int kTeams = 24;

// 4 C, 4 LW, 4 RW, 6 D and 2 G dressed, one more D and G scratched.
RosterCache::Roster MakeRoster(int team, Rnd& rnd) {
  static constexpr int kCounts[5] = {4, 4, 4, 7, 3};
  RosterCache::Roster r{};
  int slot = 0;
  for (int pos = 0; pos < 5; ++pos)
    for (int i = 0; i < kCounts[pos]; ++i) {
      Player& p = r[static_cast<std::size_t>(slot++)];
      p.Name.set(fmt::format("P{}-{}", team, slot));
      p.Pos = static_cast<u8>(pos);
      p.Condition = 100;
      p.Status = (pos == kDefence && i == 6) || (pos == kGoalie && i == 2) ? 100 : 200;
      for (int k = 0; k < 13; ++k) p.rating(k) = static_cast<u8>(45 + rnd(50));
    }
  return r;
}

void FillLines(LineTable& t) {
  t.cells.fill(kNoPlayer);
  const int rows[13][5] = {{0, 4, 8, 12, 13},  {1, 5, 9, 14, 15},  {2, 6, 10, 16, 17}, {3, 7, 11, 12, 13},
                           {0, 4, 8, 12, 14},  {1, 5, 9, 13, 15},  {0, 4, 12, 14, 255}, {1, 5, 13, 15, 255},
                           {2, 6, 16, 17, 255}, {3, 7, 12, 13, 255}, {2, 16, 17, 255, 255}, {3, 14, 15, 255, 255},
                           {19, 3, 16, 255, 255}};
  for (int row = 0; row < 13; ++row)
    for (int seat = 0; seat < 5; ++seat) t.at(row, seat) = static_cast<u8>(rows[row][seat]);
}

struct BenchLeague {
  BenchLeague() : state(ui, clock, "/nonexistent") {
    state.league = DefaultLeagueHeader();
    state.league.NumTeams = kTeams;
    Rnd rnd(2024);
    std::vector<RosterCache::Roster> rosters;
    std::vector<Coach> coaches;
    for (int t = 0; t < kTeams; ++t) {
      Team& team = state.team(t);
      team.Name.set(fmt::format("Team{}", t));
      team.Abbrev.set(fmt::format("T{}", t));
      FillLines(team.Lines);
      team.LinesOK = kTrue;
      team.CoachRec = static_cast<u8>(t + 1);
      rosters.push_back(MakeRoster(t, rnd));
      Coach c;
      c.OF = static_cast<u8>(50 + rnd(49));
      c.DF = static_cast<u8>(50 + rnd(49));
      c.EX = static_cast<u8>(50 + rnd(49));
      c.LD = static_cast<u8>(50 + rnd(49));
      coaches.push_back(c);
    }
    cache = std::make_unique<RosterCache>(std::move(rosters), std::move(coaches));
  }
  ScriptedUi ui;
  FixedClock clock{46000.5};
  LeagueState state;
  std::unique_ptr<RosterCache> cache;
};

void BM_PlayGame(benchmark::State& st) {
  BenchLeague lg;
  GameOptions opt;
  opt.isExhibition = true;
  opt.rosters = lg.cache.get();
  int i = 0, goals = 0, shots = 0;
  for (auto _ : st) {
    Game game(lg.state, opt);
    int away = i % kTeams, home = (i / kTeams + 1 + away) % kTeams;
    if (home == away) home = (home + 1) % kTeams;
    game.PlayGame(away, home);
    goals += game.side[0].Goals + game.side[1].Goals;
    shots += game.side[0].Shots + game.side[1].Shots;
    ++i;
  }
  st.SetItemsProcessed(st.iterations());
  st.counters["goals/team"] = benchmark::Counter(goals / 2.0 / std::max(i, 1));
  st.counters["shots/team"] = benchmark::Counter(shots / 2.0 / std::max(i, 1));
}
BENCHMARK(BM_PlayGame)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kvl
