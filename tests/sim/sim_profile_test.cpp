// The calibration run: sliders for the run only, what they move, and its
// figures on any number of threads.
#include "sim/sim_profile.h"

#include "support/kvl_test.h"
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
  ProfileOptions o;
  o.pair = {1, 1};
  EXPECT_THROW(RunProfile(s, o), KvlError) << "a team against itself";
  o.pair.reset();
  o.shotsLevel = 7, o.goalsLevel = 0;
  EXPECT_THROW(RunProfile(s, o), KvlError) << "a level below 1";
  EXPECT_EQ(s.league.ShotsLevel(), 5);
}

TEST(SimProfile, FiguresAreTheSameOnAnyNumberOfThreads) {
  auto figures = [](int jobs) {
    GameFixture f(SimLeague(6), false);
    f.h.state.rnd.setMasterSeed(5);
    ProfileOptions o;
    o.games = 60, o.jobs = jobs;
    ProfileTotals t = RunProfile(f.h.state, o);
    return std::vector<double>{double(t.games), double(t.overtimeGames),
                               t.goals,         t.shots,
                               t.powerPlays,    t.ppGoals,
                               t.pim,           t.fights,
                               t.injuries,      t.hits,
                               t.saves};
  };
  const std::vector<double> one = figures(1);
  EXPECT_EQ(one, figures(2));
  EXPECT_EQ(one, figures(1));
  EXPECT_EQ(one[0], 60);
}

// Means per team and game; at the default sliders the target ranges stand
// beside the figures. (The heading and every row's name are checked by running kvl.)
TEST(SimProfile, TextShowsMeansPerTeamAndGame) {
  ProfileTotals t;
  t.sliders = {5, 5, 5, 5, 5};
  t.games = 2;
  t.overtimeGames = 1;
  t.shots = 116;  // 29 a team and game
  t.goals = 12;
  t.saves = 104;
  std::string text = ProfileText(t);
  EXPECT_NE(text.find("  Goals                 3.00   "), std::string::npos);
  EXPECT_NE(text.find("  Shots                29.00   29.00-31.00\n"), std::string::npos);
  EXPECT_NE(text.find("  Save percentage      0.897   .900-.910\n"), std::string::npos);
  EXPECT_NE(text.find("  Overtime games       50.0%"), std::string::npos);
  t.sliders = {5, 7, 5, 3, 5};
  EXPECT_NE(ProfileText(t).find("  Shots                29.00\n"), std::string::npos) << "no range off the defaults";
}

}  // namespace
}  // namespace kvl::test
