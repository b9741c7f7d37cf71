// The play engine: lapses, the clock, overtime, goals and whole games. (A team
// without lines is given them first in every game of the year kvl plays.)
#include <gtest/gtest.h>

#include <numeric>

#include "support/sim_league.h"

namespace kvl::test {
namespace {

// 20 halves to the nearest whole for each condition, ties to even: 10, 5, 2, 1.
TEST(Lapse, OddsHalveForEachConditionAndAtOneEveryPlayerLapses) {
  struct Row {
    bool manDiff, overtime, oppScoreless, outshooting;
    int odds;
  } rows[] = {{false, false, false, false, 20}, {true, false, false, false, 10}, {false, false, false, true, 10},
              {false, true, true, false, 5},    {true, true, false, true, 2},    {true, true, true, true, 1}};
  GameFixture f(SimLeague(4));
  Game& g = f.game;
  g.Period = 3;
  f.side(1).Shots = 10;
  for (const Row& r : rows) {
    f.side(1).MenInBox = r.manDiff ? 1 : 0;
    g.InOvertime = r.overtime;
    f.side(1).Goals = r.oppScoreless ? 0 : 1;
    f.side(0).Shots = r.outshooting ? 21 : 20;
    EXPECT_EQ(g.LapseOdds(0), r.odds) << r.manDiff << r.overtime << r.oppScoreless << r.outshooting;
  }
  for (int i = 0; i < 50; ++i) EXPECT_FALSE(g.Lapse(0));
}

// The edges the golden box score does not reach: a clock past 20:00, the
// third and overtime periods, a name of one word.
TEST(PlayTexts, ClockOrdinalsAndShortNames) {
  EXPECT_EQ(std::tuple(ClockText(59), ClockText(1201), OrdinalPeriod(3), OrdinalPeriod(4), ShortName("Pele")),
            std::tuple("0:59", "20:01", "3rd Period", "4 Period", "Pele"));
}

TEST(EndOfPeriodRules, OvertimeAfterEachPeriod) {
  struct Row {
    int period;
    bool tied, seasonOver, playoffs, over;
    int periodAfter, periodLength, overtimeCount;
    const char* why;
  } rows[] = {{2, true, false, false, false, 2, 1200, 0, "ties are played on"},
              {3, false, false, false, true, 3, 1200, 0, "decided in regulation"},
              {3, true, false, false, false, 3, 300, 1, "five minutes in the season"},
              {3, true, true, true, false, 3, 1200, 1, "full periods after it"},
              {4, true, false, false, true, 4, 1200, 1, "a season game may end tied"},
              {4, true, true, true, false, 3, 1200, 2, "playoffs repeat overtime"},
              {4, false, true, true, true, 4, 1200, 1, "a playoff overtime goal ends it"}};
  for (const Row& r : rows) {
    GameFixture f(SimLeague(4));
    Game& g = f.game;
    f.h.state.league.SeasonOver = r.seasonOver ? kTrue : kFalse;
    f.h.state.league.InPlayoffs = r.playoffs ? kTrue : kFalse;
    g.Period = r.period;
    if (r.period == 4) g.Periods = 4, g.InOvertime = true, g.OvertimeCount = 1;  // already in overtime
    f.side(0).Goals = 2;
    f.side(1).Goals = r.tied ? 2 : 3;
    EXPECT_EQ(g.EndOfPeriodRules(), r.over) << r.why;
    EXPECT_EQ(std::tuple(g.Period, g.PeriodLength, g.OvertimeCount),
              std::tuple(r.periodAfter, r.periodLength, r.overtimeCount))
        << r.why;
  }
}

// Whole games of several seeds, in the season and in the playoffs: the books
// balance, no goalie ends in a skater's seat, and a playoff game never ends tied. (That a seed repeats its game
// is what the golden box score shows.)
TEST(WholeGame, BooksBalance) {
  int overtimes = 0;
  for (unsigned seed = 1; seed < 25; ++seed) {
    LeaguePlan plan = SimLeague(4, seed);
    HireCoach(plan, 0);
    GameFixture f(plan, false);
    const bool playoffs = seed > 8;
    f.h.state.league.InPlayoffs = f.h.state.league.SeasonOver = playoffs ? kTrue : kFalse;
    f.h.state.rnd.setMasterSeed(seed);
    Game g(f.h.state, GameOptions{true, false, nullptr, nullptr});
    g.PlayGame(0, 1);
    int goals = 0;
    for (int sd = 0; sd < 2; ++sd) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << " side " << sd);
      const GameSide& own = g.sideOf(sd);
      const GameSide& opp = g.sideOf(1 - sd);
      auto sum = [](const auto& a) { return std::accumulate(a.begin(), a.end(), 0); };
      EXPECT_EQ(std::tuple(sum(own.PlayerGoals), sum(own.PlayerShots), sum(opp.ShotsOnGoalie), sum(opp.GoalsOnGoalie)),
                std::tuple(own.Goals, own.Shots, own.Shots, own.Goals));
      EXPECT_LE(own.PowerPlayGoals, own.Goals);
      EXPECT_EQ(g.PeriodShots[static_cast<std::size_t>(sd)][static_cast<std::size_t>(g.Period)], own.Shots);
      EXPECT_EQ(sum(own.PIM), own.TeamPIM);
      for (u8 p : own.OnIce)
        EXPECT_TRUE(p == kNoPlayer || f.h.state.player(sd, p).Pos != kGoalie) << "a goalie skating";
      // Regulation and a season's overtime are 65 minutes at most: a goalie can't have more.
      if (!playoffs) {
        EXPECT_LE(std::accumulate(own.IceTime.begin() + kFirstG, own.IceTime.begin() + kFirstG + 3, 0), 65 * 60);
      }
      goals += own.Goals;
    }
    EXPECT_EQ(g.GoalCount, goals);
    EXPECT_GE(g.Period, 3);
    EXPECT_EQ(g.InOvertime, g.Period == 4);
    EXPECT_TRUE(g.sideOf(0).Goals != g.sideOf(1).Goals || (g.Period == 4 && !playoffs)) << "a tie only after overtime";
    EXPECT_EQ(std::count(g.PlayByPlay.begin(), g.PlayByPlay.end(), "<B>Overtime</B><BR>"), g.OvertimeCount);
    EXPECT_EQ(g.PlayByPlay[2], "<B>Period 1</B><BR>");
    overtimes += playoffs ? g.OvertimeCount : 0;
  }
  EXPECT_GT(overtimes, 1) << "some playoff game went to overtime";
}

TEST(WholeGame, AfterGameStepRunsOutsideExhibitions) {
  GameFixture f(SimLeague(4), false);
  int finished = 0;
  GameOptions opt;
  opt.finish = [&](Game&) { ++finished; };
  Game(f.h.state, opt).PlayGame(1, 1);  // a team paired with itself: no game, still finished
  EXPECT_EQ(finished, 1);
  Game(f.h.state, opt).PlayGame(0, 1);
  EXPECT_EQ(finished, 2);
  EXPECT_TRUE(f.h.state.Dirty);
  opt.isExhibition = true;
  f.h.state.Dirty = false;
  Game(f.h.state, opt).PlayGame(0, 1);
  EXPECT_EQ(finished, 2);
  EXPECT_FALSE(f.h.state.Dirty);
}

}  // namespace
}  // namespace kvl::test
