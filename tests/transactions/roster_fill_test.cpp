#include "transactions/roster_fill.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/roster_check.h"
#include "support/data_league.h"
#include "transactions/database_players.h"
#include "util/record_file.h"

namespace kvl {
namespace {

struct ClubCount {
  std::array<int, 5> pro{}, farm{}, dressed{};
  double dressedMean = 0;
};

ClubCount Count(LeagueState& s, int t) {
  loadteam(s, t, 0);
  ClubCount c;
  int sum = 0;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (p.empty()) continue;
    ++(p.list() > 0 ? c.pro : c.farm)[p.Pos];
    if (p.list() == 2) {
      ++c.dressed[p.Pos];
      sum += Overall(p);
    }
  }
  c.dressedMean = sum / 20.0;
  return c;
}

class FillRostersTeams : public ::testing::TestWithParam<int> {};

TEST_P(FillRostersTeams, GivesEveryTeamALegalEvenClub) {
  const int teams = GetParam();
  test::Harness h;
  test::NewBundledLeague(h, teams);
  FillResult r = FillRosters(h.state);
  EXPECT_EQ(r.assigned, teams * 28);
  EXPECT_TRUE(r.shortTeams.empty());
  EXPECT_TRUE(CheckRosters(h.state).allValid);

  double lo = 99, hi = 0;
  std::set<std::string> names;
  for (int t = 0; t < teams; ++t) {
    ClubCount c = Count(h.state, t);
    EXPECT_EQ(c.pro, (std::array<int, 5>{4, 4, 4, 7, 3})) << "team " << t;
    EXPECT_EQ(c.farm, (std::array<int, 5>{1, 1, 1, 2, 1})) << "team " << t;
    EXPECT_EQ(c.dressed, (std::array<int, 5>{4, 4, 4, 6, 2})) << "team " << t;
    lo = std::min(lo, c.dressedMean);
    hi = std::max(hi, c.dressedMean);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = h.state.player(0, slot);
      if (!p.empty()) {
        EXPECT_TRUE(names.insert(p.Name.str()).second) << "on two teams";
      }
    }
  }
  EXPECT_LE(hi - lo, 2.0) << "dressed means from " << lo << " to " << hi;

  // The database marks exactly the players handed out.
  std::vector<DbRecord> db = ReadDatabase(h.state);
  EXPECT_EQ(std::count_if(db.begin(), db.end(), [](const DbRecord& d) { return d.DbFlag != 0; }), teams * 28);
  for (const DbRecord& d : db) EXPECT_EQ(d.DbFlag != 0, names.count(d.P.Name.str()) == 1) << d.P.Name.str();
}

INSTANTIATE_TEST_SUITE_P(Leagues, FillRostersTeams, ::testing::Values(8, 24, 50));

TEST(FillRosters, TheBetterPlayersGoEarly) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  FillRosters(h.state);
  // No free goalie of the database is better than a dressed goalie of any team.
  int worstDressed = 99, bestFree = 0;
  for (int t = 0; t < 8; ++t) {
    loadteam(h.state, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = h.state.player(0, slot);
      if (!p.empty() && p.Pos == kGoalie && p.list() == 2) worstDressed = std::min(worstDressed, Overall(p));
    }
  }
  for (const DbRecord& d : ReadDatabase(h.state))
    if (d.DbFlag == 0 && d.P.Pos == kGoalie) bestFree = std::max(bestFree, Overall(d.P));
  EXPECT_GE(worstDressed, bestFree);
}

TEST(FillRosters, FillsOnlyWhatATeamLacksAndKeepsItsLineUp) {
  test::Harness h;
  h.load(test::StandardLeague(8));  // 22 pro and 2 minor leaguers a team, dressed
  Bytes before = ReadFileBytes(h.state.swap(swp::Roster));
  // The same clubs under a new league from the bundled database.
  test::NewBundledLeague(h, 8);
  WriteFileAtomic(h.state.swap(swp::Roster), before);
  FillResult r = FillRosters(h.state);
  // Each standard team has the pro shape and a minor C and D: it lacks LW, RW, D and G in the farm.
  EXPECT_EQ(r.assigned, 8 * 4);
  ClubCount c = Count(h.state, 3);
  EXPECT_EQ(c.farm, (std::array<int, 5>{1, 1, 1, 2, 1}));
  EXPECT_EQ(c.dressed, (std::array<int, 5>{4, 4, 4, 7, 1})) << "the old line-up stands";
}

TEST(FillRosters, ADatabaseTooSmallLeavesTeamsShort) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  // Only the first 100 records stay free.
  std::vector<DbRecord> db = ReadDatabase(h.state);
  std::vector<int> taken;
  for (int n = 101; n <= static_cast<int>(db.size()); ++n) taken.push_back(n);
  MarkUsed(h.state, taken);
  FillResult r = FillRosters(h.state);
  EXPECT_LE(r.assigned, 100);
  EXPECT_FALSE(r.shortTeams.empty());
}

}  // namespace
}  // namespace kvl
