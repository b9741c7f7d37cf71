// The managers' commands as a user runs them: a lines file out and in, a
// refused text file, the league-wide load, a new player, a prospect and the
// players page.
#include <gtest/gtest.h>

#include <fstream>

#include "support/league_cli.h"

namespace kvl::test {
namespace {

TEST(LinesCli, LinesFilesProspectsAndTheDatabaseFromTheCommandLine) {
  LeaguePlan plan = StandardLeague(2);
  plan.teams[0].Password.set("pw");
  CliLeague cli(plan);
  const std::string dir = fs::path(cli.path).parent_path().string();
  struct Step {
    std::vector<std::string> args;
    int status;
    const char* says;  // in the output
  } steps[] = {
      {{"--yes", "set-lines", "0", "--auto"}, 0, "Lines for Team0"},
      {{"save-lines", "0", dir + "/Team0", "--password", "pw"}, 0, "Team0.lns"},
      {{"--yes", "load-lines", "Team0", dir + "/Team0.lns"}, 0, "loaded from"},
      {{"--yes", "load-lines", "Team1", dir + "/Team0.lns"}, 1, "Password Incorrect"},
      {{"--yes", "load-lines", "0", dir + "/bad.txt"}, 1, "bad.txt, line 1, \"99\": Wrong Player Number Used"},
      {{"--yes", "auto-load-lines"}, 0, "Team1 -- No Lines file found"},
      {{"--yes", "set-roster", "0", "--add", "New Guy", "--add-pos", "D", "--name", "22=Renamed"},
       0,
       "Add player to Team0"},
      {{"--yes", "view-prospects", "1", "--add", "Kid Prospect", "--activate", "1", "--manual", ""},
       0,
       "No match has been found"},
      {{"--yes", "player-database", "--output"}, 0, "Players.html"},
      {{"player-database", dir + "/bad.txt", "--list"}, 3, "not a whole number of 88-byte"},
  };
  std::ofstream(dir + "/bad.txt") << "99,2,3\r\n";
  for (const auto& s : steps) {
    ProgramRun r = cli.kvl(s.args);
    const std::string said = r.out + r.err;
    EXPECT_EQ(r.status, s.status) << s.says << "\n" << said;
    EXPECT_NE(said.find(s.says), std::string::npos) << said;
  }
  const std::string roster = cli.kvl({"set-roster", "0"}).out;
  EXPECT_NE(roster.find("New Guy"), std::string::npos) << roster;
  EXPECT_NE(roster.find("Renamed"), std::string::npos) << roster;
}

}  // namespace
}  // namespace kvl::test
