#include "transactions/unused_players.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "league/league_files.h"
#include "league/ratings.h"
#include "support/data_league.h"
#include "transactions/database_players.h"

namespace kvl {
namespace {

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
}  // namespace kvl
