// The waiver rule, the wire's days by the clock, the priority list and random contracts. Claims in
// priority order with the fee, recalls and signing free agents are the forms transcript's
// (e2e/golden/forms_waivers.txt).
#include "transactions/waivers.h"

#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/sim_league.h"
#include "transactions/check_waivers.h"
#include "transactions/free_agents.h"
#include "transactions/priority.h"

namespace kvl::test {
namespace {

constexpr double kMinute = 1.0 / 24 / 60;

// Four teams; team 0's slot 0 is a veteran it sends down.
struct Wire {
  Wire() {
    h.load(SimLeague(4));
    League& l = h.state.league;
    l.MinGP = 10, l.AgeExempt = 25, l.OptWaivers = kTrue;
    MakePriority(h.state);
    loadteam(h.state, 0, 0);
    h.state.CurTeam = 0;
    Player& p = h.state.player(0, 0);
    p.GP = 10, p.Age = 26;
  }
  Player& veteran() { return h.state.player(0, 0); }
  bool sendDown(Answer a) {
    h.ui.setFallback(a);
    return CheckWaivers(h.state, 0, 0, kEditorActor);
  }
  // Waived at the harness clock's time, then saved.
  void placed() {
    sendDown(Answer::Yes);
    SaveTeam(h.state, 0, 0);
  }
  void after(double days) { h.clock.set(46000.5 + days); }
  Harness h;
};

TEST(CheckWaivers, AsksOnlyAboutVeteransOutsideThePlayoffs) {
  struct Row {
    int gp, age;
    bool waivers, playoffs, asked;
  } rows[] = {
      {10, 26, true, false, true},   // GP at MinGP, one year above AgeExempt
      {10, 25, true, false, false},  // age at AgeExempt goes down freely
      {9, 30, true, false, false},  {20, 30, false, false, false}, {20, 30, true, true, false},
  };
  for (const Row& r : rows) {
    Wire w;
    w.veteran().GP = static_cast<u8>(r.gp), w.veteran().Age = static_cast<u8>(r.age);
    w.h.state.league.OptWaivers = r.waivers ? kTrue : kFalse;
    w.h.state.league.InPlayoffs = r.playoffs ? kTrue : kFalse;
    EXPECT_EQ(w.sendDown(Answer::No), !r.asked) << r.gp << " " << r.age;
    EXPECT_EQ(w.h.ui.callsOf("ask").size(), r.asked ? 1u : 0u);
  }
}

TEST(CheckWaivers, YesOpensARecordAndLogsNoKeepsHimUp) {
  Wire no;
  no.veteran().Status = 2;  // sent down while hurt
  EXPECT_FALSE(no.sendDown(Answer::No));
  EXPECT_EQ(no.veteran().Status, 102) << "a scratch, his injury kept";
  EXPECT_TRUE(ReadWaivers(no.h.state).empty());

  Wire yes;
  yes.placed();
  ASSERT_EQ(ReadWaivers(yes.h.state).size(), 1u);
  const WaiverRecord r = ReadWaivers(yes.h.state)[0];
  EXPECT_EQ(r.Name, yes.veteran().Name);
  EXPECT_EQ((std::array{int(r.Holder), int(r.ClaimedBy), int(r.Open[3]), int(r.Open[4]), yes.veteran().list()}),
            (std::array{0, int(kNoPlayer), -1, 0, 0}))
      << "open only to the league's teams";
  EXPECT_EQ(ReadAll(yes.h.home / "swp.th"), ReadAll(yes.h.home / "swp.tr")) << "the history logs it too";
  yes.sendDown(Answer::Yes);
  EXPECT_TRUE(yes.h.ui.told("Player must clear waivers first", "Team0"));
}

TEST(Waivers, ClaimableForFiveDaysAndGoneAfterSeven) {
  Wire w;
  w.placed();
  w.after(5 - kMinute);
  EXPECT_EQ(ListWaivers(w.h.state, 1).size(), 1u);
  w.after(5 + kMinute);
  EXPECT_TRUE(ListWaivers(w.h.state, 1).empty()) << "invisible after five days";
  w.after(7 - kMinute);
  UpdateWaivers(w.h.state);
  EXPECT_FALSE(ReadWaivers(w.h.state)[0].Name.empty()) << "kept until seven";
  w.after(7);
  UpdateWaivers(w.h.state);
  EXPECT_TRUE(ReadWaivers(w.h.state)[0].Name.empty());
  EXPECT_EQ(RecordFile(w.h.state.swap(swp::Priority), 1).getRun(1, 4), (Bytes{1, 2, 3, 0}))
      << "nobody claimed: the placing team drops to the bottom";
}

// A team's own player is not claimed (it recalls him); another team takes him
// as a scratch and may claim no more, and a holder who loses him to a later
// claim may claim again.
TEST(Waivers, OwnPlayerRefusedOthersTakeHimAsAScratch) {
  Wire w;
  const std::string name = w.veteran().Name.str();
  w.placed();
  LeagueState& s = w.h.state;
  auto listOn = [&](int t) {
    loadteam(s, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (s.player(0, slot).Name.str() == name) return s.player(0, slot).list();
    return -1;
  };
  EXPECT_FALSE(Waivers(s, 0).cmdClaim(1));
  EXPECT_EQ(w.h.ui.callsOf("tell").back().title, "Waivers");
  EXPECT_EQ((std::array{int(ReadWaivers(s)[0].Holder), listOn(0)}), (std::array{0, 0})) << "nothing moved";
  ASSERT_TRUE(Waivers(s, 2).cmdClaim(1));
  EXPECT_EQ((std::array{listOn(0), listOn(2), int(s.team(2).Waived != 0)}), (std::array{-1, 1, 1}));
  ASSERT_TRUE(Waivers(s, 1).cmdClaim(1));
  EXPECT_EQ((std::array{listOn(2), listOn(1), int(s.team(1).Waived != 0), int(s.team(2).Waived != 0)}),
            (std::array{-1, 1, 1, 0}));

  // Unclaimed, he is recalled to the pro roster and his record is emptied.
  Wire again;
  again.placed();
  ASSERT_TRUE(Waivers(again.h.state, 0).cmdRecall(1));
  loadteam(again.h.state, 0, 0);
  EXPECT_EQ(again.h.state.player(0, 0).list(), 1);
  EXPECT_TRUE(ReadWaivers(again.h.state).empty() || ReadWaivers(again.h.state)[0].Name.empty());
}

TEST(UpdatePriority, MovesATeamToTheBottomAndRebuildsADamagedList) {
  Wire w;
  LeagueState& s = w.h.state;
  UpdatePriority(s, 1);
  EXPECT_EQ(RecordFile(s.swap(swp::Priority), 1).getRun(1, 4), (Bytes{0, 2, 3, 1}));
  EXPECT_EQ(s.team(1).Priority, 3);
  RecordFile(s.swap(swp::Priority), 1).putRun(1, Bytes{0, 0, 0, 2});
  UpdatePriority(s, 2);
  EXPECT_EQ(RecordFile(s.swap(swp::Priority), 1).getRun(1, 4), (Bytes{0, 1, 3, 2}));
}

TEST(RandomContracts, OneToFourYearsForEveryNamedPlayer) {
  Harness h;
  h.load(SimLeague(4));
  h.ui.setFallback(Answer::Yes);
  ASSERT_TRUE(RandomContracts(h.state));
  std::array<int, 5> seen{};
  for (int t = 0; t < 4; ++t) {
    loadteam(h.state, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = h.state.player(0, slot);
      if (p.empty()) continue;
      ASSERT_TRUE(p.Contract >= 1 && p.Contract <= 4) << int(p.Contract);
      ++seen[p.Contract];
    }
  }
  for (int years = 1; years <= 4; ++years) EXPECT_GT(seen[static_cast<std::size_t>(years)], 0) << years;
}

}  // namespace
}  // namespace kvl::test
