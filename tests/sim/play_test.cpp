// The play engine: lapses, the clock, overtime, goals and whole games.
#include <gtest/gtest.h>

#include <numeric>

#include "support/sim_league.h"

namespace kvl::test {
namespace {

struct LapseCase {
  bool manDiff, overtime, oppScoreless, outshooting;
  int odds;
};

class LapseOdds : public testing::TestWithParam<LapseCase> {};

// 20 halves to the nearest whole for each condition, ties to even: 10, 5, 2, 1.
TEST_P(LapseOdds, HalveForEachCondition) {
  const LapseCase& c = GetParam();
  GameFixture f(SimLeague(4));
  Game& g = f.game;
  f.side(1).MenInBox = c.manDiff ? 1 : 0;
  g.InOvertime = c.overtime;
  g.Period = 3;
  f.side(1).Goals = c.oppScoreless ? 0 : 1;
  f.side(0).Shots = c.outshooting ? 21 : 20;
  f.side(1).Shots = 10;
  EXPECT_EQ(g.LapseOdds(0), c.odds);
}

INSTANTIATE_TEST_SUITE_P(Table, LapseOdds,
                         testing::Values(LapseCase{false, false, false, false, 20},
                                         LapseCase{true, false, false, false, 10},
                                         LapseCase{false, false, false, true, 10},
                                         LapseCase{false, true, true, false, 5},
                                         LapseCase{true, true, false, true, 2},
                                         LapseCase{true, true, true, true, 1}));

TEST(Lapse, AtOddsOfOneEveryPlayerLapses) {
  GameFixture f(SimLeague(4));
  Game& g = f.game;
  f.side(1).MenInBox = 1;
  g.InOvertime = true;
  g.Period = 3;
  f.side(0).Shots = 5;
  for (int i = 0; i < 50; ++i) EXPECT_FALSE(g.Lapse(0));
}

struct ClockCase {
  int clock;
  const char* text;
};

class ClockTexts : public testing::TestWithParam<ClockCase> {};

TEST_P(ClockTexts, MinutesAndTwoDigitSeconds) { EXPECT_EQ(ClockText(GetParam().clock), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Table, ClockTexts,
                         testing::Values(ClockCase{0, "0:00"}, ClockCase{1, "0:01"}, ClockCase{59, "0:59"},
                                         ClockCase{60, "1:00"}, ClockCase{606, "10:06"}, ClockCase{1201, "20:01"}));

TEST(Ordinals, OnlyThreeExist) {
  EXPECT_EQ(OrdinalPeriod(1), "1st Period");
  EXPECT_EQ(OrdinalPeriod(2), "2nd Period");
  EXPECT_EQ(OrdinalPeriod(3), "3rd Period");
  EXPECT_EQ(OrdinalPeriod(4), "4 Period");
  EXPECT_EQ(ShortName("John Smith"), "J. Smith");
  EXPECT_EQ(ShortName("Jean Van Dyke"), "J. Van Dyke");
  EXPECT_EQ(ShortName("Pele"), "Pele");
}

struct OvertimeCase {
  int period;
  bool tied, seasonOver, playoffs;
  bool over;
  int periodAfter, periodLength, overtimeCount;
};

class OvertimeRules : public testing::TestWithParam<OvertimeCase> {};

TEST_P(OvertimeRules, AfterEachPeriod) {
  const OvertimeCase& c = GetParam();
  GameFixture f(SimLeague(4));
  Game& g = f.game;
  f.h.state.league.SeasonOver = c.seasonOver ? kTrue : kFalse;
  f.h.state.league.InPlayoffs = c.playoffs ? kTrue : kFalse;
  g.Period = c.period;
  if (c.period == 4) {  // already in overtime
    g.Periods = 4;
    g.InOvertime = true;
    g.OvertimeCount = 1;
  }
  f.side(0).Goals = 2;
  f.side(1).Goals = c.tied ? 2 : 3;
  EXPECT_EQ(g.EndOfPeriodRules(), c.over);
  EXPECT_EQ(g.Period, c.periodAfter);
  EXPECT_EQ(g.PeriodLength, c.periodLength);
  EXPECT_EQ(g.OvertimeCount, c.overtimeCount);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OvertimeRules,
    testing::Values(OvertimeCase{2, true, false, false, false, 2, 1200, 0},   // ties are played on
                    OvertimeCase{3, false, false, false, true, 3, 1200, 0},   // decided in regulation
                    OvertimeCase{3, true, false, false, false, 3, 300, 1},    // five minutes in the season
                    OvertimeCase{3, true, true, true, false, 3, 1200, 1},     // full periods after it
                    OvertimeCase{4, true, false, false, true, 4, 1200, 1},    // a season game may end tied
                    OvertimeCase{4, true, true, true, false, 3, 1200, 2},     // playoffs repeat overtime
                    OvertimeCase{4, false, true, true, true, 4, 1200, 1}));

// Plays whole games and checks that the books balance.
class WholeGame : public testing::TestWithParam<unsigned> {};

TEST_P(WholeGame, BooksBalance) {
  LeaguePlan plan = SimLeague(4, GetParam());
  HireCoach(plan, 0);
  GameFixture f(plan, false);
  f.h.state.rnd.setMasterSeed(GetParam());
  GameOptions opt;
  opt.isExhibition = true;
  Game g(f.h.state, opt);
  g.PlayGame(0, 1);
  int goals = 0;
  for (int sd = 0; sd < 2; ++sd) {
    const GameSide& own = g.sideOf(sd);
    const GameSide& opp = g.sideOf(1 - sd);
    EXPECT_EQ(std::accumulate(own.PlayerGoals.begin(), own.PlayerGoals.end(), 0), own.Goals);
    EXPECT_EQ(std::accumulate(own.PlayerShots.begin(), own.PlayerShots.end(), 0), own.Shots);
    EXPECT_EQ(std::accumulate(opp.ShotsOnGoalie.begin(), opp.ShotsOnGoalie.end(), 0), own.Shots);
    EXPECT_EQ(std::accumulate(opp.GoalsOnGoalie.begin(), opp.GoalsOnGoalie.end(), 0), own.Goals);
    EXPECT_LE(own.PowerPlayGoals, own.Goals);
    EXPECT_EQ(g.PeriodShots[static_cast<std::size_t>(sd)][static_cast<std::size_t>(g.Period)], own.Shots);
    goals += own.Goals;
    EXPECT_EQ(std::accumulate(own.PIM.begin(), own.PIM.end(), 0), own.TeamPIM);
    // Regulation and overtime are 65 minutes at most: a goalie can't have more.
    EXPECT_LE(std::accumulate(own.IceTime.begin() + kFirstG, own.IceTime.begin() + kFirstG + 3, 0), 65 * 60);
  }
  EXPECT_EQ(g.GoalCount, goals);
  EXPECT_GE(g.Period, 3);
  EXPECT_EQ(g.InOvertime, g.Period == 4);
  if (g.sideOf(0).Goals == g.sideOf(1).Goals) {
    EXPECT_EQ(g.Period, 4);
  }
  EXPECT_EQ(g.PlayByPlay[1], "<BR>");
  EXPECT_EQ(g.PlayByPlay[2], "<B>Period 1</B><BR>");
}

INSTANTIATE_TEST_SUITE_P(Seeds, WholeGame, testing::Range(1u, 9u));

TEST(WholeGame, PlayoffGamesNeverEndTied) {
  GameFixture f(SimLeague(4), false);
  f.h.state.league.InPlayoffs = kTrue;
  f.h.state.league.SeasonOver = kTrue;
  GameOptions opt;
  opt.isExhibition = true;
  for (unsigned seed = 1; seed <= 30; ++seed) {
    f.h.state.rnd.setMasterSeed(seed);
    Game g(f.h.state, opt);
    g.PlayGame(0, 1);
    EXPECT_NE(g.sideOf(0).Goals, g.sideOf(1).Goals);
    if (g.InOvertime) {
      std::size_t headers = 0;
      for (const auto& line : g.PlayByPlay) headers += line == "<B>Overtime</B><BR>";
      EXPECT_EQ(headers, static_cast<std::size_t>(g.OvertimeCount));
    }
  }
}

TEST(WholeGame, SameSeedSameGame) {
  GameFixture f(SimLeague(4), false);
  auto play = [&] {
    f.h.state.rnd.setMasterSeed(99);
    Game g(f.h.state, GameOptions{true, false, nullptr, nullptr});
    g.PlayGame(2, 3);
    return std::make_pair(g.PlayByPlay, g.Notes);
  };
  EXPECT_EQ(play(), play());
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

TEST(WholeGame, TeamWithoutLinesGetsThemFirst) {
  LeaguePlan plan = SimLeague(4);
  plan.teams[1].LinesOK = kFalse;
  plan.teams[1].Lines.cells.fill(kNoPlayer);
  GameFixture f(plan, false);
  Game g(f.h.state);
  g.PlayGame(0, 1);
  EXPECT_TRUE(f.h.state.team(1).LinesOK);
  EXPECT_NE(f.h.state.team(1).Lines.at(kGoalieRow, 0), kNoPlayer);
  EXPECT_GE(g.sideOf(1).Shots, 1);
}

}  // namespace
}  // namespace kvl::test
