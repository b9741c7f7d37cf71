// AutoRoster and AutoLines on crafted rosters, and the line table's own rules. The league pass, auto-all,
// is the e2e team transcript's (golden/team.txt).
#include <algorithm>

#include "support/kvl_test.h"
#include "support/team_rosters.h"
#include "team/auto_lines.h"
#include "team/auto_roster.h"
#include "team/line_table.h"
#include "team/roster_rules.h"

namespace kvl::test {
namespace {

using Row = std::vector<int>;

struct AutoLinesTest : ::testing::Test {
  Harness h;
  LineMaker maker{h.state, 0, 0};
  Row row(int r) {
    Row out;
    for (int slot = 0; slot < SlotsInRow(r); ++slot) out.push_back(maker.LineBuf.at(r, slot));
    return out;
  }
};

// Slots: C 80,79,78 = 0-2; LW 3-5; RW 6-8; D 90..85 = 9-14; G 70,69 = 15,16;
// then C 77 = 17, LW 77 = 18, D 84 = 19.
std::vector<Player> FullDress() {
  return Join({Squad({3, 3, 3, 0, 0}, 80),
               Several(kDefence, 6, 90),
               Several(kGoalie, 2, 70),
               {Rated(kCentre, 77), Rated(kLeftWing, 77), Rated(kDefence, 84)}});
}

TEST_F(AutoLinesTest, FillsEveryRowByTheStepTable) {
  PutRoster(h.state, 0, FullDress());
  maker.AutoLines(false);
  EXPECT_EQ(row(0), (Row{0, 3, 6, 9, 10}));
  EXPECT_EQ(row(1), (Row{1, 4, 7, 11, 12}));
  EXPECT_EQ(row(2), (Row{2, 5, 8, 13, 14}));
  // Only one right wing and one D were left for E4: the rest repeat through pass 2.
  EXPECT_EQ(row(3), (Row{17, 18, 6, 19, 9}));
  EXPECT_EQ(row(4), (Row{0, 3, 6, 9, 10}));
  EXPECT_EQ(row(5), (Row{1, 4, 7, 11, 12}));
  EXPECT_EQ(row(6), (Row{0, 3, 9, 10}));
  EXPECT_EQ(row(7), (Row{1, 4, 11, 12}));
  EXPECT_EQ(row(8), (Row{0, 3, 9, 10}));
  EXPECT_EQ(row(9), (Row{1, 4, 11, 12}));
  EXPECT_EQ(row(10), (Row{0, 9, 10}));
  EXPECT_EQ(row(11), (Row{1, 11, 12}));
  // The starter; the best skater overall; the best by offence off E1 and not Spare1.
  EXPECT_EQ(row(12), (Row{15, 9, 11}));
}

TEST_F(AutoLinesTest, ThinPositionsRepeatPlayersInsteadOfLeavingGaps) {
  struct Case {
    const char* what;
    std::vector<Player> roster;
    int row, slot, expected;
  };
  std::vector<Player> twoLeft = FullDress();
  twoLeft[5] = Rated(kRightWing, 60);   // the third left wing becomes a weak right wing
  twoLeft[18] = Rated(kRightWing, 61);  // and so does the spare left wing
  std::vector<Player> fiveD = FullDress();
  fiveD[19] = Rated(kCentre, 76);
  fiveD[14] = Rated(kCentre, 75);
  std::vector<Player> noLeft = FullDress();
  for (int i : {3, 4, 5, 18}) noLeft[static_cast<std::size_t>(i)] = Rated(kRightWing, 70 - i);
  noLeft.push_back(Rated(kLeftWing, 50, 0));     // a minor leaguer
  noLeft.push_back(Rated(kRightWing, 95, 100));  // a scratch
  const Case cases[] = {
      {"E3's left wing is a left wing again, not a right wing", twoLeft, 2, 1, 3},
      {"E3's second D is E1's best defender again", fiveD, 2, 4, 9},
      {"without a dressed left wing any forward, even a scratch, plays there", noLeft, 0, 1, 21},
  };
  for (const auto& c : cases) {
    PutRoster(h.state, 0, c.roster);
    LineMaker m(h.state, 0, 0);
    m.AutoLines(false);
    EXPECT_EQ(m.LineBuf.at(c.row, c.slot), c.expected) << c.what;
    EXPECT_TRUE(LinesComplete(m.LineBuf)) << c.what;
  }
}

TEST_F(AutoLinesTest, EqualRatingsGoToTheLowerIndex) {
  PutRoster(h.state, 0, {Rated(kLeftWing, 60), Rated(kLeftWing, 70), Rated(kLeftWing, 70)});
  EXPECT_EQ(maker.BestPlayer(kLeftWing, kByOffense), 1);
  EXPECT_EQ(maker.BestPlayer(kLeftWing, kByDefense), 2) << "1 is in RowUsed now";
}

TEST_F(AutoLinesTest, TheLastPassSeeksACentreByConditionWhateverWasAsked) {
  std::vector<Player> r{Rated(kCentre, 90, 0), Rated(kCentre, 50, 0), Rated(kRightWing, 99, 0)};
  r[0].Condition = 60;
  r[1].Condition = 80;
  PutRoster(h.state, 0, r);
  EXPECT_EQ(maker.BestPlayer(kGoalie, kByOverall), 1);
  EXPECT_EQ(maker.BestPlayer(kGoalie, kByOverall), 0);
  EXPECT_THROW(maker.BestPlayer(kGoalie, kByOverall), KvlError) << "every centre is in RowUsed";
}

TEST(LineTableTest, CompletenessLooksAtUsedSlotsOnly) {
  LineTable t;
  t.cells.fill(3);
  ForceUnusedSlots(t);
  EXPECT_TRUE(LinesComplete(t)) << "a player twice is no fault here";
  EXPECT_EQ((std::array{t.at(6, 4), t.at(12, 4), t.at(10, 3), t.at(12, 3), t.at(9, 3)}),
            (std::array<u8, 5>{kNoPlayer, kNoPlayer, kNoPlayer, kNoPlayer, 3}));
  for (auto [row, slot] : {std::pair{0, 4}, {7, 3}, {11, 2}, {12, 2}, {12, 0}}) {
    LineTable gap = t;
    gap.at(row, slot) = kNoPlayer;
    EXPECT_FALSE(LinesComplete(gap)) << row << "," << slot;
  }
}

TEST(LineTableTest, RemovingAPlayerLeavesTheGoalieRowsLastSlot) {
  LineTable t;
  t.cells.fill(7);
  EXPECT_TRUE(RemoveFromLines(t, 7));
  EXPECT_EQ((std::array{t.at(0, 0), t.at(11, 4), t.at(12, 3), t.at(12, 4)}),
            (std::array<u8, 4>{kNoPlayer, kNoPlayer, kNoPlayer, 7}));
  EXPECT_FALSE(RemoveFromLines(t, 8));
}

TEST(LineTransferTest, StoresTheTableWithUnusedSlotsEmptiedAndSaves) {
  Harness h;
  h.load(StandardLeague(2));
  loadteam(h.state, 1, 0);
  LineMaker m(h.state, 1, 0);
  m.LineBuf.cells.fill(4);
  m.TransferBuffer();
  const Team& t = h.state.team(1);
  EXPECT_EQ(t.LinesOK, kTrue);
  EXPECT_TRUE(h.state.Dirty);
  EXPECT_EQ((std::array{t.Lines.at(8, 4), t.Lines.at(12, 3), t.Lines.at(12, 2)}),
            (std::array<u8, 3>{kNoPlayer, kNoPlayer, 4}));
  Team saved = RecordFile(h.state.swap(swp::Teams), Team::kSize).getRecord<Team>(2);
  EXPECT_EQ(saved.Lines, t.Lines);
}

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

TEST_F(AutoRosterTest, TwentyHealthyPlayersAreAllDressedWhateverTheirListAndNineteenLeaveAGap) {
  // Scratches and minor leaguers alike; 4 of each forward, 6 D, 2 G.
  PutRoster(h.state, 0,
            Join({Several(kCentre, 4, 70, 100), Several(kLeftWing, 4, 70, 0), Several(kRightWing, 4, 70, 200),
                  Several(kDefence, 6, 70, 100), Several(kGoalie, 2, 70, 0)}));
  maker.AutoRoster(false);
  EXPECT_EQ(dressed(), 20);
  // With nobody left for the last pick the first dressed player is picked again.
  PutRoster(h.state, 0, Squad({4, 4, 4, 5, 2}, 70, 100));
  RosterMaker again(h.state, 0, 0);
  again.AutoRoster(false);
  EXPECT_EQ(CountOf(again.TempStatus, 200), 19);
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
  // A pro player's stored status waits for TransferBuffer; the minor leaguer's record comes onto the
  // pro roster at once, rested.
  EXPECT_EQ((std::array{int(maker.TempStatus[0]), int(maker.PrevStatus[0]), int(at(0).Status)}),
            (std::array{103, 203, 203}));
  EXPECT_EQ((std::array{int(maker.TempStatus[1]), int(maker.PrevStatus[1]), int(at(1).Status), int(at(1).Condition)}),
            (std::array{102, 102, 102, 100}));
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

TEST_F(AutoRosterTest, ThePickersTakeTheLowerIndexOnTiesSkipSuspensionsAndPromoteInOrder) {
  std::vector<Player> r{Rated(kCentre, 60, 100), Rated(kCentre, 70, 100), Rated(kCentre, 70, 100),
                        Rated(kCentre, 75, 100)};
  r[3].Suspended = 2;
  PutRoster(h.state, 0, r);
  maker.ResetFlags();
  EXPECT_EQ(maker.BestAvailable(kCentre, kByOffense), 1);
  EXPECT_EQ(maker.BestAvailable(kCentre, kByOverall), 1);
  PutRoster(h.state, 0, {Rated(kDefence, 90, 200), Rated(kCentre, 80, 0), Rated(kDefence, 60, 0), Rated(kGoalie, 95, 0)});
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
