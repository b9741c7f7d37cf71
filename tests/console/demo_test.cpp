#include "console/demo.h"

#include <gtest/gtest.h>

#include <set>

#include "league/league_files.h"
#include "league/roster_check.h"
#include "season/schedule_file.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {
namespace {

DemoSummary MakeDemo(test::Harness& h, int teams, std::uint64_t seed) { return RunDemo(h.state, {teams, seed}); }

TEST(Demo, EveryTeamIsAlignedFilledCoachedAndPlaysTheYear) {
  test::Harness h;
  DemoSummary d = MakeDemo(h, 24, 1);
  LeagueState& s = h.state;
  EXPECT_EQ(d.path, (h.home / "Demo").string());
  EXPECT_EQ(s.LeaguePath, d.nextPath) << "the next season, loaded back as a user would";
  EXPECT_FALSE(s.Dirty);
  ASSERT_EQ(s.numTeams(), 24);
  EXPECT_EQ(d.players, 24 * 28);
  for (const Conference& c : s.league.Conf)
    EXPECT_EQ((std::array{int(c.NumDivs), int(c.Div[0].NumTeams), int(c.Div[1].NumTeams)}), (std::array{2, 6, 6}));
  EXPECT_TRUE(CheckRosters(s).allValid);
  std::set<int> coaches, abbrevs;
  std::set<std::string> names;
  for (int t = 0; t < 24; ++t) {
    const Team& team = s.team(t);
    EXPECT_TRUE(team.CoachRec != 0 && team.Seats > 10000 && team.Ticket > 0) << "team " << t;
    coaches.insert(team.CoachRec);
    names.insert(team.Abbrev.str());
  }
  EXPECT_EQ(coaches.size(), 24u);
  EXPECT_EQ(names.size(), 24u);
  EXPECT_GE(d.best.dressedMean, d.worst.dressedMean);
  EXPECT_LT(d.best.dressedMean - d.worst.dressedMean, 3.0);
  EXPECT_EQ(static_cast<std::size_t>(d.gamesPlayed), ReadSchedule(d.path + ".scx").size()) << "the season is played";
  EXPECT_GE(d.champion, 0);
  EXPECT_GE(d.playoffGames, 15 * 4) << "fifteen series of at least four games";
  EXPECT_FALSE(s.league.ScheduleMade);
  EXPECT_TRUE(s.league.FirstDayPending) << "the next season waits for its schedule";
  const auto files = test::SnapshotDir(h.home, "Demo.");
  MakeDemo(h, 24, 1);
  EXPECT_EQ(test::SnapshotDir(h.home, "Demo."), files) << "a rerun in the same home writes the same files";
}

TEST(Demo, AlignsWithinTheDivisionLimitsAndRefusesSizesOutsideEightToFifty) {
  for (int teams : {8, 41, 50}) {
    test::Harness h;
    MakeDemo(h, teams, 3);
    ASSERT_EQ(h.state.numTeams(), teams);
    int counted = 0;
    for (const Conference& c : h.state.league.Conf) {
      EXPECT_EQ(c.NumDivs, teams > 40 ? 3 : 2);
      for (int d = 0; d < c.NumDivs; ++d) {
        EXPECT_LE(c.Div[static_cast<std::size_t>(d)].NumTeams, 10);
        counted += c.Div[static_cast<std::size_t>(d)].NumTeams;
      }
    }
    EXPECT_EQ(counted, teams);
    EXPECT_TRUE(CheckRosters(h.state).allValid);
  }
  for (int teams : {7, 51}) {
    test::Harness h;
    EXPECT_THROW(MakeDemo(h, teams, 1), Refused);
    EXPECT_TRUE(h.ui.told("The demo league has 8 to 50 teams.", "Demo"));
    EXPECT_FALSE(fs::exists(h.home / "Demo.lge"));
  }
}

}  // namespace
}  // namespace kvl
