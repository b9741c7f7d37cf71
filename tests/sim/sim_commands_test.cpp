// `kvl exhibition` and `kvl sim-profile` run as a user runs them.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <fstream>

#include "support/sim_league.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

struct KvlRun {
  int status;
  std::string out;
};

KvlRun Kvl(const std::string& args) {
  std::string cmd = std::string(KVL_BINARY) + " " + args + " </dev/null 2>&1";
  FILE* p = ::popen(cmd.c_str(), "r");
  std::string out;
  char buf[512];
  while (std::size_t n = std::fread(buf, 1, sizeof buf, p)) out.append(buf, n);
  int rc = ::pclose(p);
  return {WIFEXITED(rc) ? WEXITSTATUS(rc) : -1, out};
}

class SimCommands : public testing::Test {
 protected:
  SimCommands() {
    fs::create_directories(dir.path() / "league");
    league = (dir.path() / "league" / "test").string();
    WriteLeague(SimLeague(4), league);
    base = "--home " + (dir.path() / "home").string() + " --league " + league + " ";
  }
  TempDir dir;
  std::string league, base;
};

TEST_F(SimCommands, ExhibitionWritesANewPageEachTimeAndChangesNothing) {
  Bytes roster = ReadFileBytes(league + ".ros");
  KvlRun first = Kvl(base + "--seed 5 exhibition 0 Team1");
  ASSERT_EQ(first.status, 0) << first.out;
  fs::path page1 = dir.path() / "home" / "Transfer" / "testex1.html";
  EXPECT_NE(first.out.find("Team0 "), std::string::npos);
  EXPECT_NE(first.out.find("Box score: " + page1.string()), std::string::npos);
  EXPECT_EQ(first.out.find("Save League Changes?"), std::string::npos);
  KvlRun second = Kvl(base + "--seed 5 exhibition T00 1");
  ASSERT_EQ(second.status, 0) << second.out;
  fs::path page2 = dir.path() / "home" / "Transfer" / "testex2.html";
  ASSERT_TRUE(fs::exists(page2));
  EXPECT_EQ(ReadFileBytes(page1), ReadFileBytes(page2));
  EXPECT_EQ(ReadFileBytes(league + ".ros"), roster);
}

TEST_F(SimCommands, ExhibitionRefusesAnUnknownTeam) {
  KvlRun r = Kvl(base + "exhibition 0 Nobody");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.out.find("There is no team \"Nobody\""), std::string::npos);
}

TEST_F(SimCommands, ProfileReportsTheSlidersOfTheRun) {
  KvlRun r = Kvl(base + "sim-profile --games 20 --pair 0 1 --shots-level 7 --goals-level 3");
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_NE(r.out.find("20 games; ShotsLevel 7, GoalsLevel 3, PenaltiesLevel 5, InjuriesLevel 5"), std::string::npos);
  for (const char* row : {"Goals", "Shots", "Power plays", "Power-play goals", "Penalty minutes", "Fights",
                          "Injuries", "Hits", "Save percentage", "Overtime games"})
    EXPECT_NE(r.out.find(std::string("  ") + row + " "), std::string::npos) << row;
  EXPECT_EQ(Kvl(base + "sim-profile --shots-level 10").status, 2);
}

}  // namespace
}  // namespace kvl::test
