// Setting up a game: scaled ratings, goalie floors, checking classes, the line
// sums, substitutes and the line chosen by manpower.
#include <gmock/gmock.h>

#include "support/kvl_test.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

using testing::FloatEq;
using testing::Pointwise;

void SetRatings(Player& p, int level) {
  for (int i = 0; i < 13; ++i) p.rating(i) = static_cast<u8>(level);
}

// The scaled ratings of these kinds for one slot of a side.
std::vector<float> Scaled(GameFixture& f, int sd, int slot, std::initializer_list<int> kinds) {
  std::vector<float> out;
  for (int k : kinds) out.push_back(f.side(sd).Scaled[static_cast<std::size_t>(k)][static_cast<std::size_t>(slot)]);
  return out;
}

TEST(SetupGame, ScalesByConditionAndCoachWithFloorAt2_5) {
  LeaguePlan plan = SimLeague(4);
  Player& c = plan.rosters[0][0];
  SetRatings(c, 70);
  c.Condition = 50;  // 70 at half condition reads 3.5
  SetRatings(plan.rosters[0][kFirstG], 70);
  HireCoach(plan, 0);
  Coach& coach = plan.coaches[0];
  coach.LD = 40, coach.DF = 95, coach.EX = 95, coach.OF = 100;
  GameFixture f(plan);
  // Int: 3.5 - 1.0 is not above 2.5.
  EXPECT_THAT(Scaled(f, 0, 0, {kSpd, kInt, kDef, kExp, kPcc, kSco}),
              Pointwise(FloatEq(), {3.5f, 2.5f, 4.0f, 4.5f, 4.5f, 4.1f}));
  // A goalie takes the coach's Int, Def and Exp but not the scoring terms.
  EXPECT_THAT(Scaled(f, 0, kFirstG, {kInt, kPcc, kSco}), Pointwise(FloatEq(), {6.0f, 7.0f, 7.0f}));
  plan.header.OptCoach = kFalse;  // the coach option off: no coach is read
  EXPECT_FLOAT_EQ(GameFixture(plan).side(0).Scaled[kInt][0], 3.5f);
}

TEST(SetupGame, GoalieSpeedFloorIsCrossedWithPuckControl) {
  LeaguePlan plan = SimLeague(4);
  plan.rosters[1][kFirstG].rating(kSpd) = 90;
  plan.rosters[1][kFirstG].rating(kPcc) = 60;
  plan.rosters[0][kFirstG].rating(kSpd) = 50;
  plan.rosters[0][kFirstG].rating(kPcc) = 80;
  GameFixture f(plan);
  EXPECT_THAT(Scaled(f, 1, kFirstG, {kSpd, kPcc}), Pointwise(FloatEq(), {7.0f, 6.0f}));  // lowered, not raised
  EXPECT_THAT(Scaled(f, 0, kFirstG, {kSpd, kPcc}), Pointwise(FloatEq(), {7.0f, 8.0f}));
}

// However much of the season a goalie has played, he starts at his condition:
// no tired-goalie draw before the game.
TEST(SetupGame, AnOverworkedGoalieIsNotDrawnDown) {
  LeaguePlan plan = SimLeague(4);
  for (std::size_t t : {0u, 1u}) {
    plan.teams[t].W[0] = 30;
    plan.rosters[t][kFirstG].Plus = 60 * 12;  // twelve minutes played all season
    plan.rosters[t][kFirstG].GP = 31;
    plan.rosters[t][kFirstG].Condition = static_cast<u8>(96 - t);
  }
  GameFixture f(plan);
  for (int sd = 0; sd < 2; ++sd) {
    EXPECT_EQ(f.h.state.player(sd, kFirstG).Condition, 96 - sd);
    EXPECT_FLOAT_EQ(f.side(sd).Energy[kFirstG], static_cast<float>(96 - sd));
  }
}

TEST(SetupGame, CheckingClassFollowsDisciplineThenIntelligenceAndStrength) {
  const int rows[][4] = {{50, 99, 99, 0}, {51, 89, 79, 1}, {51, 90, 79, 2},
                         {51, 89, 80, 2}, {51, 90, 80, 3}, {99, 20, 20, 1}};  // Dis, Int, Str, class
  for (const auto& r : rows) {
    LeaguePlan plan = SimLeague(4);
    Player& p = plan.rosters[1][12];
    p.rating(kDis) = static_cast<u8>(r[0]), p.rating(kInt) = static_cast<u8>(r[1]);
    p.rating(kStr) = static_cast<u8>(r[2]);
    EXPECT_EQ(GameFixture(plan).side(1).Checking[12], r[3]) << r[0] << " " << r[1] << " " << r[2];
  }
}

// Out of position by the line's template; at even strength a forward holds back
// only three goals up and better at defence. (The line sums, the fresh line
// left on, who is dressed and starts, a defenceman, the checking line and the
// special teams are in every game: the golden box score pins them.)
TEST(SetLine, OutOfPositionAndAForwardHoldingBack) {
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
  s.offenseRating[1] = 40;
  s.defenseRating[1] = 50;
  for (int goals : {2, 3}) {
    s.Goals = static_cast<i16>(goals);
    f.game.SetLine(0, 1);
    EXPECT_EQ(s.Defensive[1], goals == 3 ? -1 : 0) << goals << " up";
  }
}

TEST(ChooseSubstitute, SparesFirstThenFreshestOfPositionThenAnySkater) {
  GameFixture f(SimLeague(4));
  Game& g = f.game;
  GameSide& s = f.side(0);
  f.Seat(0, {0, 4, 8, 12, 13});
  s.Energy[3] = 95;  // spare 1 (slot 3, a centre) at 95 is taken for a centre
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 3);
  // Below 95 he is not a spare any more: the freshest centre on the bench.
  s.Energy[1] = 80, s.Energy[2] = 96, s.Energy[3] = 94;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 2);
  s.Energy[16] = 95;  // spare 2 answers for a defenceman when spare 1 is a centre
  EXPECT_EQ(g.ChooseSubstitute(0, 12, 3), 16);
  f.Seat(0, {3, 4, 8, 12, 13});  // a spare on the ice is not taken
  s.Energy[3] = 100, s.Energy[0] = 70, s.Energy[2] = 50;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 1);
  // No centre left on the bench: the freshest skater of any position, never a goalie.
  s.Status[0] = s.Status[1] = s.Status[2] = kInBox;
  s.Energy[kFirstG + 1] = 100;
  for (int slot = 0; slot < 20; ++slot) s.Energy[static_cast<std::size_t>(slot)] = 60;
  s.Energy[10] = 70;
  EXPECT_EQ(g.ChooseSubstitute(0, 0, 0), 10);
  for (auto& st : s.Status)
    if (st == kOnBench) st = kInjured;
  EXPECT_THROW(g.ChooseSubstitute(0, 0, 0), KvlError) << "nobody at all: the game stops";
}

TEST(NextLine, PicksTheUnitForTheSituation) {
  const int rows[][5] = {// own box, other box, current line, shift cycle, line chosen
                         {0, 0, 0, 0, 1},   {0, 0, 1, 4, 3},  {0, 0, 3, 8, 0}, {1, 1, 9, 1, 2},  // 4 on 4 rotates
                         {0, 1, 0, 0, 4},   {0, 1, 4, 0, 5},  {0, 1, 5, 0, 5},  // 5 on 4 stays on the second unit
                         {1, 2, 0, 0, 6},   {0, 2, 6, 0, 5},                    // 4 on 3; 5 on 3 plays the 5 on 4 units
                         {1, 0, 0, 0, 8},   {1, 0, 8, 0, 9},  {1, 0, 9, 0, 9}, {2, 0, 0, 0, 10},
                         {3, 0, 10, 0, 11}, {2, 0, 11, 0, 11}};
  GameFixture f(SimLeague(4));
  GameSide& s = f.side(0);
  for (const auto& r : rows) {
    s.MenInBox = static_cast<u8>(r[0]);
    f.side(1).MenInBox = static_cast<u8>(r[1]);
    s.CurrentLine = static_cast<u8>(r[2]);
    s.ShiftCycle = static_cast<u8>(r[3]);
    f.game.forceChange = true;
    f.game.NextLine(0, 1);
    EXPECT_EQ(s.CurrentLine, r[4]) << r[0] << " " << r[1] << " " << r[2] << " " << r[3];
    EXPECT_FALSE(f.game.forceChange);
  }
}

}  // namespace
}  // namespace kvl::test
