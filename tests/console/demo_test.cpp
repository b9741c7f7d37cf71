#include "console/demo.h"

#include <set>

#include "league/roster_check.h"
#include "season/schedule_file.h"
#include "support/kvl_test.h"

namespace kvl {
namespace {

// The one run of the whole year; determinism across fresh homes is the e2e demo test's.
TEST(Demo, EveryTeamIsAlignedFilledCoachedAndPlaysTheYear) {
  test::Harness h;
  DemoSummary d = RunDemo(h.state, {24, 1});
  EXPECT_EQ(h.state.LeaguePath, d.nextPath) << "the next season, loaded back as a user would";
  EXPECT_FALSE(h.state.Dirty);
  ASSERT_EQ(h.state.numTeams(), 24);
  std::set<int> coaches;
  std::set<std::string> abbrevs;
  for (int t = 0; t < 24; ++t) {
    const Team& team = h.state.team(t);
    EXPECT_TRUE(team.CoachRec != 0 && team.Seats > 10000 && team.Ticket > 0) << "team " << t;
    coaches.insert(team.CoachRec);
    abbrevs.insert(team.Abbrev.str());
  }
  EXPECT_EQ(coaches.size(), 24u);
  EXPECT_EQ(abbrevs.size(), 24u);
  EXPECT_GE(d.best.dressedMean, d.worst.dressedMean);
  EXPECT_LT(d.best.dressedMean - d.worst.dressedMean, 3.0);
  EXPECT_EQ(static_cast<std::size_t>(d.gamesPlayed), ReadSchedule(d.path + ".scx").size()) << "the season is played";
  EXPECT_GE(d.champion, 0);
  EXPECT_GE(d.playoffGames, 15 * 4) << "fifteen series of at least four games";
  EXPECT_FALSE(h.state.league.ScheduleMade);
  EXPECT_TRUE(h.state.league.FirstDayPending) << "the next season waits for its schedule";
}

// The league alone (BuildDemo) is enough for the sizes: the season is the test above's.
TEST(Demo, AlignsEvenDivisionsAndRefusesSizesOutsideEightToFifty) {
  for (int teams : {8, 40, 41, 50}) {
    test::Harness h;
    BuildDemo(h.state, {teams, 3});
    ASSERT_EQ(h.state.numTeams(), teams);
    int counted = 0;
    for (const Conference& c : h.state.league.Conf) {
      EXPECT_EQ(c.NumDivs, teams > 40 ? 3 : 2) << teams;
      for (int d = 0; d < c.NumDivs; ++d) {
        const int n = c.Div[static_cast<std::size_t>(d)].NumTeams;
        EXPECT_LE(std::abs(n * 2 * c.NumDivs - teams), 2 * c.NumDivs) << teams << ": divisions come out even";
        counted += n;
      }
    }
    EXPECT_EQ(counted, teams);
    EXPECT_TRUE(CheckRosters(h.state).allValid) << teams;
  }
  for (int teams : {7, 51}) {
    test::Harness h;
    EXPECT_THROW(RunDemo(h.state, {teams, 1}), Refused);
    EXPECT_TRUE(h.ui.told("The demo league has 8 to 50 teams.", "Demo"));
    EXPECT_FALSE(fs::exists(h.home / "Demo.lge"));
  }
}

}  // namespace
}  // namespace kvl
