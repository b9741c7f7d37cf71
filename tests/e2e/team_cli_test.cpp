// The team commands of the kvl program, run end to end on a written league.
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/league_cli.h"
#include "support/team_files.h"

namespace kvl::test {
namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// What a run printed, standard output and error together.
std::string Said(const ProgramRun& r) { return r.out + r.err; }

TEST(TeamCommandsTest, AutoAllSetsEveryTeamAndTheLinesShowNoEmptySlot) {
  CliLeague cli(StandardLeague(24, 5));
  ProgramRun all = cli.kvl({"--yes", "auto-all"});
  ASSERT_EQ(all.status, 0) << Said(all);
  EXPECT_TRUE(Has(Said(all), "24 of 24 teams set.")) << Said(all);
  for (const char* team : {"0", "Team23"}) {
    ProgramRun run = cli.kvl({"set-lines", team});
    const std::string lines = Said(run);
    EXPECT_EQ(run.status, 0) << lines;
    EXPECT_FALSE(Has(lines, "(empty)")) << lines;
    EXPECT_TRUE(Has(lines, "PK Line 1 (3 on 5)")) << lines;
  }
}

TEST(TeamCommandsTest, RefusalsTellTheSystemsWordsExitOneAndKeepNothing) {
  LeaguePlan plan = StandardLeague(4);
  plan.rosters[0][0].Status = 102;  // an injured scratch
  CliLeague cli(plan);
  struct Case {
    std::vector<std::string> args;
    std::string says;
  } cases[] = {
      {{"--yes", "set-roster", "0", "--dress", "0"}, "T0 C 1 is unavailable"},
      {{"--yes", "set-roster", "0", "--farm", "0"}, "T0 C 1 cannot be sent to farm"},
      {{"--yes", "set-lines", "1", "--place", "E1:0=0"}, "Lines are not complete"},
      {{"--yes", "set-lines", "1", "--place", "E1:0=19"}, "does not fit"},
      {{"--yes", "set-lines", "1", "--place", "X9:0=1"}, "A placement reads ROW:SLOT=PLAYER"},
      {{"--yes", "set-roster", "9"}, "There is no team"},
  };
  for (const auto& c : cases) {
    ProgramRun r = cli.kvl(c.args);
    EXPECT_EQ(r.status, 1) << c.says << "\n" << Said(r);
    EXPECT_TRUE(Has(Said(r), c.says)) << Said(r);
  }
  const std::string roster = Said(cli.kvl({"set-roster", "0"}));
  EXPECT_TRUE(Has(roster, "19 Total Players")) << roster;
}

TEST(TeamCommandsTest, CoachesAreHiredFiredAndLogged) {
  CliLeague cli(StandardLeague(4));
  EXPECT_EQ(cli.kvl({"--yes", "hire-coach", "Team2", "Coach 1"}).status, 0);
  ProgramRun again = cli.kvl({"--yes", "hire-coach", "3", "2"});
  EXPECT_EQ(again.status, 1);
  EXPECT_TRUE(Has(Said(again), "Coach 1 is already coaching for Team2!")) << Said(again);
  const std::string card = Said(cli.kvl({"view-coach", "2"}));
  EXPECT_TRUE(Has(card, "Coach 1")) << card;
  EXPECT_TRUE(Has(card, "$150,000")) << card;
  EXPECT_EQ(cli.kvl({"--yes", "fire-coach", "2"}).status, 0);
  EXPECT_EQ(cli.kvl({"--yes", "fire-coach", "2"}).status, 1);
  EXPECT_EQ(ReadAll(cli.path + ".tra"),
            "Team2 hire Head Coach Coach 1<BR><BR>\r\nTeam2 fire Head Coach Coach 1<BR><BR>\r\n");
}

}  // namespace
}  // namespace kvl::test
