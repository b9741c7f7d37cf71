// `kvl exhibition` and `kvl sim-profile` run as a user runs them.
#include <gtest/gtest.h>

#include "support/league_cli.h"
#include "support/sim_league.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

TEST(SimCommands, ExhibitionWritesANewPageEachTimeAndChangesNothing) {
  CliLeague lg(SimLeague(4), "test", {"--seed", "5"});
  Bytes roster = ReadFileBytes(lg.path + ".ros");
  ProgramRun first = lg.kvl({"exhibition", "0", "Team1"});
  ASSERT_EQ(first.status, 0) << first.err;
  fs::path page1 = lg.home / "Transfer" / "testex1.html";
  EXPECT_NE(first.out.find("Team0 "), std::string::npos);
  EXPECT_NE(first.out.find("Box score: " + page1.string()), std::string::npos);
  EXPECT_EQ(first.out.find("Save League Changes?"), std::string::npos);
  ASSERT_EQ(lg.kvl({"exhibition", "T00", "1"}).status, 0);
  EXPECT_EQ(ReadFileBytes(page1), ReadFileBytes(lg.home / "Transfer" / "testex2.html"));
  EXPECT_EQ(ReadFileBytes(lg.path + ".ros"), roster);
  ProgramRun unknown = lg.kvl({"exhibition", "0", "Nobody"});
  EXPECT_EQ(unknown.status, 1);
  EXPECT_NE((unknown.out + unknown.err).find("There is no team \"Nobody\""), std::string::npos);
}

TEST(SimCommands, ProfileReportsTheSlidersOfTheRun) {
  CliLeague lg(SimLeague(4));
  ProgramRun r =
      lg.kvl({"sim-profile", "--games", "20", "--pair", "0", "1", "--shots-level", "7", "--goals-level", "3"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("20 games; ShotsLevel 7, GoalsLevel 3, PenaltiesLevel 5, InjuriesLevel 5"), std::string::npos);
  for (const char* row : {"Goals", "Shots", "Power plays", "Power-play goals", "Penalty minutes", "Fights",
                          "Injuries", "Hits", "Save percentage", "Overtime games"})
    EXPECT_NE(r.out.find(std::string("  ") + row + " "), std::string::npos) << row;
  EXPECT_EQ(lg.kvl({"sim-profile", "--shots-level", "10"}).status, 2);
}

}  // namespace
}  // namespace kvl::test
