// How often one press of Make Schedule succeeds: 100 presses, each with its own
// seed, of the day-filling maker on a fresh league. Run with
//   bench_schedule_presses --benchmark_counters_tabular=true
// and read made_share.
#include <benchmark/benchmark.h>

#include "schedule_bench_league.h"
#include "season/schedule_form.h"

namespace kvl::bench {
namespace {

constexpr int kSeeds = 100;

// range(0) teams; range(1) games per team, 0 for the suggestion.
void BM_SinglePressSuccess(benchmark::State& st) {
  int n = static_cast<int>(st.range(0));
  int made = 0, gp = 0;
  for (auto _ : st) {
    made = 0;
    for (int seed = 1; seed <= kSeeds; ++seed) {
      BenchLeague lg(AlignmentOf(n));
      lg.state.rnd.setMasterSeed(static_cast<std::uint64_t>(seed));
      ScheduleForm form(lg.state);
      if (st.range(1)) form.setParam(ScheduleParam::GPTeam, static_cast<int>(st.range(1)));
      gp = form.params().GPTeam;
      made += form.cmdNewSchedule() == ScheduleOutcome::Made ? 1 : 0;
    }
  }
  st.counters["presses"] = kSeeds;
  st.counters["made"] = made;
  st.counters["made_share"] = static_cast<double>(made) / kSeeds;
  st.counters["games_per_team"] = gp;
}

BENCHMARK(BM_SinglePressSuccess)
    ->Args({24, 0})
    ->Args({24, 82})
    ->Args({25, 0})
    ->Args({26, 0})
    ->Args({30, 82})
    ->Args({30, 0})
    ->Args({50, 0})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kvl::bench
