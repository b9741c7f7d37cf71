// output-html, edit-header and edit-footer as a user runs them.
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/league_cli.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

TEST(ReportCommands, OutputHtmlWritesTheChosenGroups) {
  CliLeague lg(SimLeague(4));
  ProgramRun run = lg.kvl({"--no", "output-html", "--pages", "standings,14"});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_NE(run.out.find("4 pages written to " + (lg.home / "Transfer").string()), std::string::npos);
  EXPECT_TRUE(fs::exists(lg.home / "Transfer" / "testCoaches.html"));
  EXPECT_FALSE(fs::exists(lg.home / "Transfer" / "testRosters.html"));
  for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
           {"output-html", "--pages", "standings,nope"}, {"output-html", "--pages", "17"}, {"edit-header", "17"},
           {"edit-footer", "-1"}, {"edit-footer", "2x"}})
    EXPECT_EQ(lg.kvl(args).status, 2) << args.back();
}

TEST(ReportCommands, HeaderFromAFileAndShown) {
  CliLeague lg(SimLeague(4));
  WriteText(lg.dir.path() / "head.html", "<P>Our league</P>\n<HR>\n");
  ASSERT_EQ(lg.kvl({"edit-header", "20", "--from", (lg.dir.path() / "head.html").string()}).status, 0);
  EXPECT_EQ(ReadAll(lg.home / "Headers" / "test.hd20"), "<P>Our league</P>\r\n<HR>\r\n");
  ProgramRun shown = lg.kvl({"edit-header", "20", "--show"});
  EXPECT_NE(shown.out.find("<P>Our league</P>\r\n<HR>"), std::string::npos);
}

}  // namespace
}  // namespace kvl::test
