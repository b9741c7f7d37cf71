// BestPlayer and AutoLines on crafted dressed lists, and the table's own rules.
#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/league_fixture.h"
#include "support/team_rosters.h"
#include "team/auto_lines.h"
#include "team/line_table.h"
#include "team/roster_rules.h"
#include "util/record_file.h"

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
  return Join({Squad({3, 3, 3, 0, 0}, 80), Several(kDefence, 6, 90), Several(kGoalie, 2, 70),
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
  noLeft.push_back(Rated(kLeftWing, 50, 0));  // a minor leaguer
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
  EXPECT_EQ(t.at(6, 4), kNoPlayer);
  EXPECT_EQ(t.at(12, 4), kNoPlayer);
  EXPECT_EQ(t.at(10, 3), kNoPlayer);
  EXPECT_EQ(t.at(12, 3), kNoPlayer);
  EXPECT_EQ(t.at(9, 3), 3);
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
  EXPECT_EQ(t.at(0, 0), kNoPlayer);
  EXPECT_EQ(t.at(11, 4), kNoPlayer);
  EXPECT_EQ(t.at(12, 3), kNoPlayer);
  EXPECT_EQ(t.at(12, 4), 7);
  EXPECT_FALSE(RemoveFromLines(t, 8));
}

TEST(LineTableTest, LabelsAndCaptions) {
  EXPECT_EQ(RowLabel(0), "E1");
  EXPECT_EQ(RowLabel(7), "P4");
  EXPECT_EQ(RowLabel(10), "K3");
  EXPECT_EQ(SlotLabel(1, 2), "R");
  EXPECT_EQ(SlotLabel(6, 1), "W");
  EXPECT_EQ(SlotLabel(10, 1), "D");
  EXPECT_EQ(RowCaption(9), "PK Line 2 (4 on 5)");
  EXPECT_EQ(RowCaption(10), "PK Line 1 (3 on 5)");
  EXPECT_EQ(RowCaption(11), "PK Line 2 (4 on 5)");
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
  EXPECT_EQ(t.Lines.at(8, 4), kNoPlayer);
  EXPECT_EQ(t.Lines.at(12, 3), kNoPlayer);
  EXPECT_EQ(t.Lines.at(12, 2), 4);
  Team saved = RecordFile(h.state.swap(swp::Teams), Team::kSize).getRecord<Team>(2);
  EXPECT_EQ(saved.Lines, t.Lines);
}

}  // namespace
}  // namespace kvl::test
