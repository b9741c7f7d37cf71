// The team commands of the kvl program, run end to end on a written league.
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/team_cli.h"
#include "support/team_files.h"

namespace kvl::test {
namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(TeamCommandsTest, AutoAllSetsEveryTeamAndTheLinesShowNoEmptySlot) {
  KvlCli cli(StandardLeague(24, 5));
  CliRun all = cli.run("--yes auto-all");
  ASSERT_EQ(all.status, 0) << all.output;
  EXPECT_TRUE(Has(all.output, "24 of 24 teams set.")) << all.output;
  for (const char* team : {"0", "Team23"}) {
    CliRun lines = cli.run("set-lines " + std::string(team));
    EXPECT_EQ(lines.status, 0) << lines.output;
    EXPECT_FALSE(Has(lines.output, "(empty)")) << lines.output;
    EXPECT_TRUE(Has(lines.output, "PK Line 1 (3 on 5)")) << lines.output;
  }
}

TEST(TeamCommandsTest, RefusalsTellTheSystemsWordsExitOneAndKeepNothing) {
  LeaguePlan plan = StandardLeague(4);
  plan.rosters[0][0].Status = 102;  // an injured scratch
  KvlCli cli(plan);
  struct Case {
    std::string args, says;
  } cases[] = {
      {"--yes set-roster 0 --dress 0", "T0 C 1 is unavailable"},
      {"--yes set-roster 0 --farm 0", "T0 C 1 cannot be sent to farm"},
      {"--yes set-lines 1 --place E1:0=0", "Lines are not complete"},
      {"--yes set-lines 1 --place E1:0=19", "does not fit"},
      {"--yes set-lines 1 --place X9:0=1", "A placement reads ROW:SLOT=PLAYER"},
      {"--yes set-roster 9", "There is no team"},
  };
  for (const auto& c : cases) {
    CliRun r = cli.run(c.args);
    EXPECT_EQ(r.status, 1) << c.args << "\n" << r.output;
    EXPECT_TRUE(Has(r.output, c.says)) << c.args << "\n" << r.output;
  }
  CliRun roster = cli.run("set-roster 0");
  EXPECT_TRUE(Has(roster.output, "19 Total Players")) << roster.output;
}

TEST(TeamCommandsTest, CoachesAreHiredFiredAndLogged) {
  KvlCli cli(StandardLeague(4));
  EXPECT_EQ(cli.run("--yes hire-coach Team2 'Coach 1'").status, 0);
  CliRun again = cli.run("--yes hire-coach 3 2");
  EXPECT_EQ(again.status, 1);
  EXPECT_TRUE(Has(again.output, "Coach 1 is already coaching for Team2!")) << again.output;
  CliRun card = cli.run("view-coach 2");
  EXPECT_TRUE(Has(card.output, "Coach 1")) << card.output;
  EXPECT_TRUE(Has(card.output, "$150,000")) << card.output;
  EXPECT_EQ(cli.run("--yes fire-coach 2").status, 0);
  EXPECT_EQ(cli.run("--yes fire-coach 2").status, 1);
  EXPECT_EQ(ReadAll(cli.leaguePath() + ".tra"),
            "Team2 hire Head Coach Coach 1<BR><BR>\r\nTeam2 fire Head Coach Coach 1<BR><BR>\r\n");
}

}  // namespace
}  // namespace kvl::test
