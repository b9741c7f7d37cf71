// The line editor: silent refusals of wrong placements, assignments, averages,
// the automatic lines' guard, and leaving only with a complete table.
#include "team/line_editor.h"

#include <gtest/gtest.h>

#include "support/league_fixture.h"
#include "support/team_rosters.h"
#include "team/line_table.h"

namespace kvl::test {
namespace {

// C 0-3, LW 4-7, RW 8-11, D 12-17, G 18-19; all dressed.
struct LineEditorTest : ::testing::Test {
  Harness h;
  void SetUp() override { open(Squad({4, 4, 4, 6, 2}, 70)); }
  void open(const std::vector<Player>& roster) {
    LeaguePlan plan = StandardLeague(2);
    plan.rosters[0] = roster;
    h.load(plan);
  }
};

TEST_F(LineEditorTest, WrongPlacementsChangeNothing) {
  struct Case {
    const char* what;
    int page, index, player;
    bool placed;
  } cases[] = {
      {"a goalie on a line", kEvenPage, 0, 18, false},
      {"a goalie as a spare", kEvenPage, 21, 19, false},
      {"a skater in goal", kEvenPage, 20, 0, false},
      {"a goalie in goal", kEvenPage, 20, 18, true},
      {"a skater as a spare", kPenaltyKillPage, 22, 12, true},
      {"the fifth slot of a 4 on 3 row", kPowerPlayPage, 14, 12, false},
      {"the fourth slot of a 3 on 5 row", kPenaltyKillPage, 13, 12, false},
      {"the third slot of a 3 on 5 row", kPenaltyKillPage, 12, 12, true},
      {"nobody chosen", kEvenPage, 0, -1, false},
      {"an empty roster slot", kEvenPage, 0, 30, false},
      {"a player not dressed", kEvenPage, 0, 3, false},
  };
  for (const auto& c : cases) {
    LineEditor e(h.state, 0);
    h.state.player(0, 3).Status = 100;  // a scratch
    e.ShowPage(c.page);
    LineTable before = e.LineBuf;
    EXPECT_EQ(e.Place(c.index, c.player), c.placed) << c.what;
    EXPECT_EQ(e.LineBuf == before, !c.placed) << c.what;
    EXPECT_EQ(e.Changed, c.placed) << c.what;
  }
}

TEST_F(LineEditorTest, APlayerStandsOnceARowAndPlacementsGoToThePagesRows) {
  LineEditor e(h.state, 0);
  e.ShowPage(kPowerPlayPage);
  ASSERT_TRUE(e.Place(5, 12));  // line 2 of the page, slot 0: P2's centre slot
  EXPECT_EQ(e.LineBuf.at(5, 0), 12);
  EXPECT_EQ(e.focus(), 5);
  e.Changed = false;
  EXPECT_FALSE(e.Place(9, 12)) << "already on that row";
  EXPECT_FALSE(e.Changed);
  EXPECT_TRUE(e.Place(10, 12)) << "another row is fine";
  EXPECT_EQ(e.LineBuf.at(6, 0), 12);
}

TEST_F(LineEditorTest, AssignmentsListEveryRowAPlayerStandsOn) {
  LineEditor e(h.state, 0);
  e.LineBuf.cells.fill(kNoPlayer);
  e.LineBuf.at(0, 0) = 0;
  e.LineBuf.at(4, 0) = 0;
  e.LineBuf.at(10, 2) = 0;
  e.LineBuf.at(12, 1) = 1;
  e.LineBuf.at(6, 1) = 4;
  e.LineBuf.at(6, 4) = 5;  // unused slot
  e.ReadLineAssgts();
  // The goalie row takes no part, nor does an unused slot.
  EXPECT_EQ(e.assignment(0) + "|" + e.assignment(1) + "|" + e.assignment(4) + "|" + e.assignment(5),
            "E1C P1C K3D|No Assignments|P3W|No Assignments");
}

TEST_F(LineEditorTest, LineAveragesDivideByTheRowsSlotsAndRoundHalfUp) {
  LineEditor e(h.state, 0);
  e.LineBuf.cells.fill(kNoPlayer);
  e.LineBuf.at(10, 0) = 0;   // level 70
  e.LineBuf.at(10, 1) = 13;  // level 69
  RatingAverages a = e.LineAverages(10);
  EXPECT_EQ(a[kSpd], 46) << "(70 + 69) / 3 + 0.5 = 46.8";
  EXPECT_EQ(a[kRatingCount], 50) << "Overall (75 + 74) / 3 + 0.5";
  RatingAverages team = e.TeamAverages();
  // Skaters: levels 70..67 for each forward group, 70..65 for D.
  double sum = 3 * (70 + 69 + 68 + 67) + (70 + 69 + 68 + 67 + 66 + 65);
  EXPECT_EQ(team[kSpd], static_cast<int>(sum / 18.001 + 0.5));
}

TEST_F(LineEditorTest, AutoNeedsExactlyTwentyDressedAndAnIncompleteTableCannotBeKept) {
  for (int extra : {-1, 1}) {
    std::vector<Player> r = Squad({4, 4, 4, 6, 2}, 70);
    if (extra < 0)
      r[0].Status = 100;
    else
      r.push_back(Rated(kCentre, 50));
    Harness fresh;
    LeaguePlan plan = StandardLeague(2);
    plan.rosters[0] = r;
    fresh.load(plan);
    LineEditor e(fresh.state, 0);
    e.cmdAuto();
    std::string n = extra < 0 ? "19" : "21";
    EXPECT_TRUE(fresh.ui.told("There are only " + n + " players on the roster.\nSet roster first", "Auto Lines"));
    EXPECT_FALSE(e.Changed);
  }
  LineEditor e(h.state, 0);
  e.cmdAuto();
  EXPECT_TRUE(e.Changed);
  EXPECT_TRUE(LinesComplete(e.LineBuf));
  e.LineBuf.at(12, 2) = kNoPlayer;
  h.ui.push("yes");
  EXPECT_FALSE(e.cmdExit());
  EXPECT_TRUE(h.ui.told("Lines are not complete", "Edit Lines"));
  EXPECT_EQ(h.state.team(0).LinesOK, kFalse);
  e.Place(22, 5);
  h.ui.push("yes");
  EXPECT_TRUE(e.cmdExit());
  EXPECT_EQ(h.state.team(0).Lines.at(12, 2), 5);
  EXPECT_EQ(h.state.team(0).LinesOK, kTrue);
}

TEST_F(LineEditorTest, NoDropsTheChangesAndClosingSaysSo) {
  LineEditor e(h.state, 0);
  e.cmdAuto();
  h.ui.push("no");
  EXPECT_TRUE(e.cmdExit());
  EXPECT_EQ(h.state.team(0).LinesOK, kFalse);
  EXPECT_FALSE(LinesComplete(h.state.team(0).Lines));
  e.Place(0, 0);
  e.cmdClose();
  EXPECT_TRUE(h.ui.told("Changes were not saved", "Edit Lines"));
}

TEST_F(LineEditorTest, WarnsWhenNobodyIsDressed) {
  open(Squad({4, 4, 4, 6, 2}, 70, 100));
  LineEditor e(h.state, 0);
  EXPECT_TRUE(h.ui.told("There are not enough players. Set roster first", "Roster warning"));
}

}  // namespace
}  // namespace kvl::test
