// Filling rosters from the database: the automatic fill and the hand-picked one.
#include "transactions/roster_fill.h"

#include <set>

#include "league/ratings.h"
#include "league/roster_check.h"
#include "support/kvl_test.h"
#include "transactions/database_players.h"
#include "transactions/unused_players.h"

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
  const int players = static_cast<int>(ReadDatabase(h.state).size());
  FillResult r = FillRosters(h.state);
  // 36 a club; fifty clubs run the database dry in the farm rounds.
  const bool fullClubs = teams * 36 <= players;
  EXPECT_TRUE(fullClubs ? r.assigned == teams * 36 : r.assigned <= players) << r.assigned;
  EXPECT_TRUE(r.shortTeams.empty());
  EXPECT_TRUE(CheckRosters(h.state).allValid);

  double lo = 99, hi = 0;
  int worstGoalie = 99;
  std::set<std::string> names;
  for (int t = 0; t < teams; ++t) {
    ClubCount c = Count(h.state, t);
    EXPECT_EQ(c.pro, (std::array<int, 5>{4, 4, 4, 7, 3})) << "team " << t;
    if (fullClubs) {
      EXPECT_EQ(c.farm, (std::array<int, 5>{3, 3, 3, 4, 1})) << "team " << t;
    }
    EXPECT_EQ(c.dressed, (std::array<int, 5>{4, 4, 4, 6, 2})) << "team " << t;
    lo = std::min(lo, c.dressedMean);
    hi = std::max(hi, c.dressedMean);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = h.state.player(0, slot);
      if (p.empty()) continue;
      EXPECT_TRUE(names.insert(p.Name.str()).second) << "on two teams";
      if (p.Pos == kGoalie && p.list() == 2) worstGoalie = std::min(worstGoalie, Overall(p));
    }
  }
  EXPECT_LE(hi - lo, 2.0) << "dressed means from " << lo << " to " << hi;

  // The database marks exactly the players handed out, and the better ones go early: no free
  // goalie is better than a dressed one.
  int bestFree = 0;
  for (const DbRecord& d : ReadDatabase(h.state)) {
    EXPECT_EQ(d.DbFlag != 0, names.count(d.P.Name.str()) == 1) << d.P.Name.str();
    if (d.DbFlag == 0 && d.P.Pos == kGoalie) bestFree = std::max(bestFree, Overall(d.P));
  }
  EXPECT_EQ(names.size(), static_cast<std::size_t>(r.assigned));
  EXPECT_GE(worstGoalie, bestFree);
}

// 24 teams are the demo's.
INSTANTIATE_TEST_SUITE_P(Leagues, FillRostersTeams, ::testing::Values(8, 50));

TEST(FillRosters, FillsOnlyWhatATeamLacksAndKeepsItsLineUp) {
  test::Harness h;
  h.load(test::StandardLeague(8));  // 22 pro and 2 minor leaguers a team, dressed
  Bytes before = ReadFileBytes(h.state.swap(swp::Roster));
  // The same clubs under a new league from the bundled database.
  test::NewBundledLeague(h, 8);
  WriteFileAtomic(h.state.swap(swp::Roster), before);
  FillResult r = FillRosters(h.state);
  // Each standard team has the pro shape and a minor C and D: its farm lacks 2 C, 3 LW, 3 RW, 3 D and a G.
  EXPECT_EQ(r.assigned, 8 * 12);
  ClubCount c = Count(h.state, 3);
  EXPECT_EQ(c.farm, (std::array<int, 5>{3, 3, 3, 4, 1}));
  EXPECT_EQ(c.dressed, (std::array<int, 5>{4, 4, 4, 7, 1})) << "the old line-up stands";
}

constexpr const char* kTitle = "Assign Unused Players";

TEST(UnusedPlayers, AssignedPlayersLeaveTheListForTheFirstFreeSlotAndTheTwentySixthProGoesDown) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  UnusedPlayers form(h.state);
  std::vector<UnusedEntry> before = form.list();
  ASSERT_EQ(before.size(), 1600u);
  const UnusedEntry pick = before[41];
  EXPECT_EQ(pick.overall, Overall(ReadDatabase(h.state)[41].P));
  ASSERT_TRUE(form.cmdAdd(5, pick.record));
  EXPECT_TRUE(h.ui.told(pick.name + " added to roster", kTitle));
  std::vector<UnusedEntry> after = form.list();
  EXPECT_EQ(after.size(), before.size() - 1);
  EXPECT_TRUE(std::none_of(after.begin(), after.end(), [&](const UnusedEntry& e) { return e.record == pick.record; }));
  loadteam(h.state, 5, 0);
  const Player& p = h.state.player(0, 0);
  EXPECT_EQ(p.Name.str(), pick.name);
  EXPECT_EQ((std::array{int(p.Pos), int(p.Status), int(p.Condition)}), (std::array{int(pick.pos), 100, 100}))
      << "on the pro roster, not dressed";
  for (int record = 1; record <= 26; ++record) ASSERT_TRUE(form.cmdAdd(3, record));
  loadteam(h.state, 3, 0);
  std::set<int> numbers;
  for (int slot = 0; slot < 26; ++slot) {
    EXPECT_EQ(h.state.player(0, slot).Status, slot < 25 ? 100 : 0) << "slot " << slot;
    EXPECT_TRUE(numbers.insert(h.state.player(0, slot).Num).second) << "slot " << slot;
  }
}

// Its other refusals and the automatic fill's report are the e2e new league transcript's (golden/new.txt).
TEST(UnusedPlayers, AFullRosterTakesNobody) {
  test::Harness h;
  test::NewBundledLeague(h, 8);
  loadteam(h.state, 1, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot) PlaceOnRoster(h.state, 0, slot, test::MakePlayer("Filler", 0, 50), 0);
  SaveTeam(h.state, 1, 0);
  UnusedPlayers form(h.state);
  EXPECT_FALSE(form.cmdAdd(1, 8));
  EXPECT_TRUE(h.ui.told("No room on roster", kTitle));
  EXPECT_EQ(form.list().size(), 1600u);
}

}  // namespace
}  // namespace kvl::test
