// Filling rosters from the database: the automatic fill and the hand-picked one.
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
#include "transactions/unused_players.h"
#include "util/record_file.h"

namespace kvl::test {
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

constexpr const char* kTitle = "Assign Unused Players";

TEST(UnusedPlayers, AnAssignedPlayerLeavesTheListForTheFirstFreeSlot) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  UnusedPlayers form(h.state);
  std::vector<UnusedEntry> before = form.list();
  ASSERT_EQ(before.size(), 1600u);
  const UnusedEntry pick = before[41];
  EXPECT_EQ(pick.overall, Overall(ReadDatabase(h.state)[41].P));

  ASSERT_TRUE(form.cmdAdd(5, pick.record));
  EXPECT_TRUE(h.ui.told(pick.name + " added to roster", kTitle));
  EXPECT_TRUE(h.state.Dirty);
  std::vector<UnusedEntry> after = form.list();
  EXPECT_EQ(after.size(), before.size() - 1);
  EXPECT_TRUE(std::none_of(after.begin(), after.end(), [&](const UnusedEntry& e) { return e.record == pick.record; }));
  loadteam(h.state, 5, 0);
  const Player& p = h.state.player(0, 0);
  EXPECT_EQ(p.Name.str(), pick.name);
  EXPECT_EQ((std::array{int(p.Pos), int(p.Status), int(p.Condition)}), (std::array{int(pick.pos), 100, 100}))
      << "on the pro roster, not dressed";
}

TEST(UnusedPlayers, RefusalsChangeNothing) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  UnusedPlayers form(h.state);
  ASSERT_TRUE(form.cmdAdd(0, 7));
  std::string seventh = ReadDatabase(h.state)[6].P.Name.str();
  loadteam(h.state, 1, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot) PlaceOnRoster(h.state, 0, slot, test::MakePlayer("Filler", 0, 50), 0);
  SaveTeam(h.state, 1, 0);
  struct Case {
    int team, record;
    std::string told;
  };
  for (const Case& c :
       {Case{0, 0, "There is no player 0 in the database."}, Case{0, 1601, "There is no player 1601 in the database."},
        Case{2, 7, seventh + " already plays for a team."}, Case{1, 8, "No room on roster"}}) {
    std::size_t free = form.list().size();
    EXPECT_FALSE(form.cmdAdd(c.team, c.record)) << c.told;
    EXPECT_TRUE(h.ui.told(c.told, kTitle)) << c.told;
    EXPECT_EQ(form.list().size(), free) << c.told;
  }
}

TEST(UnusedPlayers, TheTwentySixthProGoesToTheMinorsAndNumbersStayUnique) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  UnusedPlayers form(h.state);
  for (int record = 1; record <= 26; ++record) ASSERT_TRUE(form.cmdAdd(3, record));
  loadteam(h.state, 3, 0);
  std::set<int> numbers;
  for (int slot = 0; slot < 26; ++slot) {
    EXPECT_EQ(h.state.player(0, slot).Status, slot < 25 ? 100 : 0) << "slot " << slot;
    EXPECT_TRUE(numbers.insert(h.state.player(0, slot).Num).second) << "slot " << slot;
  }
}

TEST(UnusedPlayers, TheAutomaticFillTellsTeamsItCouldNotComplete) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  std::vector<int> taken;
  for (int n = 61; n <= 1600; ++n) taken.push_back(n);
  MarkUsed(h.state, taken);
  FillResult r = UnusedPlayers(h.state).cmdAuto();
  ASSERT_FALSE(r.shortTeams.empty());
  ASSERT_FALSE(h.ui.callsOf("tell").empty());
  const auto told = h.ui.callsOf("tell").back();
  EXPECT_EQ(told.title + "|" + told.text.substr(0, 64),
            std::string(kTitle) + "|60 players assigned.\nNot enough unused players to complete:\nClub");
}

}  // namespace
}  // namespace kvl::test
