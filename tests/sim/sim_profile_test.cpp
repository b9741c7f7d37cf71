// The calibration run: sliders for the run only and what they move. (Its text
// at the default sliders and off them, the same on any number of threads, and a
// team paired with itself are run by kvl.)
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
  o.shotsLevel = 7, o.goalsLevel = 0;
  EXPECT_THROW(RunProfile(s, o), KvlError) << "a level below 1";
  EXPECT_EQ(s.league.ShotsLevel(), 5);
}

}  // namespace
}  // namespace kvl::test
