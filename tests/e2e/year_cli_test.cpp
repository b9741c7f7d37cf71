// A small league's whole year from the command line: the season, the playoffs
// to a champion, the re-rate, the new season, and a second year after it.
#include <gtest/gtest.h>

#include <map>

#include "league/league_files.h"
#include "season/schedule_file.h"
#include "support/found_cli.h"
#include "support/league_fixture.h"
#include "support/schedule_leagues.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

struct YearCli {
  YearCli() {
    fs::create_directories(dir.path() / "league");
    path = (dir.path() / "league" / "year").string();
    LeaguePlan plan = AlignedLeague({{2, 2}, {2, 2}});
    plan.header.PlayoffSize = 1;  // four a conference
    WriteLeague(plan, path);
  }
  ProgramRun kvl(std::vector<std::string> args, const std::string& league) {
    args.insert(args.begin(), {"--home", (dir.path() / "home").string(), "--league", league + ".lge", "--seed", "4"});
    return RunKvl(args, dir.path() / "scratch");
  }
  std::map<std::string, Bytes> files(const std::string& base) {
    std::map<std::string, Bytes> out;
    for (const char* ext : {".lge", ".tms", ".ros", ".scx", ".pct"}) out[ext] = ReadFileBytes(base + ext);
    return out;
  }
  TempDir dir;
  std::string path;
};

TEST(YearCommands, PlayoffsToAChampionThenANewSeasonAndASecondYear) {
  YearCli y;
  ASSERT_EQ(y.kvl({"--yes", "make-schedule"}, y.path).status, 0);
  EXPECT_EQ(y.kvl({"--yes", "start-playoffs"}, y.path).status, 1) << "not before the season is over";
  ASSERT_EQ(y.kvl({"--yes", "play-games", "--season"}, y.path).status, 0);
  const auto season = y.files(y.path);

  ProgramRun start = y.kvl({"--yes", "start-playoffs"}, y.path);
  ASSERT_EQ(start.status, 0) << start.out << start.err;
  const std::string rerated = (y.dir.path() / "league" / "rerated").string();
  ProgramRun play = y.kvl({"--yes", "play-games", "--season", "--save-as", rerated + ".lge"}, y.path + "PLF");
  ASSERT_EQ(play.status, 0) << play.out << play.err;
  EXPECT_NE(play.out.find("win the playoffs"), std::string::npos) << play.out;
  EXPECT_EQ(y.files(y.path), season) << "the regular season's files stay as they were";

  Harness h;
  LoadLg(h.state, rerated);
  h.state.leagueLock.release();  // read only; the next command opens it
  const League& l = h.state.league;
  EXPECT_TRUE(l.OffSeason && !l.InPlayoffs && !l.SeasonOver);
  int alive = 0;
  for (int t = 0; t < h.state.numTeams(); ++t) alive += h.state.team(t).PlayoffOut == 0;
  EXPECT_EQ(alive, 1) << "one champion";
  // The final's schedule stays: its winner has four wins, and the games left
  // after the fourth are struck, never played.
  std::map<int, int> wins;
  int played = 0, most = 0;
  const std::vector<ScheduleRecord> final = ReadSchedule(rerated + ".scx");
  for (const ScheduleRecord& g : final) {
    ASSERT_NE(g.Played, 0);
    if (g.HomeScore + g.AwayScore == 0) continue;
    ++played;
    most = std::max(most, ++wins[g.HomeScore > g.AwayScore ? g.HomeTeam : g.AwayTeam]);
  }
  EXPECT_EQ(final.size(), 7u);
  EXPECT_EQ(most, 4);
  EXPECT_GE(played, 4);

  const std::string next = (y.dir.path() / "league" / "next").string();
  ProgramRun ns = y.kvl({"--yes", "new-season", "--save-as", next + ".lge"}, rerated);
  ASSERT_EQ(ns.status, 0) << ns.out << ns.err;
  Harness before, after;
  LoadLg(before.state, rerated);
  LoadLg(after.state, next);
  after.state.leagueLock.release();
  for (int t = 0; t < after.state.numTeams(); ++t) {
    EXPECT_EQ(after.state.team(t).W[0] + after.state.team(t).L[0] + after.state.team(t).GF, 0) << "team " << t;
    loadteam(before.state, t, 0);
    loadteam(after.state, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player &old = before.state.player(0, slot), &now = after.state.player(0, slot);
      if (old.empty()) continue;
      EXPECT_EQ(now.Age, old.Age + 1);
      EXPECT_EQ(now.Contract, old.Contract > 0 ? old.Contract - 1 : 0);
      EXPECT_EQ(now.GP + now.G + now.A + now.StarPoints, 0);
    }
  }
  ASSERT_EQ(y.kvl({"--yes", "make-schedule"}, next).status, 0);
  ProgramRun second = y.kvl({"--yes", "play-games", "--season"}, next);
  EXPECT_EQ(second.status, 0) << second.out << second.err;
  EXPECT_NE(second.out.find("The season is over."), std::string::npos) << second.out;
}

}  // namespace
}  // namespace kvl::test
