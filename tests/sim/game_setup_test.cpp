// Setting up a game: scaled ratings, goalie floors, checking classes, the line
// sums, substitutes and the line chosen by manpower.
#include <gtest/gtest.h>

#include "support/sim_league.h"

namespace kvl::test {
namespace {

void SetRatings(Player& p, int level) {
  for (int i = 0; i < 13; ++i) p.rating(i) = static_cast<u8>(level);
}

TEST(SetupGame, ScalesByConditionAndCoachWithFloorAt2_5) {
  LeaguePlan plan = SimLeague(4);
  Player& c = plan.rosters[0][0];
  SetRatings(c, 70);
  c.Condition = 50;  // 70 at half condition reads 3.5
  Player& g = plan.rosters[0][kFirstG];
  SetRatings(g, 70);
  HireCoach(plan, 0);
  Coach& coach = plan.coaches[0];
  coach.LD = 40;
  coach.DF = 95;
  coach.EX = 95;
  coach.OF = 100;
  GameFixture f(plan);
  const GameSide& s = f.side(0);
  EXPECT_FLOAT_EQ(s.Scaled[kSpd][0], 3.5f);
  EXPECT_FLOAT_EQ(s.Scaled[kInt][0], 2.5f);  // 3.5 - 1.0 is not above 2.5
  EXPECT_FLOAT_EQ(s.Scaled[kDef][0], 4.0f);
  EXPECT_FLOAT_EQ(s.Scaled[kExp][0], 4.5f);
  EXPECT_FLOAT_EQ(s.Scaled[kPcc][0], 4.5f);
  EXPECT_FLOAT_EQ(s.Scaled[kSco][0], 4.1f);
  // A goalie takes the coach's Int, Def and Exp but not the scoring terms.
  EXPECT_FLOAT_EQ(s.Scaled[kInt][kFirstG], 6.0f);
  EXPECT_FLOAT_EQ(s.Scaled[kPcc][kFirstG], 7.0f);
  EXPECT_FLOAT_EQ(s.Scaled[kSco][kFirstG], 7.0f);
  // The coach option off: no coach is read.
  plan.header.OptCoach = kFalse;
  GameFixture off(plan);
  EXPECT_FLOAT_EQ(off.side(0).Scaled[kInt][0], 3.5f);
}

TEST(SetupGame, GoalieSpeedFloorIsCrossedWithPuckControl) {
  LeaguePlan plan = SimLeague(4);
  Player& fast = plan.rosters[1][kFirstG];
  fast.rating(kSpd) = 90;
  fast.rating(kPcc) = 60;
  Player& slow = plan.rosters[0][kFirstG];
  slow.rating(kSpd) = 50;
  slow.rating(kPcc) = 80;
  GameFixture f(plan);
  EXPECT_FLOAT_EQ(f.side(1).Scaled[kSpd][kFirstG], 7.0f);  // lowered, not raised
  EXPECT_FLOAT_EQ(f.side(1).Scaled[kPcc][kFirstG], 6.0f);
  EXPECT_FLOAT_EQ(f.side(0).Scaled[kSpd][kFirstG], 7.0f);
  EXPECT_FLOAT_EQ(f.side(0).Scaled[kPcc][kFirstG], 8.0f);
}

TEST(SetupGame, OverworkedGoalieStartsTired) {
  LeaguePlan plan = SimLeague(4);
  for (int t : {0, 1}) {
    plan.teams[static_cast<std::size_t>(t)].W[0] = 30;
    Player& g = plan.rosters[static_cast<std::size_t>(t)][kFirstG];
    g.Plus = 60 * 12;  // twelve minutes played all season
    g.Condition = 100;
  }
  plan.rosters[0][kFirstG].GP = 11;
  plan.rosters[1][kFirstG].GP = 10;  // not above 10: left alone
  GameFixture f(plan);
  int drawn = f.h.state.player(0, kFirstG).Condition;
  EXPECT_LT(drawn, 100);
  EXPECT_FLOAT_EQ(f.side(0).Energy[kFirstG], drawn == 0 ? 100.0f : static_cast<float>(drawn));
  EXPECT_EQ(f.h.state.player(1, kFirstG).Condition, 100);
}

struct CheckingCase {
  int dis, intel, str, expected;
};

class CheckingClass : public testing::TestWithParam<CheckingCase> {};

TEST_P(CheckingClass, FollowsDisciplineThenIntelligenceAndStrength) {
  const CheckingCase& c = GetParam();
  LeaguePlan plan = SimLeague(4);
  Player& p = plan.rosters[1][12];
  p.rating(kDis) = static_cast<u8>(c.dis);
  p.rating(kInt) = static_cast<u8>(c.intel);
  p.rating(kStr) = static_cast<u8>(c.str);
  GameFixture f(plan);
  EXPECT_EQ(f.side(1).Checking[12], c.expected);
}

INSTANTIATE_TEST_SUITE_P(Table, CheckingClass,
                         testing::Values(CheckingCase{50, 99, 99, 0}, CheckingCase{51, 89, 79, 1},
                                         CheckingCase{51, 90, 79, 2}, CheckingCase{51, 89, 80, 2},
                                         CheckingCase{51, 90, 80, 3}, CheckingCase{99, 20, 20, 1}));

TEST(SetupGame, DressesOnlyTheLineUpAndOpensWithFirstLines) {
  GameFixture f(SimLeague(4));
  const GameSide& s = f.side(0);
  EXPECT_EQ(s.Status[18], kNotDressed);  // scratched
  EXPECT_EQ(s.Status[21], kNotDressed);
  EXPECT_EQ(s.Status[22], kNotDressed);  // minors
  EXPECT_EQ(s.dressedCount, 20);
  EXPECT_EQ(s.Goalie, kFirstG);
  EXPECT_EQ(s.CreditGoalie, kFirstG);
  EXPECT_EQ(s.OnIce, (std::array<u8, 5>{0, 4, 8, 12, 13}));
  EXPECT_EQ(f.game.PlayByPlay.front(), "<FONT SIZE -1><H3>Team0 at Team1</H3>");
}

TEST(SetLine, SumsDivideByFilledSeatsButCheckingIsATotal) {
  LeaguePlan plan = SimLeague(4);
  for (int slot : {0, 4, 12, 14}) SetRatings(plan.rosters[0][static_cast<std::size_t>(slot)], 60);
  GameFixture f(plan);
  f.game.SetLine(0, 6);  // C, W, D, D and an empty fifth seat
  const GameSide& s = f.side(0);
  EXPECT_EQ(s.OnIce, (std::array<u8, 5>{0, 4, 12, 14, kNoPlayer}));
  EXPECT_EQ(s.LineToughness, 18);  // 6 + (12.4 - 6) + 6, four times, over four
  EXPECT_EQ(s.LineDiscipline, 6);
  EXPECT_EQ(s.LineDurability, 18);
  EXPECT_EQ(s.LineChecking, 4);
  EXPECT_EQ(s.Status[8], kOnBench);  // the old line left the ice
}

TEST(SetLine, OutOfPositionByTemplate) {
  GameFixture f(SimLeague(4));
  GameSide& s = f.side(0);
  s.Lines[1][0] = 8;  // a right wing in the left wing's seat
  s.Lines[1][6] = 9;  // a right wing in a winger's seat
  s.Lines[1][7] = 2;  // a centre in a winger's seat
  f.game.SetLine(0, 0);
  EXPECT_EQ(s.OutOfPosition[8], -1);
  f.game.SetLine(0, 6);
  EXPECT_EQ(s.OutOfPosition[9], 0);
  f.game.SetLine(0, 7);
  EXPECT_EQ(s.OutOfPosition[2], -1);
}

TEST(SetLine, DefensiveByManpowerScoreAndCheckingLine) {
  GameFixture f(SimLeague(4));
  GameSide& s = f.side(0);
  f.game.SetLine(0, 0);
  EXPECT_EQ(s.Defensive[0], 0);
  EXPECT_EQ(s.Defensive[12], -1);  // a defenceman plays defence at even strength
  f.game.SetLine(0, 2);
  EXPECT_EQ(s.Defensive[2], -1);  // the checking line
  s.MenInBox = 1;
  f.game.SetLine(0, 8);
  EXPECT_EQ(s.Defensive[2], -1);
  s.MenInBox = 0;
  f.side(1).MenInBox = 1;
  f.game.SetLine(0, 4);
  EXPECT_EQ(s.Defensive[12], 0);  // man up: nobody holds back
  f.side(1).MenInBox = 0;
  s.offenseRating[1] = 40;
  s.defenseRating[1] = 50;
  s.Goals = 3;
  f.game.SetLine(0, 1);
  EXPECT_EQ(s.Defensive[1], -1);  // three up, and better at defence
}

TEST(ChooseSubstitute, SparesFirstThenFreshestOfPositionThenAnySkater) {
  GameFixture f(SimLeague(4));
  Game& g = f.game;
  GameSide& s = f.side(0);
  f.Seat(0, {0, 4, 8, 12, 13});
  // Spare 1 (slot 3, a centre) at 95 is taken for a centre.
  s.Energy[3] = 95;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 3);
  // Below 95 he is not a spare any more: the freshest centre on the bench.
  s.Energy[1] = 80;
  s.Energy[2] = 96;
  s.Energy[3] = 94;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 2);
  // Spare 2 (slot 16) answers for a defenceman when spare 1 is a centre.
  s.Energy[16] = 95;
  EXPECT_EQ(g.ChooseSubstitute(0, 12, 3), 16);
  // A spare on the ice is not taken.
  f.Seat(0, {3, 4, 8, 12, 13});
  s.Energy[3] = 100;
  s.Energy[0] = 70;
  s.Energy[2] = 50;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 1);
  // No centre left on the bench: the freshest skater of any position, never a goalie.
  s.Status[0] = s.Status[1] = s.Status[2] = kInBox;
  s.Energy[kFirstG + 1] = 100;
  for (int slot = 0; slot < 20; ++slot) s.Energy[static_cast<std::size_t>(slot)] = 60;
  s.Energy[10] = 70;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 10);
  // Nobody at all: the game stops.
  for (auto& st : s.Status)
    if (st == kOnBench) st = kInjured;
  EXPECT_THROW(g.ChooseSubstitute(0, 0, 0), KvlError);
}

struct ManpowerCase {
  int ownBox, oppBox, current, cycle, expected;
};

class LineByManpower : public testing::TestWithParam<ManpowerCase> {};

TEST_P(LineByManpower, PicksTheUnitForTheSituation) {
  const ManpowerCase& c = GetParam();
  GameFixture f(SimLeague(4));
  GameSide& s = f.side(0);
  s.MenInBox = static_cast<u8>(c.ownBox);
  f.side(1).MenInBox = static_cast<u8>(c.oppBox);
  s.CurrentLine = static_cast<u8>(c.current);
  s.ShiftCycle = static_cast<u8>(c.cycle);
  f.game.forceChange = true;
  f.game.NextLine(0, 1);
  EXPECT_EQ(s.CurrentLine, c.expected);
  EXPECT_FALSE(f.game.forceChange);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LineByManpower,
    testing::Values(ManpowerCase{0, 0, 0, 0, 1}, ManpowerCase{0, 0, 1, 4, 3}, ManpowerCase{0, 0, 3, 8, 0},
                    ManpowerCase{1, 1, 9, 1, 2},                                    // 4 on 4 rotates
                    ManpowerCase{0, 1, 0, 0, 4}, ManpowerCase{0, 1, 4, 0, 5},  // 5 on 4
                    ManpowerCase{0, 1, 5, 0, 5},                                    // stays on the second unit
                    ManpowerCase{1, 2, 0, 0, 6}, ManpowerCase{0, 2, 6, 0, 5},  // 4 on 3; 5 on 3 plays the 5 on 4 units
                    ManpowerCase{1, 0, 0, 0, 8}, ManpowerCase{1, 0, 8, 0, 9}, ManpowerCase{1, 0, 9, 0, 9},
                    ManpowerCase{2, 0, 0, 0, 10}, ManpowerCase{3, 0, 10, 0, 11}, ManpowerCase{2, 0, 11, 0, 11}));

TEST(NextLine, FreshLineStaysUnlessForced) {
  GameFixture f(SimLeague(4));
  f.side(0).CurrentLine = 0;
  f.game.NextLine(0, 1);
  EXPECT_EQ(f.side(0).CurrentLine, 0);
  for (u8 p : f.side(0).OnIce) f.side(0).Energy[p] = 89.5f;  // mean 89 after Int
  EXPECT_EQ(f.game.MeanEnergy(0), 89);
  f.game.NextLine(0, 1);
  EXPECT_EQ(f.side(0).CurrentLine, 1);
}

}  // namespace
}  // namespace kvl::test
