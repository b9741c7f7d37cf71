// AutoRoster, BestAvailable and PromoteMinor on crafted rosters held in memory.
#include <gtest/gtest.h>

#include "support/league_fixture.h"
#include "support/team_rosters.h"
#include "team/auto_roster.h"
#include "team/roster_rules.h"

namespace kvl::test {
namespace {

struct AutoRosterTest : ::testing::Test {
  Harness h;
  RosterMaker maker{h.state, 0, 0};
  Player& at(int i) { return h.state.player(0, i); }
  int dressed() { return CountOf(maker.TempStatus, 200); }
  int dressedAt(int pos) {
    int n = 0;
    for (int i = 0; i < kRosterSlots; ++i)
      n += maker.TempStatus[static_cast<std::size_t>(i)] == 200 && at(i).Pos == pos;
    return n;
  }
};

TEST_F(AutoRosterTest, TwentyHealthyPlayersAreAllDressedWhateverTheirList) {
  // Scratches and minor leaguers alike; 4 of each forward, 6 D, 2 G.
  PutRoster(h.state, 0,
            Join({Several(kCentre, 4, 70, 100), Several(kLeftWing, 4, 70, 0), Several(kRightWing, 4, 70, 200),
                  Several(kDefence, 6, 70, 100), Several(kGoalie, 2, 70, 0)}));
  maker.AutoRoster(false);
  EXPECT_EQ(dressed(), 20);
}

TEST_F(AutoRosterTest, DressesTheBestAtEachPositionAndTheBestSkatersBeyond) {
  PutRoster(h.state, 0,
            Join({Squad({5, 5, 5, 0, 0}, 80, 100), Several(kDefence, 8, 90, 100), Several(kGoalie, 3, 70, 100)}));
  maker.AutoRoster(false);
  EXPECT_EQ(dressed(), 20);
  // Three forwards of each kind and six D; of the skaters left the two D (84,
  // 83) outrank every forward (77 and below), and the first 77 is a centre.
  EXPECT_EQ(dressedAt(kDefence), 8);
  EXPECT_EQ(dressedAt(kGoalie), 2);
  EXPECT_EQ(maker.TempStatus[25], 100) << "the third goalie, the weakest, sits";
  EXPECT_EQ(dressedAt(kCentre), 4);
  EXPECT_EQ(dressedAt(kLeftWing) + dressedAt(kRightWing), 6);
}

TEST_F(AutoRosterTest, InjuredPlayersAreScratchedAndInjuredMinorsComeUp) {
  std::vector<Player> r = Squad({5, 4, 4, 7, 3}, 70);
  r[0].Status = 203;  // the best centre, dressed but hurt
  r[1].Status = 2;    // a hurt minor leaguer
  r[1].Condition = 5;
  PutRoster(h.state, 0, r);
  maker.AutoRoster(false);
  EXPECT_EQ(maker.TempStatus[0], 103);
  EXPECT_EQ(maker.PrevStatus[0], 203);
  EXPECT_EQ(at(0).Status, 203) << "a pro player's stored status waits for TransferBuffer";
  EXPECT_EQ(maker.TempStatus[1], 102);
  EXPECT_EQ(at(1).Status, 102) << "the minor leaguer's record comes onto the pro roster at once";
  EXPECT_EQ(at(1).Condition, 100);
  EXPECT_EQ(maker.PrevStatus[1], 102);
  EXPECT_EQ(dressed(), 20);
}

TEST_F(AutoRosterTest, ShortOfDefenceTakesTheBestMinorSkater) {
  std::vector<Player> r = Join({Squad({4, 4, 4, 5, 2}, 70, 100), {Rated(kCentre, 50, 0), Rated(kLeftWing, 60, 0)}});
  PutRoster(h.state, 0, r);
  maker.AutoRoster(false);
  EXPECT_EQ(maker.TempStatus[19], 0) << "the weaker minor stays down";
  EXPECT_EQ(maker.TempStatus[20], 200) << "the stronger minor, a winger, fills the sixth defence pick";
  EXPECT_EQ(dressed(), 20);
}

TEST_F(AutoRosterTest, WithNobodyLeftTheFirstDressedPlayerIsPickedAgain) {
  PutRoster(h.state, 0, Squad({4, 4, 4, 5, 2}, 70, 100));
  maker.AutoRoster(false);
  EXPECT_EQ(dressed(), 19);
}

TEST_F(AutoRosterTest, TiesGoToTheLowerIndexAndSuspendedPlayersAreSkipped) {
  std::vector<Player> r{Rated(kCentre, 60, 100), Rated(kCentre, 70, 100), Rated(kCentre, 70, 100),
                        Rated(kCentre, 75, 100)};
  r[3].Suspended = 2;
  PutRoster(h.state, 0, r);
  maker.ResetFlags();
  EXPECT_EQ(maker.BestAvailable(kCentre, kByOffense), 1);
  EXPECT_EQ(maker.BestAvailable(kCentre, kByOverall), 1);
}

TEST_F(AutoRosterTest, PromoteMinorPassesInOrder) {
  std::vector<Player> r{Rated(kDefence, 90, 200), Rated(kCentre, 80, 0), Rated(kDefence, 60, 0),
                        Rated(kGoalie, 95, 0)};
  PutRoster(h.state, 0, r);
  maker.ResetFlags();
  EXPECT_EQ(maker.PromoteMinor(kDefence), 2) << "a defenceman first, though weaker";
  EXPECT_EQ(maker.PromoteMinor(kRightWing), 1) << "then any skater of the minors";
  at(2).Suspended = 1;
  maker.ResetFlags();
  EXPECT_EQ(maker.PromoteMinor(kDefence), 1) << "the suspended D is passed over for any minor skater";
  at(1).Status = 3;
  at(2).Status = 4;
  maker.ResetFlags();
  EXPECT_EQ(maker.PromoteMinor(kDefence), 0) << "hurt minors sit as scratches; the first dressed is taken";
}

}  // namespace
}  // namespace kvl::test
