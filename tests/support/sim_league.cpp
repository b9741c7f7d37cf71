#include "support/sim_league.h"

#include "league/league_files.h"
#include "season/schedule_file.h"
#include "support/golden.h"
#include "util/record_file.h"

namespace kvl::test {

LineTable StandardLines() {
  LineTable lines;
  lines.cells.fill(kNoPlayer);
  auto row = [&](int r, std::initializer_list<int> slots) {
    int seat = 0;
    for (int p : slots) lines.at(r, seat++) = static_cast<u8>(p);
  };
  constexpr int pairs[4][2] = {{12, 13}, {14, 15}, {16, 17}, {12, 13}};
  for (int r = 0; r < 4; ++r) row(r, {r, kFirstLW + r, kFirstRW + r, pairs[r][0], pairs[r][1]});
  row(4, {0, 4, 8, 12, 14});
  row(5, {1, 5, 9, 13, 15});
  row(6, {0, 4, 12, 14});
  row(7, {1, 5, 13, 15});
  row(8, {2, 6, 16, 17});
  row(9, {3, 7, 12, 13});
  row(10, {2, 16, 17});
  row(11, {3, 14, 15});
  row(12, {kFirstG, 3, 16});
  return lines;
}

LeaguePlan SimLeague(int teams, unsigned seed) {
  LeaguePlan plan = StandardLeague(teams, seed);
  for (auto& roster : plan.rosters) {
    roster[18].Status = 100;
    roster[20].Status = 200;
  }
  for (auto& t : plan.teams) {
    t.Lines = StandardLines();
    t.LinesOK = kTrue;
  }
  return plan;
}

ScheduledLeague::ScheduledLeague(const std::vector<std::pair<int, int>>& games, const LeaguePlan& plan) {
  h.state.rnd.setMasterSeed(7);
  h.load(plan);
  RecordFile f(h.state.swap(swp::Schedule), ScheduleRecord::kSize);
  for (std::size_t i = 0; i < games.size(); ++i) {
    ScheduleRecord r;
    r.AwayTeam = static_cast<u8>(games[i].first);
    r.HomeTeam = static_cast<u8>(games[i].second);
    r.GameNumber = static_cast<i16>(i + 1);
    f.putRecord(i + 1, r);
  }
  h.state.league.ScheduleMade = kTrue;
  h.state.league.LeagueGames = static_cast<i16>(games.size());
}

std::string ScheduledLeague::page(const std::string& name) const {
  return ReadAll(h.home / "Transfer" / ("test" + name));
}

void HireCoach(LeaguePlan& plan, int team) {
  std::size_t t = static_cast<std::size_t>(team);
  plan.teams[t].CoachRec = static_cast<u8>(team + 1);
  plan.teams[t].Coach.Name = plan.coaches[t].Name;
  plan.coaches[t].Team = static_cast<u8>(team + 1);
}

GameFixture::GameFixture(const LeaguePlan& plan, bool setup) {
  h.state.rnd.setMasterSeed(7);
  h.load(plan);
  if (setup) game.SetupGame(0, 1);
}

void GameFixture::Seat(int sd, std::initializer_list<int> slots) {
  GameSide& g = side(sd);
  for (int slot = 0; slot < kGameSlots; ++slot)
    if (g.Status[static_cast<std::size_t>(slot)] == kOnIce) g.Bench(slot);
  g.OnIce.fill(kNoPlayer);
  int seat = 0;
  for (int p : slots) {
    g.OnIce[static_cast<std::size_t>(seat++)] = static_cast<u8>(p);
    if (p != kNoPlayer) g.Status[static_cast<std::size_t>(p)] = kOnIce;
  }
  game.RefreshSeatTerms(sd);
}

}  // namespace kvl::test
