#include "transactions/expansion_draft.h"

#include <gtest/gtest.h>

#include "league/league_files.h"
#include "league/ratings.h"
#include "support/league_fixture.h"

namespace kvl {
namespace {

constexpr const char* kTitle = "Expansion Draft";
constexpr int kNew = 7;  // the expansion team

// Eight teams; the last is new and empty; each other team protects its
// first three players.
struct Expansion {
  Expansion() {
    test::LeaguePlan plan = test::StandardLeague(8);
    plan.rosters[kNew].clear();
    plan.teams[kNew].Expansion = 1;
    for (int t = 0; t < kNew; ++t)
      for (int slot = 0; slot < 3; ++slot)
        plan.rosters[static_cast<std::size_t>(t)][static_cast<std::size_t>(slot)].Protected = kTrue;
    h.load(plan);
  }
  bool begin() {
    h.ui.push("yes");
    return ExpansionDraft(h.state);
  }
  std::vector<Player> roster(int team) {
    loadteam(h.state, team, 0);
    std::vector<Player> out;
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (!h.state.player(0, slot).empty()) out.push_back(h.state.player(0, slot));
    return out;
  }
  test::Harness h;
};

TEST(ExpansionDraft, NoLeavesTheLeagueAsItWas) {
  Expansion e;
  e.h.ui.push("no");
  EXPECT_FALSE(ExpansionDraft(e.h.state));
  EXPECT_FALSE(e.h.state.league.ExpansionRounds || e.h.state.league.ExpansionDraftOn || e.h.state.Dirty);
}

TEST(ExpansionDraft, AutoTakesTheQuotaByPositionAndNeverAProtectedPlayer) {
  Expansion e;
  ASSERT_TRUE(e.begin());
  ExpansionDraftForm form(e.h.state);
  for (const UnprotectedEntry& u : form.unprotected()) {
    EXPECT_NE(u.team, kNew);
    EXPECT_GE(u.slot, 3) << u.name << " is protected";
  }
  EXPECT_EQ(form.cmdAuto(), 24);
  EXPECT_TRUE(e.h.ui.told("Expansion Draft Complete", kTitle));
  const Team& t = e.h.state.team(kNew);
  EXPECT_EQ(std::vector<int>({t.ExpFwd, t.ExpDef, t.ExpGoal}), std::vector<int>({13, 8, 3}));
  EXPECT_FALSE(e.h.state.league.ExpansionDraftOn);
  EXPECT_EQ(t.Expansion, 0) << "stocked";
  int dressed = 0;
  for (const Player& p : e.roster(kNew)) dressed += p.list() == 2;
  EXPECT_EQ(dressed, 20) << "dressed at the end of the draft";
  for (int team = 0; team < kNew; ++team) {
    const std::vector<Player> left = e.roster(team);
    EXPECT_EQ(std::count_if(left.begin(), left.end(), [](const Player& p) { return p.Protected != 0; }), 3);
  }
}

TEST(ExpansionDraft, RefusedTakesChangeNothing) {
  Expansion e;
  ASSERT_TRUE(e.begin());
  ExpansionDraftForm form(e.h.state, {1, 1, 1});
  struct Row {
    int team, from, slot;
    std::string told;
  };
  // Slot 3 of StandardLeague is a centre, slot 7 a left wing.
  ASSERT_TRUE(form.cmdAdd(kNew, 0, 3));
  const Row rows[] = {
      {kNew, 0, 0, "Team0 has no unprotected player in slot 1."},
      {kNew, 0, 3, "Team0 has no unprotected player in slot 4."},
      {kNew, 1, 7, "Team7 have taken all the forwards an expansion team may take."},
      {2, 1, 7, "Team2 is not an expansion team."},
  };
  for (const Row& r : rows) {
    EXPECT_FALSE(form.cmdAdd(r.team, r.from, r.slot)) << r.told;
    EXPECT_TRUE(e.h.ui.told(r.told, kTitle)) << r.told;
  }
  EXPECT_EQ(e.roster(kNew).size(), 1u);
  EXPECT_EQ(e.roster(1).size(), 24u);
}

TEST(ExpansionDraft, AFullExpansionTeamTakesNobody) {
  Expansion e;
  loadteam(e.h.state, kNew, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot)
    e.h.state.player(0, slot) = test::MakePlayer("Full" + std::to_string(slot), kCentre, 50);
  SaveTeam(e.h.state, kNew, 0);
  ASSERT_TRUE(e.begin());
  ExpansionDraftForm form(e.h.state);
  EXPECT_TRUE(form.over());
  EXPECT_FALSE(form.cmdAdd(kNew, 0, 5));
  EXPECT_TRUE(e.h.ui.told("No room on roster", "Transfer Player"));
}

}  // namespace
}  // namespace kvl
