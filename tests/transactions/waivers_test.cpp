// The waiver rule, the wire's days by the clock, claims in priority order with
// the fee, recalls, the priority list, free agents and random contracts.
#include "transactions/waivers.h"

#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/sim_league.h"
#include "transactions/check_waivers.h"
#include "transactions/database_players.h"
#include "transactions/free_agents.h"
#include "transactions/priority.h"
#include "util/numbers.h"

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
  const std::string line = "Team0 place " + yes.veteran().Name.str() + " on waivers<BR><BR>\r\n";
  EXPECT_EQ(ReadAll(yes.h.home / "swp.tr"), line);
  EXPECT_EQ(ReadAll(yes.h.home / "swp.th"), line);
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

TEST(Waivers, AHigherTeamTakesHimEachHolderIsPaidAndTheOwnerRecallsHim) {
  Wire w;
  w.placed();
  const FixedText<22> name = w.veteran().Name;
  LeagueState& s = w.h.state;
  Waivers owner(s, 0);
  ASSERT_TRUE(owner.MayRecall(1));
  EXPECT_FALSE(Waivers(s, 1).MayRecall(1));
  ASSERT_TRUE(Waivers(s, 2).cmdClaim(1));
  EXPECT_TRUE(ListWaivers(s, 2).empty()) << "a claimant sees no more claims";
  EXPECT_TRUE(ListWaivers(s, 3).empty()) << "nor does a team below it";
  ASSERT_EQ(ListWaivers(s, 1).size(), 1u) << "a team above it still may";
  EXPECT_EQ(s.team(2).CurFin - s.team(0).CurFin, -2 * kWaiverFee);
  ASSERT_TRUE(Waivers(s, 1).cmdClaim(1));
  // Team 2 is paid back by the higher claim, and free to claim again.
  EXPECT_EQ((std::array{s.team(1).CurFin, s.team(2).CurFin, int(s.team(2).Waived)}), (std::array{-kWaiverFee, 0, 0}));
  loadteam(s, 1, 0);
  const int slot = ReadWaivers(s)[0].Slot;
  EXPECT_EQ(s.player(0, slot).Name, name);
  EXPECT_EQ(s.player(0, slot).list(), 1);
  ASSERT_TRUE(owner.cmdRecall(1));
  EXPECT_EQ((std::array{s.team(1).CurFin, s.team(0).CurFin}), (std::array{0, 0})) << "paid the fee and got it back";
  EXPECT_EQ(ReadWaivers(s)[0].Holder, 0);
  EXPECT_NE(ReadAll(w.h.home / "swp.tr").find("Team0 recall "), std::string::npos);
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

TEST(FreeAgents, SignsIntoAFreeSlotButNotAFullRoster) {
  Harness h;
  h.load(SimLeague(4));
  LeagueState& s = h.state;
  RecordFile db(s.swap(swp::Database), DbRecord::kSize);
  for (std::size_t n : {2, 3}) db.putRecord(n, DbRecord{0, MakePlayer("Free Agent " + NumText(n), kCentre, 60, 0)});
  FreeAgents form(s);
  ASSERT_EQ(form.list().size(), 2u);
  const FreeAgentEntry agent = form.list()[0];
  EXPECT_FALSE(form.cmdAdd(1, agent.record, {100000000.0, 2}));
  EXPECT_TRUE(h.ui.told("A salary is from $0 to $99,999,999; 100000000 is not.", "Sign Free Agent"));
  EXPECT_FALSE(form.cmdAdd(1, agent.record, {500000.0, 11}));
  ASSERT_TRUE(form.cmdAdd(1, agent.record, {750000.0, 3}));
  loadteam(s, 1, 0);
  const Player& hired = s.player(0, FirstFreeSlot(s, 0) - 1);
  EXPECT_EQ(hired.Name.str(), agent.name);
  EXPECT_EQ((std::array{hired.Salary, int(hired.Contract)}), (std::array{750000, 3}));
  EXPECT_NE(ReadAll(h.home / "swp.th").find(" sign " + agent.name + " to a 3 year, $750,000 contract<BR><BR>"),
            std::string::npos);
  ASSERT_EQ(form.list().size(), 1u) << "listed no more";

  for (int i = 0; i < kRosterSlots; ++i)
    if (s.player(0, i).empty()) s.player(0, i) = MakePlayer("Filler", kCentre, 50, 0);
  SaveTeam(s, 1, 0);
  const std::size_t asked = h.ui.callsOf("prompt").size();
  EXPECT_FALSE(form.cmdAdd(1, form.list()[0].record));
  EXPECT_TRUE(h.ui.told("This team already has 50 players.", "Cannot Add Player"));
  EXPECT_EQ(h.ui.callsOf("prompt").size(), asked) << "refused before any prompt";
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
