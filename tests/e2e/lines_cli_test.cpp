// The managers' commands as a user runs them: a lines file out and in, a
// refused text file, the league-wide load, a new player, a prospect and the
// players page.
#include <gtest/gtest.h>

#include <fstream>

#include "support/team_cli.h"

namespace kvl::test {
namespace {

TEST(LinesCli, LinesFilesProspectsAndTheDatabaseFromTheCommandLine) {
  LeaguePlan plan = StandardLeague(2);
  plan.teams[0].Password.set("pw");
  KvlCli cli(plan);
  const fs::path dir = fs::path(cli.leaguePath()).parent_path();
  struct Step {
    std::string args;
    int status;
    const char* says;  // in the output
  } steps[] = {
      {"--yes set-lines 0 --auto", 0, "Lines for Team0"},
      {"save-lines 0 " + (dir / "Team0").string() + " --password pw", 0, "Team0.lns"},
      {"--yes load-lines Team0 " + (dir / "Team0.lns").string(), 0, "loaded from"},
      {"--yes load-lines Team1 " + (dir / "Team0.lns").string(), 1, "Password Incorrect"},
      {"--yes load-lines 0 " + (dir / "bad.txt").string(), 1, "bad.txt, line 1, \"99\": Wrong Player Number Used"},
      {"--yes auto-load-lines", 0, "Team1 -- No Lines file found"},
      {"--yes set-roster 0 --add 'New Guy' --add-pos D --name 22=Renamed", 0, "Add player to Team0"},
      {"--yes view-prospects 1 --add 'Kid Prospect' --activate 1 --manual ''", 0, "No match has been found"},
      {"--yes player-database --output", 0, "Players.html"},
      {"player-database " + (dir / "bad.txt").string() + " --list", 3, "not a whole number of 88-byte"},
  };
  std::ofstream(dir / "bad.txt") << "99,2,3\r\n";
  for (const auto& s : steps) {
    CliRun r = cli.run(s.args);
    EXPECT_EQ(r.status, s.status) << s.args << "\n" << r.output;
    EXPECT_NE(r.output.find(s.says), std::string::npos) << s.args << "\n" << r.output;
  }
  CliRun roster = cli.run("set-roster 0");
  EXPECT_NE(roster.output.find("New Guy"), std::string::npos) << roster.output;
  EXPECT_NE(roster.output.find("Renamed"), std::string::npos) << roster.output;
}

}  // namespace
}  // namespace kvl::test
