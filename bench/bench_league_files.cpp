// LoadLg and SaveLg of a full 50-team league: 26 players and a coach a team, a
// player database, a season's schedule and every optional file. The league is
// written by the product's own code (SaveTeam into the swap files, then SaveLg).
#include <benchmark/benchmark.h>

#include <fmt/format.h>

#include "console/startup.h"
#include "league/league_files.h"
#include "schedule_bench_league.h"
#include "util/record_file.h"

namespace kvl::bench {
namespace {

constexpr int kTeams = 50;

// Positions of a legal roster: 4 C, 4 LW, 4 RW, 8 D, 3 G, and 3 in the minors.
constexpr int kRosterPos[] = {0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 3, 3, 3, 3, 4, 4, 4, 0, 3, 1};

Player BenchPlayer(int t, int slot) {
  Player p;
  p.Name.set(fmt::format("Player {:02}-{:02}", t, slot));
  p.Pos = static_cast<u8>(kRosterPos[slot]);
  p.Num = static_cast<u8>(slot + 2);
  p.Status = slot < 20 ? 200 : slot < 23 ? 100 : 0;
  p.Condition = 100;
  p.Age = static_cast<u8>(20 + (t + slot) % 15);
  for (int r = 0; r < 13; ++r) p.rating(r) = static_cast<u8>(40 + (t * 7 + slot * 3 + r) % 55);
  p.Salary = 400000 + 10000 * slot;
  p.Contract = static_cast<u8>(1 + slot % 4);
  p.Birthplace.set("CAN");
  return p;
}

void AppendRecord(Bytes& to, const Bytes& rec) { to.insert(to.end(), rec.begin(), rec.end()); }

template <class R>
void WriteSwap(LeagueState& s, const char* swap, int count, R record) {
  Bytes all;
  for (int i = 0; i < count; ++i) AppendRecord(all, EncodeRecord(record(i)));
  WriteFileAtomic(s.swap(swap), all);
}

void FillHeader(LeagueState& s) {
  League lg = DefaultLeagueHeader();
  lg.LeagueName.set("Bench League");
  lg.Conf = s.league.Conf;
  lg.NumTeams = s.league.NumTeams;
  for (int t = 0; t < kTeams; ++t) {
    Division& d = lg.Conf[s.team(t).Conf].Div[s.team(t).Div];
    d.Team[d.NumTeams++] = static_cast<u8>(t);
  }
  s.league = lg;
}

void FillTeams(LeagueState& s) {
  for (int t = 0; t < kTeams; ++t) {
    Team& team = s.team(t);
    team.Abbrev.set(fmt::format("B{:02}", t));
    team.Arena.set(fmt::format("Arena {}", t));
    team.CoachRec = static_cast<u8>(t + 1);
    team.Coach.Name.set(fmt::format("Coach {}", t));
    team.Lines.cells.fill(kNoPlayer);
    s.Farm[static_cast<std::size_t>(t)].Name.set(fmt::format("Farm {}", t));
    for (int slot = 0; slot < kRosterSlots; ++slot)
      s.player(0, slot) = slot < 26 ? BenchPlayer(t, slot) : Player{};
    s.Prospects[0] = ProspectList{};
    s.Prospects[0].Name[0].set(fmt::format("Prospect {}", t));
    SaveTeam(s, t, 0);
  }
}

void FillOtherSwaps(LeagueState& s) {
  WriteSwap(s, swp::Coaches, 60, [](int i) {
    Coach c;
    c.Name.set(fmt::format("Coach {}", i));
    c.Team = i < kTeams ? static_cast<u8>(i + 1) : Coach::kNoTeam;
    return c;
  });
  WriteSwap(s, swp::Database, 1600, [](int i) { return DbRecord{static_cast<i16>(i < 1300 ? -1 : 0), BenchPlayer(i % kTeams, i % 26)}; });
  WriteSwap(s, swp::Picks, kTeams, [](int) { return DraftPickRecord{}; });
  WriteSwap(s, swp::Futures, kTeams, [](int) { return ContractFuture{}; });
  WriteSwap(s, swp::Career, 500, [](int i) { return CareerRecord{static_cast<u8>(i % kTeams), BenchPlayer(i % kTeams, i % 26)}; });
  WriteSwap(s, swp::Schedule, kTeams * 41, [](int g) {
    ScheduleRecord r;
    r.HomeTeam = static_cast<u8>(g % kTeams);
    r.AwayTeam = static_cast<u8>((g * 7 + 1) % kTeams);
    r.GameNumber = static_cast<i16>(g + 1);
    return r;
  });
  WriteSwap(s, swp::Waivers, 6, [](int i) {
    WaiverRecord w;
    if (i % 2 == 0) w.Name.set(fmt::format("Waived {}", i));
    return w;
  });
  Bytes priority;
  for (int t = 0; t < kTeams; ++t) priority.push_back(static_cast<std::uint8_t>(t));
  WriteFileAtomic(s.swap(swp::Priority), priority);
  std::string log;
  for (int i = 0; i < 400; ++i) log += fmt::format("- Player {:03} (B{:02})<BR>\r\n", i, i % kTeams);
  for (const char* text : {swp::Transactions, swp::History, swp::Email}) WriteFileAtomic(s.swap(text), Bytes(log.begin(), log.end()));
}

// A league written to `home`/bench, and loaded.
struct LeagueOnDisk {
  LeagueOnDisk() : lg(AlignmentOf(kTeams)) {
    FillHeader(lg.state);
    FillTeams(lg.state);
    FillOtherSwaps(lg.state);
    lg.state.LeaguePath = (lg.home / "league" / "bench").string();
    fs::create_directories(lg.home / "league");
    SaveLg(lg.state);
    LoadLg(lg.state, lg.state.LeaguePath);
    if (!lg.ui.callsOf("tell").empty()) throw std::runtime_error("bench league: " + lg.ui.callsOf("tell")[0].text);
    for (const auto& e : fs::directory_iterator(lg.home / "league")) bytes += static_cast<std::int64_t>(e.file_size());
  }
  BenchLeague lg;
  std::int64_t bytes = 0;
};

void BM_LoadLg(benchmark::State& st) {
  LeagueOnDisk d;
  for (auto _ : st) LoadLg(d.lg.state, d.lg.state.LeaguePath);
  st.SetBytesProcessed(st.iterations() * d.bytes);
}
BENCHMARK(BM_LoadLg)->Unit(benchmark::kMillisecond);

void BM_SaveLg(benchmark::State& st) {
  LeagueOnDisk d;
  for (auto _ : st) SaveLg(d.lg.state);
  st.SetBytesProcessed(st.iterations() * d.bytes);
}
BENCHMARK(BM_SaveLg)->Unit(benchmark::kMillisecond);

// One team through the buffer and back, as every game and editor does.
void BM_LoadAndSaveTeam(benchmark::State& st) {
  LeagueOnDisk d;
  int t = 0;
  for (auto _ : st) {
    loadteam(d.lg.state, t, 0);
    SaveTeam(d.lg.state, t, 0);
    t = (t + 1) % kTeams;
  }
}
BENCHMARK(BM_LoadAndSaveTeam)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kvl::bench
