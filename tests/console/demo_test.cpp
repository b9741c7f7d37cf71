#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <map>
#include <set>

#include "console/demo.h"
#include "league/league_files.h"
#include "league/roster_check.h"
#include "season/schedule_file.h"
#include "support/league_fixture.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {
namespace {

// Every file of the demo league in a home folder, by name.
std::map<std::string, Bytes> DemoFiles(const fs::path& home) {
  std::map<std::string, Bytes> files;
  for (const auto& e : fs::directory_iterator(home)) {
    std::string name = e.path().filename().string();
    if (name.rfind("Demo.", 0) == 0) files[name] = ReadFileBytes(e.path());
  }
  return files;
}

DemoSummary MakeDemo(test::Harness& h, int teams, std::uint64_t seed) { return RunDemo(h.state, {teams, seed}); }

TEST(Demo, TheSameSeedGivesByteIdenticalLeagueFiles) {
  test::Harness a, b;
  MakeDemo(a, 24, 7);
  MakeDemo(b, 24, 7);
  std::map<std::string, Bytes> first = DemoFiles(a.home);
  ASSERT_TRUE(first.count("Demo.lge") && first.count("Demo.tms") && first.count("Demo.ros"));
  EXPECT_EQ(first, DemoFiles(b.home));
  MakeDemo(a, 24, 7);
  EXPECT_EQ(first, DemoFiles(a.home)) << "a rerun in the same home writes the same files";
  MakeDemo(b, 24, 8);
  EXPECT_NE(first.at("Demo.tms"), DemoFiles(b.home).at("Demo.tms")) << "another seed, another league";
}

TEST(Demo, EveryTeamIsAlignedFilledCoachedAndPlaysTheYear) {
  test::Harness h;
  DemoSummary d = MakeDemo(h, 24, 1);
  LeagueState& s = h.state;
  EXPECT_EQ(d.path, (h.home / "Demo").string());
  EXPECT_EQ(s.LeaguePath, d.nextPath) << "the next season, loaded back as a user would";
  EXPECT_FALSE(s.Dirty);
  ASSERT_EQ(s.numTeams(), 24);
  EXPECT_EQ(d.players, 24 * 28);
  for (const Conference& c : s.league.Conf) {
    ASSERT_EQ(c.NumDivs, 2);
    EXPECT_EQ(c.Div[0].NumTeams, 6);
    EXPECT_EQ(c.Div[1].NumTeams, 6);
  }
  EXPECT_TRUE(CheckRosters(s).allValid);
  std::set<int> coaches, abbrevs;
  std::set<std::string> names;
  for (int t = 0; t < 24; ++t) {
    EXPECT_NE(s.team(t).CoachRec, 0) << "team " << t;
    coaches.insert(s.team(t).CoachRec);
    names.insert(s.team(t).Abbrev.str());
    EXPECT_GT(s.team(t).Seats, 10000);
    EXPECT_GT(s.team(t).Ticket, 0);
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
}

class DemoSizes : public ::testing::TestWithParam<int> {};

TEST_P(DemoSizes, AlignsWithinTheDivisionLimits) {
  const int teams = GetParam();
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

INSTANTIATE_TEST_SUITE_P(Leagues, DemoSizes, ::testing::Values(8, 41, 50));

TEST(Demo, RefusesSizesOutsideEightToFifty) {
  for (int teams : {7, 51}) {
    test::Harness h;
    EXPECT_THROW(MakeDemo(h, teams, 1), Refused);
    EXPECT_TRUE(h.ui.told("The demo league has 8 to 50 teams.", "Demo"));
    EXPECT_FALSE(fs::exists(h.home / "Demo.lge"));
  }
}

struct KvlRun {
  int rc = 0;
  std::string out;
};

// Runs kvl on a home folder; its output goes through a file beside the home.
KvlRun Kvl(const fs::path& home, const std::string& args) {
  fs::path out = home.string() + ".out";
  std::string cmd = std::string(KVL_BINARY) + " --home '" + home.string() + "' " + args + " </dev/null >'" +
                    out.string() + "' 2>&1";
  int status = std::system(cmd.c_str());
  Bytes text = ReadFileBytes(out);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, std::string(text.begin(), text.end())};
}

TEST(DemoCommand, MakesTheSameLeagueTwiceInFreshHomesAndInfoShowsIt) {
  test::TempDir dir;
  KvlRun one = Kvl(dir.path() / "one", "--seed 7 demo");
  ASSERT_EQ(one.rc, 0) << one.out;
  EXPECT_NE(one.out.find("Demo league: 24 teams, 672 players"), std::string::npos) << one.out;
  EXPECT_NE(one.out.find((dir.path() / "one" / "Demo.lge").string()), std::string::npos) << one.out;
  ASSERT_EQ(Kvl(dir.path() / "two", "demo --seed 7").rc, 0);
  EXPECT_EQ(DemoFiles(dir.path() / "one"), DemoFiles(dir.path() / "two"));

  KvlRun info = Kvl(dir.path() / "one", "info");
  ASSERT_EQ(info.rc, 0) << info.out;
  EXPECT_NE(info.out.find("Teams: 24"), std::string::npos) << info.out;
  EXPECT_EQ(info.out.find("invalid rosters"), std::string::npos) << info.out;
  EXPECT_EQ(Kvl(dir.path() / "one", "demo --teams 51").rc, 2) << "a usage error";
}

}  // namespace
}  // namespace kvl
