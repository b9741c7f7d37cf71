// AutoAll ("Configuring Rosters/Lines") over a league of 50 teams: for each team
// a load, the roster maker, the line maker and two saves through the swap files.
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <stdlib.h>

#include <filesystem>

#include "console/startup.h"
#include "league/league_files.h"
#include "team/auto_all.h"
#include "ui/scripted_ui.h"
#include "util/bytes.h"
#include "util/clock.h"
#include "util/record_file.h"

namespace kvl {
namespace {

namespace fs = std::filesystem;

constexpr int kTeams = 50;

Player BenchPlayer(int team, int slot, int pos, int status) {
  Player p;
  p.Name.set(fmt::format("P{}-{}", team, slot));
  p.Pos = static_cast<u8>(pos);
  p.Status = static_cast<u8>(status);
  p.Condition = 100;
  p.Age = 25;
  for (int r = 0; r < 13; ++r) p.rating(r) = static_cast<u8>(45 + (team * 13 + slot * 7 + r * 5) % 50);
  return p;
}

// 4 C, 4 LW, 4 RW, 7 D, 3 G on the pro roster, then 3 minor leaguers; nobody
// dressed yet, so every team has the whole job to do.
Bytes Roster(int team) {
  static constexpr int kPos[] = {0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 3, 3, 3, 4, 4, 4, 0, 2, 3};
  Bytes out;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    Player p;
    if (slot < 25) p = BenchPlayer(team, slot, kPos[slot], slot < 22 ? 100 : 0);
    Bytes rec = EncodeRecord(p);
    out.insert(out.end(), rec.begin(), rec.end());
  }
  return out;
}

void WriteBenchLeague(const std::string& path) {
  League lg = DefaultLeagueHeader();
  lg.LeagueName.set("Bench League");
  lg.NumTeams = kTeams - 1;  // stored as the count less one
  WriteFileAtomic(path + ".lge", EncodeRecord(lg));
  Bytes tms, ros, pct, dpk, frm;
  auto append = [](Bytes& to, const Bytes& rec) { to.insert(to.end(), rec.begin(), rec.end()); };
  for (int t = 0; t < kTeams; ++t) {
    Team team;
    team.Name.set(fmt::format("Team{}", t));
    team.Lines.cells.fill(kNoPlayer);
    append(tms, EncodeRecord(team));
    append(ros, Roster(t));
    append(pct, EncodeRecord(ProspectList{}));
    append(dpk, EncodeRecord(DraftPickRecord{}));
    append(frm, EncodeRecord(FarmTeam{}));
  }
  WriteFileAtomic(path + ".tms", tms);
  WriteFileAtomic(path + ".ros", ros);
  WriteFileAtomic(path + ".pct", pct);
  WriteFileAtomic(path + ".dpk", dpk);
  WriteFileAtomic(path + ".frm", frm);
  WriteFileAtomic(path + ".drs", EncodeRecord(DbRecord{}));
  WriteFileAtomic(path + ".coa", EncodeRecord(Coach{}));
}

void BM_AutoAll50Teams(benchmark::State& st) {
  std::string tmpl = (fs::temp_directory_path() / "kvlbench.XXXXXX").string();
  if (!::mkdtemp(tmpl.data())) {
    st.SkipWithError("no temporary folder");
    return;
  }
  fs::path dir = tmpl;
  PrepareHomeFolder(dir / "home");
  WriteBenchLeague((dir / "bench").string());
  ScriptedUi ui;
  FixedClock clock{46000.5};
  LeagueState s(ui, clock, dir / "home");
  LoadLg(s, (dir / "bench").string());
  for (auto _ : st) {
    AutoAllResult r = AutoAll(s);
    benchmark::DoNotOptimize(r.teamsSet);
    if (r.teamsSet != kTeams) st.SkipWithError("a team was not set");
  }
  st.counters["teams/s"] =
      benchmark::Counter(static_cast<double>(kTeams), benchmark::Counter::kIsIterationInvariantRate);
  fs::remove_all(dir);
}
BENCHMARK(BM_AutoAll50Teams)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kvl
