// The bookkeeping of a goal: texts, plus/minus, power plays, ties, and the
// goalie pulled after the fifth goal against him.
#include <numeric>

#include "support/kvl_test.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

constexpr int kUnassisted = 99, kOneAssist = 90, kTwoAssists = 10;

class GoalTest : public SeatedGame {
 protected:
  GoalTest() : SeatedGame(366) {}
};

// (How even-strength and power-play goals read, their plus/minus and the
// counters the box score is made of are pinned by the golden box score.)
TEST_F(GoalTest, TheSeasonTotalInTheTextAndTheGoalieChargedAtOnce) {
  f.h.state.player(0, 4).G = 11;
  g.ScoreGoal(4, 0, kOneAssist, kFirstG);
  EXPECT_EQ(g.PlayByPlay.back(), "1. TEAM0, T. L 1 12 (T. C 1), 6:06<BR>");
  EXPECT_EQ(std::tuple(f.side(0).Scorers[1], f.side(0).PlayerAssists[0]), std::tuple(4, 1));
  EXPECT_EQ(f.h.state.player(1, kFirstG).PIM, 1);  // a goalie's goals against, at once
}

TEST_F(GoalTest, PowerPlayGoalFreesTheBoxedSubstitute) {
  f.Seat(1, {0, 4, 12, 13, kNoPlayer});
  GameSide& pk = f.side(1);
  pk.MenInBox = 1;
  pk.Status[5] = kInBox;  // serving for somebody else
  pk.BoxTicks[5] = 20;
  pk.PenaltyKind[5] = 1;
  g.ScoreGoal(0, 4, kOneAssist, kFirstG);
  EXPECT_EQ(f.h.state.player(0, 0).PP, 1);
  EXPECT_EQ(std::tuple(pk.OnIce[4], pk.Status[5], pk.PenaltyKind[5]), std::tuple(5, kOnIce, 0))
      << "straight into the empty seat";
}

TEST_F(GoalTest, ShortHandedGoalAndTheTyingMark) {
  f.side(0).MenInBox = 1;
  f.side(1).Goals = 1;
  f.side(1).TiedAt = -1;
  g.ScoreGoal(0, kNoPlayer, kUnassisted, kFirstG);
  EXPECT_EQ(g.PlayByPlay.back(), "1. TEAM0, T. C 1 1 (UNASSISTED) (SH), 6:06<BR>");
  EXPECT_EQ(f.h.state.player(0, 0).SH, 1);
  EXPECT_EQ(f.side(0).TiedAt, -1);
  EXPECT_EQ(f.side(1).TiedAt, 0);
}

TEST_F(GoalTest, SecondAssistIsNeitherScorerNorFirst) {
  for (int i = 0; i < 20; ++i) g.ScoreGoal(0, 4, kTwoAssists, kFirstG);
  const auto& a = f.side(0).PlayerAssists;
  EXPECT_EQ(std::accumulate(a.begin(), a.end(), 0), 40);
  EXPECT_EQ(a[0], 0);
  EXPECT_EQ(a[4], 20);
}

TEST_F(GoalTest, GoalieChangedAfterFifthGoalOnlyOnce) {
  GameSide& def = f.side(1);
  def.GoalsOnGoalie[kFirstG] = 4;
  g.ScoreGoal(0, kNoPlayer, kUnassisted, kFirstG);
  EXPECT_EQ(std::tuple(def.Goalie, def.Status[kFirstG], g.GoalieChanged[1]), std::tuple(kFirstG + 1, kOnBench, -1));
  EXPECT_EQ(def.CreditGoalie, kFirstG);  // the decision stays until both sides have five
  EXPECT_EQ(g.Notes.back(), "T1 G 2 enters game at 6:06 of 1st period<BR>");
  def.GoalsOnGoalie[kFirstG + 1] = 4;
  g.ScoreGoal(0, kNoPlayer, kUnassisted, kFirstG + 1);
  EXPECT_EQ(def.Goalie, kFirstG + 1);
}

TEST_F(GoalTest, NoGoalieChangeInOvertimeAndTheGoalEndsIt) {
  f.side(1).GoalsOnGoalie[kFirstG] = 4;
  g.InOvertime = true;
  g.OvertimeCount = 2;
  g.Period = 4;
  g.PeriodLength = 1200;
  g.ScoreGoal(0, kNoPlayer, kUnassisted, kFirstG);
  EXPECT_EQ(f.side(1).Goalie, kFirstG);
  EXPECT_EQ(g.Clock, 1200);
  EXPECT_EQ(g.Notes.back(), "Winning Goal Scored in 2nd period of overtime");
}

TEST_F(GoalTest, BothSidesAtFiveGiveTheDecisionToTheGoaliesInNet) {
  f.side(0).Goals = 4;
  f.side(1).Goals = 5;
  f.side(0).Goalie = kFirstG + 1;
  g.ScoreGoal(0, kNoPlayer, kUnassisted, kFirstG);
  EXPECT_EQ(f.side(0).CreditGoalie, kFirstG + 1);
  EXPECT_EQ(f.side(1).CreditGoalie, kFirstG);
}

}  // namespace
}  // namespace kvl::test
