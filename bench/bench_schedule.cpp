// The schedule maker's two stages, and one whole press of Make Schedule, for
// leagues of 24, 30 and 50 teams at their suggested games per team.
#include <benchmark/benchmark.h>

#include "league/league_files.h"
#include "schedule_bench_league.h"
#include "season/schedule_alignment.h"
#include "season/schedule_allot.h"
#include "season/schedule_form.h"
#include "season/schedule_place.h"
#include "util/record_file.h"

namespace kvl::bench {
namespace {

struct Allotted {
  explicit Allotted(int teams) : lg(AlignmentOf(teams)), p(DefaultScheduleParams(teams)) {
    p.GPTeam = *SuggestedGamesPerTeam(lg.state, p.vsDiv, p.vsConf, p.vsLg);
    AllotGameLog log(lg.home, lg.clock.now());
    ok = AllotGames(lg.state, p, m, log);
  }
  BenchLeague lg;
  ScheduleParams p;
  ScheduleMatrices m;
  bool ok = false;
};

void BM_AllotGames(benchmark::State& st) {
  Allotted a(static_cast<int>(st.range(0)));
  for (auto _ : st) {
    ScheduleMatrices m;
    AllotGameLog log(a.lg.home, a.lg.clock.now());
    benchmark::DoNotOptimize(AllotGames(a.lg.state, a.p, m, log));
  }
  st.counters["games_per_team"] = a.p.GPTeam;
}

// Placement of one allotment with a fresh draw each time, records written to
// the swap schedule file as the maker writes them.
void BM_PlaceGames(benchmark::State& st) {
  int n = static_cast<int>(st.range(0));
  Allotted a(n);
  if (!a.ok) st.SkipWithError("allotment failed");
  double total = n / 2.0 * a.p.GPTeam;
  std::uint64_t seed = 0;
  double made = 0, presses = 0;
  for (auto _ : st) {
    ScheduleMatrices work = a.m;
    Rnd rnd(++seed);
    i16 placed = 0;
    RemoveIfExists(a.lg.state.swap(swp::Schedule));
    RecordFile file(a.lg.state.swap(swp::Schedule), ScheduleRecord::kSize);
    GameDayMaker mk(work, a.p, n, rnd, placed,
                    [&file](int k, const ScheduleRecord& r) { file.putRecord(static_cast<std::size_t>(k), r); });
    mk.Start();
    while (placed != total && mk.MakeGameDay() != 0) {
    }
    made += placed == total ? 1 : 0;
    ++presses;
  }
  st.counters["made_share"] = made / presses;
}

// The whole command: allotment with its log, placement, and the league reset.
void BM_MakeSchedulePress(benchmark::State& st) {
  int n = static_cast<int>(st.range(0));
  BenchLeague lg(AlignmentOf(n));
  lg.state.rnd.setMasterSeed(1);
  double made = 0, presses = 0;
  for (auto _ : st) {
    ScheduleForm form(lg.state);
    made += form.cmdNewSchedule() == ScheduleOutcome::Made ? 1 : 0;
    ++presses;
  }
  st.counters["made_share"] = made / presses;
}

BENCHMARK(BM_AllotGames)->Arg(24)->Arg(30)->Arg(50)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlaceGames)->Arg(24)->Arg(30)->Arg(50)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MakeSchedulePress)->Arg(24)->Arg(30)->Arg(50)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kvl::bench
