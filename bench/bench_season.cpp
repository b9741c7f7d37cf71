// A whole regular season of a 30-team league (two conferences of three
// divisions, 82 games a team, 1,230 games) with the league's default options:
// every game day with its box scores, daily page, rest days and the saves of
// both teams, the league's pages that the automatic output writes, then SaveLg.
// The league is built once from the bundled data; each run plays a fresh copy.
#include <benchmark/benchmark.h>

#include "console/demo.h"
#include "console/startup.h"
#include "league/league_files.h"
#include "schedule_bench_league.h"
#include "season/schedule_form.h"
#include "sim/game_day.h"

namespace kvl {
namespace {

constexpr int kTeams = 30, kGamesPerTeam = 82;

void BM_Season30Teams82Games(benchmark::State& st) {
  ScriptedUi ui;
  ui.setFallback(Answer::Yes);
  FixedClock clock(46000.5);
  const fs::path home = bench::MakeTempHome();
  LeagueState s(ui, clock, home);
  PrepareHomeFolder(home);
  BuildDemo(s, {kTeams, 1, 3});
  const std::string fresh = (home / "Fresh").string();
  SaveLeagueAs(s, "", fs::path(fresh + ".lge"));
  double games = 0;
  for (auto _ : st) {
    st.PauseTiming();
    LoadLg(s, fresh);
    SaveLeagueAs(s, "", home / "Season.lge");
    ScheduleForm form(s);
    form.setParam(ScheduleParam::GPTeam, kGamesPerTeam);
    while (form.cmdNewSchedule() != ScheduleOutcome::Made) {
    }
    st.ResumeTiming();
    Games days(s);
    days.PlayToEnd();
    SaveLg(s);
    games += days.gamesPlayed;
  }
  st.counters["games_per_season"] = games / static_cast<double>(st.iterations());
  st.counters["games_per_second"] = benchmark::Counter(games, benchmark::Counter::kIsRate);
  fs::remove_all(home);
}
BENCHMARK(BM_Season30Teams82Games)->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace
}  // namespace kvl
