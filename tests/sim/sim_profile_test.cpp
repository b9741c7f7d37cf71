// The calibration run: sliders for the run only, and what they move.
#include "sim/sim_profile.h"

#include <gtest/gtest.h>

#include "support/sim_league.h"

namespace kvl::test {
namespace {

TEST(SimProfile, SlidersMoveShotsAndGoalsAndAreRestored) {
  GameFixture f(SimLeague(6), false);
  LeagueState& s = f.h.state;
  s.rnd.setMasterSeed(11);
  auto run = [&](int shots, int goals) {
    ProfileOptions o;
    o.games = 100, o.shotsLevel = shots, o.goalsLevel = goals;
    return RunProfile(s, o);
  };
  ProfileTotals low = run(1, 5), high = run(9, 5);
  EXPECT_EQ(std::tuple(low.games, high.sliders[1]), std::tuple(100, 9));
  EXPECT_GT(high.shots, low.shots + 100);  // about 3 shots a team and game apart
  EXPECT_GT(run(5, 9).goals, run(5, 1).goals);
  EXPECT_EQ(std::tuple(s.league.ShotsLevel(), s.league.GoalsLevel(), s.Dirty), std::tuple(5, 5, false));
}

TEST(SimProfile, FiguresAreTheSameOnAnyNumberOfThreads) {
  auto run = [](int jobs) {
    GameFixture f(SimLeague(6), false);
    f.h.state.rnd.setMasterSeed(5);
    ProfileOptions o;
    o.games = 60, o.jobs = jobs;
    return RunProfile(f.h.state, o);
  };
  auto figures = [](const ProfileTotals& t) {
    return std::vector<double>{double(t.games), double(t.overtimeGames), t.goals, t.shots, t.powerPlays, t.ppGoals,
                               t.pim, t.fights, t.injuries, t.hits, t.saves};
  };
  ProfileTotals one = run(1);
  EXPECT_EQ(figures(one), figures(run(2)));
  EXPECT_EQ(figures(one), figures(run(1)));
  EXPECT_EQ(one.games, 60);
}

TEST(SimProfile, RefusesATeamAgainstItselfAndBadLevels) {
  GameFixture f(SimLeague(4), false);
  ProfileOptions o;
  o.pair = {1, 1};
  EXPECT_THROW(RunProfile(f.h.state, o), KvlError);
  o.pair.reset();
  o.shotsLevel = 7, o.goalsLevel = 0;
  EXPECT_THROW(RunProfile(f.h.state, o), KvlError);
  EXPECT_EQ(f.h.state.league.ShotsLevel(), 5);
}

TEST(SimProfile, TextShowsMeansPerTeamAndGame) {
  ProfileTotals t;
  t.sliders = {5, 7, 5, 3, 5};
  t.games = 2;
  t.overtimeGames = 1;
  t.shots = 116;  // 29 a team and game
  t.goals = 12;
  t.saves = 104;
  std::string text = ProfileText(t);
  EXPECT_NE(text.find("2 games; ShotsLevel 7, GoalsLevel 3, PenaltiesLevel 5, InjuriesLevel 5"), std::string::npos);
  EXPECT_NE(text.find("  Shots                29.00\n"), std::string::npos);
  EXPECT_NE(text.find("  Goals                 3.00\n"), std::string::npos);
  EXPECT_NE(text.find("  Save percentage      0.897\n"), std::string::npos);
  EXPECT_NE(text.find("  Overtime games       50.0%\n"), std::string::npos);
  t.sliders = {5, 5, 5, 5, 5};  // at the defaults, the target ranges stand beside the figures
  text = ProfileText(t);
  EXPECT_NE(text.find("  Shots                29.00   29.00-31.00\n"), std::string::npos);
  EXPECT_NE(text.find("  Save percentage      0.897   .900-.910\n"), std::string::npos);
}

}  // namespace
}  // namespace kvl::test
